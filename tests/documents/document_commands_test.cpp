// SPDX-License-Identifier: MIT
#include "documents/document_commands.h"

#include "documents/document_file.h"
#include "documents/new_documents.h"
#include "documents/recovery.h"
#include "documents/templates.h"
#include "documents/undo.h"
#include "support/folder_test.h"

#include <QHash>

using Dialogs::Answer;
using namespace Documents;

// The commands on a code box without a screen.
class DocumentCommands : public FolderTest {
    Q_OBJECT

    QHash<int, QString> m_panels;
    QString m_caption;
    QStringList m_calls;
    QStringList m_gone; // windows that were unloaded

    void Type(const QString& text) {
        Global::CodeWindowOpen = true;
        m_box->SetText(text);
    }

public:
    DocumentCommands() : FolderTest(ProgramFolder::Content::Data) {}

private slots:
    void init() override {
        FolderTest::init();
        QVERIFY(Lists::LoadTagList());
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
                              m_gone << name;
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
    void tellsTypesOnOpening_data() {
        const auto row = Columns<QString, QByteArray, QString, QString, QString>("name", "content", "type",
                                                                                 "panel", "saved");
        row("HTML", "a.htm", "<!doctype html public \"-//w3c//dtd html 4.01 //en\">", "HTML", "HTML", "HTML");
        row("XHTML", "a.htm", "-//W3C//DTD XHTML 1.0", "XHTML", "XHTML", "XHTML");
        row("order of the list", "a.htm", "-//W3C//DTD XHTML -//W3C//DTD HTML", "HTML", "HTML", "HTML");
        row("WML", "a.txt", "-//WAPFORUM//DTD WML 1.1", "WML", "WAP", "WML");
        row("wml without doctype", "a.wml", "<wml>", "Text", "Text", "WML");
        row("script", "A.JS", "var a;", "JS", "JavaScript", "Text");
        row("style sheet", "a.css", "p {}", "CSS", "StyleSheet", "Text");
        row("page without doctype", "a.htm", "<html>", "Text", "Text", "Text");
        row("no extension", "lies.mich/a", "x", "Text", "Text", "Text");
        row("empty", "a.htm", "", "Text", "Text", "Text");
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
        const auto row = Columns<QByteArray, QByteArray>("before", "after");
        row("LF", "a\nb\n", "a\nb\n");
        row("no final line end", "a\r\nb", "a\r\nb\r\n");
        row("empty line at the end", "a\r\n\r\n", "a\r\n\r\n");
        row("several at the end lose one", "a\r\n\r\n\r\n\r\n", "a\r\n\r\n\r\n");
        row("last line of blanks", "a\r\n \t ", "a\r\n");
        row("last line of blanks goes alone", "a\r\n\r\n ", "a\r\n\r\n");
        row("UTF-16", QByteArray("\xFE\xFF\0a\0\r\0\n", 8), QByteArray("\xFE\xFF\0a\0\r\0\n", 8));
        row("no-break space at the end stays", "a\r\n\xA0", "a\r\n\xA0\r\n");
        row("UTF-8", "\xC3\xA4\xF0\x9F\x98\x80\n", "\xC3\xA4\xF0\x9F\x98\x80\n");
        row("mark", "\xEF\xBB\xBFx\r\n", "\xEF\xBB\xBFx\r\n");
        row("undefined bytes", "\x81\x8D\x8F\x90\x9D\r\n", "\x81\x8D\x8F\x90\x9D\r\n");
        row("mixed line ends", "a\nb\r\nc\rd", "a\r\nb\r\nc\r\nd\r\n");
        row("separators", "x\xE2\x80\xA8y\xE2\x80\xA9z\r\n", "x\xE2\x80\xA8y\xE2\x80\xA9z\r\n");
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
        SaveBackUp();
        QCOMPARE(m_folder->Read(u"a.htm"_s), QByteArray("<p>X</p>\r\n"));
        QCOMPARE(m_folder->Read(u"a.htm.bak"_s), QByteArray("<P>X</P>\r\n"));
        QCOMPARE(m_box->Text(), u"<P>X</P>\r\n"_s);
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
        Commands::SetChecked(u"Menu_Tools_Option_2"_s, true);
        for (const QByteArray& picture :
             {QByteArray::fromHex("47494638396101000100800000ffffff21f9040a0d002c"),
              QByteArray("GIF<B>\n\r\n\r\n \0", 13)}) {
            m_calls.clear();
            OpenFile(m_folder->Write(u"X.GIF"_s, picture));
            QCOMPARE(Global::DocType, u"IMG"_s);
            QCOMPARE(m_panels.value(1), u"Bild"_s);
            QVERIFY(Global::PicturePreview && !Global::CodeWindowOpen && Global::DocOpen);
            QCOMPARE(m_calls, QStringList{u"browse"_s});
            // every byte but the line end behind it, however often and whatever the options
            for (int times = 0; times < 3; ++times) Menu_File_Save_Click();
            QCOMPARE(m_folder->Read(u"X.GIF"_s), picture + "\r\n");
        }
        QVERIFY(!Neighbours::TheCodeBox()); // no window for the bytes of a picture
    }

    void previewsPagesOnly() {
        Global::AutoPreView = true;
        OpenFile(m_folder->Write(u"a.html"_s, "x"));
        OpenFile(m_folder->Write(u"a.css"_s, "x"));
        QCOMPARE(m_calls, QStringList{u"browse"_s});
        bool preview = true;
        Global::AutoPreView = false;
        OpenFile(m_folder->Path(u"a.html"_s), preview);
        QVERIFY(!preview && m_calls.size() == 1);
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
        QTest::addColumn<QString>("name"); // a folder, a missing one, a missing page and picture
        for (const char* name : {"ordner", "weg/a.htm", "fehlt.htm", "fehlt.gif"})
            QTest::newRow(name) << QString::fromLatin1(name);
    }
    void writesNothingBehindAFailedOpening() {
        QFETCH(QString, name);
        m_folder->Write(u"ordner/x"_s, "x");
        OpenFile(m_folder->Write(u"alt.htm"_s, "alter Text\r\n"));
        m_box->SetSelText(u"mein "_s);
        const QString caption = m_caption;
        const QStringList before = QDir(m_folder->System(u"."_s)).entryList(QDir::AllEntries);
        m_dialogs->ExpectFailedLoad();
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

    // For a document without a name: what is saved, and whether dropping a file and the menu go on to open.
    void asksBeforeTextIsLost_data() {
        const auto row = Columns<Answer, QString, bool, bool>("answer", "savePath", "opens", "asksFile");
        row("cancel", Answer::Cancel, "", false, false);
        row("no", Answer::No, "", true, true);
        row("yes", Answer::Yes, "neu.htm", true, true);
        row("yes, but not saved", Answer::Yes, "", false, true);
    }
    void asksBeforeTextIsLost() {
        QFETCH(Answer, answer);
        QFETCH(QString, savePath);
        QFETCH(bool, opens);
        QFETCH(bool, asksFile);
        const QString other = m_folder->Write(u"b.htm"_s, "anderer");
        for (const bool dropped : {true, false}) {
            Global::CurrentFile.clear();
            Type(u"wertvoll"_s);
            QFile::remove(m_folder->System(u"neu.htm"_s));
            m_dialogs->ExpectUnsaved(dropped ? u"Schließen"_s : u"Datei öffnen"_s, answer);
            const QString target = savePath.isEmpty() ? QString() : m_folder->Path(savePath);
            if (answer == Answer::Yes) m_dialogs->ExpectSaveFile(u"Speichern unter"_s, target);
            if (dropped) {
                DropFile(other);
                QCOMPARE(m_box->Text(), opens ? u"anderer"_s : u"wertvoll"_s);
            } else {
                if (asksFile) m_dialogs->ExpectOpenFile(u"Öffnen"_s, QString());
                Menu_File_Open_Click();
                QCOMPARE(m_box->Text(), u"wertvoll"_s); // the file dialog was cancelled
            }
            QVERIFY(m_dialogs->Finished());
            // a text that is given up although it was to be saved leaves a copy
            QCOMPARE(m_folder->Has(u"bckup.tmp"_s), answer == Answer::Yes && savePath.isEmpty() && !dropped);
            if (!savePath.isEmpty()) QCOMPARE(m_folder->Read(savePath), QByteArray("wertvoll\r\n"));
        }
    }

    void asksBeforeOverwriting() {
        m_folder->Write(u"da.htm"_s, "alt");
        Type(u"neu"_s);
        for (const bool overwrite : {false, true}) {
            m_dialogs->ExpectSaveFile(u"Speichern unter"_s, m_folder->Path(u"da.htm"_s));
            m_dialogs->ExpectMessage(
                u"Speichern"_s,
                u"Eine Datei mit diesem Namen existiert bereits.\rSoll sie überschrieben werden?"_s,
                overwrite ? Answer::Yes : Answer::No, Dialogs::Icon::Question);
            Menu_File_SaveAs();
            QVERIFY(m_dialogs->lastMessage.preset == Answer::No);
            QCOMPARE(m_folder->Read(u"da.htm"_s), QByteArray(overwrite ? "neu\r\n" : "alt"));
            QVERIFY(Global::SaveSucceeded == overwrite && Global::DocChanged != overwrite);
            QVERIFY(Global::CurrentFile.isEmpty() != overwrite);
        }
    }

    void tellsAFailedSave() {
        Type(u"wertvoll"_s);
        Global::CurrentFile = m_folder->Path(u"weg\\a.htm"_s);
        Global::DocChanged = false; // its file may have gone since
        m_dialogs->ExpectFailedSave();
        Menu_File_Save_Click();
        QVERIFY(!Global::SaveSucceeded && Global::DocChanged);
        QVERIFY(Global::CurrentFile.isEmpty()); // the next save asks for a name
    }

    void importsAtTheCaret() {
        Type(u"<p></p>"_s);
        m_box->SetSelStart(3);
        m_dialogs->ExpectOpenFile(u"Importieren"_s, m_folder->Write(u"text.txt"_s, "eins\nzw\xF6lf"));
        Menu_File_Import();
        m_dialogs->ExpectOpenFile(u"Importieren"_s, m_folder->Path(u"fehlt.txt"_s));
        m_dialogs->ExpectMessage(u"Fehler"_s, u"Fehler beim Laden der Datei."_s, Answer::Ok,
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
        for (const Answer answer : {Answer::Cancel, Answer::Yes}) {
            m_dialogs->ExpectUnsaved(u"Schließen"_s, answer);
            Menu_File_Close();
            QVERIFY(Global::CloseSucceeded == (answer == Answer::Yes));
        }
        QCOMPARE(m_folder->Read(u"a.htm"_s), QByteArray("yx\r\n"));
    }

    void bringsBackTheRecoveryCopy() {
        const auto offered = [] { return Commands::StateOf(u"Menu_File_RestoreFile"_s).visible; };
        Type(u"-//W3C//DTD XHTML\r\nŁódź"_s);
        QVERIFY(!Recovery::Exists() && Recovery::Write() && offered());
        ForgetText();
        Type(u"anderer"_s); // neither answer to the text that is open takes the copy away
        m_dialogs->ExpectUnsaved(u"Datei öffnen"_s, Answer::Cancel);
        Recovery::Menu_File_RestoreFile();
        QCOMPARE(m_box->Text(), u"anderer"_s);
        m_dialogs->ExpectUnsaved(u"Datei öffnen"_s, Answer::No);
        Recovery::Menu_File_RestoreFile();
        QCOMPARE(m_box->Text(), u"-//W3C//DTD XHTML\r\nŁódź\r\n"_s);
        QCOMPARE(Global::DocType, u"XHTML"_s);
        QVERIFY(Global::DocChanged && Recovery::Exists());
        m_dialogs->ExpectSaveFile(u"Speichern unter"_s, m_folder->Path(u"neu.htm"_s));
        Menu_File_Save_Click(); // now its text is safe
        QVERIFY(!Recovery::Exists() && !offered());
    }

    void keepsTheRecoveryCopyOfAnotherText() {
        m_folder->Write(u"bckup.tmp"_s, "von gestern");
        Type(u"y"_s);
        m_dialogs->ExpectUnsaved(u"Schließen"_s, Answer::No);
        Menu_File_Close();
        QVERIFY(Recovery::Exists()); // it has not been asked about
    }

    void createsEachKind() {
        using Create = void (*)();
        Global::AutoDebug = true;
        for (const auto& [create, type, caption] :
             {std::tuple(Create(CreateNewHTMLFile), u"HTML"_s, u"HTML"_s),
              {CreateNewXHTMLFile, u"XHTML"_s, u"XHTML"_s},
              {CreateNewWMLFile, u"WML"_s, u"WML"_s},
              {CreateNewJavaScript, u"JS"_s, u"JavaScript"_s},
              {CreateNewTextFile, u"Text"_s, u"Textdatei"_s}}) {
            OpenFile(m_folder->Write(u"alt.htm"_s, "alt"));
            m_calls.clear();
            m_gone.clear();
            create();
            QCOMPARE(Global::DocType, type);
            QCOMPARE(m_caption, u"Sorvane HTML Editor 3.0 [%1]"_s.arg(caption));
            QCOMPARE(Global::DocChanged, type != u"Text"); // it needs no helpers either
            QCOMPARE(m_calls.contains(u"debugger"_s), type != u"Text");
            QVERIFY(Global::DocOpen && Global::CurrentFile.isEmpty() && Global::HeldSource.isEmpty());
            QVERIFY(m_gone.contains(u"Frm_Browser"_s) && m_gone.contains(u"Frm_Welcome"_s));
            if (type == u"JS" || type == u"Text") {
                QCOMPARE(m_box->Text(), QString());
            } else { // a page is known again by its own doctype
                QCOMPARE(DocumentFile::TypeByMarker(m_box->Text()), type);
            }
            QCOMPARE(m_box->Text().endsWith(u'\n'), type == u"WML");
            QVERIFY(type != u"WML" || !m_box->Text().contains(u'\t'));
        }
        QVERIFY(Templates::Html({u"Verein"_s, {}, {}, {}}).contains(u"<title>Verein</title>"));
    }

    void asksBeforeReplacing() {
        Type(u"wertvoll"_s);
        m_dialogs->ExpectUnsaved(u"Neue Datei"_s, Answer::Cancel);
        Menu_File_NewPage();
        m_dialogs->ExpectUnsaved(u"Neue Datei"_s, Answer::Yes);
        m_dialogs->ExpectSaveFile(u"Speichern unter"_s, {});
        Menu_File_NewXHTMLFile();
        QCOMPARE(m_box->Text(), u"wertvoll"_s);
        m_dialogs->ExpectUnsaved(u"Neue Datei"_s, Answer::No);
        Menu_File_NewFile();
        QCOMPARE(m_box->Text(), QString());
        Menu_File_NewFile(); // nothing to lose, no question
    }
};

REGISTER_TEST(DocumentCommands);
#include "document_commands_test.moc"
