// SPDX-License-Identifier: MIT
// The links of a page, found by exact markers in its text. Tags, comments and scripts are not told apart: a
// link within a comment counts, one in single quotes or without quotes does not. Both are meant.
#pragma once

#include <QString>
#include <QStringList>
#include <vector>

enum class LinkMarker {
    Href,       // href="...
    Src,        // src="...
    Background, // background="...
    Url,        // url(...
    Navigate    // navigate( and whatever stands between the next two double quotes
};

struct LinkList {
    QStringList links;     // in the order of the page, as they stand in it
    bool cutShort = false; // behind the last of them a link begins that has no end
};

// All links of `text` that one of `markers` begins. Linear in the text.
LinkList FindLinks(const QString& text, const std::vector<LinkMarker>& markers);
