// SPDX-License-Identifier: MIT
#include "documents/frm_code.h"

#include "documents/paths.h"
#include "documents/undo.h"
#include "platform/drop_down_list.h"
#include "platform/icons.h"
#include "platform/literals.h"
#include "platform/text.h"
#include "platform/twips.h"
#include "state/commands.h"
#include "state/global.h"
#include "state/lists.h"
#include "state/neighbours.h"
#include "state/windows.h"

#include <QKeyEvent>
#include <QToolBar>

namespace {

constexpr int ScriptBarHeight = 330; // twips
constexpr int CountingTime = 50;     // milliseconds in one go

struct Tool {
    QStringView window;
    bool* open;
    Global::ToolPos* place;
};

// The tools that come back with the document window, in their order.
const Tool Tools[] = {{u"Frm_TagTools", &Global::TagToolOpen, &Global::TagToolPos},
                      {u"Frm_Color", &Global::ColorToolOpen, &Global::ColorToolPos},
                      {u"Frm_KCC", &Global::KCCToolOpen, &Global::KCCToolPos},
                      {u"Frm_Events", &Global::EventToolOpen, &Global::EventToolPos},
                      {u"Frm_Characters", &Global::CharactersToolOpen, &Global::CharactersToolPos},
                      {u"Frm_FormatSubClass", &Global::FormatSubClassOpen, &Global::FormatSubClassPos}};

} // namespace

Frm_Code::Frm_Code()
    : ScriptBarShown(Commands::IsChecked(u"Menu_View_ShowJavaScriptBar"_s)), TextBox(new Txt_Code(this)),
      Pic_ToolBar(new QWidget(this)), Cmb_Functions(new DropDownList(Pic_ToolBar)),
      Cmb_Variables(new DropDownList(Pic_ToolBar)), Tlb_JavaScript(new QToolBar(Pic_ToolBar)) {
    setObjectName(u"Frm_Code"_s);
    setFocusProxy(TextBox);
    Pic_ToolBar->setObjectName(u"Pic_ToolBar"_s);
    Pic_ToolBar->setAutoFillBackground(true);
    Cmb_Functions->setObjectName(u"Cmb_Functions"_s);
    Cmb_Variables->setObjectName(u"Cmb_Variables"_s);
    Tlb_JavaScript->setObjectName(u"Tlb_JavaScript"_s);
    TextBox->raise(); // covers the script bar while it is at the top
    TextBox->events.change = [this] { Code_Change(); };
    TextBox->events.keyDown = [this](int key, int shift) { Code_KeyDown(key, shift); };
    TextBox->events.keyUp = [](int key, int shift) { Neighbours::CodeKeyUp(key, shift); };
    TextBox->events.mouseDown = [this](int button, int shift, double x, double y) {
        Code_MouseDown(button, shift, x, y);
    };
    TextBox->events.mouseMove = [](double x, double y) { Neighbours::CodeMouseMove(x, y); };
    TextBox->events.selChange = [this] {
        Neighbours::ActivateFunktions();
        GetCursorPos();
    };
    TextBox->events.lostFocus = [] { Neighbours::CodeLostFocus(); };
    for (QWidget* control : {static_cast<QWidget*>(TextBox), static_cast<QWidget*>(Cmb_Functions),
                             static_cast<QWidget*>(Cmb_Variables)}) {
        TakeIntoKeyPreview(control);
    }
    m_counting.setSingleShot(true);
    m_counting.setInterval(0);
    connect(&m_counting, &QTimer::timeout, this, &Frm_Code::GetCursorPos);
    SetPlace(0, 0, SavedWidth, SavedHeight);
}

void Frm_Code::OnLoad() {
    Global::CodeWindowOpen = true;
    SetCaption(u"HTML Code"_s, Icons::Named(u"code"));
    FitMode = Global::AutoMaximize ? 2 : 0;
    SavedWidth = Width();
    SavedHeight = Height();
    Neighbours::AttachToCode(this);
    ReopenTools();
    LoadAssistantHelp();
    LoadAttributeText();
    LoadScriptObjects();
    // The held text is the document's own: its coming back is a change, but no step of the undo.
    Global::SkipUndoOnChange = true;
    TextBox->BeginDocument(Global::HeldSource);
    ActualizeSize();
    Neighbours::ActivateFunktions();
}

