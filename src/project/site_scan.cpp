// SPDX-License-Identifier: MIT
#include "project/site_scan.h"

#include "documents/paths.h"
#include "platform/file_copy.h"
#include "platform/files.h"
#include "platform/literals.h"
#include "platform/text.h"
#include "project/page_walk.h"

#include <QHash>
#include <QSet>
#include <algorithm>
#include <initializer_list>

namespace SiteScan {

namespace {

using Loading = PageLoader::Loading;

bool IsOneOf(const QString& text, std::initializer_list<QStringView> list) {
    return std::find(list.begin(), list.end(), text) != list.end();
}

// `extension` of at most 4 characters, upper case.
Kind KindOf(const QString& extension) {
    if (IsOneOf(extension, {u"HTM", u"HTML", u"WML"})) return Pages;
    if (IsOneOf(extension, {u"JPG", u"GIF", u"PNG", u"ICO", u"WBMP"})) return Pictures;
    if (extension == u"CSS") return StyleSheets;
    if (IsOneOf(extension, {u"VBS", u"JS"})) return Scripts;
    if (extension == u"ZIP") return Archives;
    return extension == u"SWF" ? Movies : Others;
}

bool IsSearched(Kind kind) { return kind == Pages || kind == StyleSheets || kind == Scripts; }

// A link out of the site. Glued to a folder it has lost its slashes, so it is told by the link itself.
bool IsExternal(const QString& link) {
    const QString lower = Text::LowerCase(link);
    constexpr std::array<QStringView, 4> schemes{u"http:", u"https:", u"ftp:", u"mailto:"};
    return std::any_of(schemes.begin(), schemes.end(),
                       [&](QStringView scheme) { return lower.contains(scheme); });
}

// Whether a file that is no page is taken for one of the site: one dot in the whole path, folders included,
// and no "www" in it; both are meant.
bool IsPlainFile(const QString& path) {
    return path.count(u'.') == 1 && !path.contains(u"www", Qt::CaseInsensitive);
}

QString PageIcon(const QString& type) {
    if (type == u"HTM") return u"HTML"_s;
    return IsOneOf(type, {u"WML", u"CSS", u"VBS", u"JS"}) ? type : QString();
}

// With one separator where there are several, behind what `path` shares with `folder`: "/a.htm" within a page
// is glued to the page's folder, and by one separator more each time the site would come up again and again.
QString WithSingleSeparators(QString path, const QString& folder) {
    const auto isSecond = [](QChar a, QChar b) { return a == u'\\' && b == u'\\'; };
    const auto end = path.begin() + std::min(path.size(), folder.size());
    const auto behind = std::mismatch(path.begin(), end, folder.begin()).first;
    path.erase(std::unique(behind, path.end(), isSecond), path.end());
    return path;
}

// What an address in a style sheet leads to: it may stand in quotes of its own.
QString WithoutQuotes(const QString& link) {
    const QString address = link.trimmed();
    const bool quoted = address.size() > 1 && address.front() == address.back() &&
                        (address.front() == u'"' || address.front() == u'\'');
    return quoted ? address.sliced(1, address.size() - 2) : link;
}

// As many names of one page are searched. Where folders lead into themselves by symbolic links it has names
// without end.
constexpr int MostNames = 40;

class Run {
public:
    Run(const QString& root, const Listener& listener)
        : m_root(root), m_rootFolder(Global::ParentPath(root)), m_listener(listener) {}

    Result Start() {
        m_result.sums[Pages] = {static_cast<double>(Files::SizeOf(m_root).value_or(0)), 1};
        CollectBackupFiles(m_root);
        while (!m_pages.IsDone()) {
            FollowNextLink();
            if (m_listener.goOn && !m_listener.goOn()) break;
        }
        return std::move(m_result);
    }

private:
    void CollectBackupFiles(const QString& path);
    void CollectPlainFile(const QString& path, Kind kind);
    void Count(const QString& path, Kind kind);
    void FollowNextLink();
    SiteFile Describe(const QString& path) const;
    void Tell(const SiteFile& file);

