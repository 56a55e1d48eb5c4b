// SPDX-License-Identifier: MIT
#include "texttools/class_list.h"

#include "platform/files.h"
#include "platform/literals.h"
#include "support/program_folder.h"
#include "support/test.h"

class ClassListTest : public QObject {
    Q_OBJECT

private slots:
    void readsABlock_data() {
        QTest::addColumn<QString>("block");
        QTest::addColumn<QString>("names"); // parted by blanks
        const auto row = [](const char* block, const char* names) {
            QTest::newRow(block) << QString::fromUtf8(block) << QString::fromUtf8(names);
        };
        row(".rot{}", ".rot");
        row(".rot {}", ".rot");
        row("p.rot{}a.rot:hover{}", ".rot");
        row(".a,.b{}", ".a .b");
        row(".a.b > #kopf ~ .c{}", ".a .b #kopf .c");
        row("p #ab{x}", "#ab");
        row("#kopf", "#kopf");
        row(".a{color:#fff;width:1.5em}.b{}", ".a .b");
        row(".gr\xC3\xBCn_2-x{}.-w{}", ".gr\xC3\xBCn_2-x .-w");
        row(".a\\:b{}.c\\.d{}", ".a\\:b .c\\.d");
        row("/* .weg{} #weg{} */.da{} /* offen .auch{}", ".da .auch");
        row("@import url(alt.css);@import \"neu.css\";.a{}", ".a");
        row("p{background:url(x.png)}.a{}", ".a");
        row("@media (min-width:37.5em){.a{color:red}.b{}}.c{}", ".a .b .c");
        row(".a{color:#fff", ".a #fff"); // never closed, so no declaration
        row(".1a{}#2{}.-3{}.{}", "");
        row("a[href$=\".pdf\"]{}.x{}", ".x");
        row(".\\31 23{}.\\31 {}#\\31 p .q{}", ".\\31 23 .\\31 #\\31 p .q");
        row(".a:before{content:\"}\\\"\"}.b{}", ".a .b");
        row("<!-- @media print{.a{}} --><![CDATA[ @media all{.b{}} ]]>", ".a .b");
        row("url(.a .b){}", "");
        row("@import url(.a .b", "");
        row(".a{background:url(x.png}.b{}#c{}d:is(.e).f{}", ".a #c .f"); // dots of the open address
        row("", "");
    }
    void readsABlock() {
        QFETCH(QString, block);
        QTEST(ClassList::InBlock(block).join(u' '), "names");
    }

    void followsSheets() {
        const ProgramFolder folder;
        const QString page = folder.Write(
            u"seite.htm"_s, "<head><style><!-- .a{} --></STYLE><STYLE TYPE=x>#b{}.a{}</style>"
                            "<link href=\"eins.css?v=2\"><img src=\"bild.gif\"><link href=\"fehlt.css\">"
                            "<a href=\"../../../../../../../../../../zu/hoch.css\"><style>.offen{}");
        folder.Write(u"eins.css"_s, "@import url('zwei.css'); .eins{}");
        folder.Write(u"zwei.css"_s,
                     "@import url(unter/../eins.css); @import url( ./zwei.css?v=1.2#x ); .zwei{}");
        folder.Write(u"unter/x"_s, {});
        folder.Write(u"bild.gif"_s, ".bild{}");
        const ClassList::Found found = ClassList::InFile(page);
        QCOMPARE(found.entries, (QStringList{u".a"_s, u"#b"_s, u".eins"_s, u".zwei"_s}));
        QVERIFY(!found.openLink);
        QVERIFY(ClassList::InFile(folder.Write(u"offen.htm"_s, "<style>.a{}</style><a href=\"x")).openLink);
        QVERIFY(ClassList::InFile({}).entries.isEmpty());
        QVERIFY(ClassList::InFile(page + u"fehlt").entries.isEmpty());
    }
};

REGISTER_TEST_AS(ClassList, ClassListTest);

#include "class_list_test.moc"
