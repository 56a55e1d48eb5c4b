// SPDX-License-Identifier: MIT
#pragma once

#include "platform/window.h"
#include "state/neighbours.h"

#include <QMainWindow>

class MainMenu;
class QMdiArea;
class StatusBar;

// The main window: it carries all commands and holds the other windows.
class Frm_Main : public QMainWindow, public SharedWindow {
    Q_OBJECT

public:
    Frm_Main();
    // The ordered load of the program, which ends in StartWork.
    void OnLoad() override;

    // Recomputes which commands are open; called behind every change of the document's state.
    void ActivateFunktions();
    // Carries out the command of a menu item by its name; returns whether there is one.
    bool RunCommand(const QString& name);
    // Whether something answers to the menu item.
    static bool HasCommand(const QString& name);
    void AddMenuAttribute(const QString& caption, const QString& tag);
    void UnloadMenuAttributes();
    // Browsing without a document, and its counterpart for the WAP simulation.
    void StartBrowser();
    void StartWAPBrowser();

    void Menu_Window_MaximizeAll();
    void Menu_Window_MinimizeAll();
    void Menu_Window_SetH();
    void Menu_Window_SetV();

    // The size that the layout formulas take for the main window's, in twips.
    Neighbours::Size LayoutSize() const;
    // Place and size in twips, frame included, and the window's state, as the settings hold them.
    Neighbours::MainPlace Place() const;
    // The pop-up menu of the code box, with Cut, Copy, Paste, Zoom and the attributes added.
    void PopupCodeMenu(const QPoint& globalPosition);

    StatusBar* Status() const { return m_statusBar; }
    MainMenu* Commands() const { return m_menu; }
    QMdiArea* Area() const { return m_area; }

    // The end of the program: asks about unsaved text, writes the settings, removes the scratch files. There
    // is no way back from here, but for a text that can be written nowhere. Returns whether the program ends.
    bool Exit();

protected:
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void WireNeighbours();
    void RestorePlace();
    void SettlePlace(int tries);
    void ShowWorkScreenSkin();
    void LayOut();
    void StartWork();
    void EndOnBrokenFile(const QString& fileName);

    MainMenu* m_menu;
    StatusBar* m_statusBar;
    QMdiArea* m_area;
    QRect m_wantedPlace; // pixels, with the frame, whose share is known only once the window is shown
    bool m_loading = false;
    bool m_closeWanted = false; // while it was loading
    bool m_ending = false;
};

namespace Program {

// The entry: splash, test of the installation, main window. `arguments` are the command line's words without
// the program's name. Returns the exit code.
int Main(int argc, char** argv);
// "Full" when all animation files can be opened, otherwise "Update".
QString CheckInstallation();
// The file that a whole command line names: without double quotes at both ends, full, in the program's form.
// Empty for an empty line.
QString FileArgument(const QString& commandLine);
// Makes the system's clipboard the program's.
void ConnectClipboard();
// Ends the program at once, without the exit sequence.
void End();

} // namespace Program
