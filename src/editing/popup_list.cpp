// SPDX-License-Identifier: MIT
#include "editing/popup_list.h"

#include "documents/code_host.h"
#include "documents/txt_code.h"
#include "documents/undo.h"
#include "editing/attribute_lookup.h"
#include "editing/auto_word.h"
#include "platform/icons.h"
#include "platform/literals.h"
#include "platform/text.h"
#include "platform/twips.h"
#include "state/global.h"
#include "state/neighbours.h"

#include <QKeyEvent>
#include <QScrollBar>

namespace {

constexpr int RowHeight = 270; // twips
constexpr int HighestList = 2250;
constexpr int ShadowOffset = 75;
constexpr int SmallestWidth = 2400;

void Say(const QString& text) {
    if (Global::AssistantOpen) Neighbours::RunAnimation(text.isEmpty() ? 0 : 1, text);
}

QString IconOf(const QString& key) {
    return key == u"Function" ? u"method"_s : key == u"Object" ? u"sub_object"_s : u"attribute"_s;
}

} // namespace

PopupList::PopupList(CodeHost* window)
    : QListWidget(window->Window()), m_window(window), Pic_Shadow(new QFrame(window->Window())) {
    setObjectName(u"Lvw_Attributes"_s);
    setAccessibleName(u"Vorschläge"_s);
    Pic_Shadow->setObjectName(u"Pic_Shadow"_s);
    Pic_Shadow->setStyleSheet(u"background: rgba(0, 0, 0, 90)"_s);
    Pic_Shadow->setAttribute(Qt::WA_TransparentForMouseEvents);
    setFrameShape(QFrame::Box);
    setUniformItemSizes(true);
    setIconSize({16, 16});
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus); // a click must not take the focus from the code box
    window->TakeIntoKeyPreview(this);
    hide();
    Pic_Shadow->hide();
    connect(this, &QListWidget::itemClicked, this, &PopupList::Choose);
}

void PopupList::Hide() {
    hide();
    Pic_Shadow->hide();
}

void PopupList::AddEntry(const QString& text, const QString& icon, const QString& tag) {
    auto* item = new QListWidgetItem(text);
    item->setSizeHint({0, Twips::ToPixels(RowHeight)});
    item->setData(Qt::UserRole, tag);
    if (AttributeLookup::IsHeading(text)) {
        item->setFlags(Qt::ItemIsEnabled); // a heading is read, not chosen
        QFont bold = font();
        bold.setBold(true);
        item->setFont(bold);
    } else {
        item->setIcon(Icons::Named(IconOf(icon)));
    }
    // Only now: an item that is in the list has it search for itself at each of these changes.
    addItem(item);
}

// An entry that a right click offers, in the list or, where that is shown instead, in the menu.
void PopupList::AddForMouse(const QString& text) {
    AddEntry(text, u"Attribute"_s, {});
    if (Global::UseWindowsMenu) Neighbours::AddMenuAttribute(text, text);
}

// --- what is offered
// ------------------------------------------------------------------------------------------------

void PopupList::LeftClick() {
    Hide();
    Say({});
}

void PopupList::MouseMoved(double x, double y) {
    LastMouseX = x;
    LastMouseY = y;
}

void PopupList::RightClick(double x, double y) {
    Hide();
    clear();
    if (Global::UseWindowsMenu) Neighbours::UnloadMenuAttributes();
    const bool words = AttributeLookup::HasWords(m_window->Box().SelText());
    InsertAsValue = words;
    TagStart = TagNameLength = 0;
    if (words) {
        FillWithWords();
    } else {
        FillWithAttributes();
    }
    if (count() > 0) {
        SetPlace(x, y);
        if (!Global::UseWindowsMenu) {
            PlaceAttributeList();
            ShowAttributeList();
        }
        Say(words ? u"Aus dieser Liste können Sie Attributwerte auswählen, die mit dem markierten Text "
                    "zusammenhängen."_s
                  : u"Aus dieser Liste können Sie verschiedene zu den Tags gehörende Attribute auswählen."_s);
    }
    // Beside a tag the menu still has its own entries.
    if (Global::UseWindowsMenu) {
        const QPoint place = m_window->Box().mapToGlobal(QPoint(Twips::ToPixels(x), Twips::ToPixels(y)));
        Neighbours::PopupCodeMenu(place.x(), place.y());
    }
}

void PopupList::FillWithWords() {
    for (const QString& word : AttributeLookup::WordsFor(m_window->Box().SelText())) AddForMouse(word);
}

void PopupList::FillWithAttributes() {
    const auto tag = AttributeLookup::TagAt(m_window->Box().Text(), m_window->Box().SelStart());
    if (!tag) return;
    TagStart = tag->start;
    TagNameLength = tag->nameLength;
    TagClosedAtName = tag->closedAtName;
    for (const QString& attribute : AttributeLookup::AttributesOf(m_window->AttributeFile(), tag->name)) {
        AddForMouse(attribute);
    }
}

void PopupList::ShowMembersAtDot() {
    const Txt_Code& box = m_window->Box();
    ShowObjectMembers(
        ScriptMembers::ObjectBeforeDot(box.Text(), box.SelStart(), m_window->ScriptObjectFile()));
}

void PopupList::ShowObjectMembers(const QString& name) {
    using Kind = ScriptMembers::Member::Kind;
    const auto members = ScriptMembers::MembersOf(m_window->ScriptObjectFile(), name);
    if (members.isEmpty()) return;
    clear();
    for (const auto& member : members) {
        const QString key = member.kind == Kind::Attribute  ? u"Attribute"_s
                            : member.kind == Kind::Function ? u"Function"_s
                                                            : u"Object"_s;
        AddEntry(member.name, key, key);
    }
    SetPlace(LastMouseX, LastMouseY);
    InsertAsValue = true;
    TakeKeyboard();
    Say(u"Aus dieser Liste können Sie Eigenschaften, Funktionen und Objekte des Objektes vor dem Punkt auswählen."_s);
}

