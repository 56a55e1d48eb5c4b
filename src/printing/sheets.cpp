// SPDX-License-Identifier: MIT
#include "printing/sheets.h"

#include "platform/literals.h"
#include "platform/text.h"
#include "printing/text_formats.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPageLayout>
#include <QPainter>
#include <QScreen>
#include <algorithm>

namespace Sheets {

namespace {

const QMarginsF Margins(20, 15, 15, 12); // millimetres
constexpr double FootPoints = 8;
constexpr int TabColumns = 8;
// Characters of a line that are laid out together: a page in one line costs no more than one in many.
constexpr qsizetype LongestPiece = 2000;
constexpr double NoLimit = 1e6; // pixels; of a line that has been measured before

// A line on paper.
struct Line {
    qsizetype start = 0; // in characters of the text, from 0
    qsizetype length = 0;
};

class Typesetter {
public:
    Typesetter(QPagedPaintDevice& device, const SyntaxSpans::ColouredText& text, double points)
        : m_device(device), m_text(text), m_font(TextFormats::Font(points)), m_metrics(m_font, &device),
          m_footFont(TextFormats::Font(FootPoints)) {
        for (const bool bold : {false, true}) {
            QFont font = m_font;
            font.setBold(bold);
            m_column = std::max(m_column, QFontMetricsF(font, &device).maxWidth());
        }
        m_option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        m_option.setTextDirection(Qt::LeftToRight);
        // counted in dots of the screen on every device
        const double dots = QGuiApplication::primaryScreen()->logicalDotsPerInchY() / device.logicalDpiY();
        m_option.setTabStopDistance(TabColumns * m_metrics.horizontalAdvance(u' ') * dots);
    }

    // Where the lines on paper begin and end. Returns whether `goesOn` has let it come to the end.
    bool BreakLines(const SyntaxSpans::Progress& goesOn) {
        TextFormats::Lines formats(m_text.spans);
        const qsizetype size = m_text.text.size();
        Text::Finder breaks(m_text.text, Text::LineBreak);
        for (qsizetype start = 0;;) {
            const qsizetype hit = breaks.From(start + 1);
            const qsizetype end = hit ? hit - 1 : size;
            do {
                if (!goesOn(double(start) / double(std::max<qsizetype>(size, 1)))) return false;
                start = BreakPiece(start, end, formats);
            } while (start < end);
            if (!hit) return true;
            start = end + Text::LineBreak.size();
        }
    }

    int PageCount() const { return static_cast<int>((m_lines.size() + LinesAPage() - 1) / LinesAPage()); }

    // The lines of the page, which counts from 0, and its number.
    void DrawPage(QPainter& painter, int page, TextFormats::Lines& formats) const {
        const size_t first = static_cast<size_t>(page) * LinesAPage();
        const size_t last = std::min(first + LinesAPage(), m_lines.size());
        double top = 0;
        for (size_t i = first; i < last; ++i, top += m_metrics.lineSpacing()) {
            const Line& line = m_lines[i];
            if (line.length == 0) continue;
            QTextLayout layout;
            Prepare(layout, line.start, line.length, formats);
            layout.beginLayout();
            layout.createLine().setLineWidth(NoLimit);
            layout.endLayout();
            layout.draw(&painter, QPointF(0, top));
        }
        painter.setFont(m_footFont);
        painter.drawText(QRectF(0, 0, m_device.width(), m_device.height()),
                         Qt::AlignHCenter | Qt::AlignBottom,
                         u"Seite %1 von %2"_s.arg(page + 1).arg(PageCount()));
    }

private:
    // Above the foot, from which it keeps two lines off.
    size_t LinesAPage() const {
        const double foot = 3 * QFontMetricsF(m_footFont, &m_device).lineSpacing();
        return static_cast<size_t>(std::max(1.0, (m_device.height() - foot) / m_metrics.lineSpacing()));
    }

    // Whether `line` is surely no wider than the paper: the most lines need not be laid out to know that.
    bool Fits(QStringView line) const {
        return double(line.size()) * m_column <= m_device.width() &&
               std::all_of(line.begin(), line.end(), [](QChar c) { return c >= u' ' && c < u'\u0180'; });
    }

    void Prepare(QTextLayout& layout, qsizetype start, qsizetype length, TextFormats::Lines& formats) const {
        layout.setText(m_text.text.sliced(start, length));
        layout.setFont(QFont(m_font, &m_device));
        layout.setTextOption(m_option);
        layout.setFormats(formats.Of(start, length));
    }

    // Breaks a piece of the text's line from `start` to `end` and returns where the next one begins.
    qsizetype BreakPiece(qsizetype start, qsizetype end, TextFormats::Lines& formats) {
        const qsizetype length = std::min(end - start, LongestPiece);
        if (length == 0) {
            m_lines.push_back({start, 0});
            return end;
        }
        if (start + length == end && Fits(QStringView(m_text.text).sliced(start, length))) {
            m_lines.push_back({start, length});
            return end;
        }
        QTextLayout layout;
        Prepare(layout, start, length, formats);
        const size_t before = m_lines.size();
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLineWidth(m_device.width());
            m_lines.push_back({start + line.textStart(), line.textLength()});
        }
        layout.endLayout();
        // the piece's last line may go on behind it
        if (start + length == end || m_lines.size() - before < 2) return start + length;
        const qsizetype next = m_lines.back().start;
        m_lines.pop_back();
        return next;
    }

    QPagedPaintDevice& m_device;
    const SyntaxSpans::ColouredText& m_text;
    const QFont m_font;
    const QFontMetricsF m_metrics;
    const QFont m_footFont;
    double m_column = 0; // of the widest character
    QTextOption m_option;
    std::vector<Line> m_lines;
};

} // namespace

Result Print(QPagedPaintDevice& device, const SyntaxSpans::ColouredText& text, double points, int copies,
             const SyntaxSpans::Progress& progress) {
    device.setPageMargins(Margins, QPageLayout::Millimeter);
    QPainter painter;
    if (!painter.begin(&device)) return Result::Failed;
    painter.setPen(Qt::black);
    Typesetter typesetter(device, text, points);
    if (!typesetter.BreakLines([&](double done) { return progress(done / 4); })) return Result::Ended;
    const int pages = typesetter.PageCount();
    for (int copy = 0; copy < copies; ++copy) {
        TextFormats::Lines formats(text.spans);
        for (int page = 0; page < pages; ++page) {
            if (!progress(0.25 + 0.75 * (double(copy) * pages + page) / (double(copies) * pages)))
                return Result::Ended;
            if (copy + page > 0 && !device.newPage()) return Result::Failed;
            typesetter.DrawPage(painter, page, formats);
        }
    }
    return painter.end() ? Result::Printed : Result::Failed;
}

} // namespace Sheets
