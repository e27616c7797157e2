#!/usr/bin/env python3
"""Translates the sentences of shipped_sentences.tsv with the shipped dictionaries and compares.

Usage: shipped_sentences.py VORLEXA_CLI BUILT_DATA_DIR TABLE
"""
import shutil
import subprocess
import sys
import tempfile


def main():
    cli, data, table = sys.argv[1:4]
    cases = []
    with open(table, encoding="utf-8") as f:
        for number, line in enumerate(f, 1):
            line = line.rstrip("\n")
            if not line or line.startswith("#"):
                continue
            fields = line.split("\t")
            cases.append((number, fields[0], fields[1]))
    with tempfile.TemporaryDirectory() as work:
        # The run writes its files into the data folder; the built one stays untouched.
        folder = shutil.copytree(data, work + "/data")
        source = "\n".join(c[1] for c in cases) + "\n"
        run = subprocess.run([cli, "--data-dir", folder, "translate", "--lines"], input=source.encode(),
                             capture_output=True, check=True)
    results = run.stdout.decode("utf-8").split("\n")
    failures = 0
    for (number, source, expected), got in zip(cases, results):
        if got.rstrip() != expected:
            failures += 1
            print(f"shipped_sentences.tsv:{number}: {source!r}\n  expected: {expected!r}\n       got: {got.rstrip()!r}")
    print(f"{len(cases) - failures} of {len(cases)} sentences as expected")
    return 1 if failures or len(results) < len(cases) else 0


if __name__ == "__main__":
    sys.exit(main())
