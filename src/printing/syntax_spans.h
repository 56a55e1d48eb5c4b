// SPDX-License-Identifier: MIT
// The colours of a page's syntax, for paper and its preview; the code box itself is never coloured.
#pragma once

#include <QString>
#include <QStringView>
#include <functional>
#include <vector>

namespace SyntaxSpans {

// Red, green and blue of what is coloured, as 0xRRGGBB.
enum class Colour : unsigned { Text = 0x000000, Comment = 0xC0C0C0, Tag = 0x0000C0, String = 0x808000 };

// Small, since a page holds many of them.
struct Span {
    Span(qsizetype from, qsizetype characters, Colour in, bool isBold = false, bool isItalic = false)
        : start(static_cast<int>(from)), length(static_cast<int>(characters)), colour(in), bold(isBold),
          italic(isItalic) {}
    qsizetype End() const { return qsizetype(start) + length; }

    int start; // in characters, from 0
    int length;
    Colour colour;
    bool bold;
    bool italic;
};

// A text with its colours: spans in their order, none over another. What lies between them is plain and
// black.
struct ColouredText {
    QString text;
    std::vector<Span> spans;
};

// Whether tags are coloured in a file of that path; in style sheets and scripts only texts in quotes are.
bool HasTags(const QString& path);

// Told how much is done, of 1; answers whether to go on.
using Progress = std::function<bool(double done)>;

// The spans of `text` behind its first `head` characters, in one pass for the tags and comments and one for
// the texts in double quotes, whose colour wins over that of the tag or comment around them. A comment
// without an end, and the last one of an odd number of quotes, reach to the end of the text. Nothing when
// `progress` has ended it.
std::vector<Span> Find(QStringView text, qsizetype head, bool tags, const Progress& progress = {});

} // namespace SyntaxSpans
