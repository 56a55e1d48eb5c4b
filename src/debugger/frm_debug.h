// SPDX-License-Identifier: MIT
#pragma once

#include "debugger/report_model.h"
#include "debugger/tag_lists.h"
#include "platform/mdi_child.h"

class ErrorList;

// The debugger: a strip below the code with the report of the checks. A click on a row selects in the code
// what the row speaks of.
class Frm_DeBug : public MdiChild {
    Q_OBJECT

public:
    Frm_DeBug();
    void OnLoad() override;
    void OnUnload() override;

    // Shows the window in front, which runs a check.
    void Present();
    // Checks the document as the menu's check marks and the settings say, and shows the new report.
    void CheckSyntax();
    // Lays the strip under the code, its height held within the main window; the others make room.
    void ActualizeSize();
    // Shows all tags of the code in one colour, until the text they stand in is replaced.
    void ActualizeSyntaxColors();

protected:
    void PlaceChanged(int state) override;
    void Activated() override;
    void Deactivated() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void BuildFrame();
    void RunOncePerActivation();
    void Errors_ItemClick(int row);

    ErrorList* Lvw_Errors;
    Debugger::ReportModel m_report;
    Debugger::TagLists m_lists;
    QString m_checkedFile;
    int m_height; // twips, as the user wants it
    bool m_fitting = false;
    bool m_checkedActive = false; // the check of the present activation has run
};
