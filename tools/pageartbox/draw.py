#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Draws the picture collection: draw.py [--to FOLDER] | --check | --sheets FOLDER [--only FOLDER-NAME]"""

import argparse
import sys
from pathlib import Path

import backgrounds
import banners
import bullets
import buttons
import moving_signs
import moving_things
import rules
import sheets
import symbols_club
import symbols_feast
import symbols_page

COLLECTION = Path(__file__).resolve().parents[2] / "data" / "pageartbox"

FOLDERS = {
    "": banners.WELCOMES,
    "Animationen": moving_signs.PICTURES + moving_things.PICTURES,
    "Aufzählungszeichen": bullets.PICTURES,
    "Hintergründe": backgrounds.PICTURES,
    "Knöpfe": buttons.PICTURES,
    "Linien": rules.PICTURES,
    "Symbole": symbols_page.PICTURES + symbols_club.PICTURES + symbols_feast.PICTURES,
    "Titelbilder": banners.HEADERS,
}


def drawn_files(folders):
    """Every picture's path in the collection and its bytes."""
    for folder in folders:
        for picture in sorted(FOLDERS[folder], key=lambda picture: picture.name):
            yield Path(folder) / picture.name, picture.encode()


def write(target, folders):
    for path, data in drawn_files(folders):
        (target / path).parent.mkdir(parents=True, exist_ok=True)
        (target / path).write_bytes(data)


def differences(target):
    """What of the collection is missing, differs from what is drawn here, or is drawn nowhere."""
    drawn = set()
    for path, data in drawn_files(FOLDERS):
        drawn.add(path)
        if not (target / path).exists():
            yield f"missing: {path}"
        elif (target / path).read_bytes() != data:
            yield f"differs: {path}"
    for path in sorted(target.rglob("*")):
        if path.is_file() and path.relative_to(target) not in drawn:
            yield f"not drawn here: {path.relative_to(target)}"


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--to", type=Path, default=COLLECTION, metavar="FOLDER", help="draw into another folder")
    parser.add_argument("--check", action="store_true", help="say whether the folder holds what is drawn here")
    parser.add_argument("--sheets", type=Path, metavar="FOLDER", help="draw contact sheets of the folder")
    parser.add_argument("--only", choices=list(FOLDERS), help="one folder of the collection")
    options = parser.parse_args()
    folders = list(FOLDERS) if options.only is None else [options.only]
    if options.check:
        found = list(differences(options.to))
        print("\n".join(found) or "as drawn")
        return 1 if found else 0
    if options.sheets:
        sheets.write(options.to, options.sheets, folders)
        return 0
    write(options.to, folders)
    return 0


if __name__ == "__main__":
    sys.exit(main())
