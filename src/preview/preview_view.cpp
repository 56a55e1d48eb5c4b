// SPDX-License-Identifier: MIT
#include "preview/preview_view.h"

#include "platform/icons.h"
#include "platform/literals.h"

#include <QContextMenuEvent>
#include <QDragEnterEvent>
#include <QMenu>
#include <QMimeData>
#include <QWebEngineContextMenuRequest>

PreviewView::PreviewView(QWidget* parent) : QWebEngineView(parent) { setObjectName(u"Browser"_s); }

// What a page lets its reader drag about in it goes on to the page. A file from outside is not for the page:
// the event passes on to the main window, which opens the file in the editor.
void PreviewView::dragEnterEvent(QDragEnterEvent* event) {
    if (!event->source() && event->mimeData()->hasUrls()) {
        event->ignore();
    } else {
        QWebEngineView::dragEnterEvent(event);
    }
}

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
