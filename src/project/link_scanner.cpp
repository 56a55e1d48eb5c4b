// SPDX-License-Identifier: MIT
#include "project/link_scanner.h"

#include "documents/paths.h"
#include "platform/events.h"
#include "platform/files.h"
#include "platform/text.h"
#include "project/file_management.h"
#include "project/page_walk.h"
#include "state/global.h"

#include <QHash>
#include <QSet>
#include <algorithm>
#include <array>
#include <utility>

// What outlives a scan: the page loaded last, and the number of the scan that runs.
struct LinkScanner::State {
    PageLoader loader{{LinkMarker::Href, LinkMarker::Src, LinkMarker::Url, LinkMarker::Navigate}};
    unsigned scan = 0;
};

namespace {

bool IsExternal(const QString& link) {
    const QString lower = Text::LowerCase(link);
    constexpr std::array<QStringView, 5> signs{u"https:", u"ftp:", u"www.", u"http:", u"mailto:"};
    return std::any_of(signs.begin(), signs.end(), [&](QStringView sign) { return lower.contains(sign); });
}

// The icon of a found file; empty for one of no known kind. The last test that holds counts, and the whole
// path is looked at; both are meant.
QString IconOf(const QString& path, bool listed) {
    constexpr std::array<std::pair<QStringView, QStringView>, 5> icons{{{u".HTM", u"HTMLFile"},
                                                                        {u".WML", u"WMLFile"},
                                                                        {u".CSS", u"CSS"},
                                                                        {u".VBS", u"VBS"},
                                                                        {u".JS", u"JS"}}};
    const QString upper = Text::UpperCase(path);
    QStringView icon = listed ? QStringView(u"UserDef2") : QStringView();
    for (const auto& [part, name] : icons) {
        if (upper.contains(part)) icon = name;
    }
    return icon.toString();
}

} // namespace

// One scan.
class LinkScan {
public:
    LinkScan(std::shared_ptr<LinkScanner::State> state, const QString& root,
             const LinkScanner::Settings& settings, const LinkScanner::Listener& listener)
        : m_state(std::move(state)), m_pages(m_state->loader), m_number(++m_state->scan), m_root(root),
          m_rootFolder(Global::ParentPath(root)),
          m_projectFiles(u'-' + Text::UpperCase(settings.projectFiles)), m_settings(settings),
          m_listener(listener) {
        m_state->loader.ForgetLinks();
    }

    LinkScanner::Counts Run() {
        ScanLinkedFile(m_root, m_root, Global::FileNameOf(m_root));
        while (!m_pages.IsDone()) {
            if (!GoesOn()) {
                m_counts.stopped = true;
                break;
            }
            if (FollowNextLink()) LetEventsRun();
        }
        return m_counts;
    }

private:
    bool GoesOn() const {
        if (m_state->scan != m_number) return false;
        return m_listener.goOn ? m_listener.goOn() : Global::ProjectWindowOpen;
    }

    void LetEventsRun() {
        if (!GoesOn()) return; // the listener may be gone
        if (m_listener.letEventsRun) {
            m_listener.letEventsRun(m_counts);
        } else {
            Events::DoEvents();
        }
    }

    void ScanLinkedFile(const QString& target, const QString& linkedFrom, const QString& linkName);
    void RegisterLink(const QString& path, const QString& linkedFrom, const QString& linkName);
    bool FollowNextLink();
    bool IsFollowed(const QString& target) const;
    bool IsListed(const QString& extension) const;
    bool CanRead(const QString& path);
    void DescribeMissing(LinkRow& row) const;
    void DescribeFound(LinkRow& row) const;
    QString FolderColumn(const QString& path) const;
    void Tell(const LinkRow& row);

    const std::shared_ptr<LinkScanner::State> m_state;
    PageWalk m_pages;
    const unsigned m_number;
    const QString m_root;
    const QString m_rootFolder;
    const QString m_projectFiles; // upper case, with a hyphen in front
    const LinkScanner::Settings m_settings;
    const LinkScanner::Listener m_listener;
    LinkScanner::Counts m_counts;
    QSet<QString> m_seen; // paths of the rows, upper case
    QHash<QString, bool> m_readable;
};

bool LinkScan::IsListed(const QString& extension) const {
    return m_projectFiles.contains(u'-' + Text::UpperCase(extension) + u'-');
}

QString LinkScan::FolderColumn(const QString& path) const {
    return Global::ParentPath(Global::RelativePathOf(path, m_rootFolder));
}

void LinkScan::Tell(const LinkRow& row) {
    m_seen.insert(Text::UpperCase(row.path));
    ++m_counts.rows;
    if (row.tag == u"Error") ++m_counts.missing;
    if (row.tag == u"Extern") ++m_counts.external;
    if (m_listener.addRow) m_listener.addRow(row);
}

