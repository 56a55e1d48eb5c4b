// SPDX-License-Identifier: MIT
#include "platform/files.h"

#include "platform/literals.h"
#include "support/program_folder.h"
#include "support/test_registry.h"

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
        QVERIFY(Files::IsFullPath(u"\\home"_s));
        QVERIFY(!Files::IsFullPath(u"home\\a"_s));
#endif
        const ProgramFolder folder(ProgramFolder::Content::Empty);
        QDir::setCurrent(folder.System(u"."_s));
        QCOMPARE(Files::MakeFull(u"sub\\x.htm"_s),
                 Files::FromSystem(QDir::current().absoluteFilePath(u"sub/x.htm"_s)));
        QDir::setCurrent(QDir::rootPath());
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
        folder.Write(u"page.htm"_s, "old");
        QFile::setPermissions(folder.System(u"page.htm"_s),
                              QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
        const auto permissions = QFileInfo(folder.System(u"page.htm"_s)).permissions();
        QVERIFY(Files::Write(folder.Path(u"page.htm"_s), "new text"));
        QCOMPARE(folder.Read(u"page.htm"_s), QByteArray("new text"));
        QCOMPARE(QFileInfo(folder.System(u"page.htm"_s)).permissions(), permissions);
        QCOMPARE(QDir(folder.System(u"."_s)).entryList(QDir::Files),
                 QStringList{u"page.htm"_s}); // nothing left over
        QVERIFY(!Files::Write(folder.Path(u"none/page.htm"_s), "x"));
        QVERIFY(!Files::Write(folder.Path(u"."_s), "x"));
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

    void leavesTheOldFileOnAFullDisk() {
        if (!QFileInfo::exists(u"/dev/full"_s)) QSKIP("no full device here");
        QVERIFY(!Files::Write(u"\\dev\\full"_s, "text"));
    }

    void findsProgramFiles() {
        const ProgramFolder own(ProgramFolder::Content::Empty);
        const QTemporaryDir shipped;
        Files::SetProgramDirectory(own.Path(u"own"_s), Files::FromSystem(shipped.path()));
        own.Write(u"own/tips.lst"_s, "mine");
        QFile file(shipped.filePath(u"taglist.lst"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(Files::ProgramFile(u"tips.lst"_s), own.Path(u"own\\tips.lst"_s));
        QCOMPARE(Files::ProgramFile(u"taglist.lst"_s), Files::FromSystem(shipped.path()) + u"\\taglist.lst");
        QCOMPARE(Files::ProgramFile(u"edit.ini"_s), own.Path(u"own\\edit.ini"_s));
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
