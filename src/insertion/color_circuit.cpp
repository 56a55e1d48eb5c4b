// SPDX-License-Identifier: MIT
#include "insertion/color_circuit.h"

#include "platform/literals.h"

namespace ColorCircuit {

namespace {
constexpr Color All[] = {
    {u"Rot", u"FF0000"},     {u"Orange", u"FF9900"},   {u"Gelb", u"FFFF00"},     {u"Gelbgrün", u"99FF00"},
    {u"Grün", u"00FF00"},    {u"Blaugrün", u"00FF99"}, {u"Cyan", u"00FFFF"},     {u"Hellblau", u"0099FF"},
    {u"Blau", u"0000FF"},    {u"Violett", u"9900FF"},  {u"Magenta", u"FF00FF"},  {u"Purpur", u"FF0099"},
    {u"Schwarz", u"000000"}, {u"Weiß", u"FFFFFF"},     {u"Hellgrau", u"999999"}, {u"Grau", u"666666"}};
} // namespace

std::span<const Color> Colors() { return All; }

QString Hex(int red, int green, int blue) {
    const int value = red << 16 | green << 8 | blue;
    return u'#' + QString::number(value, 16).rightJustified(6, u'0').toUpper();
}

} // namespace ColorCircuit