bool LinkScan::CanRead(const QString& path) {
    const auto known = m_readable.constFind(path);
    return known != m_readable.cend() ? *known : *m_readable.insert(path, Files::CanRead(path));
}

// Missing style sheets and WML pages are told with all other errors only; that is meant.
void LinkScan::DescribeMissing(LinkRow& row) const {
    const QString extension = Global::ExtensionOf(row.path);
    const bool told = m_settings.listLinkErrors || IsListed(extension) || extension == u"htm" ||
                      extension == u"vbs" || extension == u"js";
    if (!told) return;
    row.icon = u"Error3"_s;
    row.tag = u"Error"_s;
    row.sortKey = u"aaa"_s;
}

void LinkScan::DescribeFound(LinkRow& row) const {
    row.icon = IconOf(row.path, IsListed(Global::ExtensionOf(row.path)));
    if (!row.icon.isEmpty()) row.tag = row.path;
    row.sortKey = Text::LowerCase(FileManagement::ShortExtensionOf(row.path));
}

void LinkScan::ScanLinkedFile(const QString& target, const QString& linkedFrom, const QString& linkName) {
    LinkRow row;
    row.path = IsExternal(target) ? Global::CutBefore(target, u"#"_s) : target;
    if (row.path.isEmpty()) return;
    const PageLoader::Loading loading = m_state->loader.Load(row.path);
    row.name = Global::FileNameOf(row.path);
    if (!row.name.isEmpty()) {
        loading == PageLoader::Loading::Missing ? DescribeMissing(row) : DescribeFound(row);
        row.title = m_state->loader.Title();
        row.folder = FolderColumn(row.path);
        row.linkedFrom = linkedFrom;
        row.linkName = linkName;
        Tell(row);
    }
    ++m_counts.files;
    const bool searched = m_counts.files <= m_settings.maxLinkDeep &&
                          loading != PageLoader::Loading::Missing &&
                          !Text::UpperCase(row.path).contains(u".CSS");
    if (searched) m_pages.Enter(row.path, loading);
}

void LinkScan::RegisterLink(const QString& path, const QString& linkedFrom, const QString& linkName) {
    if (CanRead(path)) return;
    LinkRow row;
    row.path = path;
    row.linkedFrom = linkedFrom;
    row.linkName = linkName;
    if (IsExternal(path)) {
        if (!m_settings.showExternLinks) return;
        row.icon = u"Extern2"_s;
        row.tag = u"Extern"_s;
        row.name = path;
        row.folder = path;
        row.sortKey = u"zzz"_s;
    } else {
        row.name = Global::FileNameOf(path);
        if (row.name.isEmpty() || !m_settings.listLinkErrors) return;
        row.icon = u"Error3"_s;
        row.tag = u"Error"_s;
        row.folder = FolderColumn(path);
        row.sortKey = u"aaa"_s;
    }
    Tell(row);
}

// Whether a new target is loaded as a page. One dot in the whole path is asked for, folders included, and an
// extension counts as listed when it is part of a listed one; both are meant.
bool LinkScan::IsFollowed(const QString& target) const {
    if (target.count(u'.') != 1 || Text::LowerCase(target).contains(u"mailto:")) return false;
    const QString extension = Text::UpperCase(Global::ExtensionOf(target));
    constexpr std::array<QStringView, 5> pages{u"HTM", u"WML", u"CSS", u"VBS", u"JS"};
    return std::find(pages.begin(), pages.end(), extension) != pages.end() ||
           m_projectFiles.contains(extension);
}

// Looks at the next link of the innermost page; returns whether a link is done with. It is not while the page
// that it leads to waits.
bool LinkScan::FollowNextLink() {
    const auto link = m_pages.Next();
    if (!link) return false;
    ++m_counts.links;
    QString target = IsExternal(link->text) ? link->text : m_pages.TargetOf(*link);
    if (target.isEmpty()) {
        m_pages.Leave();
        return false;
    }
    if (target.endsWith(u"')")) target.chop(2);
    if (m_seen.contains(Text::UpperCase(target))) return true;
    if (IsFollowed(target)) {
        ScanLinkedFile(target, link->page, link->text);
    } else {
        RegisterLink(target, link->page, link->text);
    }
    return true;
}

LinkScanner::Settings LinkScanner::Settings::Current() {
    return {Global::MaxLinkDeep, Global::ListLinkErrors, Global::ShowExternLinks, Global::ProjectFiles};
}

LinkScanner::LinkScanner() : m_state(std::make_shared<State>()) {}

LinkScanner::Counts LinkScanner::Scan(const QString& root, const Settings& settings,
                                      const Listener& listener) {
    return LinkScan(m_state, root, settings, listener).Run();
}
