// SPDX-License-Identifier: MIT
#include "project/project_file.h"

#include "platform/files.h"
#include "platform/literals.h"
#include "platform/text.h"
#include "project/file_management.h"
#include "support/program_folder.h"
#include "support/test_registry.h"

#include <QFile>
#include <QLocale>

class ProjectFileTest : public QObject {
    Q_OBJECT

    using State = ProjectFile::State;

private slots:
    void init() { QLocale::setDefault(QLocale(QLocale::German)); }
    void cleanup() { QLocale::setDefault(QLocale::c()); }

    void names() {
        QCOMPARE(ProjectFile::PathFor(u"C:\\web\\index.htm"_s), u"C:\\web\\index..prj"_s);
        QCOMPARE(ProjectFile::PathFor(u"C:\\my.web\\index"_s), u"C:\\my.web\\.prj"_s);
        QCOMPARE(ProjectFile::PathFor(u"\\a.b.html"_s), u"\\a.b..prj"_s);
    }

    void entriesComeBack() {
        const ProgramFolder folder(ProgramFolder::Content::Empty);
        const QString path = folder.Path(u"index..prj"_s);
        const QStringList names{folder.Path(u"Bild ä.GIF"_s), folder.Path(u"x.htm.css"_s),
                                folder.Path(u"żółw.zip"_s)};
        ProjectFile project;
        QVERIFY(project.Save()); // it belongs to no file yet
        QCOMPARE(project.Load(path), State::Loaded);
        QVERIFY(project.Save());
        QVERIFY(!folder.Has(u"index..prj"_s)); // nothing to keep, no file
        for (const QString& name : names) project.Add(name);
        project.Add(names[0]);
        project.Remove(names[0].toUpper());
        QVERIFY(project.Save());

        ProjectFile again;
        again.Load(path);
        QStringList read;
        QStringList icons;
        for (const ExtendedFileRow& row : again.Rows()) {
            read << row.path;
            icons << row.icon + u' ' + row.type;
        }
        QCOMPARE(read, QStringList({names[1], names[2], names[0]}));
        QCOMPARE(icons,
                 QStringList({u"HTMLFile css"_s, u"UserDef2 zip"_s, u"Image gif"_s})); // the first hit wins
        QCOMPARE(again.Rows()[0].name, u"x.htm.css"_s);
        QCOMPARE(again.Rows()[0].folder, folder.Path({}));

        for (const QString& name : names) again.Remove(name);
        again.Remove(u"steht nicht darin"_s);
        QVERIFY(again.Rows().empty());
        QVERIFY(again.Save());
        QCOMPARE(folder.Read(u"index..prj"_s), QByteArray()); // the file stays, empty
        again.Load(folder.Path(u"fehlt..prj"_s));
        QCOMPARE(again.Count(), 0);
    }

    void bytesOnDisk() {
        const ProgramFolder folder(ProgramFolder::Content::Empty);
        const QByteArray before = "C:\\a\\\xfc.htm\r\n\r\nC:\\b.gif";
        ProjectFile project;
        project.Load(folder.Write(u"p..prj"_s, before));
        QCOMPARE(project.Count(), 3);
        QCOMPARE(project.Rows()[0].name, u"ü.htm"_s);
        QVERIFY(project.Save());
        QCOMPARE(folder.Read(u"p..prj"_s), before); // nothing was changed
        project.Add(u"C:\\c.gif"_s);
        QVERIFY(project.Save());
        QByteArray expected = "C:\\a\\\xfc.htm\r\nC:\\b.gif\r\nC:\\c.gif\r\n";
#ifndef Q_OS_WIN
        expected.replace('\\', '/');
#endif
        QCOMPARE(folder.Read(u"p..prj"_s), expected);
    }

    void itHoldsNoMoreThanItsPlaces() {
        const ProgramFolder folder(ProgramFolder::Content::Empty);
        ProjectFile project;
        project.Load(folder.Write(u"voll..prj"_s, QByteArray("C:\\a.gif\r\n").repeated(1024)));
        QCOMPARE(project.Count(), ProjectFile::Capacity);
        project.Remove(u"c:\\A.GIF"_s); // the place stays taken
        QVERIFY_EXCEPTION_THROWN(project.Add(u"C:\\b.gif"_s), RuntimeError);
    }

