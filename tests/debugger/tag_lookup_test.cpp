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

    ProgramFolder m_folder;
    Debugger::TagLists m_lists;
    QString m_known; // in lower case
    QString m_noClosing;

    void Compare(const QString& name) const {
        const QString lower = Text::LowerCase(name);
        QVERIFY2(m_lists.known.Contains(lower) == m_known.contains(u'-' + lower + u'-'), qPrintable(lower));
        QVERIFY2(m_lists.noClosing.Contains(lower) == m_noClosing.contains(u'ß' + lower + u'ß'),
                 qPrintable(lower));
    }

private slots:
    void initTestCase() {
        QVERIFY(Lists::LoadTagList() && Lists::LoadNoCloseTags());
        m_lists = Debugger::TagLists(Global::KnownTagString, Global::NoCloseTagString);
        m_known = Text::LowerCase(Global::KnownTagString);
        m_noClosing = Text::LowerCase(Global::NoCloseTagString);
        QVERIFY(m_lists.known.Contains(u"body") && m_lists.known.Contains(u"/body"));
        QVERIFY(m_lists.noClosing.Contains(u"br") && !m_lists.noClosing.Contains(u"b"));
    }

    void allListedNames() {
        const QStringList names = m_known.split(u'-') + m_noClosing.split(u'ß');
        for (const QString& name : names) {
            for (const QString& form :
                 {u"%1"_s, u"/%1"_s, u"%1-"_s, u"-%1"_s, u"%1-/%1"_s, u"%1ß"_s, u"ß%1"_s})
                Compare(form.arg(name));
            Compare(name.first(std::max<qsizetype>(0, name.size() - 1)));
            QCOMPARE(m_lists.known.Contains(name), Lists::IsKnownTag(name));
            QCOMPARE(m_lists.noClosing.Contains(name), Lists::NeedsNoClosing(name));
        }
        QVERIFY(!Debugger::DelimitedNames(u"", u'-').Contains(u"a"));
    }

    void randomNames() {
        const QString letters = u"abehilmprstuy1-/ß!?"_s;
        QRandomGenerator random(11);
        for (int round = 0; round < 20000; ++round) {
            QString name;
            for (int length = random.bounded(5); length > 0; --length) {
                name += letters[random.bounded(static_cast<int>(letters.size()))];
            }
            Compare(name);
            const QString& list = round % 2 == 0 ? m_known : m_noClosing;
            Compare(list.mid(random.bounded(static_cast<int>(list.size())), random.bounded(30)));
        }
    }

    void pagesUnderTheShippedLists_data() {
        QTest::addColumn<QString>("page");
        QTest::addColumn<QStringList>("rows"); // each without what all begin with
        const auto row = [](const char* name, const QString& page, const QStringList& rows = {}) {
            QTest::newRow(name) << page << rows;
        };
        row("hidden script", u"<script>/*<![CDATA[*/\r\nif (a < b) c();\r\n/*]]>*/</script>"_s);
        row("hidden style", u"<style>/*<![CDATA[*/ p { } /*]]>*/</style>"_s);
        row("twice hidden", u"<script><!--//--><![CDATA[//><!--\r\nd\r\n//--><!]]></script>"_s);
        row("server comment", u"<%-- a --%><p>b</p>"_s);
        row("comparison", u"<script>if (a < b && c <d) e();</script>"_s,
            {u"unbekannter Tag: <d)>|d)|24"_s, u"Der Tag <d)> wurde nicht geschlossen.|d)|24"_s});
        row("empty WML elements", u"<onevent><go href=\"#a\"/></onevent><do><prev/></do><p>a<br/></p>"_s);
        row("an open card", u"<wml><card><p>a</p></wml>"_s,
            {u"Der Tag <card> wurde nicht geschlossen.|card|6"_s});
        row("an element that may hold others", u"<do><go href=\"a\"><postfield/></go></do>"_s,
            {u"Der Tag </go> muss nicht geschlossen werden|/go|30"_s});
        row("font", u"<svg><font><font-face/><missing-glyph/><glyph/></font></svg>"_s);
        row("formula", u"<math><apply><plus/></apply></math>"_s);
        row("names of no standard", u"<piecewice>"_s,
            {u"unbekannter Tag: <piecewice>|piecewice|1"_s,
             u"Der Tag <piecewice> wurde nicht geschlossen.|piecewice|1"_s});
    }
    void pagesUnderTheShippedLists() {
        QFETCH(QString, page);
        Debugger::Report report;
        Debugger::CheckHTML(page, 100, m_lists, report);
        QTEST(RowTexts(report).replaceInStrings(u"Error3|     "_s, QString()), "rows");
    }
};

REGISTER_TEST(TagLookup);
#include "tag_lookup_test.moc"
