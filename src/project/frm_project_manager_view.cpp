// SPDX-License-Identifier: MIT
// How the project window looks and where it stands.
#include "documents/frm_code.h"
#include "platform/files.h"
#include "platform/icons.h"
#include "platform/literals.h"
#include "platform/twips.h"
#include "project/file_list_model.h"
#include "project/frm_project_manager.h"
#include "state/global.h"
#include "state/neighbours.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLayout>
#include <QMenu>
#include <QMouseEvent>
#include <QStyle>
#include <QStyleOptionTitleBar>
#include <QToolBar>
#include <QToolButton>
#include <QTreeView>
#include <algorithm>

namespace {

// All in twips.
constexpr int GreatestWidth = 9000;
constexpr int DividerHeight = 60;
constexpr int DividerMargin = 2000; // least room above and below the divider

constexpr int ButtonMargin = 8; // pixels by which a button is wider than its icon

} // namespace

void Frm_ProjectManager::BuildToolBar() {
    Tlb_Navigation->setObjectName(u"Tlb_Navigation"_s);
    Tlb_Navigation->setContextMenuPolicy(Qt::PreventContextMenu);
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize);
    Tlb_Navigation->setIconSize({size, size});
    const auto add = [this](QStringView key, const QString& text, QStringView icon,
                            void (Frm_ProjectManager::*routine)()) {
        QAction* action = Tlb_Navigation->addAction(Icons::Named(icon), text);
        action->setObjectName(u"Tlb_Navigation_"_s + key);
        connect(action, &QAction::triggered, this, [this, routine] { Later(routine); });
        QWidget* button = Tlb_Navigation->widgetForAction(action);
        button->setObjectName(QString(action->objectName() + u"_Button"));
        button->setFocusPolicy(Qt::TabFocus);
        return action;
    };
    m_back = add(u"Back", u"Zurück"_s, u"back", &Frm_ProjectManager::Back_Click);
    m_openFile = add(u"Open", u"Öffnen"_s, u"open_file", &Frm_ProjectManager::Open_Click);
    m_delete = add(u"Delete", u"Löschen"_s, u"trash", &Frm_ProjectManager::Delete_Click);
    m_goTo = add(u"GoTo", u"Gehe zu"_s, u"go_to", &Frm_ProjectManager::GoTo_Click);
    m_new = add(u"New", u"Neue XHTML-Seite"_s, u"new_xhtml", &Frm_ProjectManager::New_Click);
    // All five fit into the window's first width.
    Tlb_Navigation->setContentsMargins(0, 0, 0, 0);
    Tlb_Navigation->layout()->setContentsMargins(1, 1, 1, 1);
    Tlb_Navigation->layout()->setSpacing(0);
    for (QAction* action : {m_back, m_openFile, m_delete, m_goTo}) {
        Tlb_Navigation->widgetForAction(action)->setFixedWidth(size + ButtonMargin);
    }
    const int arrow = style()->pixelMetric(QStyle::PM_MenuButtonIndicator);
    Tlb_Navigation->widgetForAction(m_new)->setFixedWidth(size + ButtonMargin + arrow);
}

void Frm_ProjectManager::BuildNewButtonMenu() {
    const struct {
        QStringView key, text, icon;
    } entries[] = {{u"XHTML", u"XHTML-Seite", u"new_xhtml"},
                   {u"HTML", u"HTML-Seite", u"new_html"},
                   {u"WAP", u"WAP-Seite", u"new_wml"},
                   {u"Text", u"Textdatei", u"new_text"},
                   {u"Line1", u"-", {}},
                   {u"InsertFile", u"Projektdatei einfügen", u"add"}};
    auto* button = qobject_cast<QToolButton*>(Tlb_Navigation->widgetForAction(m_new));
    auto* menu = new QMenu(button);
    for (const auto& entry : entries) {
        QAction* action = entry.text == u"-"
                              ? menu->addSeparator()
                              : menu->addAction(Icons::Named(entry.icon), entry.text.toString());
        const QString key = entry.key.toString();
        action->setObjectName(QString(u"Tlb_Navigation_New_"_s + key));
        connect(action, &QAction::triggered, this, [this, key] {
            m_newKind = key;
            Later(&Frm_ProjectManager::NewMenu_Click);
        });
    }
    button->setMenu(menu);
    button->setPopupMode(QToolButton::MenuButtonPopup);
}

