// SPDX-License-Identifier: MIT
#include "printing/frm_print.h"

#include "documents/code_box.h"
#include "documents/document_commands.h"
#include "platform/dialogs.h"
#include "platform/events.h"
#include "platform/files.h"
#include "platform/icons.h"
#include "platform/literals.h"
#include "state/busy.h"
#include "state/global.h"
#include "state/neighbours.h"
#include "state/windows.h"

#include <QBuffer>
#include <QCheckBox>
#include <QComboBox>
#include <QDateTime>
#include <QFormLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QLocale>
#include <QPdfWriter>
#include <QPointer>
#include <QPrinter>
#include <QPrinterInfo>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace {

constexpr int PdfDotsPerInch = 600;

template<class Control> Control* Named(Control* control, const QString& name) {
    control->setObjectName(name);
    return control;
}

void Refuse(const QString& text) { Dialogs::Tell(u"Drucken"_s, text, Dialogs::Icon::Exclamation); }

// The printer that the system prints on where nobody chooses one; a null one where there is none at all.
QPrinterInfo SystemPrinter() {
    const QPrinterInfo preset = QPrinterInfo::defaultPrinter();
    if (!preset.isNull()) return preset;
    const QList<QPrinterInfo> all = QPrinterInfo::availablePrinters();
    return all.isEmpty() ? preset : all.constFirst();
}

} // namespace

Frm_Print::Frm_Print()
    : Opt_PrintOption_0(Named(new QRadioButton(u"gesamten Text drucken"_s), u"Opt_PrintOption_0"_s)),
      Opt_PrintOption_1(Named(new QRadioButton(u"markierten Text drucken"_s), u"Opt_PrintOption_1"_s)),
      Chk_PrintOption_0(Named(new QCheckBox(u"Dateiinformationen drucken"_s), u"Chk_PrintOption_0"_s)),
      Chk_PrintOption_1(Named(new QCheckBox(u"eigenen Seitenkopf festlegen"_s), u"Chk_PrintOption_1"_s)),
      Chk_PrintOption_2(Named(new QCheckBox(u"Syntax-Highlights hervorheben"_s), u"Chk_PrintOption_2"_s)),
      Txt_PageHead(Named(new QLineEdit, u"Txt_PageHead"_s)),
      Cmb_FontSize(Named(new QComboBox, u"Cmb_FontSize"_s)),
      Txt_Number(Named(new QLineEdit(u"1"_s), u"Txt_Number"_s)), m_options(MakeOptions()) {
    setObjectName(u"Frm_Print"_s);
    setWindowTitle(u"Drucken"_s);
    setWindowIcon(Icons::Named(u"print"));
    connect(Chk_PrintOption_1, &QCheckBox::toggled, this, &Frm_Print::Chk_PrintOption_1_Click);
    Chk_PrintOption_1_Click();

    auto* preview = Named(new QPushButton(u"Vorschau..."_s), u"Cmd_PreView"_s);
    auto* print = Named(new QPushButton(u"&Drucken"_s), u"Cmd_Control_0"_s);
    auto* close = Named(new QPushButton(u"S&chließen"_s), u"Cmd_Control_1"_s);
    print->setDefault(true);
    preview->setAutoDefault(false);
    close->setAutoDefault(false);
    connect(preview, &QPushButton::clicked, this, [] { Windows::Show(u"Frm_PrintPreView"); });
    connect(print, &QPushButton::clicked, this, &Frm_Print::Print);
    connect(close, &QPushButton::clicked, this, &Frm_Print::reject);
    auto* controls = new QHBoxLayout;
    controls->addWidget(preview);
    controls->addStretch();
    controls->addSpacing(24);
    controls->addWidget(print);
    controls->addWidget(close);
    auto* all = new QVBoxLayout(this);
    all->addWidget(m_options);
    all->addStretch();
    all->addLayout(controls);
}

