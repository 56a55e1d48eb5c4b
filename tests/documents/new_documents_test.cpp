// SPDX-License-Identifier: MIT
#include "documents/new_documents.h"

#include "documents/templates.h"
#include "documents/text_buffer.h"
#include "platform/literals.h"
#include "state/global.h"
#include "state/neighbours.h"
#include "state/windows.h"
#include "support/program_folder.h"
#include "support/scripted_dialogs.h"
#include "support/test_registry.h"

using Dialogs::Answer;

class NewDocuments : public QObject {
    Q_OBJECT

private slots:
    void writesTemplates() {
        const QString html = Templates::Html();
        const QStringList lines = html.split(u"\r\n"_s);
        QCOMPARE(lines.size(), 15);
        QCOMPARE(lines[0], u"<!doctype html public \"-//w3c//dtd html 4.01 //en\">"_s);
        QCOMPARE(lines[3], u"\t\t<title></title>"_s);
        QCOMPARE(lines[4], u"\t\t<meta name=\"description\" content=\"\">"_s);
        QCOMPARE(lines[7], u"\t\t<meta name=\"generator\" content=\"Sorvane HTML Editor 3.0\">"_s);
        QCOMPARE(lines.mid(9), (QStringList{u"\t<body>"_s, {}, {}, {}, u"\t</body>"_s, u"</html>"_s}));
        const QStringList xhtml = Templates::Xhtml().split(u"\r\n"_s);
        QCOMPARE(xhtml.size(), 15);
        QCOMPARE(xhtml[0], u"<!DOCTYPE html PUBLIC \"-//W3C//DTD XHTML 1.0 Transitional//EN\" "
                           "\"DTD/xhtml1-transitional.dtd\" />"_s);
        QVERIFY(xhtml[7].endsWith(u"3.0\" />"));
        const QStringList wml = Templates::Wml().split(u"\r\n"_s);
        QCOMPARE(wml.size(), 18);
        QCOMPARE(wml.last(), QString()); // ends with a line end
        QCOMPARE(wml[7], u"      <meta name=\"generator\" content=\"Sorvane HTML Editor 3.0\"/>"_s);
        QCOMPARE(wml[9], u"   <card id=\"\" title=\"\">"_s);
        QVERIFY(!Templates::Wml().contains(u'\t'));
        QVERIFY(Templates::Html({u"Verein"_s, {}, {}, {}}).contains(u"<title>Verein</title>"));
    }

    void createsEachKind_data() {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("panel");
        QTest::addColumn<QString>("caption");
        QTest::addColumn<bool>("changed");
        QTest::newRow("html") << 0 << u"HTML"_s << u"HTML"_s << u"HTML"_s << true;
        QTest::newRow("xhtml") << 1 << u"XHTML"_s << u"XHTML"_s << u"XHTML"_s << true;
        QTest::newRow("wml") << 2 << u"WML"_s << u"WML"_s << u"WML"_s << true;
        QTest::newRow("script") << 3 << u"JS"_s << u"JavaScript"_s << u"JavaScript"_s << true;
        QTest::newRow("text") << 4 << u"Text"_s << u"Text"_s << u"Textdatei"_s << false;
    }
    void createsEachKind() {
        using namespace Documents;
        const ProgramFolder folder(ProgramFolder::Content::Empty);
        void (*create[])() = {CreateNewHTMLFile, CreateNewXHTMLFile, CreateNewWMLFile, CreateNewJavaScript,
                              CreateNewTextFile};
        TextBuffer box(u"alt"_s);
        box.change = [] { Global::DocChanged = true; };
        Neighbours::OpenCodeBox.AnsweredBy([&] { return &box; });
        QHash<int, QString> panels;
        QString shownCaption;
        QStringList gone;
        Neighbours::SetStatusPanel.AnsweredBy([&](int panel, const QString& text) { panels[panel] = text; });
        Neighbours::SetMainCaption.AnsweredBy([&](const QString& text) { shownCaption = text; });
        Windows::StandIn({{}, [&](const QString& name) { gone << name; }});
        int shown = 0;
        Neighbours::ShowDebugger.AnsweredBy([&] { ++shown; });
        Global::AutoDebug = true;
        Global::CurrentFile = u"\\x\\alt.htm"_s;
        Global::HeldSource = u"alt"_s;
        QFETCH(int, kind);
        create[kind]();
        QTEST(Global::DocType, "type");
        QTEST(panels.value(1), "panel");
        QFETCH(QString, caption);
        QCOMPARE(shownCaption, u"Sorvane HTML Editor 3.0 [%1]"_s.arg(caption));
        QTEST(Global::DocChanged, "changed");
        QVERIFY(Global::DocOpen && Global::CurrentFile.isEmpty() && Global::HeldSource.isEmpty());
        QCOMPARE(box.Text(), kind == 0   ? Templates::Html()
                             : kind == 1 ? Templates::Xhtml()
                             : kind == 2 ? Templates::Wml()
                                         : QString());
        QVERIFY(gone.contains(u"Frm_Browser"_s) && gone.contains(u"Frm_Welcome"_s));
        QCOMPARE(shown, kind == 4 ? 0 : 1); // a text file needs no helpers
    }

    void asksBeforeReplacing() {
        const ProgramFolder folder(ProgramFolder::Content::Empty);
        TextBuffer box(u"wertvoll"_s);
        Neighbours::OpenCodeBox.AnsweredBy([&] { return &box; });
        const QString question =
            u"Die aktuelle Datei wurde noch nicht gespeichert. Möchten Sie das jetzt tun?"_s;
        ScriptedDialogs dialogs;
        Global::DocChanged = true;
        dialogs.ExpectMessage(u"Neue Datei"_s, question, Answer::Cancel, Dialogs::Icon::Question);
        Documents::Menu_File_NewPage();
        QCOMPARE(box.Text(), u"wertvoll"_s);
        dialogs.ExpectMessage(u"Neue Datei"_s, question, Answer::Yes);
        dialogs.ExpectSaveFile(u"Speichern unter"_s, {});
        Documents::Menu_File_NewXHTMLFile();
        QCOMPARE(box.Text(), u"wertvoll"_s);
        dialogs.ExpectMessage(u"Neue Datei"_s, question, Answer::No);
        Documents::Menu_File_NewFile();
        QCOMPARE(box.Text(), QString());
        Documents::Menu_File_NewFile(); // nothing to lose, no question
    }
};

REGISTER_TEST(NewDocuments);
#include "new_documents_test.moc"
