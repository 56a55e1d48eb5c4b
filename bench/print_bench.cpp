// SPDX-License-Identifier: MIT
// Paper and its preview at three sizes, for a page of many lines and the same in one line: the colouring
// alone, the preview from the command to the painted box, and the PDF, with its sheets and bytes. Wall time
// and its growth. Writes the page of 1 MB to print_bench.htm, to set another program beside it:
//   time enscript -Ehtml -o x.ps print_bench.htm
//
// Usage: QT_QPA_PLATFORM=offscreen print_bench
#include "documents/document_commands.h"
#include "documents/frm_code.h"
#include "milliseconds.h"
#include "platform/literals.h"
#include "printing/coloured_box.h"
#include "printing/frm_print.h"
#include "printing/frm_print_preview.h"
#include "program.h"

#include <QBuffer>
#include <QFile>
#include <QPdfWriter>
#include <algorithm>
#include <cstdio>

namespace {

constexpr char Block[] = "<p class=\"text\">Der Verein <b>l\xE4"
                         "dt</b> alle ein:<!-- noch \"offen\" --> am Samstag <br/>\r\n"
                         "\t<a href=\"programm.htm\" title=\"Programm\">zum Programm</a></p>\r\n";

void Print(const char* what, const std::vector<double>& times) {
    std::printf("%-28s", what);
    for (const double time : times) std::printf("%12.1f", time);
    for (size_t i = 1; i < times.size(); ++i) std::printf("%8.1f", times[i] / times[i - 1]);
    std::printf("\n");
}

double Best(const std::function<double()>& run) {
    double best = run();
    for (int i = 0; i < 4; ++i) best = std::min(best, run());
    return best;
}

double Colouring(const QString& text) {
    return Best([&] { return ProcessorMilliseconds([&] { SyntaxSpans::Find(text, 0, true); }); });
}

// From the window's coming up to its painted box.
double Preview(qsizetype size) {
    return WallMilliseconds([&] {
        auto& window = Shared<Frm_PrintPreView>();
        window.show();
        auto* box = window.findChild<Txt_Code*>();
        while (box->Text().size() < size) QCoreApplication::processEvents();
        box->grab();
        Unload<Frm_PrintPreView>();
    });
}

double Pdf(const QString& text, const char* name) {
    QBuffer file;
    const double time = WallMilliseconds([&] {
        SyntaxSpans::ColouredText page{text, {}};
        Frm_Print::GenerateSyntaxHighLights(page, {}, [] { return true; });
        file.open(QIODevice::WriteOnly);
        QPdfWriter writer(&file);
        writer.setPageSize(QPageSize(QPageSize::A4));
        writer.setResolution(600);
        Sheets::Print(writer, page, 10, 1, [](double) { return true; });
    });
    std::printf("  %s: %lld sheets, %lld KB\n", name,
                static_cast<long long>(file.data().count("/Type /Page\n")),
                static_cast<long long>(file.size() / 1000));
    return time;
}

} // namespace

int main(int argc, char** argv) {
    const BenchProgram program(argc, argv);
    for (const bool oneLine : {false, true}) {
        std::vector<double> colouring, preview, pdf;
        for (const int size : {100'000, 1'000'000, 10'000'000}) {
            QByteArray bytes = QByteArray(Block).repeated(int(size / (sizeof Block - 1)));
            if (oneLine) bytes.replace("\r\n", "  ");
            if (size == 1'000'000 && !oneLine) {
                QFile file(u"print_bench.htm"_s);
                if (file.open(QIODevice::WriteOnly)) file.write(bytes);
            }
            Documents::OpenFile(program.folder.Write(u"seite.htm"_s, bytes));
            QCoreApplication::processEvents();
            const QString text = Frm_Print::DocumentText();
            colouring.push_back(Colouring(text));
            preview.push_back(Best([&] { return Preview(text.size()); }));
            pdf.push_back(Pdf(text, size == 100'000 ? "0.1 MB" : size == 1'000'000 ? "1 MB" : "10 MB"));
        }
        std::printf("%-28s%12s%12s%12s  growth\n",
                    oneLine ? "in one line, milliseconds" : "many lines, milliseconds", "0.1 MB", "1 MB",
                    "10 MB");
        Print("colouring", colouring);
        Print("preview", preview);
        Print("PDF", pdf);
    }
    return 0;
}
