// SPDX-License-Identifier: MIT
#pragma once

#include "documents/txt_code.h"
#include "platform/mdi_child.h"

#include <cstdint>

class DropDownList;
class QLabel;
class QToolBar;

// The one document window. Its text survives its closing in Global::HeldSource.
class Frm_Code : public MdiChild {
    Q_OBJECT

public:
    Frm_Code();
    void OnLoad() override;
    void OnUnload() override;

    // Brings the window and the commands into line with the document type.
    void ActivateToolBar();
    // Fits the window to the main window while FitMode is 2.
    void ActualizeSize();
    // Shows line and column in the status bar.
    void GetCursorPos();
    // Lets every key that `control` gets take an undo copy first.
    void TakeIntoKeyPreview(QWidget* control) { control->installEventFilter(this); }
    // Runs the check, if the debugger is shown, once per change: when the user leaves the spot.
    void CheckOnce();
    // Twips by which the code box's top stands below the window's; 330 while the script bar shows.
    int CodeTop() const { return m_codeTop; }

    bool ScriptBarShown;        // the script bar is uncovered: always as its command is checked
    std::int16_t FitMode = 0;   // 2 while the window is held to the main window's client area
    bool SyntaxChecked = false; // the check has run since the last change

    // The files of help and attributes, each line followed by one blank; read at load.
    QString AssistantHelpText;
    QString AttributeText;
    QString ScriptObjectText; // only the lines of script objects

    Txt_Code* const TextBox;
    QWidget* const Pic_ToolBar;
    DropDownList* const Cmb_Functions;
    DropDownList* const Cmb_Variables;
    QToolBar* const Tlb_JavaScript;

protected:
    void PlaceChanged(int state) override;
    void Activated() override;
    void Deactivated() override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void LoadAssistantHelp();
    void LoadAttributeText();
    void LoadScriptObjects();
    void ReopenTools();
    void RememberTools();
    void LayOut();
    void Code_Change();
    void Code_KeyDown(int key, int shift);
    void Code_MouseDown(int button, int shift, double x, double y);

    int m_codeTop = 0;
    int SavedLeft = 0;
    int SavedTop = 0;
    int SavedWidth = 9000;
    int SavedHeight = 6000;
};
