// SPDX-License-Identifier: MIT
// The settings of the options dialog as one value, read from the shared state and taken over into it.
#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>

namespace Options {

struct Values {
    bool autoPreView = false;
    bool autoDebug = false;
    bool autoProjectManager = false;
    bool autoMaximize = false;
    bool dontShowNewUpdate = false;

    bool debugHTML = false;
    bool debugCSS = false;
    bool debugJavaScript = false;
    bool showDebugReport = false;
    std::int16_t debugAccuracy = 100; // percent

    bool autoUml = false;
    bool saveSmallTags = false;
    bool useWindowsMenu = false;

    bool skinFile = false;  // the picture of project manager and debugger
    QString workScreenSkin; // path of the work area's picture; empty for none

    bool listLinkErrors = false;
    bool showExternLinks = false;
    std::int16_t maxLinkDeep = 1;
    QStringList fileTypes; // extensions in upper case
};

// The values that hold now. A debug accuracy outside 0 to 100 reads as 100.
Values Read();
// Makes the values hold. Without `skinFile` the picture's file goes, and nobody is told when it was not
// there.
void TakeOver(const Values& values);

// The whole number at the start of what a user typed into a number box; 0 when there is none. A number that
// is out of range counts as the nearest one within.
std::int16_t NumberIn(QStringView text);
bool IsLinkDepth(std::int16_t number);
bool IsDebugAccuracy(std::int16_t number);

// The entries of a list of extensions that ends each with a hyphen, in upper case, and the list of such
// entries.
QStringList SplitFileTypes(const QString& text);
QString JoinFileTypes(const QStringList& types);

// Makes the file `path` the picture of project manager and debugger. Nothing happens when it cannot be
// copied.
void InstallSkin(const QString& path);

} // namespace Options
