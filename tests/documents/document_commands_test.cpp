// SPDX-License-Identifier: MIT
#include "documents/document_commands.h"

#include "documents/document_file.h"
#include "documents/recovery.h"
#include "documents/text_buffer.h"
#include "documents/undo.h"
#include "platform/files.h"
#include "platform/literals.h"
#include "state/commands.h"
#include "state/global.h"
#include "state/lists.h"
#include "state/neighbours.h"
#include "state/windows.h"
#include "support/program_folder.h"
#include "support/scripted_dialogs.h"
#include "support/test_registry.h"

#include <QDir>
#include <QHash>

using Dialogs::Answer;
using namespace Documents;

// The commands on a code box without a screen.
class DocumentCommands : public QObject {
    Q_OBJECT

    std::unique_ptr<ProgramFolder> m_folder;
    std::unique_ptr<TextBuffer> m_box;
    QHash<int, QString> m_panels;
    QString m_caption;
    QStringList m_calls;

    const QString Unsaved =
        QStringLiteral("Die aktuelle Datei wurde noch nicht gespeichert. Möchten Sie das jetzt tun?");

    void Type(const QString& text) {
        Global::CodeWindowOpen = true;
        m_box->SetText(text);
    }

private slots:
    void init() {
        m_folder = std::make_unique<ProgramFolder>();
        QVERIFY(Lists::LoadTagList());
        m_box = std::make_unique<TextBuffer>();
        m_box->change = [] {
            Undo::PushUndo();
            Global::DocChanged = true;
        };
        m_panels.clear();
        m_calls.clear();
        Neighbours::OpenCodeBox.AnsweredBy([this] {
            Global::CodeWindowOpen = true;
            return m_box.get();
        });
        Neighbours::TheCodeBox.AnsweredBy([this] {
            Global::CodeWindowOpen = Global::CodeWindowOpen || Global::HasTextDocument();
            return Global::CodeWindowOpen ? m_box.get() : nullptr;
        });
        Windows::StandIn({{}, [this](const QString& name) {
                              if (name != u"Frm_Code" || !Global::CodeWindowOpen) return;
                              Global::HeldSource = m_box->Text();
                              Global::CodeWindowOpen = false;
                          }});
        Neighbours::SetStatusPanel.AnsweredBy(
            [this](int panel, const QString& text) { m_panels[panel] = text; });
        Neighbours::SetMainCaption.AnsweredBy([this](const QString& text) { m_caption = text; });
        Neighbours::Browse.AnsweredBy([this](const QString&) { m_calls << u"browse"_s; });
        Neighbours::CheckSyntax.AnsweredBy([this] { m_calls << u"check"_s; });
        Neighbours::ShowDebugger.AnsweredBy([this] { m_calls << u"debugger"_s; });
        Neighbours::ShowProjectManager.AnsweredBy([this] { m_calls << u"project"_s; });
        Neighbours::SearchLinks.AnsweredBy([this] { m_calls << u"links"_s; });
        Neighbours::RunAnimation.AnsweredBy([this](int, const QString& text) { m_calls << text; });
    }
    void cleanup() {
        m_folder.reset();
        Global::CodeWindowOpen = Global::DebuggerOpen = Global::ProjectWindowOpen = Global::AssistantOpen =
            false;
    }

