// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QMessageBox;
class QWidget;

// The messages that the scripts of a page bring up. From the second one of a page on, the user can silence
// the rest, so that an endless row of them never holds the program.
class PageMessages {
public:
    void Alert(QWidget* parent, const QString& text);
    bool Confirm(QWidget* parent, const QString& text);
    // Returns whether the user entered something into `result`.
    bool Prompt(QWidget* parent, const QString& text, const QString& preset, QString* result);
    // Another page is being loaded.
    void Forget();

private:
    bool Run(QMessageBox& box);

    int m_count = 0;
    bool m_silenced = false;
};
