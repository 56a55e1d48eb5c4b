// SPDX-License-Identifier: MIT
#include "project/wire_project.h"

#include "documents/document_commands.h"
#include "platform/dialogs.h"
#include "platform/literals.h"
#include "platform/modal.h"
#include "project/frm_project_manager.h"
#include "project/frm_speed_check.h"
#include "state/global.h"
#include "state/neighbours.h"

namespace Project {

namespace {

// Answers a call that only a loaded window has something to do for.
template<class Routine> auto WhenOpen(Routine routine) {
    return [routine] {
        if (Global::ProjectWindowOpen) routine(Shared<Frm_ProjectManager>());
    };
}

} // namespace

void WireProject() {
    using namespace Neighbours;
    ShowProjectManager.AnsweredBy([] { Shared<Frm_ProjectManager>().ShowBeside(); });
    ProjectManagerWidth.AnsweredBy(
        [] { return Global::ProjectWindowOpen ? Shared<Frm_ProjectManager>().Width() : 0; });
    LayoutProjectManager.AnsweredBy(
        WhenOpen([](Frm_ProjectManager& window) { window.ActualizeSize(false); }));
    SearchLinks.AnsweredBy(WhenOpen([](Frm_ProjectManager& window) { window.SearchLinks(); }));
    DeleteFileIndex.AnsweredBy(WhenOpen([](Frm_ProjectManager& window) { window.DeleteFileIndex(); }));
    RefreshProject.AnsweredBy(WhenOpen([](Frm_ProjectManager& window) { window.Refresh(); }));
    ReturnIndexFile.AnsweredBy([] {
        return Global::ProjectWindowOpen ? Shared<Frm_ProjectManager>().ReturnIndexFile() : QString();
    });
}

void Menu_Tools_ProjectManager_Click() {
    Shared<Frm_ProjectManager>().BringToFront();
    Shared<Frm_ProjectManager>().SearchLinks();
}

void Menu_Tools_SpeedCheck_Click() {
    Documents::Menu_File_Save_Click();
    if (!Global::SaveSucceeded) return;
    if (Global::CurrentFile.isEmpty()) {
        Dialogs::Tell(u"SpeedCheck"_s, u"Sie müssen die Seite zuerst speichern."_s,
                      Dialogs::Icon::Exclamation);
        return;
    }
    ShowModal<Frm_SpeedCheck>();
}

} // namespace Project
