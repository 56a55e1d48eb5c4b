// SPDX-License-Identifier: MIT
#pragma once

#include "state/neighbours.h"

// The busy picture and the progress bar around long work: they show as long as this lives.
class Busy {
public:
    Busy() { Neighbours::ShowPleaseWait(true); }
    ~Busy() {
        Neighbours::SetWorkProgress(-1);
        Neighbours::ShowPleaseWait(false);
    }
    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;

    // How much of the work is done. The bar is drawn anew only when its percent changes.
    void Progress(qsizetype done, qsizetype all) {
        const int percent = all > 0 ? static_cast<int>(done * 100 / all) : 100;
        if (percent != m_percent) Neighbours::SetWorkProgress(m_percent = percent);
    }

private:
    int m_percent = -1;
};
