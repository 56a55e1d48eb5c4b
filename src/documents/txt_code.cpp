// SPDX-License-Identifier: MIT
#include "documents/txt_code.h"

#include "documents/document_characters.h"
#include "documents/document_file.h"
#include "platform/text.h"
#include "platform/twips.h"

#include <QFontDatabase>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextLayout>
#include <algorithm>

namespace {

// Characters without a blank between them that are still looked at as one word. Where a line may be broken
// behind words only, the layout passes over the rest of the word for each line anew.
constexpr qsizetype LongestWord = 10'000;

bool HasLongerWord(QStringView text) {
    qsizetype length = 0;
    for (const QChar c : text) {
        length = c == u' ' || c == u'\t' || c == u'\n' ? 0 : length + 1;
        if (length > LongestWord) return true;
    }
    return false;
}

} // namespace

Txt_Code::Txt_Code(QWidget* parent) : QPlainTextEdit(parent) {
    setObjectName(u"Txt_Code"_s);
    setAccessibleName(u"Code"_s);
    QFont font(QStringList{u"Courier New"_s, u"Liberation Mono"_s, u"DejaVu Sans Mono"_s});
    font.setStyleHint(QFont::Monospace);
    font.setFixedPitch(true);
    font.setPointSize(10);
    setFont(font);
    setTabStopDistance(8 * fontMetrics().horizontalAdvance(u' '));
    WrapWords(true);
    setFrameShape(QFrame::NoFrame);
    viewport()->setMouseTracking(true);
    connect(document(), &QTextDocument::contentsChange, this, &Txt_Code::TakeDocumentChange);
    connect(this, &QPlainTextEdit::textChanged, this, [this] {
        if (!m_writing && m_changed) FireChange();
    });
    connect(this, &QPlainTextEdit::cursorPositionChanged, this, &Txt_Code::FireSelChange);
    connect(this, &QPlainTextEdit::selectionChanged, this, &Txt_Code::FireSelChange);
}

// --- text
// -------------------------------------------------------------------------------------------------------

void Txt_Code::TakeDocumentChange(int position, int removed, int added) {
    m_changed = true;
    m_startInsideBreak = m_endInsideBreak = false;
    if (m_replacing) return;
    const QTextBlock first = document()->findBlock(position);
    m_measuredBlocks = std::min(m_measuredBlocks, first.blockNumber());
    const qsizetype begin = std::min<qsizetype>(position + first.blockNumber(), m_text.size());
    qsizetype end = begin;
    for (int i = 0; i < removed && end < m_text.size(); ++i) end += m_text[end] == u'\r' ? 2 : 1;
    QTextCursor cursor(document());
    cursor.setPosition(position);
    cursor.setPosition(std::min(position + added, document()->characterCount() - 1), QTextCursor::KeepAnchor);
    // The old text is shared with the undo: the new one is put together in one pass over it.
    const QString inserted = DocumentCharacters::Shown(cursor.selectedText());
    QString text;
    text.reserve(m_text.size() - (end - begin) + inserted.size());
    text.append(QStringView(m_text).first(begin)).append(inserted).append(QStringView(m_text).sliced(end));
    m_text = std::move(text);
    const qsizetype around = std::max<qsizetype>(begin - LongestWord, 0);
    if (HasLongerWord(QStringView(m_text).sliced(around).first(
            std::min(m_text.size() - around, begin - around + inserted.size() + LongestWord)))) {
        WrapWords(false);
    }
    // The document reports some changes at its end one character too long; then all is read anew.
    if (m_text.size() != document()->characterCount() - 1 + document()->blockCount() - 1) {
        QString raw = document()->toRawText();
        m_text = DocumentCharacters::Shown(raw);
        m_measuredBlocks = 0;
    }
}

void Txt_Code::FireChange() {
    m_changed = false;
    if (events.change) events.change();
}

void Txt_Code::FireSelChange() {
    m_startInsideBreak = m_endInsideBreak = false;
    if (!m_writing && events.selChange) events.selChange();
}

void Txt_Code::ReplaceRange(int from, int to, const QString& text) {
    QTextCursor cursor(document());
    if (m_joining == Joining::Begins) {
        cursor.setPosition(m_caretBeforeStep);
        cursor.beginEditBlock();
    } else if (m_joining == Joining::GoesOn) {
        cursor.joinPreviousEditBlock();
    }
    cursor.setPosition(from);
    cursor.setPosition(to, QTextCursor::KeepAnchor);
    cursor.insertText(DocumentCharacters::Hidden(text));
    if (m_joining == Joining::No) return;
    cursor.endEditBlock();
    m_joining = Joining::GoesOn;
}

void Txt_Code::SetText(const QString& text) { Write(text, History::GoesOn); }

