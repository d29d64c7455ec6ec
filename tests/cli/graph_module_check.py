#!/usr/bin/env python3
"""The command line links no Qt; its charts come from the module ovelt-graph.so, loaded only when
one is drawn, beside the program or under <prefix>/lib/ovelt.

    graph_module_check.py OVELT MODULE STALE_MODULE EXAMPLE

Each case runs a copy of the program in a folder of its own, so what it finds there is only what
the case put there.
"""
import os
import shutil
import subprocess
import sys
import tempfile

MODULE_FILE = "ovelt-graph.so"
PNG_MAGIC = b"\x89PNG\r\n\x1a\n"


def needed(binary):
    """The libraries named in the dynamic section of a binary."""
    text = subprocess.run(["readelf", "-d", binary], check=True, capture_output=True,
                          text=True).stdout
    return [line.split("[", 1)[1].split("]", 1)[0] for line in text.splitlines()
            if "(NEEDED)" in line]


def loaded(binary):
    """Every library the loader brings in for a binary, its dependencies' too."""
    text = subprocess.run(["ldd", binary], check=True, capture_output=True, text=True).stdout
    return [line.split()[0] for line in text.splitlines() if line.strip()]


def qt(libraries):
    return [name for name in libraries if name.startswith("libQt")]


class Checks:
    def __init__(self):
        self.failures = []

    def expect(self, ok, what, detail=""):
        print(("ok      " if ok else "FAILED  ") + what + ("" if ok or not detail else "\n" + detail))
        if not ok:
            self.failures.append(what)


def run_copy(ovelt, root, example, picture, module=None, module_dir=None):
    """Runs a copy of the program at root/bin with `module` copied to `module_dir` (relative to
    root), asking for a chart written to `picture`."""
    bin_dir = os.path.join(root, "bin")
    os.makedirs(bin_dir)
    program = os.path.join(bin_dir, "ovelt")
    shutil.copy2(ovelt, program)
    if module is not None:
        target = os.path.join(root, module_dir)
        os.makedirs(target, exist_ok=True)
        shutil.copy2(module, os.path.join(target, MODULE_FILE))
    env = {key: value for key, value in os.environ.items() if key != "OVELT_GRAPH_MODULE_DIR"}
    env["OVELT_HOME"] = root
    return subprocess.run([program, "dna-polymorphism", example, "--sliding-window", "--graph",
                           picture], capture_output=True, text=True, env=env, cwd=root)


def main():
    ovelt, module, stale, example = (os.path.abspath(arg) for arg in sys.argv[1:5])
    checks = Checks()

    checks.expect(not qt(needed(ovelt)), "ovelt names no Qt library: %s" % needed(ovelt))
    checks.expect(not qt(loaded(ovelt)), "ovelt loads no Qt library: %s" % qt(loaded(ovelt)))
    # The same reading finds Qt where it is, so the two lines above can fail.
    checks.expect("libQt6Gui.so.6" in needed(module), "the module names Qt Gui: %s" % needed(module))

    with tempfile.TemporaryDirectory() as root:
        picture = os.path.join(root, "pi.png")
        r = run_copy(ovelt, root, example, picture)
        looked = "%s, %s" % (os.path.join(root, "bin", MODULE_FILE),
                             os.path.join(root, "lib", "ovelt", MODULE_FILE))
        words = ("The graph module %s was not found in: %s.\nNothing was written on %s"
                 % (MODULE_FILE, looked, picture))
        checks.expect(r.returncode != 0, "no module: non-zero exit (%d)" % r.returncode)
        checks.expect(words in r.stderr, "no module: the message says so", r.stderr)
        checks.expect(not os.path.exists(picture), "no module: no file")
        checks.expect("Input Data File:" in r.stdout, "no module: the report still comes out")

    for place in ("bin", os.path.join("lib", "ovelt")):
        with tempfile.TemporaryDirectory() as root:
            picture = os.path.join(root, "pi.png")
            r = run_copy(ovelt, root, example, picture, module, place)
            checks.expect(r.returncode == 0, "module in %s: exit 0 (%d)" % (place, r.returncode),
                          r.stderr)
            head = open(picture, "rb").read(8) if os.path.exists(picture) else b""
            checks.expect(head == PNG_MAGIC, "module in %s: a PNG is written" % place)

    with tempfile.TemporaryDirectory() as root:
        picture = os.path.join(root, "pi.png")
        r = run_copy(ovelt, root, example, picture, stale, "bin")
        checks.expect(r.returncode != 0, "stale module: non-zero exit (%d)" % r.returncode)
        checks.expect("was made for another version of this program" in r.stderr
                      and "Nothing was written on " + picture in r.stderr,
                      "stale module: refused", r.stderr)
        checks.expect(not os.path.exists(picture), "stale module: no file")

    print("%d failure(s)" % len(checks.failures))
    return 1 if checks.failures else 0


if __name__ == "__main__":
    sys.exit(main())
