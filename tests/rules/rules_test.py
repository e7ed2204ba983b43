#!/usr/bin/env python3
"""rules_test.py BUILD: a wrong include fails the build or tools/rules, and a right one does not."""
import json
import pathlib
import shlex
import subprocess
import sys
import tempfile
import unittest

root = pathlib.Path(__file__).resolve().parents[2]
build = pathlib.Path(sys.argv.pop(1)).resolve()


def compiles(source, including):
    """Whether the header is found with that source's own command line."""
    entries = json.loads((build / "compile_commands.json").read_text())
    command = next(entry["command"] for entry in entries if entry["file"] == str(root / source))
    flags = [word for word in shlex.split(command) if word.startswith(("-I", "-D", "-std", "-f"))]
    system = [f"-isystem{path}" for path in shlex.split(command) if path.startswith("/usr/include")]
    done = subprocess.run(["c++", *flags, *system, "-fsyntax-only", "-x", "c++", "-"],
                          input=f'#include "{including}"\n', capture_output=True, text=True)
    if done.returncode and "No such file" not in done.stderr:
        raise AssertionError(done.stderr)
    return done.returncode == 0


def faults(path, text):
    """What tools/rules says about a tree with this one file."""
    with tempfile.TemporaryDirectory() as folder:
        tree = pathlib.Path(folder)
        (tree / path).parent.mkdir(parents=True)
        (tree / path).write_text(text)
        subprocess.run(["git", "init", "-q", folder], check=True)
        done = subprocess.run([root / "tools" / "rules", build, folder], capture_output=True, text=True)
        return [line for line in done.stdout.splitlines() if line.startswith(f"{path}:2: ")]


class WrongIncludes(unittest.TestCase):
    def test_a_header_of_a_folder_that_is_not_linked_is_not_found(self):
        for source, right, wrong in [
                ("app/AppDelegate.cpp", "menubar/MenuExtra.h", "composition/Session.h"),
                ("menubar/MenuBarAccess.cpp", "platform/Screens.h", "desktop/core/Desktop.h"),
                ("desktop/tray/TrayHost.cpp", "desktop/core/Desktop.h", "desktop/stage/scene/SceneHost.h")]:
            self.assertTrue(compiles(source, right), f"{source} includes {right}")
            self.assertFalse(compiles(source, wrong), f"{source} includes {wrong}")

    def test_the_rules_name_the_line(self):
        for path, line, fault in [
                ("app/New.cpp", '#include "composition/Session.h"', "app does not link composition"),
                ("menubar/New.cpp", '#include "desktop/core/Desktop.h"', "menubar does not link desktop/core"),
                ("desktop/tray/New.cpp", '#include "desktop/stage/scene/SceneHost.h"',
                 "desktop/tray does not link desktop/stage/scene"),
                ("app/New.h", '#include "controls/Divider.h"', "app does not link controls PUBLIC"),
                # reached through a folder that is linked, or through the folder around it
                ("app/New.cpp", '#include "desktop/core/Desktop.h"', "app does not link desktop/core"),
                ("composition/New.cpp", '#include "windows/flow/ItemRows.h"', "composition does not link windows/flow"),
                ("panel/New.qml", "import Brimshade.Desktop", "panel does not link desktop/views")]:
            start = "#pragma once\n" if path.endswith(".h") else "pragma ComponentBehavior: Bound\n"
            self.assertEqual(faults(path, start + line + "\n"), [f"{path}:2: {fault}"])

    def test_what_is_linked_may_be_used(self):
        for path, line in [("app/New.cpp", '#include "controls/Divider.h"'), ("app/main.cpp", '#include "composition/Session.h"'),
                           ("panel/New.qml", "import Brimshade.Ui")]:
            self.assertEqual(faults(path, f"pragma ComponentBehavior: Bound\n{line}\n"), [])


if __name__ == "__main__":
    unittest.main()
