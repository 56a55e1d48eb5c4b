// SPDX-License-Identifier: MIT
// Characters that the text widget's document takes for its own marks. They stand in it as lone surrogates,
// which no well-formed text holds.
#pragma once

#include <QString>

namespace DocumentCharacters {

// `text` with line breaks CR LF as the document takes it: LF, and its own marks hidden.
QString Hidden(const QString& text);
// A piece of the document as text again, with CR LF.
QString Shown(QStringView raw);

} // namespace DocumentCharacters
