// SPDX-License-Identifier: MIT
// The window SpeedCheck by its menu item, in the real program.
#include "project/frm_speed_check.h"

#include "support/program_test.h"

#include <QTimer>
#include <QTreeView>

class SpeedCheckTest : public ProgramTest {
    Q_OBJECT

    // Opens the window for a page of that text, and runs `inside` in it.
    void In(const QByteArray& page, std::function<void(QWidget*)> inside) {
        Documents::OpenFile(m_folder->Write(u"seite.htm"_s, "-//W3C//DTD HTML\r\n" + page));
        Driver::InModal(u"Frm_SpeedCheck"_s, std::move(inside));
        Driver::Trigger(u"Menu_Tools_SpeedCheck"_s);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!Loaded<Frm_SpeedCheck>());
    }
    // The same behind the results; events run within the count, which must not wait for `inside`.
    void AfterCount(const QByteArray& page, std::function<void(QWidget*)> inside) {
        In(page, [&inside](QWidget* window) {
            auto* timer = new QTimer(window);
            connect(timer, &QTimer::timeout, window, [timer, window, &inside] {
                if (Rows(u"Lvw_Message"_s) < 6) return;
                timer->stop();
                inside(window);
            });
            timer->start(5);
        });
    }
    static int Rows(const QString& list) { return Driver::Find<QTreeView>(list)->model()->rowCount(); }

private slots:
    void weighsTheSavedPage() {
        m_folder->Write(u"a.png"_s, QByteArray(2048, 'x'));
        AfterCount("<img src=\"a.png\"><img src=\"a.png\">", [&](QWidget* window) {
            QCOMPARE(Rows(u"Lvw_Files"_s), 2);
            // who comes back from another program sees the new sizes
            m_folder->Write(u"a.png"_s, QByteArray(4096, 'x'));
            for (const auto type : {QEvent::WindowDeactivate, QEvent::WindowActivate}) {
                QEvent event(type);
                QCoreApplication::sendEvent(window, &event);
            }
            const auto* files = Driver::Find<QTreeView>(u"Lvw_Files"_s)->model();
            QTRY_COMPARE(files->index(1, 2).data().toString(), u"4 kB"_s);
            QCOMPARE(Rows(u"Lvw_Message"_s), 6);
            QTest::keyClick(window, Qt::Key_Escape);
        });
    }

    void tellsOfCycles() {
        m_dialogs->ExpectMessage(
            u"SpeedCheck"_s, u"Die Seiten rufen sich gegenseitig auf. Die Berechnung wurde abgebrochen."_s);
        AfterCount("<frame src=\"seite.htm\">", [](QWidget* window) {
            QVERIFY(Rows(u"Lvw_Files"_s) > 0);
            QTest::keyClick(window, Qt::Key_Escape);
        });
    }

    // Closed in the middle, it neither goes on nor shows results.
    void endsWithItsWindow() {
        int late = 0; // changes of the lists behind the end
        In(QByteArray("<img src=\"a.png\">").repeated(100'000), [&](QWidget* window) {
            QTRY_VERIFY(Rows(u"Lvw_Files"_s) > 0);
            QCOMPARE(Rows(u"Lvw_Message"_s), 0);
            QTest::keyClick(window, Qt::Key_Escape);
            for (const QString& list : {u"Lvw_Files"_s, u"Lvw_Message"_s}) {
                connect(Driver::Find<QTreeView>(list)->model(), &QAbstractItemModel::rowsInserted, this,
                        [&late] { ++late; });
            }
        });
        QCOMPARE(late, 0);
    }

    void staysAwayWithoutAFile() {
        Documents::CreateNewTextFile();
        m_dialogs->ExpectSaveFile(u"Speichern unter"_s, {});
        Driver::Trigger(u"Menu_Tools_SpeedCheck"_s);
        QVERIFY(!Loaded<Frm_SpeedCheck>());
    }
};

REGISTER_TEST_AS(SpeedCheck, SpeedCheckTest);
#include "speed_check_test.moc"
