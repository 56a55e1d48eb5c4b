// SPDX-License-Identifier: MIT
#include "project/wire_project.h"

#include "project/frm_project_manager.h"
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

} // namespace Project
