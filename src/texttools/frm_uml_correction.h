// SPDX-License-Identifier: MIT
#pragma once

#include "documents/tool_dialog.h"

class QRadioButton;

// Turns the German special characters of the document into entities, or back.
class Frm_UmlCorrection : public ToolDialog {
    Q_OBJECT

public:
    Frm_UmlCorrection();

private:
    void Correct();

    QRadioButton* const Opt_UmlOptions_0;
    QRadioButton* const Opt_UmlOptions_1;
};
