// SPDX-License-Identifier: MIT
#pragma once

#include "platform/window.h"

#include <QDialog>

class ColouredBox;

// The document's text with the colours that it would have on paper.
class Frm_PrintPreView : public QDialog, public SharedWindow {
    Q_OBJECT

public:
    Frm_PrintPreView();
    void reject() override; // Esc and the frame's X end the colouring, too

protected:
    void showEvent(QShowEvent* event) override;

private:
    void Fill();

    bool m_left = false;
    ColouredBox* const Txt_Code;
};
