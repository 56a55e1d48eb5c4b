#!/bin/sh
# SPDX-License-Identifier: MIT
# Makes the pictures of the README anew: the main window with the sample page, small and large, light and dark.
# Needs xvfb, openbox, xdotool, imagemagick and qt6ct besides what the build needs.
set -eu
here=$(cd "$(dirname "$0")/.." && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cp -r "$here/build/release/bin" "$work/bin"
cp -r "$here/examples/verein" "$work/verein"
rm -f "$work/bin/edit.ini"
mkdir -p "$here/docs/pictures" "$work/config/qt6ct"
cat >"$work/config/qt6ct/qt6ct.conf" <<CONF
[Appearance]
color_scheme_path=/usr/share/qt6ct/colors/darker.conf
custom_palette=true
style=Fusion
CONF

take() { # name, width, height, theme
    rm -f "$work/bin/edit.ini"
    XDG_CONFIG_HOME="$work/config" QT_QPA_PLATFORMTHEME="$4" QTWEBENGINE_DISABLE_SANDBOX=1 \
        PROGRAM="$work/bin/sorvane" PAGE="$work/verein/index.htm" PICTURE="$here/docs/pictures/$1.png" \
        xvfb-run -a -s "-screen 0 $2x$3x24" sh -c '
        openbox & manager=$!
        sleep 1
        "$PROGRAM" "$PAGE" & editor=$!
        sleep 5
        xdotool key --clearmodifiers Down; sleep 1
        import -window root "$PICTURE"
        kill -9 $editor; kill $manager; true' >/dev/null 2>&1
    echo "docs/pictures/$1.png"
}
take small_light 800 600 ""
take small_dark 800 600 qt6ct
take large_light 1600 1000 ""
take large_dark 1600 1000 qt6ct
