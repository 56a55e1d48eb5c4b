// SPDX-License-Identifier: MIT
#include "texttools/class_list.h"

#include "documents/code_access.h"
#include "documents/link_list.h"
#include "documents/paths.h"
#include "documents/text_buffer.h"
#include "platform/files.h"
#include "platform/literals.h"
#include "platform/text.h"

#include <QSet>
#include <algorithm>

namespace ClassList {

namespace {

// --- style rules ---

bool StandsInName(QChar c) {
    return c == u'-' || c == u'_' || c.unicode() >= 0x80 || RuntimeExtension::IsDigit(c) ||
           (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

bool BeginsName(QStringView name) {
    using RuntimeExtension::IsDigit;
    if (name.isEmpty() || IsDigit(name.front()) || name == u"-") return false;
    return name.front() != u'-' || !IsDigit(name[1]);
}

bool IsHexDigit(QChar c) {
    return RuntimeExtension::IsDigit(c) || (c >= u'a' && c <= u'f') || (c >= u'A' && c <= u'F');
}

// Length of the escape at the start of `text`, 0 when none stands there. The blank that parts a number from
// what follows in the name belongs to it.
qsizetype EscapeLength(QStringView text) {
    constexpr qsizetype LongestNumber = 6;
    if (text.size() < 2 || text[0] != u'\\' || text[1] == u'\r' || text[1] == u'\n') return 0;
    qsizetype end = 1;
    while (end < text.size() && end <= LongestNumber && IsHexDigit(text[end])) ++end;
    if (end == 1) return 2;
    const bool goesOn =
        end + 1 < text.size() && text[end] == u' ' && (StandsInName(text[end + 1]) || text[end + 1] == u'\\');
    return goesOn ? end + 1 : end;
}

// Length of the name at the start of `text` (CSS Syntax Level 3, 4.3.11), escapes included.
qsizetype NameLength(QStringView text) {
    qsizetype end = 0;
    while (end < text.size()) {
        const qsizetype step = StandsInName(text[end]) ? 1 : EscapeLength(text.sliced(end));
        if (step == 0) break;
        end += step;
    }
    return end;
}

// The rules of `block`: without its comments, and without the marks that hide them from old browsers.
QString RulesOf(QString block) {
    qsizetype comment = Text::Find(block, u"/*");
    while (comment > 0) {
        const qsizetype behind = Text::Find(block, u"*/", comment + 2);
        if (behind == 0) break;
        std::fill_n(block.data() + comment - 1, behind + 2 - comment, QChar(u' '));
        comment = Text::Find(block, u"/*", behind + 2);
    }
    for (const QStringView mark : {u"<!--", u"-->", u"<![CDATA[", u"]]>"}) {
        block.replace(mark.toString(), u" "_s);
    }
    return block;
}

// An at-rule whose braces hold rules, not declarations.
bool HoldsRules(QStringView prelude) {
    prelude = prelude.trimmed();
    for (const QStringView rule :
         {u"@media", u"@supports", u"@layer", u"@container", u"@scope", u"@document"}) {
        if (prelude.startsWith(rule, Qt::CaseInsensitive)) return true;
    }
    return false;
}

// Goes through a block of rules once and collects the names of its selectors.
class BlockScan {
public:
    explicit BlockScan(const QString& block)
        : m_text(RulesOf(block)), m_lastClosing(m_text.lastIndexOf(u'}')) {}

    QStringList Run() {
        while (m_at < m_text.size()) Step();
        return m_names;
    }

private:
    void Step() {
        const QChar c = m_text[m_at];
        if (c == u'"' || c == u'\'') return SkipString(c);
        if (c == u'\\') {
            ++m_at; // an escaped marker is part of a name
        } else if (c == u'{') {
            // Braces that are never closed count as none, so that the end of an unfinished sheet is seen.
            m_inDeclarations = m_at < m_lastClosing && !HoldsRules(Prelude());
            m_preludeStart = m_at + 1;
        } else if (c == u'}' || c == u';') {
            if (c == u'}') m_inDeclarations = false;
            m_preludeStart = m_at + 1;
        } else if (c == u'(' && !m_inAddress && Prelude().endsWith(u"url", Qt::CaseInsensitive)) {
            EnterAddress();
        } else if (c == u')') {
            m_inAddress = false;
        } else if (!m_inDeclarations && (c == u'#' || (c == u'.' && !m_inAddress))) {
            const QStringView rest = QStringView(m_text).sliced(m_at + 1);
            const QStringView name = rest.first(NameLength(rest));
            if (BeginsName(name)) Add(c + name.toString());
            m_at += name.size();
        }
        ++m_at;
    }

    QStringView Prelude() const { return QStringView(m_text).sliced(m_preludeStart, m_at - m_preludeStart); }

    // A string ends with its line at the latest, unless a backslash joins the next one to it.
    void SkipString(QChar quote) {
        for (++m_at; m_at < m_text.size(); ++m_at) {
            const QChar c = m_text[m_at];
            if (c == quote || c == u'\r' || c == u'\n') break;
            if (c == u'\\') m_at += QStringView(m_text).sliced(m_at + 1).startsWith(Text::LineBreak) ? 2 : 1;
        }
        ++m_at;
    }

    // One that is closed before the next brace holds nothing. Without that the rules go on, but until a ")"
    // comes each dot is one of the address.
    void EnterAddress() {
        m_inAddress = true;
        qsizetype end = m_at + 1;
        const auto isStop = [](QChar c) { return QStringView(u"){}\"'").contains(c); };
        while (end < m_text.size() && !isStop(m_text[end])) ++end;
        if (end == m_text.size() || m_text[end] != u')') return;
        m_inAddress = false;
        m_at = end;
    }

    void Add(const QString& name) {
        if (m_known.contains(name)) return;
        m_known.insert(name);
        m_names.append(name);
    }

    const QString m_text;
    const qsizetype m_lastClosing;
    qsizetype m_at = 0;
    qsizetype m_preludeStart = 0;
    bool m_inDeclarations = false;
    bool m_inAddress = false; // in a url( that is still open
    QSet<QString> m_known;
    QStringList m_names;
};

// --- files ---

// Collects the names of a file and of the sheets that it reaches.
class FileScan {
public:
    explicit FileScan(Found& found) : m_found(found) {}

    void Run(const QString& path) {
        m_pending = {path};
        while (!m_pending.isEmpty()) Scan(m_pending.takeLast());
    }

private:
    // A file has many paths; it is known by its place on the disk.
    void Scan(const QString& path) {
        const QString place = Files::Canonical(path);
        if (place.isEmpty() || m_read.contains(place)) return;
        m_read.insert(place);
        TextBuffer file;
        file.LoadFile(path);
        const QString text = file.Text();
        if (Global::ExtensionOf(path) == u"css") {
            Take(InBlock(text));
        } else {
            ScanStyleBlocks(text);
        }
        QStringList sheets = LinkedSheets(text, Global::ParentPath(path) + u'\\');
        std::ranges::reverse(sheets); // the first one comes next, with all that it links
        m_pending += sheets;
    }

    void ScanStyleBlocks(const QString& page) {
        const QString upper = Text::UpperCase(page);
        Text::Finder tagEnd(upper, u">");
        qsizetype tag = Text::Find(upper, u"<STYLE");
        while (tag > 0) {
            const qsizetype begin = tagEnd.From(tag);
            const qsizetype end = Text::Find(upper, u"</STYLE", tag + 1);
            if (begin == 0 || end == 0) return;
            if (begin < end) Take(InBlock(page.sliced(begin, end - 1 - begin)));
            tag = Text::Find(upper, u"<STYLE", end + 1);
        }
    }

    // The sheets among all addresses in url(), src and href, whatever tag or rule they stand in.
    QStringList LinkedSheets(const QString& text, const QString& folder) {
        const LinkList list = FindLinks(text, {LinkMarker::Href, LinkMarker::Src, LinkMarker::Url});
        if (list.cutShort) m_found.openLink = true;
        QStringList sheets;
        for (const QString& link : list.links) {
            const QString sheet = SheetOf(Unquoted(link), folder);
            if (!sheet.isEmpty()) sheets.append(sheet);
        }
        return sheets;
    }

    static QString Unquoted(QStringView link) {
        link = link.trimmed();
        const bool quoted = link.size() > 1 && (link.front() == u'"' || link.front() == u'\'');
        return (quoted && link.back() == link.front() ? link.sliced(1, link.size() - 2) : link).toString();
    }

    // The style sheet that a link leads to; empty when it leads to none. A "?" or "#" ends the name of a file
    // that is not there with it.
    static QString SheetOf(const QString& link, const QString& folder) {
        const auto isEnd = [](QChar c) { return c == u'?' || c == u'#'; };
        const auto end = std::ranges::find_if(link, isEnd);
        for (const QString& name : {link, link.first(end - link.begin())}) {
            const auto path = Global::PathOfLink(name, folder);
            if (path && Global::ExtensionOf(*path) == u"css" && Files::CanRead(*path)) return *path;
        }
        return {};
    }

    void Take(const QStringList& names) {
        for (const QString& name : names) {
            if (m_known.contains(name)) continue;
            m_known.insert(name);
            m_found.entries.append(name);
        }
    }

    Found& m_found;
    QStringList m_pending; // the next one last
    QSet<QString> m_read;
    QSet<QString> m_known;
};

} // namespace

QStringList InBlock(const QString& block) { return BlockScan(block).Run(); }

Found InFile(const QString& path) {
    Found found;
    if (!path.isEmpty()) FileScan(found).Run(path);
    return found;
}

} // namespace ClassList
