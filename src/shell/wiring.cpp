// SPDX-License-Identifier: MIT
#include "shell/wiring.h"

#include "assistant/wire_assistant.h"
#include "debugger/wire_debugger.h"
#include "editing/code_aids.h"
#include "preview/wire_preview.h"
#include "project/ftp.h"
#include "project/wire_project.h"
#include "shell/addresses.h"
#include "shell/frm_main.h"
#include "shell/update_check.h"
#include "state/neighbours.h"
#include "state/windows.h"
#include "texttools/text_tool_commands.h"

#include <QCoreApplication>

namespace Wiring {

void WireWindows() {
    CodeAids::Wire();
    WireAssistant();
    WireDebugger();
    Preview::WirePreview();
    Project::WireProject();
    TextTools::WireTextTools();
    Neighbours::CheckForUpdate.AnsweredBy([] { UpdateCheck::CheckForUpdate(Addresses::UpdateCheck); });
    InstallWindows();
}

void UnloadAll() {
    Windows::UnloadAll();
    Unload<Frm_Main>();
    FTP::CloseConnection();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace Wiring
