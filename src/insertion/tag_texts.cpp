// SPDX-License-Identifier: MIT
#include "insertion/tag_texts.h"

#include "platform/literals.h"
#include "platform/text.h"

#include <algorithm>

namespace TagTexts {

namespace {

constexpr Button Tags[] = {{u"Bold", u"Fett", u"tag_bold"},
                           {u"Italic", u"Kusiv", u"tag_italic"},
                           {u"Underlined", u"Unterstrichen", u"tag_underlined"},
                           {u"AlignLeft", u"Linksbündig", u"tag_align_left"},
                           {u"AlignCenter", u"Zentriert", u"tag_align_center"},
                           {u"AlignRight", u"Rechtsbündig", u"tag_align_right"},
                           {u"AlignBlock", u"Blocksatz", u"tag_align_block"},
                           {u"Paragraph", u"Absatz", u"tag_paragraph"},
                           {u"Tab", u"Einrücken", u"tag_tab"},
                           {u"Font", u"Schriftart", u"tag_font"},
                           {u"High", u"Hochgestellt", u"tag_high"},
                           {u"Low", u"Tiefgestellt", u"tag_low"},
                           {u"Break", u"Zeilenumbruch", u"tag_break"},
                           {u"SpaceBar", u"Leerzeichen", u"tag_space_bar"},
                           {u"Comment", u"Kommentar", u"tag_comment"},
                           {u"Pre", u"Text", u"tag_pre"},
                           {u"Anchor", u"Anker", u"tag_anchor"},
                           {u"Link", u"Link", u"tag_link"},
                           {u"Mail", u"Mail", u"tag_mail"},
                           {u"Image", u"Bild", u"tag_image"},
                           {u"HorizontalRule", u"Horizontale Linie", u"tag_horizontal_rule"},
                           {u"Span", u"Span", u"tag_span"},
                           {u"H1", u"Überschrift 1", u"tag_h1"},
                           {u"H2", u"Überschrift 2", u"tag_h2"},
                           {u"H3", u"Überschrift 3", u"tag_h3"},
                           {u"H4", u"Uberschrift 4", u"tag_h4"},
                           {u"H5", u"Überschrift 5", u"tag_h5"},
                           {u"H6", u"Überschrift 6", u"tag_h6"}};

constexpr Button Characters[] = {{u"Copyright", u"Copyright", u"char_copyright"},
                                 {u"RegTrademark", u"RegTrademark", u"char_reg_trademark"},
                                 {u"Trademark", u"TM", u"char_trademark"},
                                 {u"And", u"&&", u"char_and"},
                                 {u"Paragraph", u"Paragraph", u"char_paragraph"},
                                 {u"ArrowLeft", u"ArrowLeft", u"char_arrow_left"},
                                 {u"ArrowRight", u"ArrowRight", u"char_arrow_right"},
                                 {u"DoubleArrowLeft", u"<<", u"char_double_arrow_left"},
                                 {u"DoubleArrowRight", u">>", u"char_double_arrow_right"},
                                 {u"Paragraph3", u"Paragraph3", u"char_paragraph3"}};

struct Row {
    QStringView key;
    QStringView before;
    QStringView after;
};
// The keys that are the same in every document type. "H7" has no button.
constexpr Row Pairs[] = {{u"Bold", u"<b>", u"</b>"},
                         {u"Italic", u"<i>", u"</i>"},
                         {u"Underlined", u"<u>", u"</u>"},
                         {u"AlignLeft", u"<div align=\"left\">", u"</div>"},
                         {u"AlignCenter", u"<div align=\"center\">", u"</div>"},
                         {u"AlignRight", u"<div align=\"right\">", u"</div>"},
                         {u"AlignBlock", u"<div align=\"justify\">", u"</div>"},
                         {u"Paragraph", u"<p>", u"</p>"},
                         {u"Tab", u"<ul>", u"</ul>"},
                         {u"Font", u"<font>", u"</font>"},
                         {u"High", u"<sup>", u"</sup>"},
                         {u"Low", u"<sub>", u"</sub>"},
                         {u"SpaceBar", u"&nbsp;", u""},
                         {u"Comment", u"<!--", u"-->"},
                         {u"Pre", u"<pre>", u"</pre>"},
                         {u"Anchor", u"<a name=\"\">", u"</a>"},
                         {u"Link", u"<a href=\"\">", u"</a>"},
                         {u"Mail", u"<a href=\"mailto:\">", u"</a>"},
                         {u"Span", u"<span>", u"</span>"},
                         {u"H1", u"<h1>", u"</h1>"},
                         {u"H2", u"<h2>", u"</h2>"},
                         {u"H3", u"<h3>", u"</h3>"},
                         {u"H4", u"<h4>", u"</h4>"},
                         {u"H5", u"<h5>", u"</h5>"},
                         {u"H6", u"<h6>", u"</h6>"},
                         {u"H7", u"<h7>", u"</h7>"}};

constexpr Row Entities[] = {{u"Copyright", u"&copy;", u""},         {u"RegTrademark", u"&reg;", u""},
                            {u"Trademark", u"&trade;", u""},        {u"And", u"&amp;", u""},
                            {u"Paragraph", u"&sect;", u""},         {u"ArrowLeft", u"&lt;", u""},
                            {u"ArrowRight", u"&gt;", u""},          {u"DoubleArrowLeft", u"&laquo;", u""},
                            {u"DoubleArrowRight", u"&raquo;", u""}, {u"Paragraph3", u"&para;", u""}};

Pair Lookup(std::span<const Row> rows, QStringView key) {
    const auto row = std::ranges::find(rows, key, &Row::key);
    if (row == rows.end()) return {};
    return {row->before.toString(), row->after.toString()};
}

} // namespace

std::span<const Button> TagButtons() { return Tags; }

std::span<const Button> CharacterButtons() { return Characters; }

Pair PairFor(QStringView key, const QString& docType) {
    const QString end = docType == u"XHTML" ? u" />"_s : docType == u"WML" ? u"/>"_s : u">"_s;
    if (key == u"Break") return {u"<br"_s + end + Text::LineBreak, {}};
    if (key == u"Image") return {u"<img src=\"\""_s + end, {}};
    if (key == u"HorizontalRule") return {u"<hr size=\"\" width=\"\""_s + end, {}};
    return Lookup(Pairs, key);
}

QString EntityFor(QStringView key) { return Lookup(Entities, key).before; }

} // namespace TagTexts
