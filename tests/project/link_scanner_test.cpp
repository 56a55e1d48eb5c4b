// SPDX-License-Identifier: MIT
#include "project/link_scanner.h"

#include "platform/events.h"
#include "platform/files.h"
#include "platform/literals.h"
#include "project/link_list.h"
#include "state/global.h"
#include "support/program_folder.h"
#include "support/scripted_dialogs.h"
#include "support/test_registry.h"

#include <QDir>
#include <QMap>
#include <memory>
#include <optional>
#include <vector>

namespace {

const QString Unexpected = u"Unerwarteter Fehler."_s;
const QString BadPath = u"Beim Konvertieren eines Pfades ist ein Fehler aufgetreten."_s;

// A site in the folder "web", scanned from a page of it.
class Site {
public:
    Site() : m_events(Events::Replace({[] {}, {}, [this](double seconds) { slept += seconds; }})) {
        settings.maxLinkDeep = 255;
    }
    ~Site() { Events::Replace(m_events); }

    void Page(const QString& name, const QByteArray& text) const { folder.Write(u"web/"_s + name, text); }
    QString Path(const QString& name) const { return folder.Path(u"web/"_s + name); }

    // The rows as "icon name", or "- name" without an icon.
    QStringList Scan(const QString& root = u"index.htm"_s) {
        rows.clear();
        LinkScanner::Listener listener;
        listener.addRow = [this](const LinkRow& row) { rows.push_back(row); };
        listener.goOn = [this] { return !stopBehind || pumps < *stopBehind; };
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
    std::optional<int> stopBehind; // event runs
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
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("links");
        QTest::addColumn<bool>("cutShort");
        const auto row = [](const char* name, const QString& text, const QStringList& links,
                            bool cut = false) { QTest::newRow(name) << text << links << cut; };
        row("any case, own case kept", u"<A HREF=\"A.HTM\"><Img Src=\"ä b.gif\">"_s,
            {u"A.HTM"_s, u"ä b.gif"_s});
        row("single, no quotes, blanks", u"href='a' href=b href = \"c\" src= \"d\""_s, {});
        row("comments count", u"<!-- href=\"a.htm\" -->"_s, {u"a.htm"_s});
        row("url", u"url(a.gif) URL('b.gif') url(\"c.gif\")"_s, {u"a.gif"_s, u"'b.gif'"_s, u"\"c.gif\""_s});
        row("navigate", u"navigate( \"a.htm\" ) onclick=\"navigate('b.htm')\" x=\"y"_s,
            {u"a.htm"_s, u" x="_s});
        row("earliest first", u"url(1) src=\"2\" navigate(\"3\") href=\"4\" src=\"5\""_s,
            {u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s});
        row("marker within a link", u"href=\"url(x\" src=\"a)b\""_s, {u"url(x"_s, u"a)b"_s});
        row("empty", u"href=\"\"src=\"\"url()"_s, {QString(), QString(), QString()});
        row("over lines", u"href=\"a\r\nb\""_s, {u"a\r\nb"_s});
        row("no closing quote", u"src=\"a\" href=\"b.htm>"_s, {u"a"_s}, true);
        row("no closing bracket", u"url(a href=\"b\""_s, {}, true);
        row("navigate without a quote", u"\"x\" navigate('a')"_s, {}, true);
        row("at the very end", u"src=\"a\" href=\""_s, {u"a"_s}, true);
        row("background is not asked for", u"background=\"a\""_s, {});
    }
    void linksOfAText() {
        QFETCH(QString, text);
        const LinkList list =
            FindLinks(text, {LinkMarker::Href, LinkMarker::Src, LinkMarker::Url, LinkMarker::Navigate});
        QTEST(list.links, "links");
        QTEST(list.cutShort, "cutShort");
    }

