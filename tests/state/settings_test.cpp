// SPDX-License-Identifier: MIT
#include "state/settings.h"

#include "platform/files.h"
#include "platform/literals.h"
#include "state/commands.h"
#include "state/global.h"
#include "state/neighbours.h"
#include "support/program_folder.h"
#include "support/test_registry.h"

#include <QFile>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

using namespace Settings;

class SettingsTest : public QObject {
    Q_OBJECT

    // Root may read everything: what is to fail for want of rights runs as somebody else.
    template<class Action> static void AsNobody([[maybe_unused]] const QString& folder, Action&& action) {
#ifdef Q_OS_UNIX
        const bool root = geteuid() == 0;
        if (root) {
            QFile::setPermissions(folder, QFileDevice::Permissions(0x7777));
            QVERIFY(seteuid(65534) == 0);
        }
        action();
        if (root) QVERIFY(seteuid(0) == 0);
#endif
    }

private slots:
    void installsTheDefaults() {
        const ProgramFolder folder(ProgramFolder::Content::Empty);
        Neighbours::ReadMainPlace.AnsweredBy([] { return Neighbours::MainPlace{15, 30, 9000, 6000, 0}; });
        Commands::SetChecked(u"Menu_Help_Assistant"_s, false);
        QCOMPARE(GetSetting(u"Assistant"_s, u"preset"_s), QString()); // empty, whatever the preset
        QCOMPARE(int(Global::FirstStart), 2);
        QVERIFY(Commands::IsChecked(u"Menu_Help_Assistant"_s));
        const QList<QByteArray> lines = folder.Read(u"edit.ini"_s).split('\n');
        QCOMPARE(lines.size(), 93); // 92 lines, and nothing behind the last line end
        const QHash<int, QByteArray> expected{{1, "// Sorvane HTML Editor 3.0 - options"},
                                              {2, "UpDate=17.07.02"},
                                              {3, "UpDateNo=14.6"},
                                              {4, ""},
                                              {6, "Left=15"},
                                              {9, "Height=6000"},
                                              {10, "WindowState=0"},
                                              {13, "Assistant=True"},
                                              {16, "WorkScreenSkin="},
                                              {20, "AutoMaximize=True"},
                                              {24, "LastFile="},
                                              {36, "Key9="},
                                              {41, "DebugJavaScript=True"},
                                              {43, "DebugAccuracy=100"},
                                              {46, "MaxLinkDeep=1"},
                                              {52, "FTP_Address="},
                                              {56, "TagToolLeft=600"},
                                              {58, "TagToolWidth="},
                                              {63, "ColorToolTop=600"},
                                              {77, "CharactersToolHeight="},
                                              {85, "NavigationTop=600"},
                                              {87, "// linezoom"},
                                              {91, "LineZoomHeight="},
                                              {92, ""}};
        for (auto line = expected.begin(); line != expected.end(); ++line) {
            QCOMPARE(lines[line.key() - 1], line.value() + "\r");
        }
    }

    void keepsAnUnreadableFile() {
        const ProgramFolder folder(ProgramFolder::Content::Empty);
        folder.Write(u"edit.ini"_s, "Key1=wertvoll\r\n");
        QFile::setPermissions(folder.System(u"edit.ini"_s), QFileDevice::WriteOwner);
        QString value;
        AsNobody(folder.System(u"."_s), [&] { value = GetSetting(u"Left"_s, 7); });
        QCOMPARE(value, QString());
        QCOMPARE(int(Global::FirstStart), 2);
        QVERIFY(folder.Read(u"edit.ini"_s).contains("Key1=\r\n"));
        QFile::setPermissions(folder.System(u"edit.ini.bak"_s), QFileDevice::ReadOwner);
        QCOMPARE(folder.Read(u"edit.ini.bak"_s), QByteArray("Key1=wertvoll\r\n"));
    }

    void scansWithoutStructure_data() {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("value");
        QTest::newRow("plain") << QByteArray("a=1\r\nKey=x\r\n") << u"Key"_s << u"x"_s;
        QTest::newRow("value of an earlier line")
            << QByteArray("LastFile=/Key1.htm\r\nKey1=x\r\n") << u"Key1"_s << u"/Key1.htm"_s;
        QTest::newRow("comment") << QByteArray("// Left is here\r\nLeft=5\r\n") << u"Left"_s
                                 << u"// Left is here"_s;
        QTest::newRow("substring of a key")
            << QByteArray("TagToolLeft=9\r\nLeft=5\r\n") << u"Left"_s << u"9"_s;
        QTest::newRow("value with a sign") << QByteArray("Key=a=b\r\n") << u"Key"_s << u"a=b"_s;
        QTest::newRow("empty value") << QByteArray("Key=\r\n") << u"Key"_s << u"preset"_s;
        QTest::newRow("missing") << QByteArray("a=1\r\n") << u"Key"_s << u"preset"_s;
        QTest::newRow("case") << QByteArray("key=1\r\n") << u"Key"_s << u"preset"_s;
        QTest::newRow("empty file") << QByteArray() << u"Key"_s << u"preset"_s;
        QTest::newRow("binary") << QByteArray("\0\xFF\xFEKey=\1x", 9) << u"Key"_s << u"\1x"_s;
    }
    void scansWithoutStructure() {
        QFETCH(QByteArray, file);
        QFETCH(QString, key);
        const ProgramFolder folder(ProgramFolder::Content::Empty);
        folder.Write(u"edit.ini"_s, file);
        QTEST(GetSetting(key, u"preset"_s), "value");
    }

