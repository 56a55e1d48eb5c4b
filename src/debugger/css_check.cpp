// SPDX-License-Identifier: MIT
#include "debugger/css_check.h"

#include "debugger/css_value.h"
#include "platform/text.h"

#include <algorithm>

namespace Debugger {

namespace {

// The last `needle` at or before a position that never decreases from call to call.
class LastFinder {
public:
    LastFinder(QStringView text, QStringView needle) : m_finder(text, needle) {}
    // One-based; 0 when there is none.
    qsizetype UpTo(qsizetype position) {
        for (qsizetype hit = m_finder.From(m_last + 1); hit > 0 && hit <= position;
             hit = m_finder.From(hit + 1)) {
            m_last = hit;
        }
        return m_last;
    }

private:
    Text::Finder m_finder;
    qsizetype m_last = 0;
};

// Overwrites every comment and the one character behind it by "/"; that one character too many is meant. Of a
// comment without an end, the last character of the text stays.
void BlankComments(QString& css) {
    for (qsizetype i = 1; i <= css.size();) {
        const qsizetype start = Text::Find(css, u"/*", i);
        if (start == 0) return;
        const qsizetype close = Text::Find(css, u"*/", start);
        const qsizetype end = close == 0 ? css.size() : close + 3;
        std::fill(css.begin() + (start - 1), css.begin() + (end - 1), u'/');
        i = end + 1;
    }
}

// The walk over the declarations of a block whose comments are blanked.
class DeclarationWalk {
public:
    DeclarationWalk(QStringView css, qsizetype offset, Report& report)
        : m_css(css), m_offset(offset), m_report(report) {}
    void Run();

private:
    bool TakeValue(qsizetype colon, qsizetype semicolon);
    void ReportMissingSemicolon(qsizetype colon, qsizetype semicolon);
    qsizetype InDocument(qsizetype position) const { return position + m_offset - 1; }

    QStringView m_css;
    qsizetype m_offset;
    Report& m_report;
    CSSValue m_value;
    bool m_headHasBrace = false;
    Text::Finder m_colons{m_css, u":"};
    Text::Finder m_semicolons{m_css, u";"};
    Text::Finder m_colonsInValue{m_css, u":"};
    Text::Finder m_closingsInValue{m_css, u"}"};
    Text::Finder m_openings{m_css, u"{"};
    LastFinder m_lastClosing{m_css, u"}"};
    LastFinder m_lastOpening{m_css, u"{"};
};

void DeclarationWalk::Run() {
    const qsizetype size = m_css.size();
    for (qsizetype i = 1; i <= size; ++i) {
        const qsizetype colon = m_colons.From(i);
        if (colon == 0) return;
        qsizetype semicolon = m_semicolons.From(i);
        if (semicolon == 0) semicolon = size;
        if (!TakeValue(colon, semicolon)) m_report.Add(ReportIcon::Error, IndentedFaultText);
        if (m_value.Overruns()) {
            ReportMissingSemicolon(colon, semicolon);
            i = colon;
        } else {
            m_value.Report(m_report, InDocument(colon));
            i = semicolon;
        }
    }
}

// A semicolon ahead of the colon, as the second one of "a:b;;c:d", leaves no value to take. The value of the
// round before then stays and is judged once more; that is meant.
bool DeclarationWalk::TakeValue(qsizetype colon, qsizetype semicolon) {
    if (semicolon < colon) return false;
    const auto within = [&](Text::Finder& finder) {
        const qsizetype hit = finder.From(colon + 1);
        return hit > 0 && hit < semicolon;
    };
    const bool colonWithin = within(m_colonsInValue);
    if (within(m_closingsInValue) || colonWithin) {
        m_value.SetOverrun();
    } else {
        m_value.Set(Text::Middle(m_css, colon + 1, semicolon - colon - 1));
    }
    return true;
}

// The value reaches over a "}" or another colon. The colon belongs to a declaration without an end, and not
// to a selector, when there is a "{" in the text from the last "}" to the next "{".
void DeclarationWalk::ReportMissingSemicolon(qsizetype colon, qsizetype semicolon) {
    const qsizetype start = m_lastClosing.UpTo(semicolon) + 1;
    qsizetype brace = m_openings.From(colon);
    if (brace == 0) brace = m_css.size();
    if (brace < start) {
        // The last "}" lies behind the next "{": there is no such text, and the answer of the round before
        // stays.
        m_report.Add(ReportIcon::Error, IndentedFaultText);
    } else {
        m_headHasBrace = m_lastOpening.UpTo(colon) >= start;
    }
    if (!m_headHasBrace) return;
    ++m_report.counts.cssErrors;
    m_report.Add(ReportIcon::Error, u"     Am Ende eines Wertes steht kein Semikolon."_s, u"_"_s,
                 InDocument(colon));
}

} // namespace

void CheckCSSSyntax(QStringView css, StyleMode, qsizetype offset, Report& report) {
    QString block;
    block.reserve(css.size() + 1);
    block.append(css).append(u';'); // so that the last declaration has an end
    BlankComments(block);
    DeclarationWalk(block, offset, report).Run();
}

} // namespace Debugger
