// SPDX-License-Identifier: MIT
// A site on its way out: the scan, the backup against "cp -r" of the same tree in the same run, and the WAP
// simulation's conversion. Wall-clock time, the least of three runs; growth is from one size to the next.
// Usage: site_bench
#include "milliseconds.h"
#include "platform/files.h"
#include "platform/literals.h"
#include "preview/wap_browser.h"
#include "project/site_copy.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>

namespace {

double Best(const std::function<void()>& before, const std::function<void()>& work) {
    double best = 1e300;
    for (int round = 0; round < 3; ++round) {
        before();
        best = std::min(best, WallMilliseconds(work));
    }
    return best;
}

void Write(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) std::abort();
}

// A start page that links to `count` pictures and pages of 1 to 20 KB in fifty folders.
QString MakeSite(const QString& folder, int count) {
    for (int i = 0; i < 50; ++i) QDir().mkpath(folder + u"/d%1"_s.arg(i));
    QByteArray page;
    for (int i = 1; i < count; ++i) {
        const QString name = u"d%1/datei%2%3"_s.arg(i % 50).arg(i).arg(i % 4 == 0 ? u".htm"_s : u".gif"_s);
        Write(folder + u'/' + name, QByteArray(1000 + i * 37 % 19'000, i % 4 == 0 ? ' ' : 'x'));
        page += "<a href=\"" + name.toUtf8() + "\">\r\n";
    }
    Write(folder + u"/index.htm"_s, page);
    return Files::FromSystem(folder + u"/index.htm"_s);
}

void MeasureBackup() {
    std::printf("%-28s %8s %8s %8s %8s %8s\n", "files", "scan", "copy", "cp -r", "ratio", "growth");
    double before = 0;
    for (const int count : {500, 5000, 20'000}) {
        QTemporaryDir place;
        const QString target = place.filePath(u"ziel"_s);
        const QString root = MakeSite(place.filePath(u"web"_s), count);
        SiteScan::Result site;
        const auto clear = [&] { QDir(target).removeRecursively(); };
        const double scan = Best([] {}, [&] { site = SiteScan::Scan(root, {}); });
        const double copy = Best(clear, [&] {
            const auto result = SiteCopy::CopyFiles(site.files, root, Files::FromSystem(target), {});
            if (!result.missed.isEmpty() || site.files.size() != size_t(count)) std::abort();
        });
        const double system = Best(clear, [&] {
            QProcess::execute(u"cp"_s, {u"-r"_s, place.filePath(u"web"_s), target});
        });
        std::printf("%-28d %8.1f %8.1f %8.1f %8.2f", count, scan, copy, system, copy / system);
        if (before > 0) std::printf(" %8.1f", copy / before);
        std::printf("\n");
        before = copy;
    }
}

void MeasureDecks() {
    std::printf("\n%-28s %8s %8s\n", "deck of 1,000 cards, MB", "ms", "growth");
    double before = 0;
    for (const int kilobytes : {100, 1000, 10'000}) {
        QTemporaryDir place;
        const QByteArray card =
            "<card>" + QByteArray("<a href=\"a.wml\">x</a>").repeated(kilobytes / 20) + "</card>";
        const QByteArray deck = "<wml>" + card.repeated(1000) + "</wml>";
        const QString path = place.filePath(u"a.wml"_s);
        const double time = Best([&] { Write(path, deck); },
                                 [&] {
                                     if (!WAPBrowser::ConvertWmlFile(Files::FromSystem(path))) std::abort();
                                 });
        std::printf("%-28.1f %8.1f", double(deck.size()) / 1e6, time);
        if (before > 0) std::printf(" %8.1f", time / before);
        std::printf("\n");
        before = time;
    }
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication app(argc, argv);
    MeasureBackup();
    MeasureDecks();
    return 0;
}
