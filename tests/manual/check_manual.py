#!/usr/bin/env python3
"""Keeps the manual honest against the program that ships with it.

    check_manual.py OVELT REPO            check (exit 1 on the first differences)
    check_manual.py OVELT REPO --update   write the outputs of the examples anew

An example in a page is a fenced block whose first line is "$ ovelt ARGS". The lines after it,
up to the closing fence, are what the program printed for that command line run from the root
of the repository: standard output, then standard error, with the repository's own path left
out of the data file's name (the report head names it in full). Each example is run again and
compared line by line, so that no page can quote an output the program no longer prints.

It also checks that the table of JSON keys is the README's, that every page linked from the index exists, that every page is linked from the
index, and that a relative link between pages leads to a page.
"""
import os
import re
import shlex
import shutil
import subprocess
import sys
import tempfile

FENCE = "```"
LINK = re.compile(r"\]\(([^)#\s]+)(#[^)]*)?\)")


def pages(manual):
    found = []
    for folder, _, files in os.walk(manual):
        for f in files:
            if f.endswith(".md"):
                found.append(os.path.relpath(os.path.join(folder, f), manual))
    return sorted(found)


def run(ovelt, repo, args):
    home = tempfile.mkdtemp(prefix="manual-home-")
    try:
        env = dict(os.environ, OVELT_HOME=home, LC_ALL="C", TZ="UTC")
        env.pop("OVELT_MANUAL", None)
        p = subprocess.run([ovelt] + shlex.split(args), cwd=repo, env=env, capture_output=True,
                           timeout=300)
        text = (p.stdout + p.stderr).decode("utf-8", errors="backslashreplace")
        return text.replace("\r\n", "\n").replace("\r", "\n").replace(repo + os.sep, "")
    finally:
        shutil.rmtree(home, ignore_errors=True)


def examples(lines):
    """(index of the "$ ovelt" line, index of the closing fence, the arguments)."""
    i = 0
    while i < len(lines):
        if lines[i].startswith(FENCE) and i + 1 < len(lines) and lines[i + 1].startswith("$ ovelt "):
            end = i + 2
            while end < len(lines) and not lines[end].startswith(FENCE):
                end += 1
            yield i + 1, end, lines[i + 1][len("$ ovelt "):]
            i = end + 1
        else:
            i += 1


def check_links(manual, failures):
    all_pages = pages(manual)
    for page in all_pages:
        with open(os.path.join(manual, page), encoding="utf-8") as f:
            text = f.read()
        for target, _ in LINK.findall(text):
            if "://" in target:
                continue
            path = os.path.normpath(os.path.join(os.path.dirname(page), target))
            if path not in all_pages:
                failures.append("%s: the link %s leads to no page" % (page, target))
    with open(os.path.join(manual, "index.md"), encoding="utf-8") as f:
        linked = {os.path.normpath(t) for t, _ in LINK.findall(f.read())}
    for page in all_pages:
        if page != "index.md" and page not in linked:
            failures.append("index.md does not link %s" % page)


def json_table(text):
    """The table of JSON keys in a page: its lines from the "| key | meaning |" row on."""
    start = text.find("| key | meaning |")
    if start < 0:
        return None
    end = text.find("\n\n", start)
    return text[start:end if end >= 0 else len(text)]


def check_json_keys(repo, manual, failures):
    # The README and the manual's page on JSON output list the same keys.
    with open(os.path.join(repo, "README.md"), encoding="utf-8") as f:
        readme = json_table(f.read())
    with open(os.path.join(manual, "topics", "json-output.md"), encoding="utf-8") as f:
        page = json_table(f.read())
    if readme != page:
        failures.append("topics/json-output.md: the table of keys is not the README's")


def main():
    if len(sys.argv) < 3:
        print(__doc__)
        return 2
    ovelt, repo = os.path.abspath(sys.argv[1]), os.path.abspath(sys.argv[2])
    update = "--update" in sys.argv[3:]
    manual = os.path.join(repo, "manual")
    failures = []
    check_links(manual, failures)
    check_json_keys(repo, manual, failures)
    count = 0
    for page in pages(manual):
        path = os.path.join(manual, page)
        with open(path, encoding="utf-8", newline="") as f:
            lines = f.read().split("\n")
        out = []
        last = 0
        for start, end, args in examples(lines):
            count += 1
            got = run(ovelt, repo, args).rstrip("\n").split("\n")
            want = lines[start + 1:end]
            out += lines[last:start + 1] + got
            last = end
            if not update and got != want:
                first = next((k for k, (a, b) in enumerate(zip(got, want)) if a != b),
                             min(len(got), len(want)))
                failures.append("%s: `ovelt %s` line %d\n  page:    %r\n  program: %r" % (
                    page, args, first + 1, want[first] if first < len(want) else "<end>",
                    got[first] if first < len(got) else "<end>"))
        out += lines[last:]
        if update:
            with open(path, "w", encoding="utf-8", newline="") as f:
                f.write("\n".join(out))
    for why in failures:
        print("DIFFERS " + why)
    print("%d pages, %d examples, %d differ" % (len(pages(manual)), count, len(failures)))
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
