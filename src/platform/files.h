// SPDX-License-Identifier: MIT
// The one door to the disk. Inside the program a path uses "\" as its separator on every system; here it is
// turned into the system's form on the way out and back on the way in.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <optional>

namespace Files {

// `path` in the form of the system, as labels, dialogs and the disk have it.
QString ToSystem(const QString& path);
// A path of the system in the program's form.
QString FromSystem(const QString& path);
// Whether `path` is a full local path: a drive letter and ":", or a "\" at its start where there are no
// drives.
bool IsFullPath(const QString& path);
// `path` made full, counted from the current directory.
QString MakeFull(const QString& path);
// The place on disk that `path` ends at, links and ".." steps followed; empty where there is nothing.
QString Canonical(const QString& path);

// The file that a chain of symbolic links ends in, both paths in the system's form; `system` itself where it
// is no link or the chain has no end.
QString LinkTarget(QString system);

enum class ReadError { None, FileNotFound, PathNotFound, Other };
// The bytes of a file. On failure nothing, and `error` (if given) says why: the file is missing in an
// existing folder, its folder is missing, or anything else (a folder, no rights, too large).
std::optional<QByteArray> Read(const QString& path, ReadError* error = nullptr);
// The text of one of the program's own files, which are Windows-1252, or UTF-8 where a mark says so; nothing
// on failure.
std::optional<QString> ReadProgramText(const QString& path);
// Writes such a file: in UTF-8 with a mark where its text or its bytes need it. Otherwise as Write().
bool WriteProgramText(const QString& path, const QString& text);
// Replaces a file by way of a temporary one and a rename. Written means on the disk: it counts as written
// only when its last byte has been flushed without an error; until then the old file is whole under its name.
// Keeps the permissions of an existing file and writes through a symbolic link to its target. Returns whether
// it worked.
bool Write(const QString& path, const QByteArray& bytes);

// Whether the file can be opened for reading; false for a folder.
bool CanRead(const QString& path);
bool FolderExists(const QString& path);
bool Copy(const QString& from, const QString& to);   // replaces `to`
bool Rename(const QString& from, const QString& to); // replaces `to`
bool Remove(const QString& path);
bool MakeFolder(const QString& path);   // with its parents
bool RemoveFolder(const QString& path); // with its contents
// Moves a file or folder to the trash; where there is none, removes it outright. Returns whether it is gone.
bool MoveToTrash(const QString& path);
// The same where nothing may be lost: without a trash nothing happens, and it returns false.
bool MoveToTrashOnly(const QString& path);
// Names (without path) of the files in `folder` that match one of `patterns` ("temp.*").
QStringList List(const QString& folder, const QStringList& patterns);
std::optional<qint64> SizeOf(const QString& path);

// The folder that the program writes into and finds its files in, without a separator at its end: the
// executable's own while that is writable, otherwise the user's application data folder.
QString ProgramDirectory();
// Full path of the program's file `name` ("edit.ini", "support\index.htm"): in ProgramDirectory(), or, where
// it is not there, in the data folder of a read-only installation.
QString ProgramFile(const QString& name);
// Replaces both folders (tests, and installations with a data folder elsewhere). Empty texts restore the
// default.
void SetProgramDirectory(const QString& writable, const QString& readOnly = {});

// Splits a file's text into lines: CR LF, LF and CR each end one, and a last line without an end counts.
QStringList Lines(const QString& text);

} // namespace Files
