// SPDX-License-Identifier: MIT
#include "project/site_scan.h"

#include "support/folder_test.h"

class SiteScanTest : public FolderTest {
    Q_OBJECT

    SiteScan::Result m_result;

    // Scans from the page a.htm of that text. The rows as "folder type icon", and " +" where there is a file
    // to copy.
    QStringList Rows(const QByteArray& page) {
        m_folder->Write(u"web/a.htm"_s, page);
        return RowsFrom(u"web/a.htm"_s);
    }
    QStringList RowsFrom(const QString& root) {
        m_result = SiteScan::Scan(m_folder->Path(root), {});
        QStringList rows;
        for (const SiteFile& file : m_result.files) {
            rows << file.folder + u' ' + file.type + u' ' + file.icon +
                        (file.tag == u"Error" ? QString() : u" +"_s);
        }
        return rows;
    }
    // "kind count bytes" of the kinds that have files.
    QStringList Sums() const {
        QStringList sums;
        for (int kind = 0; kind < SiteScan::KindCount; ++kind) {
            const SiteScan::KindSum& sum = m_result.sums[static_cast<size_t>(kind)];
            if (sum.count > 0) sums << u"%1 %2 %3"_s.arg(kind).arg(sum.count).arg(sum.bytes);
        }
        return sums;
    }

private slots:
    void followsAllMarkersIntoPagesSheetsAndScripts() {
        m_folder->Write(u"web/sub/b.html"_s, "<a href=\"../a.htm\"><a href=\"b.html\">");
        m_folder->Write(u"web/stil.css"_s, "body{background:url( \"bilder/p.PNG\" )}");
        m_folder->Write(u"web/bilder/p.PNG"_s, "1234");
        m_folder->Write(u"web/s.js"_s, "navigate(\"k.wml\")");
        m_folder->Write(u"web/k.wml"_s, "<wml>");
        m_folder->Write(u"web/logo.jpeg"_s, "12");
        QCOMPARE(
            Rows("<A HREF=\"sub/b.html#x\"><link href=\"stil.css\"><body background=\"logo.jpeg\">"
                 "<script src=\"s.js\"><a href=\"sub/b.html\"><a href=\"#oben\">"),
            (QStringList{u"web/a.htm HTM HTML +"_s, u"web/sub/b.html HTM HTML +"_s,
                         u"web/stil.css CSS CSS +"_s, u"web/bilder/p.PNG PNG Image +"_s,
                         u"web/logo.jpeg JPE Unknown +"_s, u"web/s.js JS JS +"_s, u"web/k.wml WML WML +"_s}));
        QCOMPARE(Sums(), (QStringList{u"0 3 171"_s, u"1 1 4"_s, u"2 1 38"_s, u"3 1 17"_s, u"6 1 2"_s}));
        QVERIFY(m_result.leftOut.isEmpty());
    }

    void tellsWhatIsMissingAndWhatItLeavesOut() {
        m_folder->Write(u"web/a.min.js"_s, "x");
        m_folder->Write(u"A.gif"_s, "x");
        QCOMPARE(Rows("<a href=\"fehlt.htm\"><img src=\"fehlt.gif\"><script src=\"a.min.js\"><script "
                      "src=\"a.min.js\">"
                      "<a href=\"http://foo/a.htm\"><a href=\"HTTP://foo\"><img src=\"https://foo/x.gif\">"
                      "<a href=\"mailto:a@b.de\"><a href=\"javascript:zurueck()\"><img src=\"../A.gif\">"
                      "<a href=\"x.htm?a=1\"><img src=\"fort/x.gif\">"),
                 (QStringList{u"web/a.htm HTM HTML +"_s, u"web/fehlt.htm HTM Error3"_s,
                              u"web/fehlt.gif GIF Error3 +"_s, u"A.gif GIF Image +"_s,
                              u"web/x.htm?a=1 HTM Unknown +"_s, u"web/fort/x.gif GIF Image +"_s}));
        QStringList outside;
        for (const SiteFile& file : m_result.files) {
            if (SiteScan::IsOutside(file, m_folder->Path(u"web/a.htm"_s))) outside << file.name;
        }
        QCOMPARE(outside, QStringList{u"A.gif"_s});
        QCOMPARE(m_result.leftOut, QStringList{m_folder->Path(u"web/a.min.js"_s)});
        m_folder->Write(u"web/index.php"_s, "<img src=\"../A.gif\">");
        QCOMPARE(RowsFrom(u"web/index.php"_s),
                 (QStringList{u"web/index.php PHP Unknown3"_s, u"A.gif GIF Image +"_s}));
        QVERIFY(RowsFrom({}).size() <= 1);
        QVERIFY(SiteScan::Scan({}, {}).files.empty());
    }

    void endsWhereASiteLeadsIntoItself() {
        m_folder->Write(u"web/b.htm"_s, "<a href=\"/a.htm\"><a href=\"//b.htm\">");
        QCOMPARE(Rows("<a href=\"/a.htm\"><a href=\"/b.htm\">").size(), 2);
        for (const QString& name : {u"x"_s, u"y"_s})
            QFile::link(m_folder->System(u"web"_s), m_folder->System(u"web/"_s + name));
        m_folder->Write(u"web/a.htm"_s, "<a href=\"x/a.htm\"><a href=\"y/a.htm\">");
        int links = 0;
        SiteScan::Scan(m_folder->Path(u"web/a.htm"_s), {{}, [&] { return ++links < 10'000; }});
        QVERIFY(links < 1'000);
    }

    // A page in a missing folder leaves the text before it in place, whose links lead ever deeper.
    void endsInMissingFoldersAndBehindBrokenLinks() {
        QCOMPARE(Rows("<a href=\"fort/b.htm\">").size(), 3);
        m_dialogs->ExpectMessage({}, u"Unerwarteter Fehler."_s);
        QCOMPARE(Rows("<img src=\"x.gif\"><img src=\"y.gif").size(), 2);
        int rows = 0;
        m_folder->Write(u"web/a.htm"_s,
                        QByteArray("<img src=\"1.gif\"><img src=\"2.gif\"><img src=\"3.gif\">"));
        SiteScan::Scan(m_folder->Path(u"web/a.htm"_s),
                       {[&](const SiteFile&) { ++rows; }, [&] { return rows < 3; }});
        QCOMPARE(rows, 3);
    }

    void readsFoldersWithSignsOfLinks() {
        m_folder->Write(u"w#1 ü%20/b.htm"_s, "x");
        m_folder->Write(u"w#1 ü%20/a.htm"_s, "<a href=\"b.htm#x\">");
        QCOMPARE(RowsFrom(u"w#1 ü%20/a.htm"_s),
                 (QStringList{u"w#1 ü%20/a.htm HTM HTML +"_s, u"w#1 ü%20/b.htm HTM HTML +"_s}));
    }

    void goesAsDeepAsPagesReach() {
        constexpr int Pages = 3000;
        for (int page = 0; page < Pages; ++page) {
            m_folder->Write(u"web/%1.htm"_s.arg(page),
                            "<a href=\"" + QByteArray::number(page + 1) + ".htm\">");
        }
        QCOMPARE(RowsFrom(u"web/0.htm"_s).size(), Pages + 1);
    }
};

REGISTER_TEST_AS(SiteScan, SiteScanTest);
#include "site_scan_test.moc"
