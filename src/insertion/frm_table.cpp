// SPDX-License-Identifier: MIT
#include "insertion/frm_table.h"

#include "documents/insertion_point.h"
#include "insertion/cell_keys.h"
#include "insertion/frm_table_options.h"
#include "insertion/table_model.h"
#include "platform/code_page.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/literals.h"
#include "platform/modal.h"
#include "platform/numbers.h"
#include "platform/text.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <cmath>

namespace {

const QString FileFilter = QStringLiteral("Sorvane HTML Editor Tabelle (*.tbl)|*.tbl");
constexpr int FirstRows = 2;
constexpr int FirstColumns = 2;
constexpr qint64 MostBytes = 256'000'000; // of a table file
constexpr int MostOfACell = 1'000'000;    // characters that the field can still show quickly

// The number in a field, made whole; what was there before where it holds none, or one that no grid can show.
int CountIn(const QLineEdit& field, int before) {
    double count = before;
    Attempt([&] { count = std::nearbyint(Numbers::ReadNumber(field.text())); });
    return count >= 0 && count <= TableDraft::MostCells ? static_cast<int>(count) : before;
}

} // namespace

Frm_Table::Frm_Table()
    : ToolDialog(u"Frm_Table"_s, u"Tabelle"_s,
                 u"Dieser Assistent erstellt eine Tabelle und trägt die Werte gleich ein. Klicken Sie auf "
                 u"ein Feld um unten "
                 "im Textfeld einen Text einzugeben. In 'Optionen' können Sie einige Einstellungen "
                 "verändern. Sie können "
                 "Ihre Entwürfe auch speichern und später im Menü 'Tabelle öffnen' wieder laden."_s),
      m_model(new TableModel(this)), Flx_Table(new QTableView), Txt_Rows(new QLineEdit),
      Txt_Cols(new QLineEdit), Txt_FieldText(new QLineEdit) {
    SetHeading(u"insert_table", u"Tabelle einfügen..."_s);
    Flx_Table->setObjectName(u"Flx_Table"_s);
    Flx_Table->setAccessibleName(u"Tabelle"_s);
    Flx_Table->setModel(m_model);
    Reserve(Flx_Table, {430, 190});
    Flx_Table->setSelectionMode(QAbstractItemView::SingleSelection);
    Flx_Table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    Flx_Table->setTabKeyNavigation(false);
    Flx_Table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    Txt_Rows->setObjectName(u"Txt_Rows"_s);
    Txt_Cols->setObjectName(u"Txt_Cols"_s);
    Txt_FieldText->setObjectName(u"Txt_FieldText"_s);
    Txt_FieldText->setEnabled(false);
    Txt_FieldText->setMaxLength(MostOfACell);
    for (QLineEdit* count : {Txt_Rows, Txt_Cols}) count->setMaximumWidth(70);

    Content()->addWidget(new QLabel(u"Geben Sie die Größe der Tabelle an:"_s));
    auto* size = new QHBoxLayout;
    size->addWidget(LabelFor(Txt_Rows, u"Lbl_Rows"_s, u"Zeilen:"_s));
    size->addWidget(Txt_Rows);
    size->addSpacing(16);
    size->addWidget(LabelFor(Txt_Cols, u"Lbl_Cols"_s, u"Spalten:"_s));
    size->addWidget(Txt_Cols);
    size->addStretch();
    Content()->addLayout(size);
    Content()->addWidget(Flx_Table, 1);
    auto* field = new QHBoxLayout;
    field->addWidget(LabelFor(Txt_FieldText, u"Lbl_FieldText"_s, u"Feldinhalt:"_s));
    field->addWidget(Txt_FieldText, 1);
    Content()->addLayout(field);
    AddControl(0, u"&Einfügen"_s, [this] { Insert(); });
    AddControl(1, u"S&chließen"_s, [this] { Leave(); });
    AddControl(2, u"&Optionen..."_s, [] { ShowModal<Frm_TableOptions>(); });
    AddControl(3, u"&Speichern..."_s, [this] { Save(); });

    new CellKeys(Flx_Table, Txt_FieldText);
    connect(Txt_Rows, &QLineEdit::textChanged, this, &Frm_Table::Size_Change);
    connect(Txt_Cols, &QLineEdit::textChanged, this, &Frm_Table::Size_Change);
    connect(Txt_FieldText, &QLineEdit::textChanged, this, &Frm_Table::Field_Change);
    connect(Flx_Table, &QTableView::clicked, this, &Frm_Table::EnterCell);
    connect(Flx_Table->selectionModel(), &QItemSelectionModel::currentChanged, this, &Frm_Table::EnterCell);
    m_model->SetSize(FirstRows, FirstColumns);
    ShowSize();
}

