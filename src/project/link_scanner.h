// SPDX-License-Identifier: MIT
// The project view of a site: from one page on it follows the links to further pages and tells a row for
// every file reached, every missing one and every external link.
#pragma once

#include <QString>
#include <functional>
#include <memory>

// A row of the file list. The list is sorted by `sortKey`: missing files "aaa", found ones by their
// extension, external links "zzz".
struct LinkRow {
    QString name;       // file name; of an external link its text
    QString title;      // of the page; that of the page loaded last where the file could not be loaded
    QString folder;     // path as seen from the start page's folder; of an external link its text
    QString linkedFrom; // full path of the page that holds the link; of the start page its own
    QString linkName;   // the link as it stands in that page
    QString sortKey;
    QString path; // full path, or the external link; the tool tip, and what makes a file count as seen
    QString tag;  // the path of a file of known kind, "Error", "Extern", or empty
    QString icon;
};

class LinkScanner {
public:
    struct Settings {
        int maxLinkDeep = 1; // how many files are searched in one scan
        bool listLinkErrors = false;
        bool showExternLinks = false;
        QString projectFiles; // extensions, each ended by a hyphen

        static Settings Current(); // as the user has set them
    };

    struct Counts {
        int files = 0;    // pages, scripts and style sheets reached, missing ones included
        int links = 0;    // links looked at
        int rows = 0;     // rows told, of these:
        int missing = 0;  // "Error"
        int external = 0; // "Extern"
        bool stopped = false;
    };

    // What a scan calls. It keeps its own copies, and asks `goOn` behind every event run before it calls
    // another, so a window may close in the middle of its scan.
    struct Listener {
        std::function<void(const LinkRow&)> addRow;
        std::function<bool()> goOn; // unset: whether the project window is open
        // Behind each link, and before the page that it leads to is searched. Unset: Events::DoEvents.
        std::function<void(const Counts&)> letEventsRun;
    };

    LinkScanner();

    // Scans from the file `root`, depth first; does nothing for an empty path. A link without an end and a
    // path that climbs above the root are told in a message and end the search of their file. A file that
    // cannot be loaded for any reason but its absence counts as found, and the text of the file loaded last
    // is searched under its path; that is meant, and the text is kept from scan to scan. A scan that starts
    // while another one lets events run stops that one. The scanner may go in the middle of a scan.
    Counts Scan(const QString& root, const Settings& settings, const Listener& listener);

private:
    struct State;
    std::shared_ptr<State> m_state;
    friend class LinkScan;
};
