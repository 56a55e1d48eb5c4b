// SPDX-License-Identifier: MIT
#include "preview/access_rule.h"

#include "platform/files.h"
#include "platform/literals.h"
#include "preview/browser_address.h"
#include "preview/notice_page.h"
#include "support/program_folder.h"
#include "support/test_registry.h"

#include <QFile>

// What the view may load, and how its addresses are written.
class AccessRules : public QObject {
    Q_OBJECT

private slots:
    void readsAddresses_data() {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QUrl>("url");
        QTest::addColumn<bool>("network");
        const auto row = [](const char* title, const QString& typed, const QString& url, bool network) {
            QTest::newRow(title) << typed << QUrl(url) << network;
        };
        row("nothing", u"  "_s, QString(), false);
        row("host", u"www.verein.example"_s, u"http://www.verein.example"_s, true);
        row("blanks around", u" https://verein.example/a?b=ä#c "_s, u"https://verein.example/a?b=ä#c"_s,
            true);
        row("unknown scheme", u"gopher://verein.example"_s, u"gopher://verein.example"_s, true);
        row("blank", u"about:blank"_s, u"about:blank"_s, false);
        row("file", u"file:///tmp/a%20b.htm"_s, u"file:///tmp/a%20b.htm"_s, false);
        row("share", u"file://server/a.htm"_s, u"file://server/a.htm"_s, true);
#ifndef Q_OS_WIN
        row("program's form", u"\\tmp\\Größe 5%.htm"_s, u"file:///tmp/Größe%205%25.htm"_s, false);
        row("place in a page", u"/tmp/a.htm#unten"_s, u"file:///tmp/a.htm#unten"_s, false);
#endif
    }
    void readsAddresses() {
        QFETCH(QString, typed);
        QFETCH(QUrl, url);
        QFETCH(bool, network);
        const QUrl read = BrowserAddress::FromText(typed);
        QCOMPARE(read, url);
        QCOMPARE(BrowserAddress::IsNetwork(read), network);
        // what is shown leads back to the same place
        if (read.isValid()) QCOMPARE(BrowserAddress::FromText(BrowserAddress::Shown(read)), url);
    }

    void takesASharpSignInAFileNameAsItIs() {
        const ProgramFolder folder(ProgramFolder::Content::Empty);
        const QUrl url = BrowserAddress::FromText(folder.Write(u"C#.htm"_s, "x"));
        QCOMPARE(BrowserAddress::Shown(url), folder.System(u"C#.htm"_s));
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
        const ProgramFolder folder(ProgramFolder::Content::Empty);
        for (const QString& name : {u"a.txt"_s, u"site/b.TXT"_s, u"site/sub/c.txt"_s, u"site/LIESMICH"_s,
                                    u"site.txt"_s, u"site/x.ini"_s, u"site2/d.txt"_s}) {
            folder.Write(name, "x");
        }
        QVERIFY(QFile::link(folder.System(u"a.txt"_s), folder.System(u"site/link.txt"_s)));
        const QUrl page = QUrl::fromLocalFile(Files::ToSystem(folder.Write(u"site/s.htm"_s, "x")));
        AccessRule rule;
        const auto shown = [&](const QString& name) {
            return rule.AllowsPart(QUrl::fromLocalFile(folder.System(name)), AccessRule::Part::Frame, page);
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
        QVERIFY(!rule.AllowsPart(QUrl::fromLocalFile(folder.System(u"site/b.TXT"_s)), AccessRule::Part::Frame,
                                 QUrl(u"http://verein.example/"_s)));
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
