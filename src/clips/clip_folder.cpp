// SPDX-License-Identifier: MIT
#include "clips/clip_folder.h"

#include "platform/file_copy.h"
#include "platform/files.h"
#include "platform/literals.h"

#include <QCollator>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>

namespace Clips {

namespace {

QStringList NamesIn(const QDir& folder, QDir::Filters kinds) {
    QStringList names = folder.entryList(kinds | QDir::NoDotAndDotDot, QDir::Unsorted);
    names.removeIf([](const QString& name) { return name.contains(u'\\'); }); // the program's separator
    QCollator order{QLocale(QLocale::German)};
    order.setNumericMode(true);
    order.setCaseSensitivity(Qt::CaseInsensitive);
    std::vector<std::pair<QCollatorSortKey, QString>> keyed;
    keyed.reserve(static_cast<size_t>(names.size()));
    for (const QString& name : names) keyed.emplace_back(order.sortKey(name), name);
    std::ranges::sort(keyed, [](const auto& a, const auto& b) {
        const int difference = a.first.compare(b.first);
        return difference != 0 ? difference < 0 : a.second < b.second;
    });
    names.clear();
    for (const auto& [key, name] : keyed) names << name;
    return names;
}

} // namespace

QString PathIn(const QString& folder, const QString& name) {
    if (name.isEmpty()) return folder;
    return folder.endsWith(u'\\') ? folder + name : folder + u'\\' + name;
}

QStringList FoldersOf(const QString& folder) { return NamesIn(QDir(Files::ToSystem(folder)), QDir::Dirs); }

std::optional<QStringList> FilesOf(const QString& folder) {
    const QDir directory(Files::ToSystem(folder));
    if (!directory.exists() || !directory.isReadable()) return std::nullopt;
    return NamesIn(directory, QDir::Files);
}

bool IsFolderName(const QString& name) {
    return !name.trimmed().isEmpty() && name != u"." && name != u".." && !name.contains(u'/') &&
           !name.contains(u'\\') && !name.contains(QChar(0));
}

bool CopyClip(const QString& from, const QString& to) {
    if (Files::CopyWithTimes(from, to) != Files::CopyResult::Copied) return false;
    QFile copy(Files::ToSystem(to));
    copy.setPermissions(copy.permissions() | QFile::WriteOwner);
    return true;
}

bool RemoveClipFolder(const QString& folder) {
    const QString system = Files::ToSystem(folder);
    if (QFileInfo(system).isSymLink()) return false;
    QDir directory(system);
    constexpr auto Folders = QDir::AllDirs | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    for (const QFileInfo& entry : directory.entryInfoList(Folders)) {
        if (!entry.isSymLink()) return false;
    }
    constexpr auto Everything = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    for (const QString& name : directory.entryList(Everything)) directory.remove(name);
    return QDir().rmdir(system);
}

} // namespace Clips
