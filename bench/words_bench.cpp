// SPDX-License-Identifier: MIT
// The spelling check and the class list: processor time for pages of words with the shipped word file, for
// loading that file, and for a page with ten style sheets of 100 KB. Growth is from one size to the next.
// Usage: words_bench
#include "milliseconds.h"
#include "platform/code_page.h"
#include "platform/files.h"
#include "platform/literals.h"
#include "texttools/class_list.h"
#include "texttools/spelling.h"

#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <optional>

namespace {

constexpr double Megabyte = 1'000'000;

// The least of five runs.
double Best(const std::function<void()>& work) {
    double best = ProcessorMilliseconds(work);
    for (int round = 0; round < 4; ++round) best = std::min(best, ProcessorMilliseconds(work));
    return best;
}

void PrintRow(const char* what, double size, double time, std::optional<double> before = {}) {
    std::printf("%-40s %6.1f %9.2f", what, size / Megabyte, time);
    if (before) std::printf(" %7.1f", time / *before);
    std::printf("\n");
}

// Measures `work` on a text of 0.1, 1 and 10 MB made of `piece` over and over.
void Grow(const char* what, const QString& piece, const std::function<void(const QString&)>& work) {
    std::optional<double> before;
    for (const double size : {0.1 * Megabyte, Megabyte, 10 * Megabyte}) {
        const QString text = piece.repeated(static_cast<qsizetype>(size) / piece.size() + 1)
                                 .first(static_cast<qsizetype>(size));
        const double time = Best([&] { work(text); });
        PrintRow(what, size, time, before);
        before = time;
    }
}

void MeasureSpelling() {
    const QString path = Files::FromSystem(QStringLiteral(SORVANE_SOURCE_DIR "/data/german.wds"));
    const QString words = Files::ReadProgramText(path).value();
    PrintRow("load the word file", double(words.size()),
             Best([&] { Spelling::WordList{Files::ReadProgramText(path).value()}; }));
    const Spelling::WordList list(words);
    const auto check = [&](const QString& page) {
        Spelling::Unknown(Spelling::WithoutTags(page).text, list);
    };
    Grow("spelling, words of the file", words, check);
    Grow("spelling, a page",
         u"<p>Der Verein lädt ein:\tam <b>Samstag</b> wird gepflanzt,\r\nam Xonntag "
         "gefeiert.</p>\r\n"_s,
         check);
    Grow("spelling, unknown words alone", u"Qwertz "_s, check);
}

// A style sheet of so many bytes; the names of two sheets differ.
QByteArray Sheet(int number, qsizetype size) {
    QByteArray sheet;
    for (int rule = 0; sheet.size() < size; ++rule) {
        const QByteArray name = QByteArray::number(number) + '-' + QByteArray::number(rule);
        sheet += "p.klasse" + name + ":hover, #kopf" + name +
                 " { color: #fff; margin: 1.5em; background: url(bild.png) }\r\n";
    }
    return sheet;
}

void MeasureClasses() {
    std::optional<double> before;
    for (const qsizetype size : {10'000, 100'000, 1'000'000}) {
        const QTemporaryDir folder;
        const auto write = [&](const QString& name, const QByteArray& bytes) {
            const QString path = Files::FromSystem(folder.filePath(name));
            Files::Write(path, bytes);
            return path;
        };
        QByteArray page = "<html><head>\r\n";
        for (int number = 0; number < 10; ++number) {
            write(u"blatt%1.css"_s.arg(number), Sheet(number, size));
            page += "<link rel=\"stylesheet\" href=\"blatt" + QByteArray::number(number) + ".css\">\r\n";
        }
        const QString path = write(u"seite.htm"_s, page);
        const double time = Best([&] { ClassList::InFile(path); });
        PrintRow("class list, ten sheets", 10 * double(size), time, before);
        before = time;
    }
}

} // namespace

int main() {
    std::printf("%-40s %6s %9s %7s\n", "processor time", "MB", "ms", "growth");
    MeasureSpelling();
    MeasureClasses();
    return 0;
}
