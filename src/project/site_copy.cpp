// SPDX-License-Identifier: MIT
#include "project/site_copy.h"

#include "documents/paths.h"
#include "platform/file_copy.h"
#include "platform/files.h"
#include "platform/literals.h"
#include "platform/text.h"
#include "project/file_management.h"

#include <QHash>
#include <QSet>
#include <algorithm>

namespace SiteCopy {

namespace {

bool IsCopied(const SiteFile& file) { return file.tag != u"Error"; }

// The files that are copied, and their places on the disk: none of them may be overwritten by another one.
class Sources {
public:
    explicit Sources(const std::vector<SiteFile>& files) {
        for (const SiteFile& file : files) {
            if (!IsCopied(file)) continue;
            m_paths.insert(file.tag);
            m_places.insert(Files::Canonical(file.tag));
        }
        m_places.remove({});
    }
    bool Has(const QString& path) const { return m_paths.contains(path); }
    bool HasAnother(const QString& target, const QString& source) const {
        const QString place = Files::Canonical(target);
        return !place.isEmpty() && m_places.contains(place) && place != Files::Canonical(source);
    }

private:
    QSet<QString> m_paths;
    QSet<QString> m_places;
};

// The copies made. Two files may come out as one, as the tails of paths do, and on disks to which capitals
// and small letters are the same.
class Copies {
public:
    // Whether `target` is the copy of another file already.
    bool Holds(const QString& target, const QString& source) const {
        const auto made = m_byTarget.constFind(Text::LowerCase(target));
        if (made == m_byTarget.cend()) return false;
        const Copy& copy = m_copies[*made];
        return Files::IsSameFile(copy.target, target) && !Files::IsSameFile(copy.source, source);
    }
    void Add(const QString& target, const QString& source) {
        m_byTarget.insert(Text::LowerCase(target), m_copies.size());
        m_copies.push_back({target, source});
    }
    // The sources of those that are no longer there, as when the folder was removed meanwhile.
    QStringList Gone() const {
        QStringList gone;
        for (const Copy& copy : m_copies) {
            if (!Files::SizeOf(copy.target)) gone.append(copy.source);
        }
        return gone;
    }

private:
    struct Copy {
        QString target;
        QString source;
    };
    std::vector<Copy> m_copies;
    QHash<QString, size_t> m_byTarget; // in small letters
};

} // namespace

QString RemovePathPrefix(const QString& path, const QString& base) {
    return path.sliced(std::min(base.size() + 1, path.size()));
}

QString TargetOf(const SiteFile& file, const QString& root, const QString& destination) {
    QString target = destination + u'\\' + RemovePathPrefix(file.tag, Global::ParentPath(root));
    return Files::LiesWithin(target, destination) ? target : QString();
}

Result CopyFiles(const std::vector<SiteFile>& files, const QString& root, const QString& destination,
                 const Listener& listener) {
    Result result;
    const Sources sources(files);
    Copies copies;
    QString folder; // made last
    for (size_t i = 0; i < files.size(); ++i) {
        if (listener.copying) listener.copying(static_cast<qsizetype>(i) + 1);
        const SiteFile& file = files[i];
        const QString& source = IsCopied(file) ? file.tag : file.path;
        if (!Files::MayBeThere(source) || (!IsCopied(file) && sources.Has(source))) continue;
        const QString target = IsCopied(file) ? TargetOf(file, root, destination) : QString();
        if (target.isEmpty() || sources.HasAnother(target, source) || copies.Holds(target, source)) {
            result.missed.append(source);
            continue;
        }
        if (const QString parent = Global::ParentPath(target); parent != folder) {
            FileManagement::MakeFullDirectory(folder = parent);
        }
        const Files::CopyResult copied = Files::CopyWithTimes(source, target, listener.goOn);
        if (copied == Files::CopyResult::Failed) result.missed.append(source);
        if (copied == Files::CopyResult::Copied) copies.Add(target, source);
        if (copied == Files::CopyResult::Stopped || (listener.goOn && !listener.goOn())) {
            result.stopped = true;
            return result;
        }
    }
    result.missed += copies.Gone();
    const Files::CopyResult flushed = Files::FlushDisk(destination, listener.goOn);
    result.stopped = flushed == Files::CopyResult::Stopped;
    result.onDisk = flushed == Files::CopyResult::Copied;
    return result;
}

QString Report(const Result& result) {
    if (!result.missed.isEmpty()) {
        const QString first = Files::ToSystem(result.missed.first());
        if (result.missed.size() == 1) return u"ProjektBackup: 1 Datei wurde nicht kopiert: "_s + first;
        return u"ProjektBackup: %1 Dateien wurden nicht kopiert, die erste ist "_s.arg(result.missed.size()) +
               first;
    }
    if (!result.onDisk) return u"ProjektBackup: Die Kopie ist nicht vollständig auf dem Datenträger."_s;
    return {};
}

} // namespace SiteCopy
