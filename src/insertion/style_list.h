// SPDX-License-Identifier: MIT
// The objects of style rules and what may be told of each, from styles.lst.
#pragma once

#include <QString>
#include <QStringList>

namespace StyleList {

struct Reading {
    QStringList entries;
    bool whole = true; // the file could be read and each block has its end
};
// The first token of each block but "default".
Reading Objects();
// The entries of the object's own block, of "default" and, for an object that begins with "#", of "#".
Reading EntriesOf(const QString& object);

} // namespace StyleList
