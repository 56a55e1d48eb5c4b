// SPDX-License-Identifier: MIT
#include "shell/frm_options.h"

#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/icons.h"
#include "platform/text.h"
#include "shell/wrapping_check_box.h"
#include "state/global.h"

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QStyle>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {

enum Tab { General, Debugger, Editor, Design, ProjectManager };

// The check boxes that stand for one truth value each, in the order of their tabs.
struct BoundBox {
    Tab tab;
    QStringView name;
    QStringView caption;
    bool Options::Values::*field;
};

using Options::Values;

constexpr BoundBox BoundBoxes[] = {
    {General, u"Chk_General_0", u"Vorschau beim Öffnen einer HTML-Datei", &Values::autoPreView},
    {General, u"Chk_General_1", u"Debugger beim Öffnen einer Datei automatisch starten", &Values::autoDebug},
    {General, u"Chk_General_2", u"ProjektManager beim Öffnen einer Datei automatisch starten",
     &Values::autoProjectManager},
    {General, u"Chk_General_3", u"Fenster beim Starten maximieren", &Values::autoMaximize},
    {General, u"Chk_General_4", u"Beim Starten nicht nach Updates im Web suchen", &Values::dontShowNewUpdate},
    {Debugger, u"Chk_Debug_0", u"HTML-Code debuggen", &Values::debugHTML},
    {Debugger, u"Chk_Debug_1", u"CSS-Code debuggen", &Values::debugCSS},
    {Debugger, u"Chk_Debug_3", u"JavaScript-Code debuggen", &Values::debugJavaScript},
    {Debugger, u"Chk_Debug_2", u"Zusammenfassung anzeigen", &Values::showDebugReport},
    {Editor, u"Chk_Editor_0",
     u"AutoUmlaut, wenn Sie einen Umlaut schreiben wird dieser automatisch konvertiert.", &Values::autoUml},
    {Editor, u"Chk_Editor_1", u"beim Speichern einer Datei alle Tags klein darstellen.",
     &Values::saveSmallTags},
    {Editor, u"Chk_Editor_2",
     u"normales Kontextmenü verwenden, so stehen ihnen zusätzlich die Funktionen: Ausschneiden, Kopieren, "
     u"Einfügen "
     u"und Zoom\nzur Verfügung, sonst zeigt ein Rechtsklick nur die Liste der Attribute.",
     &Values::useWindowsMenu},
    {ProjectManager, u"Chk_ProjectManager_0", u"tote Links jeden Dateitypes anzeigen",
     &Values::listLinkErrors},
    {ProjectManager, u"Chk_ProjectManager_1", u"Links zu externen Seiten anzeigen", &Values::showExternLinks},
};

QLineEdit* MakeNumberBox(const QString& name) {
    auto* box = new QLineEdit;
    box->setObjectName(name);
    box->setMaximumWidth(8 * box->fontMetrics().averageCharWidth() + 24);
    return box;
}

QPushButton* MakeButton(const QString& name, const QString& caption) {
    auto* button = new QPushButton(caption);
    button->setObjectName(name);
    button->setAutoDefault(false); // Enter takes over, wherever the focus is
    return button;
}

void AddNumber(QVBoxLayout* tab, const QString& caption, QLineEdit* box) {
    auto* row = new QFormLayout;
    row->addRow(caption, box);
    tab->addLayout(row);
}

// The controls that belong to a check box stand below its caption.
QHBoxLayout* AddIndented(QVBoxLayout* tab) {
    auto* row = new QHBoxLayout;
    const QStyle* style = tab->parentWidget()->style();
    row->setContentsMargins(style->pixelMetric(QStyle::PM_IndicatorWidth) +
                                style->pixelMetric(QStyle::PM_CheckBoxLabelSpacing),
                            0, 0, 0);
    tab->addLayout(row);
    return row;
}

} // namespace

