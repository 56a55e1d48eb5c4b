// SPDX-License-Identifier: MIT
// How the library's window looks, and what it shows.
#include "clips/frm_pab.h"

#include "clips/clip_folder.h"
#include "clips/clip_root.h"
#include "clips/clip_sheet.h"
#include "clips/clip_view.h"
#include "documents/paths.h"
#include "platform/icons.h"
#include "platform/literals.h"
#include "platform/mdi_child.h"
#include "state/global.h"
#include "state/neighbours.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QScrollBar>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>
#include <QWheelEvent>

namespace {
constexpr int SheetHeight = 340; // four rows, which are not scrolled
constexpr int FolderWidth = 160;
constexpr int WheelStep = 120; // eighths of a degree
} // namespace

Frm_PAB::Frm_PAB() : QDialog(MdiChild::HostWindow()) {
    setObjectName(u"Frm_PAB"_s);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setWindowFlag(Qt::WindowMinMaxButtonsHint);
    BuildToolBar();
    BuildLists();
    BuildStatusBar();
    resize(minimumSizeHint().expandedTo({730, 500}));
}

void Frm_PAB::BuildToolBar() {
    ToolBar = new QToolBar(this);
    ToolBar->setObjectName(u"ToolBar"_s);
    ToolBar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    ToolBar->setIconSize({16, 16});
    const auto add = [this](QStringView key, const QString& text, QStringView icon, auto press) {
        QAction* action = ToolBar->addAction(Icons::Named(icon), text);
        action->setObjectName(u"ToolBar_"_s + key);
        connect(action, &QAction::triggered, this, press);
        QWidget* button = ToolBar->widgetForAction(action);
        button->setObjectName(QString(action->objectName() + u"_Button"));
        button->setFocusPolicy(Qt::TabFocus);
        return action;
    };
    const auto addMenu = [this](QAction* action) {
        auto* button = qobject_cast<QToolButton*>(ToolBar->widgetForAction(action));
        auto* menu = new QMenu(button);
        button->setMenu(menu);
        button->installEventFilter(this);
        button->setPopupMode(QToolButton::MenuButtonPopup);
        connect(menu, &QMenu::aboutToShow, this, &Frm_PAB::ActivateButtons);
        return menu;
    };
    const auto addEntry = [this](QMenu* menu, const QString& name, QStringView icon, const QString& text,
                                 auto press) {
        QAction* action = menu->addAction(Icons::Named(icon), text);
        action->setObjectName(name);
        connect(action, &QAction::triggered, this, press);
        return action;
    };

    QMenu* file = addMenu(add(u"File", u"Datei"_s, u"file", &Frm_PAB::ImportClipFile));
    addEntry(file, u"ToolBar_File_NewFile"_s, u"picture_import", u"Neue &Datei"_s, &Frm_PAB::ImportClipFile);
    addEntry(file, u"ToolBar_File_NewFolder"_s, u"folder_new", u"Neuer &Ordner"_s,
             &Frm_PAB::CreateClipFolder);
    file->addSeparator()->setObjectName(u"ToolBar_File_Line1"_s);
    m_killFile =
        addEntry(file, u"ToolBar_File_KillFile"_s, u"trash", u"Da&tei entfernen"_s, &Frm_PAB::KillFile);
    m_killFolder =
        addEntry(file, u"ToolBar_File_KillFolder"_s, u"delete", u"Ord&ner entfernen"_s, &Frm_PAB::KillFolder);
    file->addSeparator()->setObjectName(u"ToolBar_File_Line2"_s);
    addEntry(file, u"ToolBar_File_Exit"_s, u"exit", u"&Beenden"_s, &Frm_PAB::reject);
    ToolBar->addSeparator();
    add(u"MainPage", u"Hauptseite"_s, u"home", [this] {
        ListClipFolders();
        ShowFolderClips({});
    })->setToolTip(u"Haupseite"_s); // spelt so
    ToolBar->addSeparator();
    m_view = add(u"View", u"Vorschau"_s, u"picture", &Frm_PAB::View);
    ToolBar->addSeparator();
    m_import = add(u"Import", u"Einfügen"_s, u"picture_insert",
                   [this] { InsertClip(SelectedClip, Mode::FileName); });
    QMenu* import = addMenu(m_import);
    addEntry(import, u"ToolBar_Import_FileName"_s, u"file_name", u"Dateiname"_s,
             [this] { InsertClip(SelectedClip, Mode::FileName); });
    addEntry(import, u"ToolBar_Import_ImgTag"_s, u"picture", u"Image-Tag"_s,
             [this] { InsertClip(SelectedClip, Mode::ImgTag); });
}

