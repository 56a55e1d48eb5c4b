// SPDX-License-Identifier: MIT
// What goes on paper, and what its user may ask for.
#pragma once

#include <QString>

namespace PageText {

// The file's name on paper; "unbenannt" for a document without a path.
QString NameOf(const QString& path);

// What the head on top of the first page says of the file.
struct FileLine {
    QString path; // of the document; may be empty
    QString type;
    QString date; // as the system writes them
    QString time;
};

// The head: the line on the file, the user's own text, both or none. Each begins on a line of its own, the
// first one behind an empty line.
QString Head(const FileLine* file, const QString* own);
// The text on paper: the page's own below the head.
QString Whole(const QString& head, const QString& body);

// What the fields of the print window ask for, or why they cannot be taken.
struct Request {
    double fontSize = 0; // points
    int copies = 0;
    QString refusal; // what to tell the user; empty where all is well
};
Request Read(const QString& fontSize, const QString& copies);

} // namespace PageText