Frm_Options::Frm_Options()
    : Tab_Options(new QTabWidget), Txt_DebugAccuracy(MakeNumberBox(u"Txt_DebugAccuracy"_s)),
      Txt_SkinFile(new QLineEdit), Cmd_OpenFile(MakeButton(u"Cmd_OpenFile"_s, u"Durchsuchen..."_s)),
      Cmd_SetSkin(MakeButton(u"Cmd_SetSkin"_s, u"Bild auswählen..."_s)),
      Txt_LinkDeep(MakeNumberBox(u"Txt_LinkDeep"_s)), Lst_FileTypes(new QListWidget) {
    setObjectName(u"Frm_Options"_s);
    setWindowTitle(u"Optionen"_s);
    Tab_Options->setObjectName(u"Tab_Options"_s);
    Tab_Options->setUsesScrollButtons(false); // all captions stay in sight

    QVBoxLayout* general = AddTab(General, u"Allgemein"_s, u"options");
    AddBoundBoxes(general, General);
    general->addStretch();
    BuildDebuggerTab(AddTab(Debugger, u"Debugger"_s, u"debug"));
    QVBoxLayout* editor = AddTab(Editor, u"Editor"_s, u"code");
    AddBoundBoxes(editor, Editor);
    editor->addStretch();
    BuildDesignTab(AddTab(Design, u"Design"_s, u"picture"));
    BuildProjectManagerTab(AddTab(ProjectManager, u"ProjektManager"_s, u"project_manager"));

    auto* all = new QVBoxLayout(this);
    all->addWidget(Tab_Options, 1);
    BuildButtons(all);
}

// --- controls
// -----------------------------------------------------------------------------------------------------

QVBoxLayout* Frm_Options::AddTab(int index, const QString& caption, QStringView icon) {
    auto* frame = new QWidget;
    frame->setObjectName(u"Frm_OptionTab_"_s + QString::number(index));
    frame->setAccessibleName(caption);
    Tab_Options->addTab(frame, Icons::Named(icon), caption);
    auto* layout = new QVBoxLayout(frame);
    layout->setContentsMargins(14, 14, 14, 14);
    layout->setSpacing(10);
    return layout;
}

QCheckBox* Frm_Options::AddCheckBox(QVBoxLayout* tab, const QString& name, const QString& caption) {
    auto* box = new WrappingCheckBox(caption);
    box->setObjectName(name);
    tab->addWidget(box);
    return box;
}

void Frm_Options::AddBoundBoxes(QVBoxLayout* tab, int index) {
    for (const BoundBox& box : BoundBoxes) {
        if (box.tab == index) AddCheckBox(tab, box.name.toString(), box.caption.toString());
    }
}

void Frm_Options::BuildDebuggerTab(QVBoxLayout* tab) {
    AddBoundBoxes(tab, Debugger);
    tab->addSpacing(6);
    AddNumber(tab, u"Debuggenauigkeit (in Prozent):"_s, Txt_DebugAccuracy);
    tab->addStretch();
}

void Frm_Options::BuildDesignTab(QVBoxLayout* tab) {
    Chk_UseSkin[0] =
        AddCheckBox(tab, u"Chk_UseSkin_0"_s, u"Hintergrundbild von ProjektManager und Debugger."_s);
    QHBoxLayout* first = AddIndented(tab);
    first->addWidget(Cmd_SetSkin);
    first->addStretch();
    tab->addSpacing(6);
    Chk_UseSkin[1] = AddCheckBox(tab, u"Chk_UseSkin_1"_s, u"Hintergrundbild von Arbeitsfläche:"_s);
    Txt_SkinFile->setObjectName(u"Txt_SkinFile"_s);
    Txt_SkinFile->setAccessibleName(u"Hintergrundbild von Arbeitsfläche"_s);
    QHBoxLayout* second = AddIndented(tab);
    second->addWidget(Txt_SkinFile, 1);
    second->addWidget(Cmd_OpenFile);
    tab->addStretch();
    auto* note = new QLabel(u"Diese Einstellungen werden erst nach einem Programmneustart wirksam."_s);
    note->setObjectName(u"Lbl_Note"_s);
    note->setWordWrap(true);
    tab->addWidget(note);
    for (int index : {0, 1}) {
        connect(Chk_UseSkin[index], &QCheckBox::toggled, this, [this, index] { Chk_UseSkin_Click(index); });
    }
    connect(Cmd_SetSkin, &QPushButton::clicked, this, &Frm_Options::Cmd_SetSkin_Click);
    connect(Cmd_OpenFile, &QPushButton::clicked, this, &Frm_Options::Cmd_OpenFile_Click);
}

