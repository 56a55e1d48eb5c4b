// SPDX-License-Identifier: MIT
#include "documents/code_access.h"

#include "documents/code_box.h"
#include "documents/paths.h"
#include "documents/undo.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/text.h"
#include "state/global.h"
#include "state/neighbours.h"

#include <QHash>
#include <QSet>
#include <algorithm>
#include <cmath>
#include <optional>

namespace HTMLAccess {

QString TitleOf(const QString& page) {
    constexpr QStringView opening = u"<title>";
    const QString lower = Text::LowerCase(page);
    const qsizetype start = lower.indexOf(opening);
    if (start < 0) return {};
    const qsizetype from = start + opening.size();
    const qsizetype end = lower.indexOf(u"</title>", from);
    return end < 0 ? QString() : page.sliced(from, end - from);
}

} // namespace HTMLAccess

namespace RuntimeExtension {

bool IsDigit(QChar c) { return c >= u'0' && c <= u'9'; }

qsizetype FirstDigitPos(qsizetype start, QStringView text) {
    for (qsizetype i = start; i <= text.size(); ++i) {
        if (IsDigit(text[i - 1])) return i;
    }
    return 0;
}

QString CommaToPoint(QString number) {
    const qsizetype comma = number.indexOf(u',');
    if (comma >= 0) number[comma] = u'.';
    return number;
}

bool FileExists(const QString& path) { return Files::CanRead(path); }

QString NumberToBinary(double number) {
    if (!std::isfinite(number)) throw RuntimeError("no digits for this number");
    QString digits;
    for (double rest = std::floor(number); rest > 0; rest = std::floor(rest / 2)) {
        digits.append(std::fmod(rest, 2) == 0 ? u'0' : u'1');
    }
    std::reverse(digits.begin(), digits.end());
    return digits;
}

bool ComboHasItem(const QStringList& entries, const QString& text) { return entries.contains(text); }

} // namespace RuntimeExtension

namespace Library {

QString RemoveChar(QString text, QChar character) { return text.remove(character); }

} // namespace Library

namespace CodeAccess {

void GoToLink(const QString& link) {
    if (link.isEmpty()) {
        Dialogs::Tell(u"Fehler"_s, u"Unerwarteter Fehler beim Durchsuchen des Textes."_s,
                      Dialogs::Icon::Critical);
        return;
    }
    CodeBox* box = Neighbours::TheCodeBox();
    if (!box) return;
    const qsizetype at = Text::UpperCase(box->Text()).indexOf(Text::UpperCase(link));
    if (at < 0) {
        Dialogs::Tell(u"ProjektManager"_s, u"Der Link kann nicht gefunden werden."_s,
                      Dialogs::Icon::Exclamation);
        return;
    }
    box->SetSelStart(at);
    box->SetSelLength(link.size());
    Neighbours::ShowCodeWindow();
}

namespace {

QString InTheCodePage(QString changed, QStringView text) {
    if (Global::DocumentFormat.encoding != CodePage::Encoding::Windows1252) return changed;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (CodePage::ByteOf(changed[i]) < 0 && CodePage::ByteOf(text[i]) >= 0) changed[i] = text[i];
    }
    return changed;
}

} // namespace

QString UpperCase(QStringView text) { return InTheCodePage(Text::UpperCase(text), text); }

QString LowerCase(QStringView text) { return InTheCodePage(Text::LowerCase(text), text); }

namespace {

// Where the name of the tag that begins at `tag` ends: its ">", or a blank before that; 0 when no ">"
// follows.
qsizetype EndOfTagName(qsizetype close, qsizetype blank) {
    return blank != 0 && blank < close ? blank : close;
}

QString ChangeTagCase(QString& page, QString (*change)(QStringView)) {
    Undo::PushUndo();
    const QString known = Text::UpperCase(Global::KnownTagString);
    const QString original = page;
    Text::Finder opens(original, u"<");
    Text::Finder closes(original, u">");
    Text::Finder blanks(original, u" ");
    QHash<QString, bool> answers;
    const auto isKnown = [&](const QString& name) {
        if (name.size() > known.size()) return false;
        const auto answer = answers.constFind(name);
        if (answer != answers.constEnd()) return *answer;
        return *answers.insert(name, known.contains(name));
    };
    for (qsizetype i = 1; i <= original.size();) {
        const qsizetype tag = opens.From(i);
        if (tag == 0) break;
        const qsizetype end = EndOfTagName(closes.From(tag), blanks.From(tag));
        if (end == 0) break; // no ">" follows here, so none follows any later "<" either
        const QStringView name = QStringView(original).sliced(tag, end - tag - 1);
        if (isKnown(Text::UpperCase(name)) && !name.isEmpty()) Text::Overwrite(page, tag + 1, change(name));
        i = end + 1;
    }
    return page;
}

} // namespace

