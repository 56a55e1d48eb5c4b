// SPDX-License-Identifier: MIT
#include "preview/frm_browser.h"

#include "platform/events.h"
#include "platform/icons.h"
#include "platform/literals.h"
#include "preview/browser_address.h"
#include "preview/preview_page.h"
#include "preview/preview_view.h"
#include "state/global.h"
#include "state/neighbours.h"
#include "state/windows.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QStackedLayout>
#include <QVBoxLayout>
#include <QWebEngineHistory>

namespace {

const QString Caption = QStringLiteral("HTML Vorschau");
constexpr double StuckAfter = 2; // seconds

} // namespace

Frm_Browser::Frm_Browser() : Browser(new PreviewView(this)), m_layers(new QStackedLayout(this)) {
    setObjectName(u"Frm_Browser"_s);
    setFocusProxy(Browser);
    PreviewPage::Prepare(&m_profile);
    auto* guard = new RequestGuard(&m_rule, this);
    connect(guard, &RequestGuard::Refused, this,
            [this](const QUrl& url, AccessRule::Part part) { m_page->TellRefused(url, part); });
    m_profile.setUrlRequestInterceptor(guard);
    connect(&m_profile, &QWebEngineProfile::downloadRequested, this,
            [this](QWebEngineDownloadRequest* download) { m_page->AskForDownload(download); });
    MakePage();
    m_crashNotice = MakeCrashNotice();
    m_layers->addWidget(Browser);
    m_layers->addWidget(m_crashNotice);
    SetPlace(0, 0, BrowserSavedWidth, BrowserSavedHeight);
}

Frm_Browser::~Frm_Browser() {
    delete Browser; // with its page, which must go before the profile
}

void Frm_Browser::OnLoad() {
    BrowserFitMode = Global::AutoMaximize ? 2 : 0;
    Global::BrowserOpen = true;
    SetOffline(true);
    SetCaption(Caption, Icons::Named(u"browser"));
    ActualizeSize();
    Neighbours::ActivateFunktions();
}

void Frm_Browser::OnUnload() {
    Global::BrowserOpen = false;
    if (Global::NavigationBarOpen) Windows::Unload(u"Frm_Navigation");
    if (Global::AssistantOpen) Neighbours::RunAnimation(0, {});
    Neighbours::ActivateFunktions();
}

QWidget* Frm_Browser::MakeCrashNotice() {
    auto* notice = new QWidget(this);
    auto* text =
        new QLabel(u"Die Anzeige dieser Seite ist unerwartet beendet worden.\nIhr Dokument ist davon nicht "
                   "betroffen."_s);
    text->setObjectName(u"Lbl_Crashed"_s);
    text->setAlignment(Qt::AlignCenter);
    text->setWordWrap(true);
    auto* reload = new QPushButton(Icons::Named(u"nav_reload"), u"Seite &neu laden"_s);
    reload->setObjectName(u"Cmd_Reload"_s);
    connect(reload, &QPushButton::clicked, this, &Frm_Browser::Refresh);
    notice->setFocusProxy(reload);
    auto* all = new QVBoxLayout(notice);
    all->addStretch();
    all->addWidget(text);
    all->addWidget(reload, 0, Qt::AlignCenter);
    all->addStretch();
    return notice;
}

void Frm_Browser::MakePage() {
    PreviewPage* before = m_page;
    m_page = new PreviewPage(&m_profile, &m_rule, Browser);
    Browser->setPage(m_page);
    delete before;
    m_loadingSince.reset();
    connect(m_page, &QWebEnginePage::titleChanged, this, [this](const QString& title) {
        ShowCaption();
        emit TitleChange(title);
    });
    connect(m_page, &QWebEnginePage::loadStarted, this, [this] {
        m_layers->setCurrentWidget(Browser);
        m_loadingSince = Events::SecondsSinceMidnight();
        if (IsActiveChild()) TakeFocus();
        m_restStatus = u"Die Seite wird geladen..."_s;
        emit StatusTextChange(m_restStatus);
    });
    connect(m_page, &QWebEnginePage::loadFinished, this, &Frm_Browser::LoadFinished);
    connect(m_page, &QWebEnginePage::linkHovered, this, [this](const QString& link) {
        emit StatusTextChange(link.isEmpty() ? m_restStatus : BrowserAddress::Shown(QUrl(link)));
    });
    connect(m_page, &PreviewPage::StatusText, this, [this](const QString& text) {
        m_restStatus = text;
        emit StatusTextChange(text);
        ShowCaption();
    });
    connect(m_page, &QWebEnginePage::renderProcessTerminated, this,
            [this](QWebEnginePage::RenderProcessTerminationStatus status) {
                if (status == QWebEnginePage::NormalTerminationStatus) return;
                m_loadingSince.reset();
                m_layers->setCurrentWidget(m_crashNotice);
                if (IsActiveChild() && isActiveWindow()) m_crashNotice->setFocus();
            });
}

