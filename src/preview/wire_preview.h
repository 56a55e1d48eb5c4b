// SPDX-License-Identifier: MIT
#pragma once

namespace Preview {

// Answers the calls that other windows make to the preview.
void WirePreview();

// The browser-only mode: the preview with its navigation bar, without a document.
void StartBrowsing();
// The same under the caption of the WAP simulation.
void StartWAPBrowsing();

} // namespace Preview
