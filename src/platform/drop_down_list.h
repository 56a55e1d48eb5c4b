// SPDX-License-Identifier: MIT
#pragma once

#include <QComboBox>
#include <functional>

// A combo box that is filled when it drops down, and not before.
class DropDownList : public QComboBox {
public:
    using QComboBox::QComboBox;

    std::function<QStringList()> entries; // asked each time the list drops down

    void Fill() {
        if (!entries) return;
        clear();
        addItems(entries());
        setCurrentIndex(-1);
    }

protected:
    void showPopup() override {
        Fill();
        QComboBox::showPopup();
    }
};
