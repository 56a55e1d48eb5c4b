// SPDX-License-Identifier: MIT
// How a scan goes through the pages of a site. As with a text control, a file that cannot be loaded leaves
// the text of the one before it in place, and that text is searched under the new path.
#pragma once

#include "documents/link_list.h"

#include <QSet>
#include <QString>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

// The links of a text, and what the scan that runs has told and done with them.
struct TextLinks {
    LinkList list;
    bool cutShortTold = false;
    QSet<qsizetype> unresolvedTold; // numbers of links
    bool searchedAgain = false;     // under the path of a file that could not be loaded
};

class PageLoader {
public:
    // Missing: no such file in a folder that is there, under a name that a file can bear. Failed: not loaded
    // for any other reason.
    enum class Loading { Loaded, Missing, Failed };

    explicit PageLoader(std::vector<LinkMarker> markers) : m_markers(std::move(markers)) {}

    Loading Load(const QString& path);
    // Whether Load() would say that of the file.
    static bool IsMissing(const QString& path);
    // The title of the text loaded last.
    const QString& Title();
    // Its links. Shared, so that a page that waits for those it links to keeps its links alone.
    std::shared_ptr<TextLinks> Links();
    // The next scan tells again what this one has told of the links.
    void ForgetLinks() { m_links.reset(); }

private:
    const std::vector<LinkMarker> m_markers;
    QString m_text;
    std::optional<QString> m_title;
    std::shared_ptr<TextLinks> m_links;
};

// The pages that wait for those they link to. They stand on a stack of their own, since there may be as many
// of them as files are searched.
class PageWalk {
public:
    struct Link {
        QString text; // as it stands in the page
        QString page; // full path of the page
        qsizetype number = 0;
    };

    explicit PageWalk(PageLoader& loader) : m_loader(loader) {}

    bool IsDone() const { return m_waiting.empty(); }
    // Goes into the page just loaded, or into what stands in place of one that failed; into the latter once a
    // text, since under each missing folder its links would be new ones again, into folders ever deeper.
    void Enter(const QString& path, PageLoader::Loading loading);
    // Leaves the innermost page.
    void Leave() { m_waiting.pop_back(); }
    // The next link of the innermost page. Nothing behind its last one: the page is left then, and a link
    // without an end is told in a message.
    std::optional<Link> Next();
    // The full path that a link of the innermost page leads to, without an anchor; empty for one that climbs
    // above the root, which is told in a message once, however often its text is searched.
    QString TargetOf(const Link& link) const;

private:
    struct Page {
        QString path;
        QString folder; // with "\" at its end
        std::shared_ptr<TextLinks> links;
        qsizetype next = 0;
    };

    PageLoader& m_loader;
    std::vector<Page> m_waiting;
};
