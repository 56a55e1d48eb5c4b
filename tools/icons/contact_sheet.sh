#!/bin/sh
# SPDX-License-Identifier: MIT
#
# Draws a contact sheet of the icon set into one PNG: every icon at 16, 24 and
# 48 pixels, once on the light and once on the dark background.
#
# Usage: contact_sheet.sh OUTPUT.png [icon name ...]
#   Without names all icons are drawn, in alphabetical order.
#   COLUMNS_PER_SHEET  icons in a row (default 8)
#   SCALE              whole-number enlargement of the sheet (default 1)
#
# Needs rsvg-convert and ImageMagick.
set -eu

if [ $# -lt 1 ]; then
    echo "usage: $0 OUTPUT.png [icon name ...]" >&2
    exit 2
fi
output=$1
shift

icons=$(CDPATH='' cd -- "$(dirname -- "$0")/../../icons" && pwd)
columns=${COLUMNS_PER_SHEET:-8}
scale=${SCALE:-1}

for tool in rsvg-convert convert montage; do
    command -v "$tool" >/dev/null || { echo "$0: $tool is missing" >&2; exit 1; }
done

if [ $# -eq 0 ]; then
    for file in "$icons"/*.svg; do
        name=$(basename "$file" .svg)
        # The splash picture is no icon.
        [ "$name" = splash ] || set -- "$@" "$name"
    done
fi

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

count=0
for name in "$@"; do
    count=$((count + 1))
    cell=$(printf '%s/cell%04d.png' "$work" "$count")
    for background in '#f0f0f0' '#2b2b2b'; do
        for size in 16 24 48; do
            rsvg-convert -w "$size" -h "$size" -b "$background" \
                "$icons/$name.svg" -o "$work/$size.png"
        done
        convert -size 112x56 "xc:$background" \
            "$work/16.png" -geometry +6+20 -composite \
            "$work/24.png" -geometry +28+16 -composite \
            "$work/48.png" -geometry +58+4 -composite \
            "$work/$background.png"
    done
    convert "$work/#f0f0f0.png" "$work/#2b2b2b.png" -append "$work/strip.png"
    convert "$work/strip.png" -background white -fill black -gravity center \
        -size 112x14 -pointsize 10 "caption:$name" -append "$cell"
done

montage "$work"/cell*.png -tile "${columns}x" -geometry +3+3 -background white \
    "$work/sheet.png"
convert "$work/sheet.png" -filter point -resize "$((scale * 100))%" "$output"
