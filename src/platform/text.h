// SPDX-License-Identifier: MIT
// Text routines with one-based positions, as all routines on the document's text count.
#pragma once

#include "platform/literals.h"

#include <QString>
#include <QStringView>
#include <stdexcept>
#include <utility>

// A statement that cannot be carried out (a position below 1, a negative length). Routines that are meant to
// pass over such a statement wrap it in Attempt().
class RuntimeError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// Runs `statement` and passes over its RuntimeError; returns whether it ran to its end. Every other exception
// is a fault of the program and goes on.
template<class Statement> bool Attempt(Statement&& statement) {
    try {
        std::forward<Statement>(statement)();
        return true;
    } catch (const RuntimeError&) {
        return false;
    }
}

namespace Text {

inline constexpr QStringView LineBreak = u"\r\n";

// One-based position of the first `needle` in `text` that begins at `start` or behind it; 0 when there is
// none. An empty needle is found at `start`. Throws RuntimeError for a start below 1.
qsizetype Find(QStringView text, QStringView needle, qsizetype start = 1);

// One-based position of the last `needle` that lies wholly within the first `start` characters of `text`; 0
// when there is none. A start behind the end counts as the end. Throws RuntimeError for a start below 1.
qsizetype FindBack(QStringView text, QStringView needle, qsizetype start);

// `length` characters of `text` from the one-based `start`; fewer where the text ends before. Throws
// RuntimeError for a start below 1 or a negative length.
QStringView Middle(QStringView text, qsizetype start, qsizetype length);
// The characters of `text` from the one-based `start` to the end. Throws RuntimeError for a start below 1.
QStringView From(QStringView text, qsizetype start);
// The first `length` characters. Throws RuntimeError for a negative length.
QStringView Left(QStringView text, qsizetype length);

// Writes `replacement` over as many characters of `text` from the one-based `start`; what would reach beyond
// the end is dropped. Throws RuntimeError for a start outside the text.
void Overwrite(QString& text, qsizetype start, QStringView replacement);

// Upper and lower case that keep the length, so that positions hold in both forms ("ß" stays "ß").
QString UpperCase(QStringView text);
QString LowerCase(QStringView text);
// The same for one UTF-16 unit.
QChar UpperCase(QChar character);
QChar LowerCase(QChar character);

// Whether both are equal when turned to upper case.
bool EqualIgnoringCase(QStringView a, QStringView b);

// Number of characters that both texts begin with, and end with, alike.
qsizetype CommonPrefix(QStringView a, QStringView b);
qsizetype CommonSuffix(QStringView a, QStringView b);

// `text` with every lone CR or LF turned into CR LF.
QString WithFullLineBreaks(QStringView text);
// Whether `text` holds no CR or LF but in the pair CR LF.
bool HasOnlyFullLineBreaks(QStringView text);

// The number at the start of `text`, behind blanks: an optional sign, digits and one decimal point. 0 when
// the text does not begin with one.
double LeadingNumber(QStringView text);

// First occurrence of one needle at or behind a position that never decreases from call to call. All calls
// together pass over the text once, so a scan that asks it at every step stays linear.
class Finder {
public:
    // `text` and `needle` must outlive the finder.
    Finder(QStringView text, QStringView needle) : m_text(text), m_needle(needle) {}
    // One-based position of the first needle at or behind the one-based `start`; 0 when there is none.
    qsizetype From(qsizetype start);

private:
    QStringView m_text;
    QStringView m_needle;
    qsizetype m_hit = 0; // last answer; 0 before the first call
    bool m_ended = false;
};

} // namespace Text
