// SPDX-License-Identifier: MIT
// Search and replace in pages of three sizes, in the document window's code box and in a plain buffer: the
// last hit, and replace-all with a hit every hundred bytes. Processor time, the least of three runs; behind
// it the growth from size to size, which is 10 where the cost is proportional to the text.
// Usage: QT_QPA_PLATFORM=offscreen search_bench [folder, into which the pages are written as pageN.htm]
#include "documents/document_commands.h"
#include "documents/frm_code.h"
#include "documents/text_buffer.h"
#include "milliseconds.h"
#include "platform/literals.h"
#include "program.h"
#include "state/global.h"
#include "texttools/search_run.h"

#include <QFile>
#include <algorithm>
#include <array>
#include <cstdio>

namespace {

constexpr std::array Hits{1'000, 10'000, 100'000};
const QString Wanted = u"Verein"_s;

QByteArray Page(int hits) {
    // a hundred bytes with one hit
    const QByteArray line = "<p>Der Verein l\xE4"
                            "dt ein: am Samstag wird <b>gepflanzt</b>, am Sonntag mit allen "
                            "Freunden gefeiert.</p>\r\n";
    return line.repeated(hits) + "<p>Letzter Treffer</p>\r\n";
}

struct Work {
    const char* name;
    SearchRun::Wanted wanted;
    bool replaceAll;
};

const std::array Works{Work{"last hit", {u"Letzter"_s, {}, true}, false},
                       Work{"last hit, any case", {u"LETZTER"_s, {}, false}, false},
                       Work{"replace-all, equal", {Wanted, u"Bezirk"_s, true}, true},
                       Work{"replace-all, longer", {Wanted, u"Gartenverein"_s, true}, true},
                       Work{"replace-all, shorter", {Wanted, u"Rat"_s, true}, true},
                       Work{"replace-all, longer, any case", {Wanted, u"Gartenverein"_s, false}, true}};

// To the end of the events that the work raises, the painting among them. What is done before, such as
// bringing the page back, does not count.
double Measure(CodeBox& box, const QString& page, const Work& work) {
    double best = 0;
    for (int round = 0; round < 3; ++round) {
        box.BeginDocument({}); // nothing is known yet of the page that comes
        box.BeginDocument(page);
        QCoreApplication::processEvents();
        const double time = ProcessorMilliseconds([&] {
            SearchRun run;
            if (work.replaceAll) {
                run.ReplaceAll(box, work.wanted, SearchRun::Range::WholeText);
            } else {
                run.Begin(box, SearchRun::Range::WholeText);
                run.FindNext(box, work.wanted);
            }
            QCoreApplication::processEvents();
        });
        best = round == 0 ? time : std::min(best, time);
    }
    return best;
}

// `prepare` gives the box that holds the page of that many hits.
void PrintTable(const char* title, const std::function<CodeBox&(int)>& prepare) {
    std::array<std::array<double, Hits.size()>, Works.size()> times;
    for (size_t size = 0; size < Hits.size(); ++size) {
        CodeBox& box = prepare(Hits[size]);
        const QString page = box.Text();
        for (size_t work = 0; work < Works.size(); ++work)
            times[work][size] = Measure(box, page, Works[work]);
    }
    std::printf("\n%-34s%10s%10s%10s%9s%9s\n", title, "0.1 MB", "1 MB", "10 MB", "growth", "growth");
    for (size_t work = 0; work < Works.size(); ++work) {
        const auto& [small, middle, large] = times[work];
        std::printf("%-34s%10.2f%10.2f%10.2f%9.1f%9.1f\n", Works[work].name, small, middle, large,
                    middle / small, large / middle);
    }
}

} // namespace

int main(int argc, char** argv) {
    const BenchProgram program(argc, argv);
    const ProgramFolder& folder = program.folder;
    if (argc > 1) {
        for (size_t size = 0; size < Hits.size(); ++size) {
            QFile file(u"%1/page%2.htm"_s.arg(QString::fromLocal8Bit(argv[1])).arg(size + 1));
            if (!file.open(QIODevice::WriteOnly) || file.write(Page(Hits[size])) < 0) return 1;
        }
    }
    std::printf("milliseconds\n");
    PrintTable("code box, to the painted code", [&](int hits) -> CodeBox& {
        Documents::OpenFile(folder.Write(u"seite.htm"_s, Page(hits)));
        return *Shared<Frm_Code>().TextBox;
    });
    TextBuffer buffer;
    PrintTable("plain buffer", [&](int hits) -> CodeBox& {
        buffer.SetText(QString::fromLatin1(Page(hits)));
        return buffer;
    });
    return 0;
}
