// SPDX-License-Identifier: MIT
// The files that the user adds to a project by hand, and the project file that keeps them: one full path a
// line, beside the index page.
#pragma once

#include <QString>
#include <QStringList>
#include <vector>

// A row of the list of added files.
struct ExtendedFileRow {
    QString name;
    QString folder;
    QString type; // short extension, lower case; the list's sort key
    QString path; // tag and tool tip
    QString icon;
};

class ProjectFile {
public:
    static constexpr qsizetype Capacity = 1024;

    // The project file of an index page. Its two dots ("index..prj") are meant: existing projects bear that
    // name.
    static QString PathFor(const QString& indexFile);

    // Replaces the entries by those of the project file `path`; by none when it cannot be opened. Throws
    // RuntimeError for a file of more than 1024 lines. It is then as if there were none, so that a later Save
    // does not cut it short.
    void Load(const QString& path);
    // Rewrites the project file with the entries that are left; returns whether it worked. Without any entry,
    // removed ones included, it is left alone, and true.
    bool Save(const QString& path) const;
    void Clear() { m_files.clear(); }

    // Throws RuntimeError when there are 1024 entries already, removed ones included. The same file may be
    // added twice.
    void Add(const QString& file);
    // Removes the first entry that equals `file` in any case; its place stays taken.
    void Remove(const QString& file);

    // Entries in use, removed ones included.
    qsizetype Count() const { return m_files.size(); }
    // One for each entry that was not removed, in their order.
    std::vector<ExtendedFileRow> Rows() const;

private:
    QStringList m_files; // an empty one is a removed one
};
