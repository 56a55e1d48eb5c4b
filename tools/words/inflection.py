# SPDX-License-Identifier: MIT
"""The rules of German inflection: each routine takes a word and what the tables say of it and gives the set of its
forms. They are common knowledge of school grammar. Rare forms (du machest, dem Hause) are left out, the few in daily
use stand in plain.txt."""

import re

ADJECTIVE_ENDINGS = ("e", "em", "en", "er", "es")
SIBILANTS = ("s", "ß", "x", "z")
INSEPARABLE = ("be", "ge", "er", "ver", "zer", "ent", "emp", "miss", "über", "unter", "hinter", "wider")
# Verbs that only look as if they had one of these.
UNPREFIXED = ("beben", "bessern", "beichten", "bellen", "beten", "betteln", "beugen", "erben", "ernten", "geistern",
              "geizen", "gellen", "gerben", "widern", "zerren")
# Words like Betrag and Antrag take -es as well as -s: behind these a single syllable bears the noun.
NOUN_PREFIXES = ("be", "ge", "er", "ver", "zer", "ent", "emp", "an", "ab", "auf", "aus", "bei", "durch", "ein", "fort",
                 "her", "hin", "mit", "nach", "über", "um", "unter", "vor", "weg", "wider", "zu", "zusammen")
NUMBERS = ("null ein zwei drei vier fünf sechs sieben acht neun zehn elf zwölf dreizehn vierzehn fünfzehn sechzehn "
           "siebzehn achtzehn neunzehn").split()
TENS = "zwanzig dreißig vierzig fünfzig sechzig siebzig achtzig neunzig".split()


def with_endings(stem):
    """The declined forms of an adjective's stem."""
    return {stem + ending for ending in ADJECTIVE_ENDINGS}


def umlaut(word):
    """The word with its last a, o, u or au changed to the umlaut; as it is if it has none."""
    found = re.search(r"^(.*?)(au|aa|oo|[aou])([^aouäöü]*)$", word, re.IGNORECASE)
    if not found:
        return word
    changed = {"au": "äu", "aa": "ä", "oo": "ö", "a": "ä", "o": "ö", "u": "ü"}
    vowel = changed[found[2].lower()]
    return found[1] + (vowel.capitalize() if found[2][0].isupper() else vowel) + found[3]


def syllables(word):
    """How many groups of vowels the word has."""
    return len(re.findall(r"[aeiouyäöü]+", word.lower()))


# Nouns


def takes_both_genitives(word):
    """Whether the genitive may end in -es besides -s: one syllable that ends in a consonant, prefixes apart."""
    if word[-1] in "aeiouyäöüh":
        return False
    if syllables(word) == 1:
        return True
    lower = word.lower()
    return any(lower.startswith(prefix) and syllables(lower[len(prefix):]) == 1
               and not re.search(r"e[lrnm]$", lower) for prefix in NOUN_PREFIXES)


def genitives(word):
    """The genitives of a masculine or neuter noun that is not weak."""
    if re.search(r"[^aeiou]is$|^Bus$", word):
        return {word + "ses"}
    if word.endswith(("us", "as", "os")) and syllables(word) > 1:
        return {word}
    if word.endswith(SIBILANTS):
        return {word + "es"}
    if word.endswith("sch"):
        return {word + "es", word + "s"} if syllables(word) > 1 else {word + "es"}
    return {word + "s", word + "es"} if takes_both_genitives(word) else {word + "s"}


def plural_of(word, mark):
    """The nominative plural for a mark of the tables: an ending, with a double quotation mark in front for umlaut."""
    stem = umlaut(word) if mark.startswith('"') else word
    ending = mark.lstrip('"')
    return stem if ending in ("", "-") else stem + ending


def noun(word, gender, mark):
    """All cases of a noun. Gender: m, n or f. Mark: "0" no plural, "only" has nothing but this plural, "weak" the weak
    masculine nouns, "-ns" those like Name, "in" a person with a feminine form, else see plural_of; word=plural in
    place of the word tells an irregular plural."""
    word, _, told = word.partition("=")
    if mark == "only":
        return {word, dative_plural(word)}
    if mark == "weak":
        return {word, word + ("n" if word.endswith("e") else "en")}
    if mark == "-ns":
        return {word, word + "n", word + "ns"}
    if mark == "in":
        root = word[:-2] if re.search(r"[^aeiouäöü]erer$", word) else word  # Zauberer, Zauberin; but Schmiererin
        return noun(word, gender, "-") | noun(root + "in", "f", "nen")
    plural = told or plural_of(word, mark) if mark != "0" else word
    forms = {word, plural, dative_plural(plural)} if mark != "0" else {word}
    if gender == "f":
        return forms
    return forms | ({plural} if plural == word + "s" else genitives(word))  # des Chefs, never Chefes


def dative_plural(plural):
    """The plural's dative: -n behind -e, -el and -er."""
    return plural + "n" if re.search(r"e[lr]?$", plural) else plural


