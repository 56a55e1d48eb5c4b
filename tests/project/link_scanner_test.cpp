// SPDX-License-Identifier: MIT
#include "project/link_scanner.h"

#include "documents/link_list.h"
#include "platform/events.h"
#include "support/test.h"

#include <vector>

namespace {

// A site in the folder "web", scanned from a page of it.
class Site {
public:
    Site() : m_events(Events::Replace({[] {}, {}, [this](double seconds) { slept += seconds; }})) {
        settings.maxLinkDeep = 255;
    }
    ~Site() { Events::Replace(m_events); }

    void Page(const QString& name, const QByteArray& text) const { folder.Write(u"web/"_s + name, text); }
    QString Path(const QString& name) const { return folder.Path(u"web/"_s + name); }

    // A page with a link to each.
    void Index(const QList<QByteArray>& links) const {
        Page(u"index.htm"_s, "href=\"" + links.join("\" href=\"") + '"');
    }
    // The paths of all rows, from the folder on.
    QStringList Paths() const {
        QStringList paths;
        for (const LinkRow& row : rows) paths << row.path.sliced(Path({}).size());
        return paths;
    }

    // The rows as "icon name", or "- name" without an icon.
    QStringList Scan(const QString& root = u"index.htm"_s) {
        rows.clear();
        LinkScanner::Listener listener;
        listener.goOn = [] { return true; };
        listener.addRow = [this](const LinkRow& row) { rows.push_back(row); };
        listener.letEventsRun = [this](const LinkScanner::Counts&) { ++pumps; };
        pumps = 0;
        counts = scanner.Scan(root.isEmpty() ? root : Path(root), settings, listener);
        QStringList told;
        for (const LinkRow& row : rows) told << (row.icon.isEmpty() ? u"-"_s : row.icon) + u' ' + row.name;
        return told;
    }

    ProgramFolder folder{ProgramFolder::Content::Empty};
    LinkScanner scanner;
    LinkScanner::Settings settings;
    LinkScanner::Counts counts;
    std::vector<LinkRow> rows;
    int pumps = 0;
    double slept = 0;

private:
    Events::Source m_events;
};

} // namespace

class LinkScannerTest : public QObject {
    Q_OBJECT

private slots:
    void linksOfAText_data() {
        const auto row = Columns<QString, QStringList, bool>("text", "links", "cutShort");
        row("any case, own case kept", "<A HREF=\"A.HTM\"><Img Src=\"ä b.gif\">", {"A.HTM", "ä b.gif"},
            false);
        row("none", "href='a' href=b href = \"c\" src= \"d\" background=\"e\"", {}, false);
        row("comments count", "<!-- href=\"a.htm\" -->", {"a.htm"}, false);
        row("url", "url(a.gif) URL('b.gif') url(\"c.gif\")", {"a.gif", "'b.gif'", "\"c.gif\""}, false);
        row("navigate", "navigate( \"a.htm\" ) onclick=\"navigate('b.htm')\" x=\"y", {"a.htm", " x="}, false);
        row("earliest first", "url(1) src=\"2\" navigate(\"3\") href=\"4\" src=\"5\"",
            {"1", "2", "3", "4", "5"}, false);
        row("marker within a link", "href=\"url(x\" src=\"a)b\"", {"url(x", "a)b"}, false);
        row("empty", "href=\"\"src=\"\"url()", {"", "", ""}, false);
        row("over lines", "href=\"a\r\nb\"", {"a\r\nb"}, false);
        row("no closing quote", "src=\"a\" href=\"b.htm>", {"a"}, true);
        row("no closing bracket", "url(a href=\"b\"", {}, true);
        row("navigate without a quote", "\"x\" navigate('a')", {}, true);
        row("at the very end", "src=\"a\" href=\"", {"a"}, true);
    }
    void linksOfAText() {
        QFETCH(QString, text);
        const LinkList list =
            FindLinks(text, {LinkMarker::Href, LinkMarker::Src, LinkMarker::Url, LinkMarker::Navigate});
        QTEST(list.links, "links");
        QTEST(list.cutShort, "cutShort");
    }

