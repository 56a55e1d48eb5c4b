// SPDX-License-Identifier: MIT
#include "platform/files.h"

#include "support/small_disk.h"
#include "support/test.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

class FilesTest : public QObject {
    Q_OBJECT

private slots:
    void turnsPathsAround() {
        QCOMPARE(Files::FromSystem(u"/home/a/b.htm"_s), u"\\home\\a\\b.htm"_s);
#ifndef Q_OS_WIN
        QCOMPARE(Files::ToSystem(u"\\home\\a\\b.htm"_s), u"/home/a/b.htm"_s);
        QVERIFY(Files::IsFullPath(u"\\home"_s) && !Files::IsFullPath(u"home\\a"_s));
#endif
    }

    void tellsWhyAFileCannotBeRead() {
        const ProgramFolder folder(ProgramFolder::Content::Empty);
        Files::ReadError error{};
        folder.Write(u"a.txt"_s, "abc");
        QCOMPARE(Files::Read(folder.Path(u"a.txt"_s), &error).value_or("-"), QByteArray("abc"));
        QVERIFY(error == Files::ReadError::None);
        QVERIFY(!Files::Read(folder.Path(u"b.txt"_s), &error));
        QVERIFY(error == Files::ReadError::FileNotFound);
        QVERIFY(!Files::Read(folder.Path(u"none/b.txt"_s), &error));
        QVERIFY(error == Files::ReadError::PathNotFound);
        QVERIFY(!Files::Read(folder.Path(u"."_s), &error));
        QVERIFY(error == Files::ReadError::Other);
        QVERIFY(!Files::CanRead(folder.Path(u"."_s)));
    }

