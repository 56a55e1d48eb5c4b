// SPDX-License-Identifier: MIT
#include "preview/preview_commands.h"
#include "support/folder_test.h"

using namespace Preview;

class PreviewCommands : public FolderTest {
    Q_OBJECT

    QStringList m_calls;

    // Opens a document as the editor has it.
    void Open(const QString& name, const QString& text) {
        Global::CurrentFile = name.isEmpty() ? name : m_folder->Path(name);
        Global::DocOpen = Global::CodeWindowOpen = true;
        m_box->SetText(text);
    }

public:
    PreviewCommands() : FolderTest(ProgramFolder::Content::Data) {}

private slots:
    void init() override {
        FolderTest::init();
        QVERIFY(Lists::LoadTagList());
        m_calls.clear();
        Neighbours::Browse.AnsweredBy([this](const QString& path) { m_calls << u"browse "_s + path; });
        Neighbours::CheckSyntax.AnsweredBy([this] { m_calls << u"check"_s; });
        Neighbours::RunAnimation.AnsweredBy([this](int, const QString& text) { m_calls << text; });
    }

    void showsTheSavedPage() {
        Open(u"seite.htm"_s, u"<P>Neu</P>"_s);
        Global::DocChanged = Global::DebuggerOpen = true;
        Menu_View_Browser_Once();
        QCOMPARE(m_folder->Read(u"seite.htm"_s), "<P>Neu</P>\r\n");
        QCOMPARE(m_calls, (QStringList{u"check"_s, u"browse "_s + m_folder->Path(u"seite.htm"_s)}));

        // without a project the index page is the page itself; with one it is the project's
        m_calls.clear();
        Global::DebuggerOpen = false;
        Menu_View_Browser_Project();
        QCOMPARE(m_calls, QStringList{u"browse "_s + m_folder->Path(u"seite.htm"_s)});
        Neighbours::ReturnIndexFile.AnsweredBy([] { return u"\\web\\index.htm"_s; });
        Menu_View_Browser_Project();
        QCOMPARE(m_calls.last(), u"browse \\web\\index.htm"_s);
    }

    void showsNoScriptsAndStyles() {
        Global::AssistantOpen = true;
        for (const auto& [name, shown] : {std::pair(u"a.html"_s, true),
                                          {u"liesmich"_s, true},
                                          {u"a.js"_s, false},
                                          {u"A.VBS"_s, false},
                                          {u"a.css"_s, false}}) {
            m_calls.clear();
            Open(name, u"a"_s);
            Menu_View_Browser_Once();
            QVERIFY(m_folder->Has(name)); // saved in any case
            QCOMPARE(m_calls.contains(u"Für diesen Dateityp ist keine Vorschau möglich."_s), !shown);
            QCOMPARE(m_calls.contains(u"browse "_s + Global::CurrentFile), shown);
        }
    }

    void showsNothingThatIsNotOnDisk() {
        Open({}, u"a"_s);
        for (const auto command :
             {Menu_View_Browser_Once, Menu_View_Browser_Project, Menu_View_Browser_WAP}) {
            m_dialogs->ExpectSaveFile(u"Speichern unter"_s, QString());
            command();
        }
        Files::SetProgramDirectory(u"\\no\\such\\folder"_s);
        m_dialogs->ExpectMessage(u"Fehler"_s,
                                 u"Die Datei für die Temporärvorschau konnte nicht geschrieben werden."_s);
        Menu_View_Browser_Temp();
        QCOMPARE(m_calls, QStringList());
    }

    void writesTheTemporaryCopy_data() {
        const auto row = Columns<QString, QString, QByteArray>("name", "text", "bytes");
        row("unnamed", "", "<p>ä", "<p>\xE4\r\n");
        row("extension cut", "x.html", "a\r\n", "a\r\n");
        row("style sheet", "x.css", "a{}", "a{}\r\n");
        row("one line end goes", "x.htm", "a\r\n\r\n \t", "a\r\n\r\n");
        row("beyond the code page", "x.htm", "ä\u0416", "\xC3\xA4\xD0\x96\r\n");
    }
    void writesTheTemporaryCopy() {
        QFETCH(QString, name);
        QFETCH(QString, text);
        const QString copy = name.endsWith(u".css") ? u"temp.css"_s : u"temp.htm"_s;
        Open(name, text);
        Global::DocChanged = true;
        Menu_View_Browser_Temp();
        QTEST(m_folder->Read(copy), "bytes");
        QCOMPARE(m_calls, QStringList{u"browse "_s + m_folder->Path(copy)});
        QVERIFY(Global::DocChanged && (name.isEmpty() || !m_folder->Has(name))); // nothing was saved
        // what the copy needed does not turn the document's own encoding
        QCOMPARE(Global::DocumentFormat.encoding, CodePage::Encoding::Windows1252);
    }

    void copiesInTheDocumentsEncoding() {
        Open(u"x.htm"_s, u"ä\r\nö"_s);
        Global::DocumentFormat = {CodePage::Encoding::Utf8, true, true};
        Menu_View_Browser_Temp();
        QCOMPARE(m_folder->Read(u"temp.htm"_s), "\xEF\xBB\xBF\xC3\xA4\n\xC3\xB6\n");
        // with the code window closed the text is the held one
        Global::CodeWindowOpen = false;
        Global::HeldSource = u"<P>x</P>"_s;
        Global::DocumentFormat = {};
        Commands::SetChecked(u"Menu_Tools_Option_2"_s, true);
        Menu_View_Browser_Temp();
        QCOMPARE(m_folder->Read(u"temp.htm"_s), "<p>x</p>\r\n");
    }

    void leavesAPictureAlone() {
        const QByteArray bytes("GIF89a\r\n\r\n\n\x01");
        m_folder->Write(u"bild.gif"_s, bytes);
        Open(u"bild.gif"_s, {});
        Global::CodeWindowOpen = false;
        Global::DocType = u"IMG"_s;
        Global::HeldSource = QString::fromLatin1(bytes);
        Menu_View_Browser_Once();
        QCOMPARE(m_folder->Read(u"bild.gif"_s), bytes);
        QCOMPARE(m_calls, QStringList{u"browse "_s + m_folder->Path(u"bild.gif"_s)});
    }

    void convertsForTheWAPSimulation() {
        Open(u"start.wml"_s, u"<wml><card title=\"A\">Hallo</card></wml>"_s);
        Menu_View_Browser_WAP();
        QCOMPARE(m_calls, QStringList{u"browse "_s + m_folder->Path(u"tmp/start.htm"_s)});
        QVERIFY(m_folder->Read(u"tmp/start.htm"_s).endsWith("<body>Hallo</body></html>\r\n"));
    }
};

REGISTER_TEST(PreviewCommands);
#include "preview_commands_test.moc"
