// SPDX-License-Identifier: MIT
// The WAP simulation: copies the site of a WML page to the scratch folder and turns its decks into pages that
// a browser shows. No WML is interpreted: the first card of a deck becomes the body of a page.
#pragma once

#include <QString>

namespace WAPBrowser {

// The page of a deck: its first card, with links to decks turned into links to their pages. A text without a
// card comes back as it is.
QString PageOf(const QString& deck);

// Writes the page of the copied deck or page `path` beside it, with the ending "htm", in its encoding; a deck
// (".wml") is removed. Other files stay as they are. Returns whether the file could be read and written.
bool ConvertWmlFile(const QString& path);

// Where the copies lie, with "\" at its end.
QString ScratchFolder();

// The page of the current document in the scratch folder.
QString StartPage();

// Copies and converts the site of the current document; files that cannot be copied or converted are passed
// over. Events run in between. Returns whether the document is still the one that was converted.
bool GenerateWAPPreview();

} // namespace WAPBrowser
