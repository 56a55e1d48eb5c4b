// SPDX-License-Identifier: MIT
#pragma once

#include "platform/window.h"
#include "shell/options_model.h"

#include <QDialog>

class QCheckBox;
class QLineEdit;
class QListWidget;
class QPushButton;
class QTabWidget;
class QVBoxLayout;

// The options on five tabs. What it shows is taken over only by its first button, and written to disk only as
// the program ends; the picture of project manager and debugger alone is copied and deleted at once.
class Frm_Options : public QDialog, public SharedWindow {
    Q_OBJECT

public:
    Frm_Options();
    void OnLoad() override;

    // Fills the controls from the shared state.
    void LoadOptionsFromRAM();
    // Checks the two numbers and takes everything over. Returns whether it did; if not, the user has been
    // told why.
    bool SaveOptionsToRAM();

private:
    QVBoxLayout* AddTab(int index, const QString& caption, QStringView icon);
    QCheckBox* AddCheckBox(QVBoxLayout* tab, const QString& name, const QString& caption);
    void AddBoundBoxes(QVBoxLayout* tab, int index);
    void BuildDebuggerTab(QVBoxLayout* tab);
    void BuildDesignTab(QVBoxLayout* tab);
    void BuildProjectManagerTab(QVBoxLayout* tab);
    void BuildButtons(QVBoxLayout* all);

    void Chk_UseSkin_Click(int index);
    void Cmd_SetSkin_Click();
    void Cmd_OpenFile_Click();
    void Cmd_FileTypeControl(int index);
    void Cmd_Control(int index);
    // The picture that the user picks; empty when he does not.
    QString PickPicture();
    // Puts `text` into a number box, tells what it takes and leads the user to it.
    void Refuse(QLineEdit* box, const QString& text, const QString& message);
    Options::Values Shown() const;

    QTabWidget* Tab_Options;
    QLineEdit* Txt_DebugAccuracy;
    QCheckBox* Chk_UseSkin[2] = {};
    QLineEdit* Txt_SkinFile;
    QPushButton* Cmd_OpenFile;
    QPushButton* Cmd_SetSkin;
    QLineEdit* Txt_LinkDeep;
    QListWidget* Lst_FileTypes;
    QPushButton* Cmd_RemoveFileType = nullptr;
};
