// SPDX-License-Identifier: MIT
#include "preview/frm_navigation.h"

#include "platform/icons.h"
#include "platform/literals.h"
#include "platform/mdi_child.h"
#include "platform/twips.h"
#include "preview/frm_browser.h"
#include "state/global.h"
#include "state/neighbours.h"
#include "state/tool_place.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMdiArea>
#include <QToolBar>
#include <algorithm>
#include <limits>

namespace {

const QString Caption = QStringLiteral("Navigation");
constexpr int BarHeight = 660; // twips
constexpr int BarWidth = 540;  // pixels

// Carries out a step of the browser, where there is one.
template<void (Frm_Browser::*step)()> void Press() {
    if (Loaded<Frm_Browser>()) (Shared<Frm_Browser>().*step)();
}

} // namespace

Frm_Navigation::Frm_Navigation()
    : QWidget(MdiChild::HostWindow(), Qt::Tool), Tlb_Navigation(new QToolBar), Cmb_Url(new QComboBox) {
    setObjectName(u"Frm_Navigation"_s);
    setWindowTitle(Caption);
    Tlb_Navigation->setObjectName(u"Tlb_Navigation"_s);
    AddButton(u"Back"_s, u"Zurück"_s, u"nav_back", Press<&Frm_Browser::GoBack>);
    AddButton(u"Next"_s, u"Vor"_s, u"nav_forward", Press<&Frm_Browser::GoForward>);
    AddButton(u"UpDate"_s, u"Aktualisieren"_s, u"nav_reload", Press<&Frm_Browser::Refresh>);
    AddButton(u"Stop"_s, u"Stop"_s, u"nav_stop", Press<&Frm_Browser::Stop>);

    Cmb_Url->setObjectName(u"Cmb_Url"_s);
    Cmb_Url->setAccessibleName(u"Adresse"_s);
    Cmb_Url->setEditable(true);
    Cmb_Url->setInsertPolicy(QComboBox::NoInsert); // its changes alone fill the list
    Cmb_Url->setCompleter(nullptr);
    Cmb_Url->setMaxCount(std::numeric_limits<int>::max());
    Cmb_Url->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    Cmb_Url->setMinimumContentsLength(12);
    Cmb_Url->lineEdit()->setPlaceholderText(u"Adresse eingeben und Enter drücken"_s);
    Cmb_Url->installEventFilter(this);
    connect(Cmb_Url, &QComboBox::editTextChanged, this, &Frm_Navigation::Cmb_Url_Change);

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(4, 0, 6, 0);
    row->addWidget(Tlb_Navigation);
    row->addWidget(Cmb_Url, 1);
    setFixedHeight(std::max(Twips::ToPixels(BarHeight), minimumSizeHint().height()));
    setMinimumWidth(300);
    resize(BarWidth, height());
}

void Frm_Navigation::AddButton(const QString& key, const QString& tip, QStringView icon, void (*press)()) {
    QAction* button = Tlb_Navigation->addAction(Icons::Named(icon), tip);
    button->setObjectName(u"Tlb_Navigation_"_s + key);
    connect(button, &QAction::triggered, this, [press] { press(); });
    QWidget* widget = Tlb_Navigation->widgetForAction(button);
    widget->setObjectName(button->objectName() + u"_Button"_s);
    widget->setFocusPolicy(Qt::TabFocus);
}

void Frm_Navigation::OnLoad() {
    if (Global::AssistantOpen) {
        Neighbours::RunAnimation(1, u"Mit dieser Leiste können Sie den Browser navigieren."_s);
    }
    Global::NavigationBarOpen = true;
    ToolPlace::Restore(*this, Global::NavigationPos, ToolPlace::Keeps::Place);
    if (!Loaded<Frm_Browser>()) return;
    Frm_Browser& browser = Shared<Frm_Browser>();
    const auto showStatus = [this](const QString& text) { setWindowTitle(Caption + u" - "_s + text); };
    connect(&browser, &Frm_Browser::StatusTextChange, this, showStatus);
    if (!browser.Status().isEmpty()) showStatus(browser.Status());
    connect(&browser, &Frm_Browser::DocumentComplete, Cmb_Url, &QComboBox::setEditText);
    Cmb_Url->setEditText(browser.Address());
}

void Frm_Navigation::OnUnload() {
    if (Global::AssistantOpen) Neighbours::RunAnimation(0, {});
    Global::NavigationBarOpen = false;
    ToolPlace::Store(*this, Global::NavigationPos, ToolPlace::Keeps::Place);
}

void Frm_Navigation::Present() {
    show();
    raise();
    activateWindow();
    Cmb_Url->setFocus();
    Cmb_Url->lineEdit()->selectAll();
}

void Frm_Navigation::closeEvent(QCloseEvent* event) {
    event->accept();
    if (unloadSelf) unloadSelf();
}

// Each text that the box ever had becomes an item, one for every key typed: that is meant.
void Frm_Navigation::Cmb_Url_Change(const QString& text) {
    const int caret = Cmb_Url->lineEdit()->cursorPosition();
    Cmb_Url->addItem(text);
    Cmb_Url->lineEdit()->setCursorPosition(caret); // a list that gets its first item takes it over
}

bool Frm_Navigation::eventFilter(QObject* watched, QEvent* event) {
    if (watched == Cmb_Url && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            const QString address = Cmb_Url->currentText();
            if (Loaded<Frm_Browser>()) Shared<Frm_Browser>().NavigateByUser(address);
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}
