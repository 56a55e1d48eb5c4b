// SPDX-License-Identifier: MIT
// Rows of a report as texts: "Error3|message|marker|position", without marker and position "Info|message".
#pragma once

#include "debugger/report.h"

#include <QStringList>

inline QStringList RowTexts(const Debugger::Report& report) {
    QStringList texts;
    for (const Debugger::ReportRow& row : report.rows) {
        QString text = Debugger::IconKey(row.icon) + u'|' + row.text;
        if (row.marker) text += u'|' + *row.marker + u'|' + QString::number(row.position);
        texts << text;
    }
    return texts;
}
