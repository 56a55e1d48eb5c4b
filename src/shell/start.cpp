// SPDX-License-Identifier: MIT
// How the program comes up.
#include "documents/document_commands.h"
#include "documents/paths.h"
#include "documents/recovery.h"
#include "documents/undo.h"
#include "platform/clipboard.h"
#include "platform/dialogs_qt.h"
#include "platform/files.h"
#include "platform/literals.h"
#include "platform/modal.h"
#include "platform/numbers.h"
#include "platform/screen_place.h"
#include "platform/text.h"
#include "platform/twips.h"
#include "shell/frm_load.h"
#include "shell/frm_main.h"
#include "shell/frm_welcome.h"
#include "shell/main_menu.h"
#include "shell/tips.h"
#include "shell/wiring.h"
#include "state/commands.h"
#include "state/global.h"
#include "state/lists.h"
#include "state/settings.h"
#include "state/windows.h"

#include <QApplication>
#include <QClipboard>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <QMdiArea>
#include <QTimer>
#include <QTranslator>

namespace Program {

static QString& CommandLine() {
    static QString line;
    return line;
}

namespace {

// The standard dialogs speak German whatever the system speaks.
void SpeakGerman(QApplication& application) {
    QLocale::setDefault(QLocale::system().language() == QLocale::German
                            ? QLocale::system()
                            : QLocale(QLocale::German, QLocale::Germany));
    auto* translator = new QTranslator(&application);
    if (translator->load(u"qtbase_de"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QApplication::installTranslator(translator);
    }
}

// The browser engine does not ask for the desktop's palette: the handbook and pages that know a dark form
// would stay light. It reads this when it starts, with the first window that shows a page.
void TellEngineOfDarkPalette() {
    const QPalette palette = QGuiApplication::palette();
    if (palette.color(QPalette::Window).lightness() >= palette.color(QPalette::WindowText).lightness())
        return;
    const QByteArray flags = qgetenv("QTWEBENGINE_CHROMIUM_FLAGS");
    qputenv("QTWEBENGINE_CHROMIUM_FLAGS", flags + " --blink-settings=preferredColorScheme=0");
}

} // namespace

void ConnectClipboard() {
    Clipboard::Install({[](const QString& text) { QGuiApplication::clipboard()->setText(text); },
                        [] { return QGuiApplication::clipboard()->text(); }});
}

QString CheckInstallation() {
    for (int n = 1; n <= 9; ++n) {
        if (!Files::CanRead(Files::ProgramFile(u"anim%1.anm"_s.arg(n)))) return u"Update"_s;
    }
    return u"Full"_s;
}

QString FileArgument(const QString& commandLine) {
    QString argument = commandLine;
    if (!argument.isEmpty() && argument.front() == u'"' && argument.back() == u'"') {
        argument = argument.size() < 2 ? QString() : argument.sliced(1, argument.size() - 2);
    }
    return argument.isEmpty() ? QString() : Files::MakeFull(argument);
}

static bool& Ended() {
    static bool ended = false;
    return ended;
}

void End() {
    Ended() = true; // a start that ends before the event loop runs must not enter it
    QCoreApplication::exit(0);
}

int Main(int argc, char** argv) {
    QApplication::setAttribute(Qt::AA_ShareOpenGLContexts); // the browser view asks for it before the start
    QApplication application(argc, argv);
    QApplication::setApplicationName(u"sorvane"_s);
    QApplication::setApplicationDisplayName(QString());
    QApplication::setDesktopFileName(u"sorvane"_s);
    CommandLine() = application.arguments().sliced(1).join(u' ');
    SpeakGerman(application);
    TellEngineOfDarkPalette();
    ConnectClipboard();
    Dialogs::QtHandler dialogs(
        [] {
            return Global::CurrentFile.isEmpty() ? QString()
                                                 : Files::ToSystem(Global::ParentPath(Global::CurrentFile));
        },
        Global::ProgramName);
    Dialogs::Install(&dialogs);
    Wiring::WireWindows();

    Shared<Frm_Load>().show();
    Shared<Frm_Load>().SetStatus({});
    if (CheckInstallation() != u"Full") {
        Unload<Frm_Load>();
        Dialogs::Tell(Global::ProgramName,
                      u"Der Sorvane HTML Editor 3.0 ist nicht richtig installiert.\r"
                      "Das kann daran liegen, das Sie nur das Update installiert haben.\r"
                      "Das Programm muss komplett neu installiert werden."_s,
                      Dialogs::Icon::Exclamation);
        return 0;
    }
    int code = 0;
    try {
        Shared<Frm_Main>();
        if (!Ended()) code = QApplication::exec();
    } catch (const StartEnded&) {
        code = 0; // a list file is missing: the message has been read
    }
    Wiring::UnloadAll();
    Dialogs::Install(nullptr);
    return code;
}

} // namespace Program

void Frm_Main::EndOnBrokenFile(const QString& fileName) {
    Unload<Frm_Load>();
    Lists::TellBroken(fileName);
    throw Program::StartEnded();
}

void Frm_Main::RestorePlace() {
    const auto number = [](const QString& key, int preset) {
        double value = preset;
        Attempt([&] { value = Numbers::ReadNumber(Settings::GetSetting(key, preset)); });
        return Twips::ToPixels(value);
    };
    QRect place(number(u"Left"_s, 0), number(u"Top"_s, 0), number(u"Width"_s, 640), number(u"Height"_s, 480));
    place = FittedToScreen(place, {480, 360}); // where it can be seen and used
    move(place.topLeft());
    resize(place.size());
    m_wantedPlace = place;

    const auto stateNumber = [](const QString& text) {
        double value = 0;
        Attempt([&] { value = Numbers::ReadNumber(text); });
        return static_cast<int>(value);
    };
    int state = 2;
    if (stateNumber(Settings::GetSetting(u"WindowState"_s, QString())) != 1 && Global::FirstStart == 0) {
        state = stateNumber(Settings::GetSetting(u"WindowState"_s, 1));
    }
    if (state == 2) setWindowState(Qt::WindowMaximized);
    if (state == 1) setWindowState(Qt::WindowMinimized);
    // a window that starts otherwise has its place from the window manager when it comes back from the icon
    if (state == 1 || state == 2) m_wantedPlace = {};
}

void Frm_Main::OnLoad() {
    Attempt([] {
        Commands::SetChecked(u"Menu_Help_Assistant"_s,
                             Numbers::ReadBoolean(Settings::GetSetting(u"Assistant"_s, QString())));
    });
    m_loading = true;
    setEnabled(false);
    RestorePlace();
    show();
    const auto status = [](const QString& text) { Shared<Frm_Load>().SetStatus(text); };
    if (Settings::GetSetting(u"DontShowNewUpdate"_s, QString()) != u"True") {
        Global::DontShowNewUpdate = false;
        Neighbours::CheckForUpdate();
    } else {
        Global::DontShowNewUpdate = true;
    }
    Commands::SetVisible(u"Menu_Tools_MadCode"_s, true);
    m_menu->BuildToolbarMenus();
    Global::StartPending = true;
    status(u"Lade HTML-Elemente..."_s);
    if (!Lists::LoadTagList()) EndOnBrokenFile(u"taglist.lst"_s);
    if (!Lists::LoadNoCloseTags()) EndOnBrokenFile(u"attribute.lst"_s);
    status(u"Lade WordChange-Liste..."_s);
    if (!Lists::LoadWordChange()) EndOnBrokenFile(u"wordchange.lst"_s);
    status(u"Lade JavaScript-Informationen..."_s);
    Lists::LoadEventNames();
    Undo::UndoClear();
    setWindowTitle(Global::ProgramName);
    Global::DocOpen = false;
    Global::StartPending = true;
    const auto present = [](const QString& name) { return Files::CanRead(Files::ProgramFile(name)); };
    status(u"Suche Hilfedatei..."_s);
    Commands::SetEnabled(u"Menu_Help_Index"_s, present(u"support\\index.htm"_s));
    status(u"Suche Tramlink Plugin..."_s);
    Commands::SetEnabled(u"Menu_Tools_Tramlink"_s, present(u"Tramlink.exe"_s));
    status(u"Suche Skindatei..."_s);
    Global::SkinFileExists = present(u"skin.bmp"_s);
    status(u"Lade Optionen..."_s);
    Settings::LoadSettings();
    ShowWorkScreenSkin();
    status(u"Lade Assistent..."_s);
    if (!Tips::LoadTips()) EndOnBrokenFile(u"tips.lst"_s);
    if (Commands::IsChecked(u"Menu_Help_Assistant"_s)) Neighbours::ShowAssistant(true);
    status(u"Aktiviere Funktionen..."_s);
    Commands::SetVisible(u"Menu_File_RestoreFile"_s, Recovery::Exists());
    ActivateFunktions();
    status(u"Lade Editor..."_s);
    Unload<Frm_Load>();
    setEnabled(true);
    m_loading = false;
    if (m_closeWanted) {
        Exit();
        return;
    }
    // the dialogs of StartWork want a running event loop
    QTimer::singleShot(0, this, [this] { StartWork(); });
}

void Frm_Main::ShowWorkScreenSkin() {
    if (Global::WorkScreenSkin.isEmpty()) {
        m_area->setBackground(palette().brush(QPalette::Dark));
        return;
    }
    const QPixmap picture(Files::ToSystem(Global::WorkScreenSkin));
    if (!picture.isNull()) m_area->setBackground(picture);
}

void Frm_Main::StartWork() {
    if (!Global::StartPending) return;
    Global::StartPending = false;
    if (Global::UpdateLogExists()) Windows::Show(u"Frm_UpdateMessage");
    const QString file = Program::FileArgument(Program::CommandLine());
    if (!file.isEmpty()) {
        Documents::OpenFile(file);
    } else {
        ShowModal<Frm_Welcome>();
    }
}
