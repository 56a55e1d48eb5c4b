// SPDX-License-Identifier: MIT
#pragma once

#include "clips/picture_reader.h"

#include <QObject>
#include <QStringList>
#include <memory>

// Makes the thumbnails of a list of files off the user's thread, those that he looks at first.
class ThumbnailLoader : public QObject {
    Q_OBJECT

public:
    explicit ThumbnailLoader(QObject* parent);
    ~ThumbnailLoader() override;

    // Begins with the files of `paths`, and forgets those before. `scale`: device pixels in a logical one.
    void Start(const QStringList& paths, double scale);
    void Stop();
    // Those from `first` to `last` come before the others.
    void Prefer(qsizetype first, qsizetype last);
    // Makes one again whose picture its owner has not kept.
    void Again(qsizetype index);

signals:
    // One of the files has been looked at; see Pictures::Read(). In any order.
    void Loaded(qsizetype index, const Pictures::Picture& picture);

private:
    struct Work;
    void Deliver(const std::shared_ptr<Work>& work);
    static void Run(const std::shared_ptr<Work>& work);
    static void Employ(const std::shared_ptr<Work>& work);

    std::shared_ptr<Work> m_work;
};
