// SPDX-License-Identifier: MIT
#include "project/page_weight.h"

#include "documents/document_file.h"
#include "documents/link_list.h"
#include "documents/paths.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/literals.h"
#include "platform/numbers.h"
#include "platform/text.h"

#include <QSet>
#include <algorithm>
#include <cmath>
#include <utility>

namespace PageWeight {

namespace {

constexpr int IndentPerLevel = 5;

QString IconFor(const QString& extension) {
    if (extension == u"GIF" || extension == u"JPG" || extension == u"PNG") return u"Image"_s;
    return extension == u"HTM" ? u"HTML"_s : u"UnknownFile2"_s;
}

QString Whole(double number) { return QString::number(std::trunc(number), 'f', 0); }

class WeightScan {
public:
    explicit WeightScan(const Listener& listener) : m_listener(listener) {}

    Sums Run(const QString& path) {
        ScanPage(path, 1);
        return m_sums;
    }

private:
    // Returns whether the scan goes on.
    bool ScanPage(const QString& path, int depth) {
        if (depth > Deepest) {
            m_sums.cyclic = true;
            return false;
        }
        // Also on the way down, where no link is done with yet.
        if (!GoesOn()) return false;
        if (!Load(path)) {
            --m_level;
            return true;
        }
        m_sums.comments = CommentCharacters(m_text, m_sums.comments);
        const QString folder = path.first(path.lastIndexOf(u'\\') + 1);
        const LinkList list = FindLinks(m_text, {LinkMarker::Src, LinkMarker::Background});
        QString extension;
        for (const QString& link : list.links) {
            const QString full = Global::ResolveLink(link, folder);
            if (const qsizetype dot = full.lastIndexOf(u'.'); dot >= 0) {
                extension = Text::UpperCase(full.sliced(dot + 1).left(3));
            }
            Add(full, link, extension);
            if (extension == u"HTM") {
                ++m_level;
                if (!ScanPage(full, depth + 1)) return false;
            }
            if (!GoesOn()) return false;
        }
        if (list.cutShort) {
            Dialogs::Tell({}, u"Unerwarteter Fehler."_s, Dialogs::Icon::None);
        } else {
            --m_level; // behind a page that is cut short the rows stay one step further in; that is meant
        }
        return true;
    }

    bool GoesOn() const { return !m_listener.goOn || m_listener.goOn(); }

    // Returns whether m_text is to be searched. A page that cannot be loaded leaves the text of the one
    // before it, which is searched under its path; only once, since the link to that page would be found in
    // it for ever. The text is held here alone, so that pages that wait for their frames keep but their
    // links.
    bool Load(const QString& path) {
        if (auto page = DocumentFile::Load(path)) {
            m_text = std::move(page->text);
            m_searchedAgain = false;
            return true;
        }
        return !std::exchange(m_searchedAgain, true);
    }

    void Add(const QString& full, const QString& link, const QString& extension) {
        if (const auto size = Files::SizeOf(full)) m_lastSize = static_cast<double>(*size);
        const qsizetype known = m_seen.size();
        m_seen.insert(full);
        if (m_seen.size() > known) m_sums.download += m_lastSize;
        m_sums.total += m_lastSize;
        const QString indent(std::max(0, IndentPerLevel * m_level), u'-');
        if (m_listener.addRow) {
            m_listener.addRow({indent + u"> "_s + Global::FileNameOf(full),
                               Whole(m_lastSize / 1024) + u" kB"_s, link, full, IconFor(extension)});
        }
    }

    const Listener& m_listener;
    Sums m_sums;
    QString m_text;
    bool m_searchedAgain = false; // m_text, under another path
    double m_lastSize = 0;
    int m_level = 0;
    QSet<QString> m_seen;
};

} // namespace

Sums Scan(const QString& path, const Listener& listener) { return WeightScan(listener).Run(path); }

float CommentCharacters(const QString& text, float before) {
    float count = before;
    Text::Finder comment(text, u"<!--");
    Text::Finder closing(text, u"-->");
    for (qsizetype i = comment.From(1); i > 0; i = comment.From(i + 1)) {
        const qsizetype tag = i > 1 ? Text::FindBack(text, u"<", i - 1) : 0;
        const QStringView opening = QStringView(text).sliced(std::max<qsizetype>(tag - 1, 0));
        if (tag > 0 && (opening.startsWith(u"<STYLE", Qt::CaseInsensitive) ||
                        opening.startsWith(u"<SCRIPT", Qt::CaseInsensitive))) {
            continue;
        }
        const qsizetype end = closing.From(i);
        if (end == 0) break;
        count = static_cast<float>(static_cast<double>(count) + static_cast<double>(end + 3 - i));
    }
    return count;
}

QStringList Messages(const Sums& sums) {
    const auto seconds = [&](int kilobits) { return Whole(sums.download * 8 / (kilobits * 1024)) + u" s"_s; };
    return {u"Gesamtgröße der Seite: "_s + Whole(sums.total / 1024) + u" kB"_s,
            u"Downloadgröße der Seite: "_s + Whole(sums.download / 1024) + u" kB"_s,
            u"Ladezeit mit Modem 56 kb/s: ca. "_s + seconds(56),
            u"Ladezeit mit ISDN 64 kb/s: ca. "_s + seconds(64),
            u"Ladezeit mit ISDN B-Kanal 128 kb/s: ca. "_s + seconds(128),
            u"Speicherverbrauch durch Kommentare: "_s +
                Numbers::ForMessage(static_cast<double>(sums.comments)) + u" Byte"_s};
}

} // namespace PageWeight
