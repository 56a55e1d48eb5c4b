// SPDX-License-Identifier: MIT
#pragma once

// Wires the calls that the assistant answers.
void WireAssistant();
