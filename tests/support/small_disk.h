// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QTemporaryDir>

// A file system of 64 KB in memory, as long as this lives. Only root may mount one.
class SmallDisk {
public:
    SmallDisk();
    ~SmallDisk();
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

    bool Mounted() const { return m_mounted; }
    QString Path() const; // in the program's form
    // Takes all room but `rest` bytes (whole pages of 4 KB); Empty() gives it back.
    void Fill(qint64 rest) const;
    // Leaves no room for one more file, however small.
    void TakeInodes() const;
    void Empty() const;

private:
    QTemporaryDir m_folder;
    bool m_mounted = false;
};
