// SPDX-License-Identifier: MIT
#include "support/program_folder.h"

#include "platform/files.h"
#include "platform/literals.h"
#include "state/commands.h"
#include "state/global.h"
#include "state/neighbours.h"
#include "state/windows.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

ProgramFolder::ProgramFolder(Content content) {
    Files::SetProgramDirectory(Files::FromSystem(m_folder.path()));
    Global::Reset();
    Commands::ResetStates();
    if (content == Content::Data) CopyFolder(SourceFile(u"data"_s), m_folder.path());
}

ProgramFolder::~ProgramFolder() {
    Neighbours::Reset();
    Windows::Install({});
    Windows::StandIn({});
    Commands::Watch({});
    Files::SetProgramDirectory({});
}

QString ProgramFolder::Path(const QString& name) const { return Files::FromSystem(System(name)); }

QString ProgramFolder::System(const QString& name) const { return m_folder.filePath(name); }

QString ProgramFolder::Write(const QString& name, const QByteArray& bytes) const {
    QDir().mkpath(QFileInfo(System(name)).path());
    QFile file(System(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write a test file");
    return Path(name);
}

QByteArray ProgramFolder::Read(const QString& name) const {
    QFile file(System(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool ProgramFolder::Has(const QString& name) const { return QFileInfo::exists(System(name)); }

QString SourceFile(const QString& name) { return QStringLiteral(SORVANE_SOURCE_DIR "/") + name; }

void CopyFolder(const QString& source, const QString& target) {
    QDirIterator files(source, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString from = files.next();
        const QString to = target + u'/' + QDir(source).relativeFilePath(from);
        QDir().mkpath(QFileInfo(to).path());
        QFile::copy(from, to);
    }
}
