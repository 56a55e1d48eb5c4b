// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QKeyEvent;
class QLineEdit;
class QTableView;

// Keys of a spreadsheet for a grid whose cells are written in a field beside it: Tab, Enter, Up and Down go
// to the next cell, Left and Right too while the whole text is selected or the caret stands at its end; F2
// goes into the text. While the grid itself has the focus, typing begins the cell anew and Delete empties it.
class CellKeys : public QObject {
public:
    CellKeys(QTableView* grid, QLineEdit* field);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool Move(int rows, int columns);
    bool TakeKey(int key, bool shift);
    bool TakeGridKey(QKeyEvent* event);

    QTableView* m_grid;
    QLineEdit* m_field;
};
