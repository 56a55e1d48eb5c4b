// SPDX-License-Identifier: MIT
#include "shell/options_model.h"

#include "platform/files.h"
#include "platform/text.h"
#include "state/commands.h"
#include "state/global.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace Options {

namespace {

QString SkinPath() { return Files::ProgramDirectory() + u"\\skin.bmp"_s; }

// The settings that are a plain truth value, each with the place that holds it.
struct Flag {
    bool Values::*field;
    bool* state;
};

const Flag Flags[] = {
    {&Values::autoPreView, &Global::AutoPreView},
    {&Values::autoDebug, &Global::AutoDebug},
    {&Values::autoProjectManager, &Global::AutoProjectManager},
    {&Values::autoMaximize, &Global::AutoMaximize},
    {&Values::dontShowNewUpdate, &Global::DontShowNewUpdate},
    {&Values::showDebugReport, &Global::ShowDebugReport},
    {&Values::useWindowsMenu, &Global::UseWindowsMenu},
    {&Values::skinFile, &Global::SkinFileExists},
    {&Values::listLinkErrors, &Global::ListLinkErrors},
    {&Values::showExternLinks, &Global::ShowExternLinks},
};

// Those that live as the check mark of a command.
struct Mark {
    bool Values::*field;
    QStringView command;
};

constexpr Mark Marks[] = {
    {&Values::debugHTML, u"Menu_Debug_HTML"},
    {&Values::debugCSS, u"Menu_Debug_CSS"},
    {&Values::debugJavaScript, u"Menu_Debug_JavaScript"},
    {&Values::autoUml, u"Menu_Tools_AutoUml"},
    {&Values::saveSmallTags, u"Menu_Tools_Option_2"},
};

} // namespace

Values Read() {
    Values values;
    for (const Flag& flag : Flags) values.*flag.field = *flag.state;
    for (const Mark& mark : Marks) values.*mark.field = Commands::IsChecked(mark.command.toString());
    const bool possible = Global::DebugAccuracy >= 0 && Global::DebugAccuracy <= 100;
    values.debugAccuracy = possible ? Global::DebugAccuracy : std::int16_t{100};
    values.workScreenSkin = Global::WorkScreenSkin;
    values.maxLinkDeep = Global::MaxLinkDeep;
    values.fileTypes = SplitFileTypes(Global::ProjectFiles);
    return values;
}

void TakeOver(const Values& values) {
    for (const Flag& flag : Flags) *flag.state = values.*flag.field;
    for (const Mark& mark : Marks) Commands::SetChecked(mark.command.toString(), values.*mark.field);
    Global::DebugAccuracy = values.debugAccuracy;
    Global::MaxLinkDeep = values.maxLinkDeep;
    Global::ProjectFiles = JoinFileTypes(values.fileTypes);
    if (!values.skinFile) Files::Remove(SkinPath());
    Global::WorkScreenSkin = values.workScreenSkin;
}

std::int16_t NumberIn(QStringView text) {
    using Limits = std::numeric_limits<std::int16_t>;
    const double number = std::nearbyint(Text::LeadingNumber(text));
    return static_cast<std::int16_t>(std::clamp<double>(number, Limits::min(), Limits::max()));
}

bool IsLinkDepth(std::int16_t number) { return number > 0; }

bool IsDebugAccuracy(std::int16_t number) { return number > 0 && number <= 100; }

QStringList SplitFileTypes(const QString& text) {
    return Text::UpperCase(text).split(u'-', Qt::SkipEmptyParts);
}

QString JoinFileTypes(const QStringList& types) {
    QString text;
    for (const QString& type : types) text += type + u'-';
    return text;
}

void InstallSkin(const QString& path) { Files::Copy(path, SkinPath()); }

} // namespace Options
