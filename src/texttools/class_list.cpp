// SPDX-License-Identifier: MIT
#include "texttools/class_list.h"

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
    return c == u'-' || c == u'_' || c.unicode() >= 0x80 || (c >= u'0' && c <= u'9') ||
           (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

bool BeginsName(QStringView name) {
    const auto isDigit = [](QChar c) { return c >= u'0' && c <= u'9'; };
    if (name.isEmpty() || isDigit(name.front()) || name == u"-") return false;
    return name.front() != u'-' || !isDigit(name[1]);
}

// Length of the name at the start of `text` (CSS Syntax Level 3, 4.3.11), escapes included.
qsizetype NameLength(QStringView text) {
    qsizetype end = 0;
    while (end < text.size()) {
        if (StandsInName(text[end])) {
            ++end;
        } else if (text[end] == u'\\' && end + 1 < text.size() && text[end + 1] != u'\r' &&
                   text[end + 1] != u'\n') {
            end += 2;
        } else {
            break;
        }
    }
    return end;
}

// `block` with its comments overwritten by blanks.
QString WithoutComments(QString block) {
    qsizetype comment = Text::Find(block, u"/*");
    while (comment > 0) {
        const qsizetype behind = Text::Find(block, u"*/", comment + 2);
        if (behind == 0) break;
        std::fill_n(block.data() + comment - 1, behind + 2 - comment, QChar(u' '));
        comment = Text::Find(block, u"/*", behind + 2);
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
        : m_text(WithoutComments(block)), m_lastClosing(m_text.lastIndexOf(u'}')) {}

    QStringList Run() {
        while (m_at < m_text.size()) Step();
        return m_names;
    }

private:
    void Step() {
        const QChar c = m_text[m_at];
        if (c == u'{') {
            // Braces that are never closed count as none, so that the end of an unfinished sheet is seen.
            m_inDeclarations = m_at < m_lastClosing && !HoldsRules(Prelude());
            m_preludeStart = m_at + 1;
        } else if (c == u'}' || c == u';') {
            if (c == u'}') m_inDeclarations = false;
            m_preludeStart = m_at + 1;
        } else if (!m_inDeclarations && (c == u'"' || c == u'\'')) {
            SkipBehind(c, m_at + 1);
            return;
        } else if (!m_inDeclarations && c == u'(' && Prelude().endsWith(u"url", Qt::CaseInsensitive)) {
            SkipBehind(u')', m_at + 1);
            return;
        } else if (!m_inDeclarations && c == u'\\') {
            ++m_at; // an escaped marker is part of a name
        } else if (!m_inDeclarations && (c == u'.' || c == u'#')) {
            const QStringView rest = QStringView(m_text).sliced(m_at + 1);
            const QStringView name = rest.first(NameLength(rest));
            if (BeginsName(name)) Add(c + name.toString());
            m_at += name.size();
        }
        ++m_at;
    }

    QStringView Prelude() const { return QStringView(m_text).sliced(m_preludeStart, m_at - m_preludeStart); }

    // A string ends with its line at the latest; an address that is not closed ends nowhere.
    void SkipBehind(QChar end, qsizetype from) {
        for (m_at = from; m_at < m_text.size(); ++m_at) {
            if (m_text[m_at] == end) break;
            if (end != u')' && (m_text[m_at] == u'\n' || m_text[m_at] == u'\r')) break;
        }
        ++m_at;
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
    QSet<QString> m_known;
    QStringList m_names;
};

// --- files ---

// Collects the names of a file and of the sheets that it reaches.
class FileScan {
public:
    explicit FileScan(Found& found) : m_found(found) {}

    void Scan(const QString& path) {
        if (m_read.contains(path)) return;
        m_read.insert(path);
        TextBuffer file;
        file.LoadFile(path);
        const QString text = file.Text();
        if (Global::ExtensionOf(path) == u"css") {
            Take(InBlock(text));
        } else {
            ScanStyleBlocks(text);
        }
        FollowLinks(text, Global::ParentPath(path) + u'\\');
    }

private:
    void ScanStyleBlocks(const QString& page) {
        const QString upper = Text::UpperCase(page);
        qsizetype tag = Text::Find(upper, u"<STYLE");
        while (tag > 0) {
            const qsizetype begin = Text::Find(upper, u">", tag);
            const qsizetype end = Text::Find(upper, u"</STYLE", tag + 1);
            if (begin == 0 || end == 0) return;
            if (begin < end) Take(InBlock(page.sliced(begin, end - 1 - begin)));
            tag = Text::Find(upper, u"<STYLE", end + 1);
        }
    }

    // Every address in url(), src and href, whatever tag or rule it stands in.
    void FollowLinks(const QString& text, const QString& folder) {
        const QString lower = Text::LowerCase(text);
        struct Kind {
            QStringView opening;
            QStringView closing;
            Text::Finder finder;
        };
        Kind kinds[] = {{u"url(", u")", {lower, u"url("}},
                        {u"src=\"", u"\"", {lower, u"src=\""}},
                        {u"href=\"", u"\"", {lower, u"href=\""}}};
        qsizetype from = 1;
        while (true) {
            const Kind* nearest = nullptr;
            qsizetype at = 0;
            for (Kind& kind : kinds) {
                const qsizetype hit = kind.finder.From(from);
                if (hit == 0 || (nearest && hit > at)) continue;
                nearest = &kind;
                at = hit;
            }
            if (!nearest) return;
            const qsizetype begin = at + nearest->opening.size();
            const qsizetype end = Text::Find(lower, nearest->closing, begin);
            if (end == 0) {
                m_found.openLink = true;
                return;
            }
            Follow(Unquoted(Text::Middle(text, begin, end - begin)), folder);
            from = end;
        }
    }

    static QString Unquoted(QStringView link) {
        link = link.trimmed();
        const bool quoted = link.size() > 1 && (link.front() == u'"' || link.front() == u'\'');
        return (quoted && link.back() == link.front() ? link.sliced(1, link.size() - 2) : link).toString();
    }

    void Follow(const QString& link, const QString& folder) {
        const auto path = Global::PathOfLink(link, folder);
        if (path && Global::ExtensionOf(*path) == u"css") Scan(*path);
    }

    void Take(const QStringList& names) {
        for (const QString& name : names) {
            if (m_known.contains(name)) continue;
            m_known.insert(name);
            m_found.entries.append(name);
        }
    }

    Found& m_found;
    QSet<QString> m_read;
    QSet<QString> m_known;
};

} // namespace

QStringList InBlock(const QString& block) { return BlockScan(block).Run(); }

Found InFile(const QString& path) {
    Found found;
    if (!path.isEmpty()) FileScan(found).Scan(path);
    return found;
}

} // namespace ClassList
