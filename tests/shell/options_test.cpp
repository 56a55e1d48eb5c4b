// SPDX-License-Identifier: MIT
#include "documents/txt_code.h"
#include "platform/window.h"
#include "shell/frm_key_combo.h"
#include "shell/frm_options.h"
#include "support/driver.h"
#include "support/folder_test.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>

namespace {

// A check box and what it stands for: a shared variable or the check mark of a command.
struct Truth {
    QString box;
    bool* variable;
    QString command;

    bool Value() const { return variable ? *variable : Commands::IsChecked(command); }
    void Set(bool value) const {
        if (variable) {
            *variable = value;
        } else {
            Commands::SetChecked(command, value);
        }
    }
};

QList<Truth> Truths() {
    return {{u"Chk_General_0"_s, &Global::AutoPreView, {}},
            {u"Chk_General_1"_s, &Global::AutoDebug, {}},
            {u"Chk_General_2"_s, &Global::AutoProjectManager, {}},
            {u"Chk_General_3"_s, &Global::AutoMaximize, {}},
            {u"Chk_General_4"_s, &Global::DontShowNewUpdate, {}},
            {u"Chk_Debug_0"_s, nullptr, u"Menu_Debug_HTML"_s},
            {u"Chk_Debug_1"_s, nullptr, u"Menu_Debug_CSS"_s},
            {u"Chk_Debug_2"_s, &Global::ShowDebugReport, {}},
            {u"Chk_Debug_3"_s, nullptr, u"Menu_Debug_JavaScript"_s},
            {u"Chk_Editor_0"_s, nullptr, u"Menu_Tools_AutoUml"_s},
            {u"Chk_Editor_1"_s, nullptr, u"Menu_Tools_Option_2"_s},
            {u"Chk_Editor_2"_s, &Global::UseWindowsMenu, {}},
            {u"Chk_UseSkin_0"_s, &Global::SkinFileExists, {}},
            {u"Chk_ProjectManager_0"_s, &Global::ListLinkErrors, {}},
            {u"Chk_ProjectManager_1"_s, &Global::ShowExternLinks, {}}};
}

QCheckBox* Box(const QString& name) { return Driver::Find<QCheckBox>(name); }
QLineEdit* Line(const QString& name) { return Driver::Find<QLineEdit>(name); }
QListWidget* FileTypes() { return Driver::Find<QListWidget>(u"Lst_FileTypes"_s); }
bool Enabled(const QString& name) { return Driver::FindControl(name)->isEnabled(); }

} // namespace

class OptionsTest : public FolderTest {
    Q_OBJECT

    static void Open() {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // the one before is gone
        Shared<Frm_Options>().show();
    }
    static void Ok() { Driver::Click(u"Cmd_Control_0"_s); }
    static QComboBox* Keys() { return Driver::Find<QComboBox>(u"Cmb_Keys"_s); }
    static Txt_Code* Insert() { return Driver::Find<Txt_Code>(u"Txt_InsertText"_s); }
    static void Store(int key, const QString& text) {
        Keys()->setCurrentIndex(key);
        Insert()->SetText(text);
        Ok();
    }
    static void Leave() { Driver::Click(u"Cmd_Control_1"_s); }

private slots:
    void init() override {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        FolderTest::init();
        for (const Truth& truth : Truths()) truth.Set(false);
        Global::MaxLinkDeep = 3;
        Global::DebugAccuracy = 80;
    }
    void cleanup() override {
        Unload<Frm_Options>();
        FolderTest::cleanup();
    }

    void keyCombinationsAreStoredOnlyByTheButton() {
        m_folder.reset();
        m_folder = std::make_unique<ProgramFolder>(); // the main window wants the data files
        Driver::RunningProgram program;
        Driver::InModal(u"Frm_Options"_s, [](QWidget*) { Leave(); });
        Driver::Trigger(u"Menu_Tools_Options"_s);
        QVERIFY(!Loaded<Frm_Options>());
        Global::KeyCombos[0] = u"<br>"_s;
        Global::KeyCombos[9] = u"neun"_s;
        Driver::InModal(u"Frm_KeyCombo"_s, [](QWidget*) {
            QCOMPARE(Keys()->itemText(7), u"Strg + 7"_s);
            QCOMPARE(Insert()->Text(), u"<br>"_s);
            QTest::keyClicks(Insert(), u"X"_s);
            Keys()->setCurrentIndex(9);
            QCOMPARE(Insert()->Text(), u"neun"_s);
            Keys()->setCurrentIndex(0);
            Insert()->undo();
            QCOMPARE(Insert()->Text(), u"<br>"_s); // what was typed is dropped
            Store(3, u"drei"_s);
            Insert()->SetText(u"verworfen"_s);
            Driver::Click(u"Cmd_Control_1"_s);
        });
        Driver::Trigger(u"Menu_Tools_KeyCombo"_s);
        QVERIFY(!Loaded<Frm_KeyCombo>());
        QCOMPARE(Global::KeyCombos[3], u"drei"_s);
        QCOMPARE(Global::KeyCombos[0], u"<br>"_s);
    }

