// SPDX-License-Identifier: MIT
// What keys, mouse and clipboard do to the code box.
#include "documents/txt_code.h"

#include "documents/document_characters.h"
#include "platform/literals.h"
#include "platform/text.h"
#include "platform/twips.h"

#include <QFileInfo>
#include <QHash>
#include <QMimeData>
#include <QScopedValueRollback>

int Txt_Code::ShiftMask(Qt::KeyboardModifiers modifiers) {
    return (modifiers & Qt::ShiftModifier ? 1 : 0) | (modifiers & Qt::ControlModifier ? 2 : 0) |
           (modifiers & Qt::AltModifier ? 4 : 0);
}

namespace {

// The keys of the number block that type a sign; 0 for any other.
int NumberBlockKey(int key) {
    if (key >= Qt::Key_0 && key <= Qt::Key_9) return 96 + key - Qt::Key_0;
    switch (key) {
    case Qt::Key_Asterisk:
        return 106;
    case Qt::Key_Plus:
        return 107;
    case Qt::Key_Minus:
        return 109;
    case Qt::Key_Period:
    case Qt::Key_Comma: // the same key on a German keyboard
        return 110;
    case Qt::Key_Slash:
        return 111;
    default:
        return 0;
    }
}

} // namespace

// The virtual key numbers in which the program's key handling is told.
int Txt_Code::KeyNumber(const QKeyEvent& event) {
    const int key = event.key();
    const int block = event.modifiers() & Qt::KeypadModifier ? NumberBlockKey(key) : 0;
    if (block != 0) return block;
    if (key >= Qt::Key_0 && key <= Qt::Key_9) return 48 + key - Qt::Key_0;
    if (key >= Qt::Key_A && key <= Qt::Key_Z) return 65 + key - Qt::Key_A;
    if (key >= Qt::Key_F1 && key <= Qt::Key_F24) return 112 + key - Qt::Key_F1;
    static const QHash<int, int> numbers{
        {Qt::Key_Backspace, 8}, {Qt::Key_Tab, 9},     {Qt::Key_Backtab, 9},  {Qt::Key_Return, 13},
        {Qt::Key_Enter, 13},    {Qt::Key_Shift, 16},  {Qt::Key_Control, 17}, {Qt::Key_Alt, 18},
        {Qt::Key_Escape, 27},   {Qt::Key_Space, 32},  {Qt::Key_PageUp, 33},  {Qt::Key_PageDown, 34},
        {Qt::Key_End, 35},      {Qt::Key_Home, 36},   {Qt::Key_Left, 37},    {Qt::Key_Up, 38},
        {Qt::Key_Right, 39},    {Qt::Key_Down, 40},   {Qt::Key_Insert, 45},  {Qt::Key_Delete, 46},
        {Qt::Key_Plus, 187},    {Qt::Key_Comma, 188}, {Qt::Key_Minus, 189},  {Qt::Key_Period, 190}};
    return numbers.value(key, 0);
}

bool Txt_Code::event(QEvent* event) {
    // An enabled menu shortcut wins over the box's own use of the key; without one the key arrives all the
    // same.
    if (event->type() == QEvent::ShortcutOverride) {
        event->ignore();
        return false;
    }
    return QPlainTextEdit::event(event);
}

void Txt_Code::keyPressEvent(QKeyEvent* event) {
    if (events.keyDown) events.keyDown(KeyNumber(*event), ShiftMask(event->modifiers()));
    if (event->key() == Qt::Key_Space && ShiftMask(event->modifiers()) == 2 && !isReadOnly()) {
        // Control+Space is meant to type its blank: it ends the word, and completion steps back over it.
        insertPlainText(u" "_s);
        return;
    }
    const bool steps = event->matches(QKeySequence::Undo) || event->matches(QKeySequence::Redo);
    const QScopedValueRollback stepping(m_stepping, steps);
    ActOnKey(*event);
}

// What the widget makes of the key, without two of its habits.
void Txt_Code::ActOnKey(QKeyEvent& event) {
    Qt::KeyboardModifiers modifiers = event.modifiers();
    // Shift+Enter is an Enter: the soft break that it would make is no line end of a file.
    if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) modifiers &= ~Qt::ShiftModifier;
    // With Control the signs of the number block type nothing, like those of the other keys.
    if (modifiers & Qt::ControlModifier) modifiers &= ~Qt::KeypadModifier;
    if (modifiers == event.modifiers()) {
        QPlainTextEdit::keyPressEvent(&event);
        return;
    }
    QKeyEvent changed(event.type(), event.key(), modifiers, event.text(), event.isAutoRepeat());
    QPlainTextEdit::keyPressEvent(&changed);
    event.setAccepted(changed.isAccepted());
}

void Txt_Code::keyReleaseEvent(QKeyEvent* event) {
    QPlainTextEdit::keyReleaseEvent(event);
    if (!event->isAutoRepeat() && events.keyUp)
        events.keyUp(KeyNumber(*event), ShiftMask(event->modifiers()));
}

QPointF Txt_Code::PlaceOf(const QPointF& viewportPoint) const {
    return (viewportPoint + viewport()->pos()) * Twips::PerPixel;
}

void Txt_Code::mousePressEvent(QMouseEvent* event) {
    const QPointF place = PlaceOf(event->position());
    const int button = event->button() == Qt::LeftButton ? 1 : event->button() == Qt::RightButton ? 2 : 4;
    if (button == 2) {
        // A right click beside the selection moves the caret to the mouse, so that it speaks of what it
        // points at.
        const QTextCursor under = cursorForPosition(event->position().toPoint());
        const QTextCursor present = textCursor();
        if (under.position() < present.selectionStart() || under.position() > present.selectionEnd()) {
            setTextCursor(under);
        }
    } else {
        QPlainTextEdit::mousePressEvent(event);
    }
    if (events.mouseDown) events.mouseDown(button, ShiftMask(event->modifiers()), place.x(), place.y());
}

void Txt_Code::mouseMoveEvent(QMouseEvent* event) {
    QPlainTextEdit::mouseMoveEvent(event);
    const QPointF place = PlaceOf(event->position());
    if (events.mouseMove) events.mouseMove(place.x(), place.y());
}

void Txt_Code::contextMenuEvent(QContextMenuEvent* event) {
    event->accept();
    if (event->reason() != QContextMenuEvent::Keyboard || !events.mouseDown) return;
    const QPointF place = PlaceOf(cursorRect().bottomLeft()); // the menu key asks at the caret
    events.mouseDown(2, 0, place.x(), place.y());
}

void Txt_Code::focusOutEvent(QFocusEvent* event) {
    QPlainTextEdit::focusOutEvent(event);
    if (events.lostFocus) events.lostFocus();
}

QMimeData* Txt_Code::createMimeDataFromSelection() const {
    auto* mime = new QMimeData;
    QString text = SelText();
#ifndef Q_OS_WIN
    text.replace(Text::LineBreak.toString(), u"\n"_s);
#endif
    mime->setText(text);
    return mime;
}

bool Txt_Code::canInsertFromMimeData(const QMimeData* source) const {
    return source->hasText() && !source->hasUrls(); // a file that is dropped is opened by the main window
}

void Txt_Code::insertFromMimeData(const QMimeData* source) {
    // Copied files come as addresses; what is pasted then is their text, not the files.
    if (!source->hasText()) return;
    QTextCursor cursor = textCursor();
    cursor.insertText(DocumentCharacters::Hidden(Text::WithFullLineBreaks(source->text())));
    setTextCursor(cursor);
    ensureCursorVisible();
}