    void readsBackWhatItWrites() {
        const ProgramFolder folder(ProgramFolder::Content::Empty);
        Neighbours::ReadMainPlace.AnsweredBy([] { return Neighbours::MainPlace{1500, 300, 9000, 6000, 2}; });
        GetSetting(u"Assistant"_s, {});
        Global::KeyCombos[3] = u"<p>\r\n</p>"_s;
        Global::ProjectFiles = u"PDF-ZIP-"_s;
        Global::MaxLinkDeep = 300;
        Global::DebugAccuracy = 40;
        Global::LineZoomPos = {QString(), u"1"_s, u"2"_s, u"3"_s, u"4"_s};
        Global::LastFile = u"\\home\\Gr\u00FCn\\\u20AC.htm"_s;
        Global::AutoDebug = Global::UseWindowsMenu = Global::ShowDebugReport = false;
        Commands::SetChecked(u"Menu_Tools_AutoUml"_s, true);
        Commands::SetChecked(u"Menu_Debug_CSS"_s, false);
        QVERIFY(WriteSettings());
        QVERIFY(folder.Read(u"edit.ini"_s)
                    .contains("Left=1\r\nTop=1\r\nWidth=12000\r\nHeight=9000\r\nWindowState=2\r\n"));
        QVERIFY(folder.Read(u"edit.ini"_s).contains("Key3=<p><brk-</p>\r\n"));
        Global::Reset();
        Commands::ResetStates();
        Global::AutoDebug = Global::UseWindowsMenu = Global::ShowDebugReport = true;
        LoadSettings();
        QCOMPARE(Global::KeyCombos[3], u"<p>\r\n</p>"_s);
        QCOMPARE(Global::ProjectFiles, u"PDF-ZIP-"_s);
        QCOMPARE(int(Global::MaxLinkDeep), 300);
        QCOMPARE(int(Global::DebugAccuracy), 40);
        QCOMPARE(Global::LineZoomPos[4], u"4"_s);
        QCOMPARE(Global::LastFile, u"\\home\\Gr\u00FCn\\\u20AC.htm"_s);
        QVERIFY(!Global::AutoDebug && !Global::UseWindowsMenu && !Global::ShowDebugReport);
        QVERIFY(Commands::IsChecked(u"Menu_Tools_AutoUml"_s) && !Commands::IsChecked(u"Menu_Debug_CSS"_s));
    }

    // A start that ends before its settings are read knows nothing of what they hold.
    void writesOnlyWhatItHasRead() {
        const ProgramFolder folder(ProgramFolder::Content::Empty);
        folder.Write(u"edit.ini"_s, "Key1=wertvoll\r\n");
        QCOMPARE(GetSetting(u"Key1"_s, {}), u"wertvoll"_s);
        QVERIFY(!WriteSettings());
        QCOMPARE(folder.Read(u"edit.ini"_s), QByteArray("Key1=wertvoll\r\n"));
        LoadSettings();
        QVERIFY(WriteSettings());
        QVERIFY(folder.Read(u"edit.ini"_s).contains("Key1=wertvoll\r\n"));
    }

    void turnsToUtf8WhereAValueNeedsIt() {
        const ProgramFolder folder(ProgramFolder::Content::Empty);
        GetSetting(u"Assistant"_s, {});
        Global::LastFile = u"\\home\\Gr\u00FCn.htm"_s;
        QVERIFY(WriteSettings() && folder.Read(u"edit.ini"_s).contains("Gr\xFCn.htm"));
        Global::KeyCombos[1] = u"Ł"_s;
        QVERIFY(WriteSettings() && folder.Read(u"edit.ini"_s).startsWith("\xEF\xBB\xBF//"));
        Global::Reset();
        LoadSettings();
        QCOMPARE(Global::KeyCombos[1], u"Ł"_s);
        QCOMPARE(Global::LastFile, u"\\home\\Gr\u00FCn.htm"_s);
    }

    void passesOverBadValues() {
        const ProgramFolder folder(ProgramFolder::Content::Empty);
        folder.Write(u"edit.ini"_s,
                     "AutoUml=viel\r\nSaveSmallTags=true\r\nUseWindowsMenu=\r\nCurrentTip=abc\r\n"
                     "DebugAccuracy=\r\nDebugHTML=TRUE\r\nAutoDebug=true\r\nScriptMenu=True\r\n");
        Commands::SetChecked(u"Menu_Tools_AutoUml"_s, true);
        Global::UseWindowsMenu = true;
        Global::CurrentTip = 5;
        LoadSettings();
        QVERIFY(Commands::IsChecked(u"Menu_Tools_AutoUml"_s));   // kept what it had
        QVERIFY(!Commands::IsChecked(u"Menu_Tools_Option_2"_s)); // the second reading wants the exact word
        QVERIFY(Global::UseWindowsMenu && Global::AutoDebug);
        QCOMPARE(int(Global::CurrentTip), 5);
        QCOMPARE(int(Global::MaxLinkDeep), 255); // missing
        QCOMPARE(int(Global::DebugAccuracy), 100);
        QVERIFY(!Commands::IsChecked(u"Menu_Debug_HTML"_s)); // "TRUE" is not "True"
        QVERIFY(Commands::StateOf(u"Menu_Script"_s).visible);
    }

    void marksLineBreaks() {
        QCOMPARE(EncodeLineBreaks(u"a\r\nb\nc"_s), u"a<brk-b\nc"_s);
        QCOMPARE(DecodeLineBreaks(u"a<brk-<brk-b"_s), u"a\r\n\r\nb"_s);
    }
};

REGISTER_TEST_AS(Settings, SettingsTest);
#include "settings_test.moc"
