// SPDX-License-Identifier: MIT
#pragma once

#include "documents/txt_code.h"
#include "printing/syntax_spans.h"

// A box that shows a text with its colours, black on white in a dark desktop, too. It takes no input.
class ColouredBox : public Txt_Code {
    Q_OBJECT

public:
    ColouredBox();

    // Replaces what is shown, in one go. A line beyond all measure stands there in several, of which a copy
    // makes one again.
    void Show(const SyntaxSpans::ColouredText& text);

protected:
    QMimeData* createMimeDataFromSelection() const override;
};
