// SPDX-License-Identifier: MIT
#pragma once

#include "insertion/insert_texts.h"

#include <QLineEdit>
#include <QListWidget>

// A list of entries "name" or "name:value" and the field that holds the value of the current one.
class EntryList {
public:
    EntryList(QListWidget* list, QLineEdit* field) : m_list(list), m_field(field) {
        QObject::connect(list, &QListWidget::itemClicked, list, [this](QListWidgetItem* item) {
            // a click on the check box alone leaves the current entry where it was
            if (m_list->currentItem() != item) m_list->setCurrentItem(item);
            Choose(true);
        });
        QObject::connect(list, &QListWidget::currentItemChanged, list, [this] { Choose(false); });
        QObject::connect(field, &QLineEdit::textEdited, list, [this](const QString& text) {
            QListWidgetItem* item = m_list->currentItem();
            if (!item) return;
            InsertTexts::Entry entry{item->text()};
            entry.SetValue(text);
            item->setText(entry.text);
        });
    }

private:
    // The field shows the value of the current entry; a click goes on in the field.
    void Choose(bool clicked) {
        const QListWidgetItem* item = m_list->currentItem();
        m_field->setText(item ? InsertTexts::Entry{item->text()}.Value() : QString());
        if (!clicked) return;
        m_field->setFocus();
        m_field->selectAll();
    }

    QListWidget* m_list;
    QLineEdit* m_field;
};
