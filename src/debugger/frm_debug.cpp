// SPDX-License-Identifier: MIT
#include "debugger/frm_debug.h"

#include "debugger/error_list.h"
#include "debugger/page_check.h"
#include "debugger/row_text.h"
#include "debugger/tag_spans.h"
#include "documents/frm_code.h"
#include "documents/paths.h"
#include "platform/files.h"
#include "platform/icons.h"
#include "platform/literals.h"
#include "platform/text.h"
#include "platform/twips.h"
#include "state/commands.h"
#include "state/global.h"
#include "state/neighbours.h"

#include <QVBoxLayout>
#include <algorithm>

namespace {

// All in twips.
constexpr int FirstHeight = 2250;
constexpr int LeastHeight = 1200;
constexpr int CodeRoom = 1500; // what the code keeps of the main window's height

const QColor TagColor(50, 50, 100);

// The others take the room that the strip leaves; so does the project window when it stands alone.
void GiveRoom() {
    if (Global::ProjectWindowOpen) {
        Neighbours::LayoutProjectManager(); // which lays out the others
        return;
    }
    if (Global::CodeWindowOpen) Shared<Frm_Code>().ActualizeSize();
    if (Global::BrowserOpen) Neighbours::LayoutBrowser();
}

} // namespace

Frm_DeBug::Frm_DeBug() : Lvw_Errors(new ErrorList(this)), m_height(FirstHeight) {
    setObjectName(u"Frm_DeBug"_s);
    Lvw_Errors->setObjectName(u"Lvw_Errors"_s);
    Lvw_Errors->setAccessibleName(u"Meldungen des Debuggers"_s);
    Lvw_Errors->setModel(&m_report);
    setFocusProxy(Lvw_Errors);
    connect(Lvw_Errors, &ErrorList::AboutToPress, this, &Frm_DeBug::RunOncePerActivation);
    connect(Lvw_Errors, &ErrorList::RowChosen, this, &Frm_DeBug::Errors_ItemClick);
    const auto backToCode = [] {
        if (Global::CodeWindowOpen) Neighbours::FocusCode();
    };
    connect(Lvw_Errors, &ErrorList::Released, this, backToCode);
    connect(Lvw_Errors, &ErrorList::EscapePressed, this, backToCode);
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(0, 0, 0, 0);
    all->addWidget(Lvw_Errors);
    BuildFrame();
}

void Frm_DeBug::BuildFrame() {
    // It stays at its edge: there is nothing to maximise or to minimise.
    if (Frame() != this) {
        Frame()->setWindowFlags(Qt::SubWindow | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint);
    }
    Frame()->setMinimumHeight(Twips::ToPixels(LeastHeight));
}

void Frm_DeBug::OnLoad() {
    Global::DebuggerOpen = true;
    SetCaption(Debugger::WindowCaption, Icons::Named(u"debug"));
    m_lists = Debugger::TagLists(Global::KnownTagString, Global::NoCloseTagString);
    if (Global::SkinFileExists) {
        Lvw_Errors->SetPicture(QPixmap(Files::ToSystem(Files::ProgramFile(u"skin.bmp"_s))));
    }
    if (Global::AssistantOpen) {
        Neighbours::RunAnimation(1, u"Dieser Debugger überprüft den HTML-Code und den CSS-Code gleich beim "
                                    u"Schreiben. Klicken Sie auf eine "
                                    "Fehlermeldung und der Fehler wird markiert. Im Menü 'Debugger' können "
                                    "Sie wählen, welcher Code geprüft "
                                    "werden soll. Wenn der Debugvorgang zu langsam sein sollte, können Sie "
                                    "eine Funktion abschalten, um so "
                                    "den Vorgang zu beschleunigen."_s);
    }
    ActualizeSize();
}

void Frm_DeBug::OnUnload() {
    Global::DebuggerOpen = false;
    GiveRoom();
}

void Frm_DeBug::Present() {
    BringToFront();
    RunOncePerActivation();
}

// --- the check
// ------------------------------------------------------------------------------------------------------

void Frm_DeBug::Activated() { RunOncePerActivation(); }

void Frm_DeBug::Deactivated() { m_checkedActive = false; }

