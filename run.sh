#!/bin/sh
# SPDX-License-Identifier: MIT
# Installs what is missing, builds the optimised program and starts it: ./run.sh [file]
set -eu
here=$(cd "$(dirname "$0")" && pwd)

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    "$here/tools/install_packages.sh" build
else
    "$here/tools/install_packages.sh" run
fi
cmake -S "$here" -B "$here/build/release" -G Ninja -DCMAKE_BUILD_TYPE=Release >/dev/null
cmake --build "$here/build/release" --target sorvane sorvane_data

program="$here/build/release/bin/sorvane"
if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    exec "$program" "$@"
fi

picture="$here/build/screenshot.png"
echo "There is no display: the editor runs on a virtual one, and a picture of it goes to $picture."
SORVANE_PROGRAM="$program" SORVANE_PICTURE="$picture" xvfb-run -a -s "-screen 0 1280x800x24" sh -c '
    "$SORVANE_PROGRAM" "$@" &
    editor=$!
    sleep 5
    import -window root "$SORVANE_PICTURE"
    kill $editor 2>/dev/null || true
    wait $editor 2>/dev/null || true' sorvane "$@"
[ -s "$picture" ] && echo "The picture has been written."
