// SPDX-License-Identifier: MIT
#include "editing/frm_line_zoom.h"

#include "documents/txt_code.h"
#include "editing/line_zoom.h"
#include "editing/plain_text_box.h"
#include "platform/icons.h"
#include "platform/literals.h"
#include "state/global.h"
#include "state/neighbours.h"
#include "state/tool_place.h"

#include <QVBoxLayout>

namespace {

constexpr int EnterKey = 13;

constexpr QSize FirstSize(7680, 1200); // twips, of a window whose place is not known yet

} // namespace

Frm_LineZoom::Frm_LineZoom() : Txt_LineZoom(MakePlainTextBox(u"Txt_LineZoom"_s, u"Zeile"_s)) {
    setObjectName(u"Frm_LineZoom"_s);
    setWindowTitle(u"Zoom"_s);
    setWindowIcon(Icons::Named(u"zoom"));
    setSizeGripEnabled(false);
    setMinimumSize(ToolPlace::Inner(3000, 900));
    Txt_LineZoom->setFrameShape(QFrame::NoFrame); // it fills the window
    Txt_LineZoom->setLineWrapMode(QPlainTextEdit::NoWrap);
    Txt_LineZoom->events.keyDown = [this](int key, int) {
        if (key == EnterKey) m_enterTyped = true;
    };
    Txt_LineZoom->events.keyUp = [this](int key, int) { Txt_LineZoom_KeyUp(key); };
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(0, 0, 0, 0);
    all->addWidget(Txt_LineZoom);
}

void Frm_LineZoom::OnLoad() {
    Global::LineZoomOpen = true;
    // a place without a size is none
    const Global::ToolPos& place = Global::LineZoomPos;
    const bool known = !place[3].isEmpty() && !place[4].isEmpty();
    if (known) ToolPlace::Restore(*this, place, ToolPlace::Keeps::PlaceAndSize, FirstSize);
    if (!known) resize(ToolPlace::Inner(FirstSize.width(), FirstSize.height()));
    Txt_LineZoom->SetText(ReadCurrentLine());
    if (Global::AssistantOpen) {
        Neighbours::RunAnimation(
            1,
            u"Hier können Sie die Zeile bearbeiten, in der sich der Cursor befindet. Dabei werden Sie nicht "
            u"von den "
            "lästigen Zeilenumbrüchen gestört. Die Zeile wird im Code aktualisiert, wenn Sie dieses Fenster "
            "schließen."_s);
    }
}

void Frm_LineZoom::OnUnload() {
    if (Global::AssistantOpen) Neighbours::RunAnimation(0, {});
    SaveLine();
    ToolPlace::Store(*this, Global::LineZoomPos, ToolPlace::Keeps::PlaceAndSize);
    Global::LineZoomOpen = false;
}

QString Frm_LineZoom::ReadCurrentLine() {
    CodeBox* box = Neighbours::TheCodeBox();
    return box ? LineZoom::ReadCurrentLine(*box) : QString();
}

void Frm_LineZoom::SaveLine() {
    if (CodeBox* box = Neighbours::TheCodeBox()) LineZoom::SaveLine(*box, Txt_LineZoom->Text());
}

void Frm_LineZoom::Txt_LineZoom_KeyUp(int key) {
    if (key == EnterKey && m_enterTyped && unloadSelf) unloadSelf();
}
