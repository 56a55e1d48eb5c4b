// SPDX-License-Identifier: MIT
// Opening, typing, changing tags and saving at three sizes, in the real program: processor time, and its
// growth from size to size. A typed character is counted from the key to the painted window, with both its
// undo copies. Then Ctrl+E and word completion on texts made for them.
#include "documents/code_access.h"
#include "documents/document_commands.h"
#include "documents/frm_code.h"
#include "documents/text_buffer.h"
#include "milliseconds.h"
#include "platform/literals.h"
#include "program.h"
#include "shell/frm_main.h"
#include "state/global.h"
#include "state/neighbours.h"

#include <cstdio>
#include <vector>

namespace {

QByteArray RealisticPage(int bytes) {
    QByteArray page = "<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.01 Transitional//EN\">\r\n<html><body>\r\n";
    const QByteArray block = "<TABLE border=\"0\" width=\"100%\">\r\n  <TR>\r\n    <TD class=\"preis\">Gr\xFC"
                             "ner Salat"
                             "</TD>\r\n    <TD align=\"right\">1,50&nbsp;EUR</TD>\r\n  </TR>\r\n</TABLE>\r\n"
                             "<p>Der Verein l\xE4"
                             "dt ein: am Samstag wird gepflanzt, am Sonntag gefeiert.<br>\r\n";
    while (page.size() < bytes) page += block;
    return page + "</body></html>\r\n";
}

struct Row {
    const char* name;
    std::vector<double> times;
};

void Print(const Row& row) {
    std::printf("%-28s", row.name);
    for (const double time : row.times) std::printf("%12.2f", time);
    for (size_t i = 1; i < row.times.size(); ++i) std::printf("%9.1f", row.times[i] / row.times[i - 1]);
    std::printf("\n");
}

// Ctrl+E at the end of a text of that many characters.
double CloseTag(const QString& piece, const QString& end, int size) {
    TextBuffer box(piece.repeated(size / piece.size()) + end);
    Neighbours::TheCodeBox.AnsweredBy([&box] { return &box; });
    const auto caret = static_cast<double>(box.Text().size());
    const double time = ProcessorMilliseconds([&] { CodeAccess::CloseOpenTag(caret); });
    Neighbours::TheCodeBox.AnsweredBy([] { return Shared<Frm_Code>().TextBox; });
    return time;
}

// Control+Space behind the letter that so many words begin with, to the painted list.
double CompleteWord(int words) {
    QString text = u" "_s;
    for (int i = 0; i < words; ++i) {
        text += u'w';
        for (int rest = i; rest > 0; rest /= 26) text += QChar(u'a' + rest % 26);
        text += i % 10 == 9 ? u"\r\n"_s : u" "_s;
    }
    Txt_Code& box = *Shared<Frm_Code>().TextBox;
    box.SetText(text + u"w ");
    box.SetSelStart(box.Text().size() - 1);
    QCoreApplication::processEvents();
    const double time = ProcessorMilliseconds([] {
        Neighbours::OpenAutoWord(0);
        QCoreApplication::processEvents();
    });
    Neighbours::HidePopupList();
    return time;
}

void MeasureAids() {
    Row skipped{"Ctrl+E behind <br>", {}}, open{"Ctrl+E behind <br , one >", {}},
        ordinary{"Ctrl+E behind <b>", {}}, words{"word completion", {}};
    for (const int size : {100'000, 400'000, 1'600'000}) {
        skipped.times.push_back(CloseTag(u"<br>"_s, {}, size));
        open.times.push_back(CloseTag(u"<br "_s, u">"_s, size));
        ordinary.times.push_back(CloseTag(u"<b>x</b>"_s, u"<b>"_s, size));
        words.times.push_back(CompleteWord(size / 40));
    }
    std::printf("Processor milliseconds                0.1 MB      0.4 MB      1.6 MB   growth\n");
    for (const Row& row : {skipped, open, ordinary}) Print(row);
    std::printf("                                 2,500 words      10,000      40,000\n");
    Print(words);
}

} // namespace

int main(int argc, char** argv) {
    const BenchProgram program(argc, argv);
    const ProgramFolder& folder = program.folder;
    Row open{"open to painted", {}}, key{"typed character, in the middle", {}}, undo{"undo step", {}},
        lower{"LowerCaseTags", {}}, save{"save", {}};
    for (const int size : {100'000, 1'000'000, 10'000'000}) {
        const QString path = folder.Write(u"seite.htm"_s, RealisticPage(size));
        open.times.push_back(ProcessorMilliseconds([&] {
            Documents::OpenFile(path);
            QCoreApplication::processEvents();
        }));
        Txt_Code& box = *Shared<Frm_Code>().TextBox;
        box.SetSelStart(box.Text().size() / 2);
        QCoreApplication::processEvents();
        constexpr int Keys = 50;
        Driver::TypeCode(u"x"_s);
        key.times.push_back(ProcessorMilliseconds([&] {
                                for (int i = 0; i < Keys; ++i) Driver::TypeCode(i % 10 ? u"x"_s : u"<"_s);
                            }) /
                            Keys);
        constexpr int Steps = 10;
        undo.times.push_back(ProcessorMilliseconds([&] {
                                 for (int i = 0; i < Steps; ++i) Driver::Trigger(u"Menu_Edit_Undo"_s);
                             }) /
                             Steps);
        lower.times.push_back(ProcessorMilliseconds([&] {
            QString page = box.Text();
            CodeAccess::LowerCaseTags(page);
        }));
        save.times.push_back(ProcessorMilliseconds([] { Documents::Menu_File_Save_Click(); }));
    }
    std::printf("Processor milliseconds                0.1 MB        1 MB       10 MB   growth\n");
    for (const Row& row : {open, key, undo, lower, save}) Print(row);
    MeasureAids();
    return 0;
}
