// SPDX-License-Identifier: MIT
#pragma once

#include "documents/code_box.h"

#include <QDeadlineTimer>
#include <QPlainTextEdit>
#include <functional>

// The code box on screen. It knows nothing of what its events are used for.
class Txt_Code : public QPlainTextEdit, public CodeBox {
    Q_OBJECT

public:
    explicit Txt_Code(QWidget* parent = nullptr);

    QString Text() const override { return m_text; }
    void SetText(const QString& text) override;
    void BeginDocument(const QString& text) override;
    qsizetype SelStart() const override;
    void SetSelStart(qsizetype start) override;
    qsizetype SelLength() const override;
    void SetSelLength(qsizetype length) override;
    QString SelText() const override { return m_text.sliced(SelStart(), SelLength()); }
    void SetSelText(const QString& text) override;
    void SetSelText(const QString& text, qsizetype caret) override;
    bool LoadFile(const QString& path) override;
    void SetFocus() override { setFocus(); }
    void SetEnabled(bool enabled) override { setEnabled(enabled); }
    qsizetype LineFromChar(qsizetype position) override;
    qsizetype LineIndex(qsizetype line) override;
    // Lays out lines, for so long at the most, until LineFromChar(position) needs no more of it; returns
    // whether that is so. Each call goes on from where the last one ended.
    bool CountsLinesTo(qsizetype position, int milliseconds);

    // Whether the change under way is an undo or redo of the box's own history.
    bool IsStepping() const { return m_stepping; }
    // While it lives, all writes of SelText are one step of the box's own history.
    class OneStep {
    public:
        explicit OneStep(Txt_Code& box) : m_box(box), m_outermost(box.m_joining == Joining::No) {
            if (!m_outermost) return;
            m_box.m_joining = Joining::Begins;
            m_box.m_caretBeforeStep = m_box.textCursor().position(); // an undo of the step brings it back
        }
        ~OneStep() {
            if (m_outermost) m_box.m_joining = Joining::No;
        }
        OneStep(const OneStep&) = delete;
        OneStep& operator=(const OneStep&) = delete;

    private:
        Txt_Code& m_box;
        bool m_outermost;
    };

    // Position of the character at a place of the box, in twips relative to it.
    qsizetype CharFromPlace(double x, double y) const;

    // Events. Key codes are the numbers of the keys as key combinations count them ("A" 65, "0" 48, Enter
    // 13); shift masks: 1 Shift, 2 Control, 4 Alt; buttons: 1 left, 2 right; places in twips relative to the
    // box.
    struct Events {
        std::function<void()> change;          // behind every change of the text
        std::function<void(int, int)> keyDown; // before the box acts on the key
        std::function<void(int, int)> keyUp;   // behind that
        std::function<void(int, int, double, double)> mouseDown;
        std::function<void(double, double)> mouseMove;
        std::function<void()> selChange; // caret or selection moved
        std::function<void()> lostFocus;
    } events;

    // The number of a key, 0 for one that has none.
    static int KeyNumber(const QKeyEvent& event);
    static int ShiftMask(Qt::KeyboardModifiers modifiers);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    QMimeData* createMimeDataFromSelection() const override;
    bool canInsertFromMimeData(const QMimeData* source) const override;
    void insertFromMimeData(const QMimeData* source) override;
    void changeEvent(QEvent* event) override;

private:
    // A place of the document and whether it stands between the two characters of the break behind it.
    struct DocumentPlace {
        int position = 0;
        bool insideBreak = false;
    };
    DocumentPlace ToDocument(qsizetype position) const;
    qsizetype ToText(int documentPosition) const;
    void Select(DocumentPlace anchor, DocumentPlace caret);
    void TakeDocumentChange(int position, int removed, int added);
    void ReplaceRange(int from, int to, const QString& text);
    bool WriteSelText(const QString& text);
    // A history that goes on takes the box back to the text before, one that begins does not.
    enum class History { GoesOn, Begins };
    void Write(const QString& text, History history);
    void FireChange();
    void FireSelChange();
    // Returns whether it came to the block before the time was over.
    bool MeasureLines(int upToBlock, QDeadlineTimer deadline = QDeadlineTimer::Forever);
    void WrapWords(bool words);
    void ActOnKey(QKeyEvent& event);
    QPointF PlaceOf(const QPointF& viewportPoint) const;

    QString m_text; // the whole text, kept in step with the document
    bool m_startInsideBreak = false;
    bool m_endInsideBreak = false;
    bool m_writing = false;   // a change by program; its events come when it is done
    bool m_replacing = false; // the whole document is being set
    bool m_stepping = false;
    enum class Joining { No, Begins, GoesOn };
    Joining m_joining = Joining::No;
    int m_caretBeforeStep = 0;
    bool m_changed = false;
    int m_measuredBlocks = 0; // blocks from the start whose number of lines is exact
};
