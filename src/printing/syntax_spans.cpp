// SPDX-License-Identifier: MIT
#include "printing/syntax_spans.h"

#include "documents/paths.h"
#include "platform/text.h"

#include <algorithm>
#include <limits>
#include <optional>

namespace SyntaxSpans {

namespace {

using Spans = std::vector<Span>;

// Asks at every step of a pass over `length` characters, which is the half of the work behind `before`.
class Half {
public:
    Half(const Progress& progress, double before, qsizetype length)
        : m_progress(progress), m_before(before), m_length(static_cast<double>(length)) {}
    bool GoesOn(qsizetype position) const {
        return !m_progress || m_progress(m_before + static_cast<double>(position) / m_length / 2);
    }

private:
    const Progress& m_progress;
    double m_before;
    double m_length;
};

// A tag from `start` to its ">" at `end` - 1: blue, and its name, up to the first blank, bold.
void AddTag(Spans& spans, qsizetype start, qsizetype nameEnd, qsizetype end) {
    spans.emplace_back(start, 1, Colour::Tag);
    const qsizetype name = nameEnd - start - 1;
    if (name > 0) spans.emplace_back(start + 1, name, Colour::Tag, true);
    spans.emplace_back(nameEnd, end - nameEnd, Colour::Tag);
}

std::optional<Spans> TagPass(QStringView text, qsizetype head, const Half& half) {
    Spans spans;
    spans.reserve(3 * text.count(u'<'));
    Text::Finder opening(text, u"<");
    Text::Finder closing(text, u">");
    Text::Finder blank(text, u" ");
    Text::Finder commentEnd(text, u"-->");
    for (qsizetype i = head + 1; i <= text.size();) { // one-based
        const qsizetype open = opening.From(i);
        if (open == 0) break;
        if (!half.GoesOn(open)) return std::nullopt;
        if (text.sliced(open - 1).startsWith(u"<!--")) {
            const qsizetype hit = commentEnd.From(open);
            const qsizetype end = hit ? hit + 2 : text.size();
            spans.emplace_back(open - 1, end - open + 1, Colour::Comment, false, true);
            i = end + 1;
            continue;
        }
        const qsizetype close = closing.From(open);
        if (close == 0) { // no tag; but a comment may begin behind it
            i = open + 1;
            continue;
        }
        const qsizetype gap = blank.From(open);
        AddTag(spans, open - 1, (gap ? std::min(gap, close) : close) - 1, close);
        i = close + 1;
    }
    return spans;
}

std::optional<Spans> StringPass(QStringView text, qsizetype head, const Half& half) {
    Spans spans;
    spans.reserve(text.count(u'"') / 2 + 1);
    Text::Finder quote(text, u"\"");
    for (qsizetype i = head + 1; i <= text.size();) { // one-based
        const qsizetype begin = quote.From(i);
        if (begin == 0) break;
        if (!half.GoesOn(begin)) return std::nullopt;
        const qsizetype next = quote.From(begin + 1);
        const qsizetype end = next ? next : text.size();
        spans.emplace_back(begin - 1, end - begin + 1, Colour::String);
        i = end + 2; // a quote straight behind the closing one begins nothing; that is meant
    }
    // Such a quote may be the last one of an odd number, which reaches to the end all the same.
    const QStringView behind = text.sliced(std::min(head, text.size()));
    if (behind.count(u'"') % 2 == 0) return spans;
    const qsizetype last = std::max(text.lastIndexOf(u'"'), spans.back().End());
    if (last < text.size()) spans.emplace_back(last, text.size() - last, Colour::String);
    return spans;
}

// The colour of the strings over the tags and comments, which keep the rest.
Spans Merged(const Spans& tags, const Spans& strings) {
    constexpr qsizetype Never = std::numeric_limits<qsizetype>::max();
    Spans all;
    all.reserve(tags.size() + 2 * strings.size());
    auto tag = tags.begin();
    auto string = strings.begin();
    qsizetype at = 0;
    while (tag != tags.end() || string != strings.end()) {
        const qsizetype tagStart = tag == tags.end() ? Never : std::max<qsizetype>(tag->start, at);
        const qsizetype stringStart =
            string == strings.end() ? Never : std::max<qsizetype>(string->start, at);
        at = std::min(tagStart, stringStart);
        const bool inTag = tagStart == at;
        const bool inString = stringStart == at;
        const qsizetype end = std::min(inTag ? tag->End() : tagStart, inString ? string->End() : stringStart);
        all.emplace_back(at, end - at, inString ? Colour::String : tag->colour, inTag && tag->bold,
                         inTag && tag->italic);
        at = end;
        if (tag != tags.end() && tag->End() <= at) ++tag;
        if (string != strings.end() && string->End() <= at) ++string;
    }
    return all;
}

} // namespace

bool HasTags(const QString& path) {
    const QString extension = Text::UpperCase(Global::ExtensionOf(path));
    return extension != u"CSS" && extension != u"JS" && extension != u"VBS";
}

std::vector<Span> Find(QStringView text, qsizetype head, bool tags, const Progress& progress) {
    const auto tagSpans =
        tags ? TagPass(text, head, Half(progress, 0, text.size())) : std::optional<Spans>(Spans());
    if (!tagSpans) return {};
    const auto strings = StringPass(text, head, Half(progress, 0.5, text.size()));
    return strings ? Merged(*tagSpans, *strings) : Spans();
}

} // namespace SyntaxSpans
