// SPDX-License-Identifier: MIT
// The tool windows beside a page of a megabyte: from the command to the painted window (wall clock), and an
// insertion in the middle of the page, with its undo copies, to the painted code (processor time).
// Usage: QT_QPA_PLATFORM=offscreen insertion_bench
#include "documents/document_commands.h"
#include "documents/frm_code.h"
#include "milliseconds.h"
#include "platform/literals.h"
#include "program.h"
#include "state/global.h"

#include <algorithm>
#include <cstdio>

namespace {

// The least of five runs, and the first one, which also loads icons and lists.
void Print(const char* what, const std::function<double()>& run) {
    const double first = run();
    double best = first;
    for (int round = 0; round < 4; ++round) best = std::min(best, run());
    std::printf("%-44s %8.2f %8.2f\n", what, first, best);
}

void MeasureWindow(const char* what, const QString& command) {
    Print(what, [&] {
        const double time = WallMilliseconds([&] {
            Driver::Trigger(command);
            QCoreApplication::processEvents();
        });
        Driver::Trigger(u"Menu_View_CloseTools"_s);
        QCoreApplication::processEvents();
        return time;
    });
}

void MeasureInsertion(const char* what, const QString& button, int selected) {
    Txt_Code& box = *Shared<Frm_Code>().TextBox;
    Print(what, [&] {
        box.SetSelStart(static_cast<double>(box.Text().size()) / 2);
        box.SetSelLength(selected);
        QCoreApplication::processEvents();
        return ProcessorMilliseconds([&] {
            Driver::Click(button);
            QCoreApplication::processEvents();
        });
    });
}

} // namespace

int main(int argc, char** argv) {
    const BenchProgram program(argc, argv);
    const ProgramFolder& folder = program.folder;
    const QByteArray line = "<p>Der Verein l\xE4"
                            "dt ein: am Samstag wird <b>gepflanzt</b>, am Sonntag gefeiert.</p>\r\n";
    Documents::OpenFile(folder.Write(u"seite.htm"_s, line.repeated(int(1'000'000 / line.size()))));
    QCoreApplication::processEvents();
    std::printf("milliseconds                                    first     best\n");
    MeasureWindow("window Tags", u"Menu_View_TagTools"_s);
    MeasureWindow("window Farbe (RGB)", u"Menu_View_ColorStandard"_s);
    MeasureWindow("window Farbe (KCC)", u"Menu_View_ColorKCC"_s);
    MeasureWindow("window Sonderzeichen", u"Menu_View_Character"_s);
    MeasureWindow("window ScriptEvents", u"Menu_View_Events"_s);
    Driver::Trigger(u"Menu_View_TagTools"_s);
    MeasureInsertion("pair of tags around a word, 1 MB", u"Tlb_Tag_Bold"_s, 4);
    MeasureInsertion("pair of tags around 20,000 characters, 1 MB", u"Tlb_Tag_Pre"_s, 20'000);
    MeasureInsertion("line break, 1 MB", u"Tlb_Tag_Break"_s, 0);
    return 0;
}