QTreeView* Frm_ProjectManager::MakeList(const QString& name, FileListModel* model,
                                        std::initializer_list<int> characters) {
    auto* list = new QTreeView(this);
    list->setObjectName(name);
    list->setModel(model);
    list->setRootIsDecorated(false);
    list->setItemsExpandable(false);
    list->setUniformRowHeights(true); // thousands of rows
    list->setAllColumnsShowFocus(true);
    list->setSelectionMode(QAbstractItemView::SingleSelection);
    list->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    list->header()->setStretchLastSection(true);
    int column = 0;
    for (const int count : characters) {
        list->setColumnWidth(column++, count * list->fontMetrics().averageCharWidth());
    }
    list->installEventFilter(this);
    return list;
}

void Frm_ProjectManager::BuildLists() {
    Lvw_Files = MakeList(u"Lvw_Files"_s, m_files, {22, 24, 24, 32, 24, 12});
    Lvw_Files->setAccessibleName(u"Erreichbare Dateien"_s);
    Lvw_ExtendedFiles = MakeList(u"Lvw_ExtendedFiles"_s, m_extendedFiles, {22, 32, 12});
    Lvw_ExtendedFiles->setAccessibleName(u"Weitere Projektdateien"_s);
    const auto connectList = [this](QTreeView* list, List which, void (Frm_ProjectManager::*doubleClick)()) {
        connect(list, &QTreeView::clicked, this,
                [this, which](const QModelIndex& index) { Select(which, index.row()); });
        connect(list->selectionModel(), &QItemSelectionModel::selectionChanged, this,
                [this, which](const QItemSelection& selected) {
                    if (!selected.isEmpty()) Select(which, selected.indexes().constFirst().row());
                });
        connect(list, &QTreeView::doubleClicked, this, [this, doubleClick] { Later(doubleClick); });
    };
    connectList(Lvw_Files, List::Files, &Frm_ProjectManager::Lvw_Files_DblClick);
    connectList(Lvw_ExtendedFiles, List::ExtendedFiles, &Frm_ProjectManager::Lvw_ExtendedFiles_DblClick);
    Pic_Resize = new QWidget(this);
    Pic_Resize->setObjectName(u"Pic_Resize"_s);
    Pic_Resize->setCursor(Qt::SplitVCursor);
    Pic_Resize->setAutoFillBackground(true);
    Pic_Resize->installEventFilter(this);
}

void Frm_ProjectManager::ShowSkin() {
    if (!Global::SkinFileExists) return;
    const QPixmap picture(Files::ToSystem(Files::ProgramFile(u"skin.bmp"_s)));
    if (picture.isNull()) return;
    for (QTreeView* list : {Lvw_Files, Lvw_ExtendedFiles}) {
        QPalette colors = list->palette();
        colors.setBrush(QPalette::Base, picture);
        list->setPalette(colors);
    }
}

// --- place
// ---------------------------------------------------------------------------------------------------

void Frm_ProjectManager::DockFrame() {
    // It stays at its edge: there is nothing to maximise or to minimise.
    if (Frame() != this) {
        Frame()->setWindowFlags(Qt::SubWindow | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint);
    }
    Frame()->setMinimumWidth(Twips::ToPixels(FirstWidth));
    Frame()->setMaximumWidth(Twips::ToPixels(GreatestWidth));
}

// The title of a narrow window has no room for the caption of a scan. Its last words, which say that one
// runs, are shown then rather than its beginning.
void Frm_ProjectManager::ShowScanCaption() {
    if (ScanFinished || Frame() == this) return;
    constexpr int Border = 4; // pixels that the frame keeps beside its title
    QStyleOptionTitleBar bar;
    bar.initFrom(Frame());
    bar.titleBarFlags = Frame()->windowFlags();
    bar.subControls = QStyle::SC_All;
    bar.text = windowTitle();
    bar.rect = {Border, Border, Frame()->width() - 2 * Border,
                Frame()->style()->pixelMetric(QStyle::PM_TitleBarHeight, &bar, Frame())};
    const QRect room =
        Frame()->style()->subControlRect(QStyle::CC_TitleBar, &bar, QStyle::SC_TitleBarLabel, Frame());
    const QFontMetrics metrics(QApplication::font("QMdiSubWindowTitleBar"));
    QString shown = windowTitle();
    while (shown.contains(u' ') && metrics.horizontalAdvance(shown) > room.width()) {
        shown.remove(0, shown.indexOf(u' ') + 1);
    }
    Frame()->setWindowTitle(shown);
}

