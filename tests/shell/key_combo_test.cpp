// SPDX-License-Identifier: MIT
#include "documents/txt_code.h"
#include "platform/literals.h"
#include "platform/window.h"
#include "shell/frm_key_combo.h"
#include "state/global.h"
#include "state/neighbours.h"
#include "state/settings.h"
#include "support/driver.h"
#include "support/program_folder.h"
#include "support/scripted_dialogs.h"
#include "support/test_registry.h"

#include <QComboBox>

class KeyCombo : public QObject {
    Q_OBJECT

private:
    static QComboBox* Keys() { return Driver::Find<QComboBox>(u"Cmb_Keys"_s); }
    static Txt_Code* Box() { return Driver::Find<Txt_Code>(u"Txt_InsertText"_s); }
    static void Store(int key, const QString& text) {
        Keys()->setCurrentIndex(key);
        Box()->SetText(text);
        Driver::Click(u"Cmd_Control_0"_s);
    }

private slots:
    void storesOnlyByTheButton() {
        ProgramFolder folder;
        ScriptedDialogs dialogs;
        Driver::RunningProgram program;
        Global::KeyCombos[0] = u"<br>"_s;
        Global::KeyCombos[9] = u"neun"_s;
        Driver::InModal(u"Frm_KeyCombo"_s, [](QWidget* window) {
            QCOMPARE(window->windowTitle(), u"Tastenkürtzel festlegen"_s);
            QCOMPARE(Keys()->count(), 10);
            QCOMPARE(Keys()->itemText(7), u"Strg + 7"_s);
            QCOMPARE(Keys()->currentIndex(), 0);
            QCOMPARE(Box()->Text(), u"<br>"_s);
            Box()->setFocus();
            QTest::keyClicks(Box(), u"X"_s);
            Keys()->setCurrentIndex(9);
            QCOMPARE(Box()->Text(), u"neun"_s);
            Keys()->setCurrentIndex(0);
            QCOMPARE(Box()->Text(), u"<br>"_s); // what was typed is dropped
            Box()->undo();
            QCOMPARE(Box()->Text(), u"<br>"_s);
            Store(3, u"drei"_s);
            QVERIFY(Loaded<Frm_KeyCombo>());
            Box()->SetText(u"verworfen"_s);
            Driver::Click(u"Cmd_Control_1"_s);
        });
        Driver::Trigger(u"Menu_Tools_KeyCombo"_s);
        QVERIFY(!Loaded<Frm_KeyCombo>());
        QCOMPARE(Global::KeyCombos[3], u"drei"_s);
        QCOMPARE(Global::KeyCombos[0], u"<br>"_s);
    }

    void textsComeBackAfterARestart() {
        ProgramFolder folder;
        Settings::LoadSettings();
        const QString lines = u"<ul>\r\n  <li>Ä\u00a0b = c</li>\r\n</ul>"_s;
        Shared<Frm_KeyCombo>();
        for (int key = 0; key <= 9; ++key) Store(key, QString::number(key));
        Store(4, lines);
        Store(5, {});
        Unload<Frm_KeyCombo>();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(Settings::WriteSettings());
        Global::Reset();
        Settings::LoadSettings();
        Shared<Frm_KeyCombo>();
        for (int key = 0; key <= 9; ++key) {
            Keys()->setCurrentIndex(key);
            QCOMPARE(Box()->Text(), key == 4 ? lines : key == 5 ? QString() : QString::number(key));
        }
        Unload<Frm_KeyCombo>();
    }

    void assistantExplains() {
        ProgramFolder folder(ProgramFolder::Content::Empty);
        QStringList said;
        Neighbours::RunAnimation.AnsweredBy([&said](int, const QString& text) { said << text; });
        Global::AssistantOpen = true;
        Shared<Frm_KeyCombo>().show();
        QVERIFY(QTest::qWaitForWindowActive(&Shared<Frm_KeyCombo>()));
        Unload<Frm_KeyCombo>();
        Global::AssistantOpen = false;
        QCOMPARE(said.size(), 2);
        QVERIFY(said[0].startsWith(u"Hier können Sie Tastenkürtzel festlegen,"));
        QVERIFY(said[1].isEmpty());
    }
};

REGISTER_TEST(KeyCombo);
#include "key_combo_test.moc"
