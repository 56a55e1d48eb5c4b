// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// The code box as all tools know it: plain text and one selection. A line break counts as the two characters
// CR LF everywhere. `SelStart` counts from 0, so SelStart + 1 is the one-based position of the character
// behind the caret. Writing a SelStart or SelLength outside the text takes the nearest place; a negative one
// throws RuntimeError.
class CodeBox {
public:
    virtual ~CodeBox() = default;

    // The whole text. Built once per change and shared after that, so keeping or reading it again copies
    // nothing.
    virtual QString Text() const = 0;
    // Replaces the whole text (line ends are made full ones), leaves the caret at its start.
    virtual void SetText(const QString& text) = 0;
    // The same as the beginning of another document: a history belongs to one document, so no undo step of
    // the box leads back behind this.
    virtual void BeginDocument(const QString& text) = 0;

    virtual qsizetype SelStart() const = 0;
    virtual void SetSelStart(qsizetype start) = 0; // collapses the selection
    virtual qsizetype SelLength() const = 0;
    virtual void SetSelLength(qsizetype length) = 0; // extends from SelStart

    virtual QString SelText() const = 0;
    // Replaces the selection and leaves the caret behind what was inserted. A caret between CR and LF splits
    // the pair: both halves become full line breaks. Nothing written over nothing is no change.
    virtual void SetSelText(const QString& text) = 0;
    // The same for a long text: the caret goes to `caret` in the end, and nobody is told of the place
    // between, for which all lines before it would have to be laid out.
    virtual void SetSelText(const QString& text, qsizetype caret) = 0;

    // Begins a document with a file's text; returns whether it could be read.
    virtual bool LoadFile(const QString& path) = 0;

    virtual void SetFocus() = 0;
    virtual void SetEnabled(bool enabled) = 0;

    // Lines as the box shows them, so that a wrapped line counts as several. Both count from 0.
    virtual qsizetype LineFromChar(qsizetype position) = 0;
    virtual qsizetype LineIndex(qsizetype line) = 0; // position of the line's first character
};
