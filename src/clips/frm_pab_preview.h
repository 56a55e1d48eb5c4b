// SPDX-License-Identifier: MIT
#pragma once

#include "clips/picture_reader.h"
#include "platform/window.h"

#include <QDialog>
#include <memory>

class QLabel;
class QMovie;
class QScrollArea;

// One picture in its full size; animated ones run.
class Frm_PABPreView : public QDialog, public SharedWindow {
    Q_OBJECT

public:
    Frm_PABPreView();
    ~Frm_PABPreView() override;

    // Loads the picture and gives the window its size. Tells in a message, and returns false, when that is
    // not possible. A picture that takes long comes when the window is shown already.
    bool LoadImage(const QString& path);

private:
    struct Job;

    bool Show(const Pictures::Picture& picture);
    void Run(QSize size);
    void Fit(QSize picture);
    static void TellFailure();

    QScrollArea* m_area;
    QWidget* m_sheet;
    QLabel* Pic_PreView;
    QLabel* Gif_PreView;
    QMovie* m_movie = nullptr;
    QString m_path;
    std::shared_ptr<Job> m_job;
};
