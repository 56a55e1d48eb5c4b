// SPDX-License-Identifier: MIT
#pragma once

#include "platform/window.h"

#include <QDialog>

class QCheckBox;
class QPlainTextEdit;

// What an update that has just been unpacked has brought.
class Frm_UpdateMessage : public QDialog, public SharedWindow {
    Q_OBJECT

public:
    Frm_UpdateMessage();
    void OnLoad() override;
    void OnUnload() override;

private:
    QPlainTextEdit* Txt_UpdateInfo;
    QCheckBox* Chk_DontShowThisInFuture;
};
