// SPDX-License-Identifier: MIT
#include "project/project_file.h"

#include "project/file_management.h"
#include "support/folder_test.h"

#include <QLocale>

class ProjectFileTest : public FolderTest {
    Q_OBJECT

    using State = ProjectFile::State;

private slots:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::German)); }
    void cleanupTestCase() { QLocale::setDefault(QLocale::c()); }

    void entriesComeBack() {
        const QString path = ProjectFile::PathFor(m_folder->Path(u"index.htm"_s));
        QCOMPARE(path, m_folder->Path(u"index..prj"_s));
        const QStringList names{m_folder->Path(u"Bild ä.GIF"_s), m_folder->Path(u"x.htm.css"_s),
                                m_folder->Path(u"żółw.zip"_s)};
        ProjectFile project;
        QVERIFY(project.Save()); // it belongs to no file yet
        QCOMPARE(project.Load(path), State::Loaded);
        QVERIFY(project.Save());
        QVERIFY(!m_folder->Has(u"index..prj"_s)); // nothing to keep, no file
        for (const QString& name : names) project.Add(name);
        project.Add(names[0]);
        project.Remove(names[0].toUpper());
        QVERIFY(project.Save());

        ProjectFile again;
        again.Load(path);
        QStringList read;
        for (const ExtendedFileRow& row : again.Rows()) read << row.icon + u' ' + row.type + u' ' + row.path;
        QCOMPARE(read, QStringList({u"HTMLFile css "_s + names[1], u"UserDef2 zip "_s + names[2],
                                    u"Image gif "_s + names[0]})); // the first hit wins
        QCOMPARE(again.Rows()[0].name, u"x.htm.css"_s);
        QCOMPARE(again.Rows()[0].folder, m_folder->Path({}));

        for (const QString& name : names) again.Remove(name);
        again.Remove(u"steht nicht darin"_s);
        QVERIFY(again.Rows().empty() && again.Save());
        QCOMPARE(m_folder->Read(u"index..prj"_s), QByteArray()); // the file stays, empty
    }

    void bytesOnDisk() {
        const QByteArray before = "C:\\a\\\xfc.htm\r\n\r\nC:\\b.gif";
        ProjectFile project;
        project.Load(m_folder->Write(u"p..prj"_s, before));
        QCOMPARE(project.Count(), 3);
        QCOMPARE(project.Rows()[0].name, u"ü.htm"_s);
        QVERIFY(project.Save());
        QCOMPARE(m_folder->Read(u"p..prj"_s), before); // nothing was changed
        project.Add(u"C:\\c.gif"_s);
        QVERIFY(project.Save());
        QByteArray expected = "C:\\a\\\xfc.htm\r\nC:\\b.gif\r\nC:\\c.gif\r\n";
#ifndef Q_OS_WIN
        expected.replace('\\', '/');
#endif
        QCOMPARE(m_folder->Read(u"p..prj"_s), expected);
    }

    void itHoldsNoMoreThanItsPlaces() {
        ProjectFile project;
        project.Load(m_folder->Write(u"voll..prj"_s, QByteArray("C:\\a.gif\r\n").repeated(1024)));
        QCOMPARE(project.Count(), ProjectFile::Capacity);
        project.Remove(u"c:\\A.GIF"_s); // the place stays taken
        QVERIFY_EXCEPTION_THROWN(project.Add(u"C:\\b.gif"_s), RuntimeError);
    }

    void whatCannotBeLoadedIsNeverWritten_data() {
        const auto row = Columns<QByteArray, State>("bytes", "state"); // no bytes: a folder
        const QByteArray line = "/web/bild.gif\r\n";
        row("1025 lines", line.repeated(1025), State::TooLong);
        row("binary", line + QByteArray("\0\n\x01\xff/\\\r", 7), State::Unreadable);
        row("folder", {}, State::Unreadable);
        row("protected", line, State::Unreadable);
    }
    void whatCannotBeLoadedIsNeverWritten() {
        QFETCH(QByteArray, bytes);
        const QString name = u"index..prj"_s;
        bytes.isNull() ? m_folder->Write(name + u"/x"_s, {}) : m_folder->Write(name, bytes);
        if (QTest::currentDataTag() == QByteArray("protected")) {
            QVERIFY(QFile::setPermissions(m_folder->System(name), QFile::WriteOwner));
            if (Files::CanRead(m_folder->Path(name))) QSKIP("no permission stops this user");
        }
        ProjectFile project;
        project.Load(m_folder->Write(u"andere..prj"_s, "/web/a.htm\r\n"));
        QTEST(project.Load(m_folder->Path(name)), "state");
        QVERIFY(project.IsBroken() && project.Rows().empty());
        project.Add(u"\\web\\neu.gif"_s);
        QVERIFY(!project.Save());
        QFile::setPermissions(m_folder->System(name), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        QCOMPARE(m_folder->Read(name), bytes);
        QCOMPARE(m_folder->Read(u"andere..prj"_s), QByteArray("/web/a.htm\r\n"));
    }

    void byteCounts() {
        for (const auto& [number, text] :
             {std::pair(0.0, u"0 B"_s),
              {1023, u"1023 B"_s},
              {1024, u"1 kB"_s},
              {1536, u"1,5 kB"_s},
              {1157, u"1,13 kB"_s},
              {1048575, u"1024 kB"_s},
              {1048576, u"1 MB"_s},
              {133.125, u"133,12 B"_s},
              {133.375, u"133,38 B"_s}, // an exact half goes to the even neighbour
              {1073741823, u"1 GB"_s},  // the limit itself in single precision
              {1024.0 * 1024 * 1024 * 1000, u"1000 GB"_s},
              {1024.0 * 1024 * 1024 * 1024, u""_s}}) {
            QCOMPARE(FileManagement::FormatByteCount(number), text);
        }
    }

    void filesAndFolders() {
        QCOMPARE(FileManagement::FormatFileSize(m_folder->Write(u"a.txt"_s, QByteArray(2560, 'x'))),
                 u"2,5 kB"_s);
        QVERIFY_EXCEPTION_THROWN(FileManagement::FormatFileSize(m_folder->Path(u"fehlt"_s)), RuntimeError);
        FileManagement::MakeFullDirectory(m_folder->Path(u"x/y/z"_s));
        QVERIFY(m_folder->Has(u"x/y/z"_s));
        FileManagement::MakeFullDirectory(m_folder->Path(u"a.txt/neu"_s));
        QCOMPARE(m_folder->Read(u"a.txt"_s).size(), 2560);
        QCOMPARE(FileManagement::ShortExtensionOf(u"C:\\a.b\\x.jpeg"_s), u"jpe"_s);
        QCOMPARE(FileManagement::ShortExtensionOf(u"C:\\ohne"_s), u"C:\\"_s);
    }
};

REGISTER_TEST_AS(ProjectFile, ProjectFileTest);
#include "project_file_test.moc"
