# SPDX-License-Identifier: MIT
"""What make_words.py --check looks at: the form of the word file, forms that have to be there and forms that must
not."""

import sys

PRESENT = """
Häusern Hauses gegangen schönstem Vereinsheimes Vereinsheimen anzufangen angefangen anfängst fing rätst hältst liest
nimm gib lädst wüsste wäre ginge brächte arbeitest rechnete öffnet gesammelt sammle ändere studiert telefonierte
beendet vorbereitet vorzubereiten übersetzt übersetzte verstanden überraschend wäscht größerem beste höher teurer
dunkler edlen hübscheste heißeste spannendsten unklaren Möglichkeiten Ergebnisse Ergebnisses Museen Autoren Herrn
Menschen Namens Freundinnen Lehrerinnen Kindern Gärten Männern Tagen Tags Tages Betrages Friedens Bahnhöfen
Österreicherinnen Franzosen Münchner Berliner italienischer Browsern Webseiten Startseite einundzwanzig siebzehnte
achtzigste tauend groß Maße Straßenbahnen Vereinssatzung vergeben begangen angewidert begehrt wiederhergestellt
verkauft Verkäufen Zauberinnen Kürbisse Chefs verrät verlassen Herzens Helden Äpfeln zB und darüber
""".split()

ABSENT = """
Häusers gegeht gehte gegangte schöntem gutere gutesten hoche anfangzu geanfangen zubekommen gebekommen geübersetzt
gestudiert getelefoniert arbeitst rechnt öffnst Menschs Herrs Lehrerins Freundins Museums' Museume Autore Kinders
Männen Gärtens Ergebnise Nameses sammelest ändernst liesst hübschste spannendeste einsundzwanzig dreite achtte
Bahnhöfer Strassen daß muß geverstanden missgeverstanden vorgebereitet geverloren vergegeben aufgehrt Zaubererinnen
Kürbises Chefes Shirtes verratete verlasste Kürbise Herzes Helds Buses Kniee Willes Statuse verkaüfen Frauens
Mädchener Wörterns schnellter
""".split()


def faults_of_words(words, removed):
    known = {word.replace("ß", "\0").upper() for word in words}
    if not 20000 <= len(words):
        yield f"only {len(words)} words"
    if len(known) != len(words):
        yield f"{len(words) - len(known)} words stand there twice"
    for word in words:
        if any(char in removed or char.isspace() or char.isdigit() for char in word):
            yield f"the check never looks up {word}"
    for word in PRESENT:
        if word.replace("ß", "\0").upper() not in known:
            yield f"missing: {word}"
    for word in ABSENT:
        if word.replace("ß", "\0").upper() in known:
            yield f"wrong, but there: {word}"


def faults_of_file(path, expected):
    data = path.read_bytes()
    if data != expected:
        yield f"{path} is not what the tables give"
    if b"\r" in data or b"\n" in data:
        yield f"{path} has a line end"
    if b"  " in data:
        yield f"{path} has two blanks in a row"
    if not (data.startswith(b" ") and data.endswith(b" ")):
        yield f"{path} does not begin and end with a blank: its first and its last word are never found"


def run(words, path, expected, removed):
    """Prints all faults of the words and of the file that should hold them; the exit code."""
    faults = list(faults_of_words(words, removed)) + list(faults_of_file(path, expected))
    for fault in faults:
        print(fault, file=sys.stderr)
    print(f"{len(words)} words, {len(faults)} faults")
    return 1 if faults else 0
