"""Builds a copy of the tree, measures which test runs which line, and runs these tests with each chosen change."""

import argparse
import fcntl
import json
import os
import random
import shutil
import subprocess
import sys
import tempfile
import time
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

from mutants import mutants

TOP = Path(__file__).resolve().parents[2]
COPY = TOP / "build" / "mutate" / "tree"
BUILD = COPY / "build" / "ci"
CORES = os.cpu_count() or 1
LAYERS = {"app", "controls", "platform", "ado", "engine"}
# They run everything for minutes, and say of no change what it is.
TOO_BROAD = {"monkey_test", "desktop_test"}


def work_alone():
    """Ends where another run changes the same copy: the one would take the other's change for its own."""
    COPY.parent.mkdir(parents=True, exist_ok=True)
    lock = (COPY.parent / "lock").open("w")
    try:
        fcntl.flock(lock, fcntl.LOCK_EX | fcntl.LOCK_NB)
    except OSError:
        sys.exit("another run works in build/mutate")
    return lock


def copy_tree():
    """Copies the tracked files that differ. The others keep their time, so that they aren't built again."""
    listed = subprocess.run(["git", "ls-files"], cwd=TOP, check=True, capture_output=True, text=True).stdout
    names = {name for name in listed.split("\n") if name}
    for old in [path for path in COPY.rglob("*") if path.is_file() and COPY / "build" not in path.parents]:
        if str(old.relative_to(COPY)) not in names:
            old.unlink()
    for name in names:
        here, there = TOP / name, COPY / name
        if not here.exists():
            continue
        if there.exists() and there.read_bytes() == here.read_bytes():
            continue
        there.parent.mkdir(parents=True, exist_ok=True)
        shutil.copy(here, there)


def instrument(sources):
    """Compiles the chosen sources so that they count which lines run, and without warnings, which changes may cause."""
    lists = COPY / "src" / "CMakeLists.txt"
    names = " ".join(f'"${{CMAKE_SOURCE_DIR}}/{name}"' for name in sources)
    libraries = "vabo_modules vabo_forms controls platform ado engine"
    text = (TOP / "src" / "CMakeLists.txt").read_text() + (
        f"\nset_source_files_properties({names}\n"
        f"    TARGET_DIRECTORY {libraries}\n"
        '    PROPERTIES COMPILE_OPTIONS "--coverage;-fprofile-update=single;-w")\n'
    )
    if lists.read_text() != text:
        lists.write_text(text)


def run(command, **options):
    return subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, errors="replace", **options)


def build(targets=()):
    command = ["cmake", "--build", str(BUILD), "-j", str(CORES)]
    if targets:
        command += ["--target", *targets]
    return run(command)


class Entry:
    """One entry of ctest: its command, its environment, and its time without any change."""

    def __init__(self, described):
        properties = {each["name"]: each["value"] for each in described.get("properties", [])}
        self.name = described["name"]
        self.command = described["command"]
        self.target = Path(self.command[0]).name
        self.folder = properties.get("WORKING_DIRECTORY", str(BUILD))
        self.environment = dict(each.split("=", 1) for each in properties.get("ENVIRONMENT", []))
        self.labels = properties.get("LABELS", [])
        self.seconds = 0.0

    def passes(self, counters, limit):
        environment = {**os.environ, **self.environment, "GCOV_PREFIX": counters, "GTEST_FAIL_FAST": "1"}
        environment.pop("GTEST_OUTPUT", None)
        began = time.monotonic()
        with subprocess.Popen(self.command, cwd=self.folder, env=environment, stdin=subprocess.DEVNULL,
                              stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, start_new_session=True) as process:
            try:
                code = process.wait(limit)
            except subprocess.TimeoutExpired:
                os.killpg(process.pid, 9)
                code = -1
        self.seconds = self.seconds or time.monotonic() - began
        return code == 0


def entries():
    text = subprocess.run(["ctest", "--show-only=json-v1"], cwd=BUILD, check=True, capture_output=True, text=True).stdout
    return [Entry(each) for each in json.loads(text)["tests"] if "command" in each]


