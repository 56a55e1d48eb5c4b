// SPDX-License-Identifier: MIT
#include "assistant/frm_assistant.h"

#include "assistant/answers.h"
#include "documents/frm_code.h"
#include "platform/dialogs.h"
#include "platform/events.h"
#include "platform/files.h"
#include "platform/icons.h"
#include "platform/literals.h"
#include "platform/twips.h"
#include "state/commands.h"
#include "state/global.h"
#include "state/lists.h"
#include "state/neighbours.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QMovie>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRandomGenerator>
#include <QTimer>
#include <QVBoxLayout>
#include <cmath>

namespace {

// All in twips.
constexpr int FirstWidth = 2320;
constexpr int LeastWidth = 2325;
constexpr int GreatestWidth = 6000;
constexpr int ButtonRoom = 450;

constexpr int FigureSize = 150;        // pixels, of the animations
constexpr int Shares[] = {22, 41, 37}; // percent of the width, of the buttons

enum Button { Tip, Animation, Help };

QString FigurePath(QStringView file) { return Files::ProgramFile(file.toString()); }

// The debugger, the code and the preview lie beside the assistant.
void GiveRoom() {
    if (Global::DebuggerOpen) Neighbours::LayoutDebugger();
    if (Global::CodeWindowOpen) Shared<Frm_Code>().ActualizeSize();
    if (Global::BrowserOpen) Neighbours::LayoutBrowser();
}

} // namespace

Frm_Assistant::Frm_Assistant()
    : Txt_SearchText(new QLineEdit), Gif_AssistantAnimation(new QLabel),
      Lbl_HelpText(new QPlainTextEdit), Cmd_UserHelp{new QPushButton(u"Tipp"_s),
                                                     new QPushButton(u"Animation"_s),
                                                     new QPushButton(u"Hilfe"_s)},
      Timer_Animation(new QTimer(this)), m_player(new QMovie(this)) {
    setObjectName(u"Frm_Assistant"_s);
    Txt_SearchText->setObjectName(u"Txt_SearchText"_s);
    Txt_SearchText->setPlaceholderText(u"Tag"_s);
    Txt_SearchText->setAccessibleName(u"Tag"_s);
    Txt_SearchText->setToolTip(u"Name eines Tags ohne die Klammern"_s);
    Gif_AssistantAnimation->setObjectName(u"Gif_AssistantAnimation"_s);
    Gif_AssistantAnimation->setAlignment(Qt::AlignCenter);
    Gif_AssistantAnimation->setFixedHeight(FigureSize);
    Gif_AssistantAnimation->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    Gif_AssistantAnimation->setMovie(m_player);
    Lbl_HelpText->setObjectName(u"Lbl_HelpText"_s);
    Lbl_HelpText->setAccessibleName(u"Text des Assistenten"_s);
    // A label in its look, but a long text scrolls and a long word breaks. It shows plain text only: help
    // texts name tags, which must not be read as markup.
    Lbl_HelpText->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    Lbl_HelpText->setTabChangesFocus(true);
    Lbl_HelpText->setFrameShape(QFrame::NoFrame);
    Lbl_HelpText->viewport()->setAutoFillBackground(false);
    Lbl_HelpText->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    Lbl_HelpText->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    Lbl_HelpText->setCursorWidth(0);
    Lbl_HelpText->setUndoRedoEnabled(false);
    for (size_t i = 0; i < Cmd_UserHelp.size(); ++i) {
        Cmd_UserHelp[i]->setObjectName(u"Cmd_UserHelp_"_s + QString::number(i));
    }
    Cmd_UserHelp[Tip]->setToolTip(u"Nächster Tipp, mit der rechten Maustaste der vorige"_s);
    Cmd_UserHelp[Animation]->setToolTip(u"Den Assistenten in Bewegung setzen"_s);
    Cmd_UserHelp[Help]->setToolTip(u"Den markierten oder oben eingegebenen Tag erklären"_s);
    Timer_Animation->setObjectName(u"Timer_Animation"_s);
    Timer_Animation->setSingleShot(true);
    Timer_Animation->setTimerType(Qt::PreciseTimer);

    connect(Timer_Animation, &QTimer::timeout, this, &Frm_Assistant::Timer_Animation_Timer);
    connect(Txt_SearchText, &QLineEdit::returnPressed, this, &Frm_Assistant::Help_Click);
    connect(Cmd_UserHelp[Tip], &QPushButton::clicked, this, [this] { Tip_MouseUp(Qt::LeftButton); });
    connect(Cmd_UserHelp[Animation], &QPushButton::clicked, this, [this] {
        m_clock.ProvokeGesture(Events::SecondsSinceMidnight());
        PlanNextTick();
    });
    connect(Cmd_UserHelp[Help], &QPushButton::clicked, this, &Frm_Assistant::Help_Click);
    Cmd_UserHelp[Tip]->installEventFilter(this); // the right button clicks nothing by itself
    LayOut();
    BuildFrame();
}

