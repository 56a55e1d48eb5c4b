// SPDX-License-Identifier: MIT
#include "project/site_copy.h"

#include "support/folder_test.h"
#include "support/small_disk.h"

#include <QDateTime>
#include <QFileInfo>

class SiteCopyTest : public FolderTest {
    Q_OBJECT

    SiteCopy::Result CopyTo(const QString& destination, const SiteCopy::Listener& listener = {}) {
        const QString root = m_folder->Path(u"web/a.htm"_s);
        return SiteCopy::CopyFiles(SiteScan::Scan(root, {}).files, root, destination, listener);
    }

private slots:
    void init() override {
        FolderTest::init();
        m_folder->Write(u"web/a.htm"_s, "<a href=\"sub/b.htm\"><img src=\"fehlt.gif\">");
        m_folder->Write(u"web/sub/b.htm"_s, QByteArray("\x00\xFF\r\n\n\r", 6));
    }

    void keepsBytesTimesPermissionsAndLayout() {
        const QString source = m_folder->System(u"web/sub/b.htm"_s);
        QFile file(source);
        QVERIFY(file.open(QIODevice::ReadWrite));
        const QDateTime time(QDate(1999, 12, 31), QTime(23, 59, 58));
        QVERIFY(file.setFileTime(time, QFileDevice::FileModificationTime));
        file.setPermissions(QFile::ReadOwner | QFile::ReadGroup);
        file.close();
        for (int round = 0; round < 2; ++round) { // over a copy that is read-only
            const SiteCopy::Result result = CopyTo(m_folder->Path(u"ziel"_s));
            QVERIFY(result.missed.isEmpty() && !result.stopped && result.onDisk);
            QVERIFY(SiteCopy::Report(result).isEmpty());
        }
        QCOMPARE(m_folder->Read(u"ziel/a.htm"_s), m_folder->Read(u"web/a.htm"_s));
        const QFileInfo copy(m_folder->System(u"ziel/sub/b.htm"_s));
        QCOMPARE(m_folder->Read(u"ziel/sub/b.htm"_s), QByteArray("\x00\xFF\r\n\n\r", 6));
        QCOMPARE(copy.lastModified(), time);
        QCOMPARE(copy.permissions(), QFileInfo(source).permissions());
        QCOMPARE(QDir(m_folder->System(u"ziel"_s)).entryList(QDir::Files | QDir::Hidden),
                 QStringList{u"a.htm"_s});
    }

    // Neither a copy onto itself nor one file's tail of a path falling on another one changes the site.
    void leavesTheSiteAsItIs() {
        const QString outside = m_folder->Path(u"bild.gif"_s);
        m_folder->Write(u"bild.gif"_s, "outside");
        const QString root = m_folder->Path(u"web/a.htm"_s);
        const QString tail = SiteCopy::RemovePathPrefix(outside, m_folder->Path(u"web"_s));
        QVERIFY(!tail.isEmpty() && outside.endsWith(tail));
        m_folder->Write(u"web/"_s + tail, "inside");
        m_folder->Write(u"web/a.htm"_s, "<img src=\"../bild.gif\"><img src=\"" + tail.toUtf8() + "\">");
        QFile::link(m_folder->System(u"web"_s), m_folder->System(u"link"_s));
        for (const QString& destination : {u"web"_s, u"link"_s}) {
            const QByteArray before = m_folder->Read(u"web/a.htm"_s);
            const SiteCopy::Result result = CopyTo(m_folder->Path(destination));
            QCOMPARE(result.missed, QStringList{outside});
            QCOMPARE(m_folder->Read(u"web/a.htm"_s), before);
            QCOMPARE(m_folder->Read(u"web/"_s + tail), "inside");
        }
        SiteFile climbing;
        climbing.tag = m_folder->Path(u"web"_s) + u"\\x\\..\\..\\a.gif"_s;
        QVERIFY(SiteCopy::TargetOf(climbing, root, m_folder->Path(u"ziel"_s)).isEmpty());
    }

