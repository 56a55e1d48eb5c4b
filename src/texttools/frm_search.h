// SPDX-License-Identifier: MIT
#pragma once

#include "platform/window.h"
#include "texttools/search_run.h"

#include <QDialog>
#include <array>

class QCheckBox;
class QComboBox;
class QPushButton;
class QRadioButton;

// Searches and replaces in the code box. It stays open beside the document, and never over the hit that it
// has just selected.
class Frm_Search : public QDialog, public SharedWindow {
    Q_OBJECT

public:
    Frm_Search();
    void OnLoad() override;
    void OnUnload() override;
    // Shows the window with the selection as the text to search for, if that lies in one line.
    void Present();
    void reject() override; // Esc and the frame's X

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    enum Field { SearchText, Replacement, FieldCount };
    enum Control { Close = 0, GoOn = 1, Replace = 2, Anew = 5 };

    QPushButton* AddControl(Control index, const QString& caption, void (Frm_Search::*press)());
    QComboBox* AddField(Field index, const QString& label);

    void Txt_Search_Change();
    void Chk_Replace_Click();
    void Chk_All_Click();
    void SearchOn(); // from the last hit, or from the start where that is not possible
    void FindNext(); // Cmd_Control 1
    void FindAnew(); // Cmd_Control 5
    void ReplaceHits();
    void ShowHit(bool found);
    void StepAside();
    bool MoveClearOf(const QRect& place);
    void Remember(Field field);
    SearchRun::Wanted Wanted() const;
    SearchRun::Range Range() const;

    SearchRun m_run;
    std::array<QComboBox*, FieldCount> m_fields;
    QRadioButton* const Opt_Option_0;
    QRadioButton* const Opt_Option_1;
    QCheckBox* const Chk_Option_0;
    QCheckBox* const Chk_Option_1;
    QCheckBox* const Chk_Option_2;
    QPushButton* const Cmd_Control_1;
    QPushButton* const Cmd_Control_5;
    QPushButton* const Cmd_Control_2;
    QPushButton* const Cmd_Control_0;
};
