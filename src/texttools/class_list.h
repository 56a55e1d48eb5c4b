// SPDX-License-Identifier: MIT
// The classes and ids that a page can use: those of its style blocks and of the style sheets that it reaches.
#pragma once

#include <QString>
#include <QStringList>

namespace ClassList {

// The classes (".name") and ids ("#name") of the selectors of one block of style rules, in their order, each
// once. A name is taken as it is written, with escapes. Declarations, comments, strings and addresses hold
// none.
QStringList InBlock(const QString& block);

struct Found {
    QStringList entries;
    bool openLink = false; // a link had no end; what stood behind it in that file was not followed
};
// The names of a saved page or style sheet, and of all style sheets that it links or imports, each file read
// once. A file that cannot be read has none.
Found InFile(const QString& path);

} // namespace ClassList