void Frm_Options::BuildProjectManagerTab(QVBoxLayout* tab) {
    AddBoundBoxes(tab, ProjectManager);
    AddNumber(tab, u"Maximale Tiefe der Links:"_s, Txt_LinkDeep);
    auto* label = new QLabel(u"Zusätzliche Dateitypen:"_s);
    label->setBuddy(Lst_FileTypes);
    Lst_FileTypes->setObjectName(u"Lst_FileTypes"_s);
    Lst_FileTypes->setMinimumHeight(4 * fontMetrics().lineSpacing());
    auto* add = MakeButton(u"Cmd_FileTypeControl_0"_s, u"Hinzufügen..."_s);
    Cmd_RemoveFileType = MakeButton(u"Cmd_FileTypeControl_1"_s, u"Entfernen"_s);
    auto* buttons = new QVBoxLayout;
    buttons->addWidget(add);
    buttons->addWidget(Cmd_RemoveFileType);
    buttons->addStretch();
    auto* list = new QHBoxLayout;
    list->addWidget(Lst_FileTypes, 1);
    list->addLayout(buttons);
    auto* group = new QVBoxLayout;
    group->setSpacing(4);
    group->addWidget(label);
    group->addLayout(list, 1);
    tab->addLayout(group, 1);
    connect(Lst_FileTypes, &QListWidget::itemSelectionChanged, this,
            [this] { Cmd_RemoveFileType->setEnabled(!Lst_FileTypes->selectedItems().isEmpty()); });
    connect(add, &QPushButton::clicked, this, [this] { Cmd_FileTypeControl(0); });
    connect(Cmd_RemoveFileType, &QPushButton::clicked, this, [this] { Cmd_FileTypeControl(1); });
}

void Frm_Options::BuildButtons(QVBoxLayout* all) {
    auto* row = new QHBoxLayout;
    row->addStretch();
    const QString captions[] = {u"&Ok"_s, u"S&chließen"_s};
    for (int index : {0, 1}) {
        auto* button = MakeButton(u"Cmd_Control_"_s + QString::number(index), captions[index]);
        button->setDefault(index == 0);
        connect(button, &QPushButton::clicked, this, [this, index] { Cmd_Control(index); });
        row->addWidget(button);
    }
    all->addLayout(row);
}

// --- values
// -------------------------------------------------------------------------------------------------------

void Frm_Options::OnLoad() {
    LoadOptionsFromRAM();
    Tab_Options->setCurrentIndex(General);
}

void Frm_Options::LoadOptionsFromRAM() {
    const Values values = Options::Read();
    for (const BoundBox& box : BoundBoxes) {
        findChild<QCheckBox*>(box.name.toString())->setChecked(values.*box.field);
    }
    Txt_DebugAccuracy->setText(QString::number(values.debugAccuracy));
    Txt_LinkDeep->setText(QString::number(values.maxLinkDeep));
    Lst_FileTypes->clear();
    Lst_FileTypes->addItems(values.fileTypes);
    Cmd_RemoveFileType->setEnabled(false);
    Chk_UseSkin[0]->setChecked(values.skinFile);
    Chk_UseSkin[1]->setChecked(!values.workScreenSkin.isEmpty());
    Txt_SkinFile->setText(Files::ToSystem(values.workScreenSkin));
    Chk_UseSkin_Click(0);
    Chk_UseSkin_Click(1);
}

