// SPDX-License-Identifier: MIT
// Taking out of a page what a browser does not need.
#pragma once

#include <QString>

namespace CodePacking {

struct Stripped {
    QString text;
    bool whole = true; // false: a comment had no end; it and all behind it is left as it was
};
// `text` without its comments. One that stands right behind an opening tag of a script or a style stays: of
// what precedes it, the nearest "<" decides alone. Of two comments that follow each other without a gap the
// second stays. Both are meant.
Stripped WithoutComments(const QString& text);

// `text` in one line: line ends and tabs become blanks, and runs of blanks one blank. Scripts and
// preformatted text are packed like all else.
QString InOneLine(const QString& text);

} // namespace CodePacking

namespace CodeAccess {

// Both rewrite the document. Where a comment has no end a message tells so, and nothing behind it is touched.
// Takes the comments out; no undo copy of its own.
void DeleteComments();
// Takes the comments out and packs the page into one line, as one undo step; nothing without a document
// window.
void ScrambleCode();

} // namespace CodeAccess