void Frm_Code::OnUnload() {
    Global::CodeWindowOpen = false;
    m_counting.stop();
    RememberTools();
    Neighbours::SetStatusPanel(Neighbours::RowPanel, {});
    Neighbours::SetStatusPanel(Neighbours::ColumnPanel, {});
    Windows::Unload(u"Frm_DeBug");
    Windows::Unload(u"Frm_Search");
    Global::HeldSource = TextBox->Text();
    TextBox->events = {};
    if (Global::ProjectWindowOpen) Neighbours::RefreshProject();
    Neighbours::ActivateFunktions();
    Neighbours::AttachToCode(nullptr);
}

void Frm_Code::ReopenTools() {
    for (const Tool& tool : Tools) {
        if ((*tool.place)[0] == u"True") Windows::Show(tool.window);
    }
}

void Frm_Code::RememberTools() {
    for (const Tool& tool : Tools) {
        const bool open = *tool.open;
        if (open) Windows::Unload(tool.window);
        (*tool.place)[0] = open ? u"True"_s : u"False"_s;
    }
}

void Frm_Code::LoadAssistantHelp() {
    // Without the help the program goes on; the assistant tells of the missing file itself.
    AssistantHelpText = Lists::ReadLinesJoined(u"assistant.hlp"_s).value_or(QString());
}

void Frm_Code::LoadAttributeText() {
    AttributeText = Lists::ReadLinesJoined(u"attribute.lst"_s).value_or(QString());
}

void Frm_Code::LoadScriptObjects() { ScriptObjectText = Lists::ReadScriptObjects(); }

// --- events of the code box
// ---------------------------------------------------------------------------------------

void Frm_Code::Code_Change() {
    if (Global::SkipUndoOnChange) {
        Global::SkipUndoOnChange = false;
    } else {
        Undo::PushUndo();
    }
    if (IsShown()) TextBox->SetFocus();
    Global::DocChanged = true;
    Neighbours::SetStatusPanel(Neighbours::StatePanel, u"geändert"_s);
    Neighbours::WatchTagForAssistant();
    SyntaxChecked = false;
    Neighbours::HidePopupList();
    // No automatic rewrite acts on an undo or redo, be it the program's or the box's own.
    const bool stepping = Undo::IsStepping() || TextBox->IsStepping();
    if (!stepping && Commands::IsChecked(u"Menu_Tools_AutoUml"_s)) Neighbours::SubstituteUmlauts();
}

void Frm_Code::Code_KeyDown(int key, int shift) { Neighbours::CodeKeyDown(key, shift); }

void Frm_Code::CheckOnce() {
    if (SyntaxChecked || !Global::DebuggerOpen) return;
    SyntaxChecked = true;
    Neighbours::CheckSyntax();
}

void Frm_Code::Code_MouseDown(int button, int shift, double x, double y) {
    CheckOnce();
    Neighbours::CodeMouseDown(button, shift, x, y);
}

bool Frm_Code::eventFilter(QObject* watched, QEvent* event) {
    // The key preview: every key pressed in the window takes an undo copy before anything else acts on it.
    if (event->type() == QEvent::KeyPress && watched != this && watched != Frame()) Undo::PushUndo();
    return MdiChild::eventFilter(watched, event);
}