    void oneLink_data() {
        // the rows behind the start page's with all settings off, and with all that can be told
        const auto add = Columns<QByteArray, QStringList, QStringList>("link", "plainRows", "talkativeRows");
        const auto row = [&](const char* text, const QStringList& plain, const QStringList& talkative) {
            add(text, text, plain, talkative);
        };
        const auto same = [&row](const char* link, const QStringList& rows) { row(link, rows, rows); };
        same("sub/b.html", {"HTMLFile b.html"});
        same("sub/../a.htm", {});
        same("A.htm", {"Error3 A.htm"}); // another file on a disk that tells case apart
        same("s.css", {"CSS s.css"});
        same("v.vbs", {"VBS v.vbs"});
        same("w.wml", {"WMLFile w.wml"});
        row("w.wml/x.js", {}, {"Error3 x.js"}); // two dots
        same("bild.gif", {});
        same("a.min.js", {});
        same("mit leer.htm", {"HTMLFile mit leer.htm"});
        same("a.htm#unten", {"HTMLFile a.htm"});
        same("index.htm#top", {});
        same("INDEX.HTM", {}); // seen, whatever its case
        same("", {});
        same("ordner.htm", {"HTMLFile ordner.htm"}); // a folder: no page, but not absent
        same("fehlt.htm", {"Error3 fehlt.htm"});
        same("a.htm?x=1", {"HTMLFile a.htm?x=1"}); // a bad name is no missing file
        same("a.htm')", {"HTMLFile a.htm"});
        row("fehlt.css", {"- fehlt.css"}, {"Error3 fehlt.css"});
        row("fehlt.wml", {"- fehlt.wml"}, {"Error3 fehlt.wml"});
        row("fehlt.gif", {}, {"Error3 fehlt.gif"});
        row("http://beispiel.invalid/a.gif", {}, {"Extern2 http://beispiel.invalid/a.gif"});
        row("MailTo:x@beispiel.invalid", {}, {"Extern2 MailTo:x@beispiel.invalid"});
        row("mailto:x@beispiel.htm", {}, {"Extern2 mailto:x@beispiel.htm"});
        same("http://rechner/a.htm", {"HTMLFile a.htm"}); // one dot and no such folder: taken for a page
    }
    void oneLink() {
        QFETCH(QByteArray, link);
        QFETCH(QStringList, plainRows);
        QFETCH(QStringList, talkativeRows);
        Site site;
        site.settings.maxLinkDeep = 1;
        for (const QString& name : {u"a.htm"_s, u"sub/b.html"_s, u"s.css"_s, u"v.vbs"_s, u"w.wml"_s,
                                    u"bild.gif"_s, u"a.min.js"_s, u"mit leer.htm"_s}) {
            site.Page(name, "x");
        }
        QDir().mkpath(site.folder.System(u"web/ordner.htm"_s));
        site.Page(u"index.htm"_s, "<a href=\"" + link + "\">");
        for (const bool talkative : {false, true}) {
            site.settings.listLinkErrors = talkative;
            site.settings.showExternLinks = talkative;
            QCOMPARE(site.Scan().mid(1), talkative ? talkativeRows : plainRows);
        }
    }

    void columns() {
        Site site;
        site.settings.listLinkErrors = site.settings.showExternLinks = true;
        site.Page(u"index.htm"_s,
                  "<TITLE>F\xfcr alle</Title><a href=\"sub/B.HTML#x\"><a href=\"www.x.invalid\">");
        site.Page(u"sub/B.HTML"_s, "<img src=\"../../aussen/c.gif\"><a href=\"d.htm\"><title>Zwei</title>");
        site.Scan();
        QStringList told;
        for (const LinkRow& row : site.rows) {
            const QStringList cells{row.name,    row.title, row.folder, row.linkName,
                                    row.sortKey, row.tag,   row.icon,   row.linkedFrom.section(u'\\', -1)};
            told << cells.join(u' ');
        }
        const QString index = site.Path(u"index.htm"_s);
        const QString second = site.Path(u"sub/B.HTML"_s);
        // a missing page bears the title of the page loaded last
        const QStringList expected{
            u"index.htm Für alle web/index.htm index.htm htm "_s + index + u" HTMLFile index.htm",
            u"B.HTML Zwei web/sub/B.HTML sub/B.HTML#x htm "_s + second + u" HTMLFile index.htm",
            u"c.gif  aussen/c.gif ../../aussen/c.gif aaa Error Error3 B.HTML"_s,
            u"d.htm Zwei web/sub/d.htm d.htm aaa Error Error3 B.HTML"_s,
            u"www.x.invalid  www.x.invalid www.x.invalid zzz Extern Extern2 index.htm"_s};
        QCOMPARE(told, expected);
        QCOMPARE(site.rows[1].path, second);
        QCOMPARE(site.rows[2].path, site.folder.Path(u"aussen/c.gif"_s));
    }

