#!/usr/bin/env python3
"""Files written by `ovelt export`, read by an independent reader: Biopython's Bio.AlignIO.

Every file of the reader corpus that loads is exported as FASTA, NEXUS, PHYLIP and NBRF/PIR.
Bio.AlignIO reads each (formats "fasta", "nexus", "phylip-sequential", "phylip" where the rows
fit one line, and "pir"); all must give the same sequences, and the names each format keeps.
Where the original file is FASTA, Biopython's reading of the original must agree too.

Usage: interop_biopython_test.py OVELT CORPUS_DIR
"""

import csv
import os
import re
import subprocess
import sys
import tempfile

from Bio import AlignIO, SeqIO

PASSED = 0
FAILED = 0


def check(condition, what):
    global PASSED, FAILED
    if condition:
        PASSED += 1
    else:
        FAILED += 1
        print("FAIL: " + what)


def normal(seq):
    """Cells as the workbench stores them: upper case, U as T, missing data as N."""
    return str(seq).upper().replace("U", "T").replace("?", "N")


def manifest(corpus):
    with open(os.path.join(corpus, "MANIFEST.tsv"), newline="") as f:
        return list(csv.DictReader(f, delimiter="\t"))


def mega_flags(notes):
    m = re.search(r"MEGA dialog: (Sequential|Interleaved), Matching '(.)', Gap '(.)', "
                  r"Missing '(.)'", notes)
    if not m:
        return []
    return ["--mega-layout", m.group(1).lower(), "--mega-match", m.group(2),
            "--mega-gap", m.group(3), "--mega-missing", m.group(4)]


def export(ovelt, source, kind, target, extra, home):
    env = dict(os.environ, OVELT_HOME=home)
    run = subprocess.run([ovelt, "export", source, "--format", kind, "-o", target] + extra,
                         env=env, capture_output=True, text=True)
    return run.returncode == 0, run.stderr


def main():
    ovelt, corpus = sys.argv[1], sys.argv[2]
    rows = [r for r in manifest(corpus) if r["expected"] == "loads"]
    with tempfile.TemporaryDirectory() as tmp:
        for row in rows:
            source = os.path.join(corpus, row["path"])
            extra = mega_flags(row["notes"]) if row["format"] == "MEGA" else []
            written = {}
            for kind in ("fasta", "nexus", "phylip", "nbrf"):
                target = os.path.join(tmp, "out." + kind)
                ok, err = export(ovelt, source, kind, target, extra, tmp)
                check(ok, "%s: export as %s failed: %s" % (row["path"], kind, err.strip()))
                written[kind] = target if ok else None
            if not written["fasta"]:
                continue
            reference = list(SeqIO.parse(written["fasta"], "fasta"))
            ids = [r.id for r in reference]
            seqs = [normal(r.seq) for r in reference]
            check(len(seqs) == int(row["n_sequences"]) or row["n_sequences"] == "",
                  "%s: %d sequences in the FASTA file" % (row["path"], len(seqs)))
            check(len(set(len(s) for s in seqs)) <= 1, "%s: FASTA rows differ in length"
                  % row["path"])

            if row["format"] == "FASTA":
                original = [normal(r.seq) for r in SeqIO.parse(source, "fasta")]
                # A matching "." is the first sequence's cell, which Biopython leaves as it is.
                if not any("." in s for s in original):
                    check(original == seqs, "%s: the original and the written FASTA differ"
                          % row["path"])

            sites = len(seqs[0]) if seqs else 0
            layouts = [("phylip", "phylip-sequential")]
            if sites <= 60:
                layouts.append(("phylip", "phylip"))
            layouts.append(("nbrf", "pir"))
            # NEXUS names must be unique; names cut to 20 characters may not be.
            if len(set(i.upper().replace("_", " ") for i in ids)) == len(ids):
                layouts.append(("nexus", "nexus"))
            for kind, bio_format in layouts:
                if not written[kind]:
                    continue
                what = "%s as %s (%s)" % (row["path"], kind, bio_format)
                try:
                    alignment = AlignIO.read(written[kind], bio_format)
                except Exception as error:  # the reader's own complaint is the finding
                    check(False, "%s: Biopython refused it: %s" % (what, error))
                    continue
                check([normal(r.seq) for r in alignment] == seqs, what + ": sequences differ")
                names = [r.id for r in alignment]
                if kind == "phylip":
                    check(names == [i[:10] for i in ids], what + ": names differ")
                elif kind == "nbrf":
                    check(names == ids, what + ": names differ")
                else:
                    check(len(names) == len(ids), what + ": number of names differs")
    print("%d passed, %d failed" % (PASSED, FAILED))
    return 1 if FAILED or PASSED == 0 else 0


if __name__ == "__main__":
    sys.exit(main())
