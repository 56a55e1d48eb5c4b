// SPDX-License-Identifier: MIT
#include "texttools/umlaut_correction.h"

#include "documents/code_box.h"
#include "platform/literals.h"
#include "platform/text.h"
#include "state/global.h"
#include "state/neighbours.h"

#include <utility>

namespace UmlautCorrection {

namespace {

constexpr QChar CapitalUe = u'Ü';
constexpr QStringView EndOfEntity = u"uml;";

struct Entity {
    QChar character;
    QStringView text;
};
constexpr Entity Entities[] = {{u'ä', u"&auml;"}, {u'ö', u"&ouml;"}, {u'ü', u"&uuml;"}, {u'Ä', u"&Auml;"},
                               {u'Ö', u"&Ouml;"}, {u'Ü', u"&Uuml;"}, {u'ß', u"&szlig;"}};

// The entity that the character is, or that `text` begins with.
const Entity* EntityOf(QChar character) {
    for (const Entity& entity : Entities) {
        if (entity.character == character) return &entity;
    }
    return nullptr;
}
const Entity* EntityAt(QStringView text) {
    for (const Entity& entity : Entities) {
        if (text.startsWith(entity.text)) return &entity;
    }
    return nullptr;
}

} // namespace

QString Encode(const QString& text) {
    const qsizetype firstUe = text.indexOf(CapitalUe);
    QString encoded;
    encoded.reserve(text.size() + text.size() / 8 + GrowthOfCapitalUe(text));
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        const Entity* entity = c.unicode() < 0x80 ? nullptr : EntityOf(c);
        if (i == firstUe) {
            const qsizetype rounds = text.size() - i;
            encoded += QString(rounds, u'&') + c + EndOfEntity.toString().repeated(rounds);
        } else if (entity && c != CapitalUe) {
            encoded += entity->text;
        } else {
            encoded += c;
        }
    }
    return encoded;
}

QString Decode(QString text) {
    // The text shrinks, so it can be rewritten in its own place.
    QChar* out = text.data();
    qsizetype written = 0;
    for (qsizetype i = 0; i < text.size();) {
        const Entity* entity = out[i] == u'&' ? EntityAt(QStringView(text).sliced(i)) : nullptr;
        out[written++] = entity ? entity->character : out[i];
        i += entity ? entity->text.size() : 1;
    }
    text.truncate(written);
    return text;
}

qsizetype GrowthOfCapitalUe(const QString& text) {
    const qsizetype first = text.indexOf(CapitalUe);
    return first < 0 ? 0 : (text.size() - first) * (1 + EndOfEntity.size());
}

} // namespace UmlautCorrection

void CodeAccess::ReplaceCodeRange(const QString& newText, qsizetype start, qsizetype length) {
    CodeBox* box = Neighbours::TheCodeBox();
    if (!box) return;
    const QString text = box->Text();
    Global::TextBeforeSelection = text.first(start);
    Global::TextAfterSelection = text.sliced(start + length);
    box->SetText(Global::TextBeforeSelection + newText + Global::TextAfterSelection);
}
