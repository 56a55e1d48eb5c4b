// SPDX-License-Identifier: MIT
#include "clips/frm_pab_preview.h"

#include "documents/paths.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/literals.h"
#include "platform/screen_place.h"
#include "platform/twips.h"

#include <QGuiApplication>
#include <QLabel>
#include <QMovie>
#include <QScreen>
#include <QScrollArea>
#include <QSemaphore>
#include <QThreadPool>
#include <QVBoxLayout>
#include <cmath>

namespace {

constexpr int Patience = 400;                // milliseconds that nobody minds to wait for a picture
constexpr qint64 GreatestShown = 16'000'000; // pixels; larger pictures are shown smaller
constexpr qint64 GreatestMoving = 4'000'000; // pixels of an animation, which is decoded while the user waits
constexpr QSize Chrome(7, 26);               // pixels of the frame that the least size counts
constexpr QSize Least(Twips::ToPixels(1000), Twips::ToPixels(500));

QSize Shown(QSize size) {
    const double pixels = double(size.width()) * size.height();
    return pixels <= GreatestShown ? size : size * std::sqrt(GreatestShown / pixels);
}

} // namespace

struct Frm_PABPreView::Job {
    std::atomic<bool> stopped = false;
    QSemaphore done;
    Pictures::Picture picture;
};

Frm_PABPreView::Frm_PABPreView()
    : m_area(new QScrollArea), m_sheet(new QWidget), Pic_PreView(new QLabel(m_sheet)),
      Gif_PreView(new QLabel(m_sheet)) {
    setObjectName(u"Frm_PABPreView"_s);
    setWindowTitle(u"Vorschau"_s);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setMinimumSize(Least - Chrome);
    Pic_PreView->setObjectName(u"Pic_PreView"_s);
    Gif_PreView->setObjectName(u"Gif_PreView"_s);
    for (QLabel* label : {Pic_PreView, Gif_PreView}) {
        QPalette colors = label->palette();
        colors.setColor(QPalette::Window, Qt::white); // as on a page
        label->setPalette(colors);
        label->setAutoFillBackground(true);
    }
    Gif_PreView->hide();
    m_area->setFrameShape(QFrame::NoFrame);
    m_area->setWidget(m_sheet);
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins({});
    all->addWidget(m_area);
}

Frm_PABPreView::~Frm_PABPreView() {
    if (m_job) m_job->stopped = true;
}

void Frm_PABPreView::TellFailure() {
    Dialogs::Tell(
        u"Vorschau"_s,
        u"Die Vorschau kann nicht gestartet werden, da\r\neine notwendige Datei nicht richtig "
        u"registriert ist.\r\nWarscheinlich sind Sie nicht als Administartor\r\nangemeldet oder haben "
        u"nicht die Berechtigung\r\ndiese Datei zu benutzen."_s,
        Dialogs::Icon::None);
}

bool Frm_PABPreView::LoadImage(const QString& path) {
    m_path = path;
    setWindowTitle(u"Vorschau - "_s + Global::FileNameOf(path));
    Gif_PreView->hide();
    auto job = m_job = std::make_shared<Job>();
    // a thread of its own: the thumbnails may be waiting for a volume that does not answer
    auto* thread = QThread::create([job, path] {
        job->picture = Pictures::Read(path, Shown, &job->stopped);
        job->done.release();
    });
    connect(thread, &QThread::finished, this, [this, job] {
        if (m_job != job || !job->done.tryAcquire()) return; // shown already
        if (Show(job->picture)) return;
        TellFailure();
        reject();
    });
    connect(thread, &QThread::finished, thread, &QObject::deleteLater);
    thread->start();
    if (job->done.tryAcquire(1, Patience)) {
        if (Show(job->picture)) return true;
        TellFailure();
        return false;
    }
    Pic_PreView->setText(u"Das Bild wird geladen..."_s);
    Pic_PreView->setAlignment(Qt::AlignCenter);
    Fit({320, 200});
    return true;
}

bool Frm_PABPreView::Show(const Pictures::Picture& picture) {
    if (picture.image.isNull()) return false;
    Pic_PreView->setPixmap(QPixmap::fromImage(picture.image));
    Pic_PreView->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    Fit(picture.image.size());
    if (Global::ExtensionOf(m_path) == u"gif") Run(picture.size);
    return true;
}

void Frm_PABPreView::Run(QSize size) {
    if (qint64(size.width()) * size.height() > GreatestMoving) return;
    m_movie = new QMovie(Files::ToSystem(m_path), {}, this);
    Gif_PreView->setMovie(m_movie);
    Gif_PreView->setGeometry(Pic_PreView->geometry());
    Gif_PreView->show();
    m_movie->start();
}

// The window takes the picture's size, as far as the screen has room for it.
void Frm_PABPreView::Fit(QSize picture) {
    m_sheet->resize(picture);
    Pic_PreView->setGeometry({{}, picture});
    const QSize room = screen()->availableGeometry().size() - Chrome - QSize(8, 16); // a frame of other make
    QSize window = picture.boundedTo(room);
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    if (picture.height() > room.height()) window.rwidth() = std::min(room.width(), window.width() + bar);
    if (picture.width() > room.width()) window.rheight() = std::min(room.height(), window.height() + bar);
    resize(window);
    if (isVisible()) move(FittedToScreen(frameGeometry()).topLeft());
}
