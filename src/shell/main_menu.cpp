// SPDX-License-Identifier: MIT
#include "shell/main_menu.h"

#include "platform/icons.h"
#include "platform/literals.h"
#include "state/commands.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QShortcut>
#include <QStyle>
#include <QToolBar>
#include <QToolButton>
#include <vector>

namespace {

// Of these commands only the items close, for documents that have no preview; what the commands have to say
// of such a document is said to whoever presses their keys. That is meant.
constexpr QStringView OpenByKey[] = {u"Menu_View_Browser_Once", u"Menu_View_Browser_Temp"};

} // namespace

MainMenu::MainMenu(QMainWindow* window, std::function<void(const QString&)> run)
    : QObject(window), m_window(window), m_run(std::move(run)) {
    Commands::Watch([this](const QString& name) { ShowState(name); });
}

MainMenu::~MainMenu() { Commands::Watch({}); }

QAction* MainMenu::MakeAction(const QString& name, const QString& text, QStringView icon,
                              const QString& command) {
    auto* action = new QAction(Icons::Named(icon), text, this);
    action->setObjectName(name);
    connect(action, &QAction::triggered, this, [this, name, command] {
        ShowState(name); // a check mark is set by the command, not by the click
        m_run(command);
    });
    m_actions.insert(name, action);
    return action;
}

void MainMenu::BuildMenus() {
    std::vector<QMenu*> open; // by level
    for (const Commands::MenuRow& row : Commands::MenuTree()) {
        const auto level = static_cast<size_t>(row.level);
        open.resize(level);
        QMenu* parent = level > 0 ? open[level - 1] : nullptr;
        const QString name = row.name.toString();
        if (row.flags & Commands::Separator) {
            parent->addSeparator();
            continue;
        }
        if (row.flags & Commands::Submenu) {
            QMenu* menu = parent ? parent->addMenu(row.caption.toString())
                                 : m_window->menuBar()->addMenu(row.caption.toString());
            menu->setObjectName(name + u"_List"_s);
            menu->setSeparatorsCollapsible(false);
            menu->menuAction()->setObjectName(name);
            m_actions.insert(name, menu->menuAction());
            open.push_back(menu);
            // a list of attributes that is longer than the screen scrolls in one column
            if (name == u"Menu_Code") (m_codeMenu = menu)->setStyleSheet(u"QMenu { menu-scrollable: 1; }"_s);
        } else {
            QAction* action = MakeAction(name, row.caption.toString(), row.icon, name);
            if (!row.shortcut.isEmpty()) action->setShortcut(QKeySequence(row.shortcut.toString()));
            action->setCheckable(row.flags & Commands::Checkable);
            parent->addAction(action);
        }
        ShowState(name);
    }
    BuildKeys();
}

// The keys of a closed item are those of nobody; they get an owner that is open just then.
void MainMenu::BuildKeys() {
    for (const QStringView name : OpenByKey) {
        const QString command = name.toString();
        auto* key = new QShortcut(Action(command)->shortcut(), m_window);
        connect(key, &QShortcut::activated, this, [this, command] { m_run(command); });
        m_keys.insert(command, key);
        ShowState(command);
    }
}

void MainMenu::BuildToolBar() {
    auto* bar = new QToolBar(u"Werkzeuge"_s, m_window);
    bar->setObjectName(u"ToolBar"_s);
    bar->setMovable(false);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    const int size = m_window->style()->pixelMetric(QStyle::PM_SmallIconSize) + 4;
    bar->setIconSize({size, size});
    for (const Commands::ToolBarRow& row : Commands::ToolBar()) {
        if (row.key.isEmpty()) {
            bar->addSeparator();
            continue;
        }
        QAction* action =
            MakeAction(Commands::ButtonName(row.key), row.tip.toString(), row.icon, row.command.toString());
        QString tip = row.tip.toString();
        // the tip tells the key, too; button and menu item of one command share it
        const QAction* item = Action(row.command.toString());
        if (item && !item->shortcut().isEmpty()) {
            tip += u" (%1)"_s.arg(item->shortcut().toString(QKeySequence::NativeText));
        }
        action->setToolTip(tip);
        bar->addAction(action);
        ShowState(action->objectName());
        bar->widgetForAction(action)->setObjectName(action->objectName() + u"_Button"_s);
    }
    m_window->addToolBar(bar);
}

void MainMenu::BuildToolbarMenus() {
    const auto* bar = m_window->findChild<QToolBar*>(u"ToolBar"_s);
    for (const Commands::DropDownRow& row : Commands::DropDowns()) {
        auto* button =
            qobject_cast<QToolButton*>(bar->widgetForAction(Action(Commands::ButtonName(row.button))));
        if (!button->menu()) {
            button->setMenu(new QMenu(button));
            button->setPopupMode(QToolButton::MenuButtonPopup);
        }
        // a tab at the start only indents; one in the middle stands before the shortcut's text
        const QString text = row.text.startsWith(u'\t') ? row.text.sliced(1).toString() : row.text.toString();
        const QString name = Commands::EntryName(row.button, row.key);
        button->menu()->addAction(MakeAction(name, text, row.icon, row.command.toString()));
        ShowState(name);
    }
}

void MainMenu::ShowState(const QString& name) {
    QAction* action = Action(name);
    if (!action) return;
    const Commands::State& state = Commands::StateOf(name);
    action->setEnabled(state.enabled);
    // a menu that is not closed itself would be opened again with the window, behind the start
    if (QMenu* menu = action->menu()) menu->setEnabled(state.enabled);
    action->setVisible(state.visible);
    if (action->isCheckable()) action->setChecked(state.checked);
    if (QShortcut* key = m_keys.value(name)) key->setEnabled(!state.enabled);
}