void PopupList::OpenAutoWord(double offset) {
    Txt_Code& box = m_window->Box();
    Attempt([&] {
        box.SetSelStart(box.SelStart() + static_cast<qsizetype>(offset));
        const AutoWord::Completion found = AutoWord::Complete(box.Text(), box.SelStart());
        AutoWordStart = found.start;
        AutoWordEnd = found.end;
        clear();
        if (found.candidates.size() == 1) {
            box.SetSelStart(AutoWordStart);
            box.SetSelLength(found.word.size());
            box.SetSelText(found.candidates.constFirst());
            return;
        }
        for (const QString& word : found.candidates) AddEntry(word, u"Attribute"_s, u"AutoWord"_s);
        SetPlace(LastMouseX, LastMouseY);
        InsertAsValue = true;
        if (count() == 0) return;
        TakeKeyboard();
        Say(u"Aus dieser Liste können Sie wählen, wie das Wort fortgesetzt werden soll."_s);
    });
}

// --- place
// ------------------------------------------------------------------------------------------------------------

void PopupList::SetPlace(double x, double y) {
    const int frame = 2 * frameWidth();
    int widest = 0;
    for (int row = 0; row < count(); ++row) {
        widest = std::max(widest, fontMetrics().horizontalAdvance(item(row)->text()));
    }
    const int height = std::min(count() * RowHeight, HighestList);
    const bool scrolls = count() * RowHeight > HighestList;
    const int bar = scrolls ? verticalScrollBar()->sizeHint().width() : 0;
    setGeometry(Twips::ToPixels(x + 15), Twips::ToPixels(m_window->CodeTop() + y + 15),
                std::max(Twips::ToPixels(SmallestWidth), widest + 16 + 24 + bar + frame),
                Twips::ToPixels(height) + (scrolls ? 0 : frame));
}

void PopupList::PlaceAttributeList() {
    const QRect box = m_window->Box().geometry();
    QRect place = geometry();
    if (place.right() > box.right()) place.moveRight(box.right());
    if (place.bottom() > box.bottom()) place.moveBottom(box.bottom());
    // in a box that is smaller than the list, the list becomes as small
    setGeometry(place.intersected(box));
}

void PopupList::ShowAttributeList() {
    const int offset = Twips::ToPixels(ShadowOffset);
    Pic_Shadow->setGeometry(geometry().translated(offset, offset).intersected(m_window->Window()->rect()));
    Pic_Shadow->show();
    Pic_Shadow->raise();
    show();
    raise();
    scrollToTop();
}

void PopupList::TakeKeyboard() {
    ListActive = true;
    PlaceAttributeList();
    ShowAttributeList();
    setCurrentRow(0);
    setFocus();
}

// --- choosing
// ---------------------------------------------------------------------------------------------------------

void PopupList::InsertAttribute(const QString& text) {
    Txt_Code& box = m_window->Box();
    Attempt([&] {
        Undo::PushUndo();
        ListActive = false;
        if (InsertAsValue) {
            box.SetSelText(text);
        } else if (!AttributeLookup::IsHeading(text)) {
            box.SetSelStart(TagStart + TagNameLength - 1);
            box.SetSelLength(0);
            box.SetSelText(u' ' + text + u"=\"\"");
            box.SetSelStart(box.SelStart() - 1); // between the quotes
        }
    });
    Hide();
    box.SetFocus();
    Say({});
}

void PopupList::ChooseWord(const QString& text) {
    Txt_Code& box = m_window->Box();
    box.SetSelStart(AutoWordStart);
    box.SetSelLength(AutoWordEnd - AutoWordStart);
    box.SetSelText(text);
    box.SetSelStart(AutoWordStart + text.size());
    ListActive = false;
    Hide();
    box.SetFocus();
}

void PopupList::Choose(QListWidgetItem* item) {
    if (!item) return;
    Txt_Code& box = m_window->Box();
    const QString text = item->text();
    const QString tag = item->data(Qt::UserRole).toString();
    Attempt([&] {
        if (tag == u"Function") {
            InsertAttribute(text + u"()");
            box.SetSelStart(box.SelStart() - 1);
        } else if (tag == u"AutoWord") {
            ChooseWord(text);
        } else {
            InsertAttribute(text);
        }
        box.SetSelLength(0);
    });
}

void PopupList::keyPressEvent(QKeyEvent* event) {
    Txt_Code& box = m_window->Box();
    const auto backToCode = [&] {
        box.SetFocus();
        box.SetSelLength(0);
    };
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Choose(currentItem());
        return;
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Home:
    case Qt::Key_End:
        QListWidget::keyPressEvent(event);
        return;
    default:
        break;
    }
    const QString typed = event->text();
    if (event->modifiers() & (Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier)) {
        backToCode();
        Say({});
    }
    if (typed.isEmpty()) return; // a modifier alone
    // These four are swallowed: their codes are those of the arrow keys. It is meant to stay so.
    const char16_t code = typed[0].unicode();
    if (code >= 37 && code <= 40) return;
    backToCode();
    constexpr char16_t Delete = 127; // the key's code, which is no character
    if (code >= 32 && code != Delete) box.SetSelText(typed);
    Say({});
}

void PopupList::focusOutEvent(QFocusEvent* event) {
    QListWidget::focusOutEvent(event);
    Hide();
}

void PopupList::CodeLostFocus() {
    if (!ListActive) Hide();
}
