#!/usr/bin/env python3
"""Reruns the catalogue's generator into a scratch folder and compares what it
writes with the committed documents and texts: a hand edit of the XML, or a
table changed without running the generator, shows here as a diff."""

import difflib
import importlib.util
import sys
import tempfile
from pathlib import Path

root = Path(sys.argv[1])
committed_dir = root / "resources" / "profiles"
found = importlib.util.spec_from_file_location("make_profiles",
                                              committed_dir / "src" / "make_profiles.py")
generator = importlib.util.module_from_spec(found)
found.loader.exec_module(generator)

failed = False
with tempfile.TemporaryDirectory() as scratch:
    generator.OUT = Path(scratch)
    generator.TEXTS = Path(scratch) / "cataloguetexts.cpp"
    generator.main()
    made = {p.name for p in Path(scratch).glob("*.xml")}
    kept = {p.name for p in committed_dir.glob("*.xml")}
    for name in sorted(kept ^ made):
        print("%s: %s" % (name, "committed, not generated" if name in kept else "not committed"))
        failed = True
    pairs = [(root / "src" / "profiles" / "cataloguetexts.cpp", generator.TEXTS)]
    pairs += [(committed_dir / name, Path(scratch) / name) for name in sorted(kept & made)]
    for old, new in pairs:
        before = old.read_text(encoding="utf-8").splitlines(True)
        after = new.read_text(encoding="utf-8").splitlines(True)
        if before != after:
            sys.stdout.writelines(difflib.unified_diff(before, after, str(old), "generated"))
            failed = True
sys.exit(1 if failed else 0)
