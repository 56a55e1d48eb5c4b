// SPDX-License-Identifier: MIT
#include "state/commands.h"

#include "platform/literals.h"

#include <QHash>
#include <utility>

namespace Commands {

namespace {

QHash<QString, State> InitialStates() {
    QHash<QString, State> states;
    for (const MenuRow& row : MenuTree()) {
        if (row.flags & Separator) continue;
        states.insert(row.name.toString(), {true, !(row.flags & Hidden), (row.flags & Checked) != 0});
    }
    for (const ToolBarRow& row : ToolBar()) {
        if (!row.key.isEmpty()) states.insert(ButtonName(row.key), {});
    }
    for (const DropDownRow& row : DropDowns()) states.insert(EntryName(row.button, row.key), {});
    return states;
}

QHash<QString, State>& States() {
    static QHash<QString, State> states = InitialStates();
    return states;
}

std::function<void(const QString&)>& Watcher() {
    static std::function<void(const QString&)> watcher;
    return watcher;
}

void Set(const QString& name, bool State::*field, bool value) {
    const auto state = States().find(name);
    Q_ASSERT_X(state != States().end(), "Commands", qPrintable(name));
    if (state == States().end() || state.value().*field == value) return;
    state.value().*field = value;
    if (Watcher()) Watcher()(name);
}

} // namespace

QString ButtonName(QStringView key) { return u"ToolBar_"_s + key; }

QString EntryName(QStringView button, QStringView key) { return ButtonName(button) + u'_' + key; }

QString ButtonAt(int place) {
    const QStringView key = ToolBar()[static_cast<size_t>(place - 1)].key;
    return key.isEmpty() ? QString() : ButtonName(key);
}

const State& StateOf(const QString& name) {
    static const State none;
    const auto state = States().constFind(name);
    Q_ASSERT_X(state != States().constEnd(), "Commands", qPrintable(name));
    return state == States().constEnd() ? none : state.value();
}

void SetEnabled(const QString& name, bool enabled) { Set(name, &State::enabled, enabled); }

void SetVisible(const QString& name, bool visible) { Set(name, &State::visible, visible); }

void SetChecked(const QString& name, bool checked) { Set(name, &State::checked, checked); }

bool IsChecked(const QString& name) { return StateOf(name).checked; }

void ResetStates() {
    const auto initial = InitialStates();
    for (auto state = initial.begin(); state != initial.end(); ++state) {
        SetEnabled(state.key(), state->enabled);
        SetVisible(state.key(), state->visible);
        SetChecked(state.key(), state->checked);
    }
}

void Watch(std::function<void(const QString&)> watcher) { Watcher() = std::move(watcher); }

} // namespace Commands