    // Each box stands for its own setting and for no other, on the way in and on the way out.
    void boxesStandForTheirSettings() {
        for (const Truth& only : Truths()) {
            for (const Truth& truth : Truths()) truth.Set(truth.box == only.box);
            Open();
            for (const Truth& truth : Truths()) {
                QVERIFY2(Box(truth.box)->isChecked() == (truth.box == only.box), qPrintable(truth.box));
                Box(truth.box)->click(); // now all but this one are checked
            }
            Line(u"Txt_LinkDeep"_s)->setText(u"9"_s);
            Line(u"Txt_DebugAccuracy"_s)->setText(u"90"_s);
            Leave(); // which takes nothing over
            QVERIFY(Global::MaxLinkDeep == 3 && Global::DebugAccuracy == 80);
            Open();
            for (const Truth& truth : Truths()) {
                QVERIFY2(truth.Value() == (truth.box == only.box), qPrintable(truth.box));
                Box(truth.box)->click();
            }
            Ok();
            QVERIFY(!Loaded<Frm_Options>());
            for (const Truth& truth : Truths())
                QVERIFY2(truth.Value() == (truth.box != only.box), qPrintable(truth.box));
        }
    }

    void readsNumbers_data() {
        const auto row = Columns<QString, QString, QString, int, int>("deep", "accuracy", "refused",
                                                                      "deepTaken", "accuracyTaken");
        row("plain", "5", "100", "", 5, 100);
        row("letters behind", "12abc", " 50 %", "", 12, 50);
        row("beyond the range", "99999", "1", "", 32767, 1);
        row("no depth", "", "50", "Txt_LinkDeep", 3, 80);
        row("depth 0, and the other bad too", "0", "0", "Txt_LinkDeep", 3, 80);
        row("depth below 0", "-4", "50", "Txt_LinkDeep", 3, 80);
        row("accuracy 0", "2", "0", "Txt_DebugAccuracy", 3, 80);
        row("accuracy above 100", "2", "101", "Txt_DebugAccuracy", 3, 80);
        row("huge accuracy", "2", "9999999999", "Txt_DebugAccuracy", 3, 80);
    }
    void readsNumbers() {
        QFETCH(QString, deep);
        QFETCH(QString, accuracy);
        QFETCH(QString, refused); // the line whose number is; it shows a good one instead
        Open();
        QCOMPARE(Line(u"Txt_LinkDeep"_s)->text(), u"3"_s);
        QCOMPARE(Line(u"Txt_DebugAccuracy"_s)->text(), u"80"_s);
        Line(u"Txt_LinkDeep"_s)->setText(deep);
        Line(u"Txt_DebugAccuracy"_s)->setText(accuracy);
        Box(u"Chk_General_0"_s)->setChecked(true);
        const bool deepIsBad = refused == u"Txt_LinkDeep";
        const QString depth = u"Geben Sie für den ProjektManager eine Zahl ein, die größer als 0 ist!"_s;
        const QString share =
            u"Geben Sie für den Debugger eine Zahl ein, die größer als 0 und kleiner gleich 100 ist!"_s;
        if (!refused.isEmpty())
            m_dialogs->ExpectMessage(u"Optionen"_s, deepIsBad ? depth : share, Dialogs::Answer::Ok,
                                     Dialogs::Icon::Exclamation);
        Ok();
        QVERIFY(Global::AutoPreView == refused.isEmpty() && Loaded<Frm_Options>() != refused.isEmpty());
        QTEST(int(Global::MaxLinkDeep), "deepTaken");
        QTEST(int(Global::DebugAccuracy), "accuracyTaken");
        if (refused.isEmpty()) return;
        QVERIFY(Line(refused)->isVisible());
        QCOMPARE(Line(u"Txt_LinkDeep"_s)->text(), deepIsBad ? u"1"_s : deep);
        QCOMPARE(Line(u"Txt_DebugAccuracy"_s)->text(), deepIsBad ? accuracy : u"100"_s);
    }