QWidget* Frm_Print::MakeOptions() {
    for (int size = 8; size <= 14; ++size) Cmb_FontSize->addItem(QString::number(size));
    Cmb_FontSize->setEditable(true);
    Cmb_FontSize->setInsertPolicy(QComboBox::NoInsert);
    Cmb_FontSize->setCurrentText(u"10"_s);
    Txt_PageHead->setAccessibleName(u"Seitenkopf"_s);

    auto* range = new QGroupBox(u"Bereich"_s);
    auto* rangeLines = new QVBoxLayout(range);
    rangeLines->addWidget(Opt_PrintOption_0);
    rangeLines->addWidget(Opt_PrintOption_1);

    auto* page = new QGroupBox(u"Seite"_s);
    auto* pageLines = new QVBoxLayout(page);
    pageLines->addWidget(Chk_PrintOption_0);
    pageLines->addWidget(Chk_PrintOption_1);
    pageLines->addWidget(Txt_PageHead);
    pageLines->addWidget(Chk_PrintOption_2);
    auto* numbers = new QFormLayout;
    numbers->addRow(u"Schriftgröße:"_s, Cmb_FontSize);
    numbers->addRow(u"Anzahl:"_s, Txt_Number);
    pageLines->addLayout(numbers);

    auto* options = new QWidget;
    auto* lines = new QVBoxLayout(options);
    lines->setContentsMargins(0, 0, 0, 0);
    lines->addWidget(range);
    lines->addWidget(page);
    return options;
}

void Frm_Print::OnLoad() {
    const CodeBox* box = Global::CodeWindowOpen ? Neighbours::TheCodeBox() : nullptr;
    const bool selected = box && box->SelLength() >= 1;
    Opt_PrintOption_1->setEnabled(selected);
    (selected ? Opt_PrintOption_1 : Opt_PrintOption_0)->setChecked(true);
    if (!Global::AssistantOpen) return;
    Neighbours::RunAnimation(
        1, u"Hier können Sie den Code ausdrucken. Sie können den ganzen Text oder nur den markierten Text "
           "drucken. Außerdem können Sie am Anfang der ersten Seite Dateiinformationen oder einen eigenen "
           "Text mitdrucken lassen. Es besteht auch die Möglichkeit die Syntax hervorzuheben."_s);
}

void Frm_Print::reject() {
    m_left = true;
    QDialog::reject();
}

void Frm_Print::Chk_PrintOption_1_Click() {
    const bool on = Chk_PrintOption_1->isChecked();
    Txt_PageHead->setEnabled(on);
    // the colour of a field that takes input, or that of the window's face
    QPalette colours = palette();
    if (!on) colours.setColor(QPalette::Disabled, QPalette::Base, colours.color(QPalette::Button));
    Txt_PageHead->setPalette(colours);
}

QString Frm_Print::DocumentText() { return Global::HasTextDocument() ? Documents::CurrentText() : QString(); }

void Frm_Print::GenerateSyntaxHighLights(SyntaxSpans::ColouredText& page, const QString& head,
                                         const std::function<bool()>& wanted) {
    Busy busy;
    Events::Pace pace;
    page.spans = SyntaxSpans::Find(page.text, head.size(), SyntaxSpans::HasTags(Global::CurrentFile),
                                   [&](double done) {
                                       if (!pace.IsDue()) return true;
                                       busy.Progress(qsizetype(100 * done), 100);
                                       pace.LetEventsRun();
                                       return wanted();
                                   });
}

void Frm_Print::Print() {
    const PageText::Request request = PageText::Read(Cmb_FontSize->currentText(), Txt_Number->text());
    if (!request.refusal.isEmpty()) return Refuse(request.refusal);
    if (!Global::HasTextDocument()) {
        return Refuse(u"Es ist kein Text geöffnet, der gedruckt werden kann."_s);
    }
    m_options->setEnabled(false);
    const auto buttons = findChildren<QPushButton*>();
    for (QPushButton* button : buttons) button->setEnabled(button->objectName() == u"Cmd_Control_1");
    const QPointer<Frm_Print> alive(this); // letting events run may end this window
    const auto wanted = [&] { return alive && !m_left; };
    const Sheets::Result result =
        SystemPrinter().isNull() ? PrintIntoFile(request, wanted) : PrintOnPrinter(request, wanted);
    if (!wanted()) return;
    m_options->setEnabled(true);
    for (QPushButton* button : buttons) button->setEnabled(true);
    if (result == Sheets::Result::Printed) accept();
}

