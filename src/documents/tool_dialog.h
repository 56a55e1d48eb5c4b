// SPDX-License-Identifier: MIT
#pragma once

#include "platform/window.h"

#include <QDialog>
#include <functional>

class QHBoxLayout;
class QLabel;
class QVBoxLayout;

// A modal dialog that writes code: a picture and a heading on top, what it asks for in the middle, its
// buttons `Cmd_Control` at the bottom. The assistant says a line each time it becomes the active window.
class ToolDialog : public QDialog, public SharedWindow {
    Q_OBJECT

public:
    // `name` and caption of the window; `line` is the assistant's.
    ToolDialog(const QString& name, const QString& caption, QString line);

protected:
    // Shows the icon `picture` as Pic_InsertPicture and the heading as Label1.
    void SetHeading(QStringView picture, const QString& heading);
    // What the dialog asks for; fill it in the constructor.
    QVBoxLayout* Content() const { return m_content; }
    // A label of that name in front of `control`, whose access key and reader it serves.
    static QLabel* LabelFor(QWidget* control, const QString& name, const QString& text);
    // Keeps `wanted` pixels free for `control`, less in height where the screen would cut off the buttons.
    void Reserve(QWidget* control, QSize wanted) const;
    // A button Cmd_Control with the index; the first one is the default.
    QPushButton* AddControl(int index, const QString& caption, std::function<void()> press);
    // Ends the dialog.
    void Leave();

    bool event(QEvent* event) override;

private:
    const QString m_line;
    QHBoxLayout* m_heading;
    QVBoxLayout* m_content;
    QHBoxLayout* m_controls;
};