def lines_of(counters):
    """(source, line) of every line that ran, from the counter files of one test."""
    ran = set()
    for counter in Path(counters).rglob("*.gcda"):
        built = Path("/") / counter.relative_to(counters)
        notes = built.with_suffix(".gcno")
        if not notes.exists():
            continue
        os.symlink(notes, counter.with_suffix(".gcno"))
        told = run(["gcov", "--json-format", "--stdout", str(counter)], cwd=counters).stdout
        for line in told.splitlines():
            if not line.startswith("{"):
                continue
            for source in json.loads(line)["files"]:
                name = os.path.normpath(os.path.join(BUILD, source["file"]))
                for each in source["lines"]:
                    if each["count"] > 0:
                        ran.add((name, each["line_number"]))
    return ran


def measure(entry):
    with tempfile.TemporaryDirectory() as counters:
        if not entry.passes(counters, 900):
            print(f"{entry.name} fails without any change and isn't used", flush=True)
            return set()
        return lines_of(counters)


def covering(mutant, name, tests, known_lines):
    """The entries that run the line of the change: those of its folder first, then ordered by time. For a line without
    code the entries that run any line of its source."""
    place = (str(COPY / name), mutant.line)
    if place in known_lines:
        found = [entry for entry in tests if place in entry.ran]
    else:
        found = [entry for entry in tests if any(source == place[0] for source, _ in entry.ran)]
    folder = Path(name).parts[1]
    return sorted(found, key=lambda entry: (not entry.name.startswith(folder), entry.seconds))


def verdict(mutant, name, tests, known_lines):
    """killed, survived or invalid, and the reason."""
    found = covering(mutant, name, tests, known_lines)
    if not found:
        return "survived", "no test runs it"
    built = set()
    with tempfile.TemporaryDirectory() as counters:
        for entry in found:
            if entry.target not in built:
                if build([entry.target]).returncode != 0:
                    return "invalid", ""
                built.add(entry.target)
            if not entry.passes(counters, 20 + 5 * entry.seconds):
                return "killed", entry.name
    return "survived", f"{len(found)} test programs run it"


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("folders", nargs="*", help="folders of src/; all but the layers if not given")
    parser.add_argument("--sample", type=int, default=0, help="so many changes of each folder; all if not given")
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--wire", action="store_true", help="run the tests over the wire, too: slower, rarely of use")
    options = parser.parse_args()
    folders = options.folders or [path.name for path in sorted((TOP / "src").iterdir())
                                  if path.is_dir() and path.name not in LAYERS]

    lock = work_alone()  # until the process ends
    copy_tree()
    sources = {
        folder: [str(path.relative_to(TOP)) for path in sorted((TOP / "src" / folder).rglob("*.cpp"))]
        for folder in folders
    }
    instrument([name for names in sources.values() for name in names])
    quick = " -fuse-ld=lld" if shutil.which("ld.lld") else ""
    configured = run(["cmake", "--preset", "ci", f"-DCMAKE_EXE_LINKER_FLAGS=--coverage{quick}"], cwd=COPY)
    built = configured if configured.returncode else build()
    if built.returncode:
        sys.exit(built.stdout)
    tests = [entry for entry in entries()
             if entry.target not in TOO_BROAD and (options.wire or not {"wire", "kept"} & set(entry.labels))]
    with ThreadPoolExecutor(CORES) as pool:
        for entry, ran in zip(tests, pool.map(measure, tests)):
            entry.ran = ran
    tests = [entry for entry in tests if entry.ran]
    known_lines = set().union(*(entry.ran for entry in tests))

    for folder, names in sources.items():
        draw = [(name, mutant) for name in names for mutant in mutants((TOP / name).read_text())]
        offered = len(draw)
        random.Random(options.seed).shuffle(draw)
        counts = {"killed": 0, "survived": 0, "invalid": 0}
        for name, mutant in draw:
            if options.sample and counts["killed"] + counts["survived"] >= options.sample:
                break
            original = (TOP / name).read_text()
            (COPY / name).write_text(mutant.apply(original))
            try:
                outcome, why = verdict(mutant, name, tests, known_lines)
            finally:
                (COPY / name).write_text(original)
            counts[outcome] += 1
            if outcome == "survived":
                old = " ".join(original[mutant.begin : mutant.end].split())
                print(f"{name}:{mutant.line}: {mutant.kind}: {old} -> {mutant.text.strip() or 'nothing'} ({why})", flush=True)
        tried = counts["killed"] + counts["survived"]
        share = 100 * counts["killed"] / tried if tried else 0
        print(f"{folder}: {counts['killed']} of {tried} noticed ({share:.0f} %); "
              f"{offered} offered, {counts['invalid']} not compiled, seed {options.seed}", flush=True)


if __name__ == "__main__":
    main()
