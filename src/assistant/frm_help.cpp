// SPDX-License-Identifier: MIT
#include "assistant/frm_help.h"

#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/icons.h"
#include "platform/literals.h"

#include <QCloseEvent>
#include <QMenu>
#include <QScreen>
#include <QShortcut>
#include <QUrl>
#include <QVBoxLayout>
#include <QWebEnginePage>
#include <QWebEngineProfile>
#include <QWebEngineView>

namespace Help {

bool IsOwnPage(const QUrl& address) { return address.isLocalFile() || address.scheme() == u"about"; }

} // namespace Help

namespace {

class HelpPage : public QWebEnginePage {
public:
    using QWebEnginePage::QWebEnginePage;

protected:
    bool acceptNavigationRequest(const QUrl& url, NavigationType /*type*/, bool /*isMainFrame*/) override {
        if (Help::IsOwnPage(url)) return true;
        Dialogs::OpenAddress(url.toString(QUrl::FullyEncoded));
        return false;
    }
    // A link into a window of its own goes the same way as any other.
    QWebEnginePage* createWindow(WebWindowType /*type*/) override {
        auto* target = new HelpPage(profile(), this);
        connect(target, &QWebEnginePage::urlChanged, this, [this, target](const QUrl& url) {
            if (Help::IsOwnPage(url) && !url.isEmpty() && url.scheme() != u"about") setUrl(url);
            target->deleteLater();
        });
        return target;
    }
};

} // namespace

Frm_Help::Frm_Help() : QWidget(nullptr, Qt::Window) {
    setObjectName(u"Frm_Help"_s);
    setWindowTitle(u"Sorvane HTML Editor 3.0 Hilfe"_s);
    setWindowIcon(Icons::Named(u"help"));
    resize(QSize(820, 600).boundedTo(screen()->availableSize() * 9 / 10));
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(0, 0, 0, 0);
}

void Frm_Help::BuildBrowser() {
    Browser = new QWebEngineView(this);
    Browser->setObjectName(u"Browser"_s);
    // Nothing of what is read in the help is kept. The profile goes behind the view, as its page needs it.
    auto* profile = new QWebEngineProfile(this);
    auto* page = new HelpPage(profile, Browser);
    Browser->setPage(page);
    page->action(QWebEnginePage::Back)->setText(u"Zurück"_s);
    page->action(QWebEnginePage::Forward)->setText(u"Vorwärts"_s);
    page->action(QWebEnginePage::Copy)->setText(u"Kopieren"_s);
    Browser->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(Browser, &QWidget::customContextMenuRequested, this, &Frm_Help::ShowMenu);
    connect(new QShortcut(QKeySequence::Back, this), &QShortcut::activated, Browser, &QWebEngineView::back);
    connect(new QShortcut(QKeySequence::Forward, this), &QShortcut::activated, Browser,
            &QWebEngineView::forward);
    layout()->addWidget(Browser);
    Browser->setUrl(QUrl::fromLocalFile(Files::ToSystem(Files::ProgramFile(u"support\\index.htm"_s))));
}

void Frm_Help::ShowMenu(const QPoint& place) {
    QMenu menu(this);
    for (const auto action : {QWebEnginePage::Back, QWebEnginePage::Forward, QWebEnginePage::Copy}) {
        menu.addAction(Browser->pageAction(action));
    }
    menu.exec(Browser->mapToGlobal(place));
}

void Frm_Help::showEvent(QShowEvent* event) {
    if (!Browser) BuildBrowser();
    QWidget::showEvent(event);
}

void Frm_Help::BringToFront() {
    if (isMinimized()) setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

void Frm_Help::closeEvent(QCloseEvent* event) {
    event->accept();
    if (unloadSelf) unloadSelf();
}
