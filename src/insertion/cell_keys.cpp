// SPDX-License-Identifier: MIT
#include "insertion/cell_keys.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QTableView>

CellKeys::CellKeys(QTableView* grid, QLineEdit* field) : QObject(grid), m_grid(grid), m_field(field) {
    field->installEventFilter(this);
}

// To the cell that many rows and columns away; returns whether there is one.
bool CellKeys::Move(int rows, int columns) {
    const QModelIndex cell = m_grid->currentIndex();
    if (!cell.isValid()) return false;
    const QModelIndex next = cell.sibling(cell.row() + rows, cell.column() + columns);
    if (next.isValid()) m_grid->setCurrentIndex(next);
    return next.isValid();
}

bool CellKeys::TakeKey(int key, bool shift) {
    const QModelIndex cell = m_grid->currentIndex();
    const bool whole = m_field->selectedText().size() == m_field->text().size();
    switch (key) {
    case Qt::Key_Up:
        return Move(-1, 0);
    case Qt::Key_Down:
        return Move(1, 0);
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Move(shift ? -1 : 1, 0);
        return true; // in the grid the key never presses the dialog's button
    case Qt::Key_Left:
        return !shift && (whole || m_field->cursorPosition() == 0) && Move(0, -1);
    case Qt::Key_Right:
        return !shift && (whole || m_field->cursorPosition() == m_field->text().size()) && Move(0, 1);
    case Qt::Key_F2:
        m_field->end(false);
        return true;
    case Qt::Key_Tab:
        if (Move(0, 1)) return true;
        return cell.isValid() && Move(1, -cell.column()); // at the last cell it goes on through the dialog
    case Qt::Key_Backtab:
        if (Move(0, -1)) return true;
        return cell.isValid() && Move(-1, m_grid->model()->columnCount() - 1);
    default:
        return false;
    }
}

bool CellKeys::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (!(key->modifiers() & (Qt::ControlModifier | Qt::AltModifier)) &&
            TakeKey(key->key(), key->modifiers() & Qt::ShiftModifier)) {
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}
