// SPDX-License-Identifier: MIT
// The prepared lookups against the search for text that they stand for, over the lists as they ship.
#include "debugger/html_check.h"
#include "debugger/tag_lists.h"
#include "platform/literals.h"
#include "platform/text.h"
#include "report_text.h"
#include "state/global.h"
#include "state/lists.h"
#include "support/program_folder.h"
#include "support/test_registry.h"

#include <QRandomGenerator>

class TagLookup : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void AllListedNames();
    void PiecesOfTheLists();
    void RandomNames();
    void SmallLists();
    void PagesUnderTheShippedLists_data();
    void PagesUnderTheShippedLists();

private:
    void Compare(const QString& name) const;

    ProgramFolder m_folder;
    Debugger::TagLists m_lists;
    QString m_known; // in lower case
    QString m_noClosing;
};

void TagLookup::initTestCase() {
    QVERIFY(Lists::LoadTagList());
    QVERIFY(Lists::LoadNoCloseTags());
    m_lists = Debugger::TagLists(Global::KnownTagString, Global::NoCloseTagString);
    m_known = Text::LowerCase(Global::KnownTagString);
    m_noClosing = Text::LowerCase(Global::NoCloseTagString);
    QVERIFY(m_known.size() > 100 && m_noClosing.size() > 100);
}

void TagLookup::Compare(const QString& name) const {
    const QString lower = Text::LowerCase(name);
    QVERIFY2(m_lists.known.Contains(lower) == m_known.contains(u'-' + lower + u'-'), qPrintable(lower));
    QVERIFY2(m_lists.noClosing.Contains(lower) == m_noClosing.contains(u'ß' + lower + u'ß'),
             qPrintable(lower));
}

void TagLookup::AllListedNames() {
    const QStringList names = m_known.split(u'-') + m_noClosing.split(u'ß');
    for (const QString& name : names) {
        const QStringList variants = {name,
                                      u'/' + name,
                                      name + u'-',
                                      u'-' + name,
                                      name + u"-/"_s + name,
                                      name + u'ß',
                                      u'ß' + name,
                                      name.chopped(name.isEmpty() ? 0 : 1)};
        for (const QString& variant : variants) {
            Compare(variant);
        }
        QCOMPARE(m_lists.known.Contains(name), Lists::IsKnownTag(name));
        QCOMPARE(m_lists.noClosing.Contains(name), Lists::NeedsNoClosing(name));
    }
    QVERIFY(m_lists.known.Contains(u"body") && m_lists.known.Contains(u"/body"));
    QVERIFY(m_lists.noClosing.Contains(u"br") && !m_lists.noClosing.Contains(u"b"));
}

void TagLookup::PiecesOfTheLists() {
    QRandomGenerator random(7);
    for (int round = 0; round < 5000; ++round) {
        const QString& list = round % 2 == 0 ? m_known : m_noClosing;
        const qsizetype start = random.bounded(static_cast<int>(list.size()));
        Compare(list.sliced(start, std::min<qsizetype>(random.bounded(30), list.size() - start)));
    }
}

void TagLookup::RandomNames() {
    const QString letters = u"abehilmprstuy1-/ß!?"_s;
    QRandomGenerator random(11);
    for (int round = 0; round < 20000; ++round) {
        QString name;
        for (int length = random.bounded(5); length > 0; --length) {
            name += letters[random.bounded(static_cast<int>(letters.size()))];
        }
        Compare(name);
    }
}

void TagLookup::SmallLists() {
    const Debugger::DelimitedNames two(u"-a-/a-B-/B", u'-');
    for (const char16_t* known : {u"a", u"/a", u"b", u"a-/a", u"/a-b"})
        QVERIFY(two.Contains(QStringView(known)));
    for (const char16_t* unknown : {u"", u"/b", u"b-/b", u"a-b", u"-a", u"a-"}) {
        QVERIFY(!two.Contains(QStringView(unknown)));
    }
    QVERIFY(!Debugger::DelimitedNames().Contains(u""));
    QVERIFY(!Debugger::DelimitedNames(u"", u'-').Contains(u"a"));
    QVERIFY(!Debugger::DelimitedNames(u"a", u'-').Contains(u"a"));
    // With two entries the delimiters meet, and the empty name is found between them.
    QVERIFY(Debugger::DelimitedNames(u"ßbrßßhrß", u'ß').Contains(u""));
}

void TagLookup::PagesUnderTheShippedLists_data() {
    QTest::addColumn<QString>("page");
    QTest::addColumn<QStringList>("rows");
    const QStringList none;
    QTest::newRow("hidden sections") << u"<script>/*<![CDATA[*/\r\nif (a < b) c();\r\n/*]]>*/</script>"
                                        "<style>/*<![CDATA[*/ p { } /*]]>*/</style>"
                                        "<script><!--//--><![CDATA[//><!--\r\nd\r\n//--><!]]></script>"_s
                                     << none;
    QTest::newRow("server comment") << u"<%-- a --%><p>b</p>"_s << none;
    QTest::newRow("comparison") << u"<script>if (a < b && c <d) e();</script>"_s
                                << QStringList{u"Error3|     unbekannter Tag: <d)>|d)|24"_s,
                                               u"Error3|     Der Tag <d)> wurde nicht geschlossen.|d)|24"_s};
    QTest::newRow("empty WML elements")
        << u"<wml><card><onevent><go href=\"#a\"/></onevent><do><prev/></do><p>a<br/></p></card></wml>"_s
        << none;
    QTest::newRow("an open card") << u"<wml><card><p>a</p></wml>"_s
                                  << QStringList{
                                         u"Error3|     Der Tag <card> wurde nicht geschlossen.|card|6"_s};
    QTest::newRow("an element that may hold others")
        << u"<do><go href=\"a\"><postfield/></go></do>"_s
        << QStringList{u"Error3|     Der Tag </go> muss nicht geschlossen werden|/go|30"_s};
    QTest::newRow("font and formula")
        << u"<svg><font><font-face/><missing-glyph/><glyph/></font></svg><math><apply><plus/></apply></math>"_s
        << none;
    QTest::newRow("names of no standard")
        << u"<piecewice>"_s
        << QStringList{u"Error3|     unbekannter Tag: <piecewice>|piecewice|1"_s,
                       u"Error3|     Der Tag <piecewice> wurde nicht geschlossen.|piecewice|1"_s};
}

void TagLookup::PagesUnderTheShippedLists() {
    QFETCH(QString, page);
    Debugger::Report report;
    Debugger::CheckHTML(page, 100, m_lists, report);
    QTEST(RowTexts(report), "rows");
}

REGISTER_TEST(TagLookup);
#include "tag_lookup_test.moc"
