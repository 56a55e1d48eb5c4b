// SPDX-License-Identifier: MIT
// The German special characters of a text as entities, and back.
#pragma once

#include <QString>

namespace UmlautCorrection {

// ä, ö, ü, Ä, Ö and ß become their entities. The first Ü, at the one-based position p of n characters,
// becomes n - p + 1 times "&", the Ü, and as many times "uml;"; every later one stays. This is meant.
QString Encode(const QString& text);
// The seven entities become their characters; the search minds the case.
QString Decode(QString text);
// By how many characters the first Ü of the text grows when it is encoded; 0 when there is none.
qsizetype GrowthOfCapitalUe(const QString& text);

} // namespace UmlautCorrection

namespace CodeAccess {

// Writes `newText` over `length` characters of the document's text behind its first `start` ones. What stands
// before and behind them is kept in Global::TextBeforeSelection and TextAfterSelection. The caret comes to
// the start of the text.
void ReplaceCodeRange(const QString& newText, qsizetype start, qsizetype length);

} // namespace CodeAccess
