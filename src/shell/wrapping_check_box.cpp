// SPDX-License-Identifier: MIT
#include "shell/wrapping_check_box.h"

#include <QStyleOptionButton>
#include <QStylePainter>
#include <algorithm>

namespace {
constexpr int CaptionFlags =
    Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap | Qt::TextShowMnemonic | Qt::TextDontClip;
constexpr int WantedColumns = 84;
constexpr int LeastColumns = 40;
} // namespace

WrappingCheckBox::WrappingCheckBox(const QString& text, QWidget* parent) : QCheckBox(text, parent) {
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum, QSizePolicy::CheckBox);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

// Some fonts draw the dots of a capital umlaut above the line.
int WrappingCheckBox::FirstLineHeight() const {
    return std::max(fontMetrics().height() + 2,
                    style()->pixelMetric(QStyle::PM_IndicatorHeight, nullptr, this));
}

QRect WrappingCheckBox::CaptionRect(int width) const {
    const int left = style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, this) +
                     style()->pixelMetric(QStyle::PM_CheckBoxLabelSpacing, nullptr, this);
    const int top = (FirstLineHeight() - fontMetrics().height()) / 2;
    const QRect room(left, top, std::max(1, width - left), QWIDGETSIZE_MAX);
    return fontMetrics().boundingRect(room, CaptionFlags, text());
}

int WrappingCheckBox::heightForWidth(int width) const {
    return std::max(FirstLineHeight(), CaptionRect(width).bottom() + 1);
}

QSize WrappingCheckBox::SizeForColumns(int columns) const {
    const QRect caption = CaptionRect(CaptionRect(0).left() + columns * fontMetrics().averageCharWidth());
    return {caption.right() + 2, std::max(FirstLineHeight(), caption.bottom() + 1)};
}

QSize WrappingCheckBox::sizeHint() const { return SizeForColumns(WantedColumns); }

QSize WrappingCheckBox::minimumSizeHint() const { return SizeForColumns(LeastColumns); }

bool WrappingCheckBox::hitButton(const QPoint& place) const {
    return QRect(QPoint(0, 0), CaptionRect(width()).bottomRight()).contains(place);
}

void WrappingCheckBox::paintEvent(QPaintEvent*) {
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    option.text.clear();
    option.rect.setHeight(FirstLineHeight());
    painter.drawControl(QStyle::CE_CheckBox, option);
    const QRect caption = CaptionRect(width());
    painter.drawItemText(caption.adjusted(0, 0, 1, 1), CaptionFlags, palette(), isEnabled(), text(),
                         foregroundRole());
}
