// SPDX-License-Identifier: MIT
#include "debugger/css_value.h"

#include "platform/text.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace Debugger {

namespace {

bool IsBlank(QStringView value) {
    return std::all_of(value.begin(), value.end(), [](QChar c) { return c == u' '; });
}

// Whether the value is a number other than 0 and nothing else. Told by the length alone, and meant so: it is
// that of the number as it is printed, which has seven digits at most.
bool IsBareNumber(QStringView value) {
    constexpr int Digits = 7;
    constexpr qsizetype LongestPrinted = 13; // sign, digits, point and exponent
    if (value.isEmpty() || value.size() > LongestPrinted) return false;
    const auto isDigit = [](QChar c) { return c >= u'0' && c <= u'9'; };
    const auto* const number =
        std::find_if(value.begin(), value.end(), [](QChar c) { return c != u' ' && c != u'\t'; });
    const auto* const rest = std::find_if_not(number, value.end(), isDigit);
    const qsizetype digits = rest - number;
    // The usual values, an integer with or without a unit and a word, need no conversion.
    const bool isPlain = rest == value.end() || *rest != u'.';
    if (digits > 0 && digits <= Digits && isPlain && *number != u'0') return digits == value.size();
    if (digits == 0 && isPlain && (rest == value.end() || (*rest != u'-' && *rest != u'+'))) return false;
    const double read = static_cast<float>(Text::LeadingNumber(value));
    return read != 0 && value.size() == QString::number(read, 'g', Digits).size();
}

// The counter of warnings ends at the largest 16-bit number, and that is meant: a warning beyond it has its
// row, but instead of being counted it is reported as a fault of the check. Errors have no such end.
void CountWarning(Report& report) {
    constexpr qsizetype MostWarnings = std::numeric_limits<std::int16_t>::max();
    if (report.counts.cssWarnings < MostWarnings) {
        ++report.counts.cssWarnings;
    } else {
        report.Add(ReportIcon::Error, IndentedFaultText);
    }
}

} // namespace

void CSSValue::Set(QStringView value) {
    const bool bareNumber = IsBareNumber(value);
    const bool isBlank = IsBlank(value);
    const bool blankInFront = !isBlank && value.startsWith(u' ');
    m_overruns = false;
    m_isMissing = isBlank;
    m_marker = bareNumber || blankInFront || isBlank ? value.toString() : QString();
    m_unitMissing.clear();
    m_blankInFront.clear();
    if (bareNumber) {
        m_unitMissing = u"     Es wurde keine Einheit für den Wert '"_s + m_marker + u"' eingegeben."_s;
    }
    if (blankInFront) {
        m_blankInFront =
            u"     Zwischen dem Doppelpunkt und dem Wert '"_s + m_marker + u"' steht ein Leerzeichen."_s;
    }
}

void CSSValue::Report(Debugger::Report& report, qsizetype position) const {
    if (!m_unitMissing.isEmpty()) {
        CountWarning(report);
        report.Add(ReportIcon::Alert, m_unitMissing, m_marker, position);
    }
    if (!m_blankInFront.isEmpty()) {
        CountWarning(report);
        report.Add(ReportIcon::Alert, m_blankInFront, m_marker, position);
    }
    if (m_isMissing) {
        ++report.counts.cssErrors;
        report.Add(ReportIcon::Error, u"     Es ist kein Wert eingetragen."_s, m_marker, position);
    }
}

} // namespace Debugger
