// SPDX-License-Identifier: MIT
#pragma once

#include "platform/window.h"

#include <QDialog>

class QCheckBox;

// Tells of a newer version and offers its download.
class Frm_NewUpdate : public QDialog, public SharedWindow {
    Q_OBJECT

public:
    Frm_NewUpdate();
    void OnUnload() override;

private:
    void Cmd_Control(int index);

    QCheckBox* Chk_DontShowThisInFuture;
};
