// SPDX-License-Identifier: MIT
// What the debugger's window costs beside the document: a check, the new report in the list, and its first
// painting. Usage: QT_QPA_PLATFORM=offscreen report_bench
#include "debugger/error_list.h"
#include "debugger/frm_debug.h"
#include "documents/frm_code.h"
#include "documents/new_documents.h"
#include "platform/files.h"
#include "platform/literals.h"
#include "shell/frm_main.h"
#include "shell/wiring.h"
#include "state/global.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <limits>

namespace {

double Milliseconds(const QElapsedTimer& timer) { return static_cast<double>(timer.nsecsElapsed()) / 1e6; }

// `text` takes turns with one that is longer by a blank at its start, so that no run finds its report
// unchanged.
void Measure(const char* what, const QString& text) {
    const auto* list = Shared<Frm_DeBug>().findChild<ErrorList*>(u"Lvw_Errors"_s);
    double check = std::numeric_limits<double>::max();
    double paint = check;
    for (int round = 0; round < 6; ++round) {
        Shared<Frm_Code>().TextBox->SetText(round % 2 == 0 ? text : QString(u' ' + text));
        QCoreApplication::processEvents();
        QElapsedTimer timer;
        timer.start();
        Shared<Frm_DeBug>().CheckSyntax();
        check = std::min(check, Milliseconds(timer));
        timer.restart();
        list->viewport()->repaint();
        paint = std::min(paint, Milliseconds(timer));
    }
    const double megabytes = static_cast<double>(text.size()) / 1e6;
    std::printf("%-28s %6.2f MB %8d rows  check and list %8.2f ms  painting %6.2f ms\n", what, megabytes,
                list->model()->rowCount(), check, paint);
}

void MeasureSizes(const char* what, const QString& piece) {
    for (const qsizetype size : {100'000, 1'000'000, 4'000'000}) {
        Measure(what, piece.repeated(size / piece.size()));
    }
}

} // namespace

int main(int argc, char** argv) {
    QApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QApplication application(argc, argv);
    const QTemporaryDir folder; // for the settings that the start writes
    Files::SetProgramDirectory(Files::FromSystem(folder.path()),
                               Files::FromSystem(QStringLiteral(SORVANE_SOURCE_DIR "/data")));
    Wiring::WireWindows();
    Shared<Frm_Main>();
    Global::StartPending = false;
    Global::AutoProjectManager = false;
    Documents::CreateNewTextFile();
    Shared<Frm_DeBug>().Present();
    const QString section =
        u"<h2 id=\"a\">Beet</h2>\r\n<p>Im <b>März</b> säen wir <i>Zwiebeln</i>, mehr auf der "
        "<a href=\"b.htm\">nächsten Seite</a>.<br>\r\n<img src=\"b.jpg\" alt=\"Beet\"></p>\r\n"_s;
    MeasureSizes("page without a fault", section);
    MeasureSizes("a fault in each section", section + u"<beet>\r\n"_s);
    MeasureSizes("nothing but faults", u"<beet>\r\n"_s);
    Wiring::UnloadAll();
}
