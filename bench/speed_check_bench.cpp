// SPDX-License-Identifier: MIT
// What SpeedCheck costs: a page with pictures of distinct names, small files on the disk, at three sizes, the
// scan alone and the window from the command to all rows and results painted; and two pages that call each
// other, to the depth at which the scan stops. Milliseconds by the clock, the least of three runs; behind it
// the growth from size to size, which is 10 where the cost is proportional to the page.
// Usage: QT_QPA_PLATFORM=offscreen speed_check_bench
#include "documents/document_commands.h"
#include "milliseconds.h"
#include "platform/literals.h"
#include "platform/window.h"
#include "program.h"
#include "project/frm_speed_check.h"
#include "project/page_weight.h"
#include "state/global.h"

#include <QElapsedTimer>
#include <QTimer>
#include <QTreeView>
#include <QTreeWidget>
#include <algorithm>
#include <array>
#include <cstdio>

namespace {

constexpr std::array Sizes{1'000, 10'000, 100'000};

QByteArray Picture(int number) { return "bilder/bild" + QByteArray::number(number) + ".png"; }

QString WritePage(const ProgramFolder& folder, int pictures) {
    QByteArray page = "<!-- -//W3C//DTD HTML -->\r\n";
    for (int i = 0; i < pictures; ++i)
        page += "<p>Im Beet <img src=\"" + Picture(i) + "\" alt=\"Beet\"></p>\r\n";
    return folder.Write(u"seite%1.htm"_s.arg(pictures), page);
}

double LeastOfThree(const std::function<double()>& measure) {
    double least = measure();
    for (int round = 1; round < 3; ++round) least = std::min(least, measure());
    return least;
}

double ScanTime(const QString& page) {
    qsizetype rows = 0;
    return WallMilliseconds([&] {
        PageWeight::Scan(page, {[&](const PageWeight::Row&) { ++rows; }, [] { return true; }});
    });
}

// From the command to the results on the screen.
double WindowTime(int pictures) {
    QElapsedTimer timer;
    timer.start();
    auto& window = Shared<Frm_SpeedCheck>();
    auto* results = window.findChild<QTreeWidget*>(u"Lvw_Message"_s);
    auto* files = window.findChild<QTreeView*>(u"Lvw_Files"_s);
    double time = 0;
    int rows = 0;
    QObject::connect(results->model(), &QAbstractItemModel::rowsInserted, &window, [&] {
        if (results->topLevelItemCount() < 6) return;
        QTimer::singleShot(0, &window, [&] {
            files->viewport()->repaint();
            results->viewport()->repaint();
            time = static_cast<double>(timer.nsecsElapsed()) / 1e6;
            rows = files->model()->rowCount();
            window.reject();
        });
    });
    Driver::Trigger(u"Menu_Tools_SpeedCheck"_s);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    if (rows != pictures) std::printf("%d of %d rows\n", rows, pictures);
    return time;
}

void PrintRow(const char* name, const std::array<double, Sizes.size()>& times) {
    const auto& [small, middle, large] = times;
    std::printf("%-34s%10.2f%10.2f%10.2f%9.1f%9.1f\n", name, small, middle, large, middle / small,
                large / middle);
}

void MeasurePictures(const ProgramFolder& folder) {
    for (int i = 0; i < Sizes.back(); ++i) {
        folder.Write(QString::fromLatin1(Picture(i)), QByteArray(100 + i % 900, 'x'));
    }
    std::array<double, Sizes.size()> scan{};
    std::array<double, Sizes.size()> window{};
    for (size_t size = 0; size < Sizes.size(); ++size) {
        const QString page = WritePage(folder, Sizes[size]);
        Documents::OpenFile(page);
        scan[size] = LeastOfThree([&] { return ScanTime(page); });
        window[size] = LeastOfThree([&] { return WindowTime(Sizes[size]); });
    }
    std::printf("%-34s%10d%10d%10d%9s%9s\n", "pictures", Sizes[0], Sizes[1], Sizes[2], "growth", "growth");
    PrintRow("scan", scan);
    PrintRow("window, with saving the page", window);
}

void MeasureCycle(const ProgramFolder& folder) {
    constexpr std::array Kilobytes{10, 100, 1000};
    std::array<double, Kilobytes.size()> times{};
    for (size_t size = 0; size < Kilobytes.size(); ++size) {
        const QByteArray rest =
            QByteArray("<p>Text <!-- Notiz --> im <b>Beet</b></p>\r\n").repeated(Kilobytes[size] * 1000 / 41);
        folder.Write(u"b.htm"_s, "<frame src=\"a.htm\">" + rest);
        const QString page = folder.Write(u"a.htm"_s, "<frame src=\"b.htm\">" + rest);
        times[size] = LeastOfThree([&] { return ScanTime(page); });
    }
    std::printf("\n%-34s%10d%10d%10d%9s%9s\n", "two pages, kB each", Kilobytes[0], Kilobytes[1], Kilobytes[2],
                "growth", "growth");
    PrintRow("calling each other 1,000 deep", times);
}

} // namespace

int main(int argc, char** argv) {
    const BenchProgram program(argc, argv);
    const ProgramFolder& folder = program.folder;
    std::printf("milliseconds\n");
    MeasurePictures(folder);
    MeasureCycle(folder);
    return 0;
}
