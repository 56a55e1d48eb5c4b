// SPDX-License-Identifier: MIT
#include "state/settings.h"

#include "platform/files.h"
#include "platform/numbers.h"
#include "platform/text.h"
#include "state/commands.h"
#include "state/global.h"
#include "state/neighbours.h"

#include <initializer_list>

namespace Settings {

namespace {

const QString BreakMarker = QStringLiteral("<brk-");

QString FilePath() { return Files::ProgramDirectory() + u"\\edit.ini"_s; }

// The same, where a read-only installation may have shipped one.
QString ReadPath() { return Files::ProgramFile(u"edit.ini"_s); }

struct ToolKeys {
    QStringView comment;
    QStringView prefix;
    Global::ToolPos* place;
    int stored; // 2: left and top; 4: width and height as well
};

// In the order of the file.
const std::initializer_list<ToolKeys>& Tools() {
    static const std::initializer_list<ToolKeys> tools{
        {u"tagtoolwindow", u"TagTool", &Global::TagToolPos, 4},
        {u"colortoolwindow", u"ColorTool", &Global::ColorToolPos, 2},
        {u"kcctoolwindow", u"KCCTool", &Global::KCCToolPos, 2},
        {u"eventtoolwindow", u"EventTool", &Global::EventToolPos, 2},
        {u"characterstoolwindow", u"CharactersTool", &Global::CharactersToolPos, 4},
        {u"formatsubclasswindow", u"FormatSubClass", &Global::FormatSubClassPos, 2},
        {u"navigationbar", u"Navigation", &Global::NavigationPos, 2},
        {u"linezoom", u"LineZoom", &Global::LineZoomPos, 4},
    };
    return tools;
}

constexpr QStringView PlaceWords[] = {u"", u"Left", u"Top", u"Width", u"Height"};

QString ToolKey(const ToolKeys& tool, int element) { return tool.prefix.toString() + PlaceWords[element]; }

// The first run: nobody is told, the defaults are simply there.
void InstallDefaults() {
    Commands::SetChecked(u"Menu_Help_Assistant"_s, true);
    Commands::SetChecked(u"Menu_Tools_Option_2"_s, false);
    Commands::SetChecked(u"Menu_Tools_AutoUml"_s, false);
    Global::AutoDebug = Global::AutoMaximize = Global::AutoProjectManager = Global::UseWindowsMenu = true;
    Global::AutoPreView = false;
    Global::KeyCombos.fill({});
    Commands::SetChecked(u"Menu_Debug_HTML"_s, true);
    Commands::SetChecked(u"Menu_Debug_CSS"_s, true);
    Global::ShowDebugReport = Global::ListLinkErrors = Global::ShowExternLinks = true;
    Global::MaxLinkDeep = 1;
    Global::DebugAccuracy = 100;
    Global::FirstStart = 2;
    Global::SettingsRead = true;
    for (const ToolKeys& tool : Tools()) {
        (*tool.place)[1] = (*tool.place)[2] = u"600"_s;
        if (tool.stored == 4) (*tool.place)[3] = (*tool.place)[4] = QString();
    }
    // A file that is there but cannot be read may still hold what the user wants back.
    if (Files::SizeOf(FilePath())) Files::Rename(FilePath(), FilePath() + u".bak"_s);
    WriteSettings();
}

class Writer {
public:
    void Line(const QString& text) { m_text += text + u"\r\n"_s; }
    void Blank() { Line({}); }
    void Comment(QStringView text) { Line(u"// "_s + text); }
    void Value(QStringView key, const QString& value) { Line(key + u"="_s + value); }
    void Value(QStringView key, int value) { Value(key, QString::number(value)); }
    void Truth(QStringView key, bool value) { Value(key, Numbers::TruthWord(value)); }
    const QString& Text() const { return m_text; }

private:
    QString m_text;
};

void WriteMainWindow(Writer& file) {
    const Neighbours::MainPlace place = Neighbours::ReadMainPlace();
    const bool normal = place.state == 0;
    file.Comment(u"window position and size");
    file.Value(u"Left", normal ? place.left : 1);
    file.Value(u"Top", normal ? place.top : 1);
    file.Value(u"Width", normal ? place.width : 12000);
    file.Value(u"Height", normal ? place.height : 9000);
    file.Value(u"WindowState", place.state);
    file.Blank();
}

void WriteGeneral(Writer& file) {
    file.Comment(u"general editingoptions");
    file.Truth(u"Assistant", Commands::IsChecked(u"Menu_Help_Assistant"_s));
    file.Truth(u"SaveSmallTags", Commands::IsChecked(u"Menu_Tools_Option_2"_s));
    file.Truth(u"AutoUml", Commands::IsChecked(u"Menu_Tools_AutoUml"_s));
    file.Value(u"WorkScreenSkin", Global::WorkScreenSkin);
    file.Value(u"CurrentTip", Global::CurrentTip);
    file.Truth(u"UseWindowsMenu", Global::UseWindowsMenu);
    file.Truth(u"DontShowNewUpdate", Global::DontShowNewUpdate);
    file.Truth(u"AutoMaximize", Global::AutoMaximize);
    file.Truth(u"AutoPreView", Global::AutoPreView);
    file.Truth(u"AutoDebug", Global::AutoDebug);
    file.Truth(u"AutoProjectManager", Global::AutoProjectManager);
    file.Value(u"LastFile", Global::LastFile);
    file.Blank();
    file.Comment(u"keycombinations");
    for (size_t i = 0; i < 10; ++i) {
        file.Value(u"Key%1"_s.arg(i), EncodeLineBreaks(Global::KeyCombos[i]));
    }
    file.Blank();
}

void WriteTools(Writer& file) {
    file.Comment(u"debugger");
    file.Truth(u"DebugHTML", Commands::IsChecked(u"Menu_Debug_HTML"_s));
    file.Truth(u"DebugCSS", Commands::IsChecked(u"Menu_Debug_CSS"_s));
    file.Truth(u"DebugJavaScript", Commands::IsChecked(u"Menu_Debug_JavaScript"_s));
    file.Truth(u"ShowDebugReport", Global::ShowDebugReport);
    file.Value(u"DebugAccuracy", Global::DebugAccuracy);
    file.Blank();
    file.Comment(u"projectmanager");
    file.Value(u"MaxLinkDeep", Global::MaxLinkDeep < 1 ? 255 : Global::MaxLinkDeep);
    file.Truth(u"ListLinkErrors", Global::ListLinkErrors);
    file.Value(u"ProjectFiles", Global::ProjectFiles);
    file.Truth(u"ShowExternLinks", Global::ShowExternLinks);
    file.Blank();
    file.Comment(u"ftp options");
    file.Value(u"FTP_Address", Global::FTP_Address);
    file.Value(u"FTP_UserName", Global::FTP_UserName);
    file.Blank();
    for (const ToolKeys& tool : Tools()) {
        file.Comment(tool.comment);
        for (int element = 1; element <= tool.stored; ++element) {
            file.Value(ToolKey(tool, element), (*tool.place)[static_cast<size_t>(element)]);
        }
        file.Blank();
    }
    // Stands only in a file of somebody who has asked for the command.
    if (Commands::StateOf(u"Menu_Tools_SpellingCheck"_s).visible) file.Truth(u"SpellingMenu", true);
}

} // namespace

QString EncodeLineBreaks(QString text) { return text.replace(u"\r\n"_s, BreakMarker); }

QString DecodeLineBreaks(QString text) { return text.replace(BreakMarker, u"\r\n"_s); }

QString GetSetting(const QString& key, const QString& preset) {
    const auto text = Files::ReadProgramText(ReadPath());
    if (!text) {
        InstallDefaults();
        return {};
    }
    for (const QString& line : Files::Lines(*text)) {
        if (!line.contains(key)) continue;
        const qsizetype sign = line.indexOf(u'=');
        const QString value = line.sliced(sign + 1);
        return value.isEmpty() ? preset : value;
    }
    return preset;
}

QString GetSetting(const QString& key, int preset) { return GetSetting(key, QString::number(preset)); }

bool WriteSettings() {
    if (!Global::SettingsRead) return false;
    Writer file;
    file.Comment(u"Sorvane HTML Editor 3.0 - options");
    file.Value(u"UpDate", BuildDate);
    file.Value(u"UpDateNo", UpdateNumber);
    file.Blank();
    WriteMainWindow(file);
    WriteGeneral(file);
    WriteTools(file);
    return Files::WriteProgramText(FilePath(), file.Text());
}

void LoadSettings() {
    const auto read = [](const QString& key) { return GetSetting(key, QString()); };
    const auto truth = [&](bool& target, const QString& key) {
        Attempt([&] { target = Numbers::ReadBoolean(read(key)); });
    };
    const auto integer = [&](std::int16_t& target, const QString& key) {
        Attempt([&] { target = Numbers::ReadInteger(read(key)); });
    };
    const auto mark = [&](const QString& command, const QString& key) {
        Attempt([&] { Commands::SetChecked(command, Numbers::ReadBoolean(read(key))); });
    };
    const auto markExactly = [&](const QString& command, const QString& key) {
        Commands::SetChecked(command, read(key) == u"True");
    };

    mark(u"Menu_Tools_Option_2"_s, u"SaveSmallTags"_s);
    mark(u"Menu_Tools_AutoUml"_s, u"AutoUml"_s);
    mark(u"Menu_Help_Assistant"_s, u"Assistant"_s);
    markExactly(u"Menu_Tools_Option_2"_s, u"SaveSmallTags"_s); // the word must be exactly "True" in the end
    Global::KeyCombos.fill({});
    for (size_t i = 0; i < 10; ++i) Global::KeyCombos[i] = DecodeLineBreaks(read(u"Key%1"_s.arg(i)));
    for (const ToolKeys& tool : Tools()) {
        for (int element = 1; element <= tool.stored; ++element) {
            (*tool.place)[static_cast<size_t>(element)] = read(ToolKey(tool, element));
        }
    }
    if (read(u"ScriptMenu"_s) == u"True") Commands::SetVisible(u"Menu_Script"_s, true);
    if (read(u"SpellingMenu"_s) == u"True") Commands::SetVisible(u"Menu_Tools_SpellingCheck"_s, true);
    truth(Global::UseWindowsMenu, u"UseWindowsMenu"_s);
    integer(Global::CurrentTip, u"CurrentTip"_s);
    integer(Global::MaxLinkDeep, u"MaxLinkDeep"_s);
    if (Global::MaxLinkDeep < 1) Global::MaxLinkDeep = 255;
    Global::ListLinkErrors = Numbers::ParseBoolean(read(u"ListLinkErrors"_s));
    Global::ProjectFiles = read(u"ProjectFiles"_s);
    truth(Global::ShowExternLinks, u"ShowExternLinks"_s);
    Global::FTP_Address = read(u"FTP_Address"_s);
    Global::FTP_UserName = read(u"FTP_UserName"_s);
    markExactly(u"Menu_Debug_HTML"_s, u"DebugHTML"_s);
    markExactly(u"Menu_Debug_CSS"_s, u"DebugCSS"_s);
    markExactly(u"Menu_Debug_JavaScript"_s, u"DebugJavaScript"_s);
    Global::ShowDebugReport = Numbers::ParseBoolean(read(u"ShowDebugReport"_s));
    if (read(u"DebugAccuracy"_s).isEmpty()) {
        Global::DebugAccuracy = 100;
    } else {
        integer(Global::DebugAccuracy, u"DebugAccuracy"_s);
    }
    Global::AutoMaximize = Numbers::ParseBoolean(read(u"AutoMaximize"_s));
    Global::AutoPreView = Numbers::ParseBoolean(read(u"AutoPreView"_s));
    Global::AutoDebug = Numbers::ParseBoolean(read(u"AutoDebug"_s));
    Global::AutoProjectManager = Numbers::ParseBoolean(read(u"AutoProjectManager"_s));
    Global::WorkScreenSkin = read(u"WorkScreenSkin"_s);
    // The last file is not needed before the start dialog, but an exit without a save must not lose it.
    Global::LastFile = read(u"LastFile"_s);
    Global::SettingsRead = true;
}

} // namespace Settings
