// SPDX-License-Identifier: MIT
// The link to a ready-made style sheet in the head of the page.
#pragma once

#include <QString>

class CodeBox;

namespace DesignLink {

enum class Outcome { Written, NoHead, BrokenHead };
// Writes the import of the style sheet `target` behind the head tag of the page, one character behind its
// ">": between the CR and the LF of a normal line end, which is the required spot. The page is the open
// document, `page` its path; an empty one leaves the target as it is. Takes no undo copy.
Outcome Write(CodeBox& box, const QString& target, const QString& page);

} // namespace DesignLink
