// SPDX-License-Identifier: MIT
#include "debugger/tag_scan.h"

#include "debugger/accuracy.h"
#include "platform/text.h"

namespace Debugger {

namespace {

constexpr qsizetype LongestClosed = 255; // characters of a closing tag's name that count

// The name without the "/" of an empty element, and without what follows a line break or tab in it.
QStringView CutName(QStringView name) {
    if (name.endsWith(u'/')) name.chop(1);
    const qsizetype lineBreak = name.indexOf(Text::LineBreak);
    if (lineBreak > 0) name.truncate(lineBreak);
    const qsizetype tab = name.indexOf(u'\t');
    if (tab > 0) name.truncate(tab);
    return name;
}

QString TextOf(QStringView before, QStringView name, QStringView behind) {
    QString text;
    text.reserve(before.size() + name.size() + behind.size());
    return text.append(before).append(name).append(behind);
}

} // namespace

void TagScan::Run() {
    const qsizetype size = m_text.size();
    const qsizetype step = StepOf(m_accuracy);
    for (qsizetype i = 1; i <= size; i += step) {
        const qsizetype tag = m_text.indexOf(u'<', i - 1) + 1;
        if (tag == 0) return;
        if (m_text.sliced(tag - 1).startsWith(u"<!--")) {
            const qsizetype end = Text::Find(m_text, u"-->", tag);
            if (end == 0) return; // what follows an unfinished comment stays unchecked
            i = end + 2;
            continue;
        }
        const qsizetype end = NameEnd(tag);
        if (end == 0) return; // and no later tag has an end either
        JudgeTag(m_text.sliced(tag, end - tag - 1), tag);
        i = end;
    }
}

// The first ">" or blank at or behind the one-based `start`; 0 when there is none.
qsizetype TagScan::NameEnd(qsizetype start) const {
    const qsizetype size = m_text.size();
    const QChar* const characters = m_text.data();
    for (qsizetype k = start; k < size; ++k) {
        if (characters[k] == u'>' || characters[k] == u' ') return k + 1;
    }
    return 0;
}

size_t TagScan::SpellingOf(QStringView tag) {
    const auto number = m_numbers.constFind(tag);
    if (number != m_numbers.constEnd()) return *number;

    const size_t added = m_spellings.size();
    m_numbers.insert(tag, added);
    Spelling& spelling = m_spellings.emplace_back();
    const QStringView name = CutName(tag);
    spelling.name = name;
    const QString lower = Text::LowerCase(name);
    spelling.closing = name.startsWith(u'/');
    spelling.known = m_lists.known.Contains(lower);
    const QStringView element = spelling.closing ? Text::Middle(lower, 2, LongestClosed) : QStringView(lower);
    spelling.needsNoClosing = m_lists.noClosing.Contains(element);
    spelling.openName = m_openTags.NameOf(element);
    return added;
}

void TagScan::JudgeTag(QStringView tag, qsizetype position) {
    const size_t number = SpellingOf(tag);
    const Spelling& spelling = m_spellings[number];
    if (spelling.closing) {
        JudgeClosing(number, position);
    } else {
        m_openTags.Enter(spelling.openName, spelling.name, number, position);
    }
    if (!spelling.known) {
        ++m_report.counts.unknownTags;
        ReportFault(Fault::Unknown, number, position);
    }
}

void TagScan::JudgeClosing(size_t number, qsizetype position) {
    const Spelling& spelling = m_spellings[number];
    const bool found = m_openTags.MarkTagClosed(spelling.openName);
    if (m_accuracy != FullAccuracy) return;
    if (!found) {
        ++m_report.counts.wronglyClosedTags;
        ReportFault(Fault::ClosedTooOften, number, position);
    }
    if (spelling.needsNoClosing) {
        ++m_report.counts.wronglyClosedTags;
        ReportFault(Fault::NeedsNoClosing, number, position);
    }
}

void TagScan::ReportUnclosed() {
    for (const OpenTags::Entry& entry : m_openTags.Entries()) {
        if (entry.blanked || m_spellings[entry.spelling].needsNoClosing) continue;
        ++m_report.counts.unclosedTags;
        ReportFault(Fault::NotClosed, entry.spelling, entry.position);
    }
}

// A fault that comes again in the same spelling shares its texts with the first one.
void TagScan::ReportFault(Fault fault, size_t number, qsizetype position) {
    Spelling& spelling = m_spellings[number];
    if (spelling.marker.isNull()) spelling.marker = spelling.name.toString();
    QString& text = spelling.faultTexts[static_cast<size_t>(fault)];
    if (text.isNull()) {
        const QStringView closed = Text::Left(spelling.name, LongestClosed);
        switch (fault) {
        case Fault::Unknown:
            text = TextOf(u"     unbekannter Tag: <", spelling.name, u">");
            break;
        case Fault::ClosedTooOften:
            text = TextOf(u"     Der Tag <", closed, u"> wurde zu oft geschlossen");
            break;
        case Fault::NeedsNoClosing:
            text = TextOf(u"     Der Tag <", closed, u"> muss nicht geschlossen werden");
            break;
        case Fault::NotClosed:
            text = TextOf(u"     Der Tag <", spelling.name, u"> wurde nicht geschlossen.");
            break;
        }
    }
    m_report.Add(ReportIcon::Error, text, spelling.marker, position);
}

} // namespace Debugger
