// SPDX-License-Identifier: MIT
#include "project/project_file.h"

#include "documents/paths.h"
#include "platform/code_page.h"
#include "platform/files.h"
#include "platform/text.h"
#include "project/file_management.h"

#include <array>
#include <utility>

namespace {

QString IconOf(const QString& path) {
    constexpr std::array<std::pair<QStringView, QStringView>, 9> icons{{{u".HTM", u"HTMLFile"},
                                                                        {u".WML", u"WMLFile"},
                                                                        {u".CSS", u"CSS"},
                                                                        {u".VBS", u"VBS"},
                                                                        {u".JS", u"JS"},
                                                                        {u".JPG", u"Image"},
                                                                        {u".GIF", u"Image"},
                                                                        {u".PNG", u"Image"},
                                                                        {u".WBMP", u"Image"}}};
    const QString upper = Text::UpperCase(path);
    for (const auto& [part, icon] : icons) {
        if (upper.contains(part)) return icon.toString();
    }
    return u"UserDef2"_s;
}

} // namespace

QString ProjectFile::PathFor(const QString& indexFile) {
    const QString folder = indexFile.first(indexFile.lastIndexOf(u'\\') + 1);
    return folder + Global::StripExtension(Global::FileNameOf(indexFile)) + u".prj"_s;
}

void ProjectFile::Load(const QString& path) {
    m_files.clear();
    const auto bytes = Files::Read(path);
    if (!bytes) return;
    QStringList lines = Files::Lines(CodePage::Decode(*bytes).text);
    if (lines.size() > Capacity) throw RuntimeError("the project file has more than 1024 lines");
    for (QString& line : lines) line = Files::FromSystem(line);
    m_files = std::move(lines);
}

bool ProjectFile::Save(const QString& path) const {
    if (m_files.isEmpty()) return true;
    QString text;
    for (const QString& file : m_files) {
        if (!file.isEmpty()) text.append(Files::ToSystem(file)).append(Text::LineBreak);
    }
    CodePage::Format format; // names beyond the code page turn it into UTF-8
    return Files::Write(path, CodePage::Encode(text, format));
}

void ProjectFile::Add(const QString& file) {
    if (m_files.size() >= Capacity) throw RuntimeError("the project has 1024 files already");
    m_files.append(file);
}

void ProjectFile::Remove(const QString& file) {
    for (QString& entry : m_files) {
        if (!Text::EqualIgnoringCase(entry, file)) continue;
        entry.clear();
        return;
    }
}

std::vector<ExtendedFileRow> ProjectFile::Rows() const {
    std::vector<ExtendedFileRow> rows;
    for (const QString& file : m_files) {
        if (file.isEmpty()) continue;
        rows.push_back({Global::FileNameOf(file), Global::ParentPath(file),
                        Text::LowerCase(FileManagement::ShortExtensionOf(file)), file, IconOf(file)});
    }
    return rows;
}
