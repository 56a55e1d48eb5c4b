// SPDX-License-Identifier: MIT
#pragma once

#include "platform/window.h"

#include <QWidget>

class QComboBox;
class QToolBar;

// The bar that steers the preview.
class Frm_Navigation : public QWidget, public SharedWindow {
    Q_OBJECT

public:
    Frm_Navigation();
    void OnLoad() override;
    void OnUnload() override;
    // Brings the bar to the front, ready for an address.
    void Present();

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void AddButton(const QString& key, const QString& tip, QStringView icon, void (*press)());
    void Cmb_Url_Change(const QString& text);

    QToolBar* Tlb_Navigation;
    QComboBox* Cmb_Url;
};
