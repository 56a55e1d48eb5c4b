// SPDX-License-Identifier: MIT
#include "project/frm_upload_assistant.h"

#include "platform/dialogs.h"
#include "platform/events.h"
#include "platform/icons.h"
#include "platform/literals.h"
#include "platform/twips.h"
#include "project/file_list_model.h"
#include "project/ftp.h"
#include "project/site_list.h"
#include "state/global.h"
#include "state/neighbours.h"

#include <QApplication>
#include <QCheckBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QShortcut>
#include <QStackedWidget>
#include <QTimer>
#include <QTreeView>
#include <QVBoxLayout>

namespace {

constexpr int PictureSize = 48;
constexpr int ProgressSteps = 100;

QString WelcomeLine() {
    return u"Mit diesem Assistenten können Sie die aktuelle Datei oder ein komplettes Projekt uploaden. Um "
           u"das ganze Projekt hochzuladen müssen Sie die Indexseite geöffnet haben."_s;
}

QString LineOfStep(int step) {
    switch (step) {
    case 1:
        return WelcomeLine() +
               u"\r\nGeben Sie hier die Adresse des Servers, ihren Benutzernamen und Ihr Kennwort ein. Der "
               u"Einloggvorgang findet beim Fertigstellen statt.";
    case 2: // the spelling is meant to stay
        return u"Geben Sie als Zielverzeichnis an, wohin die Dateien kopiert werden sollen. Wenn dieses "
               u"Verzeichnis nicht existiert, wird es automatisch erstellt.\r\nSie können nur die aktuelle "
               u"Datei oder alle untergeordneten Datein uploaden. Stellen Sie die entsprechende Option ein. "
               u"Sie können auch auswählen, welche untergeordneten Dateien nicht kopiert werden sollen."_s;
    default:
        return u"Die Dateien werden upgeloadet. Schließen Sie den Upload Assistenten, wenn der Vorgang "
               u"abgeschlossen wurde."_s;
    }
}

void Say(const QString& line) {
    if (Global::AssistantOpen) Neighbours::RunAnimation(1, line);
}

QColor ColorOf(UploadRun::Kind kind) {
    switch (kind) {
    case UploadRun::Kind::Success:
        return {0, 153, 0};
    case UploadRun::Kind::Failure:
        return {153, 0, 0};
    default:
        return {0, 0, 153};
    }
}

bool IsEnter(const QKeyEvent* event) {
    return event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
}

template<class Control> Control* Named(Control* control, const QString& name) {
    control->setObjectName(name);
    return control;
}

QLabel* Heading(const QString& name, const QString& text) {
    auto* label = Named(new QLabel(text), name);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    return label;
}

} // namespace

// --- building ------------------------------------------------------------------------------------------

Frm_UploadAssistant::Frm_UploadAssistant()
    : ToolDialog(u"Frm_UploadAssistant"_s, u"Upload Assistent"_s, {}),
      m_files(new FileListModel({u"Datei"_s, u"Verzeichnis"_s, u"Dateityp"_s}, this)),
      Frm_Step(new QStackedWidget) {
    auto* Pic_InsertPicture = Named(new QLabel, u"Pic_InsertPicture"_s);
    Pic_InsertPicture->setPixmap(Icons::Named(u"upload").pixmap(PictureSize, PictureSize));
    for (QWidget* step : {MakeLoginStep(), MakeFilesStep(), MakeStatusStep()}) {
        step->setObjectName(u"Frm_Step_"_s + QString::number(Frm_Step->count()));
        step->layout()->setContentsMargins({});
        Frm_Step->addWidget(step);
    }
    auto* middle = new QHBoxLayout;
    middle->setSpacing(24);
    middle->addWidget(Pic_InsertPicture, 0, Qt::AlignTop);
    middle->addWidget(Frm_Step, 1);
    Content()->addLayout(middle);
    MakeButtons();
    OrderTabs();
    resize(Twips::ToPixels(7080), Twips::ToPixels(4785));
}

