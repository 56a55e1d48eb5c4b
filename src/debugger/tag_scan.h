// SPDX-License-Identifier: MIT
// The scan of a page's tags: are they known, and is each one closed once?
#pragma once

#include "debugger/open_tags.h"
#include "debugger/report.h"
#include "debugger/tag_lists.h"

#include <QHash>
#include <QStringView>
#include <array>
#include <deque>

namespace Debugger {

class TagScan {
public:
    // `accuracy` is 1 to 100 percent. The arguments must outlive the scan.
    TagScan(QStringView text, int accuracy, const TagLists& lists, Report& report)
        : m_text(text), m_accuracy(accuracy), m_lists(lists), m_report(report) {}

    // Reports unknown and wrongly closed tags.
    void Run();
    // Reports the tags that Run() has left open.
    void ReportUnclosed();

private:
    enum class Fault { Unknown, ClosedTooOften, NeedsNoClosing, NotClosed };

    // A tag as it is written in the document up to its first ">" or blank. What can be said about it is found
    // out once.
    struct Spelling {
        QStringView name; // without "/" at its end and what a line break or tab cuts off
        bool closing = false;
        bool known = false;
        bool needsNoClosing = false; // of a closing tag: the tag that it closes
        size_t openName = 0; // number of the name in m_openTags; of a closing tag: of the tag that it closes
        QString marker;
        std::array<QString, 4> faultTexts; // by Fault, written when first needed
    };

    qsizetype NameEnd(qsizetype start) const;
    size_t SpellingOf(QStringView tag);
    void JudgeTag(QStringView tag, qsizetype position);
    void JudgeClosing(size_t spelling, qsizetype position);
    void ReportFault(Fault fault, size_t spelling, qsizetype position);

    QStringView m_text;
    int m_accuracy;
    const TagLists& m_lists;
    Report& m_report;
    OpenTags m_openTags;
    QHash<QStringView, size_t> m_numbers;
    std::deque<Spelling> m_spellings; // by number
};

} // namespace Debugger
