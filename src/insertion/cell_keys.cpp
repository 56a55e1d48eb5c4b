// SPDX-License-Identifier: MIT
#include "insertion/cell_keys.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTableView>

CellKeys::CellKeys(QTableView* grid, QLineEdit* field) : QObject(grid), m_grid(grid), m_field(field) {
    field->installEventFilter(this);
    grid->installEventFilter(this);
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

bool CellKeys::TakeGridKey(QKeyEvent* event) {
    if (!m_field->isEnabled()) return false; // no cell to write in
    const QString text = event->text();
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return TakeKey(event->key(), event->modifiers() & Qt::ShiftModifier);
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
        m_field->clear();
        return true;
    case Qt::Key_F2:
        m_field->setFocus();
        m_field->end(false);
        return true;
    default:
        if (text.isEmpty() || !text.at(0).isPrint()) return false;
        m_field->setFocus();
        m_field->selectAll();
        QCoreApplication::sendEvent(m_field, event);
        return true;
    }
}

bool CellKeys::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        auto* key = static_cast<QKeyEvent*>(event);
        const bool plain = !(key->modifiers() & (Qt::ControlModifier | Qt::AltModifier));
        const bool shift = key->modifiers() & Qt::ShiftModifier;
        if (plain && (watched == m_grid ? TakeGridKey(key) : TakeKey(key->key(), shift))) return true;
    }
    return QObject::eventFilter(watched, event);
}
