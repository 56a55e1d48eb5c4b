// SPDX-License-Identifier: MIT
#include "texttools/code_packing.h"

#include "documents/code_box.h"
#include "documents/undo.h"
#include "platform/dialogs.h"
#include "platform/literals.h"
#include "platform/text.h"
#include "state/global.h"
#include "state/neighbours.h"

#include <algorithm>

namespace CodePacking {

namespace {

constexpr QStringView Opening = u"<!--";
constexpr QStringView Closing = u"-->";

bool BelongsToScriptOrStyle(QStringView tag) {
    return Text::EqualIgnoringCase(tag.first(std::min<qsizetype>(tag.size(), 6)), u"<STYLE") ||
           Text::EqualIgnoringCase(tag.first(std::min<qsizetype>(tag.size(), 7)), u"<SCRIPT");
}

} // namespace

Stripped WithoutComments(const QString& text) {
    const QStringView source = text;
    QString kept;
    kept.reserve(text.size());
    qsizetype taken = 0;      // `source` up to here is in `kept`, or gone
    qsizetype nearest = -1;   // the last "<" in `kept`
    qsizetype searchFrom = 0; // where the next comment may begin
    const auto keepUntil = [&](qsizetype end) {
        const QStringView piece = source.sliced(taken, end - taken);
        const qsizetype mark = piece.lastIndexOf(u'<');
        if (mark >= 0) nearest = kept.size() + mark;
        kept += piece;
        taken = end;
    };
    while (searchFrom <= source.size()) {
        const qsizetype comment = source.indexOf(Opening, searchFrom);
        if (comment < 0) break;
        keepUntil(comment);
        if (nearest >= 0 && BelongsToScriptOrStyle(QStringView(kept).sliced(nearest))) {
            searchFrom = comment + 1;
            continue;
        }
        const qsizetype end = source.indexOf(Closing, comment);
        if (end < 0) return {kept + source.sliced(comment), false};
        taken = end + Closing.size();
        searchFrom = taken + 1; // a comment that begins right here is passed over
    }
    kept += source.sliced(taken);
    return {kept, true};
}

QString InOneLine(const QString& text) {
    QString line;
    line.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        QChar c = text[i];
        if (c == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n') {
            c = u' ';
            ++i;
        } else if (c == u'\t') {
            c = u' ';
        }
        if (c != u' ' || !line.endsWith(u' ')) line += c;
    }
    return line;
}

} // namespace CodePacking

namespace CodeAccess {

namespace {

void TellOfOpenComment() {
    Dialogs::Tell(u"Fehler"_s, u"Ein Kommentar hat kein Ende. Er wurde nicht gelöscht."_s,
                  Dialogs::Icon::Critical);
}

void Rewrite(CodeBox& box, const QString& text) {
    if (text != box.Text()) box.SetText(text);
}

} // namespace

void DeleteComments() {
    CodeBox* box = Neighbours::TheCodeBox();
    if (!box) return;
    const auto [text, whole] = CodePacking::WithoutComments(box->Text());
    Rewrite(*box, text);
    if (!whole) TellOfOpenComment();
}

void ScrambleCode() {
    CodeBox* box = Global::CodeWindowOpen ? Neighbours::TheCodeBox() : nullptr;
    if (!box) return;
    Undo::PushUndo();
    const auto [text, whole] = CodePacking::WithoutComments(box->Text());
    Rewrite(*box, whole ? CodePacking::InOneLine(text) : text);
    if (!whole) TellOfOpenComment();
}

} // namespace CodeAccess
