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

// The entries belong to the one file that Load() has named, and only what came out of it whole goes back into
// it: a project file that could not be loaded is never written.
class ProjectFile {
public:
    static constexpr qsizetype Capacity = 1024;

    // The project file of an index page. Its two dots ("index..prj") are meant: existing projects bear that
    // name.
    static QString PathFor(const QString& indexFile);

    enum class State {
        Closed,     // no file: the entries are nowhere on disk
        Loaded,     // the entries are those of the file, or the file does not exist yet
        TooLong,    // it has more than 1024 lines
        Unreadable, // it is a folder, protected, or no text
    };
    // Replaces the entries by those of the project file `path`, by none where it does not exist or cannot be
    // loaded; returns the state behind it.
    State Load(const QString& path);
    // Forgets the entries and their file.
    void Close();
    State GetState() const { return m_state; }
    bool IsBroken() const { return m_state == State::TooLong || m_state == State::Unreadable; }
    // The file of the entries, also when it could not be loaded.
    const QString& Path() const { return m_path; }

    // Rewrites the file with the entries that are left; returns whether it worked. A file whose entries have
    // not changed is left alone, and true; so is that of no state but Loaded: true when closed, false when
    // broken.
    bool Save();

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
    QString m_path;
    State m_state = State::Closed;
    QStringList m_files; // an empty one is a removed one
    bool m_changed = false;
};
