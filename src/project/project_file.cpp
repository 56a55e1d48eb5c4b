// SPDX-License-Identifier: MIT
#include "project/project_file.h"

#include "documents/paths.h"
#include "platform/code_page.h"
#include "platform/files.h"
#include "platform/text.h"
#include "project/file_management.h"

#include <algorithm>
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

// Whether `text` can be a list of paths; a binary file bears control characters.
bool IsPlainText(const QString& text) {
    return std::all_of(text.begin(), text.end(),
                       [](QChar c) { return c >= u' ' || c == u'\r' || c == u'\n' || c == u'\t'; });
}

} // namespace

QString ProjectFile::PathFor(const QString& indexFile) {
    const QString folder = indexFile.first(indexFile.lastIndexOf(u'\\') + 1);
    return folder + Global::StripExtension(Global::FileNameOf(indexFile)) + u".prj"_s;
}

ProjectFile::State ProjectFile::Load(const QString& path) {
    Close();
    m_path = path;
    Files::ReadError error = Files::ReadError::None;
    const auto bytes = Files::Read(path, &error);
    if (!bytes) {
        const bool isNew = error == Files::ReadError::FileNotFound || error == Files::ReadError::PathNotFound;
        return m_state = isNew ? State::Loaded : State::Unreadable;
    }
    const QString text = CodePage::Decode(*bytes).text;
    if (!IsPlainText(text)) return m_state = State::Unreadable;
    QStringList lines = Files::Lines(text);
    if (lines.size() > Capacity) return m_state = State::TooLong;
    for (QString& line : lines) line = Files::FromSystem(line);
    m_files = std::move(lines);
    return m_state = State::Loaded;
}

void ProjectFile::Close() { *this = {}; }

bool ProjectFile::Save() {
    if (m_state != State::Loaded) return m_state == State::Closed;
    if (!m_changed) return true;
    QString text;
    for (const QString& file : m_files) {
        if (!file.isEmpty()) text.append(Files::ToSystem(file)).append(Text::LineBreak);
    }
    CodePage::Format format; // names beyond the code page turn it into UTF-8
    m_changed = !Files::Write(m_path, CodePage::Encode(text, format));
    return !m_changed;
}

void ProjectFile::Add(const QString& file) {
    if (m_files.size() >= Capacity) throw RuntimeError("the project has 1024 files already");
    m_files.append(file);
    m_changed = true;
}

void ProjectFile::Remove(const QString& file) {
    for (QString& entry : m_files) {
        if (!Text::EqualIgnoringCase(entry, file)) continue;
        entry.clear();
        m_changed = true;
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