void Frm_PAB::BuildLists() {
    Lvw_Folders = new QListWidget;
    Lvw_Folders->setObjectName(u"Lvw_Folders"_s);
    Lvw_Folders->setAccessibleName(u"Ordner"_s);
    Lvw_Folders->setMinimumWidth(FolderWidth);
    Lvw_Folders->setUniformItemSizes(true);
    connect(Lvw_Folders, &QListWidget::itemSelectionChanged, this, &Frm_PAB::SelectFolder);
    connect(Lvw_Folders, &QListWidget::itemActivated, this, [this](QListWidgetItem* row) {
        row->setSelected(true); // by the keys a row can be current alone
        ShowFolderClips(SelectedFolder);
    });

    Pic_ShowGraphics = new QWidget;
    Pic_ShowGraphics->setObjectName(u"Pic_ShowGraphics"_s);
    Pic_ShowGraphics->setFixedWidth(ClipSheet::Width);
    Pic_ShowGraphics->setMinimumHeight(SheetHeight);
    Pic_ShowGraphics->setBackgroundRole(QPalette::Base);
    Pic_ShowGraphics->setAutoFillBackground(true);
    Pic_ShowGraphics->installEventFilter(this);
    Pic_ViewScreen = new ClipView(Pic_ShowGraphics);
    Pic_ViewScreen->setObjectName(u"Pic_ViewScreen"_s);
    Scr_ScrollGraphics = new QScrollBar(Qt::Vertical);
    Scr_ScrollGraphics->setObjectName(u"Scr_ScrollGraphics"_s);
    connect(Scr_ScrollGraphics, &QScrollBar::valueChanged, this, &Frm_PAB::Scroll);
    connect(Pic_ViewScreen, &ClipView::ChosenChanged, this, &Frm_PAB::ShowChosen);
    connect(Pic_ViewScreen, &ClipView::Filled, this, &Frm_PAB::ShowProgress);
    connect(Pic_ViewScreen, &ClipView::SizeKnown, this, [this](qsizetype index) {
        if (index == Pic_ViewScreen->Chosen()) ShowSizes();
    });
    connect(Pic_ViewScreen, &ClipView::PreviewWanted, this, &Frm_PAB::View);
    connect(Pic_ViewScreen, &ClipView::RemovalWanted, this, &Frm_PAB::KillFile);

    auto* border = new QFrame; // that of a list
    border->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    auto* scrolled = new QHBoxLayout(border);
    scrolled->setContentsMargins({});
    scrolled->setSpacing(0);
    scrolled->addWidget(Pic_ShowGraphics);
    scrolled->addWidget(Scr_ScrollGraphics);
    auto* middle = new QHBoxLayout;
    middle->setSpacing(4);
    middle->addWidget(Lvw_Folders, 1);
    middle->addWidget(border);
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(4, 0, 4, 0);
    all->setSpacing(2);
    all->addWidget(ToolBar);
    all->addLayout(middle, 1);
}

void Frm_PAB::BuildStatusBar() {
    auto* bar = new QStatusBar;
    bar->setObjectName(u"StatusBar_PAB"_s);
    bar->setSizeGripEnabled(false);
    for (const int characters : {0, 8, 8, 6}) {
        auto* panel = new QLabel;
        m_panels.append(panel);
        panel->setObjectName(u"StatusBar_PAB_Panel_"_s + QString::number(m_panels.size()));
        panel->setTextFormat(Qt::PlainText);
        panel->setIndent(6);
        panel->setMinimumWidth(characters * fontMetrics().averageCharWidth() * 3 / 2);
        if (characters == 0) panel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        bar->addWidget(panel, characters == 0 ? 1 : 0);
    }
    layout()->addWidget(bar);
}

void Frm_PAB::OnLoad() {
    if (Global::AssistantOpen) {
        Neighbours::RunAnimation(
            1,
            u"Mit PageArtBox können Sie Bilder und Grafiken in Ihre Web-Site einbauen. Wenn sie eine Datei "
            "markieren und auf 'Einfügen' klicken können Sie einen Dateinamen mit einem relativen Path "
            "oder einen ganzen Image-Tag mit Attributen für die Größe in den HTML-Code eingefügt."_s);
    }
    Global::ClipWindowOpen = true;
    Locate();
    setWindowTitle(u"Sorvane PageArtBox"_s);
}

void Frm_PAB::OnUnload() {
    ClipWindowStarted = false;
    Global::ClipWindowOpen = false;
}

void Frm_PAB::Present() {
    show();
    raise();
    activateWindow();
}

void Frm_PAB::reject() {
    if (unloadSelf) unloadSelf();
}

void Frm_PAB::Locate() {
    ClipRoot = Clips::LocateClipRoot();
    ClipsMissing = ClipRoot == Clips::NoClips;
}

// Which buttons are open depends on the document, too, which may have been closed meanwhile.
bool Frm_PAB::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate || event->type() == QEvent::Show) {
        ActivateButtons();
        if (!std::exchange(ClipWindowStarted, true)) {
            ListClipFolders();
            ShowFolderClips({});
            Lvw_Folders->setFocus();
        }
    }
    return QDialog::event(event);
}