Sheets::Result Frm_Print::PrintOnPrinter(const PageText::Request& request,
                                         const std::function<bool()>& wanted) {
    QPrinter printer(SystemPrinter(), QPrinter::HighResolution);
    printer.setDocName(PageText::NameOf(Global::CurrentFile));
    const Sheets::Result result = PrintOn(printer, request, [&] {
        if (wanted()) return true;
        printer.abort(); // before the painting ends; CUPS prints the sheets so far all the same
        return false;
    });
    if (result == Sheets::Result::Failed) {
        Dialogs::Tell(u"Drucken"_s, u"Der Drucker nimmt den Text nicht an."_s, Dialogs::Icon::Critical);
    }
    return result;
}

Sheets::Result Frm_Print::PrintIntoFile(const PageText::Request& request,
                                        const std::function<bool()>& wanted) {
    Dialogs::Tell(u"Drucken"_s,
                  u"Es ist kein Drucker eingerichtet. Die Seiten können als PDF-Datei gespeichert werden."_s,
                  Dialogs::Icon::Information);
    const QString path =
        Dialogs::SaveFileDialog(u"Als PDF-Datei speichern"_s, u"PDF-Dateien (*.pdf)|*.pdf"_s);
    if (path.isEmpty()) return Sheets::Result::Ended;
    if (!Dialogs::MayOverwrite(path, Dialogs::Icon::Exclamation, Dialogs::Answer::Yes)) {
        return Sheets::Result::Ended;
    }
    QBuffer file; // whole before a byte of it goes to the disk
    file.open(QIODevice::WriteOnly);
    QPdfWriter writer(&file);
    writer.setTitle(PageText::NameOf(Global::CurrentFile));
    writer.setCreator(Global::ProgramName);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setResolution(PdfDotsPerInch);
    const Sheets::Result result = PrintOn(writer, request, wanted);
    if (result == Sheets::Result::Ended) return result;
    if (result == Sheets::Result::Printed && Files::Write(path, file.data())) return result;
    Dialogs::Tell(u"Fehler"_s, u"Fehler beim Speichern der Datei."_s, Dialogs::Icon::Critical);
    return Sheets::Result::Failed;
}

Sheets::Result Frm_Print::PrintOn(QPagedPaintDevice& device, const PageText::Request& request,
                                  const std::function<bool()>& wanted) {
    const SyntaxSpans::ColouredText page = Page(wanted);
    if (!wanted()) return Sheets::Result::Ended;
    Busy busy;
    Events::Pace pace;
    return Sheets::Print(device, page, request.fontSize, request.copies, [&](double done) {
        if (!pace.IsDue()) return true;
        busy.Progress(qsizetype(100 * done), 100);
        pace.LetEventsRun();
        return wanted();
    });
}

SyntaxSpans::ColouredText Frm_Print::Page(const std::function<bool()>& wanted) const {
    const QString head = HeadText();
    SyntaxSpans::ColouredText page{PageText::Whole(head, BodyText()), {}};
    if (Chk_PrintOption_2->isChecked()) GenerateSyntaxHighLights(page, head, wanted);
    if (!head.isEmpty()) {
        page.spans.insert(page.spans.begin(), {0, head.size(), SyntaxSpans::Colour::Text, true, true});
    }
    return page;
}

QString Frm_Print::HeadText() const {
    const QDateTime now = QDateTime::currentDateTime();
    const PageText::FileLine file{Global::CurrentFile, Global::DocType,
                                  QLocale().toString(now.date(), QLocale::ShortFormat),
                                  QLocale().toString(now.time(), QLocale::ShortFormat)};
    const QString own = Txt_PageHead->text();
    return PageText::Head(Chk_PrintOption_0->isChecked() ? &file : nullptr,
                          Chk_PrintOption_1->isChecked() ? &own : nullptr);
}

QString Frm_Print::BodyText() const {
    const CodeBox* box = Global::CodeWindowOpen ? Neighbours::TheCodeBox() : nullptr;
    return box && Opt_PrintOption_1->isChecked() ? box->SelText() : DocumentText();
}
