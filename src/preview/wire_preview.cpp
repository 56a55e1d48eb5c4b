// SPDX-License-Identifier: MIT
#include "preview/wire_preview.h"

#include "platform/events.h"
#include "platform/literals.h"
#include "preview/frm_browser.h"
#include "preview/frm_navigation.h"
#include "state/global.h"
#include "state/neighbours.h"
#include "state/windows.h"

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace Preview {

namespace {

// The web engine's sandbox refuses to start for root, whose program most often runs in a container.
void PrepareForRoot() {
#ifdef Q_OS_UNIX
    if (geteuid() == 0 && !qEnvironmentVariableIsSet("QTWEBENGINE_DISABLE_SANDBOX")) {
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    }
#endif
}

void Browse(const QString& path) {
    Shared<Frm_Browser>().SetBrowsingAlone(false);
    Shared<Frm_Browser>().BringToFront();
    Shared<Frm_Browser>().Navigate(path);
    Events::DoEvents();
    if (Loaded<Frm_Browser>()) Shared<Frm_Browser>().BringToFront(); // the events may have closed it
}

} // namespace

void WirePreview() {
    PrepareForRoot(); // ahead of the first view of any window
    Neighbours::Browse.AnsweredBy(Browse);
    Neighbours::LayoutBrowser.AnsweredBy([] {
        if (Loaded<Frm_Browser>()) Shared<Frm_Browser>().ActualizeSize();
    });
    Neighbours::FitBrowser.AnsweredBy([](bool fit) {
        if (Loaded<Frm_Browser>()) Shared<Frm_Browser>().Fit(fit);
    });
    Neighbours::PlaceBrowser.AnsweredBy([](int left, int top, int width, int height) {
        if (Loaded<Frm_Browser>()) Shared<Frm_Browser>().Place(left, top, width, height);
    });
}

void StartBrowsing() {
    Windows::Unload(u"Frm_Welcome");
    Shared<Frm_Browser>().SetBrowsingAlone(true);
    Shared<Frm_Browser>().BringToFront();
    Shared<Frm_Navigation>().Present();
}

void StartWAPBrowsing() {
    StartBrowsing();
    Neighbours::SetMainCaption(Global::ProgramName + u" [WAP Browser]"_s);
}

} // namespace Preview