void Frm_ProjectManager::GiveRoom() {
    if (Global::CodeWindowOpen) Shared<Frm_Code>().ActualizeSize();
    if (Global::BrowserOpen) Neighbours::LayoutBrowser();
}

void Frm_ProjectManager::ActualizeSize(bool keepOthers) {
    if (m_fitting) return;
    const Neighbours::Size main = Neighbours::MainSize();
    if (main.width != 0) {
        const int debugger = Global::DebuggerOpen ? Neighbours::DebuggerHeight() : 0;
        // Half a pixel more, and the area would call up its scroll bars.
        const int below = debugger > 0 ? debugger + 1368 : 1365;
        m_fitting = true;
        SetPlace(0, 0, std::clamp(Width(), FirstWidth, GreatestWidth), std::max(0, main.height - below));
        m_fitting = false;
    }
    LayOut();
    if (!keepOthers) GiveRoom();
}

void Frm_ProjectManager::LayOut() {
    const int bar = Tlb_Navigation->sizeHint().height();
    Tlb_Navigation->setGeometry(0, 0, width(), bar);
    // The formulas take title and tool bar to be 710 twips high; the lists share what these really leave.
    const double room = std::max(0.0, Twips::FromPixels(height() - bar) / 100.0);
    const int top = bar + Twips::ToPixels(room * static_cast<double>(SplitPercent));
    Lvw_Files->setGeometry(0, bar, width(), top - bar);
    Lvw_ExtendedFiles->setGeometry(0, top, width(), std::max(0, height() - top));
    Pic_Resize->setGeometry(0, top - 1, width(), Twips::ToPixels(DividerHeight));
    Pic_Resize->raise();
}

// `pointer`: how far below the divider's top the mouse is, in twips.
void Frm_ProjectManager::MoveDivider(double pointer) {
    const double top = static_cast<double>(SplitLastTop) + pointer;
    if (top > DividerMargin && top < Height() - DividerMargin) {
        SplitPercent = static_cast<float>(100.0 / Height() * top);
        ActualizeSize(true);
    }
    SplitLastTop = static_cast<float>(Twips::FromPixels(Pic_Resize->y()));
}

void Frm_ProjectManager::resizeEvent(QResizeEvent* event) {
    MdiChild::resizeEvent(event);
    LayOut();
    ShowScanCaption();
}

void Frm_ProjectManager::PlaceChanged(int state) {
    if (m_fitting) return;
    if (state != 0) SetNormalState();
    if (m_open) ActualizeSize(false);
}

// --- keys and mouse
// --------------------------------------------------------------------------------------------

bool Frm_ProjectManager::HandleListKey(List list, QEvent* event) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    const bool open = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (!open && key != Qt::Key_Delete) return false;
    event->accept();
    if (event->type() == QEvent::ShortcutOverride) return true; // the key means the list, not the code
    // It means the row selected in this list, never the one that was chosen in the other.
    const bool files = list == List::Files;
    if (list != SelectedList || !(files ? Lvw_Files : Lvw_ExtendedFiles)->selectionModel()->hasSelection()) {
        return true;
    }
    if (!open) {
        m_delete->trigger();
    } else {
        Later(files ? &Frm_ProjectManager::Lvw_Files_DblClick
                    : &Frm_ProjectManager::Lvw_ExtendedFiles_DblClick);
    }
    return true;
}

bool Frm_ProjectManager::eventFilter(QObject* watched, QEvent* event) {
    const QEvent::Type type = event->type();
    if (watched == Lvw_Files || watched == Lvw_ExtendedFiles) {
        const bool key = type == QEvent::KeyPress || type == QEvent::ShortcutOverride;
        return key && HandleListKey(watched == Lvw_Files ? List::Files : List::ExtendedFiles, event);
    }
    if (watched == Pic_Resize) {
        if (type == QEvent::MouseButtonPress)
            SplitLastTop = static_cast<float>(Twips::FromPixels(Pic_Resize->y()));
        if (type != QEvent::MouseMove) return false;
        const auto* mouse = static_cast<QMouseEvent*>(event);
        if (mouse->buttons() & Qt::LeftButton) MoveDivider(Twips::FromPixels(mouse->position().y()));
        return true;
    }
    const bool handled = MdiChild::eventFilter(watched, event);
    // Whoever pulls the window away by its title finds it back at its edge.
    if (watched == Frame() && type == QEvent::Move && !m_fitting && m_open) {
        QMetaObject::invokeMethod(
            this,
            [this] {
                if (m_open) ActualizeSize(true);
            },
            Qt::QueuedConnection);
    }
    return handled;
}
