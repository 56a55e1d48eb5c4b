// SPDX-License-Identifier: MIT
#include "support/driver.h"

#include "documents/frm_code.h"
#include "platform/clipboard.h"
#include "platform/literals.h"
#include "platform/window.h"
#include "shell/frm_main.h"
#include "shell/main_menu.h"
#include "shell/wiring.h"
#include "state/commands.h"
#include "state/global.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTimer>
#include <QWebEnginePage>
#include <QWebEngineView>
#include <memory>

namespace Driver {

QWidget* FindControl(const QString& name) {
    QWidgetList windows = QApplication::topLevelWidgets();
    if (QWidget* modal = QApplication::activeModalWidget()) windows.prepend(modal); // it alone takes input
    for (QWidget* top : windows) {
        if (top->objectName() == name) return top;
        if (auto* control = top->findChild<QWidget*>(name)) return control;
    }
    QTest::qFail(qPrintable(u"no control "_s + name), __FILE__, __LINE__);
    return nullptr;
}

void Trigger(const QString& name) {
    QAction* action = Shared<Frm_Main>().Commands()->Action(name);
    if (!action || !action->isEnabled()) {
        QTest::qFail(qPrintable(u"command missing or disabled: "_s + name), __FILE__, __LINE__);
        return;
    }
    action->trigger();
    QCoreApplication::processEvents();
}

bool IsEnabled(const QString& name) {
    const QAction* action = Shared<Frm_Main>().Commands()->Action(name);
    return action && action->isEnabled();
}

void Click(const QString& name) {
    if (auto* button = Find<QAbstractButton>(name)) button->click();
    QCoreApplication::processEvents();
}

void TypeCode(const QString& text) {
    // key by key, as the window system delivers them; Qt Test itself types only ASCII
    for (const QChar character : text) {
        const int key = character.toUpper().unicode();
        for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, character == u'\n' ? int(Qt::Key_Return) : key, Qt::NoModifier, character);
            QCoreApplication::sendEvent(Shared<Frm_Code>().TextBox, &event);
        }
    }
    QCoreApplication::processEvents();
}

void PressCode(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(Shared<Frm_Code>().TextBox, key, modifiers);
    QCoreApplication::processEvents();
}

bool FeelsTheMouse(QWebEngineView* view) {
    constexpr int Patience = 30000; // milliseconds
    view->page()->runJavaScript(u"window.felt = 0; addEventListener('mousemove', () => ++window.felt);"_s);
    struct State {
        bool asked = false; // a page that is asked again before it has answered never does
        bool felt = false;
    };
    const auto state = std::make_shared<State>(); // the last answer may come behind this routine
    int x = 0;
    const auto move = [&] {
        if (state->asked || !view->focusProxy()) return state->felt;
        // straight to the view: a pointer moved over the screen may meet another window
        const QPointF place(5 + ++x % 2, 5);
        QMouseEvent event(QEvent::MouseMove, place, view->focusProxy()->mapToGlobal(place), Qt::NoButton,
                          Qt::NoButton, {});
        QCoreApplication::sendEvent(view->focusProxy(), &event);
        state->asked = true;
        view->page()->runJavaScript(u"window.felt > 0"_s, [state](const QVariant& felt) {
            *state = {false, felt.toBool()};
        });
        return state->felt;
    };
    return QTest::qWaitFor(move, Patience);
}

void InModal(const QString& dialog, std::function<void(QWidget*)> inside) {
    auto* timer = new QTimer;
    timer->setInterval(5);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, dialog, inside, tries = 0]() mutable {
        QWidget* modal = QApplication::activeModalWidget();
        const bool found = modal && modal->objectName() == dialog;
        if (!found && ++tries < 6000) return;
        timer->stop();
        timer->deleteLater();
        if (found) {
            inside(modal);
        } else {
            QTest::qFail(qPrintable(u"the dialog never opened: "_s + dialog), __FILE__, __LINE__);
        }
    });
    timer->start();
}

RunningProgram::RunningProgram() {
    Wiring::WireWindows();
    Program::ConnectClipboard();
    Shared<Frm_Main>();
    Global::StartPending = false; // neither a start dialog nor a file of the command line
    QCoreApplication::processEvents();
}

RunningProgram::~RunningProgram() {
    Wiring::UnloadAll();
    Clipboard::Install({});
    // A program that has ended leaves word that event loops are to end at once; a loop of the application
    // takes it back.
    QTimer::singleShot(0, qApp, &QCoreApplication::quit);
    QApplication::exec();
}

} // namespace Driver
