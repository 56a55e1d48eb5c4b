// SPDX-License-Identifier: MIT
#include "printing/frm_print_preview.h"

#include "platform/icons.h"
#include "platform/literals.h"
#include "printing/coloured_box.h"
#include "printing/frm_print.h"

#include <QPointer>
#include <QScreen>
#include <QScrollBar>
#include <QTimer>
#include <QVBoxLayout>

namespace {
constexpr QSize FirstSize(760, 560); // pixels
} // namespace

Frm_PrintPreView::Frm_PrintPreView() : Txt_Code(new ColouredBox) {
    setObjectName(u"Frm_PrintPreView"_s);
    setWindowTitle(u"Syntaxfarben-Vorschau"_s);
    setWindowIcon(Icons::Named(u"print"));
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(0, 0, 0, 0); // the box fills the window
    all->addWidget(Txt_Code);
    resize(FirstSize.boundedTo(screen()->availableSize() * 0.9));
}

void Frm_PrintPreView::reject() {
    m_left = true;
    QDialog::reject();
}

void Frm_PrintPreView::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (!event->spontaneous()) QTimer::singleShot(0, this, &Frm_PrintPreView::Fill);
}

void Frm_PrintPreView::Fill() {
    if (m_left) return;
    const QPointer<Frm_PrintPreView> alive(this); // letting events run may end this window
    SyntaxSpans::ColouredText text{Frm_Print::DocumentText(), {}};
    Frm_Print::GenerateSyntaxHighLights(text, {}, [&] { return alive && !m_left; });
    if (!alive || m_left) return;
    Txt_Code->Show(text);
    QTextCursor end = Txt_Code->textCursor();
    end.movePosition(QTextCursor::End);
    Txt_Code->setTextCursor(end);
    Txt_Code->verticalScrollBar()->setValue(0); // the page is read from its start
}
