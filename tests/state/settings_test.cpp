// SPDX-License-Identifier: MIT
#include "state/settings.h"
#include "support/folder_test.h"

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

using namespace Settings;

class SettingsTest : public FolderTest {
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
        Commands::SetChecked(u"Menu_Help_Assistant"_s, false);
        QCOMPARE(GetSetting(u"Assistant"_s, u"preset"_s), QString()); // empty, whatever the preset
        QCOMPARE(int(Global::FirstStart), 2);
        QVERIFY(Commands::IsChecked(u"Menu_Help_Assistant"_s));
        const QByteArray file = m_folder->Read(u"edit.ini"_s);
        QVERIFY(file.startsWith("// Sorvane") && file.endsWith("\r\n"));
        for (const QByteArray line : {"DebugAccuracy=100", "MaxLinkDeep=1", "TagToolLeft=600", "Key9="})
            QVERIFY2(file.contains("\r\n" + line + "\r\n"), line);
    }

    void keepsAnUnreadableFile() {
        m_folder->Write(u"edit.ini"_s, "Key1=wertvoll\r\n");
        QFile::setPermissions(m_folder->System(u"edit.ini"_s), QFileDevice::WriteOwner);
        QString value;
        AsNobody(m_folder->System(u"."_s), [&] { value = GetSetting(u"Left"_s, 7); });
        QCOMPARE(value, QString());
        QCOMPARE(int(Global::FirstStart), 2);
        QVERIFY(m_folder->Read(u"edit.ini"_s).contains("Key1=\r\n"));
        QFile::setPermissions(m_folder->System(u"edit.ini.bak"_s), QFileDevice::ReadOwner);
        QCOMPARE(m_folder->Read(u"edit.ini.bak"_s), QByteArray("Key1=wertvoll\r\n"));
    }

    void scansWithoutStructure() {
        for (const auto& [file, key, value] :
             {std::tuple<QByteArray, QString, QString>("a=1\r\nKey=x\r\n", "Key", "x"),
              {"LastFile=/Key1.htm\r\nKey1=x\r\n", "Key1", "/Key1.htm"}, // in the value of an earlier line
              {"TagToolLeft=9\r\nLeft=5\r\n", "Left", "9"},
              {"Key=a=b\r\n", "Key", "a=b"},
              {"Key=\r\n", "Key", "preset"},
              {"a=1\r\n", "Key", "preset"},
              {"key=1\r\n", "Key", "preset"},
              {QByteArray("\0\xFF\xFEKey=\1x", 9), "Key", "\1x"}}) {
            m_folder->Write(u"edit.ini"_s, file);
            Global::Reset();
            QVERIFY2(GetSetting(key, u"preset"_s) == value, file);
        }
    }

    void readsBackWhatItWrites() {
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
        QVERIFY(m_folder->Read(u"edit.ini"_s)
                    .contains("Left=1\r\nTop=1\r\nWidth=12000\r\nHeight=9000\r\nWindowState=2\r\n"));
        QVERIFY(m_folder->Read(u"edit.ini"_s).contains("Key3=<p><brk-</p>\r\n"));
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
        m_folder->Write(u"edit.ini"_s, "Key1=wertvoll\r\n");
        QCOMPARE(GetSetting(u"Key1"_s, {}), u"wertvoll"_s);
        QVERIFY(!WriteSettings());
        QCOMPARE(m_folder->Read(u"edit.ini"_s), QByteArray("Key1=wertvoll\r\n"));
        LoadSettings();
        QVERIFY(WriteSettings() && m_folder->Read(u"edit.ini"_s).contains("Key1=wertvoll\r\n"));
    }

    void turnsToUtf8WhereAValueNeedsIt() {
        GetSetting(u"Assistant"_s, {});
        Global::LastFile = u"\\home\\Gr\u00FCn.htm"_s;
        QVERIFY(WriteSettings() && m_folder->Read(u"edit.ini"_s).contains("Gr\xFCn.htm"));
        Global::KeyCombos[1] = u"Ł"_s;
        QVERIFY(WriteSettings() && m_folder->Read(u"edit.ini"_s).startsWith("\xEF\xBB\xBF//"));
        Global::Reset();
        LoadSettings();
        QCOMPARE(Global::KeyCombos[1] + Global::LastFile, u"Ł\\home\\Gr\u00FCn.htm"_s);
    }

    void passesOverBadValues() {
        m_folder->Write(u"edit.ini"_s,
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
};

REGISTER_TEST_AS(Settings, SettingsTest);
#include "settings_test.moc"
