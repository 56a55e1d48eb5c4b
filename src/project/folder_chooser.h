// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QAction;
class QComboBox;
class QFileSystemModel;
class QLabel;
class QTreeView;

// Chooses a folder of the file system: the tree of all folders, the list of the mounted volumes, and a button
// that makes a new folder.
class FolderChooser : public QWidget {
    Q_OBJECT

public:
    explicit FolderChooser(const QString& caption);

    // Full path in the program's form.
    QString Path() const;
    void SetPath(const QString& path);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void FillDrives();
    void ShowPath();
    void MakeNewFolder();
    void Follow();
    void FollowUntilTouched();

    QFileSystemModel* const m_folders;
    QTreeView* const Dir_FolderList;
    QComboBox* const Drv_Drive;
    QLabel* const Lbl_Path;
    bool m_follows = false; // the chosen folder is kept in sight
};
