// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

// A temporary program directory with the shipped data files in it, and all shared state as before a start.
// Both are taken back when it goes.
class ProgramFolder {
public:
    enum class Content { Empty, Data };
    explicit ProgramFolder(Content content = Content::Data);
    ~ProgramFolder();
    ProgramFolder(const ProgramFolder&) = delete;
    ProgramFolder& operator=(const ProgramFolder&) = delete;

    // Path of `name` in the folder, in the program's form and in the system's.
    QString Path(const QString& name) const;
    QString System(const QString& name) const;
    // Writes and reads a file of the folder; its subfolders are made.
    QString Write(const QString& name, const QByteArray& bytes) const;
    QByteArray Read(const QString& name) const;
    bool Has(const QString& name) const;

private:
    QTemporaryDir m_folder;
};

// The sample site and other files of the source tree, system form.
QString SourceFile(const QString& name);
// Copies a folder of the source tree below `target` (system form).
void CopyFolder(const QString& source, const QString& target);
