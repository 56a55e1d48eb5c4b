// SPDX-License-Identifier: MIT
// Drives the real windows as a person does, by object names.
#pragma once

#include <QAbstractButton>
#include <QTest>
#include <QWidget>

class QWebEngineView;

namespace Driver {

// The control of that name in the program's windows; the test fails when there is none.
QWidget* FindControl(const QString& name);
template<class Control> Control* Find(const QString& name) {
    auto* control = qobject_cast<Control*>(FindControl(name));
    if (!control)
        QTest::qFail(qPrintable(QStringLiteral("no control of that kind: ") + name), __FILE__, __LINE__);
    return control;
}
// Carries out a menu item, tool button or drop-down entry; the test fails when it is missing or disabled.
void Trigger(const QString& action);
bool IsEnabled(const QString& action);
// Presses a button by name.
void Click(const QString& name);
// Types keys into the code box as a person does.
void TypeCode(const QString& text);
void PressCode(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
// Moves the mouse over a web view until its page feels it, which is when a click will meet what is painted.
// Returns whether it did.
bool FeelsTheMouse(QWebEngineView* view);
// Runs `inside` as soon as a modal dialog of that name is open.
void InModal(const QString& dialog, std::function<void(QWidget*)> inside);

// The whole program in a temporary program folder: the main window loaded as by a start, without a file. Goes
// as by an exit without questions.
class RunningProgram {
public:
    RunningProgram();
    ~RunningProgram();
};

} // namespace Driver
