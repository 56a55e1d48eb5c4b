// SPDX-License-Identifier: MIT
#include "platform/files.h"
#include "platform/literals.h"
#include "platform/window.h"
#include "shell/frm_options.h"
#include "state/commands.h"
#include "state/global.h"
#include "support/driver.h"
#include "support/program_folder.h"
#include "support/scripted_dialogs.h"
#include "support/test_registry.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QListWidget>
#include <QTabWidget>

namespace {

const QString PictureFilter = QStringLiteral("Bitmaps (*.bmp)|*.bmp|Alle Dateien (*.*)|*.*");

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

QStringList Shown(const QListWidget& list) {
    QStringList texts;
    for (int row = 0; row < list.count(); ++row) texts << list.item(row)->text();
    return texts;
}

} // namespace

class OptionsTest : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<ProgramFolder> m_folder;
    std::unique_ptr<ScriptedDialogs> m_dialogs;

    static void Open() {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // the one before is gone
        Shared<Frm_Options>().show();
    }
    static void Ok() { Driver::Click(u"Cmd_Control_0"_s); }
    static void Leave() { Driver::Click(u"Cmd_Control_1"_s); }

private slots:
    void init() {
        m_folder = std::make_unique<ProgramFolder>(ProgramFolder::Content::Empty);
        m_dialogs = std::make_unique<ScriptedDialogs>();
        for (const Truth& truth : Truths()) truth.Set(false);
        Global::MaxLinkDeep = 3;
        Global::DebugAccuracy = 80;
    }
    void cleanup() {
        Unload<Frm_Options>();
        m_dialogs.reset();
        m_folder.reset();
    }

    void isModalBehindItsMenuItem() {
        m_folder.reset();
        m_folder = std::make_unique<ProgramFolder>(); // the main window wants the data files
        Driver::RunningProgram program;
        Driver::InModal(u"Frm_Options"_s, [](QWidget* window) {
            QCOMPARE(window->windowTitle(), u"Optionen"_s);
            auto* tabs = Driver::Find<QTabWidget>(u"Tab_Options"_s);
            QStringList captions;
            for (int i = 0; i < tabs->count(); ++i) {
                captions << tabs->tabText(i);
                tabs->setCurrentIndex(i);
                for (int other = 0; other < tabs->count(); ++other) {
                    QCOMPARE(Driver::FindControl(u"Frm_OptionTab_%1"_s.arg(other))->isVisible(), other == i);
                }
            }
            QCOMPARE(captions, (QStringList{u"Allgemein"_s, u"Debugger"_s, u"Editor"_s, u"Design"_s,
                                            u"ProjektManager"_s}));
            Leave();
        });
        Driver::Trigger(u"Menu_Tools_Options"_s);
        QVERIFY(!Loaded<Frm_Options>());
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
            Ok();
            QVERIFY(!Loaded<Frm_Options>());
            for (const Truth& truth : Truths()) {
                QVERIFY2(truth.Value() == (truth.box != only.box), qPrintable(truth.box));
            }
        }
    }

    void leavingTakesNothingOver() {
        Open();
        for (const Truth& truth : Truths()) Box(truth.box)->click();
        Line(u"Txt_LinkDeep"_s)->setText(u"9"_s);
        Line(u"Txt_DebugAccuracy"_s)->setText(u"9"_s);
        Leave();
        QVERIFY(!Loaded<Frm_Options>());
        for (const Truth& truth : Truths()) QVERIFY(!truth.Value());
        QCOMPARE(Global::MaxLinkDeep, 3);
        QCOMPARE(Global::DebugAccuracy, 80);
    }

    void numbersAreReadLeniently_data() {
        QTest::addColumn<QString>("deep");
        QTest::addColumn<QString>("accuracy");
        QTest::addColumn<int>("deepTaken");
        QTest::addColumn<int>("accuracyTaken");
        QTest::newRow("plain") << u"5"_s << u"100"_s << 5 << 100;
        QTest::newRow("letters behind") << u"12abc"_s << u" 50 %"_s << 12 << 50;
        QTest::newRow("beyond the range") << u"99999"_s << u"1"_s << 32767 << 1;
    }
    void numbersAreReadLeniently() {
        QFETCH(QString, deep);
        QFETCH(QString, accuracy);
        Open();
        QCOMPARE(Line(u"Txt_LinkDeep"_s)->text(), u"3"_s);
        QCOMPARE(Line(u"Txt_DebugAccuracy"_s)->text(), u"80"_s);
        Line(u"Txt_LinkDeep"_s)->setText(deep);
        Line(u"Txt_DebugAccuracy"_s)->setText(accuracy);
        Ok();
        QTEST(int(Global::MaxLinkDeep), "deepTaken");
        QTEST(int(Global::DebugAccuracy), "accuracyTaken");
    }

    void badNumbersAreRefused_data() {
        QTest::addColumn<QString>("deep");
        QTest::addColumn<QString>("accuracy");
        QTest::addColumn<bool>("deepIsBad");
        QTest::newRow("no depth") << QString() << u"50"_s << true;
        QTest::newRow("depth 0, and the other bad too") << u"0"_s << u"0"_s << true;
        QTest::newRow("depth below 0") << u"-4"_s << u"50"_s << true;
        QTest::newRow("depth of letters") << u"tief"_s << u"50"_s << true;
        QTest::newRow("no accuracy") << u"2"_s << QString() << false;
        QTest::newRow("accuracy 0") << u"2"_s << u"0"_s << false;
        QTest::newRow("accuracy above 100") << u"2"_s << u"101"_s << false;
        QTest::newRow("huge accuracy") << u"2"_s << u"9999999999"_s << false;
    }
    void badNumbersAreRefused() {
        QFETCH(QString, deep);
        QFETCH(QString, accuracy);
        QFETCH(bool, deepIsBad);
        Open();
        Line(u"Txt_LinkDeep"_s)->setText(deep);
        Line(u"Txt_DebugAccuracy"_s)->setText(accuracy);
        Box(u"Chk_General_0"_s)->setChecked(true);
        m_dialogs->ExpectMessage(
            u"Optionen"_s,
            deepIsBad
                ? u"Geben Sie für den ProjektManager eine Zahl ein, die größer als 0 ist!"_s
                : u"Geben Sie für den Debugger eine Zahl ein, die größer als 0 und kleiner gleich 100 ist!"_s,
            Dialogs::Answer::Ok, Dialogs::Icon::Exclamation);
        Ok();
        QVERIFY(m_dialogs->Finished());
        QVERIFY(Loaded<Frm_Options>());
        QCOMPARE(Line(u"Txt_LinkDeep"_s)->text(), deepIsBad ? u"1"_s : deep);
        QCOMPARE(Line(u"Txt_DebugAccuracy"_s)->text(), deepIsBad ? accuracy : u"100"_s);
        QVERIFY(Line(deepIsBad ? u"Txt_LinkDeep"_s : u"Txt_DebugAccuracy"_s)->isVisible());
        QVERIFY(!Global::AutoPreView);
        QCOMPARE(Global::MaxLinkDeep, 3);
        QCOMPARE(Global::DebugAccuracy, 80);
    }

    void strangeAccuracyShowsAsWhole() {
        for (const int stored : {-1, 101}) {
            Global::DebugAccuracy = static_cast<std::int16_t>(stored);
            Open();
            QCOMPARE(Line(u"Txt_DebugAccuracy"_s)->text(), u"100"_s);
            Leave();
        }
    }

    void listsFileTypes_data() {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QStringList>("shown");
        QTest::newRow("none") << QString() << QStringList();
        QTest::newRow("two") << u"PDF-zip-"_s << QStringList{u"PDF"_s, u"ZIP"_s};
        QTest::newRow("tail without hyphen") << u"pdf-zip"_s << QStringList{u"PDF"_s, u"ZIP"_s};
        QTest::newRow("no hyphen at all") << u"pdf"_s << QStringList{u"PDF"_s};
    }
    void listsFileTypes() {
        QFETCH(QString, stored);
        Global::ProjectFiles = stored;
        Open();
        QTEST(Shown(*FileTypes()), "shown");
    }

    void fileTypesAreAddedAndRemoved() {
        Global::ProjectFiles = u"PDF-"_s;
        Open();
        QVERIFY(!Enabled(u"Cmd_FileTypeControl_1"_s));
        for (const QString& typed : {u"html"_s, u"HTML"_s, u"pdf"_s, QString(), u"zip"_s}) {
            m_dialogs->ExpectText(u"Tateityp hinzufügen"_s, typed);
            Driver::Click(u"Cmd_FileTypeControl_0"_s);
        }
        QCOMPARE(Shown(*FileTypes()), (QStringList{u"PDF"_s, u"HTML"_s, u"ZIP"_s}));
        FileTypes()->setCurrentRow(1);
        QVERIFY(Enabled(u"Cmd_FileTypeControl_1"_s));
        Driver::Click(u"Cmd_FileTypeControl_1"_s);
        QCOMPARE(Shown(*FileTypes()), (QStringList{u"PDF"_s, u"ZIP"_s}));
        QVERIFY(!Enabled(u"Cmd_FileTypeControl_1"_s));
        QCOMPARE(Global::ProjectFiles, u"PDF-"_s);
        Ok();
        QCOMPARE(Global::ProjectFiles, u"PDF-ZIP-"_s);
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
        QCOMPARE(m_dialogs->lastFileQuestion.filter, PictureFilter);
        QCOMPARE(Global::DialogFile, picture);
        QCOMPARE(m_folder->Read(u"skin.bmp"_s), QByteArray("BM-Bild"));
        Leave();
        QVERIFY(m_folder->Has(u"skin.bmp"_s));
        QVERIFY(!Global::SkinFileExists);
    }

    void switchingTheSkinOffDeletesIt() {
        m_folder->Write(u"skin.bmp"_s, "BM");
        Global::SkinFileExists = true;
        Open();
        Box(u"Chk_UseSkin_0"_s)->click();
        QVERIFY(m_folder->Has(u"skin.bmp"_s));
        Ok();
        QVERIFY(!m_folder->Has(u"skin.bmp"_s));
        QVERIFY(!Global::SkinFileExists);
        Open(); // nothing left to delete, and nobody is told
        Ok();
        QVERIFY(!Loaded<Frm_Options>());
    }

    void workAreaPictureIsAPath() {
        const QString picture = m_folder->Path(u"bilder/flaeche.png"_s);
        Open();
        QVERIFY(!Enabled(u"Txt_SkinFile"_s) && !Enabled(u"Cmd_OpenFile"_s));
        Box(u"Chk_UseSkin_1"_s)->click();
        QVERIFY(Enabled(u"Txt_SkinFile"_s) && Enabled(u"Cmd_OpenFile"_s));
        m_dialogs->ExpectOpenFile(u"Bild öffnen"_s, picture);
        Driver::Click(u"Cmd_OpenFile"_s);
        QCOMPARE(m_dialogs->lastFileQuestion.filter, PictureFilter);
        QCOMPARE(Line(u"Txt_SkinFile"_s)->text(), Files::ToSystem(picture));
        QVERIFY(Global::WorkScreenSkin.isEmpty());
        Ok();
        QCOMPARE(Global::WorkScreenSkin, picture);
        QCOMPARE(Global::DialogFile, picture);
        Open();
        QVERIFY(Box(u"Chk_UseSkin_1"_s)->isChecked());
        QCOMPARE(Line(u"Txt_SkinFile"_s)->text(), Files::ToSystem(picture));
        Box(u"Chk_UseSkin_1"_s)->click();
        Ok();
        QVERIFY(Global::WorkScreenSkin.isEmpty());
    }

    // The long caption goes on in further lines and can be clicked there.
    void longCaptionWraps() {
        Open();
        Driver::Find<QTabWidget>(u"Tab_Options"_s)->setCurrentIndex(2);
        QCheckBox* box = Box(u"Chk_Editor_2"_s);
        QVERIFY(box->width() < 700);
        QVERIFY(box->height() >= 3 * box->fontMetrics().height());
        QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(box->width() / 3, box->height() - 4));
        QVERIFY(box->isChecked());
        Shared<Frm_Options>().resize(Shared<Frm_Options>().minimumSizeHint());
        QCoreApplication::processEvents();
        QVERIFY(box->height() >= box->heightForWidth(box->width()));
    }
};

REGISTER_TEST_AS(Options, OptionsTest);
#include "options_test.moc"
