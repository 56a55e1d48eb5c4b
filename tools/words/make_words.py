#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Makes the word file of the spelling check from the tables in this folder:
python3 make_words.py [--to FILE] | --from LIST --to FILE | --check | --sample COUNT"""

import argparse
import random
import re
import sys
from pathlib import Path

import checks
import inflection as rules

FOLDER = Path(__file__).resolve().parent
WORD_FILE = FOLDER.parent.parent / "data" / "german.wds"
REMOVED = ".,:;-()!?$&/\\={}'\""  # What the check takes out of a piece of text before it looks it up.


class TableError(Exception):
    """A line of a table that cannot be read. Its text names the table and the line's fault."""


def sections(name):
    """(section, rest of line) for each line of a table that is no comment; section is "" before the first heading."""
    section = ""
    for line in (FOLDER / name).read_text(encoding="utf-8").splitlines():
        line = line.strip()
        if line.startswith("[") and line.endswith("]"):
            section = line[1:-1]
        elif line and not line.startswith("#"):
            yield section, line


def marked(word):
    """(word, marks behind it)"""
    bare = word.rstrip("!*>+^")
    return bare, word[len(bare):]


# The tables, one routine each


def add_noun(nouns, forms):
    """Enters a noun's forms under the noun, which is what all of them begin with in the tables."""
    word, cases = forms
    nouns.setdefault(word, set()).update(cases)


def read_nouns(nouns):
    for section, line in sections("nouns.txt"):
        gender, mark = section.split()
        for word in line.split():
            add_noun(nouns, (word.partition("=")[0], rules.noun(word, gender, mark)))


def read_verbs(nouns):
    """The forms of all verbs; the nouns made of them go to nouns."""
    forms = set()
    for section, line in sections("verbs.txt"):
        head, _, prefixes = line.partition(":")
        told, *parts = head.split()
        if section == "strong" and len(parts) not in (3, 4):
            raise TableError(f"verbs.txt: {line}: not infinitive, third person, past, participle")
        infinitive, marks = marked(told.lstrip("-"))
        members = [] if told.startswith("-") else [(rules.base_prefix(infinitive, parts), infinitive, marks)]
        members += [(prefix, infinitive, own) for prefix, own in map(marked, prefixes.split())]
        for prefix, base, own in members:
            forms |= rules.verb(base, parts, prefix, "!" not in own)
            whole = prefix.lstrip("=+") + base
            if "*" in own:
                add_noun(nouns, (rules.derived(whole, "ung"), rules.action(whole)))
            if ">" in own:
                add_noun(nouns, (rules.derived(whole, "er"), rules.agent(whole)))
    return forms


def read_adjectives(nouns):
    forms = set()
    for section, line in sections("adjectives.txt"):
        for told in line.split():
            word, marks = marked(told)
            if section == "indeclinable":
                forms.add(word)
                continue
            forms |= rules.adjective(word, section)
            if "+" in marks:
                forms |= rules.adjective("un" + word, "plain")
            if "^" in marks:
                add_noun(nouns, rules.quality(word.capitalize()))
    return forms


def read_compounds(nouns):
    """Compounds take the forms of their last part, which has to be a noun of the tables or a compound told before."""
    for _, line in sections("compounds.txt"):
        first, *others = line.split()
        if first.startswith("-"):
            pairs = [(front, first[1:].capitalize()) for front in others]
        else:
            pairs = [(first.rstrip("-"), head) for head in others]
        for front, head in pairs:
            if head not in nouns:
                raise TableError(f"compounds.txt: {head} (in {front}-{head}) is no noun of the tables")
            add_noun(nouns, (front + head.lower(), {front + form.lower() for form in nouns[head]}))


def read_names():
    forms = set()
    for section, line in sections("names.txt"):
        if section == "countries":
            forms |= rules.country(*line.split())
            continue
        for told in line.split():
            name, _, stem = told.partition("/")
            forms |= rules.name(name)
            if section == "places" and stem != "0":
                forms |= rules.inhabitant((stem or name) + "er")
    return forms


def read_plain():
    return {word for _, line in sections("plain.txt") for word in line.split()}


def all_words():
    """All forms of the tables, one spelling for each upper-case form, sorted."""
    nouns = {}
    read_nouns(nouns)
    verbs = read_verbs(nouns)
    adjectives = read_adjectives(nouns)
    read_compounds(nouns)
    forms = read_plain() | rules.number_words() | verbs | adjectives | read_names()
    for cases in nouns.values():
        forms |= cases
    return unify(forms)


def unify(words):
    """The words as the check looks them up: without the characters it removes, without digits, each once whatever its
    case (the lower-case spelling where there are several), sorted."""
    table = str.maketrans("", "", REMOVED)
    kept = {}
    for word in sorted((word.translate(table) for word in words), reverse=True):
        if word and not re.search(r"[0-9\s]", word):
            kept.setdefault(word.replace("ß", "\0").upper(), word)
    return sorted(kept.values(), key=lambda word: (word.lower(), word))


# Files


def encoded(words):
    """The bytes of a word file: a blank in front of and behind every word, no line end."""
    return (" " + " ".join(words) + " ").encode("cp1252")


def words_of_list(path):
    """The words of a list with one word a line, in UTF-8 or else Latin-1, that Windows-1252 can hold."""
    data = path.read_bytes()
    try:
        text = data.decode("utf-8")
    except UnicodeDecodeError:
        text = data.decode("latin-1")
    words = []
    for line in text.splitlines():
        try:
            line.encode("cp1252")
            words.append(line.strip())
        except UnicodeEncodeError:
            print(f"left out, not in Windows-1252: {line}", file=sys.stderr)
    return unify(words)


def main():
    parser = argparse.ArgumentParser(description="Makes the word file of the spelling check.")
    parser.add_argument("--to", type=Path, help="file to write (default: data/german.wds, but with --from none)")
    parser.add_argument("--from", dest="source", type=Path, help="take the words of this list, one a line")
    parser.add_argument("--check", action="store_true", help="check the tables' words and data/german.wds")
    parser.add_argument("--sample", type=int, metavar="COUNT", help="print that many words by chance")
    options = parser.parse_args()
    if options.source and not options.to:
        parser.error("--from needs --to: data/german.wds is made from the tables")
    target = options.to or WORD_FILE
    try:
        words = words_of_list(options.source) if options.source else all_words()
        if options.check:
            return checks.run(words, target, encoded(words), REMOVED)
        if options.sample:
            print("\n".join(random.sample(words, min(options.sample, len(words)))))
            return 0
        target.write_bytes(encoded(words))
    except (TableError, OSError) as fault:
        print(fault, file=sys.stderr)
        return 1
    print(f"{target}: {len(words)} words")
    return 0


if __name__ == "__main__":
    sys.exit(main())
