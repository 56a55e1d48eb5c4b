// SPDX-License-Identifier: MIT
#include "debugger/wire_debugger.h"

#include "debugger/frm_debug.h"
#include "state/global.h"
#include "state/neighbours.h"

void WireDebugger() {
    Neighbours::ShowDebugger.AnsweredBy([] { Shared<Frm_DeBug>().Present(); });
    Neighbours::CheckSyntax.AnsweredBy([] {
        if (Global::DebuggerOpen) Shared<Frm_DeBug>().CheckSyntax();
    });
    Neighbours::DebuggerHeight.AnsweredBy(
        [] { return Global::DebuggerOpen ? Shared<Frm_DeBug>().Height() : 0; });
    Neighbours::LayoutDebugger.AnsweredBy([] {
        if (Global::DebuggerOpen) Shared<Frm_DeBug>().ActualizeSize();
    });
}