void Frm_PAB::ActivateButtons() {
    m_view->setEnabled(!SelectedClip.isEmpty());
    m_import->setEnabled(!SelectedClip.isEmpty() && Global::CodeWindowOpen);
    m_killFile->setEnabled(!SelectedClip.isEmpty());
    m_killFolder->setEnabled(!SelectedFolder.isEmpty());
}

void Frm_PAB::ListClipFolders() {
    Lvw_Folders->clear();
    if (!ClipsMissing) {
        for (const QString& name : Clips::FoldersOf(ClipRoot)) {
            new QListWidgetItem(Icons::Named(u"folder"), name, Lvw_Folders);
        }
    }
    SelectedFolder.clear();
    ActivateButtons();
}

void Frm_PAB::SelectFolder() {
    const QList<QListWidgetItem*> selected = Lvw_Folders->selectedItems();
    SelectedFolder = selected.isEmpty() ? QString() : selected.constFirst()->text();
    ActivateButtons();
}

void Frm_PAB::ShowFolderClips(const QString& folder) {
    SelectedClip.clear();
    ActivateButtons();
    for (int panel = 1; panel <= 4; ++panel) ShowPanel(panel, {});
    const QString path = Clips::PathIn(ClipRoot, folder);
    std::optional<QStringList> names;
    while (!ClipsMissing && !(names = Clips::FilesOf(path)) && Clips::AskForDisc()) {
    }
    Pic_ViewScreen->Show(path, names.value_or(QStringList()));
    const int lastRow = ClipSheet::LastRow(Pic_ViewScreen->Count());
    const bool scrolls = ClipSheet::Scrolls(lastRow);
    Scr_ScrollGraphics->setRange(0, scrolls ? lastRow : 0);
    Scr_ScrollGraphics->setPageStep(3);
    Scr_ScrollGraphics->setValue(0);
    Scr_ScrollGraphics->setEnabled(scrolls);
    Scroll(0);
}

void Frm_PAB::ShowPanel(int panel, const QString& text) { m_panels[panel - 1]->setText(text); }

// The panel belongs to the chosen picture as soon as there is one.
void Frm_PAB::ShowProgress(int percent) {
    if (!SelectedClip.isEmpty()) return;
    ShowPanel(1, Pic_ViewScreen->IsFilled() ? QString()
                                            : u"wird aktualisiert "_s + QString::number(percent) + u'%');
}

void Frm_PAB::ShowChosen() {
    SelectedClip = Pic_ViewScreen->PathOf(Pic_ViewScreen->Chosen());
    ShowPanel(1, Global::FileNameOf(SelectedClip));
    ShowSizes();
    ShowPanel(4, Global::ExtensionOf(SelectedClip).toUpper());
    ActivateButtons();
    BringChosenIntoSight();
}

void Frm_PAB::ShowSizes() {
    const QSize size = Pic_ViewScreen->SizeOf(Pic_ViewScreen->Chosen());
    ShowPanel(2, u"B: "_s + (size.isValid() ? QString::number(size.width()) : QString()));
    ShowPanel(3, u"H: "_s + (size.isValid() ? QString::number(size.height()) : QString()));
}

// --- scrolling
// -----------------------------------------------------------------------------------------------

void Frm_PAB::Scroll(int value) { Pic_ViewScreen->move(0, ClipSheet::TopAt(value)); }

void Frm_PAB::BringChosenIntoSight() {
    if (!Scr_ScrollGraphics->isEnabled()) return;
    Scr_ScrollGraphics->setValue(ClipSheet::ValueThatShows(
        Pic_ViewScreen->Chosen(), Scr_ScrollGraphics->value(), Pic_ShowGraphics->height()));
}

bool Frm_PAB::eventFilter(QObject* watched, QEvent* event) {
    if (watched == Pic_ShowGraphics && event->type() == QEvent::Wheel) {
        Wheel(static_cast<QWheelEvent*>(event)->angleDelta().y());
        return true;
    }
    auto* button = qobject_cast<QToolButton*>(watched);
    const bool down =
        event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Down;
    if (!button || !down) return QDialog::eventFilter(watched, event);
    button->showMenu(); // which the keys reach by nothing else
    return true;
}

// The wheel does not go on behind the last row, where the bar's steps lead.
void Frm_PAB::Wheel(int angle) {
    m_wheel += angle;
    const int steps = m_wheel / WheelStep;
    m_wheel -= steps * WheelStep;
    const int value = Scr_ScrollGraphics->value();
    const int last =
        ClipSheet::ValueThatShows(Pic_ViewScreen->Count() - 1, value, Pic_ShowGraphics->height());
    if (steps == 0 || !Scr_ScrollGraphics->isEnabled()) return;
    Scr_ScrollGraphics->setValue(std::min(value - steps, std::max(value, last)));
}
