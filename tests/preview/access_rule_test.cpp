// SPDX-License-Identifier: MIT
#include "preview/access_rule.h"

#include "preview/browser_address.h"
#include "preview/notice_page.h"
#include "support/folder_test.h"

// What the view may load, and how its addresses are written.
class AccessRules : public FolderTest {
    Q_OBJECT

private slots:
    void readsAddresses_data() {
        const auto row = Columns<QString, QString, bool>("typed", "url", "network");
        row("nothing", "  ", "", false);
        row("host", "www.verein.example", "http://www.verein.example", true);
        row("blanks around", " https://verein.example/a?b=ä#c ", "https://verein.example/a?b=ä#c", true);
        row("unknown scheme", "gopher://verein.example", "gopher://verein.example", true);
        row("blank", "about:blank", "about:blank", false);
        row("file", "file:///tmp/a%20b.htm", "file:///tmp/a%20b.htm", false);
        row("share", "file://server/a.htm", "file://server/a.htm", true);
#ifndef Q_OS_WIN
        row("program's form", "\\tmp\\Größe 5%.htm", "file:///tmp/Größe%205%25.htm", false);
        row("place in a page", "/tmp/a.htm#unten", "file:///tmp/a.htm#unten", false);
#endif
    }
    void readsAddresses() {
        QFETCH(QString, typed);
        QFETCH(QString, url);
        QFETCH(bool, network);
        const QUrl read = BrowserAddress::FromText(typed);
        QCOMPARE(read, QUrl(url));
        QCOMPARE(BrowserAddress::IsNetwork(read), network);
        // what is shown leads back to the same place
        if (read.isValid()) QCOMPARE(BrowserAddress::FromText(BrowserAddress::Shown(read)), QUrl(url));
    }

    void takesASharpSignInAFileNameAsItIs() {
        const QUrl url = BrowserAddress::FromText(m_folder->Write(u"C#.htm"_s, "x"));
        QCOMPARE(BrowserAddress::Shown(url), m_folder->System(u"C#.htm"_s));
    }

    void staysOfflineButForTheUsersOwnWishes() {
        const QUrl page(u"file:///site/a.htm"_s);
        const QUrl web(u"http://verein.example/"_s);
        const QUrl other(u"https://anderswo.example/x"_s);
        AccessRule rule;
        QVERIFY(rule.AllowsPage(page, {}) && rule.AllowsPage(QUrl(u"data:text/html,x"_s), page));
        QVERIFY(!rule.AllowsPage(web, page) && !rule.AllowsPage(web, {}) && !rule.AllowsFetch(web));
        QVERIFY(!rule.AllowsPart(web, AccessRule::Part::Other, page));
        QVERIFY(!rule.AllowsPart(QUrl(u"wss://verein.example/"_s), AccessRule::Part::Other, page));

        rule.Wish(web);
        QVERIFY(rule.AllowsPage(web, page) && rule.AllowsFetch(web));
        QVERIFY(rule.AllowsPart(other, AccessRule::Part::Other, web)); // a picture of the page he wished for
        QVERIFY(!rule.AllowsPart(web, AccessRule::Part::Other, page)); // but none of the local page
        QVERIFY(!rule.AllowsPage(other, page) && !rule.AllowsFetch(other));
        QVERIFY(rule.AllowsPage(other, web)); // he followed a link there
        QVERIFY(rule.AllowsFetch(other));

        AccessRule alone;
        alone.browsingAlone = true;
        QVERIFY(alone.AllowsPage(other, page) && alone.AllowsPart(other, AccessRule::Part::Other, page));
        alone.browsingAlone = false;
        QVERIFY(!alone.AllowsPage(web, page));
    }

    void keepsScriptsFromLocalFiles() {
        const QUrl page(u"file:///site/a.htm"_s);
        AccessRule rule;
        const auto allows = [&](const QString& file, AccessRule::Part part) {
            return rule.AllowsPart(QUrl::fromLocalFile(file), part, page);
        };
        for (const bool alone : {false, true}) {
            rule.browsingAlone = alone;
            QVERIFY(!allows(u"/site/b.htm"_s, AccessRule::Part::Data));
            QVERIFY(!allows(u"/etc/passwd"_s, AccessRule::Part::Frame));
            QVERIFY(!allows(u"/etc/"_s, AccessRule::Part::Frame));
            QVERIFY(!allows(u"/site/wert.js"_s, AccessRule::Part::Frame));
            QVERIFY(allows(u"/site/NAVI.HTM"_s, AccessRule::Part::Frame));
            QVERIFY(allows(u"/site/stil.css"_s, AccessRule::Part::Other));
        }
    }

    void showsTextsOfThePagesOwnFolders() {
        for (const QString& name : {u"a.txt"_s, u"site/b.TXT"_s, u"site/sub/c.txt"_s, u"site/LIESMICH"_s,
                                    u"site.txt"_s, u"site/x.ini"_s, u"site2/d.txt"_s}) {
            m_folder->Write(name, "x");
        }
        QVERIFY(QFile::link(m_folder->System(u"a.txt"_s), m_folder->System(u"site/link.txt"_s)));
        const QUrl page = QUrl::fromLocalFile(Files::ToSystem(m_folder->Write(u"site/s.htm"_s, "x")));
        AccessRule rule;
        const auto shown = [&](const QString& name) {
            return rule.AllowsPart(QUrl::fromLocalFile(m_folder->System(name)), AccessRule::Part::Frame,
                                   page);
        };
        for (const QString& name : {u"site/b.TXT"_s, u"site/sub/c.txt"_s, u"site/LIESMICH"_s})
            QVERIFY2(shown(name), qPrintable(name));
        for (const QString& name : {u"a.txt"_s, u"site/../a.txt"_s, u"site.txt"_s, u"site2/d.txt"_s,
                                    u"site/x.ini"_s, u"site/link.txt"_s, u"site/sub"_s, u"site/"_s})
            QVERIFY2(!shown(name), qPrintable(name));
        // where a script could send what it reads into the network, it gets nothing to read
        rule.browsingAlone = true;
        QVERIFY(!shown(u"site/b.TXT"_s));
        rule.browsingAlone = false;
        QVERIFY(!rule.AllowsPart(QUrl::fromLocalFile(m_folder->System(u"site/b.TXT"_s)),
                                 AccessRule::Part::Frame, QUrl(u"http://verein.example/"_s)));
    }

    void keepsTheRefusedAddressInItsNotice() {
        const QUrl address(u"http://verein.example/?a=1;2&b=<ä>\"#c"_s);
        const QUrl notice = NoticePage::Refused(address, u"#fff"_s, u"#000"_s);
        QCOMPARE(NoticePage::RefusedAddress(notice), address);
        QVERIFY(!NoticePage::RefusedAddress(QUrl(u"data:text/html,x"_s)).isValid());
        QVERIFY(!NoticePage::RefusedAddress(address).isValid());
        const QByteArray page = QByteArray::fromBase64(notice.path().section(u',', 1).toLatin1());
        QVERIFY(page.contains(u"In Ihrem Browser öffnen"_s.toUtf8()));
        QVERIFY(!page.contains("<ä>")); // whatever the address holds, it stays text
    }
};

REGISTER_TEST_AS(AccessRule, AccessRules);
#include "access_rule_test.moc"
