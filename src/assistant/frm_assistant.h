// SPDX-License-Identifier: MIT
#pragma once

#include "assistant/animation_clock.h"
#include "platform/mdi_child.h"

#include <array>

class QLabel;
class QLineEdit;
class QMovie;
class QPlainTextEdit;
class QPushButton;
class QTimer;

// The animated helper at the right edge of the main window: a figure with a text under it.
class Frm_Assistant : public MdiChild {
    Q_OBJECT

public:
    Frm_Assistant();
    void OnLoad() override;
    void OnUnload() override;

    // Shows `text` and lets the figure move: 1 is the friendly figure, 2 the warning one, any other number
    // keeps the present one, whose running gesture then goes on undisturbed.
    void RunAnimation(int animation, const QString& text);
    // Places the window at the main window's right edge, its width held within bounds, and lets the others
    // make room.
    void ActualizeSize();

protected:
    void PlaceChanged(int state) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void BuildFrame();
    void LayOut();
    void FitButtonFont();
    void LoadFigure(QStringView file);
    void StartPlayer(double length);
    void Timer_Animation_Timer();
    void PlanNextTick();
    void Gesture();
    void Tip_MouseUp(Qt::MouseButton button);
    void Help_Click();

    QLineEdit* Txt_SearchText;
    QLabel* Gif_AssistantAnimation;
    QPlainTextEdit* Lbl_HelpText;
    std::array<QPushButton*, 3> Cmd_UserHelp;
    QTimer* Timer_Animation;
    QMovie* m_player;
    Assistant::AnimationClock m_clock;
    QString AssistantHelpText; // the whole help file, its lines joined with one blank
    bool m_fitting = false;
};