QString LowerCaseTags(QString& page) { return ChangeTagCase(page, &LowerCase); }

QString UpperCaseTags(QString& page) { return ChangeTagCase(page, &UpperCase); }

namespace {

// The name of the tag whose inside, between "<" and ">", is `inside`.
QString TagName(QStringView inside) {
    const qsizetype blank = inside.indexOf(u' ');
    if (blank >= 0) inside.truncate(blank);
    for (const QStringView stop : {Text::LineBreak, QStringView(u"\t")}) {
        const qsizetype at = inside.indexOf(stop);
        if (at > 0) inside.truncate(at);
    }
    // a comment's text may begin without a blank
    return inside.startsWith(u"!--") ? u"!--"_s : inside.toString();
}

// The name of the open tag that a closing tag at `position` would close; nothing when there is none. Each tag
// must end before the place that the walk has come to, so the walk passes over the text once.
std::optional<QString> OpenTagBefore(QStringView text, qsizetype position) {
    const QString noClose = Text::UpperCase(Global::NoCloseTagString);
    QHash<QString, bool> answers;
    while (position >= 1) {
        const qsizetype tag = Text::FindBack(text, u"<", position);
        if (tag == 0) break;
        const QStringView behind = text.first(std::min(position, text.size())).sliced(tag);
        const qsizetype close = behind.indexOf(u'>');
        if (close < 0) break; // the place lies inside this tag
        const QString name = TagName(behind.first(close));
        if (name.startsWith(u'/')) break;
        auto answer = answers.constFind(name);
        if (answer == answers.constEnd()) {
            answer = answers.insert(name, noClose.contains(u'ß' + Text::UpperCase(name) + u'ß'));
        }
        if (!*answer) return name;
        position = tag - 1;
    }
    return std::nullopt;
}

} // namespace

void CloseOpenTag(double position) {
    CodeBox* box = Neighbours::TheCodeBox();
    if (!box) return;
    const auto name = OpenTagBefore(box->Text(), static_cast<qsizetype>(position));
    if (!name) return;
    Attempt([&] {
        Undo::PushUndo();
        box->SetSelLength(0);
        box->SetSelText(u"</"_s + *name + u'>');
    });
}

namespace {

bool IsNumberChar(QChar c) { return RuntimeExtension::IsDigit(c) || c == u',' || c == u'.'; }

// Position of the first character from `start` that belongs to no number; one behind the end if there is
// none.
qsizetype EndOfNumber(QStringView text, qsizetype start) {
    qsizetype end = start;
    while (end <= text.size() && IsNumberChar(text[end - 1])) ++end;
    return end;
}

} // namespace

double CalculateSelection(const QString& text, Calculation mode) {
    double total = 0;
    double count = 0;
    for (qsizetype i = 1; i <= text.size();) {
        const qsizetype start = RuntimeExtension::FirstDigitPos(i, text);
        if (start == 0) break;
        const qsizetype end = EndOfNumber(text, start);
        const QString number = RuntimeExtension::CommaToPoint(text.sliced(start - 1, end - start));
        const double read = Text::LeadingNumber(number);
        if (number.count(u'.') <= 1 && std::isfinite(total + read)) {
            total += read;
            ++count;
        }
        i = end + 1;
    }
    if (mode == Calculation::Count) return count == 0 ? 1 : count;
    const double value = mode == Calculation::Average ? total / std::max(count, 1.0) : total;
    const double thousandths = std::nearbyint(value * 1000);
    return std::isfinite(thousandths) ? thousandths / 1000 : value; // so large a value has no fraction
}

