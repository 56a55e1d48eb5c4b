// SPDX-License-Identifier: MIT
#include "shell/wiring.h"

#include "documents/frm_code.h"
#include "platform/literals.h"
#include "platform/modal.h"
#include "shell/frm_info.h"
#include "shell/frm_load.h"
#include "shell/frm_main.h"
#include "shell/frm_welcome.h"
#include "shell/neighbours.h"

#include <QHash>
#include <functional>

namespace Wiring {

namespace {

struct WindowEntry {
    std::function<void()> unload;
    std::function<void()> show;
};

const QHash<QString, WindowEntry>& Windows() {
    static const QHash<QString, WindowEntry> windows{
        {u"Frm_Code"_s, {[] { Unload<Frm_Code>(); }, [] { Shared<Frm_Code>().BringToFront(); }}},
        {u"Frm_Welcome"_s, {[] { Unload<Frm_Welcome>(); }, [] { ShowModal<Frm_Welcome>(); }}},
        {u"Frm_Info"_s, {[] { Unload<Frm_Info>(); }, [] { ShowModal<Frm_Info>(); }}},
        {u"Frm_Load"_s, {[] { Unload<Frm_Load>(); }, [] { Shared<Frm_Load>().show(); }}},
    };
    return windows;
}

} // namespace

void WireWindows() {
    Neighbours::UnloadWindow.AnsweredBy([](const QString& name) {
        const auto window = Windows().constFind(name);
        if (window != Windows().constEnd()) window->unload();
    });
    Neighbours::RunTool.AnsweredBy([](const QString& name) {
        const auto window = Windows().constFind(name);
        if (window != Windows().constEnd()) window->show();
    });
}

void UnloadAll() {
    for (const WindowEntry& window : Windows()) window.unload();
    Unload<Frm_Main>();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace Wiring
