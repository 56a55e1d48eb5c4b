// SPDX-License-Identifier: MIT
#include "documents/document_file.h"

#include "platform/files.h"
#include "platform/text.h"

#include <QHash>
#include <new>

namespace DocumentFile {

std::optional<CodePage::Decoded> LoadRaw(const QString& path) {
    try {
        const auto bytes = Files::Read(path);
        if (!bytes) return std::nullopt;
        return CodePage::Decode(*bytes);
    } catch (const std::bad_alloc&) { // a file beyond memory is one that cannot be loaded
        return std::nullopt;
    }
}

std::optional<CodePage::Decoded> Load(const QString& path) {
    auto document = LoadRaw(path);
    if (!document) return document;
    try {
        document->text = Text::WithFullLineBreaks(document->text);
    } catch (const std::bad_alloc&) {
        return std::nullopt;
    }
    return document;
}

bool Save(const QString& path, const QString& text, CodePage::Format& format) {
    return Files::Write(path, CodePage::Encode(text + Text::LineBreak, format));
}

QString TrimTail(const QString& text) {
    const qsizetype last = text.lastIndexOf(Text::LineBreak);
    if (last < 0) return text;
    for (const QChar c : QStringView(text).sliced(last)) {
        if (c.unicode() >= 33) return text;
    }
    // With the line end that saving adds, a text that ends in one line end or one empty line is written as it
    // is; of several empty lines exactly one is lost by each save.
    const bool several = text.endsWith(u"\r\n\r\n\r\n");
    return text.first(several ? last - Text::LineBreak.size() : last);
}

bool IsPicture(const QString& extension) {
    return u"ßGIFß ßJPGß ßICOß ßPNGß"_s.contains(u'ß' + Text::UpperCase(extension) + u'ß');
}

QString TypeByMarker(const QString& text) {
    const QString upper = Text::UpperCase(text);
    if (upper.contains(u"-//W3C//DTD HTML")) return u"HTML"_s;
    if (upper.contains(u"-//W3C//DTD XHTML")) return u"XHTML"_s;
    if (upper.contains(u"-//WAPFORUM//DTD WML")) return u"WML"_s;
    return {};
}

QString TypeOnOpen(const QString& text, const QString& extension) {
    const QString marked = TypeByMarker(text);
    if (!marked.isEmpty()) return marked;
    // The extension is lower case, so this never holds; a .wml file without doctype is meant to be text.
    if (extension == u"WML") return u"WML"_s;
    if (extension == u"js") return u"JS"_s;
    if (extension == u"vbs") return u"VBS"_s;
    if (extension == u"css") return u"CSS"_s;
    if (extension == u"txt") return u"Text"_s;
    return {};
}

QString TypeOnSave(const QString& text, const QString& extension) {
    const QString marked = TypeByMarker(text);
    if (!marked.isEmpty()) return marked;
    return extension == u"wml" ? u"WML"_s : QString();
}

QString PanelText(const QString& type) {
    static const QHash<QString, QString> texts{{u"HTML"_s, u"HTML"_s},    {u"XHTML"_s, u"XHTML"_s},
                                               {u"WML"_s, u"WAP"_s},      {u"JS"_s, u"JavaScript"_s},
                                               {u"VBS"_s, u"VBScript"_s}, {u"CSS"_s, u"StyleSheet"_s},
                                               {u"Text"_s, u"Text"_s},    {u"IMG"_s, u"Bild"_s}};
    return texts.value(type);
}

} // namespace DocumentFile
