// SPDX-License-Identifier: MIT
#pragma once

#include "documents/code_box.h"

#include <functional>

// A code box without a screen: a string with a selection. Serves hidden text controls and tests.
class TextBuffer : public CodeBox {
public:
    explicit TextBuffer(const QString& text = {});

    QString Text() const override { return m_text; }
    void SetText(const QString& text) override;
    void BeginDocument(const QString& text) override { SetText(text); }
    qsizetype SelStart() const override { return m_start; }
    void SetSelStart(qsizetype start) override;
    qsizetype SelLength() const override { return m_length; }
    void SetSelLength(qsizetype length) override;
    QString SelText() const override { return m_text.sliced(m_start, m_length); }
    void SetSelText(const QString& text) override;
    void SetSelText(const QString& text, qsizetype caret) override {
        SetSelText(text);
        SetSelStart(caret);
    }
    bool LoadFile(const QString& path) override;
    void SetFocus() override {}
    void SetEnabled(bool enabled) override { isEnabled = enabled; }
    qsizetype LineFromChar(qsizetype position) override;
    qsizetype LineIndex(qsizetype line) override;

    std::function<void()> change; // behind every change of the text
    bool isEnabled = true;

private:
    QString m_text;
    qsizetype m_start = 0;
    qsizetype m_length = 0;
};
