// SPDX-License-Identifier: MIT
#include "texttools/frm_search.h"

#include "documents/frm_code.h"
#include "documents/txt_code.h"
#include "documents/undo.h"
#include "platform/dialogs.h"
#include "platform/literals.h"
#include "platform/mdi_child.h"
#include "platform/screen_place.h"
#include "platform/text.h"
#include "state/global.h"
#include "state/neighbours.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QScrollBar>

namespace {

constexpr int KeptTexts = 20;
constexpr int Gap = 24; // pixels between a hit and the window that makes way for it

// The last texts of each field, newest first, for as long as the program runs.
std::array<QStringList, 2> keptTexts;

// The lines of the selection that are in sight, in the code box's viewport and as wide as it.
QRect SelectedLines(const Txt_Code& box) {
    QTextCursor start = box.textCursor();
    start.setPosition(start.selectionStart());
    const QRect lines = box.cursorRect(start).united(box.cursorRect()).intersected(box.viewport()->rect());
    return {0, lines.top(), box.viewport()->width(), lines.height()};
}

QRect OnScreen(const Txt_Code& box, const QRect& place) {
    return {box.viewport()->mapToGlobal(place.topLeft()), place.size()};
}

template<class Button> Button* Named(const QString& name, const QString& caption) {
    auto* button = new Button(caption);
    button->setObjectName(name);
    return button;
}

} // namespace

Frm_Search::Frm_Search()
    : QDialog(MdiChild::HostWindow()), m_fields{AddField(SearchText, u"suchen nach:"_s),
                                                AddField(Replacement, u"ersetzen durch:"_s)},
      Opt_Option_0(Named<QRadioButton>(u"Opt_Option_0"_s, u"ganzes Dokument"_s)),
      Opt_Option_1(Named<QRadioButton>(u"Opt_Option_1"_s, u"markierter Text"_s)),
      Chk_Option_0(Named<QCheckBox>(u"Chk_Option_0"_s, u"Text ersetzen"_s)),
      Chk_Option_1(Named<QCheckBox>(u"Chk_Option_1"_s, u"Groß- /Kleinschreibung beachten"_s)),
      Chk_Option_2(Named<QCheckBox>(u"Chk_Option_2"_s, u"alles"_s)),
      Cmd_Control_1(AddControl(GoOn, u"&Weiter suchen"_s, &Frm_Search::FindNext)),
      Cmd_Control_5(AddControl(Anew, u"&Neu suchen"_s, &Frm_Search::FindAnew)),
      Cmd_Control_2(AddControl(Replace, u"&Ersetzen"_s, &Frm_Search::ReplaceHits)),
      Cmd_Control_0(AddControl(Close, u"S&chließen"_s, &Frm_Search::reject)) {
    setObjectName(u"Frm_Search"_s);
    setWindowTitle(u"Suchen"_s);
    auto* all = new QGridLayout(this);
    all->setVerticalSpacing(8);
    for (int row = 0; row < FieldCount; ++row) {
        auto* label = findChild<QLabel*>(u"Lbl_Search_"_s + QString::number(row));
        all->addWidget(label, row, 0);
        all->addWidget(m_fields[size_t(row)], row, 1);
    }
    auto* range = new QHBoxLayout;
    range->addWidget(Opt_Option_0);
    range->addWidget(Opt_Option_1);
    range->addStretch();
    all->addLayout(range, 2, 0, 1, 2);
    all->addWidget(Chk_Option_1, 3, 0, 1, 2);
    auto* replacing = new QHBoxLayout;
    replacing->addWidget(Chk_Option_0);
    replacing->addWidget(Chk_Option_2);
    replacing->addStretch();
    all->addLayout(replacing, 4, 0, 1, 2);
    int row = 0;
    for (QPushButton* button : {Cmd_Control_1, Cmd_Control_5, Cmd_Control_2, Cmd_Control_0}) {
        all->addWidget(button, row++, 2);
    }
    all->setColumnStretch(1, 1);
    all->setColumnMinimumWidth(1, 240);
    all->setSizeConstraint(QLayout::SetFixedSize);

    Opt_Option_0->setChecked(true);
    connect(Chk_Option_0, &QCheckBox::toggled, this, &Frm_Search::Chk_Replace_Click);
    connect(Chk_Option_2, &QCheckBox::toggled, this, &Frm_Search::Chk_All_Click);
    Chk_Replace_Click();
    Txt_Search_Change();
}

