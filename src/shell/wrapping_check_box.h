// SPDX-License-Identifier: MIT
#pragma once

#include <QCheckBox>

// A check box whose caption goes on in further lines where it is too long for one.
class WrappingCheckBox : public QCheckBox {
    Q_OBJECT

public:
    explicit WrappingCheckBox(const QString& text, QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

protected:
    bool hitButton(const QPoint& place) const override;
    void paintEvent(QPaintEvent* event) override;

private:
    // The place of the caption in a box of that width, in pixels.
    QRect CaptionRect(int width) const;
    int FirstLineHeight() const;
    QSize SizeForColumns(int columns) const;
};
