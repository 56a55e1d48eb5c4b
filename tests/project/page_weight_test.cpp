// SPDX-License-Identifier: MIT
#include "project/page_weight.h"

#include "support/folder_test.h"

class PageWeightTest : public FolderTest {
    Q_OBJECT

    QStringList m_rows;

    PageWeight::Sums Weigh(const QString& page) {
        m_rows.clear();
        return PageWeight::Scan(
            m_folder->Path(page),
            {[this](const PageWeight::Row& row) { m_rows << row.file + u' ' + row.size + u' ' + row.icon; },
             {}});
    }

private slots:
    void weighsFramesAndPictures() {
        m_folder->Write(u"a.png"_s, QByteArray(3000, 'x'));
        m_folder->Write(u"b.jpeg"_s, QByteArray(1024, 'x'));
        m_folder->Write(u"rahmen.htm"_s, "<body background=\"b.jpeg\"><!--12--><img src='a.png'>");
        m_folder->Write(u"seite.htm"_s, "<IMG SRC=\"a.png\"><frame src=\"rahmen.htm\"><img src=\"a.png\"> "
                                        "<img src=\"fehlt.gif\"><a href=\"a.png\">");
        const PageWeight::Sums sums = Weigh(u"seite.htm"_s);
        QCOMPARE(m_rows, (QStringList{u"> a.png 2 kB Image"_s, u"> rahmen.htm 0 kB HTML"_s,
                                      u"-----> b.jpeg 1 kB UnknownFile2"_s, u"> a.png 2 kB Image"_s,
                                      u"> fehlt.gif 2 kB Image"_s})); // the size of the row before
        const double frame = 52;
        QCOMPARE(sums.download, 3000 + frame + 1024 + 3000);
        QCOMPARE(sums.total, sums.download + 3000);
        QCOMPARE(sums.comments, 9.0F);
        const QStringList messages = PageWeight::Messages({57344.0 * 3, 57344.0, 9.0F, false});
        QCOMPARE(messages.size(), 6);
        QCOMPARE(messages[0], u"Gesamtgröße der Seite: 168 kB"_s);
        QCOMPARE(messages[1], u"Downloadgröße der Seite: 56 kB"_s);
        QCOMPARE(messages[2], u"Ladezeit mit Modem 56 kb/s: ca. 8 s"_s);
        QCOMPARE(messages[4], u"Ladezeit mit ISDN B-Kanal 128 kb/s: ca. 3 s"_s);
        QCOMPARE(messages[5], u"Speicherverbrauch durch Kommentare: 9 Byte"_s);
    }

    void endsOnCyclesAndBrokenPages() {
        m_folder->Write(u"a.htm"_s, "<frame src=\"b.htm\">");
        m_folder->Write(u"b.htm"_s, "<frame src=\"a.htm\">");
        QVERIFY(Weigh(u"a.htm"_s).cyclic);
        QCOMPARE(m_rows.size(), PageWeight::Deepest);
        // the text of the page before is searched once under the path of the one that is not there
        m_folder->Write(u"c.htm"_s, "<frame src=\"fehlt.htm\"><img src=\"x.gif\">");
        QVERIFY(!Weigh(u"c.htm"_s).cyclic);
        QCOMPARE(m_rows.size(), 4);
        // rows behind a page that is cut short stand one step further in
        m_folder->Write(u"d.htm"_s, "<img src=\"offen");
        m_folder->Write(u"e.htm"_s, "<frame src=\"d.htm\"><frame src=\"d.htm\">");
        m_dialogs->ExpectMessage({}, u"Unerwarteter Fehler."_s);
        m_dialogs->ExpectMessage({}, u"Unerwarteter Fehler."_s);
        Weigh(u"e.htm"_s);
        QCOMPARE(m_rows.last(), u"-----> d.htm 0 kB HTML"_s);
        m_folder->Write(u"f.htm"_s, QByteArray("<img src=\"x.gif\">").repeated(9));
        int rows = 0;
        int asked = 0;
        PageWeight::Scan(m_folder->Path(u"f.htm"_s),
                         {[&](const PageWeight::Row&) { ++rows; }, [&] { return ++asked < 4; }});
        QVERIFY(rows == 3 && asked == 4);
    }

    void countsComments() {
        const std::pair<const char*, float> pages[] = {{"<!--a-->", 8},
                                                       {"<style><!--a--></style><!--bb-->", 9},
                                                       {"<SCRIPT a><!-- x --><!-- y -->", 10},
                                                       {"<!--a<!--b-->", 13 + 8},
                                                       {"<b><!--a--><!-- x", 8},
                                                       {"a<!---->b<!-->", 7 + 5},
                                                       {"<p><!--1--><!--2--><style <!--3-->", 16}};
        for (const auto& [page, characters] : pages) {
            QVERIFY2(PageWeight::CommentCharacters(QString::fromLatin1(page)) == characters, page);
        }
        // each comment is added on its own, and rounded
        const float large = PageWeight::CommentCharacters(u"<!--><!-->"_s, 16777216);
        QCOMPARE(PageWeight::Messages({0, 0, large}).last(),
                 u"Speicherverbrauch durch Kommentare: 16777224 Byte"_s);
    }
};

REGISTER_TEST_AS(PageWeight, PageWeightTest);
#include "page_weight_test.moc"
