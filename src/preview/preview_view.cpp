// SPDX-License-Identifier: MIT
#include "preview/preview_view.h"

#include "platform/icons.h"
#include "platform/literals.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QWebEngineContextMenuRequest>

PreviewView::PreviewView(QWidget* parent) : QWebEngineView(parent) { setObjectName(u"Browser"_s); }

void PreviewView::contextMenuEvent(QContextMenuEvent* event) {
    const QWebEngineContextMenuRequest* request = lastContextMenuRequest();
    auto* menu = new QMenu(this);
    menu->setObjectName(u"Menu_Browser"_s);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto add = [&](QWebEnginePage::WebAction action, const QString& text, QStringView icon = {}) {
        const QAction* known = pageAction(action);
        QAction* item =
            menu->addAction(Icons::Named(icon), text, this, [this, action] { triggerPageAction(action); });
        item->setEnabled(known->isEnabled());
    };
    if (request && request->isContentEditable()) {
        add(QWebEnginePage::Cut, u"&Ausschneiden"_s, u"cut");
        add(QWebEnginePage::Copy, u"&Kopieren"_s, u"copy");
        add(QWebEnginePage::Paste, u"&Einfügen"_s, u"paste");
    } else {
        add(QWebEnginePage::Back, u"&Zurück"_s, u"nav_back");
        add(QWebEnginePage::Forward, u"&Vor"_s, u"nav_forward");
        add(QWebEnginePage::Reload, u"Ak&tualisieren"_s, u"nav_reload");
        menu->addSeparator();
        add(QWebEnginePage::Copy, u"&Kopieren"_s, u"copy");
    }
    add(QWebEnginePage::SelectAll, u"Alles &markieren"_s, u"select_all");
    if (request && !request->linkUrl().isEmpty()) {
        menu->addSeparator();
        add(QWebEnginePage::CopyLinkToClipboard, u"&Linkadresse kopieren"_s);
    }
    menu->popup(event->globalPos());
}