    void tellsTypesOnOpening_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("panel");
        QTest::addColumn<QString>("saved"); // type after saving
        const auto row = [](const char* title, const QString& name, const QByteArray& content,
                            const QString& type, const QString& panel, const QString& saved) {
            QTest::newRow(title) << name << content << type << panel << saved;
        };
        row("HTML", u"a.htm"_s, "<!doctype html public \"-//w3c//dtd html 4.01 //en\">", u"HTML"_s, u"HTML"_s,
            u"HTML"_s);
        row("XHTML", u"a.htm"_s, "-//W3C//DTD XHTML 1.0", u"XHTML"_s, u"XHTML"_s, u"XHTML"_s);
        row("order of the list", u"a.htm"_s, "-//W3C//DTD XHTML <!-- -//W3C//DTD HTML -->", u"HTML"_s,
            u"HTML"_s, u"HTML"_s);
        row("WML", u"a.txt"_s, "-//WAPFORUM//DTD WML 1.1", u"WML"_s, u"WAP"_s, u"WML"_s);
        row("wml without doctype", u"a.wml"_s, "<wml>", u"Text"_s, u"Text"_s, u"WML"_s);
        row("script", u"A.JS"_s, "var a;", u"JS"_s, u"JavaScript"_s, u"Text"_s);
        row("Basic", u"a.vbs"_s, "Dim a", u"VBS"_s, u"VBScript"_s, u"Text"_s);
        row("style sheet", u"a.css"_s, "p {}", u"CSS"_s, u"StyleSheet"_s, u"Text"_s);
        row("text", u"a.txt"_s, "x", u"Text"_s, u"Text"_s, u"Text"_s);
        row("page without doctype", u"a.htm"_s, "<html>", u"Text"_s, u"Text"_s, u"Text"_s);
        row("no extension", u"lies.mich/a"_s, "x", u"Text"_s, u"Text"_s, u"Text"_s);
        row("empty", u"a.htm"_s, "", u"Text"_s, u"Text"_s, u"Text"_s);
    }
    void tellsTypesOnOpening() {
        QFETCH(QString, name);
        QFETCH(QByteArray, content);
        OpenFile(m_folder->Write(name, content));
        QTEST(Global::DocType, "type");
        QTEST(m_panels.value(1), "panel");
        QCOMPARE(m_panels.value(2), u"gespeichert"_s);
        QVERIFY(Global::DocOpen && !Global::DocChanged);
        QCOMPARE(m_caption, u"Sorvane HTML Editor 3.0 [%1]"_s.arg(name.section(u'/', -1)));
        Menu_File_Save_Click();
        QTEST(Global::DocType, "saved");
        QCOMPARE(Global::LastFile, m_folder->Path(name));
    }

    void keepsBytes_data() {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("after");
        const auto row = [](const char* title, const QByteArray& before, const QByteArray& after) {
            QTest::newRow(title) << before << after;
        };
        row("CR LF", "a\r\nb\r\n", "a\r\nb\r\n");
        row("LF", "a\nb\n", "a\nb\n");
        row("no final line end", "a\r\nb", "a\r\nb\r\n");
        row("empty line at the end", "a\r\n\r\n", "a\r\n\r\n");
        row("several at the end lose one", "a\r\n\r\n\r\n\r\n", "a\r\n\r\n\r\n");
        row("last line of blanks", "a\r\n \t ", "a\r\n");
        row("last line of blanks goes alone", "a\r\n\r\n ", "a\r\n\r\n");
        row("UTF-16", QByteArray("\xFE\xFF\0a\0\r\0\n", 8), QByteArray("\xFE\xFF\0a\0\r\0\n", 8));
        row("no-break space at the end stays", "a\r\n\xA0", "a\r\n\xA0\r\n");
        row("umlauts", "\xE4\xF6\r\n", "\xE4\xF6\r\n");
        row("UTF-8", "\xC3\xA4\xF0\x9F\x98\x80\n", "\xC3\xA4\xF0\x9F\x98\x80\n");
        row("mark",
            "\xEF\xBB\xBF"
            "a\r\n",
            "\xEF\xBB\xBF"
            "a\r\n");
        row("undefined bytes", "\x81\x8D\x8F\x90\x9D\r\n", "\x81\x8D\x8F\x90\x9D\r\n");
        row("mixed line ends", "a\nb\r\nc\rd", "a\r\nb\r\nc\r\nd\r\n");
        row("separators",
            "a\xE2\x80\xA8"
            "b\xE2\x80\xA9"
            "c\r\n",
            "a\xE2\x80\xA8"
            "b\xE2\x80\xA9"
            "c\r\n");
        row("empty", "", "\r\n");
    }
    void keepsBytes() {
        QFETCH(QByteArray, before);
        OpenFile(m_folder->Write(u"seite.htm"_s, before));
        Menu_File_Save_Click();
        QTEST(m_folder->Read(u"seite.htm"_s), "after");
        SaveBackUp();
        QTEST(m_folder->Read(u"seite.htm.bak"_s), "after");
    }

    void lowersTagsOnSave() {
        Commands::SetChecked(u"Menu_Tools_Option_2"_s, true);
        OpenFile(m_folder->Write(u"a.htm"_s, "<P>X</P>\r\n"));
        Menu_File_Save_Click();
        QCOMPARE(m_folder->Read(u"a.htm"_s), QByteArray("<p>X</p>\r\n"));
        QCOMPARE(m_box->Text(), u"<P>X</P>\r\n"_s);
        SaveBackUp();
        QCOMPARE(m_folder->Read(u"a.htm.bak"_s), QByteArray("<P>X</P>\r\n"));
    }

    void keepsTabsOutOfWml() {
        OpenFile(m_folder->Write(u"a.wml"_s, "<wml>\r\n\t<p/>\r\n</wml>\r\n"));
        m_box->SetSelStart(8);
        Menu_File_Save_Click();
        QCOMPARE(m_folder->Read(u"a.wml"_s), QByteArray("<wml>\r\n      <p/>\r\n</wml>\r\n"));
        QCOMPARE(m_box->SelStart(), 13);
        m_box->SetText(u"\tx"_s);
        Windows::Unload(u"Frm_Code");
        Menu_File_Save_Click();
        QCOMPARE(m_folder->Read(u"a.wml"_s), QByteArray("   x\r\n"));
    }

    void opensPictures() {
        const QByteArray picture =
            QByteArray::fromHex("47494638396101000100800000ffffff00000021f9040a0d002c");
        OpenFile(m_folder->Write(u"X.GIF"_s, picture));
        QCOMPARE(Global::DocType, u"IMG"_s);
        QCOMPARE(m_panels.value(1), u"Bild"_s);
        QVERIFY(Global::PicturePreview && !Global::CodeWindowOpen && Global::DocOpen);
        QCOMPARE(m_calls, QStringList{u"browse"_s});
        // every byte but the line end behind it, however often and whatever the options
        Commands::SetChecked(u"Menu_Tools_Option_2"_s, true);
        for (int times = 0; times < 3; ++times) Menu_File_Save_Click();
        QCOMPARE(m_folder->Read(u"X.GIF"_s), picture + "\r\n");
        const QByteArray endsLikeText = "GIF<B>\n\r\n\r\n \0";
        OpenFile(m_folder->Write(u"y.gif"_s, endsLikeText));
        for (int times = 0; times < 3; ++times) Menu_File_Save_Click();
        QCOMPARE(m_folder->Read(u"y.gif"_s), endsLikeText + "\r\n");
        QVERIFY(!Neighbours::TheCodeBox()); // no window for the bytes of a picture
    }

    void previewsPagesOnly() {
        Global::AutoPreView = true;
        OpenFile(m_folder->Write(u"a.html"_s, "x"));
        QCOMPARE(m_calls, QStringList{u"browse"_s});
        OpenFile(m_folder->Write(u"a.css"_s, "x"));
        QCOMPARE(m_calls.size(), 1);
        bool preview = true;
        Global::AutoPreView = false;
        OpenFile(m_folder->Path(u"a.html"_s), preview);
        QVERIFY(!preview);
        QCOMPARE(m_calls.size(), 1);
    }

    void refreshesTheOtherWindows() {
        Global::DebuggerOpen = Global::AutoDebug = Global::AutoProjectManager = true;
        OpenFile(m_folder->Write(u"a.htm"_s, "-//W3C//DTD HTML"));
        QCOMPARE(m_calls, (QStringList{u"check"_s, u"debugger"_s, u"project"_s, u"links"_s}));
        Global::AssistantOpen = true;
        OpenFile(m_folder->Write(u"b.htm"_s, "x"));
        QVERIFY(m_calls.contains(
            u"Huston, wir haben ein Problem. Der Dokumenttyp konnte nicht ermittelt werden. Die "
            "Datei wird als Text geöffnet."_s));
    }

    // The name stays, but no text goes under it: neither nothing nor that of the page before.
    void writesNothingBehindAFailedOpening_data() {
        QTest::addColumn<QString>("name");
        QTest::newRow("missing") << u"fehlt.htm"_s;
        QTest::newRow("folder") << u"ordner"_s;
        QTest::newRow("missing folder") << u"weg/a.htm"_s;
        QTest::newRow("missing picture") << u"fehlt.gif"_s;
    }
    void writesNothingBehindAFailedOpening() {
        QFETCH(QString, name);
        m_folder->Write(u"ordner/x"_s, "x");
        OpenFile(m_folder->Write(u"alt.htm"_s, "alter Text\r\n"));
        m_box->SetSelText(u"mein "_s);
        const QString caption = m_caption;
        const QStringList before = QDir(m_folder->System(u"."_s)).entryList(QDir::AllEntries);
        ScriptedDialogs dialogs;
        dialogs.ExpectMessage(
            u"Fehler"_s,
            u"Fehler beim Laden der Datei. Stellen Sie sicher, dass die Datei existiert und nicht "
            "geschützt ist."_s,
            Answer::Ok, Dialogs::Icon::Critical);
        OpenFile(m_folder->Path(name));
        QCOMPARE(Global::CurrentFile, m_folder->Path(name));
        QVERIFY(!Global::CodeWindowOpen && Global::DocOpen && !Global::DocChanged);
        QCOMPARE(m_caption, caption);
        Menu_File_Save_Click();
        Menu_File_SaveAs();
        SaveBackUp();
        QVERIFY(!Neighbours::TheCodeBox() && !Global::SaveSucceeded);
        QCOMPARE(QDir(m_folder->System(u"."_s)).entryList(QDir::AllEntries), before);
        QCOMPARE(m_folder->Read(u"alt.htm"_s), QByteArray("alter Text\r\n"));
        OpenFile(m_folder->Path(u"alt.htm"_s));
        QVERIFY(Neighbours::TheCodeBox() && Global::HasTextDocument());
    }

    void asksBeforeTextIsLost_data() {
        QTest::addColumn<int>("answer");
        QTest::addColumn<QString>("savePath"); // for the unnamed document; empty: cancelled
        QTest::addColumn<bool>("opens");       // on dropping a file
        QTest::addColumn<bool>("asksFile");    // on opening by the menu
        QTest::newRow("cancel") << int(Answer::Cancel) << QString() << false << false;
        QTest::newRow("no") << int(Answer::No) << QString() << true << true;
        QTest::newRow("yes") << int(Answer::Yes) << u"neu.htm"_s << true << true;
        QTest::newRow("yes, but not saved") << int(Answer::Yes) << QString() << false << true;
    }
    void asksBeforeTextIsLost() {
        QFETCH(int, answer);
        QFETCH(QString, savePath);
        QFETCH(bool, opens);
        QFETCH(bool, asksFile);
        const QString other = m_folder->Write(u"b.htm"_s, "anderer");
        for (const bool dropped : {true, false}) {
            Global::CurrentFile.clear();
            Type(u"wertvoll"_s);
            QFile::remove(m_folder->System(u"neu.htm"_s));
            ScriptedDialogs dialogs;
            dialogs.ExpectMessage(dropped ? u"Schließen"_s : u"Datei öffnen"_s, Unsaved, Answer(answer),
                                  Dialogs::Icon::Question);
            const QString target = savePath.isEmpty() ? QString() : m_folder->Path(savePath);
            if (Answer(answer) == Answer::Yes) dialogs.ExpectSaveFile(u"Speichern unter"_s, target);
            if (dropped) {
                DropFile(other);
                QCOMPARE(m_box->Text(), opens ? u"anderer"_s : u"wertvoll"_s);
            } else {
                if (asksFile) dialogs.ExpectOpenFile(u"Öffnen"_s, QString());
                Menu_File_Open_Click();
                QCOMPARE(m_box->Text(), u"wertvoll"_s); // the file dialog was cancelled
            }
            QVERIFY(dialogs.Finished());
            // a text that is given up although it was to be saved leaves a copy
            QCOMPARE(m_folder->Has(u"bckup.tmp"_s),
                     Answer(answer) == Answer::Yes && savePath.isEmpty() && !dropped);
            if (!savePath.isEmpty()) QCOMPARE(m_folder->Read(savePath), QByteArray("wertvoll\r\n"));
        }
    }

    void asksBeforeOverwriting() {
        m_folder->Write(u"da.htm"_s, "alt");
        Type(u"neu"_s);
        const QString question =
            u"Eine Datei mit diesem Namen existiert bereits.\rSoll sie überschrieben werden?"_s;
        {
            ScriptedDialogs dialogs;
            dialogs.ExpectSaveFile(u"Speichern unter"_s, m_folder->Path(u"da.htm"_s));
            dialogs.ExpectMessage(u"Speichern"_s, question, Answer::No, Dialogs::Icon::Question);
            Menu_File_SaveAs();
            QVERIFY(dialogs.lastMessage.preset == Answer::No);
        }
        QCOMPARE(m_folder->Read(u"da.htm"_s), QByteArray("alt"));
        QVERIFY(!Global::SaveSucceeded && Global::CurrentFile.isEmpty());
        ScriptedDialogs dialogs;
        dialogs.ExpectSaveFile(u"Speichern unter"_s, m_folder->Path(u"da.htm"_s));
        dialogs.ExpectMessage(u"Speichern"_s, question, Answer::Yes);
        Menu_File_SaveAs();
        QCOMPARE(m_folder->Read(u"da.htm"_s), QByteArray("neu\r\n"));
        QVERIFY(Global::SaveSucceeded && !Global::DocChanged);
    }

    void tellsAFailedSave() {
        Type(u"wertvoll"_s);
        Global::CurrentFile = m_folder->Path(u"weg\\a.htm"_s);
        ScriptedDialogs dialogs;
        dialogs.ExpectMessage(
            u"Fehler"_s,
            u"Fehler beim Speichern der Datei. Stellen Sie sicher, dass die Datei nicht schreibgeschützt ist."_s,
            Answer::Ok, Dialogs::Icon::Critical);
        Menu_File_Save_Click();
        QVERIFY(!Global::SaveSucceeded && Global::DocChanged);
        QVERIFY(Global::CurrentFile.isEmpty()); // the next save asks for a name
    }

    void importsAtTheCaret() {
        Type(u"<p></p>"_s);
        m_box->SetSelStart(3);
        const QString path = m_folder->Write(u"text.txt"_s, "eins\nzw\xF6lf");
        {
            ScriptedDialogs dialogs;
            dialogs.ExpectOpenFile(u"Importieren"_s, path);
            Menu_File_Import();
        }
        QCOMPARE(m_box->Text(), u"<p>eins\r\nzwölf\r\n</p>"_s);
        QCOMPARE(Global::DialogFile, path);
        ScriptedDialogs dialogs;
        dialogs.ExpectOpenFile(u"Importieren"_s, m_folder->Path(u"fehlt.txt"_s));
        dialogs.ExpectMessage(u"Fehler"_s, u"Fehler beim Laden der Datei."_s, Answer::Ok,
                              Dialogs::Icon::Critical);
        Menu_File_Import();
        QCOMPARE(m_box->Text(), u"<p>eins\r\nzwölf\r\n</p>"_s);
    }

    void closes() {
        OpenFile(m_folder->Write(u"a.htm"_s, "x"));
        Menu_File_Close();
        QVERIFY(Global::CloseSucceeded && !Global::DocOpen && Global::CurrentFile.isEmpty());
        OpenFile(m_folder->Path(u"a.htm"_s));
        m_box->SetSelText(u"y"_s);
        ScriptedDialogs dialogs;
        dialogs.ExpectMessage(u"Schließen"_s, Unsaved, Answer::Cancel);
        Menu_File_Close();
        QVERIFY(!Global::CloseSucceeded && Global::DocOpen);
        dialogs.ExpectMessage(u"Schließen"_s, Unsaved, Answer::Yes);
        Menu_File_Close();
        QVERIFY(Global::CloseSucceeded);
        QCOMPARE(m_folder->Read(u"a.htm"_s), QByteArray("yx\r\n"));
    }

    void bringsBackTheRecoveryCopy() {
        const auto offered = [] { return Commands::StateOf(u"Menu_File_RestoreFile"_s).visible; };
        Type(u"-//W3C//DTD XHTML\r\nŁódź"_s);
        QVERIFY(!Recovery::Exists() && Recovery::Write() && offered());
        ForgetText();
        {
            ScriptedDialogs dialogs; // neither answer to the text that is open takes the copy away
            Type(u"anderer"_s);
            dialogs.ExpectMessage(u"Datei öffnen"_s, Unsaved, Answer::Cancel);
            Recovery::Menu_File_RestoreFile();
            QCOMPARE(m_box->Text(), u"anderer"_s);
            dialogs.ExpectMessage(u"Datei öffnen"_s, Unsaved, Answer::No);
            Recovery::Menu_File_RestoreFile();
        }
        QCOMPARE(m_box->Text(), u"-//W3C//DTD XHTML\r\nŁódź\r\n"_s);
        QCOMPARE(Global::DocType, u"XHTML"_s);
        QVERIFY(Global::DocChanged && Recovery::Exists());
        ScriptedDialogs dialogs;
        dialogs.ExpectSaveFile(u"Speichern unter"_s, m_folder->Path(u"neu.htm"_s));
        Menu_File_Save_Click(); // now its text is safe
        QVERIFY(!Recovery::Exists() && !offered());
    }

    void dropsTheRecoveryCopyThatIsDeclined() {
        Type(u"x"_s);
        QVERIFY(Recovery::Write());
        ScriptedDialogs dialogs;
        dialogs.ExpectMessage(u"Schließen"_s, Unsaved, Answer::No);
        Menu_File_Close();
        QVERIFY(!Recovery::Exists());
        m_folder->Write(u"bckup.tmp"_s, "von gestern");
        Type(u"y"_s);
        dialogs.ExpectMessage(u"Schließen"_s, Unsaved, Answer::No);
        Menu_File_Close();
        QVERIFY(Recovery::Exists()); // the copy of another text has not been asked about
    }

    void backsUpAnUnnamedDocument() {
        QDir::setCurrent(m_folder->System(u"."_s));
        m_box->SetText(u"x"_s);
        Global::CodeWindowOpen = true;
        SaveBackUp();
        QCOMPARE(m_folder->Read(u".bak"_s), QByteArray("x\r\n"));
        QDir::setCurrent(QDir::rootPath());
    }
};

REGISTER_TEST(DocumentCommands);
#include "document_commands_test.moc"
