// SPDX-License-Identifier: MIT
// Every window is one shared instance: created on first touch, gone after its unload.
#pragma once

#include <QWidget>
#include <functional>

// What a shared window can do at the ends of its life. Each routine runs exactly once per life.
class SharedWindow {
public:
    virtual ~SharedWindow() = default;
    virtual void OnLoad() {}   // behind the constructor; Shared() already answers with this instance
    virtual void OnUnload() {} // before it goes; Shared() still answers with this instance

    // Ends the window's life; set by Shared(). A window calls it when its user closes it.
    std::function<void()> unloadSelf;
};

namespace SharedWindows {
template<class Window> struct Slot {
    static inline Window* instance = nullptr;
    static inline bool unloading = false;
};
} // namespace SharedWindows

// Whether the window exists.
template<class Window> bool Loaded() { return SharedWindows::Slot<Window>::instance != nullptr; }

// Ends the window's life: its unload routine runs, then it is deleted as soon as events run. Does nothing
// when the window does not exist or is ending already.
template<class Window> void Unload() {
    using Slot = SharedWindows::Slot<Window>;
    if (!Slot::instance || Slot::unloading) return;
    Slot::unloading = true;
    Window* window = Slot::instance;
    window->OnUnload();
    Slot::instance = nullptr;
    Slot::unloading = false;
    QWidget* frame = window->parentWidget();
    const bool framed = frame && frame->inherits("QMdiSubWindow");
    QWidget* outer = framed ? frame : static_cast<QWidget*>(window);
    outer->hide();
    outer->deleteLater();
}

// The one instance of the window, created and loaded when there is none.
template<class Window> Window& Shared() {
    using Slot = SharedWindows::Slot<Window>;
    if (!Slot::instance) {
        Slot::instance = new Window;
        Slot::instance->unloadSelf = [] { ::Unload<Window>(); };
        Slot::instance->OnLoad();
    }
    return *Slot::instance;
}
