// SPDX-License-Identifier: MIT
#include "state/windows.h"

#include <QDebug>
#include <algorithm>

namespace Windows {

namespace {

struct Registry {
    std::span<const Row> rows;
    Stand stand;
};
Registry& Present() {
    static Registry registry;
    return registry;
}

// The row of `name`; nothing where it is missing, which is told.
const Row* Find(QStringView name) {
    const auto rows = Present().rows;
    const auto row = std::ranges::find(rows, name, &Row::name);
    if (row != rows.end()) return &*row;
    if (!rows.empty()) qCritical() << "no window answers to the name" << name;
    return nullptr;
}

} // namespace

void Install(std::span<const Row> rows) { Present().rows = rows; }

std::span<const Row> Rows() { return Present().rows; }

void StandIn(Stand stand) { Present().stand = std::move(stand); }

void Show(QStringView name) {
    if (Present().stand.show) return Present().stand.show(name.toString());
    const Row* row = Find(name);
    if (row && row->show) row->show();
}

void Unload(QStringView name) {
    if (Present().stand.unload) return Present().stand.unload(name.toString());
    const Row* row = Find(name);
    if (row && row->unload) row->unload();
}

bool ShowByCommand(QStringView command) {
    const auto rows = Present().rows;
    const auto row = std::ranges::find(rows, command, &Row::command);
    if (command.isEmpty() || row == rows.end() || !row->show) return false;
    row->show();
    return true;
}

void UnloadAll() {
    for (const Row& row : Present().rows) {
        if (row.unload) row.unload();
    }
}

} // namespace Windows
