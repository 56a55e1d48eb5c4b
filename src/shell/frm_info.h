// SPDX-License-Identifier: MIT
#pragma once

#include "platform/window.h"

#include <QDialog>

// The about box.
class Frm_Info : public QDialog, public SharedWindow {
    Q_OBJECT

public:
    Frm_Info();
};