    // Dots in a folder's name keep its pages out, and decide the icon of the start page together with its
    // own.
    void dotsInFolders() {
        Site site;
        site.Page(u"mein.html/index.css"_s, "");
        QCOMPARE(site.Scan(u"mein.html/index.css"_s), QStringList({u"CSS index.css"_s}));
        site.Page(u"mein.js/index.htm"_s, "<a href=\"b.htm\">");
        site.Page(u"mein.js/b.htm"_s, "");
        QCOMPARE(site.Scan(u"mein.js/index.htm"_s), QStringList({u"JS index.htm"_s}));
    }

    void extensionsOfTheProject() {
        Site site;
        site.settings.projectFiles = u"ASP-php-"_s;
        site.Index({"a.php", "b.aspx", "c.ph", "d.txt", "e.PHP"});
        for (const QString& name : {u"a.php"_s, u"b.aspx"_s, u"c.ph"_s, u"d.txt"_s}) site.Page(name, "");
        // A part of a listed extension is followed, but is of no known kind.
        QCOMPARE(site.Scan(), QStringList({u"HTMLFile index.htm"_s, u"UserDef2 a.php"_s, u"UserDef2 b.aspx"_s,
                                           u"- c.ph"_s, u"Error3 e.PHP"_s}));
    }

    // Depth first; scripts are searched, style sheets are not; circles end; the limit counts files, not
    // levels.
    void orderAndLimit() {
        Site site;
        site.Page(u"index.htm"_s, "href=\"a.htm\" src=\"b.js\" href=\"s.css\" href=\"index.htm\"");
        site.Page(u"a.htm"_s, "href=\"c.htm\" href=\"index.htm\"");
        site.Page(u"c.htm"_s, "href=\"d.htm\" href=\"a.htm\" href=\"C.HTM\"");
        site.Page(u"d.htm"_s, "href=\"c.htm\"");
        site.Page(u"b.js"_s, "navigate(\"e.htm\")");
        site.Page(u"e.htm"_s, "");
        site.Page(u"s.css"_s, "url(z.htm)");
        for (const auto& [limit, names] : {std::pair(1, u"index.htm a.htm b.js s.css"_s),
                                           {2, u"index.htm a.htm c.htm b.js s.css"_s},
                                           {3, u"index.htm a.htm c.htm d.htm b.js s.css"_s},
                                           {5, u"index.htm a.htm c.htm d.htm b.js e.htm s.css"_s}}) {
            site.settings.maxLinkDeep = limit;
            site.Scan();
            QCOMPARE(site.Paths().join(u' '), names);
            QCOMPARE(site.counts.files, names.count(u' ') + 1);
            QCOMPARE(site.pumps, site.counts.links);
        }
    }

    void messages() {
        Site site;
        ScriptedDialogs dialogs;
        dialogs.ExpectMessage({}, u"Unerwarteter Fehler."_s); // a.htm, and the page above goes on
        dialogs.ExpectMessage(u"Fehler"_s, u"Beim Konvertieren eines Pfades ist ein Fehler aufgetreten."_s);
        site.Index({"a.htm", "b.htm", "c.htm"});
        site.Page(u"a.htm"_s, "href=\"d.js\" href=\"offen");
        site.Page(u"b.htm"_s, "href=\"" + QByteArray("../").repeated(40) + "x.htm\" href=\"nie.htm\"");
        site.Page(u"c.htm"_s, "href=\"d.js\"");
        site.Page(u"d.js"_s, "");
        QCOMPARE(site.Scan(), QStringList({u"HTMLFile index.htm"_s, u"HTMLFile a.htm"_s, u"JS d.js"_s,
                                           u"HTMLFile b.htm"_s, u"HTMLFile c.htm"_s}));
        QCOMPARE(site.slept, 1.0);
    }