    const QString m_root;
    const QString m_rootFolder;
    const Listener& m_listener;
    PageLoader m_loader{
        {LinkMarker::Href, LinkMarker::Src, LinkMarker::Background, LinkMarker::Url, LinkMarker::Navigate}};
    PageWalk m_pages{m_loader};
    Result m_result;
    QSet<QString> m_seen; // tags of the rows
    QSet<QString> m_leftOut;
    QHash<QString, int> m_searches; // by the page's place on the disk
};

SiteFile Run::Describe(const QString& path) const {
    SiteFile file;
    file.name = Global::FileNameOf(path);
    file.path = path;
    file.folder = Global::ParentPath(Global::RelativePathOf(path, m_rootFolder));
    file.type = Text::UpperCase(Global::ExtensionOf(path));
    file.tag = path;
    return file;
}

void Run::Tell(const SiteFile& file) {
    if (file.name.isEmpty()) return;
    m_seen.insert(file.tag);
    m_result.files.push_back(file);
    if (m_listener.addRow) m_listener.addRow(file);
}

// A page, style sheet or script, whose links are searched.
void Run::CollectBackupFiles(const QString& path) {
    if (path.isEmpty()) return;
    const Loading loading = m_loader.Load(path);
    SiteFile file = Describe(path);
    file.icon = loading == Loading::Missing ? u"Error3"_s : PageIcon(file.type);
    if (file.icon.isEmpty()) file.icon = u"Unknown3"_s; // a start page of another kind
    if (file.icon == u"Error3" || file.icon == u"Unknown3") file.tag = u"Error"_s;
    Tell(file);
    if (loading == Loading::Missing) return;
    if (loading == Loading::Loaded && ++m_searches[Files::Canonical(path)] > MostNames) return;
    m_pages.Enter(path, loading);
}

void Run::CollectPlainFile(const QString& path, Kind kind) {
    SiteFile file = Describe(path);
    if (Text::LowerCase(file.name).startsWith(u"javascript:")) return;
    file.icon = PageLoader::IsMissing(path) ? u"Error3"_s : kind == Pictures ? u"Image"_s : u"Unknown"_s;
    Tell(file);
}

void Run::Count(const QString& path, Kind kind) {
    KindSum& sum = m_result.sums[kind];
    sum.bytes += static_cast<double>(Files::SizeOf(path).value_or(0));
    ++sum.count;
}

// Looks at the next link of the innermost page.
void Run::FollowNextLink() {
    auto link = m_pages.Next();
    if (!link) return;
    link->text = WithoutQuotes(link->text);
    QString target = WithSingleSeparators(m_pages.TargetOf(*link), m_rootFolder);
    if (target.endsWith(u"')")) target.chop(2);
    if (target.isEmpty()) {
        m_pages.Leave();
        return;
    }
    if (m_seen.contains(target)) return;
    const Kind kind = KindOf(Text::UpperCase(Global::ExtensionOf(target, u"none"_s, 4)));
    const bool external = IsExternal(link->text);
    const bool plain = !external && IsPlainFile(target);
    if (kind != Others || plain) Count(target, kind);
    if (!external && IsSearched(kind) && target.count(u'.') <= 1) {
        CollectBackupFiles(target);
    } else if (plain) {
        CollectPlainFile(target, kind);
    } else if (!external && !m_leftOut.contains(target) && Files::MayBeThere(target)) {
        m_leftOut.insert(target);
        m_result.leftOut.append(target);
    }
}

} // namespace

Result Scan(const QString& root, const Listener& listener) { return Run(root, listener).Start(); }

bool IsOutside(const SiteFile& file, const QString& root) {
    return file.folder.contains(u"../") ||
           !Files::LiesWithin(file.path, root.first(root.lastIndexOf(u'\\') + 1));
}

} // namespace SiteScan
