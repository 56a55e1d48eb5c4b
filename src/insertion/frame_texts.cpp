// SPDX-License-Identifier: MIT
#include "insertion/frame_texts.h"

#include "platform/literals.h"
#include "platform/text.h"

namespace FrameTexts {

namespace {

constexpr Layout All[] = {{u"Left", u"frame_left"},
                          {u"Right", u"frame_right"},
                          {u"Top", u"frame_top"},
                          {u"Bottom", u"frame_bottom"},
                          {u"LeftRight", u"frame_left_right"},
                          {u"TopBottom", u"frame_top_bottom"},
                          {u"LeftTop", u"frame_left_top"},
                          {u"TopLeft", u"frame_top_left"},
                          {u"LeftRightTopBottom", u"frame_left_right_top_bottom"}};

QString Line(int tabs, const QString& text) { return QString(tabs, u'\t') + text + Text::LineBreak; }

QString Frame(int tabs, const QString& name) { return Line(tabs, u"<frame src=\"%1.htm\">"_s.arg(name)); }

QString Frames(int tabs, const QStringList& names) {
    QString text;
    for (const QString& name : names) text += Frame(tabs, name);
    return text;
}

// A frameset whose first line begins behind `tabs` tabs. `inside` are its lines.
QString Set(int tabs, const QString& sizes, const QString& inside) {
    return Line(tabs, u"<frameset "_s + sizes + u'>') + inside + Line(tabs, u"</frameset>"_s);
}

} // namespace

std::span<const Layout> Layouts() { return All; }

QString For(QStringView kind) {
    const QString left = u"links"_s;
    const QString right = u"rechts"_s;
    const QString top = u"oben"_s;
    const QString bottom = u"unten"_s;
    const QString middle = u"mitte"_s;
    const QString narrowFirst = u"=\"30%, 70%\""_s;
    const QString narrowLast = u"=\"70%, 30%\""_s;
    const QString three = u"=\"30%, 30%, 30%\""_s; // they add up to 90: that is meant
    if (kind == u"Left") return Set(1, u"cols"_s + narrowFirst, Frames(2, {left, right}));
    if (kind == u"Right") return Set(1, u"cols"_s + narrowLast, Frames(2, {left, right}));
    if (kind == u"LeftRight") return Set(1, u"cols"_s + three, Frames(2, {left, middle, right}));
    if (kind == u"Top") return Set(1, u"rows"_s + narrowFirst, Frames(2, {top, bottom}));
    if (kind == u"Bottom") return Set(1, u"rows"_s + narrowLast, Frames(2, {top, bottom}));
    if (kind == u"TopBottom") return Set(1, u"rows"_s + three, Frames(2, {top, middle, bottom}));
    if (kind == u"LeftTop") {
        return Set(1, u"cols"_s + narrowFirst,
                   Frame(2, left) + Set(2, u"rows"_s + narrowFirst, Frames(3, {top, bottom})));
    }
    if (kind == u"TopLeft") {
        return Set(1, u"rows"_s + narrowFirst,
                   Frame(2, top) + Set(2, u"cols"_s + narrowFirst, Frames(3, {left, right})));
    }
    if (kind == u"LeftRightTopBottom") {
        return Set(1, u"rows=\"100%, 400, 100%\""_s,
                   Frame(2, top) + Set(2, u"cols=\"100%, 550, 100%\""_s, Frames(3, {left, middle, right})) +
                       Frame(2, bottom));
    }
    return {};
}

} // namespace FrameTexts
