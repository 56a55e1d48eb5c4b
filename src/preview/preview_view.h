// SPDX-License-Identifier: MIT
#pragma once

#include <QWebEngineView>

// The view of the preview, with a German context menu of the few commands that make sense in it. Files that
// are dropped on it are left to the main window.
class PreviewView : public QWebEngineView {
    Q_OBJECT

public:
    explicit PreviewView(QWidget* parent = nullptr);

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
};