void Frm_Code::GetCursorPos() {
    const qsizetype caret = TextBox->SelStart();
    // Behind a jump across a long page the lines before the caret are counted piece by piece, with room for
    // keys.
    if (!TextBox->CountsLinesTo(caret, CountingTime)) {
        Neighbours::SetStatusPanel(Neighbours::RowPanel, u"Ze ..."_s);
        Neighbours::SetStatusPanel(Neighbours::ColumnPanel, u"Sp ..."_s);
        m_counting.start();
        return;
    }
    m_counting.stop();
    const qsizetype line = TextBox->LineFromChar(caret) + 1;
    const qsizetype start = TextBox->LineIndex(line - 1);
    Neighbours::SetStatusPanel(Neighbours::RowPanel, u"Ze "_s + QString::number(line));
    Neighbours::SetStatusPanel(Neighbours::ColumnPanel, u"Sp "_s + QString::number(caret - start + 1));
}

// --- place
// --------------------------------------------------------------------------------------------------------

void Frm_Code::ActivateToolBar() {
    if (ScriptBarShown) m_codeTop = ScriptBarHeight;
    const QString extension = Text::UpperCase(Global::ExtensionOf(Global::CurrentFile));
    const bool script = extension == u"JS" || Global::DocType == u"JS";
    const QString caption = script                ? u"JavaScript Code"_s
                            : extension == u"VBS" ? u"VBScript Code"_s
                            : extension == u"CSS" ? u"StyleSheet Code"_s
                                                  : u"HTML Code"_s;
    SetCaption(caption);
    if (script) {
        m_codeTop = ScriptBarHeight;
    } else if (!ScriptBarShown) {
        m_codeTop = 0;
    }
    const bool previewed = caption == u"HTML Code";
    for (const QString& name : {u"Menu_View_Browser_Once"_s, u"Menu_View_Browser_Temp"_s,
                                u"ToolBar_Browser_Once"_s, u"ToolBar_Browser_Temp"_s}) {
        Commands::SetEnabled(name, previewed);
    }
    LayOut();
}

void Frm_Code::PlaceChanged(int state) {
    if (state != 2) return;
    // The window is never really maximised: the button switches between the fitted and the former place.
    SetNormalState();
    if (FitMode != 0) {
        FitMode = 0;
        SetPlace(SavedLeft, SavedTop, SavedWidth, SavedHeight);
        return;
    }
    FitMode = 2;
    SavedLeft = Left();
    SavedTop = Top();
    SavedWidth = Width();
    SavedHeight = Height();
    ActualizeSize();
}

void Frm_Code::ActualizeSize() {
    if (FitMode != 2) return;
    const Neighbours::Size main = Neighbours::MainSize();
    if (main.width == 0) return;
    const int assistant = Global::AssistantOpen ? Neighbours::AssistantWidth() : 0;
    const int debugger = Global::DebuggerOpen ? Neighbours::DebuggerHeight() : 0;
    const int project = Global::ProjectWindowOpen ? Neighbours::ProjectManagerWidth() : 0;
    SetPlace(1 + project, 1, main.width - assistant - 180 - project, main.height - 1370 - debugger);
}

void Frm_Code::resizeEvent(QResizeEvent* event) {
    MdiChild::resizeEvent(event);
    LayOut();
}

void Frm_Code::LayOut() {
    // The formulas take the outer size to be the inner one plus fixed borders.
    const int outerWidth = Twips::FromPixels(width()) + 120;
    const int outerHeight = Twips::FromPixels(height()) + 405;
    const auto place = [](QWidget* control, int left, int top, int controlWidth, int controlHeight) {
        control->setGeometry(Twips::ToPixels(left), Twips::ToPixels(top), Twips::ToPixels(controlWidth),
                             Twips::ToPixels(controlHeight));
    };
    place(TextBox, 0, m_codeTop, outerWidth - 120, outerHeight - 405 - m_codeTop);
    place(Pic_ToolBar, 0, 0, outerWidth, ScriptBarHeight);
    const int list = outerWidth / 2 - 240;
    place(Cmb_Functions, 0, 0, list, ScriptBarHeight);
    place(Tlb_JavaScript, list, 0, 360, ScriptBarHeight);
    place(Cmb_Variables, list + 360, 0, list, ScriptBarHeight);
}

void Frm_Code::Activated() {
    GetCursorPos();
    ActivateToolBar();
}

void Frm_Code::Deactivated() { Neighbours::HidePopupList(); }
