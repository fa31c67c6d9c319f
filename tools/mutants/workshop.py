# SPDX-License-Identifier: Apache-2.0
"""A copy of the tree, in which changed sources are built and tested."""

import functools
import json
import os
import pathlib
import re
import resource
import shlex
import subprocess
import tempfile
import time

MEMORY = 4 << 30  # bytes, for a test
SLOWER = 10  # times as long as without a change, or this many seconds: it does not end
LEAST_SECONDS = 30
OF_ALL_CLASSES = ["tst_accessible", "tst_accessibletouch", "tst_keptpixels", "tst_steadywork"]


def write_if_different(path, text):
    """Leaves the file's time alone where nothing changes, so that nothing is built for it."""
    path.parent.mkdir(parents=True, exist_ok=True)
    if not path.exists() or path.read_text(encoding="latin-1") != text:
        path.write_text(text, encoding="latin-1")


class Workshop:
    """The copy: its sources, how they are built, and which tests belong to which of them."""

    def __init__(self, root, folder):
        self.root, self.tree = root, folder / "tree"
        self.build = self.tree / "build" / "mutants"
        self.seconds = {}  # of each test without a change
        self.copy()
        with open(folder / "build.log", "w", encoding="utf-8") as log:
            subprocess.run(["cmake", "--preset", "mutants"], cwd=self.tree, check=True, stdout=log)
        commands = json.loads((self.build / "compile_commands.json").read_text())
        self.commands = {pathlib.Path(command["file"]).resolve(): command for command in commands}

    def copy(self):
        """Brings the copy to the state of the tree; what changed is written, nothing else."""
        files = subprocess.run(["git", "ls-files", "-z"], cwd=self.root, check=True,
                               stdout=subprocess.PIPE).stdout.decode().split("\0")
        for name in filter(None, files):
            source, target = self.root / name, self.tree / name
            if source.is_file():
                write_if_different(target, source.read_text(encoding="latin-1"))
                target.chmod(source.stat().st_mode)

    @functools.cache
    def source(self, path):
        """As it was when it was first asked for."""
        return (self.root / path).read_text(encoding="latin-1")

    def write(self, path, text):
        write_if_different(self.tree / path, text)

    def arguments(self, source):
        """What the compiler is given for a source, for reading it with libclang."""
        command = self.commands[(self.tree / source).resolve()]
        return [argument for argument in shlex.split(command["command"])[1:]
                if re.match(r"-(std|D|I|isystem)", argument) or argument.startswith("/usr/include")]

    def compile(self, *targets):
        """Builds; the places (path, line) of the errors, all at once. None if there are none."""
        run = subprocess.run(["ninja", "-k", "0", *targets], cwd=self.build, check=False,
                             stdout=subprocess.PIPE, text=True)
        if run.returncode == 0:
            return None
        found = re.findall(r"^(\S+?):(\d+):\d+: (?:fatal )?error:", run.stdout, re.MULTILINE)
        return {(os.path.relpath(os.path.realpath(self.build / path), self.tree), int(line))
                for path, line in found}

    @functools.cache
    def tests_of(self, path):
        """The unit tests of a source: its own, those of whoever includes it, those of all classes."""
        stem = pathlib.Path(path).stem
        header = (self.root / path).with_suffix(".h")
        text = header.read_text() if header.exists() else ""
        classes = re.findall(r"^class \w*EXPORT (\w+)", text, re.MULTILINE)
        names = "|".join([rf"(detail/)?{stem}\.h", *classes])
        name = re.compile(rf'#include [<"]({names})[>"]')
        tests = sorted((self.root / "tests" / "unit").glob("tst_*.cpp"))
        known = [test.stem for test in tests]
        users = [test.stem for test in tests if name.search(test.read_text())]
        users += [f"tst_{source.stem}" for source in sorted((self.root / "src").rglob("*.cpp"))
                  if name.search(source.read_text())]
        first = [f"tst_{stem}"]
        if stem.startswith("accessible"):
            first = ["tst_accessible", "tst_accessibletouch"]
        wanted = [test for test in first + users if test in known + OF_ALL_CLASSES]
        return list(dict.fromkeys(wanted + OF_ALL_CLASSES))

    def passes(self, test, number):
        """Whether a test passes with the change of this number; 0 is none."""
        limit = max(SLOWER * self.seconds.get(test, LEAST_SECONDS), LEAST_SECONDS)
        environment = {**os.environ, "PANELKIT_MUTANT": str(number), "QT_QPA_PLATFORM": "offscreen",
                       "QTEST_DISABLE_STACK_DUMP": "1"}
        with tempfile.TemporaryDirectory() as folder:
            start = time.monotonic()
            try:
                run = subprocess.run(
                    [self.build / "tests" / test, "-maxwarnings", "100"], cwd=folder, timeout=limit,
                    env=environment, check=False, stdout=subprocess.DEVNULL,
                    stderr=subprocess.DEVNULL, preexec_fn=lambda: resource.setrlimit(
                        resource.RLIMIT_AS, (MEMORY, MEMORY)))
            except subprocess.TimeoutExpired:
                return False
            if number == 0:
                self.seconds[test] = time.monotonic() - start
            return run.returncode == 0
