// SPDX-License-Identifier: MIT
#include "project/link_scanner.h"

#include "documents/code_access.h"
#include "documents/document_file.h"
#include "documents/link_list.h"
#include "documents/paths.h"
#include "platform/dialogs.h"
#include "platform/events.h"
#include "platform/files.h"
#include "platform/text.h"
#include "project/file_management.h"
#include "state/global.h"

#include <QHash>
#include <QSet>
#include <algorithm>
#include <array>
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

// What outlives a scan: the text of the file loaded last, and the number of the scan that runs.
struct LinkScanner::State {
    QString text;
    std::optional<QString> title;
    std::shared_ptr<TextLinks> links;
    unsigned scan = 0;

    void Hold(const QString& newText) {
        text = newText;
        title.reset();
        links.reset();
    }
    const QString& Title() {
        if (!title) title = HTMLAccess::TitleOf(text);
        return *title;
    }
    // Shared, so that a page that waits for those it links to keeps its links alone and not its text.
    std::shared_ptr<TextLinks> Links() {
        if (!links) {
            links = std::make_shared<TextLinks>();
            links->list =
                FindLinks(text, {LinkMarker::Href, LinkMarker::Src, LinkMarker::Url, LinkMarker::Navigate});
        }
        return links;
    }
};

namespace {

bool IsExternal(const QString& link) {
    const QString lower = Text::LowerCase(link);
    constexpr std::array<QStringView, 5> signs{u"https:", u"ftp:", u"www.", u"http:", u"mailto:"};
    return std::any_of(signs.begin(), signs.end(), [&](QStringView sign) { return lower.contains(sign); });
}

// Whether no file can bear the name, wherever the site is put up: it is not looked for in vain then. A link
// with a query ("seite.htm?x=1") is of that kind.
bool IsBadName(const QString& name) {
    return std::any_of(name.begin(), name.end(),
                       [](QChar c) { return c < u' ' || u"?*:<>|\""_s.contains(c); });
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

// One scan. The pages that wait for those they link to stand on a stack of its own, since there may be as
// many of them as files may be searched.
class LinkScan {
public:
    LinkScan(std::shared_ptr<LinkScanner::State> state, const QString& root,
             const LinkScanner::Settings& settings, const LinkScanner::Listener& listener)
        : m_state(std::move(state)), m_number(++m_state->scan), m_root(root),
          m_rootFolder(Global::ParentPath(root)),
          m_projectFiles(u'-' + Text::UpperCase(settings.projectFiles)), m_settings(settings),
          m_listener(listener) {
        m_state->links.reset(); // what one scan has told, the next one tells again
    }

    LinkScanner::Counts Run() {
        ScanLinkedFile(m_root, m_root, Global::FileNameOf(m_root));
        while (!m_waiting.empty()) {
            if (!GoesOn()) {
                m_counts.stopped = true;
                break;
            }
            if (FollowNextLink()) LetEventsRun();
        }
        return m_counts;
    }

private:
    enum class Loading { Loaded, Missing, Failed };
    struct WaitingPage {
        QString path;
        QString folder; // with "\" at its end
        std::shared_ptr<TextLinks> links;
        qsizetype next = 0;
    };

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
    Loading Load(const QString& path);
    bool IsSearched(const QString& path, Loading loading);
    QString Resolve(const QString& link, const WaitingPage& page) const;
    bool CanRead(const QString& path);
    void DescribeMissing(LinkRow& row) const;
    void DescribeFound(LinkRow& row) const;
    QString FolderColumn(const QString& path) const;
    void Tell(const LinkRow& row);

    const std::shared_ptr<LinkScanner::State> m_state;
    const unsigned m_number;
    const QString m_root;
    const QString m_rootFolder;
    const QString m_projectFiles; // upper case, with a hyphen in front
    const LinkScanner::Settings m_settings;
    const LinkScanner::Listener m_listener;
    LinkScanner::Counts m_counts;
    std::vector<WaitingPage> m_waiting;
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

LinkScan::Loading LinkScan::Load(const QString& path) {
    if (const auto document = DocumentFile::Load(path)) {
        m_state->Hold(document->text);
        return Loading::Loaded;
    }
    Files::ReadError error = Files::ReadError::None;
    Files::Read(path, &error);
    const bool missing = error == Files::ReadError::FileNotFound && !IsBadName(Global::FileNameOf(path));
    return missing ? Loading::Missing : Loading::Failed;
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

bool LinkScan::IsSearched(const QString& path, Loading loading) {
    if (m_counts.files > m_settings.maxLinkDeep) return false;
    if (loading == Loading::Missing || Text::UpperCase(path).contains(u".CSS")) return false;
    if (loading == Loading::Loaded) return true;
    // Under each missing folder its links would be new ones again, into folders ever deeper.
    return !std::exchange(m_state->Links()->searchedAgain, true);
}

void LinkScan::ScanLinkedFile(const QString& target, const QString& linkedFrom, const QString& linkName) {
    LinkRow row;
    row.path = Global::CutBefore(target, u"#"_s);
    if (row.path.isEmpty()) return;
    const Loading loading = Load(row.path);
    row.name = Global::FileNameOf(row.path);
    if (!row.name.isEmpty()) {
        loading == Loading::Missing ? DescribeMissing(row) : DescribeFound(row);
        row.title = m_state->Title();
        row.folder = FolderColumn(row.path);
        row.linkedFrom = linkedFrom;
        row.linkName = linkName;
        Tell(row);
    }
    ++m_counts.files;
    if (!IsSearched(row.path, loading)) return;
    m_waiting.push_back({row.path, Global::ParentPath(row.path) + u'\\', m_state->Links()});
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

// The path that the link `page.next` has been taken from leads to; empty for one that climbs too far, which
// is told once, however often its text is searched.
QString LinkScan::Resolve(const QString& link, const WaitingPage& page) const {
    const auto path = Global::PathOfLink(link, page.folder);
    if (path) return *path;
    const qsizetype told = page.links->unresolvedTold.size();
    page.links->unresolvedTold.insert(page.next);
    const bool isNew = page.links->unresolvedTold.size() > told;
    return isNew ? Global::ResolveLink(link, page.folder) : QString();
}

// Looks at the next link of the topmost page; returns whether a link is done with. It is not while the page
// that it leads to waits.
bool LinkScan::FollowNextLink() {
    WaitingPage& page = m_waiting.back();
    const LinkList& list = page.links->list;
    if (page.next == list.links.size()) {
        const bool tell = list.cutShort && !std::exchange(page.links->cutShortTold, true);
        m_waiting.pop_back();
        if (tell) Dialogs::Tell({}, u"Unerwarteter Fehler."_s, Dialogs::Icon::None);
        return false;
    }
    const QString link = list.links[page.next++];
    ++m_counts.links;
    QString target = IsExternal(link) ? link : Global::CutBefore(Resolve(link, page), u"#"_s);
    if (target.isEmpty()) {
        m_waiting.pop_back();
        return false;
    }
    if (target.endsWith(u"')")) target.chop(2);
    if (m_seen.contains(Text::UpperCase(target))) return true;
    const QString linkedFrom = page.path; // a page that comes on top moves the others
    if (IsFollowed(target)) {
        ScanLinkedFile(target, linkedFrom, link);
    } else {
        RegisterLink(target, linkedFrom, link);
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
