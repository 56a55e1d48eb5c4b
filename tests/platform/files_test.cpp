// SPDX-License-Identifier: MIT
#include "platform/files.h"

#include "support/folder_test.h"
#include "support/small_disk.h"

#include <QFileInfo>

class FilesTest : public FolderTest {
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
        Files::ReadError error{};
        m_folder->Write(u"a.txt"_s, "abc");
        QCOMPARE(Files::Read(m_folder->Path(u"a.txt"_s), &error).value_or("-"), QByteArray("abc"));
        QVERIFY(error == Files::ReadError::None);
        QVERIFY(!Files::Read(m_folder->Path(u"b.txt"_s), &error));
        QVERIFY(error == Files::ReadError::FileNotFound);
        QVERIFY(!Files::Read(m_folder->Path(u"none/b.txt"_s), &error));
        QVERIFY(error == Files::ReadError::PathNotFound);
        QVERIFY(!Files::Read(m_folder->Path(u"."_s), &error));
        QVERIFY(error == Files::ReadError::Other);
        QVERIFY(!Files::CanRead(m_folder->Path(u"."_s)));
    }

    void writesWhole() {
        const QString page = m_folder->Write(u"page.htm"_s, "old");
        QFile::setPermissions(m_folder->System(u"page.htm"_s),
                              QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
        const auto permissions = QFileInfo(m_folder->System(u"page.htm"_s)).permissions();
        QVERIFY(Files::Write(page, "new text"));
        QCOMPARE(m_folder->Read(u"page.htm"_s), QByteArray("new text"));
        QCOMPARE(QFileInfo(m_folder->System(u"page.htm"_s)).permissions(), permissions);
        QCOMPARE(Files::List(m_folder->Path(u"."_s), {}), QStringList{u"page.htm"_s}); // nothing left over
        QVERIFY(!Files::Write(m_folder->Path(u"none/page.htm"_s), "x"));
        QVERIFY(!Files::Write(m_folder->Path(u"."_s), "x"));
        for (const QString& text : {u"ï»¿a"_s, u"ÿþab"_s, u"Ã¼"_s, u"Ä\u0141"_s}) { // some begin as marks do
            QVERIFY(Files::WriteProgramText(page, text));
            QCOMPARE(Files::ReadProgramText(page).value_or(QString()), text);
        }
    }

    void writesThroughLinks() {
        m_folder->Write(u"real/page.htm"_s, "old");
        QVERIFY(QFile::link(u"real/page.htm"_s, m_folder->System(u"first.htm"_s)));
        QVERIFY(QFile::link(m_folder->System(u"first.htm"_s), m_folder->System(u"second.htm"_s)));
        QVERIFY(Files::Write(m_folder->Path(u"second.htm"_s), "new"));
        QCOMPARE(m_folder->Read(u"real/page.htm"_s), QByteArray("new"));
        QVERIFY(QFileInfo(m_folder->System(u"first.htm"_s)).isSymLink());
        QVERIFY(QFileInfo(m_folder->System(u"second.htm"_s)).isSymLink());
        QVERIFY(QFile::link(m_folder->System(u"circle.htm"_s), m_folder->System(u"circle.htm"_s)));
        Files::Write(m_folder->Path(u"circle.htm"_s), "x"); // whatever becomes of it, it ends
    }

    // A real file system of 64 KB with a page on it and less room than a new copy of that page takes.
    void leavesTheOldFileOnAFullDisk_data() {
        QTest::addColumn<int>("kilobytes");
        for (const int size : {1, 4, 5, 16, 20}) QTest::addRow("%d KB", size) << size;
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
        const QString name = QString(251, u'n') + u".htm"_s;
        for (const QByteArray bytes : {"first version", "second", "the third is longer"}) {
            QVERIFY(Files::Write(m_folder->Path(name), bytes));
            QCOMPARE(m_folder->Read(name), bytes);
        }
        QVERIFY(!Files::Write(m_folder->Path(u'n' + name), "x"));
    }

    void findsProgramFiles() {
        Files::SetProgramDirectory(m_folder->Path(u"own"_s), m_folder->Path(u"shipped"_s));
        const QString tips = m_folder->Write(u"own/tips.lst"_s, "mine");
        const QString tags = m_folder->Write(u"shipped/taglist.lst"_s, "shipped");
        QCOMPARE(Files::ProgramFile(u"tips.lst"_s), tips);
        QCOMPARE(Files::ProgramFile(u"taglist.lst"_s), tags);
        QCOMPARE(Files::ProgramFile(u"edit.ini"_s), m_folder->Path(u"own\\edit.ini"_s));
    }

    void splitsLines() {
        QCOMPARE(Files::Lines(u"a\r\nb\nc\rd"_s), (QStringList{u"a"_s, u"b"_s, u"c"_s, u"d"_s}));
        QCOMPARE(Files::Lines(u"a\r\n\r\n"_s), (QStringList{u"a"_s, QString()}));
        QCOMPARE(Files::Lines(QString()), QStringList());
    }

    void removesToTrashOrOutright() {
        m_folder->Write(u"tmp/deep/a.txt"_s, "x");
        QVERIFY(Files::MoveToTrash(m_folder->Path(u"tmp"_s)));
        QVERIFY(!m_folder->Has(u"tmp"_s));
        QVERIFY(!Files::MoveToTrash(m_folder->Path(u"tmp"_s)));
    }
};

REGISTER_TEST_AS(Files, FilesTest);
#include "files_test.moc"
