// SPDX-License-Identifier: MIT
#pragma once

#include "platform/window.h"
#include "state/tool_place.h"

#include <QElapsedTimer>

class QAbstractButton;

// What makes one tool window differ from another.
struct ToolKind {
    QString name; // of the window: "Frm_TagTools"
    QString caption;
    QString line; // what the assistant says while it is open
    bool* open;   // its shared flag
    Global::ToolPos* place;
    ToolPlace::Keeps keeps = ToolPlace::Keeps::Place;
    QSize preset = {}; // twips, outer; the size where none is kept
};

// A small window that stays open beside the document and writes into it. It does not take the keys from the
// code when it comes, gives the focus back behind each insertion, and comes back where it stood.
class ToolWindow : public QWidget, public SharedWindow {
    Q_OBJECT

public:
    explicit ToolWindow(ToolKind kind);
    void OnLoad() override;
    void OnUnload() override;
    // Shows the window; the keys stay where they are.
    void Present();

protected:
    // Each writes into the document as one undo step and gives the focus back to the code. Without a document
    // window nothing happens.
    void Wrap(const QString& before, const QString& after); // around the selection
    void Insert(const QString& text);                       // in place of the selection
    // Gives the keys back to the code, from a window that the desktop is just making the active one, too.
    void BackToCode();

    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    // Moves the window below the other tools that stand on the very same spot, as all do before they have
    // been moved for the first time.
    void StepAside();
    // The button that a key presses: the one with the focus or that with the access key; none for other keys.
    QAbstractButton* ButtonFor(const QKeyEvent& event) const;

    const ToolKind m_kind;
    QElapsedTimer m_wentBack; // since the keys went back to the code
};
