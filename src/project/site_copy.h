// SPDX-License-Identifier: MIT
// Copying the files of a site to another folder, in the layout that they have below the start page's folder.
#pragma once

#include "project/site_scan.h"

#include <functional>
#include <vector>

namespace SiteCopy {

// `path` behind its first characters, as many as `base` has and one more; not tested that it begins with
// `base`. So a file outside that folder comes out as the tail of its own path; that is meant.
QString RemovePathPrefix(const QString& path, const QString& base);

// Where the copy of a file of the site goes that starts at `root`; empty where that lies outside of
// `destination`, as for paths with ".." in their middle.
QString TargetOf(const SiteFile& file, const QString& root, const QString& destination);

struct Listener {
    std::function<void(qsizetype number)> copying; // from 1, before each file
    std::function<bool()> goOn;                    // often, also within a file; false ends the copying
};

struct Result {
    QStringList missed; // full paths of files that are there and have no copy
    bool stopped = false;
    bool onDisk = true; // all copies have been written to the disk
};

// Copies the files in their order into `destination` (full path), over files that are there, but never over
// another file of the site. Files that are not there are passed over.
Result CopyFiles(const std::vector<SiteFile>& files, const QString& root, const QString& destination,
                 const Listener& listener);

// What there is to say of files that a backup lacks: how many, and the first one; empty where it is whole.
QString Report(const Result& result);

} // namespace SiteCopy
