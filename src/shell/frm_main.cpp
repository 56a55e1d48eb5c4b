// SPDX-License-Identifier: MIT
#include "shell/frm_main.h"

#include "documents/document_commands.h"
#include "documents/frm_code.h"
#include "documents/undo.h"
#include "platform/files.h"
#include "platform/icons.h"
#include "platform/literals.h"
#include "platform/mdi_child.h"
#include "platform/twips.h"
#include "shell/main_menu.h"
#include "shell/status_bar.h"
#include "state/activation.h"
#include "state/commands.h"
#include "state/global.h"
#include "state/windows.h"

#include <QDragEnterEvent>
#include <QMdiArea>
#include <QMenu>
#include <QMimeData>
#include <QScreen>
#include <QTimer>
#include <QUrl>
#include <QWindow>

namespace {} // namespace

Frm_Main::Frm_Main() : m_statusBar(new StatusBar(this)), m_area(new QMdiArea(this)) {
    setObjectName(u"Frm_Main"_s);
    setWindowIcon(Icons::Named(u"sorvane"));
    setWindowTitle(Global::ProgramName);
    setAcceptDrops(true);
    m_area->setObjectName(u"MdiArea"_s);
    m_area->setActivationOrder(QMdiArea::ActivationHistoryOrder);
    m_area->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    m_area->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    m_area->setBackground(palette().brush(QPalette::Dark));
    m_area->viewport()->installEventFilter(this);
    setCentralWidget(m_area);
    setStatusBar(m_statusBar);
    MdiChild::SetHost(m_area);
    m_menu = new MainMenu(this, [this](const QString& name) { RunCommand(name); });
    m_menu->BuildMenus();
    m_menu->BuildToolBar();
    resize(1000, 700);
    setMinimumSize(320, 240); // on a small screen the frame's buttons matter more than the whole status bar
    WireNeighbours();
}

void Frm_Main::WireNeighbours() {
    using namespace Neighbours;
    ReadMainPlace.AnsweredBy([this] { return Place(); });
    MainSize.AnsweredBy([this] { return LayoutSize(); });
    Neighbours::ActivateFunktions.AnsweredBy([this] { ActivateFunktions(); });
    SetMainCaption.AnsweredBy([this](const QString& caption) {
        setWindowTitle(caption.isEmpty() ? Global::ProgramName : caption);
    });
    SetStatusPanel.AnsweredBy([this](int panel, const QString& text) { m_statusBar->SetPanel(panel, text); });
    Neighbours::AddMenuAttribute.AnsweredBy(
        [this](const QString& caption, const QString& tag) { AddMenuAttribute(caption, tag); });
    Neighbours::UnloadMenuAttributes.AnsweredBy([this] { UnloadMenuAttributes(); });
    Neighbours::PopupCodeMenu.AnsweredBy([this](int x, int y) { PopupCodeMenu(QPoint(x, y)); });
    ShowPleaseWait.AnsweredBy([this](bool show) { m_statusBar->ShowPleaseWait(show); });
    SetWorkProgress.AnsweredBy([this](int percent) { m_statusBar->SetWorkProgress(percent); });
    Neighbours::StartBrowser.AnsweredBy([this] { StartBrowser(); });
    Neighbours::StartWAPBrowser.AnsweredBy([this] { StartWAPBrowser(); });
    const auto codeMayShow = [] { return Loaded<Frm_Code>() || Global::HasTextDocument(); };
    // The window that comes back with its text has changed nothing.
    const auto bringBack = [this]() -> Frm_Code& {
        if (Loaded<Frm_Code>()) return Shared<Frm_Code>();
        const bool changed = Global::DocChanged;
        const QString state = m_statusBar->Panel(Neighbours::StatePanel);
        Frm_Code& code = Shared<Frm_Code>();
        Global::DocChanged = changed;
        m_statusBar->SetPanel(Neighbours::StatePanel, state);
        return code;
    };
    TheCodeBox.AnsweredBy([=]() -> CodeBox* { return codeMayShow() ? bringBack().TextBox : nullptr; });
    OpenCodeBox.AnsweredBy([]() -> CodeBox* { return Shared<Frm_Code>().TextBox; });
    FocusCode.AnsweredBy([=] {
        if (!codeMayShow()) return;
        bringBack().BringToFront();
        Shared<Frm_Code>().TextBox->SetFocus();
    });
    ShowCodeWindow.AnsweredBy([=] {
        if (codeMayShow()) bringBack().BringToFront();
    });
    Neighbours::ScriptBarShown.AnsweredBy(
        [] { return Loaded<Frm_Code>() && Shared<Frm_Code>().CodeTop() > 0; });
    CheckOnce.AnsweredBy([] {
        if (Loaded<Frm_Code>()) Shared<Frm_Code>().CheckOnce();
    });
    Neighbours::ActivateToolBar.AnsweredBy([] {
        if (Loaded<Frm_Code>()) Shared<Frm_Code>().ActivateToolBar();
    });
}

void Frm_Main::ActivateFunktions() {
    Activation::Snapshot state;
    state.hasFile = !Global::CurrentFile.isEmpty() && !Global::OpenFailed;
    state.projectWindowOpen = Global::ProjectWindowOpen;
    state.browserOpen = Global::BrowserOpen;
    state.docOpen = Global::HasDocument();
    state.codeWindowOpen = Global::CodeWindowOpen;
    state.undoTouched = !Undo::UndoTouched.isEmpty();
    const bool loaded = Loaded<Frm_Code>() && Global::CodeWindowOpen;
    state.scriptCommands = (loaded && Shared<Frm_Code>().CodeTop() > 0) || Global::DocType == u"JS" ||
                           Global::CurrentFile.endsWith(u".js", Qt::CaseInsensitive);
    state.hasSelection = loaded && Shared<Frm_Code>().TextBox->SelLength() > 0;
    Activation::Apply(Activation::Evaluate(state));
}

