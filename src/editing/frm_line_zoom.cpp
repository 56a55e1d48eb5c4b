// SPDX-License-Identifier: MIT
#include "editing/frm_line_zoom.h"

#include "documents/txt_code.h"
#include "editing/line_zoom.h"
#include "editing/plain_text_box.h"
#include "platform/icons.h"
#include "platform/numbers.h"
#include "platform/text.h"
#include "platform/twips.h"
#include "state/global.h"
#include "state/neighbours.h"

#include <QGuiApplication>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>

namespace {

constexpr int EnterKey = 13;

// Size of a window whose place is not known yet, and what its borders take of the outer size; twips.
constexpr int FirstWidth = 7680;
constexpr int FirstHeight = 1200;
constexpr int BorderWidth = 105;
constexpr int BorderHeight = 345;

constexpr QSize Inner(double width, double height) {
    return {Twips::ToPixels(width - BorderWidth), Twips::ToPixels(height - BorderHeight)};
}

} // namespace

Frm_LineZoom::Frm_LineZoom() : Txt_LineZoom(MakePlainTextBox(u"Txt_LineZoom"_s, u"Zeile"_s)) {
    setObjectName(u"Frm_LineZoom"_s);
    setWindowTitle(u"Zoom"_s);
    setWindowIcon(Icons::Named(u"zoom"));
    setSizeGripEnabled(false);
    setMinimumSize(Inner(3000, 900));
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
    RestorePlace();
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
    StorePlace();
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

void Frm_LineZoom::RestorePlace() {
    const Global::ToolPos& place = Global::LineZoomPos;
    if (place[3].isEmpty() || place[4].isEmpty()) {
        resize(Inner(FirstWidth, FirstHeight));
        return;
    }
    double left = Twips::FromPixels(x());
    double top = Twips::FromPixels(y());
    double width = FirstWidth;
    double height = FirstHeight;
    Attempt([&] { left = Numbers::ReadNumber(place[1]); });
    Attempt([&] { top = Numbers::ReadNumber(place[2]); });
    Attempt([&] { width = Numbers::ReadNumber(place[3]); });
    Attempt([&] { height = Numbers::ReadNumber(place[4]); });
    QRect wanted(QPoint(Twips::ToPixels(left), Twips::ToPixels(top)), Inner(width, height));
    // A window from a larger or second screen comes back where it can be seen.
    const QScreen* screen = QGuiApplication::screenAt(wanted.topLeft());
    if (!screen) screen = QGuiApplication::primaryScreen();
    const QRect room = screen->availableGeometry();
    wanted.setSize(wanted.size().boundedTo(room.size()));
    if (!room.contains(wanted.topLeft())) wanted.moveTopLeft(room.topLeft());
    move(wanted.topLeft());
    resize(wanted.size());
}

void Frm_LineZoom::StorePlace() const {
    const auto text = [](int pixels, int borders) {
        return QString::number(Twips::FromPixels(pixels) + borders);
    };
    Global::LineZoomPos[1] = text(x(), 0);
    Global::LineZoomPos[2] = text(y(), 0);
    Global::LineZoomPos[3] = text(width(), BorderWidth);
    Global::LineZoomPos[4] = text(height(), BorderHeight);
}
