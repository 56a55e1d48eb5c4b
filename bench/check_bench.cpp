// SPDX-License-Identifier: MIT
// What a run of the debugger costs: a realistic page at three sizes, and pages made to slow it down.
// Usage: check_bench [file ...] measures the given files instead.
#include "debugger/page_check.h"
#include "platform/files.h"
#include "state/global.h"
#include "state/lists.h"

#include <QElapsedTimer>
#include <QFile>
#include <algorithm>
#include <cstdio>
#include <limits>

namespace {

constexpr qsizetype Megabyte = 1'000'000;

QString Repeated(const QString& piece, qsizetype size) {
    return piece.repeated(size / piece.size() + 1).first(size);
}

QString RealisticPage(qsizetype size) {
    QString page =
        u"<!DOCTYPE html>\r\n<html lang=\"de\">\r\n<head>\r\n<title>Gartenfreunde</title>\r\n<style>\r\n"
        "body{margin:0;padding:8px;color:#222;}\r\n/* Kopf */\r\nh1{font-size:2em;margin:4px;}\r\n"
        "</style>\r\n</head>\r\n<body>\r\n"_s;
    for (int section = 1; page.size() < size; ++section) {
        page +=
            u"<!-- Abschnitt %1 -->\r\n<h2 id=\"a%1\">Beet %1</h2>\r\n"
            "<p>Im Frühjahr säen wir <b>Möhren</b> und <i>Zwiebeln</i>, im Sommer folgen Bohnen und "
            "Kürbisse. "
            "Mehr dazu steht auf der <a href=\"seite%1.htm\" title=\"Weiter\">nächsten Seite</a>.<br>\r\n"
            "<img src=\"bilder/beet%1.jpg\" alt=\"Beet %1\" width=\"320\" height=\"200\"></p>\r\n"
            "<ul style=\"margin:4px;color:#333\">\r\n<li>Spaten</li>\r\n<li>Harke</li>\r\n</ul>\r\n"
            "<table border=\"1\">\r\n<tr><td>Aussaat</td><td>März</td></tr>\r\n"
            "<tr><td>Ernte</td><td>September</td></tr>\r\n</table>\r\n"
            "<script>\r\nfor (var i = 0; i &lt; 3; i++) zeige(\"bild\" + i);\r\n</script>\r\n"_s.arg(section);
    }
    return page + u"</body>\r\n</html>\r\n"_s;
}

QString DifferentTags(qsizetype size) {
    QString page;
    for (int i = 0; page.size() < size; ++i) page += u"<x%1>"_s.arg(i, 0, 36);
    return page;
}

void Measure(const char* what, const QString& text, const QString& extension,
             const Debugger::TagLists& lists) {
    Debugger::PageOptions options;
    options.showReport = true;
    options.extension = extension;
    double best = std::numeric_limits<double>::max();
    size_t rows = 0;
    for (int round = 0; round < 5; ++round) {
        QElapsedTimer timer;
        timer.start();
        rows = Debugger::CheckPage(text, options, lists).rows.size();
        best = std::min(best, static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    const double megabytes = static_cast<double>(text.size()) / Megabyte;
    std::printf("%-44s %8.2f MB %9zu rows %9.2f ms %8.2f ms/MB\n", what, megabytes, rows, best,
                best / megabytes);
}

void MeasurePages(const Debugger::TagLists& lists) {
    const QString page = u"htm"_s;
    for (const qsizetype size : {Megabyte / 10, Megabyte, 10 * Megabyte}) {
        Measure("realistic page", RealisticPage(size), page, lists);
    }
    const auto measure = [&](const char* what, const QString& text) { Measure(what, text, page, lists); };
    measure("nothing but <", Repeated(u"<"_s, Megabyte));
    measure("nothing but < and one > at the end", Repeated(u"<"_s, Megabyte) + u'>');
    measure("ten thousand quotes, no comment", Repeated(u"\""_s + QString(99, u'x'), Megabyte));
    measure("nothing but quotes", Repeated(u"\""_s, Megabyte));
    measure("one comment without an end", u"<!--"_s + Repeated(u"<b>\"</b>"_s, Megabyte));
    measure("unfinished comment openings", Repeated(u"<!--"_s, Megabyte));
    measure("as many comments as fit", Repeated(u"<!---->"_s, Megabyte));
    measure("one tag, never closed", Repeated(u"<div>"_s, Megabyte));
    measure("many opened, then closed",
            Repeated(u"<div>"_s, Megabyte / 2) + Repeated(u"</div>"_s, Megabyte / 2));
    measure("different unknown tags", DifferentTags(Megabyte));
    measure("style elements without an end", Repeated(u"<style "_s, Megabyte));
    measure("empty style attributes", Repeated(u"<p style=\"\">"_s, Megabyte));
    measure("empty style elements", Repeated(u"<style></style>"_s, Megabyte));
    const auto measureSheet = [&](const char* what, const QString& text) {
        Measure(what, text, u"css"_s, lists);
    };
    measureSheet("sheet: tidy", Repeated(u".a1{margin:4px;color:#333;}\r\n"_s, Megabyte));
    measureSheet("sheet: no semicolon", Repeated(u"a{color:red}\r\n"_s, Megabyte));
    measureSheet("sheet: one rule of nothing but colons", u"a{"_s + Repeated(u"b:c "_s, Megabyte));
    measureSheet("sheet: doubled semicolons", u"a:b"_s + Repeated(u";"_s, Megabyte) + u":c"_s);
    measureSheet("sheet: comment without an end", u"/*"_s + Repeated(u"a:b;/*"_s, Megabyte));
}

} // namespace

int main(int argc, char** argv) {
    Files::SetProgramDirectory(Files::FromSystem(QStringLiteral(SORVANE_SOURCE_DIR "/data")));
    if (!Lists::LoadTagList() || !Lists::LoadNoCloseTags()) {
        std::fputs("the list files cannot be read\n", stderr);
        return 1;
    }
    const Debugger::TagLists lists(Global::KnownTagString, Global::NoCloseTagString);
    for (int i = 1; i < argc; ++i) {
        QFile file(QString::fromLocal8Bit(argv[i]));
        if (file.open(QIODevice::ReadOnly))
            Measure(argv[i], QString::fromUtf8(file.readAll()), u"htm"_s, lists);
    }
    if (argc == 1) MeasurePages(lists);
}
