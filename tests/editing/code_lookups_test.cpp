// SPDX-License-Identifier: MIT
// What stands at the caret: tags, objects before a dot, words to complete, tags the assistant speaks of.
#include "editing/attribute_lookup.h"
#include "editing/auto_word.h"
#include "editing/script_members.h"
#include "editing/tag_watch.h"
#include "editing/umlauts.h"
#include "support/test.h"

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
        const auto row = Columns<QString, QString, int>("text", "name", "insertAt"); // a SelStart
        row("in the name", "x<ta|ble border=1>", "table", 7);
        row("in an attribute", "x<table bor|der=1>", "table", 7);
        row("closed at the name", "<p|>", "p", 2);
        row("slash at the end", "<br|/>", "br", 3);
        row("between two tags", "<p>Te|xt</p>", "", 0);
        row("never closed", "<p|", "", 0);
        row("closed by a new tag", "<ta|ble<p>", "", 0);
        row("behind the tag", "<p>|", "", 0);
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

    void findsTheObjectBeforeTheDot() {
        const QString objects =
            u"<js-document- #title, *write, body, <e- <js-Math- *abs, <e- <js-Date- *getTime, <e- "_s;
        for (const auto& [before, object] : {std::pair(u"document.|"_s, u"document"_s),
                                             {u"x;\r\ndocument.|"_s, u"document"_s},
                                             {u"window.document.|"_s, u"document"_s},
                                             {u"f(Math.|"_s, u"Math"_s},
                                             {u"document[3].|"_s, u"document"_s},
                                             {u"var d = new Date();\r\nd.|"_s, u"Date"_s},
                                             {u"d = new Date\r\nd.|"_s, u"Date\r\nd"_s},
                                             {u"foo.|"_s, u""_s}}) {
            QString text = before;
            const qsizetype caret = TakeCaret(text);
            QCOMPARE(ScriptMembers::ObjectBeforeDot(text, caret, objects), object);
        }
        const auto members = ScriptMembers::MembersOf(objects, u"DOCUMENT"_s);
        QCOMPARE(members.size(), 3);
        QVERIFY(members[0].kind == ScriptMembers::Member::Kind::Attribute && members[0].name == u"title");
        QVERIFY(members[1].kind == ScriptMembers::Member::Kind::Function);
        QVERIFY(members[2].kind == ScriptMembers::Member::Kind::Object && members[2].name == u"ody");
        QVERIFY(ScriptMembers::MembersOf(objects, u"Dat"_s).isEmpty());
    }

    // The files as they ship.
    void shippedWordsLeadWhereTheyAreMeant() {
        for (const auto& [word, first, other] : {std::tuple(u"text"_s, u"text"_s, u"password"_s),
                                                 {u"tr"_s, u"thead"_s, u"tbody"_s},
                                                 {u"alert"_s, u"alert"_s, u"confirm"_s},
                                                 {u"&Auml;"_s, u"&Auml;"_s, u"&Ouml;"_s}}) {
            const QStringList words = AttributeLookup::WordsFor(word);
            QVERIFY2(words.value(0) == first && words.contains(other), qPrintable(words.join(u' ')));
        }
    }

    void completesWords_data() {
        const auto row = Columns<QString, QString, QStringList>("text", "word", "candidates");
        const QStringList none;
        row("one longer word, twice", " Vereinsheim Vereinsheim ver| ", "ver", {"Vereinsheim"});
        row("several", " abend abfahrt ab| ", "ab", {"abend", "abfahrt"});
        row("only itself", " ab AB ab| ", "ab", none);
        row("inside other words", " xabend ab| ", "ab", none);
        row("umlauts", " Größe gr| ", "gr", {"Größe"});
        row("its own letter at the end", " a| a", "a", none);
        row("digits end a word", " h1x h| ", "h", none);
        // "-": it gives up
        row("first word of the document", "ab| abend", "-", none);
        row("occurrence at the very start", "abend ab| ", "-", none);
        row("before a letter", " ab|c abend", "-", none);
        row("end of the text", " abend ab|", "-", none);
        row("no word", " abend  | ", "-", none);
    }
    void completesWords() {
        QFETCH(QString, text);
        const qsizetype caret = TakeCaret(text);
        AutoWord::Completion found;
        if (!Attempt([&] { found = AutoWord::Complete(text, caret); })) found.word = u"-"_s;
        QTEST(found.word, "word");
        QTEST(found.candidates, "candidates");
        if (found.word != u"-") QCOMPARE(text.sliced(found.start, found.end - found.start), found.word);
    }

    void walksOverLetters() {
        QCOMPARE(AutoWord::SearchNoABC(u"a[_^`]ä9", 1, 1), 8); // brackets and the like are meant to count
        QCOMPARE(AutoWord::SearchNoABC(u"abc", 1, 1), 0);
        QCOMPARE(AutoWord::SearchNoABC(u"1abc", 4, -1), 1);
    }

    void watchesTags_data() {
        const auto row = Columns<QString, int, QString>("text", "urgency", "says"); // 0: nothing
        const QString forgot = u"Ich glaube Sie haben vergessen den letzten Tag zu schließen."_s;
        const QString stop =
            u"Haaalt, so etwas gibt es nicht. Nach einem Kleiner-Zeichen beginnt sofort der Name "
            "des Tag's"_s;
        const QString unknown =
            u"Diesen Tag kenne ich nicht. Überprüfen Sie, ob Sie ihn richtig geschrieben haben. "
            "Falscher Tag: <%1>"_s;
        row("known, at a blank", "<b |", 1, "Fett. ");
        row("known, at its end", "<B>|", 1, "Fett. ");
        row("text behind a tag", "<b>Wort |", 1, "Fett. ");
        row("known without help", "<p>|", 0, "");
        row("unknown", "<glitzer>|", 2, unknown.arg(u"glitzer"_s));
        row("unknown, still open", "<glitzer |", 0, "");
        row("slash at the end", "<br/>|", 0, "");
        row("end of a comment", "<!-- b -->|", 1, "Kommentar. ");
        row("blank behind the sign", "a < |", 2, stop);
        row("never closed", "<p <|", 2, forgot);
        row("closed before", "<p> <|", 0, "");
        row("first sign", "x<|", 0, "");
    }
    void watchesTags() {
        QFETCH(QString, text);
        const qsizetype caret = TakeCaret(text);
        const auto remark = TagWatch::Watch(text, caret, u"<h-b- Fett. <e- <h-!--- Kommentar. <e- "_s);
        QTEST(remark ? remark->urgency : 0, "urgency");
        QTEST(remark ? remark->text : QString(), "says");
    }

    void substitutesUmlauts() {
        for (const auto& [before, after] : {std::pair(u"ä|"_s, u"ae|"_s),
                                            {u"x&Ü|y"_s, u"x&Uuml;|y"_s},
                                            {u"ß|"_s, u"ß|"_s},
                                            {u"|ä"_s, u"|ä"_s}}) {
            QString text = before;
            const qsizetype caret = TakeCaret(text);
            TextBuffer box(text);
            int changes = 0;
            box.change = [&] { // re-enters, as the window's handler does
                ++changes;
                Umlauts::SubstituteUmlauts(box);
            };
            box.SetSelStart(caret);
            Umlauts::SubstituteUmlauts(box);
            QCOMPARE(box.Text().insert(box.SelStart(), u'|'), after);
            QCOMPARE(changes, before == after ? 0 : 2);
        }
    }
};

REGISTER_TEST(CodeLookups);
#include "code_lookups_test.moc"