void Frm_Table::ShowSize() {
    const QSignalBlocker rows(Txt_Rows);
    const QSignalBlocker columns(Txt_Cols);
    Txt_Rows->setText(QString::number(m_model->rowCount()));
    Txt_Cols->setText(QString::number(m_model->columnCount()));
    Txt_Rows->selectAll(); // where the caret stands first
}

void Frm_Table::Size_Change() {
    const int rows = CountIn(*Txt_Rows, m_model->rowCount());
    const int columns = CountIn(*Txt_Cols, m_model->columnCount());
    if (qsizetype(rows) * columns > TableDraft::MostCells) return;
    const QModelIndex cell = Flx_Table->currentIndex();
    const int row = cell.row();
    const int column = cell.column();
    m_model->SetSize(rows, columns);
    // the cell stays the current one, and the caret in the count that is being typed
    const QSignalBlocker quiet(Flx_Table->selectionModel());
    const QModelIndex same = m_model->index(row, column);
    // a grid that has been given none takes its first one as it is entered
    if (same.isValid()) Flx_Table->setCurrentIndex(same);
    ShowCell();
}

void Frm_Table::Field_Change(const QString& text) {
    const QModelIndex cell = Flx_Table->currentIndex();
    if (!cell.isValid()) return;
    m_model->SetCell(cell.row(), cell.column(), text);
    m_changed = true;
}

void Frm_Table::ShowCell() {
    const QModelIndex cell = Flx_Table->currentIndex();
    const QString text = m_model->Draft().Cell(cell.row(), cell.column());
    const bool fits = text.size() <= MostOfACell; // a longer one of a file stays as it is
    const QSignalBlocker quiet(Txt_FieldText);    // showing a text is no change of the draft
    Txt_FieldText->setText(fits ? text : QString());
    Txt_FieldText->setEnabled(cell.isValid() && fits);
}

void Frm_Table::EnterCell() {
    // the first cell that the Tab key enters is current, but not marked
    Flx_Table->selectionModel()->select(Flx_Table->currentIndex(), QItemSelectionModel::ClearAndSelect);
    ShowCell();
    if (!Txt_FieldText->isEnabled()) return Flx_Table->setFocus();
    Txt_FieldText->setFocus();
    Txt_FieldText->selectAll();
}

void Frm_Table::GetOptions() {
    if (Loaded<Frm_TableOptions>()) m_look = Shared<Frm_TableOptions>().Look();
}

void Frm_Table::Insert() {
    InsertionPoint::Insert(m_model->Draft().Html(m_look));
    Leave();
}

void Frm_Table::reject() {
    const Dialogs::Message question{
        u"Tabelle"_s, u"Der Entwurf der Tabelle wurde noch nicht gespeichert. Möchten Sie das jetzt tun?"_s,
        Dialogs::Icon::Question, Dialogs::Buttons::YesNoCancel};
    const Dialogs::Answer answer = m_changed ? Dialogs::MsgBox(question) : Dialogs::Answer::No;
    if (answer == Dialogs::Answer::No || (answer == Dialogs::Answer::Yes && Save())) ToolDialog::reject();
}

// Returns whether the draft is in a file now.
bool Frm_Table::Save() {
    if (m_model->Draft().HoldsComma()) {
        Dialogs::Tell(
            u"Tabelle speichern"_s,
            u"Die Tabelle kann nicht gespeichert werden, da in mindestens einem Feld ein Komma steht."_s,
            Dialogs::Icon::Exclamation);
        return false;
    }
    const QString path = Dialogs::SaveFileDialog(u"Tabelle speichern"_s, FileFilter);
    if (path.isEmpty()) return false;
    if (!Dialogs::MayOverwrite(path, Dialogs::Icon::Exclamation, Dialogs::Answer::Yes)) return false;
    return WriteFile(path);
}

bool Frm_Table::WriteFile(const QString& path) {
    if (Files::WriteProgramText(path, m_model->Draft().FileText())) {
        m_changed = false;
        return true;
    }
    Dialogs::Tell(u"Fehler"_s, u"Fehler beim Speichern der Datei."_s, Dialogs::Icon::Critical);
    return false;
}

void Frm_Table::LoadFile() {
    const QString path = Dialogs::OpenFileDialog(u"Tabelle öffnen"_s, FileFilter);
    if (path.isEmpty()) return;
    TableDraft draft = m_model->Draft();
    // other editors leave the file in UTF-8 or UTF-16 behind
    const auto bytes = Files::SizeOf(path) <= MostBytes ? Files::Read(path) : std::nullopt;
    const bool whole = bytes && draft.Read(CodePage::Decode(*bytes).text);
    m_model->SetDraft(std::move(draft)); // what could be read stands in the grid
    m_changed = false;
    ShowSize();
    ShowCell();
    if (!whole) Dialogs::Tell(u"Fehler"_s, u"Fehler beim Laden der Datei."_s, Dialogs::Icon::Critical);
}
