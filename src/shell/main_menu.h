// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QObject>
#include <QString>
#include <functional>

class QAction;
class QMainWindow;
class QMenu;
class QShortcut;
class QToolBar;

// Menu bar and tool bar of the main window, built from the table of commands and kept in step with their
// state.
class MainMenu : public QObject {
    Q_OBJECT

public:
    // `run` carries out the command of a menu item by its name.
    MainMenu(QMainWindow* window, std::function<void(const QString&)> run);
    ~MainMenu() override;

    void BuildMenus();
    void BuildToolBar();
    // Fills the drop-downs of the tool buttons.
    void BuildToolbarMenus();

    // The action or menu of a command by its object name; nothing when there is none.
    QAction* Action(const QString& name) const { return m_actions.value(name); }
    QMenu* CodeMenu() const { return m_codeMenu; } // the context menu of the code box

private:
    QAction* MakeAction(const QString& name, const QString& text, QStringView icon, const QString& command);
    void BuildKeys();
    void ShowState(const QString& name);

    QMainWindow* m_window;
    std::function<void(const QString&)> m_run;
    QHash<QString, QAction*> m_actions;
    QHash<QString, QShortcut*> m_keys; // by the command that they stand in for
    QMenu* m_codeMenu = nullptr;
};
