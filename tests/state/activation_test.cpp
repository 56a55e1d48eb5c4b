// SPDX-License-Identifier: MIT
// The command table and which commands are open in which state.
#include "state/activation.h"

#include "platform/literals.h"
#include "state/commands.h"
#include "support/test_registry.h"

#include <QSet>

class ActivationTest : public QObject {
    Q_OBJECT

    static bool EnabledIn(const Activation::Snapshot& state, const QString& name) {
        Commands::ResetStates();
        Activation::Apply(Activation::Evaluate(state));
        return Commands::StateOf(name).enabled;
    }

private slots:
    void tableIsWhole() {
        QSet<QString> names;
        QSet<QString> shortcuts;
        int checked = 0;
        for (const Commands::MenuRow& row : Commands::MenuTree()) {
            if (row.flags & Commands::Separator) continue;
            QVERIFY2(!names.contains(row.name.toString()), qPrintable(row.name.toString()));
            names.insert(row.name.toString());
            QVERIFY(!row.caption.isEmpty());
            if (!row.shortcut.isEmpty()) {
                QVERIFY2(!shortcuts.contains(row.shortcut.toString()), qPrintable(row.name.toString()));
                shortcuts.insert(row.shortcut.toString());
            }
            checked += row.flags & Commands::Checked ? 1 : 0;
        }
        QCOMPARE(checked, 4);
        QCOMPARE(shortcuts.size(), 25);
        // every button and entry runs a command that exists
        for (const Commands::ToolBarRow& row : Commands::ToolBar()) {
            if (!row.key.isEmpty())
                QVERIFY2(names.contains(row.command.toString()), qPrintable(row.key.toString()));
        }
        for (const Commands::DropDownRow& row : Commands::DropDowns()) {
            QVERIFY2(names.contains(row.command.toString()), qPrintable(row.key.toString()));
        }
        QCOMPARE(Commands::ButtonAt(1), u"ToolBar_NewXHTML"_s);
        QCOMPARE(Commands::ButtonAt(20), QString());
        QCOMPARE(Commands::ButtonAt(32), u"ToolBar_Table"_s);
    }

    void opensCommandsByState_data() {
        using Activation::Snapshot;
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>(
            "states"); // of: nothing, new, file, selected, script, picture, preview and code
        QTest::newRow("save") << u"Menu_File_Save"_s << u"0111111"_s;
        QTest::newRow("save button") << u"ToolBar_SaveFile"_s << u"0111111"_s;
        QTest::newRow("open") << u"Menu_File_Open"_s << u"1111111"_s;
        QTest::newRow("backup") << u"Menu_File_SaveBackUp"_s << u"0011111"_s;
        QTest::newRow("import") << u"Menu_File_Import"_s << u"0111101"_s;
        QTest::newRow("cut") << u"Menu_Edit_Cut"_s << u"0001000"_s;
        QTest::newRow("copy") << u"Menu_Edit_Copy"_s << u"0001000"_s;
        QTest::newRow("paste") << u"Menu_Edit_Paste"_s << u"0111101"_s;
        QTest::newRow("undo") << u"ToolBar_Undo"_s << u"0001000"_s;
        QTest::newRow("current variable") << u"Menu_Insert_JavaScript_CurrentVar"_s << u"0000100"_s;
        QTest::newRow("table") << u"Menu_Insert_Table_Insert"_s << u"0111101"_s;
        QTest::newRow("tag tools button") << u"ToolBar_Tagtools"_s << u"0111101"_s;
        QTest::newRow("one above the other") << u"Menu_Window_SetH"_s << u"0000001"_s;
        QTest::newRow("navigation") << u"Menu_View_Navigation"_s << u"0000011"_s;
        QTest::newRow("index page") << u"ToolBar_Browser_Project"_s << u"0000001"_s;
        QTest::newRow("maximise all") << u"Menu_Window_MaximizeAll"_s << u"0111111"_s;
    }
    void opensCommandsByState() {
        QFETCH(QString, name);
        QFETCH(QString, states);
        Activation::Snapshot state;
        QList<Activation::Snapshot> all{state};
        state.docOpen = state.codeWindowOpen = true;
        all << state;
        state.hasFile = true;
        all << state;
        state.hasSelection = state.undoTouched = true;
        all << state;
        state.hasSelection = state.undoTouched = false;
        state.scriptCommands = true;
        all << state;
        state = {};
        state.docOpen = state.hasFile = state.browserOpen = true; // a picture
        all << state;
        state.codeWindowOpen = state.projectWindowOpen = true;
        all << state;
        for (int i = 0; i < all.size(); ++i) {
            if (states[i] == u'x') continue;
            QVERIFY2(EnabledIn(all[i], name) == (states[i] == u'1'), qPrintable(u"state %1"_s.arg(i)));
        }
    }

    void tellsWatchersOfChangesOnly() {
        Commands::ResetStates();
        QStringList seen;
        Commands::Watch([&](const QString& name) { seen << name; });
        Commands::SetEnabled(u"Menu_File_Save"_s, false);
        Commands::SetEnabled(u"Menu_File_Save"_s, false);
        Commands::SetChecked(u"Menu_Tools_AutoUml"_s, true);
        Commands::Watch({});
        QCOMPARE(seen, (QStringList{u"Menu_File_Save"_s, u"Menu_Tools_AutoUml"_s}));
    }
};

REGISTER_TEST_AS(Activation, ActivationTest);
#include "activation_test.moc"
