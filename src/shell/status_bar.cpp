// SPDX-License-Identifier: MIT
#include "shell/status_bar.h"

#include "platform/literals.h"
#include "state/neighbours.h"

#include <QDateTime>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QProgressBar>
#include <QTextDocument>
#include <QTimer>

namespace {
// Names of the panels and the widest text that each usually shows.
struct PanelRow {
    QStringView name;
    QStringView text;
    QStringView widest;
};
constexpr PanelRow Panels[] = {{u"Panel_Type", u"Bereit", u"StyleSheet"},
                               {u"Panel_State", u"Bereit", u"gespeichert"},
                               {u"Panel_Work", u"", u""},
                               {u"Row", u"Zeile", u"Ze 00000"},
                               {u"Char", u"Zeichen", u"Sp 0000"},
                               {u"Panel_Date", u"", u"00.00.0000"},
                               {u"Panel_Time", u"", u"00:00"},
                               {u"Panel_Encoding", u"", u"Windows-1252 LF"}};
using Neighbours::DatePanel;
using Neighbours::TimePanel;
using Neighbours::WorkPanel;
} // namespace

StatusBar::StatusBar(QWidget* parent) : QStatusBar(parent) {
    setObjectName(u"StatusBar"_s);
    for (const PanelRow& row : Panels) {
        auto* label = new QLabel(row.text.toString(), this);
        label->setObjectName(u"StatusBar_"_s + row.name);
        label->setIndent(6);
        label->setTextFormat(Qt::PlainText); // a path may look like markup
        label->setMinimumWidth(fontMetrics().horizontalAdvance(row.widest.toString()) + 14);
        addWidget(label, static_cast<int>(m_panels.size()) + 1 == WorkPanel ? 1 : 0);
        m_panels.push_back(label);
    }
    QLabel* work = m_panels[WorkPanel - 1];
    work->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // a long text widens no window
    auto* line = new QHBoxLayout(work);
    line->setContentsMargins(6, 0, 6, 0);
    Pic_PleaceWait = new QLabel(u" Bitte warten..."_s, work);
    Pic_PleaceWait->setObjectName(u"Pic_PleaceWait"_s);
    Pic_PleaceWait->hide();
    Prb_Work = new QProgressBar(work);
    Prb_Work->setObjectName(u"Prb_Work"_s);
    Prb_Work->setMaximumHeight(fontMetrics().height());
    Prb_Work->setTextVisible(false);
    Prb_Work->hide();
    line->addWidget(Pic_PleaceWait);
    line->addWidget(Prb_Work, 1);
    m_clock = new QTimer(this);
    m_clock->setSingleShot(true);
    connect(m_clock, &QTimer::timeout, this, &StatusBar::ShowTime);
    ShowTime();
}

void StatusBar::ShowTime() {
    const QDateTime now = QDateTime::currentDateTime();
    const QLocale locale;
    SetPanel(DatePanel, locale.toString(now.date(), locale.dateFormat(QLocale::ShortFormat)));
    SetPanel(TimePanel, locale.toString(now.time(), u"HH:mm"_s));
    m_clock->start((60 - now.time().second()) * 1000); // wakes once a minute
}

void StatusBar::SetPanel(int panel, const QString& text) {
    if (panel < 1 || panel > static_cast<int>(m_panels.size())) return;
    QLabel* label = m_panels[static_cast<size_t>(panel - 1)];
    if (label->text() == text) return;
    label->setText(text);
    if (panel == WorkPanel)
        label->setToolTip(Qt::mightBeRichText(text) ? QString(u"<qt>"_s + text.toHtmlEscaped()) : text);
}

QString StatusBar::Panel(int panel) const { return m_panels.at(static_cast<size_t>(panel - 1))->text(); }

void StatusBar::ShowPleaseWait(bool show) {
    if (show) SetPanel(WorkPanel, {}); // what the work before has left there
    Pic_PleaceWait->setVisible(show);
}

void StatusBar::SetWorkProgress(int percent) {
    Prb_Work->setVisible(percent >= 0);
    if (percent >= 0) Prb_Work->setValue(percent);
}