    // A page in a folder that is not there counts as found, and the text loaded last is searched under its
    // path, but once: each search of it would find new links in folders ever deeper.
    void missingFolder() {
        Site site;
        site.settings.maxLinkDeep = 32767;
        site.Page(u"index.htm"_s, "<title>T</title>href=\"weg/a.htm\" href=\"b.htm\" href=\"fort/c.htm\"");
        site.Page(u"b.htm"_s, "href=\"weg/d.htm\"");
        const QStringList expected{u"index.htm"_s,  u"weg\\a.htm"_s,       u"weg\\weg\\a.htm"_s,
                                   u"weg\\b.htm"_s, u"weg\\fort\\c.htm"_s, u"b.htm"_s,
                                   u"weg\\d.htm"_s, u"weg\\weg\\d.htm"_s,  u"fort\\c.htm"_s};
        for (int scan = 0; scan < 2; ++scan) { // the second one begins with the text that the first one kept
            site.Scan();
            QCOMPARE(site.Paths(), expected);
        }
        QCOMPARE(site.rows[1].title, u"T"_s);
    }

    // A fault of the text is told once a scan, however often its text is searched.
    void missingFoldersAndFaults() {
        Site site;
        ScriptedDialogs dialogs;
        site.settings.maxLinkDeep = 32767;
        QByteArray index;
        for (int i = 0; i < 300; ++i) index += "href=\"weg" + QByteArray::number(i) + "/a.htm\" ";
        site.Page(u"index.htm"_s, index + "style=\"background:url(bild.gif;\"");
        for (int scan = 0; scan < 2; ++scan) {
            dialogs.ExpectMessage({}, u"Unerwarteter Fehler."_s);
            site.Scan();
            QCOMPARE(site.counts.rows, 601);
            QVERIFY(dialogs.Finished());
        }
        site.Index({"weg/a.htm", QByteArray("../").repeated(40) + "x.htm"});
        dialogs.ExpectMessage(u"Fehler"_s, u"Beim Konvertieren eines Pfades ist ein Fehler aufgetreten."_s);
        site.Scan();
    }

    void hostileStartPages() {
        Site site;
        QCOMPARE(site.Scan({}), QStringList());
        QCOMPARE(site.Scan(u"fehlt.htm"_s), QStringList({u"HTMLFile fehlt.htm"_s})); // so does its folder
        site.Page(u"leer.htm"_s, "");
        QCOMPARE(site.Scan(u"fehlt.htm"_s), QStringList({u"Error3 fehlt.htm"_s}));
        site.Page(u"ohne"_s, "href=\"leer.htm\"");
        QCOMPARE(site.Scan(u"ohne"_s), QStringList({u"- ohne"_s, u"HTMLFile leer.htm"_s}));

        QByteArray binary;
        for (int i = 0; i < 200'000; ++i) binary.append(static_cast<char>(i * 7919 >> 3));
        site.Page(u"binaer.htm"_s, binary + QByteArray("\0href=\"leer.htm\0\"src=\"leer.htm\"\0", 31));
        site.settings.listLinkErrors = true;
        QVERIFY(site.Scan(u"binaer.htm"_s).contains(u"HTMLFile leer.htm"_s));

        site.Page(u"lang.htm"_s, "href=\"" + QByteArray(1'000'000, 'x') + ".htm\" src=\"leer.htm\"");
        QVERIFY(site.Scan(u"lang.htm"_s).contains(u"HTMLFile leer.htm"_s));
    }

    void manyLinksAndDeepChains() {
        Site site;
        site.settings.maxLinkDeep = 32767;
        constexpr int Links = 20'000;
        QByteArray page;
        for (int i = 0; i < Links; ++i) page += "<a href=\"f" + QByteArray::number(i) + ".js\">";
        site.Page(u"index.htm"_s, page + page);
        site.Scan();
        QCOMPARE(site.counts.missing, Links);
        QCOMPARE(site.counts.links, 2 * Links);

        constexpr int Depth = 6'000;
        for (int i = 0; i < Depth; ++i)
            site.Page(u"k%1.htm"_s.arg(i), "href=\"k" + QByteArray::number((i + 1) % Depth) + ".htm\"");
        site.Scan(u"k0.htm"_s);
        QCOMPARE(site.counts.rows, Depth);
        QCOMPARE(site.rows.back().name, u"k%1.htm"_s.arg(Depth - 1));
    }
};

REGISTER_TEST_AS(LinkScanner, LinkScannerTest);
#include "link_scanner_test.moc"
