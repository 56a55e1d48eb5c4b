// SPDX-License-Identifier: MIT
// Table files at three sizes, in the real program: processor time of a draft written, read and shown in the
// wizard, of a character typed into its last cell, and of its HTML inserted into the page. Usage:
// QT_QPA_PLATFORM=offscreen table_bench
#include "documents/frm_code.h"
#include "documents/new_documents.h"
#include "insertion/frm_table.h"
#include "insertion/table_draft.h"
#include "milliseconds.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/literals.h"
#include "shell/frm_main.h"
#include "shell/wiring.h"
#include "state/global.h"

#include <QApplication>
#include <QPushButton>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>
#include <array>
#include <cstdio>

namespace {

// Answers each file dialog with the one path.
class OnePath : public Dialogs::Handler {
public:
    explicit OnePath(QString path) : m_path(std::move(path)) {}
    Dialogs::Answer Ask(const Dialogs::Message& message) override {
        std::printf("asked: %s\n", qPrintable(message.text));
        return Dialogs::Answer::No;
    }
    QString AskText(const QString&, const QString&, const QString&) override { return {}; }
    QString ChooseOpenFile(const Dialogs::FileQuestion&) override { return m_path; }
    QString ChooseSaveFile(const Dialogs::FileQuestion&) override { return m_path; }
    QString ChooseFolder(const QString&) override { return {}; }
    void Beep() override {}
    void OpenAddress(const QString&) override {}

private:
    const QString m_path;
};

TableDraft DraftOf(int rows, int columns) {
    TableDraft draft;
    draft.SetSize(rows, columns);
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; column += 2) { // every other cell is empty
            draft.SetCell(row, column, u"Beet %1: Möhren & <b>Kürbis</b>"_s.arg(row * columns + column));
        }
    }
    return draft;
}

using Times = std::array<double, 5>;
constexpr const char* Names[] = {"file written", "read and shown", "a character typed", "HTML built",
                                 "HTML inserted"};

Times Measure(const QString& path, const TableDraft& draft) {
    Times times;
    Documents::CreateNewTextFile();
    times[0] = ProcessorMilliseconds([&] { Files::WriteProgramText(path, draft.FileText()); });
    auto& wizard = Shared<Frm_Table>();
    auto* grid = wizard.findChild<QTableView*>(u"Flx_Table"_s);
    times[1] = ProcessorMilliseconds([&] {
        wizard.LoadFile();
        wizard.show();
        grid->viewport()->repaint();
    });
    grid->setCurrentIndex(grid->model()->index(draft.Rows() - 1, draft.Columns() - 1));
    times[2] = ProcessorMilliseconds([&] {
        QTest::keyClick(wizard.findChild<QWidget*>(u"Txt_FieldText"_s), Qt::Key_X);
        grid->viewport()->repaint();
    });
    times[3] = ProcessorMilliseconds([&] { draft.Html({}); });
    times[4] = ProcessorMilliseconds([&] {
        wizard.findChild<QPushButton*>(u"Cmd_Control_0"_s)->click();
        Shared<Frm_Code>().TextBox->viewport()->repaint();
    });
    QCoreApplication::processEvents();
    return times;
}

} // namespace

int main(int argc, char** argv) {
    QApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QApplication application(argc, argv);
    const QTemporaryDir folder; // for the settings that the start writes, and the table file
    const QString path = Files::FromSystem(folder.filePath(u"beete.tbl"_s));
    OnePath dialogs(path);
    Dialogs::Install(&dialogs);
    Files::SetProgramDirectory(Files::FromSystem(folder.path()),
                               Files::FromSystem(QStringLiteral(SORVANE_SOURCE_DIR "/data")));
    Wiring::WireWindows();
    Shared<Frm_Main>().show();
    Global::StartPending = Global::AutoDebug = Global::AutoProjectManager = false;
    constexpr int Rows[] = {10, 100, 1000};
    std::array<Times, 3> best;
    for (size_t size = 0; size < best.size(); ++size) {
        const TableDraft draft = DraftOf(Rows[size], 100);
        best[size] = Measure(path, draft);
        for (int round = 0; round < 4; ++round) {
            const Times times = Measure(path, draft);
            for (size_t i = 0; i < times.size(); ++i) best[size][i] = std::min(best[size][i], times[i]);
        }
    }
    std::printf("%-20s%12s%12s%12s   growth\n", "ms, best of five", "1000 cells", "10,000", "100,000");
    for (size_t i = 0; i < std::size(Names); ++i) {
        std::printf("%-20s%12.2f%12.2f%12.2f%9.1f%9.1f\n", Names[i], best[0][i], best[1][i], best[2][i],
                    best[1][i] / best[0][i], best[2][i] / best[1][i]);
    }
    Dialogs::Install(nullptr);
    Global::DocChanged = false;
    Wiring::UnloadAll();
}
