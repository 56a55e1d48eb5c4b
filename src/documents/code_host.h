// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class DropDownList;
class QToolBar;
class QWidget;
class Txt_Code;

// What the document window gives to the aids that are attached to it.
class CodeHost {
public:
    virtual ~CodeHost() = default;

    virtual QWidget* Window() = 0; // holds what an aid shows
    virtual Txt_Code& Box() = 0;
    // Twips by which the code box's top stands below the window's; 330 while the script bar shows.
    virtual int CodeTop() const = 0;
    // Lets every key that `control` gets take an undo copy first.
    virtual void TakeIntoKeyPreview(QWidget* control) = 0;

    // The controls of the script bar.
    struct ScriptControls {
        DropDownList* functions;
        DropDownList* variables;
        QToolBar* tools;
    };
    virtual ScriptControls ScriptBar() = 0;

    // The files of help and attributes, each line followed by one blank, and of the latter only the lines of
    // script objects.
    virtual const QString& HelpFile() const = 0;
    virtual const QString& AttributeFile() const = 0;
    virtual const QString& ScriptObjectFile() const = 0;
};
