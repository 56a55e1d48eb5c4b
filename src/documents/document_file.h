// SPDX-License-Identifier: MIT
// A document on disk: reading, writing, and what its bytes and its name tell of its type.
#pragma once

#include "platform/code_page.h"

#include <QString>
#include <optional>

namespace DocumentFile {

// Reads a document; nothing when it cannot be read. Line ends are made full ones.
std::optional<CodePage::Decoded> Load(const QString& path);

// The same without touching the line ends, for files that are no text.
std::optional<CodePage::Decoded> LoadRaw(const QString& path);

// Writes `text` followed by one CR LF in `format`, which is changed when the text no longer fits its
// encoding. Returns whether it worked; on failure the old file is whole.
bool Save(const QString& path, const QString& text, CodePage::Format& format);

// `text` without its last line, where that line holds nothing but blanks and control characters; of several
// empty lines at its end one more goes.
QString TrimTail(const QString& text);

// Whether the extension (any case) is that of a picture that the preview shows.
bool IsPicture(const QString& extension);

// The document type that the text's doctype marker tells: "HTML", "XHTML", "WML", or empty without a marker.
QString TypeByMarker(const QString& text);
// The document type on opening; empty where it cannot be determined. `extension` as in CurrentExtension.
QString TypeOnOpen(const QString& text, const QString& extension);
// The document type on saving, which asks for the extension wml alone; empty where it cannot be determined.
QString TypeOnSave(const QString& text, const QString& extension);
// What the status bar shows for a document type.
QString PanelText(const QString& type);

} // namespace DocumentFile
