// SPDX-License-Identifier: MIT
#include "printing/page_text.h"

#include "documents/paths.h"
#include "platform/numbers.h"
#include "platform/text.h"

namespace PageText {

namespace {

// With the decimal point or comma. Throws RuntimeError for what is no number.
double NumberIn(const QString& field) { return Numbers::ReadNumber(field.trimmed().replace(u',', u'.')); }

} // namespace

QString NameOf(const QString& path) { return path.isEmpty() ? u"unbenannt"_s : Global::FileNameOf(path); }

QString Head(const FileLine* file, const QString* own) {
    QString head;
    if (file) {
        const QString gap(5, u' ');
        head += u"\r\n "_s + NameOf(file->path) + gap + Text::UpperCase(file->type) + gap + file->date + gap +
                file->time;
    }
    if (own) head += u"\r\n "_s + *own;
    return head;
}

QString Whole(const QString& head, const QString& body) {
    return head + (head.isEmpty() ? u"\r\n"_s : u"\r\n\r\n"_s) + body;
}

Request Read(const QString& fontSize, const QString& copies) {
    Request request;
    const bool numbers = Attempt([&] {
        request.fontSize = NumberIn(fontSize);
        if (!(request.fontSize >= 8 && request.fontSize <= 14)) {
            request.refusal = u"Geben Sie eine Schriftgröße zwischen 8 und 14 ein."_s;
            return;
        }
        const double number = NumberIn(copies);
        // 99 is refused, whatever the message says; that is meant
        if (number >= 1 && number < 99) {
            request.copies = static_cast<int>(number);
        } else {
            request.refusal = u"Geben Sie eine Anzahl zwischen 1 und 99 ein."_s;
        }
    });
    if (!numbers) {
        request.refusal = u"Geben Sie für die Schriftgröße und die Seitenanzahl nur Zahlenwerte ein."_s;
    }
    return request;
}

} // namespace PageText
