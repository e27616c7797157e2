#!/usr/bin/env python3
"""British spellings as second keys of the English dictionary.

For every word of the British English word list, the spelling rules below (our/or, re/er,
ise/ize, yse/yze, ll/l, ogue/og, ence/ense, ae/oe to e, mme/m, ...) give the American spellings it
may stand for; where exactly one of them is a word that only the American list spells and a key of
en-hy.tsv, the British word gets a record with the gloss and tag of that key's first record.
A British word that is already a key is left alone, so a second run after new words were merged
prints only what is new.

A few British spellings belong to one sense of an American word whose first record is another
("storey" is a floor, not a story; "mould" a form, not to go mouldy): they take the record of
OWN_SENSE instead, and SKIP names those with no single sense to give.

Needs the Debian packages wamerican-large and wbritish-large (or wamerican and wbritish).

Usage: british_spellings.py [--data DIR] [--append]
  prints the new records (key<TAB>gloss<TAB>tag), or with --append writes them at the end of
  DIR/lexicon/en-hy.tsv in a block of their own. DIR is the project's data folder (default: data).
"""
import argparse
import os
import sys

WORD_LISTS = [
    ("/usr/share/dict/american-english-large", "/usr/share/dict/british-english-large"),
    ("/usr/share/dict/american-english", "/usr/share/dict/british-english"),
]

BLOCK_HEADER = ("# British spellings, second keys with the gloss and tag of the US spelling "
                "(made by tools/lexicon/british_spellings.py)")

# Replacements from the British to the American spelling, tried at every place they match.
INNER_RULES = [
    ("our", "or"),
    ("is", "iz"),
    ("ys", "yz"),
    ("ll", "l"),
    ("l", "ll"),
    ("ae", "e"),
    ("oe", "e"),
    ("ph", "f"),
    ("ement", "ment"),
    ("eing", "ing"),
    ("ence", "ense"),
]
# Replacements of the word's end.
END_RULES = [
    ("re", "er"), ("res", "ers"), ("red", "ered"), ("ring", "ering"),
    ("ogue", "og"), ("ogues", "ogs"),
    ("mme", "m"), ("mmes", "ms"),
]
# Spellings no rule reaches: British word -> American word.
WORD_PAIRS = {
    "grey": "gray", "greys": "grays", "greyish": "grayish", "greyness": "grayness",
    "plough": "plow", "ploughs": "plows", "ploughed": "plowed", "ploughing": "plowing",
    "aluminium": "aluminum", "pyjamas": "pajamas", "pyjama": "pajama", "cosy": "cozy",
    "cosier": "cozier", "cosiest": "coziest", "axe": "ax", "mum": "mom", "mummy": "mommy",
    "aeroplane": "airplane", "aeroplanes": "airplanes", "gaol": "jail", "gaols": "jails",
    "sceptic": "skeptic", "sceptical": "skeptical", "scepticism": "skepticism",
    "speciality": "specialty", "specialities": "specialties", "artefact": "artifact",
    "artefacts": "artifacts", "moustache": "mustache", "tonne": "ton", "tonnes": "tons",
    "smoulder": "smolder", "smouldering": "smoldering", "moult": "molt", "maths": "math",
    "sulphur": "sulfur", "doughnut": "donut", "whilst": "while", "amongst": "among",
    "cheque": "check", "cheques": "checks", "tyre": "tire", "tyres": "tires",
    "manoeuvre": "maneuver", "manoeuvres": "maneuvers", "manoeuvred": "maneuvered",
    "oestrogen": "estrogen", "anaesthetic": "anesthetic", "paediatric": "pediatric",
    "kerb": "curb", "kerbs": "curbs", "storey": "story", "storeys": "stories",
    "mould": "mold", "moulds": "molds", "mouldy": "moldy", "practise": "practice",
    "practised": "practiced", "practising": "practicing", "licence": "license",
    "licences": "licenses", "programme": "program", "programmes": "programs",
    "draught": "draft", "annexe": "annex", "arse": "ass", "enquire": "inquire",
    "enquiry": "inquiry", "enquiries": "inquiries", "enquired": "inquired",
    "dreamt": "dreamed", "leapt": "leaped", "spelt": "spelled", "rouble": "ruble",
    "roubles": "rubles", "snowplough": "snowplow", "gramme": "gram", "grammes": "grams",
    "kilogramme": "kilogram", "kilogrammes": "kilograms",
}
# British spellings that take a sense of their own rather than the first record of the US key.
OWN_SENSE = {
    "storey": ("հարկ", "n"),
    "storeys": ("հարկեր", "n"),
    "kerb": ("մայթեզր", "n"),
    "mould": ("կաղապար", "n"),
    "cheque": ("չեկ", "n"),
    "cheques": ("չեկեր", "n"),
    "tyre": ("անվադող", "n"),
    "practise": ("կիրառել", "v__t"),
    "dreamt": ("երազեց", "vi"),
    "leapt": ("ցատկեց", "vi"),
}
# British spellings with no one sense to give: a wrong gloss is worse than none.
SKIP = {"draught", "draughts", "annexe", "arse", "spelt"}
# Words of the British list that the rules bring to an unrelated American word.
SKIP |= {"centare", "manilla", "bael", "haem", "philtre", "prise"}


