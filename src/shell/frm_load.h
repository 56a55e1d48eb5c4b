// SPDX-License-Identifier: MIT
#pragma once

#include "platform/window.h"

class QLabel;

// The splash: a picture and the status text of the start.
class Frm_Load : public QWidget, public SharedWindow {
    Q_OBJECT

public:
    Frm_Load();
    void OnLoad() override;
    // Shows a status text and lets events run, so that it appears before the phase's work starts.
    void SetStatus(const QString& text);

private:
    QLabel* Lbl_LoadText;
};