void Frm_Assistant::LayOut() {
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(0);
    for (size_t i = 0; i < Cmd_UserHelp.size(); ++i) {
        Cmd_UserHelp[i]->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        Cmd_UserHelp[i]->setFixedHeight(Twips::ToPixels(ButtonRoom));
        buttons->addWidget(Cmd_UserHelp[i], Shares[i]);
    }
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(0, 0, 0, 0);
    all->setSpacing(0);
    all->addWidget(Txt_SearchText);
    all->addWidget(Gif_AssistantAnimation);
    all->addWidget(Lbl_HelpText, 1);
    all->addLayout(buttons);
}

void Frm_Assistant::BuildFrame() {
    SetCaption(u"Assistent"_s, Icons::Named(u"assistant"));
    // It stays at its edge: there is nothing to maximise or to minimise.
    if (Frame() != this) {
        Frame()->setWindowFlags(Qt::SubWindow | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint);
    }
    Frame()->setMinimumWidth(Twips::ToPixels(LeastWidth));
    Frame()->setMaximumWidth(Twips::ToPixels(GreatestWidth));
}

void Frm_Assistant::OnLoad() {
    Global::AssistantOpen = true;
    m_clock.LastGestureTime = Events::SecondsSinceMidnight();
    LoadFigure(Assistant::GestureFor(1).file);
    SetPlace(Left(), 0, FirstWidth, Height());
    const auto help = Lists::ReadLinesJoined(u"assistant.hlp"_s);
    if (help) {
        AssistantHelpText = *help;
    } else {
        Lists::TellBroken(u"assistant.hlp"_s);
    }
    if (!QMovie::supportedFormats().contains("gif")) {
        Dialogs::Tell(u"Assistent"_s,
                      u"Der Assistent kann nicht gestartet werden, da\r\n"
                      "eine notwendige Datei nicht richtig registriert ist.\r\n"
                      "Warscheinlich sind Sie nicht als Administartor\r\n"
                      "angemeldet oder haben nicht die Berechtigung\r\n"
                      "diese Datei zu benutzen."_s,
                      Dialogs::Icon::Exclamation);
    }
    PlanNextTick();
}

void Frm_Assistant::OnUnload() {
    Timer_Animation->stop();
    m_player->stop();
    Global::AssistantOpen = false;
    Commands::SetChecked(u"Menu_Help_Assistant"_s, false); // also when the user closes it by its frame
    GiveRoom();
}

// --- the figure
// -----------------------------------------------------------------------------------------------------

void Frm_Assistant::LoadFigure(QStringView file) {
    const QString path = FigurePath(file);
    if (!Files::CanRead(path)) return; // the present figure stays
    m_player->stop();
    m_player->setFileName(Files::ToSystem(path));
    m_player->jumpToFrame(0);
}

void Frm_Assistant::StartPlayer(double length) {
    m_player->start();
    m_clock.BeginAnimation(Events::SecondsSinceMidnight(), length);
    PlanNextTick();
}

void Frm_Assistant::RunAnimation(int animation, const QString& text) {
    const QStringView file = Assistant::FileFor(animation);
    if (!file.isEmpty()) LoadFigure(file);
    Lbl_HelpText->setPlainText(text);
    if (file.isEmpty() && m_clock.Playing()) return;
    StartPlayer(Assistant::RemarkLength);
}