    void tellsOfFilesThatCannotBeCopied() {
        const SmallDisk disk;
        QVERIFY(disk.Mounted());
        m_folder->Write(u"web/sub/b.htm"_s, QByteArray(100'000, 'x'));
        QDir().mkpath(Files::ToSystem(disk.Path() + u"\\sub"_s));
        const QString old = Files::ToSystem(disk.Path() + u"\\sub\\b.htm"_s);
        QVERIFY(Files::Write(Files::FromSystem(old), "old"));
        const SiteCopy::Result result = CopyTo(disk.Path());
        QCOMPARE(result.missed, QStringList{m_folder->Path(u"web/sub/b.htm"_s)});
        QCOMPARE(Files::Read(Files::FromSystem(old)), "old"); // and nothing half beside it
        QCOMPARE(QDir(QFileInfo(old).path()).entryList(QDir::Files | QDir::Hidden), QStringList{u"b.htm"_s});
        QCOMPARE(SiteCopy::Report(result),
                 u"ProjektBackup: 1 Datei wurde nicht kopiert: "_s + m_folder->System(u"web/sub/b.htm"_s));
        SiteCopy::Result two = result;
        two.missed << u"\\x"_s;
        QVERIFY(SiteCopy::Report(two).startsWith(
            u"ProjektBackup: 2 Dateien wurden nicht kopiert, die erste ist /"));
    }

    // Two tails of paths that are one, one that is cut within a character, and a folder that goes meanwhile.
    void tellsOfCopiesThatAreNotThere() {
        for (const QString& name : {u"aaaa.gif"_s, u"bbbb.gif"_s}) m_folder->Write(name, name.toUtf8());
        m_folder->Write(u"aaa\U0001F600.gif"_s, "x");
        m_folder->Write(u"web/a.htm"_s, "<img src=\"../aaaa.gif\"><img src=\"../bbbb.gif\">"
                                        "<img src=\"../aaa\xF0\x9F\x98\x80.gif\">");
        SiteCopy::Result result = CopyTo(m_folder->Path(u"ziel"_s));
        QCOMPARE(result.missed, QStringList{m_folder->Path(u"bbbb.gif"_s)});
        QCOMPARE(m_folder->Read(u"ziel/.gif"_s), "aaaa.gif");
        const auto removeBeforeThird = [this](qsizetype number) {
            if (number == 3) QDir(m_folder->System(u"ziel"_s)).removeRecursively();
        };
        result = CopyTo(m_folder->Path(u"ziel"_s), {removeBeforeThird, {}});
        QVERIFY(result.missed.contains(m_folder->Path(u"web/a.htm"_s)));
        QCOMPARE(CopyTo({}).missed.size(), 4); // no folder, and not the disk's root in its place

        const QString start = m_folder->Path(u"web/i.php"_s);
        m_folder->Write(u"web/i.php"_s, "<a href=\"i.php\">");
        result = SiteCopy::CopyFiles(SiteScan::Scan(start, {}).files, start, m_folder->Path(u"php"_s), {});
        QVERIFY(result.missed.isEmpty() && m_folder->Has(u"php/i.php"_s));
    }

    void endsInTheMiddleOfAFile() {
        m_folder->Write(u"web/sub/b.htm"_s, QByteArray(5'000'000, 'x'));
        qsizetype file = 0;
        int pieces = 0;
        const SiteCopy::Result result =
            CopyTo(m_folder->Path(u"ziel"_s),
                   {[&](qsizetype number) { file = number; }, [&] { return file < 2 || ++pieces < 3; }});
        QVERIFY(result.stopped && pieces == 3);
        QVERIFY(m_folder->Has(u"ziel/a.htm"_s));
        QVERIFY(QDir(m_folder->System(u"ziel/sub"_s)).isEmpty(QDir::Files | QDir::Hidden));
    }
};

REGISTER_TEST_AS(SiteCopy, SiteCopyTest);
#include "site_copy_test.moc"
