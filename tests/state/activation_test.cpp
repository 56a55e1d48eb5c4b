// SPDX-License-Identifier: MIT
// The command table and which commands are open in which state.
#include "state/activation.h"
#include "support/test.h"

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
        for (const Commands::MenuRow& row : Commands::MenuTree()) {
            if (row.flags & Commands::Separator) continue;
            const QString name = row.name.toString();
            QVERIFY2(!names.contains(name) && !row.caption.isEmpty(), qPrintable(name));
            names.insert(name);
            if (row.shortcut.isEmpty()) continue;
            QVERIFY2(!shortcuts.contains(row.shortcut.toString()), qPrintable(name));
            shortcuts.insert(row.shortcut.toString());
        }
        QCOMPARE(shortcuts.size(), 25); // none is lost
        // every button and entry runs a command that exists
        for (const Commands::ToolBarRow& row : Commands::ToolBar())
            QVERIFY2(row.key.isEmpty() || names.contains(row.command.toString()),
                     qPrintable(row.key.toString()));
        for (const Commands::DropDownRow& row : Commands::DropDowns())
            QVERIFY2(names.contains(row.command.toString()), qPrintable(row.key.toString()));
        QCOMPARE(Commands::ButtonAt(20), QString()); // a separator takes a place, too
        QCOMPARE(Commands::ButtonAt(32), u"ToolBar_Table"_s);
    }

    void opensCommandsByState_data() {
        const auto row = Columns<QString, QString>("name", "states");
        // one digit a state: nothing, new, file, selected, script, picture, preview and code
        row("save", "Menu_File_Save", "0111111");
        row("backup", "Menu_File_SaveBackUp", "0011111");
        row("cut", "Menu_Edit_Cut", "0001000");
        row("undo", "ToolBar_Undo", "0001000");
        row("current variable", "Menu_Insert_JavaScript_CurrentVar", "0000100");
        row("tag tools button", "ToolBar_Tagtools", "0111101");
        row("one above the other", "Menu_Window_SetH", "0000001");
        row("navigation", "Menu_View_Navigation", "0000011");
        row("index page", "ToolBar_Browser_Project", "0000001");
        row("maximise all", "Menu_Window_MaximizeAll", "0111111");
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
        for (int i = 0; i < all.size(); ++i)
            QVERIFY2(EnabledIn(all[i], name) == (states[i] == u'1'), qPrintable(u"state %1"_s.arg(i)));
    }
};

REGISTER_TEST_AS(Activation, ActivationTest);
#include "activation_test.moc"
