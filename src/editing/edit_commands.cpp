// SPDX-License-Identifier: MIT
#include "editing/edit_commands.h"

#include "documents/code_access.h"
#include "documents/code_box.h"
#include "documents/paths.h"
#include "documents/undo.h"
#include "platform/clipboard.h"
#include "platform/code_page.h"
#include "platform/dialogs.h"
#include "platform/numbers.h"
#include "platform/text.h"
#include "state/global.h"
#include "state/neighbours.h"

#include <QDateTime>
#include <QLocale>
#include <algorithm>
#include <cmath>

namespace Global {

void ReplaceSameLength(QString& text, QStringView marker, QStringView replacement) {
    for (qsizetype at = text.indexOf(marker); at >= 0; at = text.indexOf(marker, at + 1)) {
        Text::Overwrite(text, at + 1, replacement);
    }
}

QString ReverseText(const QString& text) {
    QString turned = text;
    std::reverse(turned.begin(), turned.end());
    // a character of two units keeps its order
    for (qsizetype i = 0; i + 1 < turned.size(); ++i) {
        if (turned[i].isLowSurrogate() && turned[i + 1].isHighSurrogate())
            std::swap(turned[i], turned[i + 1]);
    }
    ReplaceSameLength(turned, u"\n\r", Text::LineBreak);
    return turned;
}

} // namespace Global

