// SPDX-License-Identifier: MIT
#include "preview/page_messages.h"

#include "platform/literals.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QInputDialog>
#include <QMessageBox>

namespace {
const QString Title = QStringLiteral("Meldung der Seite");
constexpr qsizetype LongestText = 2000; // a longer one would not fit on the screen
} // namespace

bool PageMessages::Run(QMessageBox& box) {
    if (m_silenced) return false;
    box.setObjectName(u"PageMessage"_s);
    box.setTextFormat(Qt::PlainText);
    if (++m_count > 1) {
        auto* silence = new QCheckBox(u"Keine weiteren Meldungen dieser Seite &zeigen"_s);
        silence->setObjectName(u"Chk_Silence"_s);
        box.setCheckBox(silence);
    }
    // wide enough for its title, however short the text is
    if (auto* grid = qobject_cast<QGridLayout*>(box.layout())) {
        grid->setColumnMinimumWidth(grid->columnCount() - 1, box.fontMetrics().horizontalAdvance(Title) + 80);
    }
    const bool accepted = box.exec() == QMessageBox::Ok;
    m_silenced = box.checkBox() && box.checkBox()->isChecked();
    return accepted;
}

void PageMessages::Alert(QWidget* parent, const QString& text) {
    QMessageBox box(QMessageBox::NoIcon, Title, text.left(LongestText), QMessageBox::Ok, parent);
    Run(box);
}

bool PageMessages::Confirm(QWidget* parent, const QString& text) {
    QMessageBox box(QMessageBox::Question, Title, text.left(LongestText),
                    QMessageBox::Ok | QMessageBox::Cancel, parent);
    return Run(box);
}

bool PageMessages::Prompt(QWidget* parent, const QString& text, const QString& preset, QString* result) {
    if (m_silenced) return false;
    bool entered = false;
    const QString answer =
        QInputDialog::getText(parent, Title, text.left(LongestText), QLineEdit::Normal, preset, &entered);
    if (entered) *result = answer;
    return entered;
}

void PageMessages::Forget() {
    m_count = 0;
    m_silenced = false;
}
