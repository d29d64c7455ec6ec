#!/usr/bin/env python3
"""Runs every case of cases.txt through the command line and compares what it printed, its exit
status and the files it wrote with the outputs kept in expected/, byte for byte.

    golden_outputs.py OVELT REPO            compare (exit 1 on the first differences)
    golden_outputs.py OVELT REPO --update   write expected/ anew from this build

The outputs hold things that differ from machine to machine: the absolute path of the data file
in the report head, the date and time of saved files and the folder of the case. Those are
replaced by <REPO>, <DATE> and <TMP> before the comparison, and nothing else is touched.
"""
import os
import re
import shlex
import shutil
import subprocess
import sys
import tempfile

HERE = os.path.dirname(os.path.abspath(__file__))

# " Ovelt  Ver. 4.00.5" + blanks + "dd - mmmm - yyyy" + two blanks + the time, and the end line of
# a session file.
STAMP = re.compile(r"\d{2} - [A-Za-z]+ - \d{4}  \d{1,2}:\d{2}(:\d{2})?( ?[AP]M)?"
                   # the stamp of the files the writers make: "Nov 25, 2026"
                   r"|\b(Jan|Feb|Mar|Apr|May|Jun|Jul|Aug|Sep|Oct|Nov|Dec) \d{1,2}, \d{4}")
# Graph pictures are drawn by the window system's fonts: only their existence is compared.
PICTURES = (".png", ".bmp", ".svg")


def read_cases():
    cases = []
    with open(os.path.join(HERE, "cases.txt"), encoding="utf-8") as f:
        for line in f:
            line = line.rstrip("\n")
            if not line.strip() or line.startswith("#"):
                continue
            name, _, args = line.partition(":")
            cases.append((name.strip(), args.strip()))
    return cases


# The rule under the banner of a saved file is as long as the banner, whose month name varies.
BANNER_RULE = re.compile(r"^ =+(\r?)$", re.M)


def normalise(data, repo, tmp):
    text = data.decode("utf-8", errors="backslashreplace")
    text = text.replace(tmp, "<TMP>").replace(repo, "<REPO>")
    return BANNER_RULE.sub(r" <RULE>\1", STAMP.sub("<DATE>", text))


def run_case(ovelt, repo, name, args):
    tmp = tempfile.mkdtemp(prefix="golden-")
    home = tempfile.mkdtemp(prefix="golden-home-")
    try:
        words = [w.replace("{tmp}", tmp)
                  .replace("{ex}", os.path.join(repo, "examples", "example.fas"))
                  .replace("{corpus}", os.path.join(repo, "tests", "data", "corpus"))
                 for w in shlex.split(args)]
        env = dict(os.environ, OVELT_HOME=home, LC_ALL="C", TZ="UTC")
        p = subprocess.run([ovelt] + words, cwd=repo, env=env, capture_output=True, timeout=120)
        parts = ["== status %d\n" % p.returncode,
                 "== stdout\n" + normalise(p.stdout, repo, tmp),
                 "== stderr\n" + normalise(p.stderr, repo, tmp)]
        for f in sorted(os.listdir(tmp)):
            path = os.path.join(tmp, f)
            if f.endswith(PICTURES):
                parts.append("== file %s (picture, %s)\n" % (f, "empty" if os.path.getsize(path) == 0
                                                           else "drawn"))
                continue
            with open(path, "rb") as fh:
                parts.append("== file %s\n" % f + normalise(fh.read(), repo, tmp))
        return "".join(parts)
    finally:
        shutil.rmtree(tmp, ignore_errors=True)
        shutil.rmtree(home, ignore_errors=True)


def main():
    if len(sys.argv) < 3:
        print(__doc__)
        return 2
    ovelt, repo = os.path.abspath(sys.argv[1]), os.path.abspath(sys.argv[2])
    update = "--update" in sys.argv[3:]
    expected_dir = os.path.join(HERE, "expected")
    os.makedirs(expected_dir, exist_ok=True)
    failures = []
    for name, args in read_cases():
        got = run_case(ovelt, repo, name, args)
        path = os.path.join(expected_dir, name + ".txt")
        if update:
            with open(path, "w", encoding="utf-8", newline="") as f:
                f.write(got)
            continue
        try:
            with open(path, encoding="utf-8", newline="") as f:
                want = f.read()
        except FileNotFoundError:
            failures.append((name, "no expected output (run with --update)"))
            continue
        if got != want:
            got_lines, want_lines = got.splitlines(True), want.splitlines(True)
            first = next((i for i, (a, b) in enumerate(zip(got_lines, want_lines)) if a != b),
                         min(len(got_lines), len(want_lines)))
            failures.append((name, "line %d\n  expected: %r\n  got:      %r" % (
                first + 1, want_lines[first] if first < len(want_lines) else "<end>",
                got_lines[first] if first < len(got_lines) else "<end>")))
    for name, why in failures:
        print("DIFFERS %s: %s" % (name, why))
    if not update:
        print("%d cases, %d differ" % (len(read_cases()), len(failures)))
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
