// SPDX-License-Identifier: MIT
#pragma once

#include "platform/window.h"

#include <QIcon>
#include <QPointer>
#include <QRect>
#include <QWidget>

class QMdiArea;
class QMdiSubWindow;

// A shared window inside the main window. Its place is told in twips and means the outer frame.
class MdiChild : public QWidget, public SharedWindow {
    Q_OBJECT

public:
    MdiChild();

    // The area that children made from now on lie in; without one they are windows of their own.
    static void SetHost(QMdiArea* host);
    static QMdiArea* Host();
    // The window around the area, which owns the windows beside it; none without one.
    static QWidget* HostWindow();

    int Left() const { return m_place.left; }
    int Top() const { return m_place.top; }
    int Width() const { return m_place.width; }
    int Height() const { return m_place.height; }
    void SetPlace(int left, int top, int width, int height);

    // 0 normal, 1 minimised, 2 maximised.
    int State() const;
    void SetNormalState();
    void ShowMaximizedState();
    // Shows the window, brings it to the front and makes it the active child.
    void BringToFront();
    bool IsShown() const;
    bool IsActiveChild() const;
    void SetCaption(const QString& caption, const QIcon& icon = {});

protected:
    // The widget whose geometry is the window's outer one.
    QWidget* Frame() const;
    // Behind every change of the outer place or of the state; `state` as in State().
    virtual void PlaceChanged(int /*state*/) {}
    virtual void Activated() {}
    virtual void Deactivated() {}

    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Place {
        int left = 0;
        int top = 0;
        int width = 0;
        int height = 0;
    };
    void TakePlace();

    QPointer<QMdiSubWindow> m_frame;
    Place m_place; // twips; exact as set, not rounded to pixels
    bool m_placing = false;
};