    void oneLink_data() {
        QTest::addColumn<QByteArray>("link");
        QTest::addColumn<QStringList>("plainRows");     // rows behind the start page's, with all settings off
        QTest::addColumn<QStringList>("talkativeRows"); // with link errors and external links told
        const auto row = [](const char* link, const QStringList& plain, const QStringList& talkative) {
            QTest::newRow(link) << QByteArray(link) << plain << talkative;
        };
        const auto same = [&row](const char* link, const QStringList& rows) { row(link, rows, rows); };
        same("a.htm", {u"HTMLFile a.htm"_s});
        same("sub/b.html", {u"HTMLFile b.html"_s});
        same("sub/../a.htm", {});
        same("A.htm", {u"Error3 A.htm"_s}); // another file on a disk that tells case apart
        same("s.css", {u"CSS s.css"_s});
        same("j.js", {u"JS j.js"_s});
        same("v.vbs", {u"VBS v.vbs"_s});
        same("w.wml", {u"WMLFile w.wml"_s});
        row("w.wml/x.js", {}, {u"Error3 x.js"_s}); // two dots
        same("bild.gif", {});
        same("a.min.js", {});
        same("mit leer.htm", {u"HTMLFile mit leer.htm"_s});
        same("a.htm#unten", {u"HTMLFile a.htm"_s});
        same("a.htm#x.y", {u"HTMLFile a.htm"_s});
        same("index.htm#top", {});
        same("INDEX.HTM", {}); // seen, whatever its case
        same("#top", {});
        same("", {});
        same("sub/", {});
        same("ordner.htm", {u"HTMLFile ordner.htm"_s}); // a folder: no page, but not absent
        same("fehlt.htm", {u"Error3 fehlt.htm"_s});
        same("fehlt.js", {u"Error3 fehlt.js"_s});
        same("a.htm?x=1", {u"HTMLFile a.htm?x=1"_s}); // a bad name is no missing file
        same("fehlt.htm|", {u"HTMLFile fehlt.htm|"_s});
        same("a.htm')", {u"HTMLFile a.htm"_s});
        row("fehlt.css", {u"- fehlt.css"_s}, {u"Error3 fehlt.css"_s});
        row("fehlt.wml", {u"- fehlt.wml"_s}, {u"Error3 fehlt.wml"_s});
        row("fehlt.gif", {}, {u"Error3 fehlt.gif"_s});
        row("fehlt.min.js", {}, {u"Error3 fehlt.min.js"_s});
        row("http://beispiel.invalid/a.gif", {}, {u"Extern2 http://beispiel.invalid/a.gif"_s});
        row("MailTo:x@beispiel.invalid", {}, {u"Extern2 MailTo:x@beispiel.invalid"_s});
        row("mailto:x@beispiel.htm", {}, {u"Extern2 mailto:x@beispiel.htm"_s});
        same("http://rechner/a.htm", {u"HTMLFile a.htm"_s}); // one dot and no such folder: taken for a page
    }
    void oneLink() {
        QFETCH(QByteArray, link);
        QFETCH(QStringList, plainRows);
        QFETCH(QStringList, talkativeRows);
        Site site;
        site.settings.maxLinkDeep = 1;
        for (const auto* name : {"a.htm", "sub/b.html", "s.css", "j.js", "v.vbs", "w.wml", "bild.gif",
                                 "a.min.js", "mit leer.htm"}) {
            site.Page(QString::fromLatin1(name), "x");
        }
        QDir().mkpath(site.folder.System(u"web/ordner.htm"_s));
        site.Page(u"index.htm"_s, "<a href=\"" + link + "\">");
        for (const bool talkative : {false, true}) {
            site.settings.listLinkErrors = talkative;
            site.settings.showExternLinks = talkative;
            QStringList rows = site.Scan();
            QCOMPARE(rows.takeFirst(), u"HTMLFile index.htm"_s);
            QCOMPARE(rows, talkative ? talkativeRows : plainRows);
        }
    }