void Txt_Code::Write(const QString& text, History history) {
    const QString whole = Text::WithFullLineBreaks(text);
    qsizetype same = Text::CommonPrefix(whole, m_text);
    qsizetype tail = Text::CommonSuffix(QStringView(whole).sliced(same), QStringView(m_text).sliced(same));
    if (same > 0 && m_text[same - 1] == u'\r') --same; // whole line breaks only
    if (tail > 0 && m_text[m_text.size() - tail] == u'\n') --tail;
    const bool words = !HasLongerWord(whole);
    m_writing = true;
    if (!words) WrapWords(false); // before the layout of the new text, or behind that of the old one
    const bool little = same + tail > m_text.size() / 2;
    if ((little || history == History::GoesOn) && m_text.size() > 0) {
        // what is the same keeps its layout, and the view its place
        if (same + tail < m_text.size() || whole.size() != m_text.size()) {
            ReplaceRange(ToDocument(same).position, ToDocument(m_text.size() - tail).position,
                         whole.sliced(same, whole.size() - same - tail));
        }
        QTextCursor cursor = textCursor();
        cursor.setPosition(0);
        const int scroll = verticalScrollBar()->value();
        setTextCursor(cursor);
        verticalScrollBar()->setValue(scroll);
        // whoever has set no caret by then sees the text from its start
        QMetaObject::invokeMethod(
            this, [this] { ensureCursorVisible(); }, Qt::QueuedConnection);
    } else {
        m_replacing = true;
        setPlainText(DocumentCharacters::Hidden(whole));
        m_replacing = false;
        m_measuredBlocks = 0;
    }
    if (words) WrapWords(true);
    m_text = whole;
    m_startInsideBreak = m_endInsideBreak = false;
    m_writing = false;
    FireChange();
    FireSelChange();
}

void Txt_Code::BeginDocument(const QString& text) {
    Write(text, History::Begins);
    document()->clearUndoRedoStacks();
}

bool Txt_Code::LoadFile(const QString& path) {
    const auto loaded = DocumentFile::Load(path);
    if (loaded) BeginDocument(loaded->text);
    return loaded.has_value();
}

// --- selection
// --------------------------------------------------------------------------------------------------

// A block begins at its place in the document plus one for each line break before it.
qsizetype Txt_Code::ToText(int documentPosition) const {
    return documentPosition + document()->findBlock(documentPosition).blockNumber();
}

Txt_Code::DocumentPlace Txt_Code::ToDocument(qsizetype position) const {
    position = std::clamp<qsizetype>(position, 0, m_text.size());
    int low = 0;
    int high = document()->blockCount() - 1;
    while (low < high) {
        const int middle = (low + high + 1) / 2;
        if (document()->findBlockByNumber(middle).position() + middle <= position) {
            low = middle;
        } else {
            high = middle - 1;
        }
    }
    const QTextBlock block = document()->findBlockByNumber(low);
    const int offset = static_cast<int>(position) - block.position() - low;
    const int length = block.length() - 1;
    return {block.position() + std::min(offset, length), offset > length};
}

void Txt_Code::Select(DocumentPlace anchor, DocumentPlace caret) {
    QTextCursor cursor = textCursor();
    cursor.setPosition(anchor.position);
    cursor.setPosition(caret.position, QTextCursor::KeepAnchor);
    m_writing = true; // the event comes when both ends stand
    setTextCursor(cursor);
    m_writing = false;
    m_startInsideBreak = anchor.insideBreak;
    m_endInsideBreak = caret.insideBreak;
    if (events.selChange) events.selChange();
}

qsizetype Txt_Code::SelStart() const {
    return ToText(textCursor().selectionStart()) + (m_startInsideBreak ? 1 : 0);
}

void Txt_Code::SetSelStart(qsizetype start) {
    if (start < 0) throw RuntimeError("SelStart below 0");
    const DocumentPlace place = ToDocument(start);
    Select(place, place);
}

qsizetype Txt_Code::SelLength() const {
    return ToText(textCursor().selectionEnd()) + (m_endInsideBreak ? 1 : 0) - SelStart();
}

void Txt_Code::SetSelLength(qsizetype length) {
    if (length < 0) throw RuntimeError("SelLength below 0");
    const qsizetype start = SelStart();
    Select(ToDocument(start), ToDocument(start + length));
}

void Txt_Code::SetSelText(const QString& text) {
    if (!WriteSelText(text)) return;
    FireChange();
    FireSelChange();
}

void Txt_Code::SetSelText(const QString& text, qsizetype caret) {
    if (WriteSelText(text)) FireChange();
    SetSelStart(caret);
}

