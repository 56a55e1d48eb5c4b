#!/bin/sh
# SPDX-License-Identifier: MIT
#
# Draws the preview pictures of the predefined designs into icons/designs and measures the contrast of every text
# of the sample page under each of them, at 1024 and at 320 pixels. Fails below 4.5 to 1, and when a page is wider
# than its window.
#
# Usage: make_previews.sh [FOLDER OF THE PICTURES]
#
# Needs what a build needs, ImageMagick and optipng.
set -eu
here=$(CDPATH='' cd -- "$(dirname -- "$0")" && pwd)
root=$(CDPATH='' cd -- "$here/../.." && pwd)
pictures=${1:-$root/icons/designs}

for tool in g++ pkg-config convert optipng; do
    command -v "$tool" >/dev/null || { echo "$0: $tool is missing" >&2; exit 1; }
done

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
# shellcheck disable=SC2046
g++ -std=c++20 -O1 -fPIC "$here/sheet_preview.cpp" -o "$work/sheet_preview" \
    $(pkg-config --cflags --libs Qt6WebEngineWidgets)

export QT_QPA_PLATFORM=offscreen QT_QUICK_BACKEND=software XDG_RUNTIME_DIR="${XDG_RUNTIME_DIR:-/tmp}"
export QTWEBENGINE_CHROMIUM_FLAGS="--disable-gpu --hide-scrollbars"
# The web engine does not start in its sandbox for root.
[ "$(id -u)" -ne 0 ] || export QTWEBENGINE_DISABLE_SANDBOX=1

mkdir -p "$pictures"
failed=""
for number in 1 2 3 4 5 6 7 8; do
    echo "defstyle$number.css"
    "$work/sheet_preview" "$here/sample.htm" "$root/data/defstyle$number.css" "$here/measure.js" \
        "$work/$number.png" 2>"$work/errors" || failed="$failed $number"
    [ -s "$work/$number.png" ] || { cat "$work/errors" >&2; exit 1; }
    convert "$work/$number.png" -strip +dither -colors 256 "PNG8:$work/small.png"
    optipng -quiet -o5 "$work/small.png"
    cp "$work/small.png" "$pictures/design$number.png"
done
du -cb "$pictures"/design?.png
[ -z "$failed" ] || { echo "$0: not all is well with design$failed" >&2; exit 1; }
