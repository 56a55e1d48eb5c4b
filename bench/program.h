// SPDX-License-Identifier: MIT
#pragma once

#include "state/global.h"
#include "support/driver.h"
#include "support/program_folder.h"

#include <QApplication>

// The whole program, running in a folder of its own, for as long as this lives. No window opens unasked.
class BenchProgram {
public:
    BenchProgram(int& argc, char** argv) : m_application(Prepared(argc), argv) {
        Global::AutoDebug = Global::AutoProjectManager = false;
    }

private:
    static int& Prepared(int& argc) {
        QApplication::setAttribute(Qt::AA_ShareOpenGLContexts); // before the application, for the web engine
        return argc;
    }
    QApplication m_application;

public:
    const ProgramFolder folder;

private:
    const Driver::RunningProgram m_program;
};
