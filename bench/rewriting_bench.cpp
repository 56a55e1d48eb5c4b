// SPDX-License-Identifier: MIT
// Umlauts both ways, comments and packing at three sizes: the logic alone, and through the real code box,
// with the undo copies, to the painted code. Processor time, and its growth.
//
// Usage: QT_QPA_PLATFORM=offscreen rewriting_bench
#include "documents/document_commands.h"
#include "documents/frm_code.h"
#include "documents/undo.h"
#include "milliseconds.h"
#include "platform/literals.h"
#include "program.h"
#include "state/global.h"
#include "state/neighbours.h"
#include "texttools/code_packing.h"
#include "texttools/umlaut_correction.h"

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

struct Tool {
    const char* name;
    QString (*rewrite)(const QString&);
    void (*command)();
    const char* block; // Windows-1252; the page is made of it
};

// A hundred characters, one umlaut or comment each: a page of 10 MB holds 100,000 of them.
constexpr char PlainBlock[] =
    "<p>Der Verein l\xE4"
    "dt alle ein: am Samstag wird <b>gepflanzt</b>, am Sonntag im Garten gefeiert!!</p>\r\n";
constexpr char CodedBlock[] =
    "<p>Der Verein l&auml;dt alle ein: am Samstag <b>gepflanzt</b>, am Sonntag im Garten "
    "gefeiert!!</p>\r\n";
constexpr char CommentBlock[] =
    "<p>Der Verein l&auml;dt alle ein:<!-- noch zu pr&uuml;fen -->\r\n\t\tam Samstag    "
    "<b>pflanzen</b></p>\r\n";

QString Decode(const QString& text) { return UmlautCorrection::Decode(text); }
QString Strip(const QString& text) { return CodePacking::WithoutComments(text).text; }
QString Pack(const QString& text) { return CodePacking::InOneLine(Strip(text)); }

// The whole page in the code box by way of `rewrite`.
template<QString (*rewrite)(const QString&)> void RewriteCode() {
    const QString text = Neighbours::TheCodeBox()->Text();
    Undo::PushUndo();
    CodeAccess::ReplaceCodeRange(rewrite(text), 0, text.size());
}

const Tool Tools[] = {
    {"umlauts to entities", UmlautCorrection::Encode, RewriteCode<UmlautCorrection::Encode>, PlainBlock},
    {"entities to umlauts", Decode, RewriteCode<Decode>, CodedBlock},
    {"comments", Strip,
     [] {
         Undo::PushUndo();
         CodeAccess::DeleteComments();
     },
     CommentBlock},
    {"packing", Pack, CodeAccess::ScrambleCode, CommentBlock}};

using Times = std::vector<double>;

// The least of five runs.
double Best(const std::function<double()>& run) { return std::min({run(), run(), run(), run(), run()}); }

void Print(const char* what, const char* where, const Times& times) {
    std::printf("%-22s%-10s", what, where);
    for (const double time : times) std::printf("%11.1f", time);
    for (size_t i = 1; i < times.size(); ++i) std::printf("%8.1f", times[i] / times[i - 1]);
    std::printf("\n");
}

// From the command on the open page to the painted code.
double ThroughTheBox(const Tool& tool) {
    return ProcessorMilliseconds([&] {
        tool.command();
        QCoreApplication::processEvents();
    });
}

} // namespace

int main(int argc, char** argv) {
    const BenchProgram program(argc, argv);
    const ProgramFolder& folder = program.folder;
    std::printf("Processor milliseconds               0.1 MB       1 MB      10 MB  growth\n");
    for (const Tool& tool : Tools) {
        Times logic, box;
        for (const int size : {100'000, 1'000'000, 10'000'000}) {
            const QByteArray block(tool.block);
            const QString path = folder.Write(u"seite.htm"_s, block.repeated(int(size / block.size())));
            const auto open = [&] {
                Documents::OpenFile(path);
                QCoreApplication::processEvents();
            };
            open();
            const QString text = Shared<Frm_Code>().TextBox->Text();
            logic.push_back(Best([&] { return ProcessorMilliseconds([&] { tool.rewrite(text); }); }));
            box.push_back(Best([&] {
                open();
                return ThroughTheBox(tool);
            }));
        }
        Print(tool.name, "alone", logic);
        Print("", "code box", box);
    }
    return 0;
}
