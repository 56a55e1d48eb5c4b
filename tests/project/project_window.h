// SPDX-License-Identifier: MIT
// The project window in the real main window, driven as by its user.
#pragma once

#include "platform/events.h"
#include "project/file_list_model.h"
#include "project/frm_project_manager.h"
#include "support/program_test.h"

#include <QAction>
#include <QApplication>
#include <QMdiArea>
#include <QTreeView>

using Dialogs::Answer;

class ProjectWindowTest : public ProgramTest {

protected:
    enum Column { Name, Title, Folder, LinkedFrom, LinkName, Type };

    static QTreeView& FileList() { return *Driver::Find<QTreeView>(u"Lvw_Files"_s); }
    static QTreeView& AddedList() { return *Driver::Find<QTreeView>(u"Lvw_ExtendedFiles"_s); }
    static QAction* Button(const QString& key) {
        return Shared<Frm_ProjectManager>().findChild<QAction*>(QString(u"Tlb_Navigation_"_s + key));
    }
    // The enabled buttons by their keys.
    static QString Enabled() {
        QStringList keys;
        for (const QString& key : {u"Back"_s, u"Open"_s, u"Delete"_s, u"GoTo"_s, u"New"_s})
            if (Button(key)->isEnabled()) keys << key;
        return keys.join(u' ');
    }
    static void Press(const QString& key) {
        QVERIFY2(Button(key)->isEnabled(), qPrintable(key));
        Button(key)->trigger();
        QCoreApplication::processEvents();
    }
    static QStringList Names(const QTreeView& list) {
        QStringList texts;
        for (int row = 0; row < list.model()->rowCount(); ++row)
            texts << list.model()->index(row, Name).data().toString();
        return texts;
    }
    // The row of that name, clicked as by the user.
    static QModelIndex ClickRow(QTreeView& list, const QString& name) {
        const qsizetype row = Names(list).indexOf(name);
        if (row < 0) {
            QTest::qFail(qPrintable(u"no row "_s + name), __FILE__, __LINE__);
            return {};
        }
        const QModelIndex index = list.model()->index(static_cast<int>(row), Name);
        list.scrollTo(index);
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(index).center());
        return index;
    }
    static void Key(QTreeView& list, Qt::Key key) {
        QTest::keyClick(&list, key);
        QCoreApplication::processEvents();
    }
    static void DoubleClickRow(QTreeView& list, const QString& name) {
        const QModelIndex index = ClickRow(list, name);
        if (!index.isValid()) return;
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(index).center());
        QCoreApplication::processEvents();
    }

    QString Page(const QString& name) const { return m_folder->Path(u"verein/"_s + name); }
    void OpenSite() {
        CopyFolder(SourceFile(u"examples/verein"_s), m_folder->System(u"verein"_s));
        Documents::OpenFile(Page(u"index.htm"_s));
        Driver::Trigger(u"Menu_Tools_ProjectManager"_s);
    }
    void ExpectQuestionOnSaving(Answer answer) const {
        m_dialogs->ExpectMessage(u"Öffnen"_s, u"Soll die aktuelle Datei gespeichert werden?"_s, answer,
                                 Dialogs::Icon::Exclamation);
    }
    void ExpectQuestionOnAFile(const QString& title, const QString& question, const QString& file,
                               Answer answer) const {
        m_dialogs->ExpectMessage(title, question + u"\r\n\r\n"_s + m_folder->System(u"verein/"_s + file),
                                 answer, Dialogs::Icon::Exclamation);
    }
    void ExpectRemoval(Answer answer) const {
        ExpectQuestionOnAFile(
            u"Entfernen"_s,
            u"Möchten Sie diese Datei aus dem Projekt entfernen? Sie wird dabei nicht gelöscht."_s,
            u"dateien/antrag.pdf"_s, answer);
    }
    void InsertFile(const QString& path) {
        m_dialogs->ExpectOpenFile(u"Projektdatei einfügen"_s, path);
        Press(u"New_InsertFile"_s);
    }
    void Start() {
        StartProgram();
        Global::ListLinkErrors = Global::ShowExternLinks = true;
        Global::MaxLinkDeep = 255;
        Neighbours::ShowAssistant(false);
        Shared<Frm_Main>().showNormal();
        Shared<Frm_Main>().resize(1000, 700);
        QCoreApplication::processEvents();
    }
    void init() override {
        FolderTest::init();
        Start();
    }
};
