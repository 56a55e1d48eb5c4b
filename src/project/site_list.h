// SPDX-License-Identifier: MIT
#pragma once

#include "project/site_scan.h"

class FileListModel;

// Fills `list` (columns "Datei", "Verzeichnis", "Dateityp") by a scan of the current document's site, while
// events run. `alive` says, behind every event run and before the list is touched, whether the window of the
// list still wants it. Shows the busy picture.
SiteScan::Result FillWithSite(FileListModel& list, const std::function<bool()>& alive);