void Frm_Browser::LoadFinished(bool ok) {
    m_loadingSince.reset();
    // a fault that the page's script told of stays to be read
    if (!m_restStatus.startsWith(u"Skriptfehler")) {
        m_restStatus = ok ? u"Fertig"_s : u"Die Seite konnte nicht geladen werden."_s;
        if (const QString refused = m_page->RefusedText(); ok && !refused.isEmpty()) m_restStatus = refused;
    }
    emit StatusTextChange(m_restStatus);
    ShowCaption();
    emit DocumentComplete(Address());
}

// Names the page, and what of it was refused: a part inside a frame or an object has no place of its own to
// say so.
void Frm_Browser::ShowCaption() {
    QStringList parts{Caption, m_page->title()};
    if (m_page->ShownAddress() == m_page->url()) parts << m_page->RefusedText(); // a notice tells it itself
    parts.removeAll(QString());
    SetCaption(parts.join(u" - "_s));
}

// --- where it goes --------------------------------------------------------------------------------

// A script without end holds its page's process, and with it every page that would follow.
void Frm_Browser::ReplaceStuckPage() {
    if (!m_loadingSince) return;
    const double passed = Events::SecondsSinceMidnight() - *m_loadingSince;
    if (passed >= StuckAfter || passed < 0) MakePage(); // midnight turns the clock back
}

void Frm_Browser::Navigate(const QString& url) {
    const QUrl address = BrowserAddress::FromText(url);
    if (!address.isValid()) return;
    ReplaceStuckPage();
    if (address == m_page->url()) {
        m_page->triggerAction(
            QWebEnginePage::ReloadAndBypassCache); // its pictures and styles may be new, too
    } else {
        m_page->load(address);
    }
}

void Frm_Browser::NavigateByUser(const QString& url) {
    m_rule.Wish(BrowserAddress::FromText(url));
    Navigate(url);
}

void Frm_Browser::GoBack() { m_page->history()->back(); }

void Frm_Browser::GoForward() { m_page->history()->forward(); }

void Frm_Browser::Refresh() {
    const QUrl address = m_page->url();
    ReplaceStuckPage();
    if (m_page->url() == address) {
        m_page->triggerAction(QWebEnginePage::ReloadAndBypassCache);
    } else {
        m_page->load(address);
    }
}

void Frm_Browser::Stop() { m_page->triggerAction(QWebEnginePage::Stop); }

QString Frm_Browser::Address() const { return BrowserAddress::Shown(m_page->ShownAddress()); }

// --- place ----------------------------------------------------------------------------------------

void Frm_Browser::Activated() {
    SetOffline(true);
    m_rule.browsingAlone = m_rule.browsingAlone && !Global::DocOpen;
    TakeFocus();
}

// The view gets its inner widget only with its first page, so the focus has to be handed to it.
void Frm_Browser::TakeFocus() {
    if (isActiveWindow() && !isAncestorOf(QApplication::focusWidget())) Browser->setFocus();
}

void Frm_Browser::PlaceChanged(int state) {
    if (state != 2) return;
    // The window is never really maximised: the button switches between the fitted and the former place.
    SetNormalState();
    if (BrowserFitMode != 0) {
        BrowserFitMode = 0;
        SetPlace(BrowserSavedLeft, BrowserSavedTop, BrowserSavedWidth, BrowserSavedHeight);
        return;
    }
    BrowserFitMode = 2;
    BrowserSavedLeft = Left();
    BrowserSavedTop = Top();
    BrowserSavedWidth = Width();
    BrowserSavedHeight = Height();
    ActualizeSize();
}

void Frm_Browser::ActualizeSize() {
    if (BrowserFitMode != 2) return;
    const Neighbours::Size main = Neighbours::MainSize();
    if (main.width == 0) return;
    const int assistant = Global::AssistantOpen ? Neighbours::AssistantWidth() : 0;
    const int debugger = Global::DebuggerOpen ? Neighbours::DebuggerHeight() : 0;
    const int project = Global::ProjectWindowOpen ? Neighbours::ProjectManagerWidth() : 0;
    SetPlace(project, 1, main.width - 180 - assistant - project, main.height - 1370 - debugger);
}

void Frm_Browser::Fit(bool fit) {
    SetNormalState();
    if ((BrowserFitMode == 2) != fit) ShowMaximizedState(); // as the user does by the button
}

void Frm_Browser::Place(int left, int top, int width, int height) {
    SetNormalState();
    BrowserFitMode = 0;
    SetPlace(left, top, width, height);
}
