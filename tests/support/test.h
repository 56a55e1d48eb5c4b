// SPDX-License-Identifier: MIT
// What nearly every test needs.
#pragma once

#include "platform/literals.h"
#include "state/commands.h"
#include "state/global.h"
#include "state/neighbours.h"
#include "state/windows.h"
#include "support/program_folder.h"
#include "support/scripted_dialogs.h"
#include "support/table.h"
#include "support/test_registry.h"