    void writesWhole() {
        const ProgramFolder folder(ProgramFolder::Content::Empty);
        const QString page = folder.Write(u"page.htm"_s, "old");
        QFile::setPermissions(folder.System(u"page.htm"_s),
                              QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
        const auto permissions = QFileInfo(folder.System(u"page.htm"_s)).permissions();
        QVERIFY(Files::Write(page, "new text"));
        QCOMPARE(folder.Read(u"page.htm"_s), QByteArray("new text"));
        QCOMPARE(QFileInfo(folder.System(u"page.htm"_s)).permissions(), permissions);
        QCOMPARE(Files::List(folder.Path(u"."_s), {}), QStringList{u"page.htm"_s}); // nothing left over
        QVERIFY(!Files::Write(folder.Path(u"none/page.htm"_s), "x"));
        QVERIFY(!Files::Write(folder.Path(u"."_s), "x"));
        for (const QString& text : {u"ï»¿a"_s, u"ÿþab"_s, u"Ã¼"_s, u"Ä\u0141"_s}) { // some begin as marks do
            QVERIFY(Files::WriteProgramText(page, text));
            QCOMPARE(Files::ReadProgramText(page).value_or(QString()), text);
        }
    }

    void writesThroughLinks() {
        const ProgramFolder folder(ProgramFolder::Content::Empty);
        folder.Write(u"real/page.htm"_s, "old");
        QVERIFY(QFile::link(u"real/page.htm"_s, folder.System(u"first.htm"_s)));
        QVERIFY(QFile::link(folder.System(u"first.htm"_s), folder.System(u"second.htm"_s)));
        QVERIFY(Files::Write(folder.Path(u"second.htm"_s), "new"));
        QCOMPARE(folder.Read(u"real/page.htm"_s), QByteArray("new"));
        QVERIFY(QFileInfo(folder.System(u"first.htm"_s)).isSymLink());
        QVERIFY(QFileInfo(folder.System(u"second.htm"_s)).isSymLink());
        QVERIFY(QFile::link(folder.System(u"circle.htm"_s), folder.System(u"circle.htm"_s)));
        Files::Write(folder.Path(u"circle.htm"_s), "x"); // whatever becomes of it, it ends
    }

    // A real file system of 64 KB with a page on it and less room than a new copy of that page takes.
    void leavesTheOldFileOnAFullDisk_data() {
        QTest::addColumn<int>("kilobytes");
        for (const int size : {1, 4, 5, 12, 16, 20}) QTest::addRow("%d KB", size) << size;
    }
    void leavesTheOldFileOnAFullDisk() {
        QFETCH(int, kilobytes);
        const SmallDisk disk;
        if (!disk.Mounted()) QSKIP("no file system may be mounted here");
        const QString page = disk.Path() + u"\\page.htm";
        const QByteArray old(1024 * kilobytes, 'a');
        QVERIFY(Files::Write(page, old));
        QVERIFY(Files::Copy(page, disk.Path() + u"\\copy.htm") &&
                Files::Read(disk.Path() + u"\\copy.htm") == old);
        for (const bool beside : {true, false}) { // in place where no second file can be made
            disk.Fill(old.size() > 4096 ? 4096 : 0);
            if (!beside) disk.TakeInodes();
            QVERIFY(!Files::Write(page, QByteArray(1024 * kilobytes + 40'000, 'b')));
            QCOMPARE(Files::Read(page).value_or(QByteArray()), old);
            QVERIFY(!Files::Write(disk.Path() + u"\\new.htm", QByteArray(50'000, 'b')));
            if (!beside) continue;
            if (old.size() <= 4096) continue; // what is left takes a copy of these
            QVERIFY(!Files::Write(page, QByteArray(old.size(), 'b')));
            QCOMPARE(Files::Read(page).value_or(QByteArray()), old);
        }
        disk.Empty();
        QVERIFY(Files::Write(page, QByteArray(1024 * kilobytes, 'b')));
        QCOMPARE(Files::Read(page).value_or(QByteArray()), QByteArray(1024 * kilobytes, 'b'));
    }

    void writesNamesAsLongAsTheyMayBe() {
        const ProgramFolder folder(ProgramFolder::Content::Empty);
        const QString name = QString(251, u'n') + u".htm"_s;
        for (const QByteArray bytes : {"first version", "second", "the third is longer"}) {
            QVERIFY(Files::Write(folder.Path(name), bytes));
            QCOMPARE(folder.Read(name), bytes);
        }
        QVERIFY(!Files::Write(folder.Path(u'n' + name), "x"));
    }

    void findsProgramFiles() {
        const ProgramFolder folder(ProgramFolder::Content::Empty);
        Files::SetProgramDirectory(folder.Path(u"own"_s), folder.Path(u"shipped"_s));
        const QString tips = folder.Write(u"own/tips.lst"_s, "mine");
        const QString tags = folder.Write(u"shipped/taglist.lst"_s, "shipped");
        QCOMPARE(Files::ProgramFile(u"tips.lst"_s), tips);
        QCOMPARE(Files::ProgramFile(u"taglist.lst"_s), tags);
        QCOMPARE(Files::ProgramFile(u"edit.ini"_s), folder.Path(u"own\\edit.ini"_s));
    }

    void splitsLines() {
        QCOMPARE(Files::Lines(u"a\r\nb\nc\rd"_s), (QStringList{u"a"_s, u"b"_s, u"c"_s, u"d"_s}));
        QCOMPARE(Files::Lines(u"a\r\n\r\n"_s), (QStringList{u"a"_s, QString()}));
        QCOMPARE(Files::Lines(QString()), QStringList());
    }

    void removesToTrashOrOutright() {
        const ProgramFolder folder(ProgramFolder::Content::Empty);
        folder.Write(u"tmp/deep/a.txt"_s, "x");
        QVERIFY(Files::MoveToTrash(folder.Path(u"tmp"_s)));
        QVERIFY(!folder.Has(u"tmp"_s));
        QVERIFY(!Files::MoveToTrash(folder.Path(u"tmp"_s)));
    }
};

REGISTER_TEST_AS(Files, FilesTest);
#include "files_test.moc"