    void whatCannotBeLoadedIsNeverWritten_data() {
        QTest::addColumn<QByteArray>("bytes"); // none: a folder
        QTest::addColumn<State>("state");
        const QByteArray line = "/web/bild.gif\r\n";
        QTest::newRow("1025 lines") << line.repeated(1025) << State::TooLong;
        QTest::newRow("5000 lines") << line.repeated(5000) << State::TooLong;
        QTest::newRow("binary") << line + QByteArray("\0\n\x01\xff/\\\r", 7) << State::Unreadable;
        QTest::newRow("folder") << QByteArray() << State::Unreadable;
        QTest::newRow("protected") << line << State::Unreadable;
    }
    void whatCannotBeLoadedIsNeverWritten() {
        QFETCH(QByteArray, bytes);
        const ProgramFolder folder(ProgramFolder::Content::Empty);
        const QString name = u"index..prj"_s;
        bytes.isNull() ? folder.Write(name + u"/x"_s, {}) : folder.Write(name, bytes);
        if (QTest::currentDataTag() == QByteArray("protected")) {
            QVERIFY(QFile::setPermissions(folder.System(name), QFile::WriteOwner));
            if (Files::CanRead(folder.Path(name))) QSKIP("no permission stops this user");
        }
        ProjectFile project;
        project.Load(folder.Write(u"andere..prj"_s, "/web/a.htm\r\n"));
        QTEST(project.Load(folder.Path(name)), "state");
        QVERIFY(project.IsBroken() && project.Rows().empty());
        project.Add(u"\\web\\neu.gif"_s);
        QVERIFY(!project.Save());
        QFile::setPermissions(folder.System(name), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        QCOMPARE(folder.Read(name), bytes);
        QCOMPARE(folder.Read(u"andere..prj"_s), QByteArray("/web/a.htm\r\n"));
    }

    void byteCounts_data() {
        QTest::addColumn<double>("number");
        QTest::addColumn<QString>("text");
        const auto row = [](double number, const char* text) {
            QTest::addRow("%f", number) << number << QString::fromLatin1(text);
        };
        row(0, "0 B");
        row(1023, "1023 B");
        row(1024, "1 kB");
        row(1536, "1,5 kB");
        row(1029.12, "1 kB");
        row(1157, "1,13 kB");
        row(133.125, "133,12 B"); // an exact half goes to the even neighbour
        row(133.375, "133,38 B");
        row(1048575, "1024 kB");
        row(1048576, "1 MB");
        row(1073741823, "1 GB"); // the limit itself in single precision
        row(1024.0 * 1024 * 1024 * 1000, "1000 GB");
        row(1024.0 * 1024 * 1024 * 1024, "");
    }
    void byteCounts() {
        QFETCH(double, number);
        QTEST(FileManagement::FormatByteCount(number), "text");
    }

    void filesAndFolders() {
        const ProgramFolder folder(ProgramFolder::Content::Empty);
        QCOMPARE(FileManagement::FormatFileSize(folder.Write(u"a.txt"_s, QByteArray(2560, 'x'))),
                 u"2,5 kB"_s);
        QVERIFY_EXCEPTION_THROWN(FileManagement::FormatFileSize(folder.Path(u"fehlt"_s)), RuntimeError);
        FileManagement::MakeFullDirectory(folder.Path(u"x/y/z"_s));
        QVERIFY(folder.Has(u"x/y/z"_s));
        FileManagement::MakeFullDirectory(folder.Path(u"x/y/z"_s)); // stands already
        FileManagement::MakeFullDirectory(folder.Path(u"a.txt/neu"_s));
        QCOMPARE(folder.Read(u"a.txt"_s).size(), 2560);
        QCOMPARE(FileManagement::ShortExtensionOf(u"C:\\a.b\\x.jpeg"_s), u"jpe"_s);
        QCOMPARE(FileManagement::ShortExtensionOf(u"C:\\ohne"_s), u"C:\\"_s);
    }
};

REGISTER_TEST_AS(ProjectFile, ProjectFileTest);
#include "project_file_test.moc"