void Frm_Assistant::Timer_Animation_Timer() {
    const double now = Events::SecondsSinceMidnight();
    if (m_clock.GestureDue(now)) Gesture();
    if (m_clock.StopDue(now)) {
        m_player->stop();
        m_clock.Stop();
    }
    PlanNextTick();
}

void Frm_Assistant::Gesture() {
    m_clock.LastGestureTime = Events::SecondsSinceMidnight();
    const Assistant::Animation gesture = Assistant::GestureFor(QRandomGenerator::global()->bounded(1, 17));
    LoadFigure(gesture.file);
    StartPlayer(gesture.length);
}

void Frm_Assistant::PlanNextTick() {
    // One shot at the next moment that matters: a tick that only looks at the clock would keep the processor
    // awake.
    const double wait = m_clock.UntilNextTick(Events::SecondsSinceMidnight());
    Timer_Animation->start(static_cast<int>(std::ceil(wait * 1000)));
}

// --- the buttons
// ----------------------------------------------------------------------------------------------------

void Frm_Assistant::Tip_MouseUp(Qt::MouseButton button) {
    using Assistant::TipStep;
    RunAnimation(1, Assistant::StepTip(button == Qt::RightButton ? TipStep::Back : TipStep::Next));
}

void Frm_Assistant::Help_Click() {
    QString tag;
    if (Global::CodeWindowOpen) tag = Shared<Frm_Code>().TextBox->SelText();
    if (tag.isEmpty()) tag = Txt_SearchText->text();
    const auto answer = Assistant::AnswerAbout(AssistantHelpText, tag);
    if (answer) RunAnimation(answer->animation, answer->text);
}

bool Frm_Assistant::eventFilter(QObject* watched, QEvent* event) {
    if (watched == Cmd_UserHelp[Tip] && event->type() == QEvent::MouseButtonRelease &&
        static_cast<QMouseEvent*>(event)->button() == Qt::RightButton) {
        Tip_MouseUp(Qt::RightButton);
        return true;
    }
    const bool handled = MdiChild::eventFilter(watched, event);
    // Whoever pulls the window away by its title finds it back at its edge.
    if (watched == Frame() && event->type() == QEvent::Move && !m_fitting) {
        QMetaObject::invokeMethod(
            this,
            [this] {
                if (Global::AssistantOpen) ActualizeSize();
            },
            Qt::QueuedConnection);
    }
    return handled;
}

// --- place
// ----------------------------------------------------------------------------------------------------------

void Frm_Assistant::PlaceChanged(int /*state*/) {
    if (Global::AssistantOpen) ActualizeSize();
}

void Frm_Assistant::ActualizeSize() {
    if (m_fitting) return;
    const Neighbours::Size main = Neighbours::MainSize();
    if (main.width == 0) return;
    m_fitting = true;
    const int width = std::clamp(Width(), LeastWidth, GreatestWidth);
    SetPlace(std::max(0, main.width - width - 180), 0, width, std::max(0, main.height - 1365));
    m_fitting = false;
    GiveRoom();
}

void Frm_Assistant::resizeEvent(QResizeEvent* event) {
    MdiChild::resizeEvent(event);
    FitButtonFont();
}

void Frm_Assistant::FitButtonFont() {
    // The shares are narrow in a narrow window; the captions get smaller there rather than being cut.
    constexpr double LeastPoints = 6.5;
    constexpr int Margin = 8;
    QFont fitting = font();
    for (size_t i = 0; i < Cmd_UserHelp.size(); ++i) {
        const int room = width() * Shares[i] / 100 - Margin;
        const QString caption = Cmd_UserHelp[i]->text();
        while (fitting.pointSizeF() > LeastPoints &&
               QFontMetrics(fitting).horizontalAdvance(caption) > room) {
            fitting.setPointSizeF(fitting.pointSizeF() - 0.5);
        }
    }
    for (QPushButton* button : Cmd_UserHelp) button->setFont(fitting);
}
