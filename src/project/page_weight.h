// SPDX-License-Identifier: MIT
// What a browser has to fetch for a page: every file that it loads, and that its frames load in turn.
#pragma once

#include <QString>
#include <QStringList>
#include <functional>

namespace PageWeight {

struct Row {
    QString file; // name, indented by the depth of its page
    QString size; // in whole kB; that of the row before where the file's own cannot be read
    QString link; // as it stands in the page
    QString path; // full path
    QString icon; // "Image", "HTML" or "UnknownFile2"
};

// What a scan calls.
struct Listener {
    std::function<void(const Row&)> addRow;
    // Before each page and behind each link; false ends the scan.
    std::function<bool()> goOn;
};

struct Sums {
    double total = 0;    // bytes of all rows
    double download = 0; // the same with each file counted once
    float comments = 0;  // characters in comments that hide no script or style
    bool cyclic = false; // the pages call each other: the scan ended Deepest pages deep
};

inline constexpr int Deepest = 1000;

// Tells a row for each file that the page and its frames load. The page itself is in no sum. A link without
// an end is told in a message and ends the search of its page.
Sums Scan(const QString& path, const Listener& listener);

// `before` and the characters in the comments of `text`, added one by one. A comment right behind the opening
// tag of a script or a style does not count; one inside another counts again, up to the same end. Both are
// meant.
float CommentCharacters(const QString& text, float before = 0);

// The lines of the result: sizes in whole kB, times in whole seconds.
QStringList Messages(const Sums& sums);

} // namespace PageWeight
