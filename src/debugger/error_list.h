// SPDX-License-Identifier: MIT
#pragma once

#include <QTableView>
#include <functional>

// A report list: rows of one height, one of them selected, that are drawn as they come into sight. A message
// runs on over the empty second column; what does not fit then shows whole in a tip.
class ErrorList : public QTableView {
    Q_OBJECT

public:
    explicit ErrorList(QWidget* parent = nullptr);

    // Widths in pixels for a window of that outer width: half of it, and the whole.
    void SetColumnWidths(int windowWidth);
    // Lays `picture` under the rows; their text is then dark or light as it needs.
    void SetPicture(const QPixmap& picture);
    // Runs `change` of the model; scroll and selected row keep their places by number.
    void KeepingPlace(const std::function<void()>& change);
    // Shows the list from its start, with nothing selected.
    void ToStart();
    // Where the message of the row is drawn.
    QRect RowRect(int row) const;

    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;

signals:
    void AboutToPress();     // a mouse button goes down; the rows may still change
    void Released();         // behind a click's own signal
    void RowChosen(int row); // clicked, or Enter pressed on it
    void EscapePressed();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;

private:
    void FitRowHeight();
};
