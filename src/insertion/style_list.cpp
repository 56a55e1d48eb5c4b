// SPDX-License-Identifier: MIT
#include "insertion/style_list.h"

#include "platform/files.h"
#include "platform/literals.h"
#include "state/lists.h"

#include <functional>

namespace StyleList {

namespace {

const QString BlockEnd = QStringLiteral("<e-");

// Goes through the blocks; `take` answers for a block's first token whether its entries are wanted.
Reading Walk(const std::function<bool(const QString&, QStringList&)>& take) {
    Reading reading;
    const auto text = Files::ReadProgramText(Files::ProgramFile(u"styles.lst"_s));
    reading.whole = text.has_value();
    if (!text) return reading;
    Lists::TokenReader reader(*text);
    while (const auto object = reader.Next()) {
        const bool wanted = take(*object, reading.entries);
        auto token = reader.Next();
        for (; token && *token != BlockEnd; token = reader.Next()) {
            if (wanted) reading.entries << *token;
        }
        reading.whole = token.has_value();
    }
    return reading;
}

} // namespace

Reading Objects() {
    return Walk([](const QString& object, QStringList& entries) {
        if (object != u"default") entries << object;
        return false;
    });
}

Reading EntriesOf(const QString& object) {
    return Walk([&](const QString& first, QStringList&) {
        return first == object || first == u"default" || (first == u"#" && object.startsWith(u'#'));
    });
}

} // namespace StyleList
