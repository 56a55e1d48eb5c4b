// SPDX-License-Identifier: MIT
// The files that a page needs, found by following its links: what a backup copies, an upload sends and the
// WAP simulation converts.
#pragma once

#include <QString>
#include <QStringList>
#include <array>
#include <functional>
#include <vector>

// A file that the page or a page behind it links to.
struct SiteFile {
    QString name; // without its folder
    QString path; // full path
    QString
        folder;   // path as seen from the start page's folder, that folder's own name first ("web/sub/a.htm")
    QString type; // extension of at most 3 characters, upper case
    QString tag;  // the path of a file to copy, or "Error": a missing page, or a start page of no known kind
    QString icon; // "HTML", "WML", "CSS", "VBS", "JS", "Image", "Unknown", "Unknown3" or "Error3"
};

namespace SiteScan {

// The kinds of files that are counted.
enum Kind { Pages, Pictures, StyleSheets, Scripts, Archives, Movies, Others, KindCount };
struct KindSum {
    double bytes = 0;
    qsizetype count = 0;
};

struct Result {
    std::vector<SiteFile> files;
    std::array<KindSum, KindCount> sums; // the start page's own is in them from the start
    // Files that are there and linked to but get no row, as those with two dots in their path.
    QStringList leftOut;
};

// What a scan calls.
struct Listener {
    std::function<void(const SiteFile&)> addRow;
    // Behind each link and each page; lets events run and says whether the scan goes on.
    std::function<bool()> goOn;
};

// Follows the links of the page `root` (full path; empty: nothing is found) and of all pages, style sheets
// and scripts that it reaches. A path that climbs too far and a link without an end are told in messages.
Result Scan(const QString& root, const Listener& listener);

// Whether the file lies outside of the folder of `root`. Its folder column alone does not tell it of a file
// beside that folder.
bool IsOutside(const SiteFile& file, const QString& root);

} // namespace SiteScan
