// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>
#include <functional>

class QToolButton;

// A bar of tool buttons that lie in rows, as many in each as the bar is wide. The arrow keys go through them.
class ButtonBar : public QWidget {
public:
    ButtonBar(const QString& name, QWidget* parent);

    // A button that carries the bar's name, an underscore and `key`.
    void Add(QStringView key, QStringView tip, QStringView icon, std::function<void()> press);

    // One button.
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    int Columns() const;

    QList<QToolButton*> m_buttons;
};
