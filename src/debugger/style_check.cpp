// SPDX-License-Identifier: MIT
#include "debugger/style_check.h"

#include "debugger/accuracy.h"
#include "debugger/css_check.h"
#include "debugger/marks.h"
#include "platform/text.h"

#include <QSet>
#include <optional>

namespace Debugger {

namespace {

// Where the word STYLE stands, in upper or lower case, as part of a piece of markup.
struct StyleMarks {
    explicit StyleMarks(QStringView text);

    Marks openings;   // "<STYLE"
    Marks closings;   // "</STYLE"
    Marks attributes; // STYLE=" , the quotation mark included
};

StyleMarks::StyleMarks(QStringView text) {
    constexpr QStringView Word = u"STYLE";
    const qsizetype size = text.size();
    const QChar* const characters = text.data();
    for (qsizetype k = 2; k + 2 < size; ++k) {
        if ((characters[k].unicode() | 0x20) != u'y') continue;
        const qsizetype word = k - 2;
        if (!Text::EqualIgnoringCase(text.sliced(word, Word.size()), Word)) continue;
        const QStringView before = text.first(word);
        if (before.endsWith(u'<')) openings.push_back(word);
        if (before.endsWith(u"</")) closings.push_back(word - 1);
        if (text.sliced(word + Word.size()).startsWith(u"=\"")) attributes.push_back(word + 1);
    }
}

// The scan for blocks of style rules in a page.
class StyleScan {
public:
    StyleScan(QStringView text, int accuracy, Report& report)
        : m_text(text), m_step(StepOf(accuracy)), m_report(report) {}
    void Run();

private:
    struct Markup {
        qsizetype start = 0; // 0: there is no more
        StyleMode mode = StyleMode::Head;
    };
    // Rules from the character `start` up to the one before `end`; `end` is where the scan goes on.
    struct Block {
        qsizetype start = 0;
        qsizetype end = 0;
    };
    Markup NextMarkup(qsizetype i);
    std::optional<Block> BlockOf(const Markup& markup);
    std::optional<Block> ElementBlock(qsizetype start);
    std::optional<Block> AttributeBlock(qsizetype start) const;
    void Check(const Block& block, StyleMode mode);

    QStringView m_text;
    qsizetype m_step;
    Report& m_report;
    StyleMarks m_marks{m_text};
    MarkCursor m_openings{m_marks.openings};
    MarkCursor m_attributes{m_marks.attributes};
    MarkCursor m_closingsBehindTag{m_marks.closings};
    MarkCursor m_closingsBehindStart{m_marks.closings};
    Text::Finder m_tagEnds{m_text, u">"};
};

void StyleScan::Run() {
    QSet<qsizetype> ends;
    for (qsizetype i = 1; i <= m_text.size(); i += m_step) {
        const Markup markup = NextMarkup(i);
        if (markup.start == 0) return;
        const auto block = BlockOf(markup);
        if (!block) {
            i += (markup.start - i) / m_step * m_step; // until then every round meets the same markup
            continue;
        }
        // Unfinished markup at the end of a page can lead the scan back. Where it has been before, it would
        // go round for ever.
        if (ends.contains(block->end)) return;
        ends.insert(block->end);
        Check(*block, markup.mode);
        if (block->end < i) m_tagEnds = Text::Finder(m_text, u">");
        i = block->end;
    }
}

StyleScan::Markup StyleScan::NextMarkup(qsizetype i) {
    const qsizetype opening = m_openings.From(i);
    const qsizetype attribute = m_attributes.From(i);
    if (opening == 0 || (attribute > 0 && attribute < opening)) return {attribute, StyleMode::Inline};
    return {opening, StyleMode::Head};
}

std::optional<StyleScan::Block> StyleScan::BlockOf(const Markup& markup) {
    return markup.mode == StyleMode::Head ? ElementBlock(markup.start) : AttributeBlock(markup.start);
}

// The block leaves out the last character before the closing tag; that is meant. An opening tag without its
// ">" makes the block begin with the page.
std::optional<StyleScan::Block> StyleScan::ElementBlock(qsizetype start) {
    if (m_closingsBehindTag.From(start + 1) == 0) return std::nullopt;
    const qsizetype first = m_tagEnds.From(start) + 1;
    const qsizetype end = m_closingsBehindStart.From(first) - 1;
    if (end <= 0) return std::nullopt;
    return Block{first, end};
}

// The value's end is looked for from its second character on, so an empty value reaches to the next quotation
// mark.
std::optional<StyleScan::Block> StyleScan::AttributeBlock(qsizetype start) const {
    const qsizetype first = start + 7;
    const qsizetype end = Text::Find(m_text, u"\"", first + 1);
    if (end == 0) return std::nullopt;
    return Block{first, end};
}

void StyleScan::Check(const Block& block, StyleMode mode) {
    if (block.end < block.start) {
        m_report.Add(ReportIcon::Error, UnknownFaultText); // an element without any content
        return;
    }
    CheckCSSSyntax(Text::Middle(m_text, block.start, block.end - block.start), mode, block.start, m_report);
}

} // namespace

void CheckStyleSheet(QStringView text, Report& report) {
    if (!text.isEmpty()) CheckCSSSyntax(text.chopped(1), StyleMode::Head, 1, report);
}

void CheckPageStyles(QStringView text, int accuracy, Report& report) {
    StyleScan(text, accuracy, report).Run();
}

} // namespace Debugger
