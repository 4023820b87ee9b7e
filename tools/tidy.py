#!/usr/bin/env python3
"""clang-tidy on all sources of a built preset, several sources at a time.

Most of a run's time goes to the headers, which are the same for all sources of a folder. So sources that are compiled by
the same command and declare no name twice are joined to one, and a finding's place is translated back. A group that
doesn't compile after all is read source by source. A using declaration or a namespace's second name that a source doesn't
use hides where another source of its group uses the same, and seems unused where another has it already; both are looked
for in the text of each source.
"""

import concurrent.futures
import json
import os
import pathlib
import re
import shlex
import subprocess
import sys

MOST_SOURCES = 10
MOST_LINES = 2500

COMMENT = re.compile(r"//[^\n]*|/\*.*?\*/", re.S)
DECLARED = re.compile(r"(?<![\w:~])([A-Za-z_~][\w:~]*+)\s*(?:[({=;\[]|:(?!:)|$)")
CONSTANT = re.compile(r"\bk[A-Z]\w*")


def declared_names(text):
    """The names that a source declares outside of functions and classes; None for one that can't be joined."""
    names = set()
    for line in COMMENT.sub("", text).splitlines():
        if line.startswith("#define"):
            return None
        if line.startswith("using namespace"):
            continue
        if not re.match(r"[A-Za-z_]", line) or re.match(r"namespace|public:|protected:|private:", line):
            continue
        if re.match(r"using [\w:]*::\w+;", line):
            continue
        macro = re.match(r"([A-Z][A-Z_0-9]+)\((.*)", line)
        if macro:
            names.add(",".join(re.findall(r"\w+", macro.group(2))[:2]))
            continue
        names.update(CONSTANT.findall(line))
        head = re.sub(r"^(using|class|struct|union|enum class|enum) ", "", line)
        found = DECLARED.search(head)
        if found and "::" not in found.group(1):
            names.add(found.group(1))
    return names


def command_of(entry):
    """The compiler's arguments without the source and the object."""
    words = shlex.split(entry["command"])[1:]
    kept = []
    skip = False
    for word in words:
        if skip or word == "-c" or word == entry["file"]:
            skip = False
            continue
        if word == "-o":
            skip = True
            continue
        kept.append(word)
    return tuple(kept)


def groups_of(entries):
    open_groups = {}
    closed = []
    for entry in sorted(entries, key=lambda each: each["file"]):
        text = pathlib.Path(entry["file"]).read_text()
        names = declared_names(text)
        lines = text.count("\n")
        if names is None:
            closed.append([entry["file"]])
            continue
        candidates = open_groups.setdefault(command_of(entry), [])
        for group in candidates:
            if (
                len(group["files"]) < MOST_SOURCES
                and group["lines"] + lines <= MOST_LINES
                and not group["names"] & names
            ):
                group["files"].append(entry["file"])
                group["names"] |= names
                group["lines"] += lines
                break
        else:
            candidates.append({"files": [entry["file"]], "names": set(names), "lines": lines})
    return closed + [group["files"] for groups in open_groups.values() for group in groups]


def unused_names(file):
    text = COMMENT.sub("", pathlib.Path(file).read_text())
    for found in re.finditer(r"^\s*(?:using (?:\w+::)+(\w+);|namespace (\w+) = )", text, re.M):
        name = found.group(1) or found.group(2)
        if len(re.findall(rf"\b{name}\b", text)) < 2:
            yield f"{file}:{text.count(chr(10), 0, found.end()) + 1}: error: {name} isn't used"


class Tidy:
    def __init__(self, root, preset):
        self.database = root / "build" / preset
        self.joined = self.database / "tidy"
        self.joined.mkdir(exist_ok=True)
        entries = json.loads((self.database / "compile_commands.json").read_text())
        own = {entry["file"]: entry for entry in entries if not entry["file"].startswith(str(root / "build"))}
        self.entries = list(own.values())
        self.commands = {entry["file"]: entry for entry in self.entries}

    def run_tool(self, folder, files, *options):
        done = subprocess.run(
            ["clang-tidy", "--quiet", *options, "--extra-arg=-Wno-unknown-warning-option", "-p", str(folder), *files],
            capture_output=True, text=True, check=False)
        noise = re.compile(r"warnings? generated|^Suppressed|^Use -header-filter")
        told = "".join(line + "\n" for line in done.stderr.splitlines() if not noise.search(line))
        return done.returncode, done.stdout + told

    def join(self, number, files):
        """Writes the sources of a group into one; returns its path and, for each of its lines, where that comes from."""
        folder = self.joined / str(number)
        folder.mkdir(exist_ok=True)
        path = folder / "joined.cpp"
        places = []
        with path.open("w") as out:
            for file in files:
                lines = pathlib.Path(file).read_text().splitlines()
                out.write("\n".join(lines) + "\n")
                places += [(file, line + 1) for line in range(len(lines))]
        command = self.commands[files[0]]["command"].replace(files[0], str(path))
        folders = sorted({os.path.dirname(file) for file in files})
        command += "".join(f" -iquote {shlex.quote(each)}" for each in folders)
        entry = {"directory": self.commands[files[0]]["directory"], "command": command, "file": str(path)}
        (folder / "compile_commands.json").write_text(json.dumps([entry]))
        return path, places

    def check(self, numbered):
        number, files = numbered
        if len(files) == 1:
            return self.run_tool(self.database, files)
        path, places = self.join(number, files)
        code, told = self.run_tool(path.parent, [str(path)], "--checks=-misc-unused-alias-decls")
        if "clang-diagnostic-error" in told:
            return self.run_tool(self.database, files)

        def place(found):
            file, line = places[int(found.group(1)) - 1]
            return f"{file}:{line}:"

        return code, re.sub(re.escape(str(path)) + r":(\d+):", place, told)


def main():
    root = pathlib.Path(__file__).resolve().parent.parent
    tidy = Tidy(root, sys.argv[1])
    groups = groups_of(tidy.entries)
    groups.sort(key=len, reverse=True)
    print(f"clang-tidy: {len(tidy.entries)} sources in {len(groups)} groups", flush=True)
    failed = False
    for entry in tidy.entries:
        for told in unused_names(entry["file"]):
            print(told)
            failed = True
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        for code, told in pool.map(tidy.check, enumerate(groups)):
            print(told, end="", flush=True)
            failed = failed or code != 0
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