    void columns() {
        Site site;
        site.settings.listLinkErrors = site.settings.showExternLinks = true;
        site.Page(u"index.htm"_s,
                  "<TITLE>F\xfcr alle</Title><a href=\"sub/B.HTML#x\"><a href=\"www.x.invalid\">");
        site.Page(u"sub/B.HTML"_s, "<img src=\"../../aussen/c.gif\"><a href=\"d.htm\"><title>Zwei</title>");
        site.Scan();
        QCOMPARE(site.rows.size(), 5U);
        const auto columns = [&](std::size_t i) {
            const LinkRow& row = site.rows[i];
            return QStringList{row.name,    row.title, row.folder, row.linkedFrom, row.linkName,
                               row.sortKey, row.path,  row.tag,    row.icon};
        };
        const QString root = site.Path(u"index.htm"_s);
        const QString second = site.Path(u"sub/B.HTML"_s);
        const QString third = site.Path(u"sub/d.htm"_s);
        QCOMPARE(columns(0)[1], u"Für alle"_s);
        QCOMPARE(columns(0).mid(2), QStringList({u"web/index.htm"_s, root, u"index.htm"_s, u"htm"_s, root,
                                                 root, u"HTMLFile"_s}));
        QCOMPARE(columns(1), QStringList({u"B.HTML"_s, u"Zwei"_s, u"web/sub/B.HTML"_s, root,
                                          u"sub/B.HTML#x"_s, u"htm"_s, second, second, u"HTMLFile"_s}));
        const QString outside = site.folder.Path(u"aussen/c.gif"_s);
        QCOMPARE(columns(2),
                 QStringList({u"c.gif"_s, QString(), u"aussen/c.gif"_s, second, u"../../aussen/c.gif"_s,
                              u"aaa"_s, outside, u"Error"_s, u"Error3"_s}));
        // A missing page bears the title of the page loaded last.
        QCOMPARE(columns(3), QStringList({u"d.htm"_s, u"Zwei"_s, u"web/sub/d.htm"_s, second, u"d.htm"_s,
                                          u"aaa"_s, third, u"Error"_s, u"Error3"_s}));
        QCOMPARE(columns(4),
                 QStringList({u"www.x.invalid"_s, QString(), u"www.x.invalid"_s, root, u"www.x.invalid"_s,
                              u"zzz"_s, u"www.x.invalid"_s, u"Extern"_s, u"Extern2"_s}));
        QCOMPARE(site.counts.missing, 2);
        QCOMPARE(site.counts.external, 1);
        QCOMPARE(site.counts.files, 3);
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
        site.Page(u"index.htm"_s,
                  "href=\"a.php\" href=\"b.aspx\" href=\"c.ph\" href=\"d.txt\" href=\"e.PHP\"");
        for (const auto* name : {"a.php", "b.aspx", "c.ph", "d.txt"})
            site.Page(QString::fromLatin1(name), "");
        // A part of a listed extension is followed, but is of no known kind.
        QCOMPARE(site.Scan(), QStringList({u"HTMLFile index.htm"_s, u"UserDef2 a.php"_s, u"UserDef2 b.aspx"_s,
                                           u"- c.ph"_s, u"Error3 e.PHP"_s}));
        QCOMPARE(site.rows[3].tag, QString());
    }

    void orderAndLimit_data() {
        QTest::addColumn<int>("limit");
        QTest::addColumn<QString>("names");
        QTest::addColumn<int>("files");
        QTest::newRow("1") << 1 << u"index.htm a.htm b.js s.css"_s << 4;
        QTest::newRow("2") << 2 << u"index.htm a.htm c.htm b.js s.css"_s << 5;
        QTest::newRow("3") << 3 << u"index.htm a.htm c.htm d.htm b.js s.css"_s << 6;
        QTest::newRow("5") << 5 << u"index.htm a.htm c.htm d.htm b.js e.htm s.css"_s << 7;
        QTest::newRow("32767") << 32767 << u"index.htm a.htm c.htm d.htm b.js e.htm s.css"_s << 7;
    }
    // Depth first; scripts are searched, style sheets are not; circles end; the limit counts files, not
    // levels.
    void orderAndLimit() {
        QFETCH(int, limit);
        Site site;
        site.settings.maxLinkDeep = limit;
        site.Page(u"index.htm"_s, "href=\"a.htm\" src=\"b.js\" href=\"s.css\" href=\"index.htm\"");
        site.Page(u"a.htm"_s, "href=\"c.htm\" href=\"index.htm\"");
        site.Page(u"c.htm"_s, "href=\"d.htm\" href=\"a.htm\" href=\"C.HTM\"");
        site.Page(u"d.htm"_s, "href=\"c.htm\"");
        site.Page(u"b.js"_s, "navigate(\"e.htm\")");
        site.Page(u"e.htm"_s, "");
        site.Page(u"s.css"_s, "url(z.htm)");
        site.Scan();
        QStringList names;
        for (const LinkRow& row : site.rows) names << row.name;
        QTEST(names.join(u' '), "names");
        QTEST(site.counts.files, "files");
        QCOMPARE(site.pumps, site.counts.links);
    }

