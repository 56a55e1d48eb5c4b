// SPDX-License-Identifier: MIT
#include "documents/templates.h"

#include "platform/literals.h"
#include "state/global.h"

#include <QStringList>

namespace Templates {

namespace {

QStringList MetaTags(const PageInfo& page, const QString& indent, const QString& close) {
    const auto meta = [&](const QString& name, const QString& content) -> QString {
        return indent + u"<meta name=\"%1\" content=\"%2\"%3"_s.arg(name, content, close);
    };
    return {meta(u"description"_s, page.description), meta(u"author"_s, page.author),
            meta(u"keywords"_s, page.keywords), meta(u"generator"_s, Global::ProgramName)};
}

QString Page(const QStringList& opening, const PageInfo& page, const QString& metaClose) {
    QStringList lines = opening;
    lines << u"\t<head>"_s << u"\t\t<title>"_s + page.title + u"</title>"_s
          << MetaTags(page, u"\t\t"_s, metaClose) << u"\t</head>"_s << u"\t<body>"_s << QString() << QString()
          << QString() << u"\t</body>"_s << u"</html>"_s;
    return lines.join(u"\r\n"_s);
}

} // namespace

QString Html(const PageInfo& page) {
    return Page({u"<!doctype html public \"-//w3c//dtd html 4.01 //en\">"_s, u"<html>"_s}, page, u">"_s);
}

QString Xhtml(const PageInfo& page) {
    // The slash at the end of the doctype is part of the template.
    return Page({u"<!DOCTYPE html PUBLIC \"-//W3C//DTD XHTML 1.0 Transitional//EN\" "
                 "\"DTD/xhtml1-transitional.dtd\" />"_s,
                 u"<html xmlns=\"http://www.w3.org/1999/xhtml\">"_s},
                page, u" />"_s);
}

QString Wml(const PageInfo& page) {
    QStringList lines{u"<?xml version=\"1.0\"?>"_s,
                      u"<!DOCTYPE wml PUBLIC \"-//WAPFORUM//DTD WML 1.1//EN\" "
                      "\"http://www.wapforum.org/DTD/wml_1.1.xml\">"_s,
                      u"<wml>"_s, u"   <head>"_s};
    lines << MetaTags(page, u"      "_s, u"/>"_s)
          << QStringList{u"   </head>"_s,
                         u"   <card id=\"\" title=\"\">"_s,
                         u"      <p>"_s,
                         {},
                         {},
                         {},
                         u"      </p>"_s,
                         u"   </card>"_s,
                         u"</wml>"_s,
                         {}};
    return lines.join(u"\r\n"_s);
}

} // namespace Templates
