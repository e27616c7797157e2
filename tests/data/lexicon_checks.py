#!/usr/bin/env python3
"""Checks of the shipped lexicon that the compiler cannot make by itself.

- every key of rule-keys.txt stands in the dictionary its rule looks it up in;
- every Armenian word (glosses of en-hy.tsv, keys of hy-en.tsv) is a word of the Debian aspell-hy
  dictionary or stands in exceptions-hy.txt, and none is spelled in the classical orthography;
- every English word of the glosses of hy-en.tsv is accepted by the en_US hunspell dictionary or
  stands in exceptions-en.txt.

Usage: lexicon_checks.py DATA_DIR
"""
import os
import re
import subprocess
import sys

ARMENIAN_WORD = re.compile(r"[\u0531-\u0587]+")
ENGLISH_WORD = re.compile(r"[A-Za-z]+(?:'[a-z]+)?")
# Spellings the reformed orthography never writes: "իւ", and "եւ" (the ligature "և" or "եվ").
ALWAYS_CLASSICAL = re.compile(r"իւ|եւ")


def is_classical(word, known):
    """True when the word is spelled in the classical orthography."""
    if ALWAYS_CLASSICAL.search(word):
        return True
    # "եա" and "եան" are classical where the reformed spelling has "յա" ("Հայաստանեան"), and
    # reformed in loanwords where it keeps them ("ռեալ").
    return "եա" in word and word.replace("եա", "յա") in known


def read_tsv(path):
    rows = []
    with open(path, encoding="utf-8") as f:
        for number, line in enumerate(f, 1):
            line = line.rstrip("\n").rstrip("\r")
            if not line or line.startswith("#"):
                continue
            fields = line.split("\t")
            if len(fields) == 3:
                rows.append((number, fields[0], fields[1], fields[2]))
    return rows


def read_list(path):
    if not os.path.exists(path):
        return set()
    out = set()
    with open(path, encoding="utf-8") as f:
        for line in f:
            line = line.split("#", 1)[0].strip()
            if line:
                out.add(line.split("\t")[0])
    return out


def in_aspell(word, known):
    """The aspell list writes the ligature inside a word as "եւ" or "եվ"; proper names capitalised."""
    for form in (word, word.replace("և", "եւ"), word.replace("և", "եվ")):
        if form in known or form.capitalize() in known:
            return True
    return False


def aspell_words():
    dump = subprocess.run(["aspell", "-d", "hy", "dump", "master"], capture_output=True, check=True)
    expanded = subprocess.run(["aspell", "-l", "hy", "expand"], input=dump.stdout,
                              capture_output=True, check=True)
    return set(expanded.stdout.decode("utf-8").split())


def hunspell_rejects(words):
    if not words:
        return set()
    out = subprocess.run(["hunspell", "-d", "en_US", "-l"], input="\n".join(sorted(words)).encode(),
                         capture_output=True, check=True)
    return set(out.stdout.decode("utf-8").split())


def hunspell_accepts_capitalised(words):
    capitalised = {w[:1].upper() + w[1:] for w in words}
    return capitalised - hunspell_rejects(capitalised)


def rule_keys_of(path, section_name):
    keys = set()
    section = None
    if not os.path.exists(path):
        return keys
    with open(path, encoding="utf-8") as f:
        for line in f:
            text = line.rstrip("\n")
            if text.startswith("# en-hy") or text.startswith("# hy-en"):
                section = text[2:7]
            elif text and not text.startswith("#") and section == section_name:
                keys.add(text)
    return keys


class Checks:
    def __init__(self):
        self.passed = 0
        self.failed = 0

    def check(self, name, problems):
        if problems:
            self.failed += 1
            print(f"FAIL {name}: {len(problems)} problem(s)")
            for p in problems[:60]:
                print("   ", p)
            if len(problems) > 60:
                print(f"    ... and {len(problems) - 60} more")
        else:
            self.passed += 1
            print(f"ok   {name}")


def main():
    data = sys.argv[1]
    lex = os.path.join(data, "lexicon")
    enhy_path = os.path.join(lex, "en-hy.tsv")
    hyen_path = os.path.join(lex, "hy-en.tsv")
    enhy = read_tsv(enhy_path)
    hyen = read_tsv(hyen_path)
    checks = Checks()

    # Rule keys.
    problems = []
    keys = {"en-hy": {r[1] for r in enhy}, "hy-en": {r[1] for r in hyen}}
    section = None
    rule_keys = os.path.join(lex, "rule-keys.txt")
    if os.path.exists(rule_keys):
        with open(rule_keys, encoding="utf-8") as f:
            for number, line in enumerate(f, 1):
                text = line.rstrip("\n")
                if text.startswith("# en-hy") or text.startswith("# hy-en"):
                    section = text[2:7]
                    continue
                if not text or text.startswith("#"):
                    continue
                if section is None:
                    problems.append(f"rule-keys.txt:{number}: key before any '# en-hy'/'# hy-en' heading")
                elif text not in keys[section]:
                    problems.append(f"rule-keys.txt:{number}: \"{text}\" is missing from {section}.tsv")
    checks.check("every rule key is in its dictionary", problems)

    # Armenian spelling.
    known = aspell_words()
    exceptions_hy = read_list(os.path.join(lex, "exceptions-hy.txt"))
    problems = []
    classical = []
    # Keys that the rules spell themselves are taken as the rules write them.
    rule_spelled = rule_keys_of(rule_keys, "hy-en")
    sources = [(enhy_path, r[0], r[2]) for r in enhy] + \
              [(hyen_path, r[0], r[1]) for r in hyen if r[1] not in rule_spelled]
    for path, number, text in sources:
        for word in ARMENIAN_WORD.findall(text):
            if is_classical(word, known) and word not in exceptions_hy:
                classical.append(f"{os.path.basename(path)}:{number}: \"{word}\"")
            if not in_aspell(word, known) and word not in exceptions_hy:
                problems.append(f"{os.path.basename(path)}:{number}: \"{word}\" is not in aspell-hy")
    checks.check("every Armenian word is in aspell-hy or the exception list", problems)
    checks.check("no Armenian word in the classical orthography", classical)

    # English glosses.
    exceptions_en = read_list(os.path.join(lex, "exceptions-en.txt"))
    words = {}
    for number, key, gloss, tag in hyen:
        for word in ENGLISH_WORD.findall(gloss):
            words.setdefault(word, number)
    # Glosses are stored lower-cased, so a proper name passes when its capitalised form does.
    rejected = hunspell_rejects(set(words) - exceptions_en)
    rejected -= {w.lower() for w in hunspell_accepts_capitalised(rejected)}
    problems = [f"hy-en.tsv:{words[w]}: \"{w}\" is not accepted by hunspell en_US"
                for w in sorted(rejected, key=lambda w: words[w])]
    checks.check("every English gloss word is accepted by hunspell en_US", problems)

    print(f"{checks.passed} passed, {checks.failed} failed")
    return 1 if checks.failed else 0


if __name__ == "__main__":
    sys.exit(main())
