// SPDX-License-Identifier: MIT
// Nothing that the program speaks of by a name is answered by silence.
#include "platform/literals.h"
#include "shell/frm_main.h"
#include "shell/wiring.h"
#include "support/driver.h"
#include "support/test.h"

#include <QDirIterator>
#include <QRegularExpression>

class Registry : public QObject {
    Q_OBJECT

private slots:
    void knowsEveryWindowThatIsNamed() {
        const ProgramFolder folder(ProgramFolder::Content::Empty);
        Wiring::InstallWindows();
        QSet<QString> rows;
        for (const Windows::Row& row : Windows::Rows()) {
            QVERIFY2(!rows.contains(row.name.toString()), qPrintable(row.name.toString()));
            rows.insert(row.name.toString());
            const bool hidden = row.command == u"Menu_Tools_SpellingCheck"; // a setting shows it
            QVERIFY2(row.command.isEmpty() || Commands::StateOf(row.command.toString()).visible != hidden,
                     qPrintable(row.command.toString()));
        }
        static const QRegularExpression name(u"u\"(Frm_[A-Za-z]+|WAPBrowser)\""_s);
        int seen = 0;
        QDirIterator sources(SourceFile(u"src"_s), {u"*.cpp"_s}, QDir::Files, QDirIterator::Subdirectories);
        while (sources.hasNext()) {
            QFile file(sources.next());
            QVERIFY(file.open(QIODevice::ReadOnly));
            const QString text = QString::fromUtf8(file.readAll());
            for (const auto& hit : name.globalMatch(text)) {
                if (hit.captured(1) == u"Frm_Main") continue; // shown by the start alone
                QVERIFY2(rows.contains(hit.captured(1)),
                         qPrintable(file.fileName() + u' ' + hit.captured(1)));
                ++seen;
            }
        }
        QVERIFY(seen > rows.size());
    }

    void answersEveryCommandAndCall() {
        const ProgramFolder folder;
        ScriptedDialogs dialogs;
        const Driver::RunningProgram program;
        const QStringList toCome{
            u"Menu_File_Print"_s,         u"Menu_File_ProjectBackUp"_s,   u"Menu_File_UploadAssistant"_s,
            u"Menu_View_SyntaxPreView"_s, u"Menu_Insert_PageArtBox"_s,    u"Menu_Project_Jump"_s,
            u"Menu_Project_Set"_s,        u"Menu_Tools_SpeedCheck"_s,     u"Menu_Tools_Connection"_s,
            u"x_Menu_Tools_Debug"_s,      u"Menu_Menu_Code_Attribute_0"_s};
        for (const Commands::MenuRow& row : Commands::MenuTree()) {
            if (row.flags & (Commands::Submenu | Commands::Separator)) continue;
            const QString name = row.name.toString();
            QVERIFY2(Frm_Main::HasCommand(name) != toCome.contains(name), qPrintable(name));
        }
        QCOMPARE(Neighbours::Unanswered(), QStringList{u"GenerateWAPPreview"_s});
    }
};

REGISTER_TEST(Registry);
#include "registry_test.moc"