def read_words(path):
    with open(path, encoding="utf-8", errors="replace") as f:
        return {w.strip() for w in f if w.strip().isalpha() and w.strip().islower()}


def word_lists():
    for american, british in WORD_LISTS:
        if os.path.exists(american) and os.path.exists(british):
            return read_words(american), read_words(british)
    sys.exit("british_spellings.py: no word lists; install wamerican-large and wbritish-large")


def first_records(path):
    """key -> (gloss, tag) of the first record of each key."""
    out = {}
    with open(path, encoding="utf-8") as f:
        for line in f:
            line = line.rstrip("\n")
            if not line or line.startswith("#"):
                continue
            fields = line.split("\t")
            if len(fields) == 3 and fields[0] not in out:
                out[fields[0]] = (fields[1], fields[2])
    return out


def one_step(word):
    """The spellings one rule makes of a word."""
    for old, new in INNER_RULES:
        start = word.find(old)
        while start >= 0:
            yield word[:start] + new + word[start + len(old):]
            start = word.find(old, start + 1)
    for old, new in END_RULES:
        if word.endswith(old):
            yield word[: len(word) - len(old)] + new


def american_spellings(word, american_only):
    """The words of the American list alone that one or two rules make of a British word."""
    if word in WORD_PAIRS:
        return [WORD_PAIRS[word]]
    found = []
    for once in one_step(word):
        if once in american_only and once not in found:
            found.append(once)
        for twice in one_step(once):
            if twice in american_only and twice not in found:
                found.append(twice)
    return found


def new_records(lexicon):
    american, british = word_lists()
    american_only = american - british
    records = []
    for word in sorted(british):
        if word in lexicon or word in SKIP:
            continue
        if word in OWN_SENSE:
            records.append((word,) + OWN_SENSE[word])
            continue
        keyed = [us for us in american_spellings(word, american_only) if us in lexicon]
        # Two American words for one British word ("travelled": "traveled") would be a guess.
        if len(keyed) == 1:
            records.append((word,) + lexicon[keyed[0]])
    return records


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    parser.add_argument("--data", default="data", help="the project's data folder")
    parser.add_argument("--append", action="store_true", help="append the records to en-hy.tsv")
    args = parser.parse_args()
    path = os.path.join(args.data, "lexicon", "en-hy.tsv")
    records = new_records(first_records(path))
    lines = ["\t".join(r) for r in records]
    if args.append:
        if lines:
            with open(path, "a", encoding="utf-8") as f:
                f.write(BLOCK_HEADER + "\n" + "\n".join(lines) + "\n")
        print(f"british_spellings.py: {len(lines)} records appended to {path}", file=sys.stderr)
    elif lines:
        print("\n".join(lines))


if __name__ == "__main__":
    main()
