// SPDX-License-Identifier: MIT
// The real dialogs, answered as their user does.
#include "platform/dialogs_qt.h"

#include "platform/literals.h"
#include "support/driver.h"
#include "support/test_registry.h"

#include <QFileDialog>
#include <QMessageBox>
#include <QTemporaryDir>

using namespace Dialogs;

class DialogsQt : public QObject {
    Q_OBJECT

    QtHandler m_handler{[] { return QString(); }};

private slots:
    void takesOnlyTheAnswersOfAQuestion_data() {
        QTest::addColumn<int>("buttons");
        QTest::addColumn<int>("left"); // the answer by Esc and by the frame's X; -1: it stays
        QTest::newRow("yes and no") << int(Buttons::YesNo) << -1;
        QTest::newRow("with cancel") << int(Buttons::YesNoCancel) << int(Answer::Cancel);
        QTest::newRow("ok") << int(Buttons::Ok) << int(Answer::Ok);
    }
    void takesOnlyTheAnswersOfAQuestion() {
        QFETCH(int, buttons);
        QFETCH(int, left);
        const Message message{u"Titel"_s, u"Text"_s, Icon::Question, Buttons(buttons), Answer::Yes};
        for (const bool byKey : {true, false}) {
            bool stayed = false;
            Driver::InModal(u"MsgBox"_s, [&](QWidget* box) {
                if (byKey) {
                    QTest::keyClick(box, Qt::Key_Escape);
                    for (QAbstractButton* button : box->findChildren<QAbstractButton*>()) {
                        if (box->isVisible()) QTest::keyClick(button, Qt::Key_Escape);
                    }
                } else {
                    box->close();
                }
                stayed = box->isVisible();
                if (stayed) qobject_cast<QMessageBox*>(box)->button(QMessageBox::Yes)->click();
            });
            const Answer answer = m_handler.Ask(message);
            QCOMPARE(stayed, left < 0);
            QCOMPARE(int(answer), left < 0 ? int(Answer::Yes) : left);
        }
    }

    void isNotCoveredByTheSplash() {
        QWidget splash(nullptr, Qt::SplashScreen | Qt::WindowStaysOnTopHint);
        splash.show();
        bool covered = true;
        Driver::InModal(u"MsgBox"_s, [&](QWidget* box) {
            covered = splash.isVisible();
            box->close();
        });
        m_handler.Ask({u"Titel"_s, u"Text"_s, Icon::Critical, Buttons::Ok, Answer::Ok});
        QVERIFY(!covered && splash.isVisible());
    }

    void addsTheExtensionOfTheChosenGroup_data() {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<int>("group");
        QTest::addColumn<QString>("path");
        QTest::newRow("page") << u"seite"_s << 0 << u"seite.htm"_s;
        QTest::newRow("style sheet") << u"seite"_s << 1 << u"seite.css"_s;
        QTest::newRow("all files") << u"seite"_s << 2 << u"seite"_s;
        QTest::newRow("with an extension") << u"seite.txt"_s << 1 << u"seite.txt"_s;
    }
    void addsTheExtensionOfTheChosenGroup() {
        QFETCH(QString, typed);
        QFETCH(int, group);
        QFETCH(QString, path);
        const QTemporaryDir folder;
        QtHandler handler([&] { return folder.path(); });
        Driver::InModal(u"Dialog"_s, [&](QWidget* widget) {
            auto* dialog = qobject_cast<QFileDialog*>(widget);
            dialog->selectNameFilter(dialog->nameFilters().value(group));
            dialog->findChild<QLineEdit*>(u"fileNameEdit"_s)->setText(typed);
            QMetaObject::invokeMethod(dialog, "accept");
        });
        const QString chosen = handler.ChooseSaveFile(
            {u"Speichern unter"_s, u"Internet-Seiten (*.htm;*.html)|*.htm;*.html|StyleSheets (*.css)|*.css|"
                                   "Alle Dateien (*.*)|*.*"_s});
        QCOMPARE(chosen.section(u'\\', -1), path);
    }
};

REGISTER_TEST(DialogsQt);
#include "dialogs_qt_test.moc"
