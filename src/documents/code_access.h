// SPDX-License-Identifier: MIT
// Routines that read and rewrite the page. Positions are one-based; all of them are linear in the text.
#pragma once

#include <QString>
#include <QStringList>

namespace HTMLAccess {

// The text between the first <title> and </title>, in its own case; empty when one of them is absent.
QString TitleOf(const QString& page);

} // namespace HTMLAccess

namespace RuntimeExtension {

bool IsDigit(QChar c); // 0 to 9
// Lowest position from `start` on that holds a digit 0 to 9; 0 if none.
qsizetype FirstDigitPos(qsizetype start, QStringView text);
// The first "," becomes "."; the others stay.
QString CommaToPoint(QString number);
// Whether the file can be opened for reading.
bool FileExists(const QString& path);
// The binary digits of `number` without its fraction; empty for 0 and below. Throws RuntimeError for a number
// that is not finite.
QString NumberToBinary(double number);
// Whether `text` is one of the entries, to the letter.
bool ComboHasItem(const QStringList& entries, const QString& text);

} // namespace RuntimeExtension

namespace Library {

// `text` without that character.
QString RemoveChar(QString text, QChar character);

} // namespace Library

namespace CodeAccess {

// Selects the first occurrence of `link` in the code box, in any case, and brings the code window to the
// front; tells in a message when there is none.
void GoToLink(const QString& link);

// Upper and lower case for the document's text, the length kept. A character that the document's code page
// holds stays as it is when its other case has no byte there: no change of case makes another file of it.
QString UpperCase(QStringView text);
QString LowerCase(QStringView text);

// Writes the names of all known tags of `page` in lower or upper case, in place, and returns it. Takes an
// undo copy. A name that is merely part of a known one counts as known, and attributes are never touched;
// both are meant.
QString LowerCaseTags(QString& page);
QString UpperCaseTags(QString& page);

// Inserts the closing tag of the nearest open tag at or before `position` in the code box; tags that need
// none are passed over. Does nothing behind a closing tag, inside a tag, or behind one that is still open
// there. There is no depth count.
void CloseOpenTag(double position);

enum class Calculation { Sum = 1, Average = 2, Count = 3 };
// Sum, average or count of the numbers in `text`, with point or comma; rounded to 3 places. The average of no
// numbers is 0. Digits that no number can hold count as none.
double CalculateSelection(const QString& text, Calculation mode);

// Writes `prefix` before each number of the selection. The selection that it looks at lags one insertion
// behind: that is meant.
void ManipulateNumbers(const QString& prefix);

// Names of the functions and of the variables that `text` declares, each once, in their order. Comments and
// strings count like code: that is meant.
QStringList ScanFunctions(const QString& text);
QStringList ScanVariables(const QString& text);

} // namespace CodeAccess