// The mouse may press a row before the window hears of its activation. The check comes first then, so that
// the click meets a row of the new report.
void Frm_DeBug::RunOncePerActivation() {
    if (m_checkedActive) return;
    m_checkedActive = true;
    Commands::SetChecked(u"Menu_Debug_JavaScript"_s, false);
    CheckSyntax();
}

void Frm_DeBug::CheckSyntax() {
    if (!Global::CodeWindowOpen) return; // no text; the window goes with the code window
    const QString& file = Global::CurrentFile;
    Debugger::PageOptions options;
    options.html = Commands::IsChecked(u"Menu_Debug_HTML"_s);
    options.css = Commands::IsChecked(u"Menu_Debug_CSS"_s);
    options.showReport = Global::ShowDebugReport;
    options.accuracy = Global::DebugAccuracy;
    options.extension = Global::ExtensionOf(file, u"none"_s, file.size());
    Debugger::PageReport report = Debugger::CheckPage(Neighbours::TheCodeBox()->Text(), options, m_lists);
    if (report.caption) SetCaption(*report.caption);
    Lvw_Errors->KeepingPlace([&] { m_report.Replace(std::move(report.rows)); });
    if (file != m_checkedFile) Lvw_Errors->ToStart();
    m_checkedFile = file;
}

void Frm_DeBug::Errors_ItemClick(int row) {
    if (!Global::CodeWindowOpen) return;
    CodeBox* box = Neighbours::TheCodeBox();
    if (const auto selection = Debugger::SelectionOf(m_report.Row(row))) {
        box->SetSelStart(selection->start);
        box->SetSelLength(selection->length);
    }
    Neighbours::ShowCodeWindow();
}

void Frm_DeBug::ActualizeSyntaxColors() {
    if (!Global::CodeWindowOpen) return;
    Txt_Code* box = Shared<Frm_Code>().TextBox;
    const QString text = box->Text();
    QTextCharFormat format;
    format.setForeground(TagColor);
    QList<QTextEdit::ExtraSelection> selections;
    // a line break is one character of the shown document and two of the text
    qsizetype counted = 0;
    qsizetype breaks = 0;
    const auto documentPlace = [&](qsizetype position) {
        breaks += QStringView(text).sliced(counted, position - counted).count(u'\n');
        counted = position;
        return static_cast<int>(position - breaks);
    };
    for (const Debugger::TagSpan& tag : Debugger::TagSpans(text)) {
        QTextCursor cursor(box->document());
        cursor.setPosition(documentPlace(tag.start));
        cursor.setPosition(documentPlace(tag.start + tag.length), QTextCursor::KeepAnchor);
        selections.append({cursor, format});
    }
    box->setExtraSelections(selections);
}

// --- place
// ----------------------------------------------------------------------------------------------------------

bool Frm_DeBug::eventFilter(QObject* watched, QEvent* event) {
    const bool handled = MdiChild::eventFilter(watched, event);
    // Whoever pulls the strip away by its title finds it back at its edge.
    if (watched == Frame() && event->type() == QEvent::Move && !m_fitting) {
        QMetaObject::invokeMethod(
            this,
            [this] {
                if (Global::DebuggerOpen) ActualizeSize();
            },
            Qt::QueuedConnection);
    }
    return handled;
}

void Frm_DeBug::PlaceChanged(int /*state*/) {
    if (m_fitting || !Global::DebuggerOpen) return;
    m_height = Height(); // the user has dragged an edge
    ActualizeSize();
}

void Frm_DeBug::ActualizeSize() {
    if (m_fitting) return;
    const Neighbours::Size main = Neighbours::MainSize();
    if (main.width == 0) return;
    m_fitting = true;
    const int assistant = Global::AssistantOpen ? Neighbours::AssistantWidth() : 0;
    const int most = std::max(LeastHeight, main.height - 1370 - CodeRoom);
    const int height = std::clamp(m_height, LeastHeight, most);
    SetPlace(0, main.height - height - 1370, main.width - 180 - assistant, height);
    Lvw_Errors->SetColumnWidths(Twips::ToPixels(Width()));
    m_fitting = false;
    GiveRoom();
}