# Adjectives


def adjective_stem(word):
    """What the endings hang on: dunkel, dunkl-; teuer, teur-; leise, leis-; hoch, hoh-."""
    if word.endswith("el"):
        return word[:-2] + "l"
    if re.search(r"[ae]uer$", word):
        return word[:-2] + "r"
    if word.endswith("hoch"):
        return word[:-4] + "hoh"
    return word[:-1] if word.endswith("e") else word


def superlative_stem(word):
    """The superlative without its ending: schönst-, kürzest-, spannendst-."""
    if word.endswith("e"):
        word = word[:-1]
    if re.search(r"([sßxzdt]|[^i]sch)$", word) and not re.search(r"[^aeiouäöüi]*end$", word):
        return word + "est"
    if word.endswith("end") and syllables(word) == 1:
        return word + "est"
    return word + "st"


def adjective(word, kind):
    """All forms of an adjective. Kind: "compared", "umlaut" (compared with umlaut) or "plain" (no comparison)."""
    forms = {word} | with_endings(adjective_stem(word))
    if kind == "plain":
        return forms
    base = umlaut(word) if kind == "umlaut" else word
    forms |= {adjective_stem(base) + "er"} | with_endings(adjective_stem(base) + "er")
    return forms | with_endings(superlative_stem(base))


def quality(word):
    """The noun in -heit or -keit to an adjective and all its cases."""
    ending = "keit" if re.search(r"(lich|ig|bar|sam|isch|haft|er|el)$", word) else "heit"
    if word.endswith(("los", "haft")):
        ending = "igkeit"
    return word + ending, noun(word + ending, "f", "en")


# Verbs


def verb_stem(infinitive):
    return infinitive[:-2] if infinitive.endswith("en") else infinitive[:-1]


def needs_e(stem):
    """Whether an e stands between this stem and -st or -t: du arbeitest, er rechnet."""
    return bool(re.search(r"([td]|(ch|[bdfgkpt])[mn])$", stem))


def second_person(stem):
    """The form with -st."""
    if needs_e(stem):
        return stem + "est"
    return stem + "t" if stem.endswith(SIBILANTS) else stem + "st"


def third_person(stem):
    """The form with -t."""
    return stem + ("et" if needs_e(stem) else "t")


def first_person(infinitive):
    stem = verb_stem(infinitive)
    if infinitive.endswith("eln"):
        return {stem[:-2] + "le", stem + "e"}
    return {stem + "e"}


def weak_past(past):
    """machte and what is formed from it."""
    return {past, past + "st", past + "n", past + "t"}


def strong_past(past):
    """ging and what is formed from it."""
    plural = past + ("n" if past.endswith("e") else "en")
    second = {past + "est"} if past.endswith(("t", "d") + SIBILANTS) else {past + "st"}
    return {past, plural, past + ("et" if past.endswith(("t", "d")) else "t")} | second


def changed_second_person(third, stem):
    """The form with -st from the told third person: fährt, fährst; hält, hältst; liest, liest."""
    if third == third_person(stem):
        return second_person(stem)
    if stem.endswith("t"):
        return third + "st"
    base = third[:-1]
    return base + ("t" if base.endswith(SIBILANTS) else "st")


def weak_verb(infinitive):
    """(finite forms, imperative, participle without ge-) of a weak verb."""
    stem = verb_stem(infinitive)
    participle = third_person(stem)
    finite = {infinitive, second_person(stem), participle} | first_person(infinitive) | weak_past(participle + "e")
    bare = set() if needs_e(stem) or infinitive.endswith(("eln", "ern")) else {stem}
    return finite, bare, participle


def strong_verb(infinitive, third, past, subjunctive):
    """(finite forms, imperative) of a strong verb. Subjunctive: "" for the regular one."""
    stem = verb_stem(infinitive)
    finite = {infinitive, third, third_person(stem), changed_second_person(third, stem)} | first_person(infinitive)
    if past.endswith("te"):
        finite |= weak_past(past)
    else:
        finite |= strong_past(past)
        subjunctive = subjunctive or umlaut(past) + ("" if past.endswith("e") else "e")
    if subjunctive:
        finite |= weak_past(subjunctive)
    if third != third_person(stem) and re.search(r"e[^aeiouäöü]*$", stem):
        return finite, {third if stem.endswith("t") else third[:-1]}  # gib, nimm, tritt
    return finite, (set() if needs_e(stem) and not stem.endswith(("d", "t")) else {stem})


def present_participle(infinitive):
    return "tuend" if infinitive == "tun" else infinitive + "d"


def base_prefix(infinitive, parts):
    """"=" for a weak verb that begins with an inseparable prefix and so takes no ge-, "" for others."""
    if parts or infinitive.startswith(UNPREFIXED):
        return ""
    return "=" if infinitive.startswith(INSEPARABLE + ("vollend", "vollführ", "wiederhol")) else ""


