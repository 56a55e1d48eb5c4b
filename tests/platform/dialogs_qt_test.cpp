// SPDX-License-Identifier: MIT
// The real dialogs, answered as their user does.
#include "platform/dialogs_qt.h"

#include "support/driver.h"
#include "support/test.h"

#include <QFileDialog>
#include <QMessageBox>
#include <QTemporaryDir>

using namespace Dialogs;

class DialogsQt : public QObject {
    Q_OBJECT

    QtHandler m_handler{[] { return QString(); }, u"Programm"_s};

private slots:
    // The answer by Esc and by the frame's X; a question without a third one stays.
    void takesOnlyTheAnswersOfAQuestion() {
        for (const auto& [buttons, stays, left] : {std::tuple(Buttons::YesNo, true, Answer::Yes),
                                                   std::tuple(Buttons::YesNoCancel, false, Answer::Cancel),
                                                   std::tuple(Buttons::Ok, false, Answer::Ok)}) {
            for (const bool byKey : {true, false}) {
                bool stayed = false;
                Driver::InModal(u"MsgBox"_s, [&](QWidget* box) {
                    if (byKey) QTest::keyClick(box, Qt::Key_Escape);
                    for (QAbstractButton* button : box->findChildren<QAbstractButton*>())
                        if (byKey && box->isVisible()) QTest::keyClick(button, Qt::Key_Escape);
                    if (!byKey) box->close();
                    stayed = box->isVisible();
                    if (stayed) qobject_cast<QMessageBox*>(box)->button(QMessageBox::Yes)->click();
                });
                QVERIFY(m_handler.Ask({u"Titel"_s, u"Text"_s, Icon::Question, buttons, Answer::Yes}) == left);
                QCOMPARE(stayed, stays);
            }
        }
    }

    void isNotCoveredByTheSplash() {
        QWidget splash(nullptr, Qt::SplashScreen | Qt::WindowStaysOnTopHint);
        splash.show();
        bool covered = true;
        Driver::InModal(u"MsgBox"_s, [&](QWidget* box) {
            covered = splash.isVisible();
            QCOMPARE(box->windowTitle(), u"Programm"_s); // of a message without a title
            box->close();
        });
        m_handler.Ask({{}, u"Text"_s, Icon::Critical, Buttons::Ok, Answer::Ok});
        QVERIFY(!covered && splash.isVisible());
    }

    void addsTheExtensionOfTheChosenGroup() {
        const QTemporaryDir folder;
        QtHandler handler([&] { return folder.path(); }, {});
        for (const auto& [typed, group, path] : {std::tuple(u"seite"_s, 0, u"seite.htm"_s),
                                                 {u"seite"_s, 1, u"seite.css"_s},
                                                 {u"seite"_s, 2, u"seite"_s}, // all files
                                                 {u"seite.txt"_s, 1, u"seite.txt"_s}}) {
            Driver::InModal(u"Dialog"_s, [&, typed = typed, group = group](QWidget* widget) {
                auto* dialog = qobject_cast<QFileDialog*>(widget);
                dialog->selectNameFilter(dialog->nameFilters().value(group));
                dialog->findChild<QLineEdit*>(u"fileNameEdit"_s)->setText(typed);
                QMetaObject::invokeMethod(dialog, "accept");
            });
            const QString chosen = handler.ChooseSaveFile(
                {u"Speichern unter"_s,
                 u"Internet-Seiten (*.htm;*.html)|*.htm;*.html|StyleSheets (*.css)|*.css|"
                 "Alle Dateien (*.*)|*.*"_s});
            QCOMPARE(chosen.section(u'\\', -1), path);
        }
    }
};

REGISTER_TEST(DialogsQt);
#include "dialogs_qt_test.moc"
