// SPDX-License-Identifier: MIT
#pragma once

#include "documents/tool_window.h"

class QListWidget;

// The classes and ids that the saved document can use; a click writes one into the code.
class Frm_FormatSubClass : public ToolWindow {
    Q_OBJECT

public:
    Frm_FormatSubClass();
    void OnLoad() override;
    // Reads the document's file and its style sheets anew.
    void UpdateClassList();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void InsertEntry();

    QListWidget* const Lst_SubClass;
};
