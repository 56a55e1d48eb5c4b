// SPDX-License-Identifier: MIT
#include "preview/wap_browser.h"

#include "documents/document_file.h"
#include "documents/paths.h"
#include "platform/events.h"
#include "platform/file_copy.h"
#include "platform/files.h"
#include "platform/literals.h"
#include "platform/text.h"
#include "project/file_management.h"
#include "project/site_copy.h"
#include "project/site_scan.h"
#include "state/busy.h"
#include "state/global.h"

#include <QScopedValueRollback>
#include <QSet>
#include <new>

namespace WAPBrowser {

namespace {

// The end of the document type is odd for one; that is meant.
const QString Head =
    u"<!DOCTYPE html PUBLIC \"-//W3C//DTD XHTML 1.0 Transitional//EN\" \"DTD/xhtml1-transitional.dtd\" />"
    "<html xmlns=\"http://www.w3.org/1999/xhtml\"><head><style type=\"text/css\"><!--body{background-color:"
    "#FFFFFF;color:#000000;font-family:arial;font-size:14px}a:link,a:active,a:visited{color:#0000FF;"
    "background-color:#FFFFFF}a:hover{color:#BBBBFF;background-color:#000099}--></style></head>"_s;

bool running = false; // the command's key may come again while events run

// "wml" and "htm" are those that are converted. Told by the name alone: a folder may have a dot, too.
QString KindOf(const QString& path) { return Global::ExtensionOf(Global::FileNameOf(path)); }
bool IsConverted(const QString& path) { return KindOf(path) == u"wml" || KindOf(path) == u"htm"; }

// The page of a deck or page.
QString PagePathOf(const QString& path) { return Global::StripExtension(path) + u"htm"_s; }

// Copies the file and converts the copy. One that lies in the scratch folder itself is not touched.
// `pages` are those made so far: of several files with one page the first has it, the document before all.
void Convert(const SiteFile& file, const QString& root, const std::function<bool()>& goOn,
             QSet<QString>& pages) {
    if (file.tag == u"Error") return;
    const QString target = SiteCopy::TargetOf(file, root, ScratchFolder());
    if (target.isEmpty() || Files::IsSameFile(file.tag, target)) return;
    const QString page = IsConverted(target) ? PagePathOf(target) : QString();
    const bool isTaken = pages.contains(page);
    if (isTaken && (target == page || KindOf(target) == u"wml")) return;
    if (!page.isEmpty() && !isTaken) {
        pages.insert(page);
        Files::Remove(page); // should this file fail, its page of an earlier run would be taken for it
    }
    FileManagement::MakeFullDirectory(Global::ParentPath(target));
    const bool copied = Files::CopyWithTimes(file.tag, target, goOn) == Files::CopyResult::Copied;
    if (copied && !isTaken) ConvertWmlFile(target);
}

// Takes away what an earlier run has made of another document of that name, unless the document itself lies
// in the scratch folder.
void RemoveStartPage() {
    const QString& root = Global::CurrentFile;
    if (!Files::IsSameFile(root, ScratchFolder() + Global::FileNameOf(root))) Files::Remove(StartPage());
}

} // namespace

QString ScratchFolder() { return Files::ProgramDirectory() + u"\\tmp\\"_s; }

QString StartPage() {
    return ScratchFolder() + Global::StripExtension(Global::FileNameOf(Global::CurrentFile)) + u"htm"_s;
}

QString PageOf(const QString& deck) {
    const QString upper = Text::UpperCase(deck);
    const qsizetype card = upper.indexOf(u"<CARD");
    if (card < 0) return deck;
    const qsizetype bracket = deck.indexOf(u'>', card);
    const qsizetype start = bracket < 0 ? card + 1 : bracket + 1;
    const qsizetype end = upper.indexOf(u"</CARD>", start);
    QString body = end < 0 ? deck.sliced(start) : deck.sliced(start, end - start) + u"</body></html>"_s;
    return Head + u"<body>"_s + body.replace(u".wml"_s, u".htm"_s, Qt::CaseInsensitive);
}

bool ConvertWmlFile(const QString& path) {
    if (!IsConverted(path)) return true;
    try {
        auto document = DocumentFile::Load(path);
        if (!document) return false;
        const QString page = PagePathOf(path);
        if (KindOf(path) == u"wml" || page == path) Files::Remove(path);
        // the declaration that told the encoding may be gone with what stood before the card
        if (document->format.encoding == CodePage::Encoding::Utf8) document->format.mark = true;
        const QString text = PageOf(document->text) + Text::LineBreak;
        return Files::WriteScratch(page, CodePage::Encode(text, document->format));
    } catch (const std::bad_alloc&) { // a file beyond memory is one that cannot be converted
        return false;
    }
}

bool GenerateWAPPreview() {
    if (running) return false;
    const QScopedValueRollback guard(running, true);
    const QString root = Global::CurrentFile;
    const auto isOpen = [&] { return Global::DocOpen && Global::CurrentFile == root; };
    Busy busy;
    Events::Pace pace;
    const auto goOn = [&] {
        if (pace.IsDue()) pace.LetEventsRun();
        return isOpen();
    };
    RemoveStartPage();
    const std::vector<SiteFile> files = SiteScan::Scan(root, {{}, goOn}).files;
    QSet<QString> pages;
    for (size_t i = 0; i < files.size() && goOn(); ++i) {
        busy.Progress(static_cast<qsizetype>(i) + 1, static_cast<qsizetype>(files.size()));
        Convert(files[i], root, goOn, pages);
    }
    return isOpen();
}

} // namespace WAPBrowser
