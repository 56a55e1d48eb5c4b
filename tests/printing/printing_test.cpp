// SPDX-License-Identifier: MIT
// Printing and its preview by their controls, in the real program; the sheets are read by another one.
#include "platform/events.h"
#include "printing/frm_print.h"
#include "printing/frm_print_preview.h"
#include "support/program_test.h"
#include "support/small_disk.h"

#include <QPrinterInfo>

class PrintingTest : public ProgramTest {
    Q_OBJECT

    const QString NoPrinter =
        u"Es ist kein Drucker eingerichtet. Die Seiten können als PDF-Datei gespeichert werden."_s;

    void Open(const QByteArray& text) {
        Documents::OpenFile(m_folder->Write(u"seite.htm"_s, "-//W3C//DTD HTML\r\n" + text));
    }
    static void In(const QString& command, const QString& dialog, std::function<void(QWidget*)> inside) {
        Driver::InModal(dialog, std::move(inside));
        Driver::Trigger(command);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    static void Print(std::function<void(QWidget*)> inside) {
        In(u"Menu_File_Print"_s, u"Frm_Print"_s, std::move(inside));
    }
    void ExpectFile(const QString& path) {
        m_dialogs->ExpectMessage(u"Drucken"_s, NoPrinter);
        m_dialogs->ExpectSaveFile(u"Als PDF-Datei speichern"_s, path);
    }
    // The text of the sheets, each ended by a form feed, as it stands on them.
    QString Sheets(const QString& name) const {
        QProcess reader;
        reader.start(u"pdftotext"_s, {u"-layout"_s, u"-enc"_s, u"UTF-8"_s, m_folder->System(name), u"-"_s});
        reader.waitForFinished();
        return QString::fromUtf8(reader.readAllStandardOutput());
    }

private slots:
    void previewsInColours() {
        Open("<p class=\"x\">\xE4</p>\r\n<!--");
        const QString before = Box().Text();
        In(u"Menu_View_SyntaxPreView"_s, u"Frm_PrintPreView"_s, [&](QWidget* window) {
            auto* box = window->findChild<Txt_Code*>();
            QTRY_COMPARE(box->Text(), before);
            QCOMPARE(box->SelStart(), before.size());
            QCOMPARE(box->SelLength(), 0);
            QCOMPARE(box->document()->findBlockByNumber(2).layout()->formats().value(0).format.foreground(),
                     QBrush(QColor(192, 192, 192)));
            QTest::keyClick(box, Qt::Key_X);
            QTest::keyClick(box, Qt::Key_Space, Qt::ControlModifier);
            QCOMPARE(box->Text(), before);
            QCOMPARE(box->size(), window->size());
            window->close();
        });
        QVERIFY(!Loaded<Frm_PrintPreView>());
        QVERIFY(!Global::DocChanged);
    }

    // A page in one line stands in several there, but is copied as it is.
    void copiesLinesFromThePreview() {
        const QByteArray text = QByteArray("<b>Wort</b> ").repeated(3000) + "\r\nzwei\r\n";
        Open(text);
        In(u"Menu_View_SyntaxPreView"_s, u"Frm_PrintPreView"_s, [&](QWidget* window) {
            auto* box = window->findChild<Txt_Code*>();
            QTRY_VERIFY(box->document()->blockCount() > 6);
            for (QTextBlock block = box->document()->findBlockByNumber(1); block.text().size() > 100;
                 block = block.next()) {
                QCOMPARE(block.layout()->formats().value(1).format.fontWeight(), int(QFont::Bold));
            }
            box->selectAll();
            box->copy();
            QCOMPARE(QApplication::clipboard()->text(),
                     QString::fromLatin1("-//W3C//DTD HTML\n" + QByteArray(text).replace("\r\n", "\n")));
            window->close();
        });
    }

    void refusesWhatItCannotPrint() {
        Open("x");
        Print([&](QWidget* window) {
            Driver::Find<QComboBox>(u"Cmb_FontSize"_s)->setEditText(u"20"_s);
            m_dialogs->ExpectMessage(u"Drucken"_s, u"Geben Sie eine Schriftgröße zwischen 8 und 14 ein."_s,
                                     Dialogs::Answer::Ok, Dialogs::Icon::Exclamation);
            Driver::Click(u"Cmd_Control_0"_s);
            QVERIFY(window->isVisible());
            Driver::Click(u"Cmd_Control_1"_s);
        });
        Documents::OpenFile(m_folder->Write(u"bild.gif"_s, "GIF89a"));
        Print([&](QWidget*) {
            QVERIFY(!Driver::FindControl(u"Opt_PrintOption_1"_s)->isEnabled());
            m_dialogs->ExpectMessage(u"Drucken"_s, u"Es ist kein Text geöffnet, der gedruckt werden kann."_s);
            Driver::Click(u"Cmd_Control_0"_s);
            Driver::Click(u"Cmd_Control_1"_s);
        });
        QVERIFY(!m_folder->Has(u"x.pdf"_s));
    }

    void printsTheSelection() {
        if (!QPrinterInfo::availablePrinters().isEmpty()) QSKIP("there is a printer");
        Open("eins zwei drei");
        Print([&](QWidget*) {
            QVERIFY(!Driver::FindControl(u"Opt_PrintOption_1"_s)->isEnabled());
            QVERIFY(Driver::Find<QAbstractButton>(u"Opt_PrintOption_0"_s)->isChecked());
            QVERIFY(!Driver::FindControl(u"Txt_PageHead"_s)->isEnabled());
            Driver::Click(u"Cmd_Control_1"_s);
        });
        Select(23, 4);
        const QString path = m_folder->Path(u"x.pdf"_s);
        ExpectFile(path);
        Print([](QWidget*) {
            QVERIFY(Driver::Find<QAbstractButton>(u"Opt_PrintOption_1"_s)->isChecked());
            Driver::Click(u"Chk_PrintOption_1"_s);
            QTest::keyClicks(Driver::FindControl(u"Txt_PageHead"_s), u"Mein Kopf"_s);
            Driver::Click(u"Chk_PrintOption_2"_s);
            Driver::Click(u"Cmd_Control_0"_s);
        });
        QVERIFY(!Loaded<Frm_Print>());
        QCOMPARE(Sheets(u"x.pdf"_s).simplified(), u"Mein Kopf zwei Seite 1 von 1"_s);
        QCOMPARE(Box().SelStart(), 23);
        QCOMPARE(Box().SelLength(), 4);

        ExpectFile(path);
        m_dialogs->ExpectMessage(
            u"Speichern"_s,
            u"Eine Datei mit diesem Namen existiert bereits.\rSoll sie überschrieben werden?"_s,
            Dialogs::Answer::No);
        const QByteArray old = m_folder->Read(u"x.pdf"_s);
        Print([](QWidget* window) {
            Driver::Click(u"Cmd_Control_0"_s);
            QVERIFY(window->isVisible());
            QVERIFY(Driver::FindControl(u"Txt_Number"_s)->isEnabled());
            Driver::Click(u"Cmd_Control_1"_s);
        });
        QCOMPARE(m_folder->Read(u"x.pdf"_s), old);
    }

    // Long lines with and without blanks, copies, umlauts: each character stands on the paper, once a copy.
    void losesNothingOnPaper() {
        if (!QPrinterInfo::availablePrinters().isEmpty()) QSKIP("there is a printer");
        QByteArray text = QByteArray(5000, 'A') + "\r\n\r\n\t<b>\xC4\xD6\xDC \xE4\xF6\xFC\xDF \x80</b>\r\n";
        for (int i = 0; i < 400; ++i) text += "Wort" + QByteArray::number(i) + ' ';
        for (int i = 0; i < 100; ++i) text += "\r\n<!-- Zeile " + QByteArray::number(i) + " -->";
        Open(text);
        ExpectFile(m_folder->Path(u"x.pdf"_s));
        Print([](QWidget*) {
            Driver::Click(u"Chk_PrintOption_0"_s);
            Driver::Click(u"Chk_PrintOption_2"_s);
            Driver::Find<QComboBox>(u"Cmb_FontSize"_s)->setCurrentText(u"14"_s);
            Driver::Find<QLineEdit>(u"Txt_Number"_s)->setText(u"2"_s);
            Driver::Click(u"Cmd_Control_0"_s);
        });
        const QString sheets = Sheets(u"x.pdf"_s);
        const qsizetype pages = sheets.count(u'\f');
        QVERIFY(pages > 6 && pages % 2 == 0);
        QCOMPARE(sheets.count(u" von %1"_s.arg(pages / 2)), pages);
        QCOMPARE(sheets.count(u"seite.htm     HTML     "_s), 2);
        QCOMPARE(sheets.count(u"ÄÖÜ äöüß €</b>"_s), 2);
        QCOMPARE(sheets.count(u'A'), 10'000);
        for (int i = 0; i < 400; ++i) QCOMPARE(sheets.count(QRegularExpression(u"\\bWort%1\\b"_s.arg(i))), 2);
        QCOMPARE(sheets.count(u"<!-- Zeile 99 -->"_s), 2);
        QVERIFY(!Global::DocChanged);
    }

    void tellsOfAFullDisk() {
        if (!QPrinterInfo::availablePrinters().isEmpty()) QSKIP("there is a printer");
        const SmallDisk disk;
        if (!disk.Mounted()) QSKIP("only root may mount");
        const QString path = disk.Path() + u"\\x.pdf"_s;
        QVERIFY(Files::Write(path, "old"));
        disk.Fill(0);
        Open("x");
        ExpectFile(path);
        m_dialogs->ExpectMessage(
            u"Speichern"_s,
            u"Eine Datei mit diesem Namen existiert bereits.\rSoll sie überschrieben werden?"_s,
            Dialogs::Answer::Yes);
        m_dialogs->ExpectMessage(u"Fehler"_s, u"Fehler beim Speichern der Datei."_s);
        Print([](QWidget* window) {
            Driver::Click(u"Cmd_Control_0"_s);
            QVERIFY(window->isVisible());
            Driver::Click(u"Cmd_Control_1"_s);
        });
        QCOMPARE(Files::Read(path), QByteArray("old"));
    }

    // The window closed in the middle: nothing is written.
    void isLeftWhileItPrints() {
        if (!QPrinterInfo::availablePrinters().isEmpty()) QSKIP("there is a printer");
        Open(QByteArray("<p>Zeile</p>\r\n").repeated(200'000));
        ExpectFile(m_folder->Path(u"x.pdf"_s));
        Print([](QWidget* window) {
            QTimer::singleShot(0, window, [window] {
                QVERIFY(!Driver::FindControl(u"Cmd_Control_0"_s)->isEnabled());
                QTest::keyClick(window, Qt::Key_Escape);
            });
            Driver::Click(u"Cmd_Control_0"_s);
        });
        QVERIFY(!Loaded<Frm_Print>());
        QVERIFY(!m_folder->Has(u"x.pdf"_s));
    }
};

REGISTER_TEST_AS(Printing, PrintingTest);

#include "printing_test.moc"
