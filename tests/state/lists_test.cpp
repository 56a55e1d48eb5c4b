// SPDX-License-Identifier: MIT
#include "state/lists.h"
#include "support/folder_test.h"

class ListsTest : public FolderTest {
    Q_OBJECT

private slots:
    void readsTokens() {
        Lists::TokenReader reader(u"a,  b c ,\"x, y\", \r\nd\r\n\r\ne, ,f,  \n"_s);
        QStringList tokens;
        while (const auto token = reader.Next()) tokens << *token;
        QCOMPARE(tokens, (QStringList{u"a"_s, u"b c "_s, u"x, y"_s, u"d"_s, {}, u"e"_s, {}, u"f"_s}));
    }

    void buildsTheTagString() {
        m_folder->Write(u"taglist.lst"_s, "a\r\nb\r\n");
        QVERIFY(Lists::LoadTagList());
        QVERIFY(Lists::IsKnownTag(u"A"_s) && Lists::IsKnownTag(u"/a"_s));
        QVERIFY(!Lists::IsKnownTag(u"/b"_s)); // the closing form of the last name is meant to be unknown
    }

    void readsBlocksInTokenMode() {
        m_folder->Write(u"attribute.lst"_s,
                        "<x-b- y, <e-\r\n<n-noclosetags-,\r\nbr, hr,\r\nimg,\r\n<e-\r\n"
                        "<s-events-, onclick, onload, <e-\r\n<n-noclosetags-, br, <e-\r\n");
        QVERIFY(Lists::LoadNoCloseTags());
        QCOMPARE(Global::NoCloseTagString, u"ßbrß"_s); // the last block wins
        Lists::LoadEventNames();
        QCOMPARE(Global::EventNameList[0], u"2"_s);
        QCOMPARE(Global::EventNameList[2], u"onload"_s);
        m_folder->Write(u"attribute.lst"_s, "<n-noclosetags-, br");
        QVERIFY(!Lists::LoadNoCloseTags()); // runs into the end
        QByteArray many = "<s-events-,";
        for (int i = 1; i <= 120; ++i) many += "e" + QByteArray::number(i) + ",";
        m_folder->Write(u"attribute.lst"_s, many + "<e-");
        Lists::LoadEventNames();
        QCOMPARE(Global::EventNameList[0], u"100"_s);
        QCOMPARE(Global::EventNameList[100], u"e100"_s);
    }

    void readsWordBlocks() {
        m_folder->Write(u"wordchange.lst"_s, "skipped, <w-, left, right, <e-\r\n<w-, rot, gr\xFCn");
        QVERIFY(Lists::LoadWordChange());
        QCOMPARE(Global::WordChangeList, u"<wßleftßrightß<e- <wßrotßgrünß<e- "_s);
        m_folder->Write(u"wordchange.lst"_s, "<w-");
        QVERIFY(!Lists::LoadWordChange());
    }

    void findsEntriesOfABlock() {
        const auto entries = [](const QString& text, const QString& name) {
            return Lists::BlockEntries(text, Lists::BlockStart(text, name));
        };
        const QStringList two{u"align"_s, u"width"_s};
        QCOMPARE(entries(u"<t-tr- x, <e- <t-td- align, width, <e- "_s, u"TD"_s), two);
        QCOMPARE(entries(u"<t-td- align, width,"_s, u"td"_s), two);
        QCOMPARE(entries(u"<t-td- align, width <e- "_s, u"td"_s),
                 QStringList{u"align"_s}); // the last without a comma
        QCOMPARE(entries(u"<t-td- <e- a,"_s, u"td"_s), QStringList());
        QCOMPARE(Lists::BlockStart(u"<t-td- a, <e- "_s, u"none"_s), 0);
    }

    void decodesTokens() {
        QCOMPARE(Lists::DecodeListToken(u"a#mns#b"_s, u"ß"_s), u"a#mns#b"_s); // kept as it is
        QCOMPARE(Lists::DecodeListToken(u"a#mns#b#mns#c"_s, u"#mns#"_s), u"a-b-c"_s);
    }

    void missingFilesAreTold() {
        QVERIFY(!Lists::LoadTagList() && !Lists::LoadNoCloseTags() && !Lists::LoadWordChange());
        QVERIFY(!Lists::ReadLinesJoined(u"assistant.hlp"_s));
        Lists::LoadEventNames();
        QVERIFY(Lists::ReadScriptObjects().isEmpty());
    }

    // The files as they ship.
    void shippedListsAnswer() {
        const ProgramFolder folder;
        QVERIFY(Lists::LoadTagList() && Lists::LoadNoCloseTags() && Lists::LoadWordChange());
        Lists::LoadEventNames();
        QCOMPARE(Global::EventNameList[0], u"100"_s); // as many as there is room for
        for (const QString& tag : {u"/table"_s, u"card"_s, u"article"_s, u"svg"_s, u"!doctype"_s, u"?xml"_s})
            QVERIFY2(Lists::IsKnownTag(tag), qPrintable(tag));
        for (const QString& tag : {u"br"_s, u"IMG"_s, u"!DOCTYPE"_s, u"?xml"_s})
            QVERIFY2(Lists::NeedsNoClosing(tag), qPrintable(tag));
        QVERIFY(!Lists::NeedsNoClosing(u"p"_s));
        const QString last = Global::KnownTagString.section(u"-/"_s, -1);
        QVERIFY2(Lists::NeedsNoClosing(last), "the closing form of the last name is unknown");
        // each element has the attributes of its own standard, and none but them
        const QString attributes = Lists::ReadLinesJoined(u"attribute.lst"_s).value_or(QString());
        for (const auto& [tag, own, foreign] :
             {std::tuple(u"s"_s, u"title"_s, u"href"_s), std::tuple(u"textarea"_s, u"rows"_s, u"editable"_s),
              std::tuple(u"rect"_s, u"stroke-linecap"_s, u"align"_s),
              std::tuple(u"card"_s, u"ontimer"_s, u"spellcheck"_s)}) {
            const QStringList entries = Lists::BlockEntries(attributes, Lists::BlockStart(attributes, tag));
            QVERIFY2(entries.contains(own) && !entries.contains(foreign), qPrintable(tag));
        }
        const qsizetype nameless = Lists::BlockStart(attributes, {}); // of a "< " in a script
        QCOMPARE(Lists::BlockEntries(attributes, nameless), QStringList());
        const QString objects = Lists::ReadScriptObjects();
        for (const auto& [object, member] :
             {std::pair(u"target"_s, u"*focus"_s), std::pair(u"this"_s, u"*focus"_s),
              std::pair(u"parentNode"_s, u"*focus"_s), std::pair(u"document"_s, u"*getElementById"_s)}) {
            QVERIFY2(Lists::BlockEntries(objects, Lists::BlockStart(objects, object)).contains(member),
                     qPrintable(object));
        }
        // every known tag has its help
        const QString help = Lists::ReadLinesJoined(u"assistant.hlp"_s).value_or(QString());
        const QString tags = Files::ReadProgramText(Files::ProgramFile(u"taglist.lst"_s)).value_or(QString());
        for (const QString& tag : Files::Lines(tags)) {
            const QString text = Lists::HelpText(help, tag).value_or(QString());
            QVERIFY2(Lists::IsKnownTag(tag) && text.size() > 10 && !text.contains(u"<h-"), qPrintable(tag));
        }
    }
};

REGISTER_TEST_AS(Lists, ListsTest);
#include "lists_test.moc"
