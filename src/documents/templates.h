// SPDX-License-Identifier: MIT
// The texts of new documents.
#pragma once

#include <QString>

namespace Templates {

// What a template's head says of the page; empty in a new one.
struct PageInfo {
    QString title;
    QString description;
    QString author;
    QString keywords;
};

QString Html(const PageInfo& page = {});
QString Xhtml(const PageInfo& page = {});
// With blanks instead of tabs, which have no place in WML documents.
QString Wml(const PageInfo& page = {});

} // namespace Templates
