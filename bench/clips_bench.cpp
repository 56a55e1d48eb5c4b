// SPDX-License-Identifier: MIT
// What the clip library costs: a folder of 1,000 and of 5,000 photographs of 800 x 600 pixels, and of 1,000
// small pictures; from the command to the first paint, to all thumbnails, the most memory that the program
// took meanwhile, and the same when the folder is opened again in a new run (from the disk's cache) and in
// this one. Then single pictures of 100 megapixels. Milliseconds by the clock. Usage:
// QT_QPA_PLATFORM=offscreen clips_bench
#include "clips/clip_view.h"
#include "clips/frm_pab.h"
#include "clips/picture_reader.h"
#include "clips/thumbnail_cache.h"
#include "milliseconds.h"
#include "platform/literals.h"
#include "platform/window.h"
#include "program.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <cstdio>

namespace {

// Most memory that the program has had so far, in megabytes; Reset() begins anew.
double PeakMemory() {
    QFile status(u"/proc/self/status"_s);
    if (!status.open(QIODevice::ReadOnly)) return 0;
    const QByteArray text = status.readAll();
    const qsizetype at = text.indexOf("VmHWM:") + 6;
    return text.mid(at, text.indexOf("kB", at) - at).trimmed().toDouble() / 1024;
}

void ResetPeak() {
    QFile clear(u"/proc/self/clear_refs"_s);
    if (clear.open(QIODevice::WriteOnly)) clear.write("5");
}

QImage Photograph(int width, int height) {
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < width; ++x)
            line[x] = qRgb((x * 255 / width) ^ (y & 15), y * 255 / height, (x * y) >> 8 & 127);
    }
    return image;
}

void FillFolder(const QString& library, int count, const QImage& image, const char* ending) {
    QDir(library).removeRecursively();
    QDir().mkpath(library);
    const QString first = library + u"/0."_s + QString::fromLatin1(ending);
    image.save(first, nullptr, 85);
    for (int i = 1; i < count; ++i)
        QFile::copy(first, library + u"/%1.%2"_s.arg(i).arg(QString::fromLatin1(ending)));
}

void OpenLibrary(const char* title) {
    ResetPeak();
    const double before = PeakMemory();
    QElapsedTimer timer;
    timer.start();
    auto& window = Shared<Frm_PAB>();
    window.Present();
    window.repaint();
    const double painted = double(timer.nsecsElapsed()) / 1e6;
    const auto* sheet = window.findChild<ClipView*>(u"Pic_ViewScreen"_s);
    while (!sheet->IsFilled()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    const double filled = double(timer.nsecsElapsed()) / 1e6;
    std::printf("%-44s %8.0f %8.0f %8.0f\n", title, painted, filled, PeakMemory() - before);
    Unload<Frm_PAB>();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void MeasureFolder(const QString& library, int count, const QImage& image, const char* ending) {
    FillFolder(library, count, image, ending);
    ThumbnailCache::Forget();
    const QByteArray what = QByteArray::number(count) + " x " + QByteArray::number(image.width()) + " x " +
                            QByteArray::number(image.height()) + ' ' + ending;
    OpenLibrary(what + ", first time");
    ThumbnailCache::Forget();
    OpenLibrary(what + ", in a new run");
    OpenLibrary(what + ", in the same run");
}

void MeasureHuge(const QString& folder, const char* ending) {
    const QString path = folder + u"/huge."_s + QString::fromLatin1(ending);
    Photograph(10'000, 10'000).save(path, nullptr, 80);
    ResetPeak();
    const double before = PeakMemory();
    bool shown = false;
    const double time = WallMilliseconds(
        [&] { shown = !Pictures::Read(path, [](QSize) { return QSize(60, 60); }).image.isNull(); });
    std::printf("%-44s %8s %8.0f %8.0f\n",
                ("100 megapixels, " + QByteArray(ending) + (shown ? ", shown" : ", refused")).constData(), "",
                time, PeakMemory() - before);
}

} // namespace

int main(int argc, char** argv) {
    const BenchProgram program(argc, argv);
    qputenv("XDG_CACHE_HOME", program.folder.System(u"cache"_s).toLocal8Bit());
    const QString library = program.folder.System(u"pageartbox"_s);
    std::printf("%-44s %8s %8s %8s\n", "", "paint", "all", "MB more");
    MeasureFolder(library, 1'000, Photograph(800, 600), "jpg");
    MeasureFolder(library, 1'000, Photograph(40, 30), "bmp");
    MeasureFolder(library, 5'000, Photograph(800, 600), "jpg");
    for (const char* ending : {"jpg", "png", "bmp"}) MeasureHuge(program.folder.System({}), ending);
    QDir(library).removeRecursively();
}
