// SPDX-License-Identifier: MIT
#pragma once

#include "clips/picture_reader.h"

#include <QCache>
#include <QStringList>
#include <QWidget>

class ThumbnailLoader;

// The sheet with the thumbnails of a folder's files, six a row, drawn. It shows at once and fills as they
// come. A file that is no picture shows the one of the last picture before it, faded, and the label that it
// is of another kind, or the sign of a broken picture.
class ClipView : public QWidget {
    Q_OBJECT

public:
    explicit ClipView(QWidget* parent);

    // Shows the files `names` of `folder`; none is chosen.
    void Show(const QString& folder, const QStringList& names);
    qsizetype Count() const { return m_clips.size(); }
    qsizetype Chosen() const { return m_chosen; } // -1 without one
    QString PathOf(qsizetype index) const;
    QSize SizeOf(qsizetype index) const; // not valid while it is not known, and for what is no picture
    bool IsFilled() const { return m_known == Count(); }
    void Choose(qsizetype index);

signals:
    void ChosenChanged();     // to a picture
    void Filled(int percent); // of the files looked at
    void SizeKnown(qsizetype index);
    void PreviewWanted();
    void RemovalWanted();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    bool event(QEvent* event) override;

private:
    struct Clip {
        QString name;
        QSize size;
        bool known = false;   // looked at
        bool painted = false; // has a picture
    };

    void Take(qsizetype index, const Pictures::Picture& picture);
    QPixmap PixmapOf(qsizetype index);
    qsizetype LastGood(qsizetype index) const;
    void PaintClip(QPainter& painter, qsizetype index);
    void PaintLabel(QPainter& painter, qsizetype index) const;
    void PaintSelection(QPainter& painter) const;
    void Walk(qsizetype step);
    void TellReaders();
    QRect RoomOf(qsizetype index) const;

    QString m_folder;
    QList<Clip> m_clips;
    QCache<qsizetype, QPixmap> m_pixmaps; // cost in bytes
    ThumbnailLoader* const m_loader;
    qsizetype m_known = 0;
    qsizetype m_chosen = -1;
};
