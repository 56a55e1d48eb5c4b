#!/bin/bash
# SPDX-License-Identifier: MIT
# Takes the handbook's pictures of the tool windows and dialogs anew, from the built program on the sample site,
# and writes their sizes into the pages. Usage: take_pictures.sh [name...]  (all when none is named)
# Needs xvfb, openbox, xdotool and imagemagick besides what the build needs.
set -eu
here=$(cd "$(dirname "$0")/../.." && pwd)
pictures=$here/data/support/bilder
wanted=" $* "
work=$(mktemp -d /tmp/XXXXXXXX) # without a dot, for a second one in its path keeps a file out of a backup
home=/home/anna                 # what the pictures show; below $work where it cannot be made
mkdir "$home" 2>/dev/null || home=$work/anna
started=()
end() {
    kill -9 "${started[@]}" 2>/dev/null || true
    rm -rf "$work" "$home"
}
trap end EXIT

Xvfb -displayfd 3 -screen 0 1100x800x24 3>"$work/display" >/dev/null 2>&1 &
started+=($!)
sleep 1
export DISPLAY=:$(cat "$work/display") QTWEBENGINE_DISABLE_SANDBOX=1 XDG_CONFIG_HOME=$work
openbox >/dev/null 2>&1 &
started+=($!)
cp -r "$here/build/release/bin" "$work/bin"
cp -r "$here/examples/verein" "$work/verein"
mkdir -p "$home/Bilder" "$home/Dokumente" "$home/Sicherungen/Verein 2026" "$home/Webseiten"
export HOME=$home
cat >"$work/bin/edit.ini" <<INI
WindowState=2
Assistant=False
DontShowNewUpdate=True
AutoMaximize=True
AutoDebug=False
AutoProjectManager=False
UseWindowsMenu=True
TagToolLeft=10600
TagToolTop=2000
CharactersToolLeft=13500
CharactersToolTop=2000
ColorToolLeft=10600
ColorToolTop=3900
KCCToolLeft=10600
KCCToolTop=6100
EventToolLeft=10600
EventToolTop=8700
INI
"$work/bin/sorvane" "$work/verein/index.htm" >/dev/null 2>&1 &
started+=($!)
sleep 6

keys() { for key in "$@"; do xdotool key --clearmodifiers "$key"; sleep 0.4; done; }
say() { xdotool type --delay 30 "$1"; sleep 0.3; }
is_wanted() { [ "$wanted" = "  " ] || [[ $wanted == *" $1 "* ]]; }
# The window in front, with its frame, as the picture of that name.
take() {
    sleep 1
    timeout 20 import -frame -window "$(xdotool getactivewindow)" "$pictures/$1.png"
    echo "data/support/bilder/$1.png"
}
# Opens a dialog by the keys of its command, does what the rest of the line says, takes the picture, closes.
dialog() { # name, keys, command that fills the dialog
    is_wanted "$1" || return 0
    local name=$1 menu=$2
    shift 2
    keys $menu
    sleep 1
    "$@"
    take "$name"
    keys Escape
    sleep 0.5
}
at() { # x, y in the window in front
    eval "$(xdotool getactivewindow getwindowgeometry --shell)"
    xdotool mousemove $((X + $1)) $((Y + $2)) click 1
    sleep 0.4
}
fill_table() {
    keys ctrl+a
    say 4
    keys Tab ctrl+a
    say 3
    keys Tab
    for cell in Sorte Beutel Preis Radieschen "200 Korn" "1.20 EUR" Salat "50 Korn" "1.50 EUR" Petersilie "1 g" "0.90 EUR"; do
        say "$cell"
        keys Tab
    done
}

dialog tabelle "alt+e b e" fill_table
if is_wanted tabelle; then # the draft is not to be kept
    sleep 1
    keys alt+n
    sleep 1
fi
dialog suchen F3 say Verein
dialog frames "alt+e f" true
dialog metatags "alt+e m" true
dialog styleelement "alt+e e e" true
dialog designs "alt+e e v" keys Down
dialog speedcheck "alt+t c" true
choose_folder() {
    sleep 1
    keys Tab Tab Tab Tab # to the tree
    keys Right
    sleep 1
    keys Down Down Down
}
dialog projektbackup "alt+d p" choose_folder
fill_upload() {
    sleep 1
    keys ctrl+a
    say ftp.verein.example
    keys Tab ctrl+a
    say verein
    keys Tab ctrl+a
    say geheim
    keys alt+w Tab space
}
dialog upload "alt+d u u Return" fill_upload
if is_wanted toolfenster; then
    keys alt+a Down Down Down Down Return
    for key in b t s e; do keys F6 alt+a $key; done
    keys F6
    sleep 1
    import -window root -crop 460x620+640+70 +repage "$pictures/toolfenster.png"
    echo data/support/bilder/toolfenster.png
fi
if is_wanted wap; then
    kill -9 "${started[-1]}"
    "$work/bin/sorvane" "$work/verein/wap/index.wml" >/dev/null 2>&1 &
    started+=($!)
    sleep 6
    keys ctrl+shift+F5
    sleep 5
    import -window root -crop 720x300+0+0 +repage "$pictures/wap.png"
    echo data/support/bilder/wap.png
fi
"$here/tools/handbook/chapters.py"
