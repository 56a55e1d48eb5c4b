// SPDX-License-Identifier: MIT
#include "documents/paths.h"

#include "platform/events.h"
#include "support/test.h"

using namespace Global;

class Paths : public QObject {
    Q_OBJECT

private slots:
    void takesPathsApart() {
        QCOMPARE(FileNameOf(u"\\a/b\\c/d"_s), u"c/d"_s);
        QCOMPARE(FileNameOf(u"a/b.htm"_s), u"b.htm"_s);
        QCOMPARE(FileNameOf(u"b.htm"_s), u"b.htm"_s);
        QCOMPARE(ParentPath(u"\\a\\b.htm"_s), u"\\a"_s);
        QCOMPARE(ParentPath(u"\\b.htm"_s), u"\\b.htm"_s); // only from position 2 on
        QCOMPARE(StripExtension(u"a.b.htm"_s), u"a.b."_s);
        QCOMPARE(ExtensionOf(u"X.HTML"_s), u"htm"_s);
        QCOMPARE(ExtensionOf(u"X.HTML"_s, u"none"_s, 4), u"html"_s);
        QCOMPARE(ExtensionOf(u"name"_s), u"none"_s);
        QCOMPARE(ExtensionOf(u"name."_s), QString());
        QCOMPARE(CountOccurrences(u"aaaa", u"aa"), 2);
        QCOMPARE(CountOccurrences(u"a", u""), 0);
        QCOMPARE(CutBefore(u"abcXYZ"_s, u"xy"_s), u"abc"_s);
        QCOMPARE(CutBefore(u"abc"_s, u"x"_s), u"abc"_s);
    }

    void resolvesLinks() {
        QCOMPARE(ResolveLink(u"x/y.htm"_s, u"\\site\\a\\"_s), u"\\site\\a\\x\\y.htm"_s);
        QCOMPARE(ResolveLink(u"../y.htm"_s, u"\\site\\a\\"_s), u"\\site\\y.htm"_s);
        QCOMPARE(ResolveLink(u"../../b/y.htm"_s, u"\\site\\a\\c\\"_s), u"\\site\\b\\y.htm"_s);
        QCOMPARE(ResolveLink(u"a/../y.htm"_s, u"\\s\\"_s),
                 u"\\s\\a\\..\\y.htm"_s); // only leading steps count
    }

    void givesUpAboveTheRoot() {
        double slept = 0;
        const auto before = Events::Replace({{}, {}, [&](double seconds) { slept += seconds; }});
        ScriptedDialogs dialogs;
        dialogs.ExpectMessage(u"Fehler"_s, u"Beim Konvertieren eines Pfades ist ein Fehler aufgetreten."_s,
                              Dialogs::Answer::Ok, Dialogs::Icon::Critical);
        QCOMPARE(ResolveLink(u"../../../x.htm"_s, u"\\a\\"_s), QString());
        QCOMPARE(slept, 1.0);
        Events::Replace(before);
    }

    void seesPathsFromAFile_data() {
        const auto row = Columns<QString, QString, QString>("target", "base", "relative");
        row("same folder", "\\s\\b.gif", "\\s\\a.htm", "b.gif");
        row("folder below", "\\s\\p\\b.gif", "\\s\\a.htm", "p/b.gif");
        row("sibling folder", "\\s\\b\\x.htm", "\\s\\d\\page.htm", "../b/x.htm");
        row("names that begin alike", "\\s\\ab\\x.htm", "\\s\\a\\p.htm", "../ab/x.htm");
        row("base folder", "\\s\\p\\x.gif", "\\s\\p\\", "x.gif");
        row("no base", "\\s\\x.gif", "", "/s/x.gif");
    }
    void seesPathsFromAFile() {
        QFETCH(QString, target);
        QFETCH(QString, base);
        QTEST(RelativePathOf(target, base), "relative");
        const QString name(300, u'x');
        QCOMPARE(RelativePathOf(u"\\s\\"_s + name, u"\\s\\d\\p.htm"_s), QString(u"../"_s + name.first(255)));
    }
};

REGISTER_TEST(Paths);
#include "paths_test.moc"