namespace EditCommands {

namespace {

// Runs `command` on the code box; a statement of it that fails ends it silently.
template<class Command> void OnCode(Command&& command) {
    if (CodeBox* box = Neighbours::TheCodeBox()) Attempt([&] { command(*box); });
}

template<class Change> void ChangeSelection(Change&& change) {
    OnCode([&](CodeBox& box) {
        Undo::PushUndo();
        box.SetSelText(change(box.SelText()));
    });
}

// The whole number that `text` begins with, as every base writes it; a fraction is rounded, halves to the
// even neighbour. Throws RuntimeError for one beyond 64 bits: such a selection stays as it is.
qint64 WholeNumber(const QString& text) {
    const double value = std::nearbyint(Text::LeadingNumber(text));
    if (std::abs(value) > 9e18) throw RuntimeError("number too large");
    return static_cast<qint64>(value);
}

QString InBase(const QString& text, int base) {
    const qint64 whole = WholeNumber(text);
    // negative values show as the 32-bit pattern that they have in scripts
    const auto pattern = whole < 0 && whole >= INT32_MIN ? quint64(quint32(qint32(whole))) : quint64(whole);
    return QString::number(pattern, base).toUpper();
}

void TellResult(const QString& text) {
    Dialogs::Tell(u"Aus Text berechnen"_s, text, Dialogs::Icon::Information);
}

void TellCalculation(const QString& intro, CodeAccess::Calculation mode) {
    OnCode([&](CodeBox& box) {
        TellResult(intro + Numbers::ForMessage(CodeAccess::CalculateSelection(box.SelText(), mode)));
        box.SetFocus();
    });
}

void Insert(const QString& text) {
    ChangeSelection([&](const QString&) { return text; });
}

void ChangeTags(QString (*change)(QString&)) {
    OnCode([&](CodeBox& box) {
        QString page = box.Text();
        const qsizetype caret = box.SelStart();
        change(page); // takes the undo copy
        if (page == box.Text()) return;
        box.SetText(page);
        box.SetSelStart(caret);
    });
}

} // namespace

void Menu_Edit_Copy_Click() {
    OnCode([](CodeBox& box) { Clipboard::SetText(box.SelText()); });
}

void Menu_Edit_Cut_Click() {
    OnCode([](CodeBox& box) {
        Undo::PushUndo();
        Clipboard::SetText(box.SelText());
        box.SetSelText({});
    });
}

void Menu_Edit_Paste_Click() {
    OnCode([](CodeBox& box) {
        Undo::PushUndo();
        box.SetSelText(Clipboard::Text());
    });
}

void Menu_Edit_Delete() {
    OnCode([](CodeBox& box) {
        Undo::PushUndo();
        const QString text = box.Text();
        Global::TextBeforeSelection = text.first(box.SelStart());
        Global::TextAfterSelection = text.sliced(box.SelStart() + box.SelLength());
        box.SetText(Global::TextBeforeSelection + Global::TextAfterSelection);
        box.SetSelStart(Global::TextBeforeSelection.size());
        box.SetSelLength(0);
    });
}

void Menu_Edit_SelectAll() {
    OnCode([](CodeBox& box) {
        box.SetSelStart(0);
        box.SetSelLength(box.Text().size());
    });
}

void Menu_Edit_EditString_UCase() {
    ChangeSelection([](const QString& text) { return CodeAccess::UpperCase(text); });
}

void Menu_Edit_EditString_LCase() {
    ChangeSelection([](const QString& text) { return CodeAccess::LowerCase(text); });
}

void Menu_Edit_EditString_Turn() {
    ChangeSelection([](const QString& text) { return Global::ReverseText(text); });
    if (!Global::AssistantOpen) return;
    Neighbours::RunAnimation(1, u"Sie haben gerade eine Zeichenfolge umgedreht. Verwenden Sie diese Funktion "
                                u"auch um Farben umzudrehen. Sie "
                                "können so meistens zwei Farben mit einem guten Kontrast erzeugen, wenn die "
                                "Farben nicht zu hell oder zu "
                                "dunkel sind."_s);
}

void Menu_Edit_ChangeDigitSystem_Hex() {
    ChangeSelection([](const QString& text) { return InBase(text, 16); });
}

void Menu_Edit_ChangeDigitSystem_Okt() {
    ChangeSelection([](const QString& text) { return InBase(text, 8); });
}

void Menu_Edit_ChangeDigitSystem_Bin() {
    ChangeSelection([](const QString& text) {
        const QString digits = RuntimeExtension::NumberToBinary(static_cast<double>(WholeNumber(text)));
        return digits.isEmpty() ? u"0"_s : digits;
    });
}

void Menu_Edit_CalculateText_ASCII() {
    OnCode([](CodeBox& box) {
        const QString text = box.SelText();
        if (text.isEmpty()) throw RuntimeError("no character");
        const int byte = CodePage::ByteOf(text[0]);
        const uint code = byte >= 0 ? uint(byte) : text.toUcs4().constFirst();
        TellResult(u"Der ASCII-Code des markierten Zeichens ist: \r\n"_s + QString::number(code));
    });
}

void Menu_Edit_CalculateText_Average() {
    TellCalculation(u"Der Durchschnitt der Zahlen ist: "_s, CodeAccess::Calculation::Average);
}

void Menu_Edit_CalculateText_Count() {
    TellCalculation(u"Die Anzahl der Zahlen ist: "_s, CodeAccess::Calculation::Count);
}

void Menu_Edit_CalculateText_Total() {
    TellCalculation(u"Die Summe der Zahlen ist: "_s, CodeAccess::Calculation::Sum);
}

void Menu_Script_ManipulateNumbers() {
    const QString prefix = Dialogs::InputBox(u"Welche Zahl soll vor jede Zahl gehängt werden?"_s,
                                             u"Automatische Zahlenmanipulation"_s);
    Undo::PushUndo();
    Attempt([&] { CodeAccess::ManipulateNumbers(prefix); });
}

void Menu_Insert_Date() { Insert(QLocale().toString(QDate::currentDate(), QLocale::ShortFormat)); }

void Menu_Insert_Time() { Insert(QLocale().toString(QTime::currentTime(), QLocale::ShortFormat)); }

void Menu_Insert_FileName() {
    static const QString filter =
        QStringLiteral("Alle unterstützten Dateien "
                       "(*.gif;*.jpg;*.png;*.wbmp;*.htm;*.html;*.wml;*.txt;*.css;*.swf;*.js;*.vbs;*.zip)|"
                       "*.gif;*.jpg;*.png;*.wbmp;*.htm;*.html;*.wml;*.txt;*.css;*.swf;*.js;*.vbs;*.zip|"
                       "Bilder (*.gif;*.jpg;*.png;*.wbmp)|*.gif;*.jpg;*.png;*.wbmp|Internet-Seiten "
                       "(*.htm;*.html)|*.htm;*.html|"
                       "WAP-Seiten (*.wml)|*.wml|Textdateien (*.txt)|*.txt|StyleSheets (*.css)|*.css|"
                       "ShockWaveFlash (*.swf)|*.swf|Scripte (*.js;*.vbs)|*.js;*.vbs|Archive (*.zip)|*.zip|"
                       "Alle Dateien (*.*)|*.*");
    Undo::PushUndo();
    if (Global::AssistantOpen) {
        Neighbours::RunAnimation(
            1, u"So fügen Sie einen Dateinamen ein. Der Path wird automatisch zu einem relativen "
               "Path konvertiert, wenn Sie die HTML-Seite schon gespeichert haben."_s);
    }
    const QString path = Dialogs::OpenFileDialog(u"Dateiname einfügen"_s, filter);
    if (path.isEmpty()) {
        if (Global::AssistantOpen) Neighbours::RunAnimation(0, {});
        return;
    }
    Global::DialogFile = path;
    const QString folder = Global::CurrentFile.first(Global::CurrentFile.lastIndexOf(u'\\') + 1);
    OnCode([&](CodeBox& box) { box.SetSelText(Global::RelativePathOf(path, folder)); });
}

void Menu_Insert_CloseTag() {
    OnCode([](CodeBox& box) { CodeAccess::CloseOpenTag(static_cast<double>(box.SelStart())); });
    Neighbours::FocusCode();
}

void Menu_Tools_UCaseTags() { ChangeTags(&CodeAccess::UpperCaseTags); }

void Menu_Tools_LCaseTags() { ChangeTags(&CodeAccess::LowerCaseTags); }

} // namespace EditCommands