QPushButton* Frm_Search::AddControl(Control index, const QString& caption, void (Frm_Search::*press)()) {
    auto* button = Named<QPushButton>(u"Cmd_Control_"_s + QString::number(index), caption);
    button->setAutoDefault(false); // Enter searches on, see keyPressEvent()
    connect(button, &QPushButton::clicked, this, press);
    return button;
}

QComboBox* Frm_Search::AddField(Field index, const QString& label) {
    auto* field = new QComboBox(this);
    field->setObjectName(u"Cmb_Search_"_s + QString::number(index));
    field->setEditable(true);
    field->setCompleter(nullptr);
    field->setInsertPolicy(QComboBox::NoInsert);
    field->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon); // however long the texts
    field->addItems(keptTexts[index]);
    field->clearEditText();
    field->lineEdit()->setObjectName(u"Txt_Search_"_s + QString::number(index));
    field->lineEdit()->setAccessibleName(QString(label).remove(u':'));
    connect(field, &QComboBox::editTextChanged, this, &Frm_Search::Txt_Search_Change);
    auto* caption = new QLabel(label, this);
    caption->setObjectName(u"Lbl_Search_"_s + QString::number(index));
    caption->setBuddy(field);
    return field;
}

void Frm_Search::OnLoad() {
    if (!Global::AssistantOpen) return;
    Neighbours::RunAnimation(
        1, u"Hiermit suchen sie Text-Teile im Dokument. Klicken Sie auf 'Neu suchen', um vom Anfang an zu "
           "suchen. Klicken Sie auf 'Suchen', um von der aktuellen Position weiter zu suchen."_s);
}

void Frm_Search::OnUnload() {
    if (Global::AssistantOpen) Neighbours::RunAnimation(0, {});
}

void Frm_Search::Present() {
    const CodeBox* box = Neighbours::TheCodeBox();
    const QString selected = box ? box->SelText() : QString();
    // a hit that is selected still is no new text to search for
    const QString present = m_fields[SearchText]->currentText();
    const bool same =
        Chk_Option_1->isChecked() ? selected == present : Text::EqualIgnoringCase(selected, present);
    if (!selected.isEmpty() && !same && !selected.contains(u'\n'))
        m_fields[SearchText]->setEditText(selected);
    show();
    StepAside();
    raise();
    activateWindow();
    m_fields[SearchText]->setFocus();
    m_fields[SearchText]->lineEdit()->selectAll();
}

void Frm_Search::reject() {
    QDialog::reject();
    if (unloadSelf) unloadSelf();
}

void Frm_Search::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (auto* button = qobject_cast<QPushButton*>(focusWidget())) return button->click();
        [[fallthrough]];
    case Qt::Key_F3:
        return SearchOn();
    default:
        QDialog::keyPressEvent(event);
    }
}

void Frm_Search::Txt_Search_Change() {
    Cmd_Control_1->setEnabled(false);
    m_run.Forget();
}

void Frm_Search::Chk_Replace_Click() {
    const bool replaceMode = Chk_Option_0->isChecked();
    Cmd_Control_2->setEnabled(replaceMode);
    Chk_Option_2->setEnabled(replaceMode);
    m_fields[Replacement]->setEnabled(replaceMode); // takes the colour of the window with it
}

void Frm_Search::Chk_All_Click() {
    Cmd_Control_2->setText(Chk_Option_2->isChecked() ? u"Alles &ersetzen"_s : u"&Ersetzen"_s);
}

SearchRun::Wanted Frm_Search::Wanted() const {
    // line breaks that have been pasted stand as the clipboard has them
    return {Text::WithFullLineBreaks(m_fields[SearchText]->currentText()),
            Text::WithFullLineBreaks(m_fields[Replacement]->currentText()), Chk_Option_1->isChecked()};
}

