// SPDX-License-Identifier: MIT
// The link scanner on generated sites of 1,000 and 5,000 pages with 20 links each: pages a second, growth,
// and the longest time between two event runs, which is what the user feels.
#include "platform/events.h"
#include "platform/files.h"
#include "platform/literals.h"
#include "project/link_scanner.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>

namespace {

constexpr int LinksOnPage = 20;
constexpr int PagesInFolder = 100;

QString PageName(int number) { return u"teil%1/seite%2.htm"_s.arg(number / PagesInFolder).arg(number); }

// Page i links to the pages behind it, so the search goes as deep as the site is large.
QByteArray Page(int number, int pages) {
    QString text = u"<html><head><title>Seite %1</title></head><body>\r\n"_s.arg(number);
    for (int i = 1; i <= LinksOnPage; ++i) {
        const int target = (number + i * i) % pages;
        text += u"<p>Ein Absatz, der ein wenig Text enthält. <a href=\"../%1\">Seite %2</a></p>\r\n"_s
                    .arg(PageName(target))
                    .arg(target);
    }
    return (text + u"</body></html>\r\n"_s).toLatin1();
}

bool WriteSite(const QDir& folder, int pages) {
    for (int i = 0; i < pages; ++i) {
        if (i % PagesInFolder == 0) folder.mkpath(u"teil%1"_s.arg(i / PagesInFolder));
        QFile file(folder.filePath(PageName(i)));
        if (!file.open(QIODevice::WriteOnly) || file.write(Page(i, pages)) < 0) return false;
    }
    return true;
}

struct Measured {
    LinkScanner::Counts counts;
    double seconds = 0;
    double longestGap = 0; // seconds
};

Measured Scan(const QString& root, int maxLinkDeep) {
    Measured result;
    qint64 last = 0;
    QElapsedTimer timer;
    LinkScanner::Listener listener;
    listener.goOn = [] { return true; };
    listener.letEventsRun = [&](const LinkScanner::Counts&) {
        result.longestGap =
            std::max(result.longestGap, static_cast<double>(timer.nsecsElapsed() - last) / 1e9);
        Events::DoEvents();
        last = timer.nsecsElapsed();
    };
    LinkScanner::Settings settings;
    settings.maxLinkDeep = maxLinkDeep;
    timer.start();
    result.counts = LinkScanner().Scan(root, settings, listener);
    result.seconds = static_cast<double>(timer.nsecsElapsed()) / 1e9;
    return result;
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    std::printf("%8s %8s %8s %8s %9s %9s %11s %13s %9s\n", "pages", "limit", "rows", "links", "seconds",
                "rows/s", "links/s", "us per link", "gap ms");
    for (const int pages : {1000, 5000}) {
        QTemporaryDir folder;
        if (!WriteSite(QDir(folder.path()), pages)) return 1;
        const QString root = Files::FromSystem(folder.filePath(PageName(0)));
        for (const int limit : {255, 32767}) {
            Scan(root, limit); // the files come from the disk's cache in the measured scan
            const Measured result = Scan(root, limit);
            const auto& [counts, seconds, gap] = result;
            std::printf("%8d %8d %8d %8d %9.3f %9.0f %11.0f %13.2f %9.2f\n", pages, limit, counts.rows,
                        counts.links, seconds, counts.rows / seconds, counts.links / seconds,
                        seconds * 1e6 / counts.links, gap * 1e3);
        }
    }
    return 0;
}
