"""Checks sources with the options that a build folder compiles them with. Sources of a library that share their options
are checked together, as one translation unit: most of the time goes into Qt's headers, which are then read only once. A
group that has passed is not checked again until it, a header, or the check itself changes."""
import collections
import concurrent.futures
import hashlib
import json
import os
import pathlib
import re
import subprocess

LARGEST = 12  # most sources in a group


def tracked(root, *patterns):
    out = subprocess.run(["git", "ls-files", "--cached", "--others", "--exclude-standard", "--", *patterns],
                         cwd=root, capture_output=True, text=True, check=True).stdout
    return [root / line for line in out.splitlines() if (root / line).exists()]


def command_of(entry):
    """The command without the source and its object, in clang's spelling."""
    command = re.sub(r" -o \S+ -c \S+", "", entry["command"])
    return command.replace("-std=c++23", "-std=c++2b")


def groups(build, wanted):
    """Yields (command, files) for those sources."""
    alike = collections.defaultdict(set)  # a source that several programs compile counts once
    for entry in json.loads((build / "compile_commands.json").read_text()):
        if entry["file"] in wanted:
            alike[command_of(entry)].add(entry["file"])
    for command, files in alike.items():
        files = sorted(files)
        for i in range(0, len(files), LARGEST):
            yield command, files[i:i + LARGEST]


def digest_of(*paths):
    digest = hashlib.sha256()
    for path in paths:
        digest.update(path.read_bytes())
    return digest


def look(work, command, files, common, prelude, find_faults):
    """What find_faults(unit, command) says about the group as one source; nothing if it has passed before."""
    key = common.copy()
    key.update(command.encode())
    for path in files:
        key.update(path.encode() + pathlib.Path(path).read_bytes())
    stamp = work / key.hexdigest()
    if stamp.exists():
        return ""
    unit = work / stamp.name[:12] / "unit.cpp"
    unit.parent.mkdir(parents=True, exist_ok=True)
    unit.write_text(prelude + "".join(f'#include "{path}"\n' for path in files))
    faults = find_faults(unit, command)
    if not faults:
        stamp.touch()
    return faults


def look_at_all(work, all_groups, common, prelude, find_faults):
    """Prints the faults and returns the exit status."""
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        texts = list(pool.map(lambda group: look(work, *group, common, prelude, find_faults), all_groups))
    print("".join(texts), end="")
    return 1 if any(texts) else 0
