// SPDX-License-Identifier: MIT
#pragma once

#include "platform/window.h"
#include "printing/page_text.h"
#include "printing/sheets.h"

#include <QDialog>
#include <functional>

class QCheckBox;
class QComboBox;
class QLineEdit;
class QPushButton;
class QRadioButton;

// Prints the document or the selection, with a head and the colours of the syntax if they are wanted.
class Frm_Print : public QDialog, public SharedWindow {
    Q_OBJECT

public:
    Frm_Print();
    void OnLoad() override;
    void reject() override; // the button, Esc and the frame's X end the printing, too

    // The text of the open text document; empty where there is none, as behind a picture.
    static QString DocumentText();
    // Colours all of `page` behind its head line, with the progress bar of the main window: its first half
    // for the tags, the second one for the texts in quotes. Lets events run; as soon as `wanted` says no, the
    // colours are left away.
    static void GenerateSyntaxHighLights(SyntaxSpans::ColouredText& page, const QString& head,
                                         const std::function<bool()>& wanted);

private:
    void Chk_PrintOption_1_Click();
    void Print();
    // The page to print as the options say, coloured.
    SyntaxSpans::ColouredText Page(const std::function<bool()>& wanted) const;
    QString HeadText() const;
    QString BodyText() const;
    // Each returns how it went, and tells a failure.
    Sheets::Result PrintOnPrinter(const PageText::Request& request, const std::function<bool()>& wanted);
    Sheets::Result PrintIntoFile(const PageText::Request& request, const std::function<bool()>& wanted);
    Sheets::Result PrintOn(QPagedPaintDevice& device, const PageText::Request& request,
                           const std::function<bool()>& wanted);
    QWidget* MakeOptions();

    bool m_left = false;
    QRadioButton* const Opt_PrintOption_0;
    QRadioButton* const Opt_PrintOption_1;
    QCheckBox* const Chk_PrintOption_0;
    QCheckBox* const Chk_PrintOption_1;
    QCheckBox* const Chk_PrintOption_2;
    QLineEdit* const Txt_PageHead;
    QComboBox* const Cmb_FontSize;
    QLineEdit* const Txt_Number;
    QWidget* const m_options;
};
