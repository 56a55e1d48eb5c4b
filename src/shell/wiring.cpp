// SPDX-License-Identifier: MIT
#include "shell/wiring.h"

#include "assistant/frm_assistant.h"
#include "assistant/frm_help.h"
#include "assistant/wire_assistant.h"
#include "debugger/frm_debug.h"
#include "debugger/wire_debugger.h"
#include "documents/frm_code.h"
#include "editing/code_aids.h"
#include "editing/frm_line_zoom.h"
#include "platform/literals.h"
#include "platform/modal.h"
#include "preview/frm_browser.h"
#include "preview/frm_navigation.h"
#include "preview/wire_preview.h"
#include "project/frm_project_manager.h"
#include "project/wire_project.h"
#include "shell/addresses.h"
#include "shell/frm_info.h"
#include "shell/frm_key_combo.h"
#include "shell/frm_load.h"
#include "shell/frm_main.h"
#include "shell/frm_new_update.h"
#include "shell/frm_options.h"
#include "shell/frm_update_message.h"
#include "shell/frm_welcome.h"
#include "shell/neighbours.h"
#include "shell/update_check.h"

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
        {u"Frm_Code"_s, {[] { Unload<Frm_Code>(); }, [] { Neighbours::ShowCodeWindow(); }}},
        {u"Frm_Welcome"_s, {[] { Unload<Frm_Welcome>(); }, [] { ShowModal<Frm_Welcome>(); }}},
        {u"Frm_Info"_s, {[] { Unload<Frm_Info>(); }, [] { ShowModal<Frm_Info>(); }}},
        {u"Frm_Options"_s, {[] { Unload<Frm_Options>(); }, [] { ShowModal<Frm_Options>(); }}},
        {u"Frm_KeyCombo"_s, {[] { Unload<Frm_KeyCombo>(); }, [] { ShowModal<Frm_KeyCombo>(); }}},
        {u"Frm_LineZoom"_s, {[] { Unload<Frm_LineZoom>(); }, [] { ShowModal<Frm_LineZoom>(); }}},
        {u"Frm_Assistant"_s, {[] { Unload<Frm_Assistant>(); }, [] { Neighbours::ShowAssistant(true); }}},
        {u"Frm_DeBug"_s, {[] { Unload<Frm_DeBug>(); }, [] { Shared<Frm_DeBug>().Present(); }}},
        {u"Frm_Browser"_s, {[] { Unload<Frm_Browser>(); }, Preview::StartBrowsing}},
        {u"WAPBrowser"_s, {[] {}, Preview::StartWAPBrowsing}}, // a mode of the browser, no window of its own
        {u"Frm_Navigation"_s, {[] { Unload<Frm_Navigation>(); }, [] { Shared<Frm_Navigation>().Present(); }}},
        {u"Frm_ProjectManager"_s,
         {[] { Unload<Frm_ProjectManager>(); }, Project::Menu_Tools_ProjectManager_Click}},
        {u"Frm_Help"_s, {[] { Unload<Frm_Help>(); }, [] { Shared<Frm_Help>().BringToFront(); }}},
        {u"Frm_NewUpdate"_s, {[] { Unload<Frm_NewUpdate>(); }, [] { ShowModal<Frm_NewUpdate>(); }}},
        {u"Frm_UpdateMessage"_s,
         {[] { Unload<Frm_UpdateMessage>(); }, [] { ShowModal<Frm_UpdateMessage>(); }}},
        {u"Frm_Load"_s, {[] { Unload<Frm_Load>(); }, [] { Shared<Frm_Load>().show(); }}},
    };
    return windows;
}

} // namespace

void WireWindows() {
    CodeAids::Wire();
    WireAssistant();
    WireDebugger();
    Preview::WirePreview();
    Project::WireProject();
    Neighbours::CheckForUpdate.AnsweredBy([] { UpdateCheck::CheckForUpdate(Addresses::UpdateCheck); });
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
