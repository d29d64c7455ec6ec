#!/usr/bin/env python3
"""Fails when a source file includes a header of a layer above its own, or when code below the
window layer includes Qt. The layers, from the ground up:

  stats, platform, files numeric primitives; the window-layer interface the logic talks to;
                         writing a file whole or not at all
  core                   the active data, selections, site scanning, sets, coding regions, codes
  output, formats        the output channel and graph model; the readers and writers
  command                the shape of one command: its number, options, result fields, failure
  analyses, coalescent, tools
  shell                  the workbench, the command registry and its runner, dialog and viewer logic
  ui                     the command line and the desktop

    check_layers.py SRC_DIR
"""
import os
import re
import sys

# What each room may include besides itself.
ALLOWED = {
    "stats": set(),
    "platform": set(),
    "files": set(),
    "core": {"stats", "platform"},
    "output": {"stats", "platform", "core", "files"},
    "formats": {"stats", "platform", "core", "files"},
    "command": {"stats", "platform", "core", "output", "formats", "files"},
    "analyses": {"stats", "platform", "core", "output", "formats", "files", "command"},
    "coalescent": {"stats", "platform", "core", "output", "command"},
    "tools": {"stats", "platform", "core", "output", "command"},
    "shell": {"stats", "platform", "core", "output", "formats", "files", "command", "analyses",
              "coalescent", "tools"},
    "ui": {"stats", "platform", "core", "output", "formats", "files", "command", "analyses",
           "coalescent", "tools", "shell"},
}
INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]')
QT = re.compile(r"^Q[A-Za-z]*(/|$)|^qt")


def room_of(path):
    return path.split("/", 1)[0]


def main():
    src = os.path.abspath(sys.argv[1] if len(sys.argv) > 1 else "src")
    problems = []
    for root, _, files in os.walk(src):
        for name in files:
            if not name.endswith((".h", ".cpp")):
                continue
            rel = os.path.relpath(os.path.join(root, name), src).replace(os.sep, "/")
            room = room_of(rel)
            if room not in ALLOWED:
                problems.append("%s: folder %s has no layer" % (rel, room))
                continue
            with open(os.path.join(root, name), encoding="utf-8", errors="replace") as f:
                for number, line in enumerate(f, 1):
                    m = INCLUDE.match(line)
                    if not m:
                        continue
                    kind, header = m.groups()
                    if kind == "<":
                        if room != "ui" and QT.match(header):
                            problems.append("%s:%d: Qt below the window layer: %s" % (rel, number, header))
                        continue
                    if not os.path.exists(os.path.join(src, header)):
                        continue
                    target = room_of(header)
                    if target != room and target not in ALLOWED[room]:
                        problems.append("%s:%d: %s includes %s, a layer above it" % (rel, number, room, header))
    for p in problems:
        print(p)
    print("%d include(s) against the layers" % len(problems))
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