def is_separable(prefix):
    """Whether a verb with this prefix is divided; "=" in front tells that it is not, "+" that it is."""
    return prefix[0] == "+" or prefix[0] != "=" and prefix not in INSEPARABLE


def split_prefix(prefix):
    """(separable part, inseparable part) of a prefix, one of which is empty."""
    bare = prefix.lstrip("=+")
    if not is_separable(prefix):
        return "", bare
    return bare, ""


def verb(infinitive, parts, prefix="", attributive=True):
    """All forms of a verb. Parts: () for a weak one; third person, past, participle and, where it is irregular,
    subjunctive of a strong one, without prefix. Attributive: whether the second participle takes endings."""
    if parts:
        finite, imperative = strong_verb(infinitive, parts[0], parts[1], parts[3] if len(parts) > 3 else "")
        participle = parts[2]
    else:
        finite, imperative, participle = weak_verb(infinitive)
        if not infinitive.endswith("ieren") and not base_prefix(infinitive, parts):
            participle = "ge" + participle
    separable, inseparable = split_prefix(prefix) if prefix else ("", "")
    if inseparable and participle.startswith("ge"):
        participle = participle[2:]
    whole = separable + inseparable
    forms = {whole + form for form in finite} | {whole + participle}
    if separable:
        forms = {whole + form for form in finite if not is_rare(form, infinitive, parts)} | {whole + participle}
        forms.add(separable + "zu" + inseparable + infinitive)
    else:
        forms |= {whole + form for form in imperative}
    present = whole + present_participle(infinitive)
    forms |= {present, present + "e", present + "en"} if prefix and prefix != "=" else with_endings(present) | {present}
    return forms | with_endings(whole + participle) if attributive else forms


def is_rare(form, infinitive, parts):
    """Whether a divided verb's form is too rare to stand in the list: joined it is found in subordinate clauses
    alone, and there hardly in du and ihr of the past (dass du anfingst) or in a strong verb's subjunctive of the
    past (dass er anfinge)."""
    stem = verb_stem(infinitive)
    if not parts:
        return form in {third_person(stem) + "est", third_person(stem) + "et"}
    present = {infinitive, parts[0], changed_second_person(parts[0], stem)} | first_person(infinitive)
    return form not in present | {parts[1], parts[1] + ("n" if parts[1].endswith("e") else "en")}


def derived(infinitive, ending):
    """The noun in -ung or -er to a verb."""
    stem = verb_stem(infinitive)
    if infinitive.endswith("eln"):
        stem = stem[:-2] + "l"
    return stem.capitalize() + ending


def action(infinitive):
    """The noun in -ung to a verb, all cases."""
    return noun(derived(infinitive, "ung"), "f", "en")


def agent(infinitive):
    """The person in -er and -erin to a verb, all cases."""
    return noun(derived(infinitive, "er"), "m", "in")


# Names


def name(word):
    """A name and its genitive."""
    return {word} if word.endswith(SIBILANTS) else {word, word + "s"}


def inhabitant(word):
    """A person's name by land or town and the feminine, all cases: Wiener, Wienerin; Portugiese, Portugiesin."""
    if word.endswith("er"):
        return noun(word, "m", "in")
    stem = word[:-1] if word.endswith("e") else word
    return noun(word, "m", "weak") | noun(stem + "in", "f", "nen")


def country(land, person, adjective_word="-", feminine=""):
    """A country's name, its inhabitants and its adjective; "-" for what stands elsewhere. "-" as feminine: none."""
    forms = name(land)
    if person != "-":
        forms |= {person, person + "s", person + "n"} if person.endswith("i") else inhabitant(person)
    if adjective_word != "-":
        forms |= adjective(adjective_word, "plain")
    return forms


# Numbers


def number_words():
    """The numbers up to a hundred with ordinals and what is formed from them, and the larger round ones."""
    cardinals = NUMBERS + TENS + [one + "und" + ten for one in NUMBERS[1:10] for ten in TENS]
    cardinals += ["hundert", "tausend"] + [digit + unit for digit in NUMBERS[1:10] for unit in ("hundert", "tausend")]
    forms = set(cardinals)
    irregular = {"ein": "erst", "drei": "dritt", "sieben": "siebt", "acht": "acht"}
    for word in cardinals[1:]:
        small = word in NUMBERS
        ordinal = irregular.get(word, word + ("t" if small else "st"))
        forms |= with_endings(ordinal) | {ordinal + "ens"}
    for word in NUMBERS[1:13] + TENS + ["hundert", "tausend"]:
        forms |= {word + "mal"} | adjective(word + "fach", "plain") | adjective(word + "malig", "plain")
    for word in NUMBERS[4:13] + TENS:
        part = irregular.get(word, word + ("t" if word in NUMBERS else "st"))
        forms |= noun((part + "el").capitalize(), "n", "-")
    return forms