    void anAccuracyBeyondTheWholeShowsAsTheWhole() {
        Global::DebugAccuracy = 101;
        Open();
        QCOMPARE(Line(u"Txt_DebugAccuracy"_s)->text(), u"100"_s);
    }

    void fileTypesAreAddedAndRemoved() {
        Global::ProjectFiles = u"PDF-gz"_s; // a tail without a hyphen
        Open();
        QVERIFY(!Enabled(u"Cmd_FileTypeControl_1"_s));
        for (const QString& typed : {u"html"_s, u"HTML"_s, u"pdf"_s, QString(), u"zip"_s}) {
            m_dialogs->ExpectText(u"Tateityp hinzufügen"_s, typed);
            Driver::Click(u"Cmd_FileTypeControl_0"_s);
        }
        QCOMPARE(FileTypes()->count(), 4);
        FileTypes()->setCurrentRow(2);
        QVERIFY(Enabled(u"Cmd_FileTypeControl_1"_s));
        Driver::Click(u"Cmd_FileTypeControl_1"_s);
        QVERIFY(!Enabled(u"Cmd_FileTypeControl_1"_s));
        QCOMPARE(Global::ProjectFiles, u"PDF-gz"_s);
        Ok();
        QCOMPARE(Global::ProjectFiles, u"PDF-GZ-ZIP-"_s);
    }

    // The picture is copied the moment it is chosen, and leaving does not take that back.
    void skinIsCopiedAtOnce() {
        const QString picture = m_folder->Write(u"bilder/muster.bmp"_s, "BM-Bild");
        Open();
        QVERIFY(!Enabled(u"Cmd_SetSkin"_s));
        Box(u"Chk_UseSkin_0"_s)->click();
        QVERIFY(Enabled(u"Cmd_SetSkin"_s));
        for (const QString& chosen : {QString(), m_folder->Path(u"fehlt.bmp"_s)}) {
            m_dialogs->ExpectOpenFile(u"Bild öffnen"_s, chosen);
            Driver::Click(u"Cmd_SetSkin"_s);
            QVERIFY(!m_folder->Has(u"skin.bmp"_s));
        }
        m_dialogs->ExpectOpenFile(u"Bild öffnen"_s, picture);
        Driver::Click(u"Cmd_SetSkin"_s);
        QCOMPARE(Global::DialogFile, picture);
        QCOMPARE(m_folder->Read(u"skin.bmp"_s), QByteArray("BM-Bild"));
        Leave();
        QVERIFY(m_folder->Has(u"skin.bmp"_s) && !Global::SkinFileExists);
        Global::SkinFileExists = true;
        Open();
        Box(u"Chk_UseSkin_0"_s)->click();
        QVERIFY(m_folder->Has(u"skin.bmp"_s)); // switched off it goes, but only by the button
        Ok();
        QVERIFY(!m_folder->Has(u"skin.bmp"_s) && !Global::SkinFileExists);
    }

    void workAreaPictureIsAPath() {
        const QString picture = m_folder->Path(u"bilder/flaeche.png"_s);
        Open();
        QVERIFY(!Enabled(u"Txt_SkinFile"_s) && !Enabled(u"Cmd_OpenFile"_s));
        Box(u"Chk_UseSkin_1"_s)->click();
        m_dialogs->ExpectOpenFile(u"Bild öffnen"_s, picture);
        Driver::Click(u"Cmd_OpenFile"_s);
        QCOMPARE(Line(u"Txt_SkinFile"_s)->text(), Files::ToSystem(picture));
        QVERIFY(Global::WorkScreenSkin.isEmpty());
        Ok();
        QCOMPARE(Global::WorkScreenSkin, picture);
        Open();
        QCOMPARE(Line(u"Txt_SkinFile"_s)->text(), Files::ToSystem(picture));
        Box(u"Chk_UseSkin_1"_s)->click();
        Ok();
        QVERIFY(Global::WorkScreenSkin.isEmpty());
    }
};

REGISTER_TEST_AS(Options, OptionsTest);
#include "options_test.moc"
