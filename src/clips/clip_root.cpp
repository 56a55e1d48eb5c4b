// SPDX-License-Identifier: MIT
#include "clips/clip_root.h"

#include "documents/paths.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/literals.h"
#include "platform/volumes.h"

#include <QDir>

namespace Clips {

namespace {

QString Below(const QString& folder, const QString& name) {
    return folder.endsWith(u'\\') ? folder + name : folder + u'\\' + name;
}

QStringList VolumeRoots() {
    QStringList roots;
    for (const QStorageInfo& volume : Volumes::Mounted()) {
        roots << Files::FromSystem(volume.rootPath());
    }
    return roots;
}

} // namespace

QString FindClipRoot(const QStringList& places) {
    for (const QString& place : places) {
        // names are compared in any case
        const QStringList names = QDir(Files::ToSystem(place))
                                      .entryList({LibraryName.toString()}, QDir::Dirs | QDir::NoDotAndDotDot);
        if (!names.isEmpty()) return Below(place, names.constFirst());
    }
    return {};
}

QString LocateClipRoot() {
    while (true) {
        const QString shipped = Files::ProgramFile(LibraryName.toString());
        QString root = FindClipRoot({Files::ProgramDirectory(), Global::ParentPath(shipped)});
        if (root.isEmpty()) root = FindClipRoot(VolumeRoots()); // which may have to wake up
        if (!root.isEmpty()) return root;
        if (!AskForDisc()) return NoClips.toString();
    }
}

bool AskForDisc() {
    return Dialogs::MsgBox({u"PageArtBox"_s, u"Legen Sie die Sorvane HTML Editor 3.0 - CD ein!"_s,
                            Dialogs::Icon::Exclamation, Dialogs::Buttons::OkCancel}) == Dialogs::Answer::Ok;
}

} // namespace Clips
