// SPDX-License-Identifier: MIT
#include "project/page_walk.h"

#include "documents/code_access.h"
#include "documents/document_file.h"
#include "documents/paths.h"
#include "platform/dialogs.h"
#include "platform/file_copy.h"
#include "platform/files.h"
#include "platform/literals.h"

#include <algorithm>

namespace {

// Whether no file can bear the name, wherever the site is put up: it is not looked for in vain then. A link
// with a query ("seite.htm?x=1") is of that kind.
bool IsBadName(const QString& name) {
    return std::any_of(name.begin(), name.end(),
                       [](QChar c) { return c < u' ' || u"?*:<>|\""_s.contains(c); });
}

// Bytes. What is larger is no page, whatever its name; its text and what is made of it would fill the memory.
constexpr qint64 LargestPage = 100'000'000;

} // namespace

PageLoader::Loading PageLoader::Load(const QString& path) {
    if (Files::SizeOf(path).value_or(0) > LargestPage) return Loading::Failed;
    if (const auto document = DocumentFile::Load(path)) {
        m_text = document->text;
        m_title.reset();
        m_links.reset();
        return Loading::Loaded;
    }
    return IsMissing(path) ? Loading::Missing : Loading::Failed;
}

bool PageLoader::IsMissing(const QString& path) {
    if (Files::MayBeThere(path)) return false;
    Files::ReadError error = Files::ReadError::None;
    Files::Read(path, &error);
    return error == Files::ReadError::FileNotFound && !IsBadName(Global::FileNameOf(path));
}

const QString& PageLoader::Title() {
    if (!m_title) m_title = HTMLAccess::TitleOf(m_text);
    return *m_title;
}

std::shared_ptr<TextLinks> PageLoader::Links() {
    if (!m_links) {
        m_links = std::make_shared<TextLinks>();
        m_links->list = FindLinks(m_text, m_markers);
    }
    return m_links;
}

void PageWalk::Enter(const QString& path, PageLoader::Loading loading) {
    auto links = m_loader.Links();
    if (loading != PageLoader::Loading::Loaded && std::exchange(links->searchedAgain, true)) return;
    m_waiting.push_back({path, path.first(path.lastIndexOf(u'\\') + 1), std::move(links)});
}

std::optional<PageWalk::Link> PageWalk::Next() {
    Page& page = m_waiting.back();
    if (page.next < page.links->list.links.size()) {
        const qsizetype number = page.next++;
        return Link{page.links->list.links[number], page.path, number};
    }
    const bool tell = page.links->list.cutShort && !std::exchange(page.links->cutShortTold, true);
    m_waiting.pop_back();
    if (tell) Dialogs::Tell({}, u"Unerwarteter Fehler."_s, Dialogs::Icon::None);
    return std::nullopt;
}

QString PageWalk::TargetOf(const Link& link) const {
    const Page& page = m_waiting.back();
    const QString file = Global::CutBefore(link.text, u"#"_s); // the folder may have one in its name
    if (const auto path = Global::PathOfLink(file, page.folder)) return *path;
    const qsizetype told = page.links->unresolvedTold.size();
    page.links->unresolvedTold.insert(link.number);
    const bool isNew = page.links->unresolvedTold.size() > told;
    return isNew ? Global::ResolveLink(file, page.folder) : QString();
}