QWidget* Frm_UploadAssistant::MakeLoginStep() {
    auto* step = new QWidget;
    Txt_Address = Named(new QLineEdit, u"Txt_Address"_s);
    Txt_UserName = Named(new QLineEdit, u"Txt_UserName"_s);
    Txt_Password = Named(new QLineEdit, u"Txt_Password"_s);
    Txt_Password->setEchoMode(QLineEdit::Password);
    Chk_SaveData = Named(new QCheckBox(u"Adresse und Benutzername speichern"_s), u"Chk_SaveData"_s);
    Chk_SaveData->setChecked(!Global::FTP_Address.isEmpty() || !Global::FTP_UserName.isEmpty());
    Chk_SavePassword = Named(new QCheckBox(u"Passwort temporär speichern"_s), u"Chk_SavePassword"_s);
    Chk_SavePassword->setChecked(!FTP::FtpPassword.isEmpty());
    auto* all = new QVBoxLayout(step);
    all->addWidget(Heading(u"Lbl_Login"_s, u"Login:"_s));
    auto* fields = new QFormLayout;
    fields->addRow(LabelFor(Txt_Address, u"Lbl_Address"_s, u"Adresse:"_s), Txt_Address);
    fields->addRow(LabelFor(Txt_UserName, u"Lbl_UserName"_s, u"Benutzername:"_s), Txt_UserName);
    fields->addRow(LabelFor(Txt_Password, u"Lbl_Password"_s, u"Passwort:"_s), Txt_Password);
    all->addLayout(fields);
    all->addWidget(Chk_SaveData);
    all->addWidget(Chk_SavePassword);
    all->addStretch();
    return step;
}

QWidget* Frm_UploadAssistant::MakeFilesStep() {
    auto* step = new QWidget;
    Txt_Path = Named(new QLineEdit(u"/"_s), u"Txt_Path"_s);
    Chk_SubFiles = Named(new QCheckBox(u"Untergeordnete Dateien uploaden"_s), u"Chk_SubFiles"_s);
    Lvw_Files = Named(new QTreeView, u"Lvw_Files"_s);
    Lvw_Files->setModel(m_files);
    Lvw_Files->setRootIsDecorated(false);
    Lvw_Files->setUniformRowHeights(true);
    Lvw_Files->setAllColumnsShowFocus(true);
    Lvw_Files->setTextElideMode(Qt::ElideMiddle);
    Lvw_Files->setSelectionMode(QAbstractItemView::ExtendedSelection);
    const int character = Lvw_Files->fontMetrics().averageCharWidth();
    Lvw_Files->header()->setStretchLastSection(false);
    Lvw_Files->header()->setSectionResizeMode(1, QHeaderView::Stretch);
    Lvw_Files->setColumnWidth(0, 18 * character);
    Lvw_Files->setColumnWidth(2, 10 * character);
    Reserve(Lvw_Files, {54 * character, 8 * Lvw_Files->fontMetrics().height()});
    Cmd_LoadNew = Named(new QPushButton(u"Dateien wiederherstellen"_s), u"Cmd_LoadNew"_s);
    Cmd_RemoveFile = Named(new QPushButton(u"Datei entfernen"_s), u"Cmd_RemoveFile"_s);
    Cmd_RemoveFile->setEnabled(false);
    connect(Lvw_Files->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] { Cmd_RemoveFile->setEnabled(Lvw_Files->selectionModel()->hasSelection()); });
    connect(Cmd_LoadNew, &QPushButton::clicked, this, &Frm_UploadAssistant::LoadFiles);
    connect(Cmd_RemoveFile, &QPushButton::clicked, this, &Frm_UploadAssistant::RemoveFiles);
    auto* remove = new QShortcut(QKeySequence::Delete, Lvw_Files);
    remove->setContext(Qt::WidgetShortcut);
    connect(remove, &QShortcut::activated, this, &Frm_UploadAssistant::RemoveFiles);
    auto* all = new QVBoxLayout(step);
    all->addWidget(LabelFor(Txt_Path, u"Lbl_Path"_s, u"Zielverzeichnis:"_s));
    all->addWidget(Txt_Path);
    all->addWidget(Chk_SubFiles);
    all->addWidget(LabelFor(Lvw_Files, u"Lbl_Files"_s, u"Dateien:"_s));
    all->addWidget(Lvw_Files, 1);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(Cmd_LoadNew);
    buttons->addWidget(Cmd_RemoveFile);
    buttons->addStretch();
    all->addLayout(buttons);
    return step;
}

QWidget* Frm_UploadAssistant::MakeStatusStep() {
    auto* step = new QWidget;
    Txt_Status = Named(new QPlainTextEdit, u"Txt_Status"_s);
    Txt_Status->setReadOnly(true);
    Txt_Status->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    Txt_Status->setUndoRedoEnabled(false);
    QPalette paper = Txt_Status->palette(); // the colours of the lines are made for white
    paper.setColor(QPalette::Base, Qt::white);
    paper.setColor(QPalette::Text, Qt::black);
    Txt_Status->setPalette(paper);
    Prb_File = Named(new QProgressBar, u"Prb_File"_s);
    Prb_File->setAccessibleName(u"Fortschritt der Datei"_s);
    Prb_File->setMaximum(ProgressSteps);
    QSizePolicy place = Prb_File->sizePolicy();
    place.setRetainSizeWhenHidden(true);
    Prb_File->setSizePolicy(place);
    Prb_File->hide();
    auto* all = new QVBoxLayout(step);
    all->addWidget(Heading(u"Lbl_Copy"_s, u"Kopiervorgang:"_s));
    all->addWidget(LabelFor(Txt_Status, u"Lbl_Status"_s, u"Status:"_s));
    all->addWidget(Txt_Status, 1);
    all->addWidget(Prb_File);
    return step;
}

