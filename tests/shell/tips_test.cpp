// SPDX-License-Identifier: MIT
// The shipped tips and the handbook against the menu: what they name is there and can be chosen.
#include "shell/tips.h"

#include "platform/code_page.h"
#include "state/activation.h"
#include "support/test.h"

#include <QHash>
#include <QRegularExpression>
#include <algorithm>
#include <bitset>

namespace {

// A menu item by its path, such as "Einfügen / Tabelle / Tabelle einfügen...".
struct Item {
    QStringList names; // object names from the menu bar down to the item
    QString keys;      // as the tips write them: "Umschalt+Strg+F5"
    bool visible;      // at start
};

QString KeysOf(const Commands::MenuRow& row) {
    QStringList keys = row.shortcut.toString().split(u'+', Qt::SkipEmptyParts);
    if (keys.removeOne(u"Ctrl"_s)) keys.prepend(u"Strg"_s);
    if (keys.removeOne(u"Shift"_s)) keys.prepend(u"Umschalt"_s);
    return keys.join(u'+');
}

QHash<QString, Item> Items() {
    Commands::ResetStates();
    QHash<QString, Item> items;
    QStringList captions;
    QStringList names;
    for (const Commands::MenuRow& row : Commands::MenuTree()) {
        if (row.name.isEmpty()) continue;
        captions = captions.mid(0, row.level) << row.caption.toString().remove(u'&');
        names = names.mid(0, row.level) << row.name.toString();
        const bool visible = std::all_of(names.cbegin(), names.cend(),
                                         [](const QString& name) { return Commands::StateOf(name).visible; });
        items.insert(captions.join(u" / "_s), {names, KeysOf(row), visible});
    }
    return items;
}

// Whether there is a state of the program in which the item and all menus above it are open.
bool CanBeChosen(const Item& item) {
    for (unsigned long bits = 0; bits < 256; ++bits) {
        const std::bitset<8> b(bits);
        Commands::ResetStates();
        Activation::Apply(Activation::Evaluate({b[0], b[1], b[2], b[3], b[4], b[5], b[6], b[7]}));
        if (std::all_of(item.names.cbegin(), item.names.cend(),
                        [](const QString& name) { return Commands::StateOf(name).enabled; })) {
            return true;
        }
    }
    return false;
}

// What is wrong with the commands that a tip names; empty if nothing is. A command stands in German quotes as
// its path in the menu, with " / " between the levels, and its keys may follow in brackets.
QString FaultOf(const QString& tip) {
    static const QHash<QString, Item> items = Items();
    static const QRegularExpression quoted(u"„([^“]*)“(?: \\(([^)]*)\\))?"_s);
    for (auto hit = quoted.globalMatch(tip); hit.hasNext();) {
        const QRegularExpressionMatch match = hit.next();
        const QString path = match.captured(1);
        if (!path.contains(u" / ")) continue; // no command
        const auto item = items.constFind(path);
        if (item == items.cend()) return u"not in the menu: "_s + path;
        if (!item->visible) return u"hidden: "_s + path;
        if (!CanBeChosen(*item)) return u"never open: "_s + path;
        const QString keys = match.captured(2);
        if (!keys.isEmpty() && keys != item->keys) return u"other keys: "_s + path;
    }
    return {};
}

} // namespace

class TipsTest : public QObject {
    Q_OBJECT

private slots:
    void nameCommandsOfTheMenu() {
        const ProgramFolder folder;
        QVERIFY(Tips::LoadTips());
        QList<std::pair<QString, QString>> texts; // where it stands, and what is said there
        for (int i = 1; i <= Global::TipList[0].toInt(); ++i)
            texts.emplaceBack(u"tip %1"_s.arg(i), Global::TipList[static_cast<size_t>(i)]);
        QVERIFY(texts.size() > 50);
        static const QRegularExpression way(u"<span class=\"weg\">([^<]*&rarr;[^<]*)</span>"_s);
        const QDir pages(SourceFile(u"data/support"_s));
        for (const QString& name : pages.entryList({u"*.htm"_s})) {
            const QString page = CodePage::FromWindows1252(folder.Read(u"support/"_s + name));
            for (auto hit = way.globalMatch(page); hit.hasNext();)
                texts.emplaceBack(name, u'„' + hit.next().captured(1).replace(u"&rarr;"_s, u"/"_s) + u'“');
        }
        qsizetype paths = 0;
        for (const auto& [place, text] : texts) {
            paths += text.contains(u" / ") ? 1 : 0;
            const QString fault = FaultOf(text);
            const bool handbook = place.endsWith(u".htm"); // it tells when a hidden one shows
            QVERIFY2(fault.isEmpty() || (handbook && fault.startsWith(u"hidden")),
                     qPrintable(place + u": "_s + fault));
        }
        QVERIFY(paths > 80); // the check has had something to look at
    }

    void faultsAreFound() {
        QCOMPARE(FaultOf(u"„Einfügen / Tag schließen“ (Strg+E) und „Tipp“"_s), QString());
        for (const auto& [tip, fault] :
             {std::pair(u"„Einfügen / Tabbelle“"_s, u"not in the menu"_s),
              std::pair(u"„Tools / Rechtschreibung prüfen...“"_s, u"hidden"_s),
              std::pair(u"„Einfügen / Tag schließen“ (Strg+U)"_s, u"other keys"_s)}) {
            QVERIFY2(FaultOf(tip).startsWith(fault), qPrintable(tip));
        }
    }
};

REGISTER_TEST_AS(Tips, TipsTest);
#include "tips_test.moc"