    void messages() {
        Site site;
        ScriptedDialogs dialogs;
        dialogs.ExpectMessage({}, Unexpected); // a.htm, and the page above goes on
        dialogs.ExpectMessage(u"Fehler"_s, BadPath, Dialogs::Answer::Ok, Dialogs::Icon::Critical);
        site.Page(u"index.htm"_s, "href=\"a.htm\" href=\"b.htm\" href=\"c.htm\"");
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
        const QByteArray index = "<title>T</title>href=\"weg/a.htm\" href=\"b.htm\" href=\"fort/c.htm\"";
        site.Page(u"index.htm"_s, index);
        site.Page(u"b.htm"_s, "href=\"weg/d.htm\"");
        const QStringList expected{u"index.htm"_s,  u"weg\\a.htm"_s,       u"weg\\weg\\a.htm"_s,
                                   u"weg\\b.htm"_s, u"weg\\fort\\c.htm"_s, u"b.htm"_s,
                                   u"weg\\d.htm"_s, u"weg\\weg\\d.htm"_s,  u"fort\\c.htm"_s};
        for (int scan = 0; scan < 2; ++scan) { // the second one begins with the text that the first one kept
            site.Scan();
            QStringList paths;
            for (const LinkRow& row : site.rows) paths << row.path.sliced(site.Path({}).size());
            QCOMPARE(paths, expected);
        }
        QCOMPARE(site.rows[1].title, u"T"_s);
        QCOMPARE(site.rows[1].tag, site.rows[1].path);
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
            dialogs.ExpectMessage({}, Unexpected);
            site.Scan();
            QCOMPARE(site.counts.rows, 601);
            QVERIFY(dialogs.Finished());
        }
        const QByteArray far = QByteArray("../").repeated(40) + "x.htm";
        site.Page(u"index.htm"_s, "href=\"weg/a.htm\" href=\"" + far + "\"");
        dialogs.ExpectMessage(u"Fehler"_s, BadPath, Dialogs::Answer::Ok, Dialogs::Icon::Critical);
        site.Scan();
    }

    void hostileStartPages() {
        Site site;
        QCOMPARE(site.Scan({}), QStringList());
        QCOMPARE(site.counts.files, 0);
        QCOMPARE(site.Scan(u"fehlt.htm"_s), QStringList({u"HTMLFile fehlt.htm"_s})); // so does its folder
        site.Page(u"leer.htm"_s, "");
        QCOMPARE(site.Scan(u"fehlt.htm"_s), QStringList({u"Error3 fehlt.htm"_s}));
        QCOMPARE(site.Scan(u"leer.htm"_s), QStringList({u"HTMLFile leer.htm"_s}));
        site.Page(u"ohne"_s, "href=\"leer.htm\"");
        QCOMPARE(site.Scan(u"ohne"_s), QStringList({u"- ohne"_s, u"HTMLFile leer.htm"_s}));
        QCOMPARE(site.rows[0].sortKey, site.rows[0].path.first(3).toLower()); // no dot: the path's beginning

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
        for (int i = 0; i < Depth; ++i) {
            site.Page(u"k%1.htm"_s.arg(i), "href=\"k" + QByteArray::number((i + 1) % Depth) + ".htm\"");
        }
        site.Scan(u"k0.htm"_s);
        QCOMPARE(site.counts.rows, Depth);
        QCOMPARE(site.rows.back().name, u"k%1.htm"_s.arg(Depth - 1));
    }

