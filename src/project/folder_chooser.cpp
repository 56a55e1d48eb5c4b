// SPDX-License-Identifier: MIT
#include "project/folder_chooser.h"

#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/icons.h"
#include "platform/literals.h"
#include "platform/volumes.h"

#include <QAbstractFileIconProvider>
#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QFileSystemModel>
#include <QLabel>
#include <QScrollBar>
#include <QStorageInfo>
#include <QToolBar>
#include <QTreeView>
#include <QVBoxLayout>

namespace {

// The program's own drawings; desktops without a theme have none.
class FolderIcons : public QAbstractFileIconProvider {
public:
    QIcon icon(IconType type) const override {
        return Icons::Named(type == Drive ? QStringView(u"drive") : QStringView(u"folder"));
    }
    QIcon icon(const QFileInfo& info) const override { return icon(info.isRoot() ? Drive : Folder); }
};

QAbstractFileIconProvider* SharedFolderIcons() {
    static FolderIcons icons; // the model keeps the address
    return &icons;
}

} // namespace

FolderChooser::FolderChooser(const QString& caption)
    : m_folders(new QFileSystemModel(this)), Dir_FolderList(new QTreeView), Drv_Drive(new QComboBox),
      Lbl_Path(new QLabel) {
    m_folders->setFilter(QDir::Dirs | QDir::Drives | QDir::NoDotAndDotDot);
    m_folders->setIconProvider(SharedFolderIcons());
    m_folders->setRootPath({});
    Dir_FolderList->setObjectName(u"Dir_FolderList"_s);
    Dir_FolderList->setAccessibleName(u"Ordner"_s);
    Dir_FolderList->setModel(m_folders);
    Dir_FolderList->setHeaderHidden(true);
    Dir_FolderList->setUniformRowHeights(true);
    for (int column = 1; column < m_folders->columnCount(); ++column) Dir_FolderList->hideColumn(column);
    Drv_Drive->setObjectName(u"Drv_Drive"_s);
    Drv_Drive->setAccessibleName(u"Laufwerk"_s);
    Drv_Drive->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    Drv_Drive->setMinimumContentsLength(12);
    FillDrives();
    Lbl_Path->setObjectName(u"Lbl_Path"_s);
    Lbl_Path->setTextFormat(Qt::PlainText);
    Lbl_Path->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    auto* label = new QLabel(caption);
    label->setObjectName(u"Label2_0"_s);
    label->setBuddy(Dir_FolderList);

    auto* toolBar = new QToolBar;
    toolBar->setObjectName(u"ToolBar"_s);
    auto* make = toolBar->addAction(Icons::Named(u"folder_new"), u"Neuer Ordner"_s, this,
                                    &FolderChooser::MakeNewFolder);
    make->setObjectName(u"ToolBar_NewFolder"_s);
    auto* top = new QHBoxLayout;
    top->addWidget(label);
    top->addWidget(Lbl_Path, 1);
    auto* drives = new QHBoxLayout;
    drives->addWidget(Drv_Drive, 1);
    drives->addWidget(toolBar);
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins({});
    all->addLayout(top);
    all->addWidget(Dir_FolderList, 1);
    all->addLayout(drives);

    connect(Drv_Drive, &QComboBox::activated, this,
            [this] { SetPath(Files::FromSystem(Drv_Drive->currentData().toString())); });
    connect(Dir_FolderList->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &FolderChooser::ShowPath);
    FollowUntilTouched();
}

// The folders come in one after the other, are put in order later, and move the chosen one out of sight.
// Where the user has looked for another one meanwhile, the tree stays as it is.
void FolderChooser::FollowUntilTouched() {
    const auto leave = [this] { m_follows = false; };
    connect(m_folders, &QFileSystemModel::directoryLoaded, this, &FolderChooser::Follow);
    connect(m_folders, &QFileSystemModel::layoutChanged, this, &FolderChooser::Follow);
    connect(Dir_FolderList, &QTreeView::expanded, this, leave);
    connect(Dir_FolderList, &QTreeView::collapsed, this, leave);
    connect(Dir_FolderList, &QTreeView::pressed, this, leave);
    connect(Dir_FolderList->verticalScrollBar(), &QScrollBar::actionTriggered, this, leave);
}

void FolderChooser::Follow() {
    if (!m_follows) return;
    Dir_FolderList->scrollTo(Dir_FolderList->currentIndex());
    m_follows = true; // though that may have opened folders
}

void FolderChooser::FillDrives() {
    for (const QStorageInfo& volume : Volumes::Mounted()) {
        const QString root = volume.rootPath();
        const QString name = volume.name();
        Drv_Drive->addItem(Icons::Named(u"drive"), name.isEmpty() ? root : root + u" ["_s + name + u']',
                           root);
    }
}

QString FolderChooser::Path() const {
    return Files::FromSystem(m_folders->filePath(Dir_FolderList->currentIndex()));
}

void FolderChooser::SetPath(const QString& path) {
    const QModelIndex folder = m_folders->index(Files::ToSystem(path));
    Dir_FolderList->setCurrentIndex(folder);
    Dir_FolderList->expand(folder);
    m_follows = true;
    Follow();
}

void FolderChooser::ShowPath() {
    const QString path = Files::ToSystem(Path());
    Lbl_Path->setText(Lbl_Path->fontMetrics().elidedText(path, Qt::ElideMiddle, Lbl_Path->width()));
    Lbl_Path->setToolTip(path);
    const QString volume = QStorageInfo(path).rootPath();
    const int drive = Drv_Drive->findData(volume);
    if (drive >= 0) Drv_Drive->setCurrentIndex(drive);
}

void FolderChooser::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    layout()->activate();
    ShowPath();
}

void FolderChooser::MakeNewFolder() {
    const QString name = Dialogs::InputBox(u"Geben Sie einen Namen für den Ordner ein:"_s, u"Neuer Ordner"_s,
                                           u"Neuer Ordner"_s);
    if (name.isEmpty()) return;
    const QString parent = Path();
    const QString folder = parent.endsWith(u'\\') ? parent + name : parent + u'\\' + name;
    if (Files::MakeFolder(folder)) SetPath(folder);
}
