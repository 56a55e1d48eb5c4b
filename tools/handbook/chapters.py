#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Writes the list of chapters and the links to the chapter before and behind into every page of the handbook.

Usage: chapters.py            after a chapter was added here, renamed or moved
       chapters.py --check    changes nothing, ends with 1 where a page is not as it would be written, or where a
                              picture's size in the page is not that of its file
A new page needs <div id="kapitel">, <p class="blaettern"> and its text; both are filled in.
"""
import pathlib
import re
import struct
import sys

FOLDER = pathlib.Path(__file__).resolve().parents[2] / "data" / "support"
CHAPTERS = [
    ("index.htm", "Überblick"),
    ("start.htm", "Start und Startdialog"),
    ("datei.htm", "Dateien öffnen und speichern"),
    ("code.htm", "Codefenster und Statuszeile"),
    ("bearbeiten.htm", "Bearbeiten und Rückgängig"),
    ("hilfen.htm", "Hilfen beim Schreiben"),
    ("javascript.htm", "JavaScript-Leiste"),
    ("einfuegen.htm", "Einfügen und Tags umwandeln"),
    ("toolfenster.htm", "Toolfenster"),
    ("dialoge.htm", "Tabellen, Styles und andere Dialoge"),
    ("textwerkzeuge.htm", "Suchen und Textwerkzeuge"),
    ("debugger.htm", "Debugger"),
    ("projekt.htm", "ProjektManager"),
    ("vorschau.htm", "Vorschau und Navigationsleiste"),
    ("drucken.htm", "Drucken und Syntaxfarben"),
    ("fenster.htm", "Ansicht und Fenster"),
    ("assistent.htm", "Assistent und Hilfe"),
    ("update.htm", "Updates"),
    ("optionen.htm", "Optionen"),
    ("tasten.htm", "Tastenübersicht"),
    ("daten.htm", "Datendateien und Einstellungen"),
]


def chapter_list(here):
    items = []
    for name, title in CHAPTERS:
        mark = ' class="hier"' if name == here else ""
        items.append(f'  <li{mark}><a href="{name}">{title}</a></li>\r\n')
    return '<div id="kapitel">\r\n<h2>Kapitel</h2>\r\n<ul>\r\n' + "".join(items) + "</ul>\r\n</div>"


def neighbours(number):
    links = []
    for word, other in (("Zurück", number - 1), ("Weiter", number + 1)):
        if 0 <= other < len(CHAPTERS):
            name, title = CHAPTERS[other]
            links.append(f'<a href="{name}">{word}: {title}</a>')
    return '<p class="blaettern">' + " | ".join(links) + "</p>"


def with_chapters(page, number):
    page = re.sub(r'<div id="kapitel">.*?</div>', lambda _: chapter_list(CHAPTERS[number][0]), page, flags=re.S)
    return re.sub(r'<p class="blaettern">.*?</p>', lambda _: neighbours(number), page, flags=re.S)


def with_picture_sizes(page):
    def sized(tag):
        header = (FOLDER / tag.group(1)).read_bytes()[:24]
        width, height = struct.unpack(">II", header[16:24])  # of the IHDR chunk, PNG 3rd edition, 11.2.1
        return f'<img src="{tag.group(1)}" width="{width}" height="{height}"'

    return re.sub(r'<img src="(bilder/[^"]+\.png)" width="\d+" height="\d+"', sized, page)


def main():
    check = sys.argv[1:] == ["--check"]
    stale = {path.name for path in FOLDER.glob("*.htm")} ^ {name for name, _ in CHAPTERS}
    for number, (name, _) in enumerate(CHAPTERS):
        path = FOLDER / name
        if not path.exists():
            continue
        before = path.read_bytes()
        after = with_picture_sizes(with_chapters(before.decode("cp1252"), number)).encode("cp1252")
        if after == before:
            continue
        if check:
            stale.add(name)
        else:
            path.write_bytes(after)
            print(name)
    if stale:
        sys.exit("not as chapters.py would write it, or not in its list: " + ", ".join(sorted(stale)))


main()