Values Frm_Options::Shown() const {
    Values values;
    for (const BoundBox& box : BoundBoxes) {
        values.*box.field = findChild<QCheckBox*>(box.name.toString())->isChecked();
    }
    values.debugAccuracy = Options::NumberIn(Txt_DebugAccuracy->text());
    values.maxLinkDeep = Options::NumberIn(Txt_LinkDeep->text());
    for (int row = 0; row < Lst_FileTypes->count(); ++row)
        values.fileTypes << Lst_FileTypes->item(row)->text();
    values.skinFile = Chk_UseSkin[0]->isChecked();
    if (Chk_UseSkin[1]->isChecked()) values.workScreenSkin = Files::FromSystem(Txt_SkinFile->text());
    return values;
}

bool Frm_Options::SaveOptionsToRAM() {
    const Values values = Shown();
    if (!Options::IsLinkDepth(values.maxLinkDeep)) {
        Refuse(Txt_LinkDeep, u"1"_s,
               u"Geben Sie für den ProjektManager eine Zahl ein, die größer als 0 ist!"_s);
        return false;
    }
    if (!Options::IsDebugAccuracy(values.debugAccuracy)) {
        Refuse(Txt_DebugAccuracy, u"100"_s,
               u"Geben Sie für den Debugger eine Zahl ein, die größer als 0 und kleiner gleich 100 ist!"_s);
        return false;
    }
    Options::TakeOver(values);
    return true;
}

void Frm_Options::Refuse(QLineEdit* box, const QString& text, const QString& message) {
    box->setText(text);
    Dialogs::Tell(u"Optionen"_s, message, Dialogs::Icon::Exclamation);
    Tab_Options->setCurrentWidget(box->parentWidget());
    box->setFocus();
    box->selectAll();
}

// --- events
// -------------------------------------------------------------------------------------------------------

void Frm_Options::Chk_UseSkin_Click(int index) {
    const bool on = Chk_UseSkin[index]->isChecked();
    if (index == 0) {
        Cmd_SetSkin->setEnabled(on);
    } else {
        Txt_SkinFile->setEnabled(on);
        Cmd_OpenFile->setEnabled(on);
    }
}

QString Frm_Options::PickPicture() {
    const QString path =
        Dialogs::OpenFileDialog(u"Bild öffnen"_s, u"Bitmaps (*.bmp)|*.bmp|Alle Dateien (*.*)|*.*"_s);
    if (!path.isEmpty()) Global::DialogFile = path;
    return path;
}

void Frm_Options::Cmd_SetSkin_Click() {
    const QString path = PickPicture();
    if (!path.isEmpty()) Options::InstallSkin(path);
}

void Frm_Options::Cmd_OpenFile_Click() {
    const QString path = PickPicture();
    if (!path.isEmpty()) Txt_SkinFile->setText(Files::ToSystem(path));
}

void Frm_Options::Cmd_FileTypeControl(int index) {
    if (index == 1) {
        delete Lst_FileTypes->currentItem();
        Lst_FileTypes->setCurrentRow(-1);
        Cmd_RemoveFileType->setEnabled(false);
        return;
    }
    const QString type = Text::UpperCase(
        Dialogs::InputBox(u"Geben Sie die Erweiterung des Dateitypen ein:"_s, u"Tateityp hinzufügen"_s));
    if (type.isEmpty() ||
        !Lst_FileTypes->findItems(type, Qt::MatchExactly | Qt::MatchCaseSensitive).isEmpty())
        return;
    Lst_FileTypes->addItem(type);
}

void Frm_Options::Cmd_Control(int index) {
    if (index == 0 && !SaveOptionsToRAM()) return;
    if (unloadSelf) unloadSelf();
}
