// SPDX-License-Identifier: MIT
#include "documents/link_list.h"

#include "platform/text.h"

#include <vector>

namespace {

QStringView Spelling(LinkMarker marker) {
    switch (marker) {
    case LinkMarker::Href:
        return u"href=\"";
    case LinkMarker::Src:
        return u"src=\"";
    case LinkMarker::Background:
        return u"background=\"";
    case LinkMarker::Url:
        return u"url(";
    case LinkMarker::Navigate:
        return u"navigate(";
    }
    return {};
}

struct Search {
    LinkMarker marker;
    Text::Finder finder;
};

struct Hit {
    LinkMarker marker = LinkMarker::Href;
    qsizetype position = 0; // 0: none
};

Hit FirstHit(std::vector<Search>& searches, qsizetype position) {
    Hit best;
    for (Search& search : searches) {
        const qsizetype found = search.finder.From(position);
        if (found != 0 && (best.position == 0 || found < best.position)) best = {search.marker, found};
    }
    return best;
}

} // namespace

LinkList FindLinks(const QString& text, const std::vector<LinkMarker>& markers) {
    const QString lower = Text::LowerCase(text);
    std::vector<Search> searches;
    for (const LinkMarker marker : markers) searches.push_back({marker, {lower, Spelling(marker)}});
    Text::Finder quote(text, u"\"");
    Text::Finder bracket(text, u")");

    LinkList result;
    qsizetype position = 1;
    while (true) {
        const Hit hit = FirstHit(searches, position);
        if (hit.position == 0) return result;
        qsizetype start = hit.position + Spelling(hit.marker).size();
        if (hit.marker == LinkMarker::Navigate) {
            const qsizetype opening = quote.From(hit.position);
            start = opening == 0 ? text.size() + 1 : opening + 1; // no quote to begin it, so none to end it
        }
        const qsizetype end = (hit.marker == LinkMarker::Url ? bracket : quote).From(start);
        if (end == 0) {
            result.cutShort = true;
            return result;
        }
        result.links.append(text.sliced(start - 1, end - start));
        position = end;
    }
}