void ManipulateNumbers(const QString& prefix) {
    CodeBox* box = Neighbours::TheCodeBox();
    if (!box) return;
    const qsizetype start = box->SelStart();
    const QString selection = box->SelText();
    const auto turned = [](QString text) {
        std::reverse(text.begin(), text.end());
        return text;
    };
    const QString turnedPrefix = turned(prefix);
    // The insertions move forward only: `done` is what lies behind, `rest` what lies ahead, turned around, so
    // that both are worked on at their ends.
    QString done;
    QString rest = turned(selection);
    const auto step = [&] {
        done.append(rest.back());
        rest.chop(1);
    };
    qsizetype first = -1;                // where the first insertion stands
    qsizetype behind = selection.size(); // number of characters that no insertion stands in
    qsizetype length = selection.size(); // what the selection is to become; what is looked at lags behind
    qsizetype view = length;
    qsizetype r = 0;
    // A prefix longer than the walk's step would find itself for ever: as many rounds as the selection has
    // characters are enough for every number in it.
    for (qsizetype round = 0; round < selection.size(); ++round) {
        ++r;
        while (!rest.isEmpty() && done.size() < r - 1) step();
        while (!rest.isEmpty() && done.size() < view && !RuntimeExtension::IsDigit(rest.back())) step();
        if (rest.isEmpty() || done.size() >= view || done.size() < r - 1) break;
        qsizetype number = 0; // its length
        while (number < rest.size() && IsNumberChar(rest[rest.size() - 1 - number])) ++number;
        const qsizetype p = done.size() + 1;
        const qsizetype end = p + number <= view ? p + number : length;
        if (r > start + length) break;
        if (first < 0) first = done.size();
        behind = std::min(behind, rest.size());
        rest.append(turnedPrefix);
        view = length;
        length += prefix.size();
        r = end + 1;
    }
    done.append(turned(rest));
    if (done != selection) {
        // What lies before the first prefix and behind the last number is left alone: the selection may end
        // inside a line break, which a write over its end would double.
        box->SetSelStart(start + first);
        box->SetSelLength(selection.size() - first - behind);
        box->SetSelText(done.sliced(first, done.size() - first - behind));
    }
    box->SetSelStart(start);
    box->SetSelLength(view);
}

namespace {

// A list in order without doubles.
class DistinctList {
public:
    void Add(const QString& item) {
        if (m_seen.contains(item)) return;
        m_seen.insert(item);
        m_items.append(item);
    }
    bool Has(const QString& item) const { return m_seen.contains(item); }
    QStringList Take() { return std::move(m_items); }

private:
    QSet<QString> m_seen;
    QStringList m_items;
};

} // namespace

QStringList ScanFunctions(const QString& text) {
    constexpr QStringView keyword = u"function ";
    DistinctList names;
    Text::Finder keywords(text, keyword);
    Text::Finder brackets(text, u"(");
    Text::Finder braces(text, u"{");
    Text::Finder breaks(text, Text::LineBreak);
    for (qsizetype i = 1; i <= text.size();) {
        const qsizetype at = keywords.From(i);
        if (at == 0) break;
        qsizetype end = brackets.From(at);
        if (end == 0) end = braces.From(at);
        i = at + 1;
        const qsizetype begin = at + keyword.size();
        if (end == 0 || end < begin) continue;
        const qsizetype lineEnd = breaks.From(begin);
        if (lineEnd != 0 && lineEnd < end) continue; // the name would run over a line break
        const QStringView name = QStringView(text).sliced(begin - 1, end - begin);
        if (name.startsWith(u"function") || names.Has(name.toString())) continue;
        names.Add(name.toString());
        i = end + 1;
    }
    return names.Take();
}

namespace {

void AddVariables(DistinctList& names, const QString& declared) {
    if (declared.contains(u',')) {
        for (const QString& piece : QString(declared + u" ,").split(u',')) {
            const QString name =
                Global::CutBefore(Library::RemoveChar(Library::RemoveChar(piece, u' '), u'\t'), u";"_s);
            if (!name.isEmpty()) names.Add(name);
        }
        return;
    }
    QString name = declared;
    for (const QString& stop : {u" "_s, u"\t"_s, u";"_s}) name = Global::CutBefore(name, stop);
    if (!name.contains(Text::LineBreak) && !name.contains(u"var")) names.Add(name);
}

} // namespace

QStringList ScanVariables(const QString& text) {
    constexpr QStringView keyword = u"var ";
    DistinctList names;
    Text::Finder keywords(text, keyword);
    Text::Finder breaks(text, Text::LineBreak);
    Text::Finder semicolons(text, u";");
    Text::Finder signs(text, u"=");
    for (qsizetype i = 1; i <= text.size();) {
        const qsizetype at = keywords.From(i);
        if (at == 0) break;
        const qsizetype begin = at + keyword.size();
        qsizetype end = breaks.From(begin);
        if (end == 0) end = semicolons.From(begin);
        const qsizetype sign = signs.From(begin);
        if (sign != 0 && (end == 0 || sign < end)) end = sign;
        i = at + 1;
        if (end == 0) continue;
        AddVariables(names, text.sliced(begin - 1, end - begin));
        i = end + 1;
    }
    return names.Take();
}

} // namespace CodeAccess
