#!/bin/sh
# SPDX-License-Identifier: MIT
# Holds every include of src/ against the table src/floors.txt: no include from a lower floor to a higher one, no
# circle. Prints what breaks it, or one line with the count. Usage: check_includes.sh [folder with src/]
set -eu
cd "${1:-$(dirname "$0")/..}/src"

# Each folder may name only folders above it in the table, so the table itself has no circle.
awk '
    /^#/ || /^$/ { next }
    {
        folder = $1; sub(/:$/, "", folder)
        for (i = 2; i <= NF; ++i) {
            if (!($i in known)) { print "floors.txt: " folder " names " $i ", which stands below it or nowhere"; bad = 1 }
        }
        known[folder] = 1
    }
    END { exit bad }' floors.txt

grep -rn --include='*.h' --include='*.cpp' '^ *# *include *"' . | sed 's|^\./||' | awk '
    FNR == NR {
        if ($0 ~ /^#/ || $0 == "") next
        folder = $1; sub(/:$/, "", folder)
        allowed[folder, folder] = 1
        for (i = 2; i <= NF; ++i) allowed[folder, $i] = 1
        next
    }
    {
        split($0, part, ":")
        from = part[1]; if (from ~ /\//) sub(/\/.*/, "", from)
        to = $0; sub(/^[^"]*"/, "", to); sub(/".*/, "", to)
        if (to ~ /\.moc$/) next
        if (to !~ /\//) { print part[1] ":" part[2] ": \"" to "\" is named without its folder"; bad = 1; next }
        sub(/\/.*/, "", to)
        ++count
        if (!((from, to) in allowed)) { print part[1] ":" part[2] ": " from " may not include " to; bad = 1 }
    }
    END { if (!bad) print count " includes keep to the floors"; exit bad }' floors.txt -
