// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <ctime>
#include <functional>

// Processor time, and time by the wall clock, that the work takes; milliseconds.
inline double ProcessorMilliseconds(const std::function<void()>& work) {
    const std::clock_t begin = std::clock();
    work();
    return 1000.0 * double(std::clock() - begin) / CLOCKS_PER_SEC;
}

inline double WallMilliseconds(const std::function<void()>& work) {
    const auto begin = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin).count();
}
