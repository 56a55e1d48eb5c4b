// SPDX-License-Identifier: MIT
// The text between a colon and a semicolon of a style rule, and what is wrong with it.
#pragma once

#include "debugger/report.h"

#include <QString>
#include <QStringView>

namespace Debugger {

class CSSValue {
public:
    CSSValue() { Set({}); }
    void Set(QStringView value);
    // Makes it a value that reaches over a "}" or another colon, which nobody reads.
    void SetOverrun() { m_overruns = true; }
    bool Overruns() const { return m_overruns; }

    // Adds the faults of the value; `position` is its colon's, one-based, in the document. Asked again for
    // the same value, it adds the same texts without making them anew.
    void Report(Debugger::Report& report, qsizetype position) const;

private:
    bool m_overruns = false;
    QString m_marker;
    QString m_unitMissing; // row texts; empty where the rule does not hit
    QString m_blankInFront;
    bool m_isMissing = false;
};

} // namespace Debugger
