// SPDX-License-Identifier: MIT
// What stands at the caret: tags, objects before a dot, words to complete, tags the assistant speaks of.
#include "documents/text_buffer.h"
#include "editing/attribute_lookup.h"
#include "editing/auto_word.h"
#include "editing/script_members.h"
#include "editing/tag_watch.h"
#include "editing/umlauts.h"
#include "platform/literals.h"
#include "platform/text.h"
#include "state/global.h"
#include "state/lists.h"
#include "support/program_folder.h"
#include "support/test_registry.h"

// In all tables "|" marks the caret.
class CodeLookups : public QObject {
    Q_OBJECT

    std::unique_ptr<ProgramFolder> m_folder;

    static qsizetype TakeCaret(QString& text) {
        const qsizetype caret = text.indexOf(u'|');
        text.remove(caret, 1);
        return caret;
    }

private slots:
    void initTestCase() {
        m_folder = std::make_unique<ProgramFolder>();
        QVERIFY(Lists::LoadTagList() && Lists::LoadNoCloseTags() && Lists::LoadWordChange());
    }
    void cleanupTestCase() { m_folder.reset(); }

    void findsTheTag_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("name"); // empty: none
        QTest::addColumn<int>("insertAt"); // SelStart of an inserted attribute
        QTest::newRow("in the name") << u"x<ta|ble border=1>"_s << u"table"_s << 7;
        QTest::newRow("in an attribute") << u"x<table bor|der=1>"_s << u"table"_s << 7;
        QTest::newRow("closed at the name") << u"<p|>"_s << u"p"_s << 2;
        QTest::newRow("slash at the end") << u"<br|/>"_s << u"br"_s << 3;
        QTest::newRow("closing tag") << u"</p|>"_s << u"/p"_s << 3;
        QTest::newRow("between two tags") << u"<p>Te|xt</p>"_s << QString() << 0;
        QTest::newRow("never closed") << u"<p|"_s << QString() << 0;
        QTest::newRow("closed by a new tag") << u"<ta|ble<p>"_s << QString() << 0;
        QTest::newRow("behind the tag") << u"<p>|"_s << QString() << 0;
        QTest::newRow("empty text") << u"|"_s << QString() << 0;
    }
    void findsTheTag() {
        QFETCH(QString, text);
        const qsizetype caret = TakeCaret(text);
        const auto tag = AttributeLookup::TagAt(text, caret);
        QTEST(tag ? tag->name : QString(), "name");
        if (tag) QTEST(int(tag->start + tag->nameLength - 1), "insertAt");
    }

    void listsAttributes() {
        const QString attributes = u"<t-p- align, class, <e- <t-glitzer- x, <e- "_s;
        QCOMPARE(AttributeLookup::AttributesOf(attributes, u"P"_s), (QStringList{u"align"_s, u"class"_s}));
        QCOMPARE(AttributeLookup::AttributesOf(attributes, u"glitzer"_s), QStringList()); // no known tag
        QCOMPARE(AttributeLookup::AttributesOf(attributes, u"/p"_s), QStringList());
        QVERIFY(AttributeLookup::IsHeading(u"·Allgemein"_s) && !AttributeLookup::IsHeading(u"align"_s));
    }

    void offersWordsInTheCaseOfTheSelection() {
        Global::WordChangeList = u"<wßleftßRightß<e- <wßrotßgrünß<e- "_s;
        QVERIFY(AttributeLookup::HasWords(u"ROT"_s) && !AttributeLookup::HasWords(u"ro"_s));
        QVERIFY(!AttributeLookup::HasWords(QString()));
        QCOMPARE(AttributeLookup::WordsFor(u"GRÜN"_s), (QStringList{u"ROT"_s, u"GRÜN"_s}));
        QCOMPARE(AttributeLookup::WordsFor(u"left"_s), (QStringList{u"left"_s, u"right"_s}));
        QCOMPARE(AttributeLookup::WordsFor(u"Left"_s), (QStringList{u"left"_s, u"Right"_s}));
        QVERIFY(Lists::LoadWordChange());
    }

    void findsTheObjectBeforeTheDot_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("object");
        QTest::newRow("at the start of the text") << u"document.|"_s << u"document"_s;
        QTest::newRow("behind a line break") << u"x;\r\ndocument.|"_s << u"document"_s;
        QTest::newRow("sub-object") << u"window.document.|"_s << u"document"_s;
        QTest::newRow("in brackets") << u"f(Math.|"_s << u"Math"_s;
        QTest::newRow("array element") << u"document[3].|"_s << u"document"_s;
        QTest::newRow("tab before it") << u"\tMath.|"_s << u"Math"_s;
        QTest::newRow("created") << u"var d = new Date();\r\nd.|"_s << u"Date"_s;
        QTest::newRow("created without brackets") << u"d = new Date\r\nd.|"_s << u"Date\r\nd"_s;
        QTest::newRow("unknown") << u"foo.|"_s << QString();
        QTest::newRow("dot alone") << u".|"_s << QString();
    }
    void findsTheObjectBeforeTheDot() {
        const QString objects =
            u"<js-document- #title, *write, body, <e- <js-Math- *abs, <e- <js-Date- *getTime, <e- "_s;
        QFETCH(QString, text);
        const qsizetype caret = TakeCaret(text);
        QTEST(ScriptMembers::ObjectBeforeDot(text, caret, objects), "object");
        const auto members = ScriptMembers::MembersOf(objects, u"DOCUMENT"_s);
        QCOMPARE(members.size(), 3);
        QVERIFY(members[0].kind == ScriptMembers::Member::Kind::Attribute && members[0].name == u"title");
        QVERIFY(members[1].kind == ScriptMembers::Member::Kind::Function);
        QVERIFY(members[2].kind == ScriptMembers::Member::Kind::Object && members[2].name == u"ody");
        QVERIFY(ScriptMembers::MembersOf(objects, u"Dat"_s).isEmpty());
    }

    // The files as they ship.
    void shippedWordsLeadWhereTheyAreMeant_data() {
        QTest::addColumn<QString>("word");
        QTest::addColumn<QString>("first"); // of the words offered
        QTest::addColumn<QString>("other");
        QTest::newRow("type") << u"text"_s << u"text"_s << u"password"_s;
        QTest::newRow("table row") << u"tr"_s << u"thead"_s << u"tbody"_s;
        QTest::newRow("style sheet") << u"collapse"_s << u"separate"_s << u"collapse"_s;
        QTest::newRow("script") << u"alert"_s << u"alert"_s << u"confirm"_s;
        QTest::newRow("capital umlaut") << u"&Auml;"_s << u"&Auml;"_s << u"&Ouml;"_s;
        QTest::newRow("small umlaut") << u"&auml;"_s << u"&auml;"_s << u"&ouml;"_s;
    }
    void shippedWordsLeadWhereTheyAreMeant() {
        QFETCH(QString, word);
        QFETCH(QString, other);
        const QStringList words = AttributeLookup::WordsFor(word);
        QTEST(words.value(0), "first");
        QVERIFY2(words.contains(other), qPrintable(words.join(u' ')));
    }

    void completesWords_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("word");
        QTest::addColumn<QStringList>("candidates");
        const QStringList none;
        QTest::newRow("one longer word, twice")
            << u" Vereinsheim Vereinsheim ver| "_s << u"ver"_s << QStringList{u"Vereinsheim"_s};
        QTest::newRow("several") << u" abend abfahrt ab| "_s << u"ab"_s
                                 << QStringList{u"abend"_s, u"abfahrt"_s};
        QTest::newRow("only itself") << u" ab AB ab| "_s << u"ab"_s << none;
        QTest::newRow("inside other words") << u" xab ab| "_s << u"ab"_s << none;
        QTest::newRow("umlauts") << u" Größe gr| "_s << u"gr"_s << QStringList{u"Größe"_s};
        QTest::newRow("its own letter at the end") << u" a| a"_s << u"a"_s << none;
        QTest::newRow("itself at the end") << u" ab| ab"_s << u"ab"_s << none;
        QTest::newRow("digits end a word") << u" h1x h| "_s << u"h"_s << none;
    }
    void completesWords() {
        QFETCH(QString, text);
        const qsizetype caret = TakeCaret(text);
        const AutoWord::Completion found = AutoWord::Complete(text, caret);
        QTEST(found.word, "word");
        QTEST(found.candidates, "candidates");
        QCOMPARE(text.sliced(found.start, found.end - found.start), found.word);
    }

    void givesUpOnWords_data() {
        QTest::addColumn<QString>("text");
        QTest::newRow("first word of the document") << u"ab| abend"_s;
        QTest::newRow("occurrence at the very start") << u"abend ab| "_s;
        QTest::newRow("before a letter") << u" ab|c abend"_s;
        QTest::newRow("end of the text") << u" abend ab|"_s;
        QTest::newRow("empty") << u"|"_s;
        QTest::newRow("no word") << u" abend  | "_s;
    }
    void givesUpOnWords() {
        QFETCH(QString, text);
        const qsizetype caret = TakeCaret(text);
        QVERIFY(!Attempt([&] { AutoWord::Complete(text, caret); }));
    }

    void walksOverLetters() {
        QCOMPARE(AutoWord::SearchNoABC(u"ab c", 1, 1), 3);
        QCOMPARE(AutoWord::SearchNoABC(u"a[_^`]ä9", 1, 1), 8); // brackets and the like are meant to count
        QCOMPARE(AutoWord::SearchNoABC(u"abc", 1, 1), 0);
        QCOMPARE(AutoWord::SearchNoABC(u"1abc", 4, -1), 1);
        QVERIFY(!Attempt([] { AutoWord::SearchNoABC(u"abc", 3, -1); }));
    }

    void watchesTags_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("urgency"); // 0: nothing
        QTest::addColumn<QString>("says");
        const QString forgot = u"Ich glaube Sie haben vergessen den letzten Tag zu schließen."_s;
        const QString stop =
            u"Haaalt, so etwas gibt es nicht. Nach einem Kleiner-Zeichen beginnt sofort der Name "
            "des Tag's"_s;
        const QString unknown =
            u"Diesen Tag kenne ich nicht. Überprüfen Sie, ob Sie ihn richtig geschrieben haben. "
            "Falscher Tag: <%1>"_s;
        QTest::newRow("known, at a blank") << u"<b |"_s << 1 << u"Fett. "_s;
        QTest::newRow("known, at its end") << u"<B>|"_s << 1 << u"Fett. "_s;
        QTest::newRow("text behind a tag") << u"<b>Wort |"_s << 1 << u"Fett. "_s;
        QTest::newRow("known without help") << u"<p>|"_s << 0 << QString();
        QTest::newRow("unknown") << u"<glitzer>|"_s << 2 << unknown.arg(u"glitzer"_s);
        QTest::newRow("unknown, still open") << u"<glitzer |"_s << 0 << QString();
        QTest::newRow("slash at the end") << u"<br/>|"_s << 0 << QString();
        QTest::newRow("end of a comment") << u"<!-- b -->|"_s << 1 << u"Kommentar. "_s;
        QTest::newRow("end of a comment without blanks") << u"<!--b-->|"_s << 1 << u"Kommentar. "_s;
        QTest::newRow("one wrong letter") << u"<z>|"_s << 2 << unknown.arg(u"z"_s);
        QTest::newRow("blank behind the sign") << u"a < |"_s << 2 << stop;
        QTest::newRow("never closed") << u"<p <|"_s << 2 << forgot;
        QTest::newRow("closed before") << u"<p> <|"_s << 0 << QString();
        QTest::newRow("first sign") << u"x<|"_s << 0 << QString();
        QTest::newRow("too early") << u"<|"_s << 0 << QString();
    }
    void watchesTags() {
        QFETCH(QString, text);
        const qsizetype caret = TakeCaret(text);
        const auto remark = TagWatch::Watch(text, caret, u"<h-b- Fett. <e- <h-!--- Kommentar. <e- "_s);
        QTEST(remark ? remark->urgency : 0, "urgency");
        QTEST(remark ? remark->text : QString(), "says");
    }

    void substitutesUmlauts_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("result");
        QTest::newRow("plain") << u"ä|"_s << u"ae|"_s;
        QTest::newRow("entity") << u"x&Ü|y"_s << u"x&Uuml;|y"_s;
        QTest::newRow("sharp s stays") << u"ß|"_s << u"ß|"_s;
        QTest::newRow("behind the caret") << u"|ä"_s << u"|ä"_s;
        QTest::newRow("capital") << u"Ö|l"_s << u"Oe|l"_s;
    }
    void substitutesUmlauts() {
        QFETCH(QString, text);
        const qsizetype caret = TakeCaret(text);
        TextBuffer box(text);
        int changes = 0;
        box.change = [&] { // re-enters, as the window's handler does
            ++changes;
            Umlauts::SubstituteUmlauts(box);
        };
        box.SetSelStart(caret);
        Umlauts::SubstituteUmlauts(box);
        QString result = box.Text();
        result.insert(box.SelStart(), u'|');
        QTEST(result, "result");
        QCOMPARE(changes, result == QString(text).insert(caret, u'|') ? 0 : 2);
    }
};

REGISTER_TEST(CodeLookups);
#include "code_lookups_test.moc"
