// SPDX-License-Identifier: MIT
#pragma once

#include "documents/code_host.h"
#include "documents/txt_code.h"
#include "platform/mdi_child.h"

#include <QTimer>
#include <cstdint>

class QLabel;

// The one document window. Its text survives its closing in Global::HeldSource.
class Frm_Code : public MdiChild, public CodeHost {
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
    // Runs the check, if the debugger is shown, once per change: when the user leaves the spot.
    void CheckOnce();

    QWidget* Window() override { return this; }
    Txt_Code& Box() override { return *TextBox; }
    int CodeTop() const override { return m_codeTop; }
    void TakeIntoKeyPreview(QWidget* control) override { control->installEventFilter(this); }
    ScriptControls ScriptBar() override { return {Cmb_Functions, Cmb_Variables, Tlb_JavaScript}; }
    const QString& HelpFile() const override { return AssistantHelpText; }
    const QString& AttributeFile() const override { return AttributeText; }
    const QString& ScriptObjectFile() const override { return ScriptObjectText; }

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

    QTimer m_counting; // goes on with GetCursorPos()
    int m_codeTop = 0;
    int SavedLeft = 0;
    int SavedTop = 0;
    int SavedWidth = 9000;
    int SavedHeight = 6000;
};
