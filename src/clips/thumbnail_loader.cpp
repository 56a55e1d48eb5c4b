// SPDX-License-Identifier: MIT
#include "clips/thumbnail_loader.h"

#include "clips/clip_sheet.h"
#include "clips/thumbnail_cache.h"
#include "platform/files.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QMutex>
#include <QThread>
#include <QThreadPool>
#include <algorithm>
#include <cmath>
#include <deque>
#include <utility>
#include <vector>

namespace {

constexpr int EndPatience = 3000; // milliseconds that the program waits at its end for a picture half read

// Lives to the end of the program, which does not wait for a volume that does not answer.
QThreadPool& Pool() {
    static QThreadPool* const pool = [] {
        auto* made = new QThreadPool;
        made->setMaxThreadCount(std::clamp(QThread::idealThreadCount(), 1, 4));
        made->setThreadPriority(QThread::LowPriority);
        qAddPostRoutine([] { Pool().waitForDone(EndPatience); });
        return made;
    }();
    return *pool;
}

Pictures::Picture MakeThumbnail(const QString& path, double scale, const std::atomic<bool>& stopped) {
    const QByteArray key = ThumbnailCache::KeyOf(path, static_cast<int>(std::lround(60 * scale)));
    if (key.isEmpty()) return {};
    ThumbnailCache::Hit hit = ThumbnailCache::Find(key);
    if (hit.found) return hit.picture;
    const auto wanted = [scale](QSize size) {
        return (QSizeF(ClipSheet::ThumbnailSize(size)) * scale).toSize();
    };
    Pictures::Picture picture = Pictures::Read(path, wanted, &stopped);
    if (stopped) return {};
    ThumbnailCache::Keep(key, picture, QFileInfo(Files::ToSystem(path)).size());
    return picture;
}

} // namespace

// What the threads share with the loader. It outlives it where a thread is busy.
struct ThumbnailLoader::Work {
    QStringList paths;
    double scale = 1;
    std::atomic<bool> stopped = false;

    QMutex mutex; // for all that follows
    ThumbnailLoader* owner = nullptr;
    std::vector<char> taken;
    std::deque<qsizetype> preferred;
    qsizetype next = 0;
    int threads = 0;
    bool pruned = false;
    bool told = false; // the owner knows of results that wait
    std::vector<std::pair<qsizetype, Pictures::Picture>> results;

    // The next file; -1 when there is none left.
    qsizetype Take() {
        while (!preferred.empty()) {
            const qsizetype index = preferred.front();
            preferred.pop_front();
            if (!std::exchange(taken[static_cast<size_t>(index)], 1)) return index;
        }
        for (; next < paths.size(); ++next) {
            if (!std::exchange(taken[static_cast<size_t>(next)], 1)) return next++;
        }
        return -1;
    }
};

ThumbnailLoader::ThumbnailLoader(QObject* parent) : QObject(parent) {}

ThumbnailLoader::~ThumbnailLoader() { Stop(); }

void ThumbnailLoader::Stop() {
    if (!m_work) return;
    m_work->stopped = true;
    const QMutexLocker lock(&m_work->mutex);
    m_work->owner = nullptr;
    m_work->results.clear();
}

void ThumbnailLoader::Start(const QStringList& paths, double scale) {
    Stop();
    m_work = std::make_shared<Work>();
    m_work->paths = paths;
    m_work->scale = scale;
    m_work->owner = this;
    m_work->taken.resize(static_cast<size_t>(paths.size()));
    Employ(m_work);
}

void ThumbnailLoader::Prefer(qsizetype first, qsizetype last) {
    if (!m_work) return;
    {
        const QMutexLocker lock(&m_work->mutex);
        m_work->preferred.clear();
        last = std::min(last, m_work->paths.size() - 1);
        for (qsizetype index = std::max<qsizetype>(first, 0); index <= last; ++index) {
            m_work->preferred.push_back(index);
        }
    }
}

void ThumbnailLoader::Again(qsizetype index) {
    if (!m_work || index < 0 || index >= m_work->paths.size()) return;
    {
        const QMutexLocker lock(&m_work->mutex);
        m_work->taken[static_cast<size_t>(index)] = 0;
        m_work->preferred.push_front(index);
    }
    Employ(m_work);
}

void ThumbnailLoader::Employ(const std::shared_ptr<Work>& work) {
    const QMutexLocker lock(&work->mutex);
    const qsizetype wanted = std::min<qsizetype>(
        Pool().maxThreadCount(), work->paths.size() - work->next + qsizetype(work->preferred.size()));
    for (; work->threads < wanted; ++work->threads) {
        Pool().start([work] { Run(work); });
    }
}

void ThumbnailLoader::Run(const std::shared_ptr<Work>& work) {
    while (true) {
        qsizetype index = -1;
        {
            const QMutexLocker lock(&work->mutex);
            if (!work->stopped) index = work->Take();
            if (index < 0) {
                const bool last = --work->threads == 0 && !work->stopped;
                if (!last || std::exchange(work->pruned, true)) return;
            }
        }
        if (index < 0) return ThumbnailCache::Prune();
        Pictures::Picture picture = MakeThumbnail(work->paths[index], work->scale, work->stopped);
        const QMutexLocker lock(&work->mutex);
        if (!work->owner) continue;
        work->results.emplace_back(index, std::move(picture));
        if (std::exchange(work->told, true)) continue;
        QMetaObject::invokeMethod(
            work->owner, [owner = work->owner, work] { owner->Deliver(work); }, Qt::QueuedConnection);
    }
}

void ThumbnailLoader::Deliver(const std::shared_ptr<Work>& work) {
    std::vector<std::pair<qsizetype, Pictures::Picture>> results;
    {
        const QMutexLocker lock(&work->mutex);
        work->told = false;
        results.swap(work->results);
    }
    for (const auto& [index, picture] : results) {
        if (work != m_work || work->stopped) return; // a listener has begun anew
        emit Loaded(index, picture);
    }
}
