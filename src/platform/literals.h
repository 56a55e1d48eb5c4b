// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

using namespace Qt::Literals::StringLiterals;