SearchRun::Range Frm_Search::Range() const {
    return Opt_Option_0->isChecked() ? SearchRun::Range::WholeText : SearchRun::Range::Selection;
}

void Frm_Search::SearchOn() { Cmd_Control_1->isEnabled() ? FindNext() : FindAnew(); }

void Frm_Search::FindNext() {
    Remember(SearchText);
    CodeBox* box = Neighbours::TheCodeBox();
    if (box) ShowHit(m_run.FindNext(*box, Wanted()));
}

void Frm_Search::FindAnew() {
    if (const CodeBox* box = Neighbours::TheCodeBox()) m_run.Begin(*box, Range());
    FindNext();
}

void Frm_Search::ReplaceHits() {
    CodeBox* box = Neighbours::TheCodeBox();
    if (!box) return;
    const bool all = Chk_Option_2->isChecked();
    const SearchRun::Wanted wanted = Wanted();
    if (all && wanted.text.isEmpty()) return Dialogs::Beep(); // it would never come to an end
    Remember(SearchText);
    Remember(Replacement);
    Undo::PushUndo();
    if (all) {
        if (m_run.ReplaceAll(*box, wanted, Range()) > 0) Neighbours::ShowCodeWindow();
        raise();
        return ShowHit(false);
    }
    if (!m_run.HasBegun()) m_run.Begin(*box, Range());
    ShowHit(m_run.ReplaceNext(*box, wanted));
}

// What follows a step of the search: the hit in sight, or the message that there is none.
void Frm_Search::ShowHit(bool found) {
    Cmd_Control_1->setEnabled(found);
    if (!found)
        return Dialogs::Tell(u"Suchen"_s, u"Das Durchsuchen ist beendet."_s, Dialogs::Icon::Information);
    Neighbours::ShowCodeWindow();
    raise();
    StepAside();
}

// Below the selection, or above it where there is no room. On a screen that has no room for either, the code
// is scrolled until there is.
void Frm_Search::StepAside() {
    if (!Loaded<Frm_Code>()) return;
    Txt_Code& box = *Shared<Frm_Code>().TextBox;
    box.ensureCursorVisible();
    QRect hit = SelectedLines(box);
    if (!frameGeometry().intersects(OnScreen(box, hit)) || MoveClearOf(OnScreen(box, hit))) return;
    const int line = box.fontMetrics().lineSpacing();
    QScrollBar& scroll = *box.verticalScrollBar();
    scroll.setValue(scroll.value() + hit.top() / line);
    if (MoveClearOf(OnScreen(box, SelectedLines(box)))) return;
    hit = SelectedLines(box);
    scroll.setValue(scroll.value() - (box.viewport()->height() - hit.bottom()) / line);
    MoveClearOf(OnScreen(box, SelectedLines(box)));
}

// Returns whether there is room below or above the place.
bool Frm_Search::MoveClearOf(const QRect& place) {
    const QRect available = screen()->availableGeometry();
    const auto moveTo = [&](int top) {
        if (top < available.top() || top + frameGeometry().height() > available.bottom() + 1) return false;
        QRect moved = frameGeometry();
        moved.moveTop(top);
        move(FittedToScreen(moved).topLeft());
        return true;
    };
    const int height = frameGeometry().height();
    return moveTo(place.bottom() + 1 + Gap) || moveTo(place.top() - Gap - height) ||
           moveTo(place.bottom() + 1) || moveTo(place.top() - height);
}

void Frm_Search::Remember(Field field) {
    const QString text = m_fields[field]->currentText();
    if (text.isEmpty()) return;
    QStringList& kept = keptTexts[field];
    kept.removeAll(text);
    kept.prepend(text);
    kept.resize(std::min<qsizetype>(kept.size(), KeptTexts));
    const QSignalBlocker quiet(m_fields[field]); // the text itself stays as it is
    m_fields[field]->clear();
    m_fields[field]->addItems(kept);
    m_fields[field]->setEditText(text);
}