void Frm_UploadAssistant::MakeButtons() {
    Cmd_Control[2] = AddControl(2, u"< &Zurück"_s, [this] { Back(); });
    Cmd_Control[0] = AddControl(0, u"&Weiter >"_s, [this] { Next(); });
    Cmd_Control[1] = AddControl(1, u"S&chließen"_s, [this] { reject(); });
    for (QPushButton* button : Cmd_Control)
        button->setAutoDefault(true); // Enter means the one with the focus
    qApp->installEventFilter(this);
    Cmd_Control[0]->setEnabled(false); // until the files have been found
}

void Frm_UploadAssistant::OrderTabs() {
    QWidget* const order[] = {Txt_Address, Txt_UserName,   Txt_Password,   Chk_SaveData,  Chk_SavePassword,
                              Txt_Path,    Chk_SubFiles,   Lvw_Files,      Cmd_LoadNew,   Cmd_RemoveFile,
                              Txt_Status,  Cmd_Control[0], Cmd_Control[1], Cmd_Control[2]};
    for (size_t i = 1; i < std::size(order); ++i) setTabOrder(order[i - 1], order[i]);
}

// --- the window's life -----------------------------------------------------------------------------------

void Frm_UploadAssistant::OnLoad() { ShowWizardStep(); }

void Frm_UploadAssistant::OnUnload() {
    if (Global::AssistantOpen) Neighbours::RunAnimation(0, {});
}

void Frm_UploadAssistant::reject() {
    m_left = true;
    Leave();
}

void Frm_UploadAssistant::showEvent(QShowEvent* event) {
    ToolDialog::showEvent(event);
    if (!event->spontaneous()) QTimer::singleShot(0, this, &Frm_UploadAssistant::Activate);
}

// A key held down must not run through the steps and start the upload. On X11 it comes as releases and
// presses of the same instant, not all of which Qt tells from those of a person.
bool Frm_UploadAssistant::IsHeldEnter(const QEvent* event) {
    const bool press = event->type() == QEvent::KeyPress;
    if (!press && event->type() != QEvent::KeyRelease) return false;
    const auto* key = static_cast<const QKeyEvent*>(event);
    if (!IsEnter(key)) return false;
    if (!press) m_enterReleased = key->timestamp();
    return press && (key->isAutoRepeat() || (m_enterReleased != 0 && key->timestamp() == m_enterReleased));
}

bool Frm_UploadAssistant::eventFilter(QObject* watched, QEvent* event) {
    // The second click of a double one would meet the button's next meaning.
    const bool doubled = event->type() == QEvent::MouseButtonDblClick && watched == Cmd_Control[0];
    return doubled || IsHeldEnter(event) || ToolDialog::eventFilter(watched, event);
}

void Frm_UploadAssistant::Activate() {
    Say(WelcomeLine());
    const QPointer<Frm_UploadAssistant> alive(this);
    LoadFiles();
    if (alive && !m_left) Say(LineOfStep(1));
}

// --- the steps -------------------------------------------------------------------------------------------

void Frm_UploadAssistant::ShowWizardStep() {
    Frm_Step->setCurrentIndex(WizardStep - 1);
    if (WizardStep == 1) { // what is not to be kept is gone when its user comes back; that is meant
        Txt_Address->setText(Global::FTP_Address);
        Txt_UserName->setText(Global::FTP_UserName);
        Txt_Password->setText(FTP::FtpPassword);
    }
    Cmd_Control[0]->setText(WizardStep == 1 ? u"&Weiter >"_s : u"F&ertigstellen"_s);
    Cmd_Control[0]->setDefault(true);
    if (WizardStep != 1) Cmd_Control[0]->setEnabled(WizardStep == 2);
    Cmd_Control[2]->setEnabled(WizardStep == 2);
    QWidget* const first[] = {Txt_Address->text().isEmpty() ? Txt_Address : Txt_Password, Txt_Path,
                              Txt_Status};
    first[WizardStep - 1]->setFocus();
    Say(LineOfStep(WizardStep));
}

void Frm_UploadAssistant::Next() {
    ++WizardStep;
    ShowWizardStep();
    if (WizardStep == 2) KeepLogin();
    if (WizardStep == 3) Upload();
}

void Frm_UploadAssistant::Back() {
    --WizardStep;
    ShowWizardStep();
}

