// SPDX-License-Identifier: MIT
#include "project/site_list.h"

#include "platform/events.h"
#include "project/file_list_model.h"
#include "state/busy.h"
#include "state/global.h"

#include <utility>

SiteScan::Result FillWithSite(FileListModel& list, const std::function<bool()>& alive) {
    const Busy busy;
    Events::Pace pace;
    std::vector<FileListRow> rows; // that wait to be shown
    list.Clear();
    SiteScan::Result result = SiteScan::Scan(
        Global::CurrentFile, {[&](const SiteFile& file) { rows.push_back(FileListRow::From(file)); },
                              [&] {
                                  if (!alive()) return false; // left while a message was shown
                                  if (!pace.IsDue()) return true;
                                  list.Add(std::exchange(rows, {}));
                                  pace.LetEventsRun();
                                  return alive();
                              }});
    if (alive()) list.Add(std::move(rows));
    return result;
}
