// SPDX-License-Identifier: MIT
#pragma once

#include "editing/script_members.h"

#include <QFrame>
#include <QListWidget>
#include <cstdint>

class CodeHost;

// The one popup list of the document window, Lvw_Attributes, with its shadow. It offers attributes of a tag,
// words for the selection, members of a script object or continuations of a word. All places in twips.
class PopupList : public QListWidget {
    Q_OBJECT

public:
    explicit PopupList(CodeHost* window);

    void Hide();
    void RightClick(double x, double y);
    void LeftClick();
    void MouseMoved(double x, double y);
    void CodeLostFocus();
    // Inserts an attribute into the tag under the last right click, or a value in place of the selection.
    void InsertAttribute(const QString& text);
    // Completes the word at the caret, from which `offset` is added first. Gives up silently.
    void OpenAutoWord(double offset);
    // Shows the members of the object before the dot just typed.
    void ShowMembersAtDot();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void AddEntry(const QString& text, const QString& icon, const QString& tag);
    void AddForMouse(const QString& text);
    void FillWithAttributes();
    void FillWithWords();
    void ShowObjectMembers(const QString& name);
    void SetPlace(double x, double y);
    void PlaceAttributeList();
    void ShowAttributeList();
    void TakeKeyboard();
    void Choose(QListWidgetItem* item);
    void ChooseWord(const QString& text);

    CodeHost* m_window;
    QFrame* Pic_Shadow;
    qsizetype TagStart = 0;
    qsizetype TagNameLength = 0;
    bool TagClosedAtName = false;
    bool InsertAsValue = false;
    double LastMouseX = 0;
    double LastMouseY = 0;
    bool ListActive = false; // opened for the keyboard, holds the focus
    qsizetype AutoWordStart = 0;
    qsizetype AutoWordEnd = 0;
};
