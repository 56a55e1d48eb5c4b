// SPDX-License-Identifier: MIT
// What nearly every test needs.
#pragma once

#include "documents/text_buffer.h"
#include "platform/files.h"
#include "platform/literals.h"
#include "platform/text.h"
#include "state/commands.h"
#include "state/global.h"
#include "state/lists.h"
#include "state/neighbours.h"
#include "state/windows.h"
#include "support/program_folder.h"
#include "support/scripted_dialogs.h"
#include "support/table.h"
#include "support/test_registry.h"

#include <QDir>
#include <QFile>
