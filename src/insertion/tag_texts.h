// SPDX-License-Identifier: MIT
// What the tag tool and the characters tool insert.
#pragma once

#include <QString>
#include <span>

namespace TagTexts {

// A tool button: its key, its tip (the wordings stand as they are, misspellings included) and its icon.
struct Button {
    QStringView key;
    QStringView tip;
    QStringView icon;
};
std::span<const Button> TagButtons();
std::span<const Button> CharacterButtons();

struct Pair {
    QString before;
    QString after;
};
// The texts in front of and behind the selection for a key of the tag tool; both empty for an unknown one.
// `docType` as in Global::DocType: empty elements are written as the document type wants them.
Pair PairFor(QStringView key, const QString& docType);
// The entity for a key of the characters tool; empty for an unknown one.
QString EntityFor(QStringView key);

} // namespace TagTexts
