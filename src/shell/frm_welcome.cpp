// SPDX-License-Identifier: MIT
#include "shell/frm_welcome.h"

#include "documents/code_access.h"
#include "documents/document_commands.h"
#include "documents/new_documents.h"
#include "documents/paths.h"
#include "platform/icons.h"
#include "platform/literals.h"
#include "state/global.h"
#include "state/neighbours.h"
#include "state/settings.h"

#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QTabBar>

namespace {

struct Option {
    QStringView tab;
    QStringView text;
    QStringView tag;
    QStringView icon;
};

constexpr Option Options[] = {
    {u"New", u"XHTML Seite", u"NewXHTML", u"new_xhtml"},
    {u"New", u"HTML Seite", u"NewHTML", u"new_html"},
    {u"New", u"WAP Seite", u"NewWAP", u"new_wml"},
    {u"New", u"JavaScript", u"NewJavaScript", u"new_javascript"},
    {u"New", u"Textdatei", u"NewTXT", u"new_text"},
    {u"Exist", u"Datei öffnen", u"OpenFile", u"open_file"},
    {u"Exist", u"", u"LastFile", u"last_file"},
    {u"Other", u"Browser starten", u"Browser", u"browser"},
};

} // namespace

Frm_Welcome::Frm_Welcome()
    : Tab_Choice(new QTabBar), Lvw_StartOption(new QListWidget), Cmd_Control_0(new QPushButton(u"&Ok"_s)),
      Cmd_Control_1(new QPushButton(u"S&chließen"_s)) {
    setObjectName(u"Frm_Welcome"_s);
    setWindowTitle(u"Neues Dokument"_s);
    Tab_Choice->setObjectName(u"Tab_Choice"_s);
    Tab_Choice->setAccessibleName(u"Auswahl"_s);
    const struct {
        QString key, text, icon;
    } tabs[] = {{u"New"_s, u"Neu"_s, u"tab_new"_s},
                {u"Exist"_s, u"Vorhanden"_s, u"tab_exist"_s},
                {u"Other"_s, u"Sonstiges"_s, u"tab_other"_s}};
    for (const auto& tab : tabs) {
        const int index = Tab_Choice->addTab(Icons::Named(tab.icon), tab.text);
        Tab_Choice->setTabData(index, tab.key);
    }
    Tab_Choice->setIconSize({20, 20});
    Tab_Choice->setDrawBase(false);
    Lvw_StartOption->setObjectName(u"Lvw_StartOption"_s);
    Lvw_StartOption->setIconSize({32, 32});
    Lvw_StartOption->setSpacing(2);
    Cmd_Control_0->setObjectName(u"Cmd_Control_0"_s);
    Cmd_Control_0->setDefault(true);
    Cmd_Control_1->setObjectName(u"Cmd_Control_1"_s);
    connect(Tab_Choice, &QTabBar::currentChanged, this, &Frm_Welcome::Tab_Choice_Click);
    connect(Lvw_StartOption, &QListWidget::currentItemChanged, this, [this](const QListWidgetItem* item) {
        if (item) m_choice = item->data(Qt::UserRole).toString();
    });
    connect(Lvw_StartOption, &QListWidget::itemDoubleClicked, this, [this] { Cmd_Control(0); });
    connect(Cmd_Control_0, &QPushButton::clicked, this, [this] { Cmd_Control(0); });
    connect(Cmd_Control_1, &QPushButton::clicked, this, [this] { Cmd_Control(1); });

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(Cmd_Control_0);
    buttons->addWidget(Cmd_Control_1);
    auto* all = new QVBoxLayout(this);
    all->setSpacing(0);
    all->addWidget(Tab_Choice);
    all->addWidget(Lvw_StartOption, 1);
    all->addSpacing(10);
    all->addLayout(buttons);
    resize(430, 330);
}

void Frm_Welcome::OnLoad() {
    if (Global::LastFile.isEmpty()) Global::LastFile = Settings::GetSetting(u"LastFile"_s, QString());
    Tab_Choice->setCurrentIndex(0);
    Tab_Choice_Click();
}

void Frm_Welcome::Tab_Choice_Click() {
    Lvw_StartOption->clear();
    const QString tab = Tab_Choice->tabData(Tab_Choice->currentIndex()).toString();
    for (const Option& option : Options) {
        if (option.tab != tab) continue;
        QString text = option.text.toString();
        if (option.tag == u"LastFile") {
            if (!RuntimeExtension::FileExists(Global::LastFile)) continue;
            text = u"Letzte Datei: '%1' öffnen"_s.arg(Global::FileNameOf(Global::LastFile));
        }
        auto* item = new QListWidgetItem(Icons::Named(option.icon), text, Lvw_StartOption);
        item->setData(Qt::UserRole, option.tag.toString());
    }
    Lvw_StartOption->setCurrentRow(0);
}

void Frm_Welcome::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (Global::AssistantOpen) {
        Neighbours::RunAnimation(2, u"Willkommen im Sorvane HTML Editor 3.0\r\n\r\nIch bin Ihr Assistent. "
                                    u"Und ich werde Ihnen beim Benutzen "
                                    "dieses Editors und beim Programmieren helfen. Wenn Sie Fragen zu einem "
                                    "Tag haben geben Sie Ihn im "
                                    "Textfeld über mir ein und klicken Sie auf Hilfe. Sie können auch im "
                                    "Text einen Tag markieren und auf "
                                    "Hilfe klicken."_s);
    }
    Lvw_StartOption->setFocus();
}

void Frm_Welcome::Cmd_Control(int index) {
    if (Global::AssistantOpen) Neighbours::RunAnimation(0, {});
    if (index == 0) Run();
    if (unloadSelf) unloadSelf();
}

void Frm_Welcome::Run() {
    hide(); // the command may ask questions of its own
    const QString choice = m_choice;
    if (choice == u"NewXHTML") Documents::CreateNewXHTMLFile();
    if (choice == u"NewHTML") Documents::CreateNewHTMLFile();
    if (choice == u"NewWAP") Documents::CreateNewWMLFile();
    if (choice == u"NewJavaScript") Documents::CreateNewJavaScript();
    if (choice == u"NewTXT") Documents::CreateNewTextFile();
    if (choice == u"OpenFile") Documents::Menu_File_Open_Click();
    if (choice == u"LastFile") Documents::OpenFile(Global::LastFile);
    if (choice == u"Browser") Neighbours::StartBrowser();
    if (choice == u"WAPBrowser") Neighbours::StartWAPBrowser(); // understood, though no item carries it
}

void Frm_Welcome::OnUnload() { done(QDialog::Accepted); }
