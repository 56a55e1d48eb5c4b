// SPDX-License-Identifier: MIT
#include "project/site_copy.h"

#include "documents/paths.h"
#include "platform/file_copy.h"
#include "platform/files.h"
#include "platform/literals.h"
#include "project/file_management.h"

#include <QSet>
#include <algorithm>

namespace SiteCopy {

namespace {

bool IsCopied(const SiteFile& file) { return file.tag != u"Error"; }

// The places on the disk of the files that are copied: none of them may be overwritten by another one.
class Sources {
public:
    explicit Sources(const std::vector<SiteFile>& files) {
        for (const SiteFile& file : files) {
            if (IsCopied(file)) m_places.insert(Files::Canonical(file.tag));
        }
        m_places.remove({});
    }
    bool HasAnother(const QString& target, const QString& source) const {
        const QString place = Files::Canonical(target);
        return !place.isEmpty() && m_places.contains(place) && place != Files::Canonical(source);
    }

private:
    QSet<QString> m_places;
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
    QString folder; // made last
    for (size_t i = 0; i < files.size(); ++i) {
        if (listener.copying) listener.copying(static_cast<qsizetype>(i) + 1);
        const SiteFile& file = files[i];
        const QString& source = IsCopied(file) ? file.tag : file.path;
        if (!Files::SizeOf(source)) continue;
        const QString target = IsCopied(file) ? TargetOf(file, root, destination) : QString();
        if (target.isEmpty() || sources.HasAnother(target, source)) {
            result.missed.append(source);
            continue;
        }
        if (const QString parent = Global::ParentPath(target); parent != folder) {
            FileManagement::MakeFullDirectory(folder = parent);
        }
        const Files::CopyResult copied = Files::CopyWithTimes(source, target, listener.goOn);
        if (copied == Files::CopyResult::Failed) result.missed.append(source);
        if (copied == Files::CopyResult::Stopped || (listener.goOn && !listener.goOn())) {
            result.stopped = true;
            return result;
        }
    }
    result.onDisk = Files::FlushDisk(destination);
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