// --- place and size
// -------------------------------------------------------------------------------------------------

Neighbours::Size Frm_Main::LayoutSize() const {
    const QSize client = m_area->viewport()->size();
    return {Twips::FromPixels(client.width()) + 180, Twips::FromPixels(client.height()) + 1370};
}

Neighbours::MainPlace Frm_Main::Place() const {
    Neighbours::MainPlace place;
    const QRect outer = frameGeometry();
    place.left = Twips::FromPixels(outer.x());
    place.top = Twips::FromPixels(outer.y());
    place.width = Twips::FromPixels(outer.width());
    place.height = Twips::FromPixels(outer.height());
    place.state = isMinimized() ? 1 : isMaximized() ? 2 : 0;
    return place;
}

void Frm_Main::showEvent(QShowEvent* event) {
    QMainWindow::showEvent(event);
    if (!m_wantedPlace.isEmpty()) QTimer::singleShot(0, this, [this] { SettlePlace(20); });
}

// The settings hold the outer place. What the window manager's frame takes of it is known only some time
// after the window has been mapped; until then the place is asked for again.
void Frm_Main::SettlePlace(int tries) {
    if (m_wantedPlace.isEmpty() || isMaximized() || isMinimized() || m_ending) return;
    const QMargins frame = windowHandle() ? windowHandle()->frameMargins() : QMargins();
    if (frame.isNull() && tries > 0) {
        QTimer::singleShot(25, this, [this, tries] { SettlePlace(tries - 1); });
        return;
    }
    setGeometry(std::exchange(m_wantedPlace, {}).marginsRemoved(frame));
}

void Frm_Main::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    LayOut();
}

bool Frm_Main::eventFilter(QObject* watched, QEvent* event) {
    // The client area changes with tool bar and scroll bars too.
    if (watched == m_area->viewport() && event->type() == QEvent::Resize) {
        QMetaObject::invokeMethod(
            this, [this] { LayOut(); }, Qt::QueuedConnection);
    }
    return QMainWindow::eventFilter(watched, event);
}

void Frm_Main::LayOut() {
    if (m_ending) return;
    if (Commands::IsChecked(u"Menu_Help_Assistant"_s)) Neighbours::LayoutAssistant();
    if (Global::DebuggerOpen) Neighbours::LayoutDebugger();
    if (Global::ProjectWindowOpen) Neighbours::LayoutProjectManager();
    if (Global::CodeWindowOpen) Shared<Frm_Code>().ActualizeSize();
    if (Global::BrowserOpen) Neighbours::LayoutBrowser();
}

// --- files from outside
// ---------------------------------------------------------------------------------------------

void Frm_Main::dragEnterEvent(QDragEnterEvent* event) {
    const QList<QUrl> urls = event->mimeData()->urls();
    if (!urls.isEmpty() && urls.constFirst().isLocalFile()) event->acceptProposedAction();
}

void Frm_Main::dropEvent(QDropEvent* event) {
    const QString path = Files::FromSystem(event->mimeData()->urls().constFirst().toLocalFile());
    event->acceptProposedAction();
    // a question must not hold up the program that the file comes from
    QTimer::singleShot(0, this, [path] { Documents::DropFile(path); });
}

// --- context menu of the code box
// -----------------------------------------------------------------------------------

void Frm_Main::AddMenuAttribute(const QString& caption, const QString& tag) {
    auto* item = new QAction(QString(caption).replace(u'&', u"&&"_s), m_menu->CodeMenu());
    int count = 1;
    for (const QAction* known : m_menu->CodeMenu()->actions()) {
        if (known->objectName().startsWith(u"Menu_Menu_Code_Attribute_")) ++count;
    }
    item->setObjectName(u"Menu_Menu_Code_Attribute_"_s + QString::number(count - 1));
    item->setEnabled(!caption.startsWith(u'·')); // a heading among the attributes
    connect(item, &QAction::triggered, this, [tag] { Neighbours::InsertAttribute(tag); });
    m_menu->CodeMenu()->addAction(item);
}

void Frm_Main::UnloadMenuAttributes() {
    for (QAction* item : m_menu->CodeMenu()->actions()) {
        if (!item->objectName().startsWith(u"Menu_Menu_Code_Attribute_")) continue;
        if (item->objectName() != u"Menu_Menu_Code_Attribute_0") delete item; // element 0 stays, hidden
    }
    const bool selected = Loaded<Frm_Code>() && Shared<Frm_Code>().TextBox->SelLength() > 0;
    Commands::SetEnabled(u"Menu_Menu_Code_Cut"_s, selected);
    Commands::SetEnabled(u"Menu_Menu_Code_Copy"_s, selected);
}

void Frm_Main::PopupCodeMenu(const QPoint& globalPosition) { m_menu->CodeMenu()->popup(globalPosition); }

void Frm_Main::StartBrowser() {
    setWindowTitle(Global::ProgramName + u" [Browser]"_s);
    Windows::Show(u"Frm_Browser");
}

void Frm_Main::StartWAPBrowser() { Windows::Show(u"WAPBrowser"); }
