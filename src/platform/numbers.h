// SPDX-License-Identifier: MIT
// Reading and writing the numbers and truth values of settings and messages.
#pragma once

#include <QString>
#include <QStringView>
#include <cstdint>

namespace Numbers {

// The truth value of `text`: the words True and False in any case, or a number (0 is false, any other true).
// Throws RuntimeError for anything else, also for an empty text.
bool ReadBoolean(QStringView text);

// The number that the whole of `text` stands for, with the decimal point. Throws RuntimeError when it is
// none.
double ReadNumber(QStringView text);

// The same as a 16-bit integer, halves rounded to the even neighbour. Throws RuntimeError outside its range.
std::int16_t ReadInteger(QStringView text);

// True for a text that reads TRUE in upper case; never fails.
bool ParseBoolean(QStringView text);

// "True" or "False", as settings and list files hold them.
QString TruthWord(bool value);

// `value` in the system's number format, with up to 3 decimal places and no needless zeros.
QString ForMessage(double value);

} // namespace Numbers
