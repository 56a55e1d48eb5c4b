// SPDX-License-Identifier: MIT
#pragma once

#include "platform/window.h"
#include "project/site_scan.h"

#include <QDialog>

class QTreeWidget;

// How many files of each kind a site has, and their sizes.
class Frm_PageInfo : public QDialog, public SharedWindow {
    Q_OBJECT

public:
    Frm_PageInfo();
    // Adds a row for each kind and one for all of them.
    void Add(const std::array<SiteScan::KindSum, SiteScan::KindCount>& sums);

private:
    QTreeWidget* const Lvw_Files;
};
