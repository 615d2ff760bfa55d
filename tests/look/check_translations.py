#!/usr/bin/env python3
"""Fails when a translation lacks a text the program shows, or keeps one it
no longer shows: runs lupdate over the sources into a copy of each .ts file
and reads what it marks unfinished or vanished. English is the source
language: its file may leave texts untranslated.

usage: check_translations.py LUPDATE REPOSITORY"""

import glob
import os
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ET


def sources(root):
    found = []
    for pattern in ("src/**/*.cpp", "src/**/*.h", "forms/*.ui"):
        found += glob.glob(os.path.join(root, pattern), recursive=True)
    # The encoder front and the command line speak to scripts, not in languages.
    return sorted(f for f in found if not os.path.relpath(f, root).startswith(("src/encoder/", "src/cli/")))


def main(lupdate, root):
    files = sources(root)
    problems = []
    with tempfile.TemporaryDirectory() as scratch:
        for ts in sorted(glob.glob(os.path.join(root, "resources/translations/*.ts"))):
            name = os.path.basename(ts)
            copy = os.path.join(scratch, name)
            shutil.copy(ts, copy)
            result = subprocess.run([lupdate, "-silent", "-locations", "none"] + files + ["-ts", copy],
                                    stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
            if result.returncode != 0:
                problems.append("%s: lupdate failed: %s" % (name, result.stdout))
                continue
            english = name.endswith("_en.ts")
            for context in ET.parse(copy).getroot().iter("context"):
                where = context.findtext("name")
                for message in context.iter("message"):
                    kind = message.find("translation").get("type")
                    source = message.findtext("source")
                    if kind in ("vanished", "obsolete"):
                        problems.append("%s: %s \"%s\" is no longer shown: remove it" % (name, where, source))
                    elif kind == "unfinished" and not english:
                        problems.append("%s: %s \"%s\" is not translated" % (name, where, source))
    for problem in problems:
        print(problem)
    print("%d problems" % len(problems))
    return 1 if problems else 0


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    sys.exit(main(sys.argv[1], sys.argv[2]))