// Returns whether there was anything to write; its events are left to the caller.
bool Txt_Code::WriteSelText(const QString& text) {
    const QTextCursor selection = textCursor();
    const bool startInside = m_startInsideBreak;
    const bool endInside = m_endInsideBreak;
    if (text.isEmpty() && SelLength() == 0) return false;
    const int from = selection.selectionStart();
    const int to = selection.selectionEnd() + (endInside ? 1 : 0);
    QString inserted = Text::WithFullLineBreaks(text);
    if (startInside) inserted.prepend(Text::LineBreak);
    const qsizetype caret = ToText(from) + inserted.size();
    if (endInside) inserted.append(Text::LineBreak);
    m_writing = true;
    ReplaceRange(from, to, inserted);
    QTextCursor cursor = textCursor();
    cursor.setPosition(ToDocument(caret).position);
    setTextCursor(cursor);
    m_writing = false;
    return true;
}

// --- visual lines
// -----------------------------------------------------------------------------------------------

// Whether lines end behind words or, in a text with a word beyond all measure, anywhere.
void Txt_Code::WrapWords(bool words) {
    const auto mode = words ? QTextOption::WrapAtWordBoundaryOrAnywhere : QTextOption::WrapAnywhere;
    if (wordWrapMode() == mode) return;
    setWordWrapMode(mode);
    m_measuredBlocks = 0;
}

// The widget lays lines out only as they come into sight and counts one line for the others. Those that may
// wrap or hold a line separator, which is shown as a new line, are laid out here; another line that is surely
// shorter than the box is not touched.
bool Txt_Code::MeasureLines(int upToBlock, QDeadlineTimer deadline) {
    if (m_measuredBlocks > upToBlock) return true;
    const double advance = fontMetrics().horizontalAdvance(u'M');
    const auto fitting =
        static_cast<qsizetype>((viewport()->width() - 2 * document()->documentMargin()) / advance);
    const auto tabColumns = static_cast<qsizetype>(tabStopDistance() / advance);
    QTextBlock block = document()->findBlockByNumber(m_measuredBlocks);
    for (; block.isValid() && block.blockNumber() <= upToBlock; block = block.next()) {
        const qsizetype length = block.length() - 1;
        const QStringView line = QStringView(m_text).sliced(block.position() + block.blockNumber(), length);
        bool wraps = length > fitting || line.contains(QChar::LineSeparator);
        if (!wraps && length * tabColumns > fitting) {
            qsizetype columns = 0;
            for (const QChar c : line) columns += c == u'\t' ? tabColumns : c.unicode() < 0x300 ? 1 : 2;
            wraps = columns > fitting;
        }
        if (!wraps) continue;
        blockBoundingRect(block);
        if (!deadline.hasExpired()) continue;
        m_measuredBlocks = block.blockNumber() + 1;
        return m_measuredBlocks > upToBlock;
    }
    m_measuredBlocks = upToBlock + 1;
    return true;
}

bool Txt_Code::CountsLinesTo(qsizetype position, int milliseconds) {
    const int block = document()->findBlock(ToDocument(position).position).blockNumber();
    return MeasureLines(block, QDeadlineTimer(milliseconds));
}

qsizetype Txt_Code::LineFromChar(qsizetype position) {
    const DocumentPlace place = ToDocument(position);
    const QTextBlock block = document()->findBlock(place.position);
    MeasureLines(block.blockNumber());
    blockBoundingRect(block);
    const QTextLine line = block.layout()->lineForTextPosition(place.position - block.position());
    return block.firstLineNumber() + (line.isValid() ? line.lineNumber() : 0);
}

qsizetype Txt_Code::LineIndex(qsizetype line) {
    int block = 0;
    for (;;) { // measuring a block may move the lines behind it
        MeasureLines(block);
        const QTextBlock hit = document()->findBlockByLineNumber(static_cast<int>(line));
        if (!hit.isValid()) return m_text.size();
        if (hit.blockNumber() <= block) break;
        block = hit.blockNumber();
    }
    const QTextBlock hit = document()->findBlockByLineNumber(static_cast<int>(line));
    blockBoundingRect(hit);
    const QTextLine visual = hit.layout()->lineAt(static_cast<int>(line) - hit.firstLineNumber());
    return hit.position() + hit.blockNumber() + (visual.isValid() ? visual.textStart() : 0);
}

qsizetype Txt_Code::CharFromPlace(double x, double y) const {
    const QPoint point(Twips::ToPixels(x), Twips::ToPixels(y));
    return ToText(cursorForPosition(point - viewport()->pos()).position());
}

void Txt_Code::resizeEvent(QResizeEvent* event) {
    if (event->oldSize().width() != event->size().width()) m_measuredBlocks = 0;
    QPlainTextEdit::resizeEvent(event);
}

void Txt_Code::changeEvent(QEvent* event) {
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::FontChange) m_measuredBlocks = 0;
}
