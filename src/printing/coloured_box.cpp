// SPDX-License-Identifier: MIT
#include "printing/coloured_box.h"

#include "documents/document_characters.h"
#include "platform/literals.h"
#include "platform/text.h"
#include "printing/text_formats.h"

#include <QMenu>
#include <QMimeData>
#include <QTextBlock>

namespace {

// Characters of a line that the widget lays out in one: it takes time by the square of the colours in it.
constexpr qsizetype LongestLine = 10'000;

// State of a block whose line goes on in the next one.
constexpr int GoesOn = 1;

// Where the parts of the line from `start` to `end` end, all but the last one; behind a blank if there is
// any.
void AddParts(QStringView text, qsizetype start, qsizetype end, std::vector<qsizetype>& ends) {
    while (end - start > LongestLine) {
        const qsizetype blank = text.sliced(start, LongestLine).lastIndexOf(u' ');
        start += blank > 0 ? blank + 1 : LongestLine;
        if (text[start].isLowSurrogate()) --start;
        ends.push_back(start);
    }
}

std::vector<qsizetype> PartEnds(QStringView text) {
    std::vector<qsizetype> ends;
    Text::Finder breaks(text, Text::LineBreak);
    for (qsizetype start = 0; start < text.size();) {
        const qsizetype hit = breaks.From(start + 1);
        const qsizetype end = hit ? hit - 1 : text.size();
        AddParts(text, start, end, ends);
        start = end + Text::LineBreak.size();
    }
    return ends;
}

QString WithBreaks(const QString& text, const std::vector<qsizetype>& ends) {
    if (ends.empty()) return text;
    QString broken;
    broken.reserve(text.size() + Text::LineBreak.size() * qsizetype(ends.size()));
    qsizetype start = 0;
    for (const qsizetype end : ends) {
        broken.append(QStringView(text).sliced(start, end - start)).append(Text::LineBreak);
        start = end;
    }
    return broken.append(QStringView(text).sliced(start));
}

} // namespace

ColouredBox::ColouredBox() {
    setReadOnly(true);
    setUndoRedoEnabled(false);
    QPalette paper = palette();
    paper.setColor(QPalette::Base, Qt::white);
    paper.setColor(QPalette::Text, Qt::black);
    setPalette(paper);
    events.mouseDown = [this](int button, int, double, double) {
        if (button != 2) return;
        QMenu* menu = createStandardContextMenu();
        menu->setAttribute(Qt::WA_DeleteOnClose);
        menu->popup(QCursor::pos());
    };
}

void ColouredBox::Show(const SyntaxSpans::ColouredText& text) {
    const std::vector<qsizetype> partEnds = PartEnds(text.text);
    BeginDocument(WithBreaks(text.text, partEnds));
    TextFormats::Lines lines(text.spans);
    auto partEnd = partEnds.begin();
    qsizetype start = 0;
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        const qsizetype length = block.length() - 1;
        const auto formats = lines.Of(start, length);
        if (!formats.isEmpty()) block.layout()->setFormats(formats);
        start += length;
        if (partEnd != partEnds.end() && *partEnd == start) {
            block.setUserState(GoesOn);
            ++partEnd;
        } else {
            start += Text::LineBreak.size();
        }
    }
    document()->markContentsDirty(0, document()->characterCount());
}

QMimeData* ColouredBox::createMimeDataFromSelection() const {
    const int from = textCursor().selectionStart();
    const int to = textCursor().selectionEnd();
    QString text;
    for (QTextBlock block = document()->findBlock(from); block.isValid(); block = block.next()) {
        const int begin = std::max(from - block.position(), 0);
        const int end = std::min(to - block.position(), block.length() - 1);
        text += QStringView(block.text()).sliced(begin, end - begin);
        if (block.next().position() > to || !block.next().isValid()) break;
        if (block.userState() != GoesOn) text += u'\n';
    }
    auto* mime = new QMimeData;
    mime->setText(DocumentCharacters::Shown(text));
    return mime;
}
