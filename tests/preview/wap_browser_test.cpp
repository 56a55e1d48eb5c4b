// SPDX-License-Identifier: MIT
#include "preview/wap_browser.h"

#include "support/folder_test.h"

using namespace WAPBrowser;

class WapBrowserTest : public FolderTest {
    Q_OBJECT

    // What follows the head of the page of `deck`.
    static QString Body(const QString& deck) {
        const QString page = PageOf(deck);
        const qsizetype body = page.indexOf(u"<body>");
        return page.startsWith(
                   u"<!DOCTYPE html PUBLIC \"-//W3C//DTD XHTML 1.0 Transitional//EN\" "
                   "\"DTD/xhtml1-transitional.dtd\" /><html xmlns=\"http://www.w3.org/1999/xhtml\"><head>"
                   "<style type=\"text/css\"><!--body{") &&
                       page.first(body).endsWith(u"}--></style></head>")
                   ? page.sliced(body)
                   : u"no head: "_s + page;
    }

private slots:
    void makesAPageOfTheFirstCard_data() {
        const auto row = Columns<QString, QString>("deck", "body");
        row(u"title"_s, u"<wml><card title=\"Start\">Hallo</card></wml>"_s, u"<body>Hallo</body></html>"_s);
        row(u"several"_s, u"<wml><CARD>A</Card><card>B</card></wml>"_s, u"<body>A</body></html>"_s);
        row(u"without end"_s, u"<card id=\"a\">A<br/>"_s, u"<body>A<br/>"_s);
        row(u"end with a blank"_s, u"<card>A</card ><card>B</card>"_s,
            u"<body>A</card ><card>B</body></html>"_s);
        row(u"without bracket"_s, u"x<card"_s, u"<body>card"_s);
        row(u"links"_s, u"<card><a href=\"a.WmL\">x.wmls</a>$(x)<do/></card>"_s,
            u"<body><a href=\"a.htm\">x.htms</a>$(x)<do/></body></html>"_s);
    }
    void makesAPageOfTheFirstCard() {
        QFETCH(QString, deck);
        QFETCH(QString, body);
        QCOMPARE(Body(deck), body);
        QCOMPARE(PageOf(u"<p>x.wml</p>"_s), u"<p>x.wml</p>"_s);
    }

    void convertsTheSiteIntoTheScratchFolder() {
        const QByteArray picture("\x00\x0D<card>\x0A\xFF", 10);
        m_folder->Write(u"web/a.wml"_s,
                        "<?xml version=\"1.0\" encoding=\"UTF-8\"?><wml><card><img src=\"p.wbmp\"/>"
                        "Gr\xC3\xBC\xC3\x9F"
                        "e<a href=\"sub/B.WML\"/><a href=\"a.html\"/></card></wml>");
        m_folder->Write(u"web/a.html"_s, "<p>the same page's name</p>");
        m_folder->Write(u"web/sub/B.WML"_s,
                        "<wml><card>B <a href=\"../c.html\"/><a href=\"x/../../../d.gif\"/>");
        m_folder->Write(u"web/c.html"_s, "<p>c.wml</p>");
        m_folder->Write(u"web/p.wbmp"_s, picture);
        m_folder->Write(u"d.gif"_s, "outside");
        Global::CurrentFile = m_folder->Path(u"web/a.wml"_s);
        Global::DocOpen = true;
        QVERIFY(GenerateWAPPreview());
        QVERIFY(m_folder->Read(u"tmp/a.htm"_s).startsWith("\xEF\xBB\xBF<!DOCTYPE"));
        QVERIFY(m_folder->Read(u"tmp/a.htm"_s)
                    .endsWith("<body><img src=\"p.wbmp\"/>Gr\xC3\xBC\xC3\x9F"
                              "e<a href=\"sub/B.htm\"/><a href=\"a.html\"/></body></html>\r\n"));
        QVERIFY(m_folder->Read(u"tmp/sub/B.htm"_s).contains("<body>B "));
        QCOMPARE(m_folder->Read(u"tmp/a.html"_s), "<p>the same page's name</p>"); // links to it work
        QCOMPARE(m_folder->Read(u"tmp/c.htm"_s), "<p>c.wml</p>\r\n");
        QCOMPARE(m_folder->Read(u"tmp/p.wbmp"_s), picture);
        QVERIFY(!m_folder->Has(u"tmp/p.htm"_s) && !m_folder->Has(u"tmp/a.wml"_s) &&
                !m_folder->Has(u"tmp/sub/B.WML"_s));
        QCOMPARE(m_folder->Read(u"d.gif"_s), "outside");
        QVERIFY(m_folder->Has(u"web/a.wml"_s));
    }

    // What an earlier run made of another document would be taken for this one.
    void showsNoPageOfAnotherDocument() {
        m_folder->Write(u"tmp/a.htm"_s, "old");
        m_folder->Write(u"tmp/b.htm"_s, "old");
        m_folder->Write(u"web/a.txt"_s, "no deck");
        Global::CurrentFile = m_folder->Path(u"web/a.txt"_s);
        Global::DocOpen = true;
        QVERIFY(GenerateWAPPreview());
        QVERIFY(!m_folder->Has(u"tmp/a.htm"_s) && m_folder->Has(u"tmp/b.htm"_s));
    }

    // The scratch folder's own files are somebody's page once they are opened.
    void leavesAPageOfTheScratchFolderAlone() {
        m_folder->Write(u"tmp/a.wml"_s, "<wml><card>A</card></wml>");
        Global::CurrentFile = m_folder->Path(u"tmp/a.wml"_s);
        Global::DocOpen = true;
        QVERIFY(GenerateWAPPreview());
        QCOMPARE(m_folder->Read(u"tmp/a.wml"_s), "<wml><card>A</card></wml>");
    }
};

REGISTER_TEST_AS(WapBrowser, WapBrowserTest);
#include "wap_browser_test.moc"