    void stopping() {
        Site site;
        site.Page(u"index.htm"_s, "href=\"a.htm\" href=\"b.htm\"");
        site.Page(u"a.htm"_s, "href=\"c.htm\" href=\"d.htm\"");
        site.stopBehind = 2;
        QCOMPARE(site.Scan(), QStringList({u"HTMLFile index.htm"_s, u"HTMLFile a.htm"_s, u"Error3 c.htm"_s}));
        QVERIFY(site.counts.stopped);
        QCOMPARE(site.pumps, 2);
        site.stopBehind.reset();
        QCOMPARE(site.Scan().size(), 5);
        QVERIFY(!site.counts.stopped);

        // Without an answer of its own the listener goes by the project window.
        LinkScanner::Listener listener;
        Global::ProjectWindowOpen = true;
        listener.letEventsRun = [](const LinkScanner::Counts&) { Global::ProjectWindowOpen = false; };
        QCOMPARE(site.scanner.Scan(site.Path(u"index.htm"_s), site.settings, listener).rows, 2);
    }

    // Opening another page while events run starts a scan of its own; the first one must not go on adding
    // rows.
    void aNewScanStopsTheOneBefore() {
        Site site;
        site.Page(u"index.htm"_s, "href=\"a.htm\" href=\"b.htm\"");
        site.Page(u"neu.htm"_s, "href=\"c.htm\"");
        auto scanner = std::make_unique<LinkScanner>();
        QStringList names;
        LinkScanner::Listener inner;
        inner.goOn = [] { return true; };
        inner.addRow = [&](const LinkRow& row) { names << row.name; };
        inner.letEventsRun = [](const LinkScanner::Counts&) {};
        LinkScanner::Listener outer = inner;
        outer.letEventsRun = [&](const LinkScanner::Counts&) {
            scanner->Scan(site.Path(u"neu.htm"_s), site.settings, inner);
            scanner.reset(); // and the window with it
        };
        QVERIFY(scanner->Scan(site.Path(u"index.htm"_s), site.settings, outer).stopped);
        QCOMPARE(names, QStringList({u"index.htm"_s, u"a.htm"_s, u"neu.htm"_s, u"c.htm"_s}));
    }

    void sampleSite() {
        Site site;
        CopyFolder(SourceFile(u"examples/verein"_s), site.folder.System(u"web"_s));
        site.settings.listLinkErrors = site.settings.showExternLinks = true;
        site.Scan();
        QMap<QString, QStringList> found;
        for (const LinkRow& row : site.rows) {
            const bool error = row.tag == u"Error";
            found[row.sortKey] << (row.tag == u"Extern" ? row.name : row.folder) +
                                      (error ? u" < "_s + row.linkName : QString());
        }
        QCOMPARE(found[u"aaa"_s], QStringList({u"web/aktuell/fotos.htm < aktuell/fotos.htm"_s}));
        QCOMPARE(found[u"htm"_s].size(), 15);
        QCOMPARE(found[u"css"_s], QStringList({u"web/stil/verein.css"_s, u"web/stil/heute.css"_s}));
        QCOMPARE(found[u"js"_s], QStringList({u"web/skripte/verein.js"_s, u"web/heute/gartenjahr.js"_s}));
        QCOMPARE(found[u"vbs"_s], QStringList({u"web/skripte/rechner.vbs"_s}));
        QCOMPARE(found[u"wml"_s], QStringList({u"web/wap/index.wml"_s, u"web/wap/termine.wml"_s}));
        QCOMPARE(found[u"zzz"_s].size(), 11);
        QVERIFY(found[u"zzz"_s].contains(u"http://karten.example.org/wendelau/"_s));
        QCOMPARE(found.size(), 7);
    }
};

REGISTER_TEST_AS(LinkScanner, LinkScannerTest);
#include "link_scanner_test.moc"
