// SPDX-License-Identifier: MIT
#include "platform/numbers.h"

#include "platform/text.h"

#include <QLocale>
#include <cmath>
#include <limits>

namespace Numbers {

double ReadNumber(QStringView text) {
    bool ok = false;
    const double number = text.trimmed().toDouble(&ok);
    if (!ok || !std::isfinite(number)) throw RuntimeError("not a number");
    return number;
}

bool ReadBoolean(QStringView text) {
    const QStringView word = text.trimmed();
    if (Text::EqualIgnoringCase(word, u"True")) return true;
    if (Text::EqualIgnoringCase(word, u"False")) return false;
    return ReadNumber(word) != 0;
}

std::int16_t ReadInteger(QStringView text) {
    const double number = std::nearbyint(ReadNumber(text));
    using Limits = std::numeric_limits<std::int16_t>;
    if (number < Limits::min() || number > Limits::max()) throw RuntimeError("number out of range");
    return static_cast<std::int16_t>(number);
}

bool ParseBoolean(QStringView text) { return Text::EqualIgnoringCase(text, u"TRUE"); }

QString TruthWord(bool value) { return value ? u"True"_s : u"False"_s; }

QString ForMessage(double value) {
    QString plain = QString::number(value, 'f', 3);
    while (plain.endsWith(u'0')) plain.chop(1);
    if (plain.endsWith(u'.')) plain.chop(1);
    if (plain == u"-0") plain = u"0"_s;
    return plain.replace(u'.', QLocale().decimalPoint());
}

} // namespace Numbers
