#!/bin/sh
# SPDX-License-Identifier: MIT
# Installs what is missing, checks the sources' form, builds with warnings as errors and runs every test: once
# under AddressSanitizer and UndefinedBehaviorSanitizer, once in the optimised build.
set -eu
cd "$(dirname "$0")"

./tools/install_packages.sh test
./tools/check_includes.sh
find src tests bench -name '*.h' -o -name '*.cpp' | sort | xargs clang-format --dry-run --Werror

# XDG_RUNTIME_DIR is missing in bare containers; Qt then warns at every start.
export XDG_RUNTIME_DIR="${XDG_RUNTIME_DIR:-/tmp}"
for preset in sanitize release; do
    cmake --preset "$preset"
    cmake --build --preset "$preset"
    ctest --preset "$preset" -j "$(nproc)"
done
