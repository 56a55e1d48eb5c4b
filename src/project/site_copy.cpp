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
    void Add(const SiteFile& file) {
        if (!IsCopied(file)) return;
        m_paths.insert(file.tag);
        if (const QString place = Files::Canonical(file.tag); !place.isEmpty()) m_places.insert(place);
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

class Copying {
public:
    Copying(const QString& root, const QString& destination, const Listener& listener)
        : m_root(root), m_destination(destination), m_listener(listener) {}

    Result Run(const std::vector<SiteFile>& files) {
        for (size_t i = 0; i < files.size() && GoesOn(); ++i) m_sources.Add(files[i]);
        for (size_t i = 0; i < files.size() && GoesOn(); ++i) {
            if (m_listener.copying) m_listener.copying(static_cast<qsizetype>(i) + 1);
            Copy(files[i]);
        }
        if (!GoesOn()) return m_result;
        m_result.missed += m_copies.Gone();
        const Files::CopyResult flushed = Files::FlushDisk(m_destination, m_listener.goOn);
        m_result.stopped = flushed == Files::CopyResult::Stopped;
        m_result.onDisk = flushed == Files::CopyResult::Copied;
        return m_result;
    }

private:
    bool GoesOn() {
        if (!m_result.stopped && m_listener.goOn) m_result.stopped = !m_listener.goOn();
        return !m_result.stopped;
    }
    void Copy(const SiteFile& file);

    const QString m_root;
    const QString m_destination;
    const Listener& m_listener;
    Sources m_sources;
    Copies m_copies;
    QString m_folder; // made last
    Result m_result;
};

void Copying::Copy(const SiteFile& file) {
    const QString& source = IsCopied(file) ? file.tag : file.path;
    if (!Files::MayBeThere(source) || (!IsCopied(file) && m_sources.Has(source))) return;
    const QString target = IsCopied(file) ? TargetOf(file, m_root, m_destination) : QString();
    if (target.isEmpty() || m_sources.HasAnother(target, source) || m_copies.Holds(target, source)) {
        m_result.missed.append(source);
        return;
    }
    if (const QString parent = Global::ParentPath(target); parent != m_folder) {
        FileManagement::MakeFullDirectory(m_folder = parent);
    }
    const Files::CopyResult copied = Files::CopyWithTimes(source, target, m_listener.goOn);
    if (copied == Files::CopyResult::Failed) m_result.missed.append(source);
    if (copied == Files::CopyResult::Copied) m_copies.Add(target, source);
    if (copied == Files::CopyResult::Stopped) m_result.stopped = true;
}

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
    return Copying(root, destination, listener).Run(files);
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