void Frm_UploadAssistant::KeepLogin() {
    const bool keeps = Chk_SaveData->isChecked();
    Global::FTP_Address = keeps ? Txt_Address->text() : QString();
    Global::FTP_UserName = keeps ? Txt_UserName->text() : QString();
    FTP::FtpPassword = Chk_SavePassword->isChecked() ? Txt_Password->text() : QString();
}

void Frm_UploadAssistant::LoadFiles() {
    const bool byKey = Cmd_LoadNew->hasFocus();
    Cmd_Control[0]->setEnabled(false);
    Cmd_LoadNew->setEnabled(false);
    Cmd_RemoveFile->setEnabled(false);
    Lvw_Files->setEnabled(false);                    // a row that goes meanwhile would shift the others
    const QPointer<Frm_UploadAssistant> alive(this); // letting events run may end this window
    const SiteScan::Result site = FillWithSite(*m_files, [this, &alive] { return alive && !m_left; });
    if (!alive || m_left) return;
    RemoveOutsideFiles(site);
    Lvw_Files->setEnabled(true);
    Cmd_LoadNew->setEnabled(true);
    Cmd_Control[0]->setEnabled(true);
    if (byKey) Cmd_LoadNew->setFocus();
}

// What lies outside of the page's folder has no place on the server.
void Frm_UploadAssistant::RemoveOutsideFiles(const SiteScan::Result& site) {
    std::vector<int> rows;
    for (size_t i = 0; i < site.files.size(); ++i) {
        if (SiteScan::IsOutside(site.files[i], Global::CurrentFile)) rows.push_back(static_cast<int>(i));
    }
    m_files->Remove(std::move(rows));
}

void Frm_UploadAssistant::RemoveFiles() {
    std::vector<int> rows;
    for (const QModelIndex& index : Lvw_Files->selectionModel()->selectedRows()) rows.push_back(index.row());
    m_files->Remove(std::move(rows));
    Lvw_Files->setFocus();
    Cmd_RemoveFile->setEnabled(false);
}

QStringList Frm_UploadAssistant::Folders() const {
    QStringList folders;
    for (int row = 0; row < m_files->rowCount(); ++row) folders << m_files->Row(row).cells[1];
    return folders;
}

// --- the upload ------------------------------------------------------------------------------------------

void Frm_UploadAssistant::Upload() {
    const QPointer<Frm_UploadAssistant> alive(this); // letting events run may end this window
    const auto here = [this, &alive] { return alive && !m_left; };
    Events::Pace pace;
    const auto letEventsRun = [&] {
        if (here() && pace.IsDue()) pace.LetEventsRun();
        return here();
    };
    Txt_Status->clear();
    UploadRun run({Txt_Address->text(), Txt_UserName->text(), Txt_Password->text(), Txt_Path->text()},
                  Global::CurrentFile,
                  {[&](const QString& line, UploadRun::Kind kind) {
                       if (here()) AppendStatus(line, kind);
                       letEventsRun();
                   },
                   [&](bool busy) {
                       if (here()) ShowBusy(busy);
                   },
                   [&](qint64 sent, qint64 all) {
                       if (here()) ShowProgress(sent, all);
                       return letEventsRun();
                   }});
    const bool connected = run.ConnectToServer();
    if (!here()) return;
    if (!connected) {
        Cmd_Control[2]->setEnabled(true);
        Cmd_Control[2]->setDefault(true);
        return;
    }
    if (Chk_SubFiles->isChecked()) {
        run.UploadAllFiles(Folders());
    } else {
        run.UploadFile(Global::CurrentFile);
    }
    if (!here()) return;
    Prb_File->hide();
    Cmd_Control[1]->setDefault(true);
    AppendStatus(u"Upload abgeschlossen."_s, UploadRun::Kind::Step);
    Dialogs::Beep();
}

void Frm_UploadAssistant::ShowBusy(bool busy) {
    if (busy) {
        setCursor(Qt::WaitCursor);
    } else {
        unsetCursor();
    }
    Txt_Status->viewport()->setCursor(busy ? Qt::WaitCursor : Qt::IBeamCursor);
}

void Frm_UploadAssistant::ShowProgress(qint64 sent, qint64 all) {
    if (all <= 0) return;
    Prb_File->show();
    Prb_File->setValue(
        static_cast<int>(static_cast<double>(sent) / static_cast<double>(all) * ProgressSteps));
}

void Frm_UploadAssistant::AppendStatus(const QString& text, UploadRun::Kind kind) {
    QTextCursor end(Txt_Status->document());
    end.movePosition(QTextCursor::End);
    QTextCharFormat color;
    color.setForeground(ColorOf(kind));
    end.insertText(text, color);
    end.insertBlock({}, {});
    Txt_Status->setTextCursor(end);
}
