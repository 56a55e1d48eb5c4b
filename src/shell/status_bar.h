// SPDX-License-Identifier: MIT
#pragma once

#include <QStatusBar>
#include <vector>

class QLabel;
class QProgressBar;
class QTimer;

// The status bar: 1 document type, 2 file state, 3 room for long work, 4 line, 5 column, 6 date, 7 time,
// 8 encoding of the document.
class StatusBar : public QStatusBar {
    Q_OBJECT

public:
    explicit StatusBar(QWidget* parent = nullptr);

    void SetPanel(int panel, const QString& text);
    QString Panel(int panel) const;
    void ShowPleaseWait(bool show);
    // Percent; below 0 hides the bar.
    void SetWorkProgress(int percent);

private:
    void ShowTime();

    std::vector<QLabel*> m_panels; // in their order
    QLabel* Pic_PleaceWait;
    QProgressBar* Prb_Work;
    QTimer* m_clock;
};
