"""The program seen from outside: its command line, bad files, bad scripts, exit statuses and messages."""
import json
import os
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

PROGRAM = sys.argv.pop(1)
DATA = pathlib.Path(__file__).resolve().parents[2] / "data"
SCREEN = {"name": "Built-in Display", "frame": [0, 0, 1512, 982], "menuBarHeight": 37, "notch": [663, 849]}


def brimshade(*arguments, script="", **options):
    return subprocess.run([PROGRAM, *arguments], input=script, capture_output=True, text=True, timeout=120, **options)


def play(*commands, arguments=()):
    """Plays commands (objects, or texts sent as they are) and returns the finished process and its answers."""
    lines = "".join((c if isinstance(c, str) else json.dumps(c)) + "\n" for c in commands)
    done = brimshade("--script", "-", *arguments, script=lines)
    return done, [json.loads(line) for line in done.stdout.splitlines()]


class Files(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)

    def file(self, name, content):
        path = pathlib.Path(self.folder.name) / name
        path.write_bytes(content if isinstance(content, bytes) else content.encode())
        return str(path)

    def desktop(self, **fields):
        return self.file("desktop.json", json.dumps({"screens": [SCREEN], "applications": [], **fields}))


class CommandLine(Files):
    def test_bad_command_lines_exit_with_2_and_say_why(self):
        for arguments, reason in [
            (["--nonsense"], "nonsense"),
            (["stray"], "stray"),
            (["--real-time"], "--script"),
            (["--script", "-", "--tray", "--no-tray"], "cannot be combined"),
            (["--script", "-", "--scale", "9"], "1 to 4"),
            (["--script"], "script"),
            (["--script", "/nowhere/script.jsonl"], "/nowhere/script.jsonl"),
            (["--script", "-", "--desktop", "/nowhere/desktop.json"], "/nowhere/desktop.json"),
        ]:
            with self.subTest(arguments=arguments):
                done = brimshade(*arguments)
                self.assertEqual(done.returncode, 2)
                self.assertIn(reason, done.stderr)
                self.assertEqual(done.stderr.count("\n"), 1, done.stderr)

    def test_only_its_own_words_go_to_standard_error(self):
        bare = {"PATH": os.environ["PATH"]}  # no home, no locale, no runtime folder, no display
        for real_time in [[], ["--real-time"]]:
            picture = json.dumps({"do": "picture", "file": "/dev/null"})
            self.assertEqual(brimshade("--script", "-", *real_time, script=picture, env=bare).stderr, "")
        self.assertRegex(brimshade("--script", "/nowhere", env=bare).stderr, "^brimshade: .*\n$")

    def test_a_log_says_what_runs_and_what_it_does(self):
        _, (state,) = play({"do": "state"}, arguments=["--desktop", self.desktop()])
        x, y, width, height = state["statusItem"]["frame"]
        click = {"do": "click", "at": [x + width / 2, y + height / 2]}
        done, _ = play(click, arguments=["--debug", "--desktop", self.desktop()])
        lines = done.stderr.splitlines()
        self.assertRegex(lines[0], r"^brimshade: Brimshade \d+\.\d+\.\d+, Qt 6\.")
        self.assertTrue(any(line.startswith("brimshade: status item clicked") for line in lines), lines)

    def test_the_manual_and_the_completions_say_every_option(self):
        options = set(re.findall(r"--[a-z-]+", "".join(
            line for line in brimshade("--help").stdout.splitlines(True) if line.lstrip().startswith("-"))))
        options.discard("--help-all")
        self.assertGreater(len(options), 10)
        for file in ["brimshade.1.scd", "completions/brimshade.bash", "completions/_brimshade"]:
            said = set(re.findall(r"--[a-z-]+", (DATA / file).read_text()))
            self.assertEqual(options - said, set(), file)

    def test_help_and_version_need_no_display(self):
        self.assertIn("--desktop", brimshade("--help").stdout)
        self.assertRegex(brimshade("--version").stdout, r"^Brimshade \d+\.\d+\.\d+\n$")


class DesktopFile(Files):
    def test_a_bad_file_exits_with_2_and_names_file_and_place(self):
        app = {"pid": 5, "extras": [{"identifier": "a"}]}
        for text, place in [
            ('{"screens": [', "desktop.json"),
            (json.dumps({"screens": [SCREEN], "nonsense": 1}), "nonsense"),
            (json.dumps({"screens": [SCREEN], "applications": [{"name": "x"}]}), "applications[0].pid"),
            (json.dumps({"screens": [SCREEN], "applications": [{**app, "icon": "#zzzzzz"}]}), "applications[0].icon"),
            (json.dumps({"screens": [SCREEN], "applications": [{"pid": 5, "extras": [{"width": "x"}]}]}),
             "applications[0].extras[0].width: expected a number"),
        ]:
            with self.subTest(place=place):
                done = brimshade("--script", "-", "--desktop", self.file("desktop.json", text))
                self.assertEqual(done.returncode, 2, done.stderr)
                self.assertIn("desktop.json", done.stderr)
                self.assertIn(place, done.stderr)

    def test_a_file_that_is_not_a_picture_is_refused_with_its_place(self):
        text = self.file("text.png", "no picture")
        broken = self.file("broken.png", b"\x89PNG\r\n\x1a\n" + b"\xff" * 64)
        huge = self.file("huge.svg", '<svg xmlns="http://www.w3.org/2000/svg" width="1e9" height="1e9"><rect/></svg>')
        pipe = pathlib.Path(self.folder.name) / "pipe.png"
        os.mkfifo(pipe)
        good = {"pid": 10, "extras": []}
        for icon in [text, broken, huge, str(pipe), "/nowhere.png"]:
            with self.subTest(icon=icon):
                bad = {**good, "pid": 11, "icon": icon}
                done = brimshade("--script", "-", "--desktop", self.desktop(applications=[good, bad]))
                self.assertEqual(done.returncode, 2, done.stderr)
                ours = [line for line in done.stderr.splitlines() if line.startswith("brimshade: ")]  # libpng adds its own
                self.assertEqual(len(ours), 1, done.stderr)
                self.assertIn("desktop.json: applications[1].icon: ", ours[0])
                done, answers = play({"do": "launch", "application": bad}, {"do": "state"},
                                     arguments=["--desktop", self.desktop(applications=[good])])
                self.assertEqual(done.returncode, 0, done.stderr)
                self.assertIn("application.icon: ", answers[0]["error"])

    def test_an_icon_that_the_theme_lacks_costs_no_item(self):
        app = {"pid": 10, "icon": "no-such-theme-icon", "extras": [{"identifier": "a"}]}
        done, answers = play({"do": "state"}, arguments=["--desktop", self.desktop(applications=[app])])
        self.assertEqual(done.returncode, 0, done.stderr)
        self.assertIn(10, [item["pid"] for item in answers[0]["menuBar"]])


class Script(Files):
    def test_a_line_that_is_no_json_object_ends_the_script_with_2_and_its_number(self):
        for line in ["{", "[]", "7", "nonsense", '{"do":"state"} x']:
            with self.subTest(line=line):
                done, answers = play({"do": "advance", "seconds": 0}, line, {"do": "state"})
                self.assertEqual(done.returncode, 2)
                self.assertEqual(len(answers), 1)
                self.assertIn(":2", done.stderr)

    def test_a_bad_command_is_answered_and_the_script_goes_on(self):
        bad = [
            ({}, "do"),
            ({"do": "fly"}, "fly"),
            ({"do": "advance"}, "seconds"),
            ({"do": "advance", "seconds": -1}, "seconds"),
            ({"do": "advance", "seconds": 1, "minutes": 2}, "minutes"),
            ({"do": "move", "to": [1]}, "to"),
            ({"do": "move", "to": [1, 2, 3]}, "to"),
            ({"do": "move", "to": [1, 1e300]}, "to"),
            ({"do": "click", "at": [1, 1], "button": "fourth"}, "button"),
            ({"do": "click", "at": [1, 1], "modifiers": ["hyper"]}, "modifiers"),
            ({"do": "key", "code": 70000}, "code"),
            ({"do": "choose", "title": "Open"}, "no menu"),
            ({"do": "press-element", "name": "No such thing"}, "0 interactive"),
            ({"do": "quit", "pid": 99999}, "99999"),
            ({"do": "launch", "application": {"pid": 1, "shape": "round"}}, "application.shape"),
            ({"do": "screens", "screens": [{"name": "x"}]}, "screens[0].frame"),
            ({"do": "loginItem", "status": 7}, "status"),
            ({"do": "picture", "file": str(pathlib.Path(self.folder.name) / "p.png"), "of": "setup"}, "setup"),
            ({"do": "picture", "file": "/proc/none/p.png"}, "file"),
        ]
        done, answers = play(*[command for command, _ in bad], {"do": "state"},
                             arguments=["--desktop", self.desktop(defaults={"onboardingDone": True})])
        self.assertEqual(done.returncode, 0, done.stderr)
        self.assertEqual(len(answers), len(bad) + 1)
        for (command, reason), answer in zip(bad, answers):
            with self.subTest(command=command):
                self.assertFalse(answer["ok"])
                self.assertIn(reason, answer["error"])
        self.assertTrue(answers[-1]["ok"])

    def test_the_state_has_every_key_from_the_first_line_on(self):
        app = {"pid": 10, "extras": [{"identifier": "a", "width": 40, "menu": ["Open"]}]}
        done, answers = play(
            {"do": "state"}, {"do": "click", "at": [1490, 18]}, {"do": "advance", "seconds": 1}, {"do": "state"},
            arguments=["--desktop", self.desktop(applications=[app], defaults={"onboardingDone": True})])
        self.assertEqual(done.returncode, 0, done.stderr)
        first, opened = answers[0], answers[3]
        for state in (first, opened):
            self.assertEqual(set(state), set(
                "ok time model shown screens panel strip statusItem divider hotkey hotkeys menuBar windows menu defaults "
                "loginItem pointer openedURLs messages prompts events actions requests log".split()))
            self.assertEqual(set(state["model"]), set(
                "isOpen extras scanned trusted hoveredID query selectedID notch movingID isRecording message showVisible "
                "hoverToOpen shortcut itemShortcuts dividerEnabled launchAtLogin hiddenMatches visibleMatches hiddenCount "
                "columns panelSize".split()))
            self.assertEqual(set(state["panel"]), {"frame", "onScreen", "isKey"})
            self.assertEqual(set(state["statusItem"]), {"length", "frame", "drawn"})
            self.assertEqual(set(state["divider"]), {"isExpanded", "isEnabled", "anchor", "slack"})
            self.assertEqual(set(state["menuBar"][0]), {"pid", "identifier", "title", "frame", "drawn"})
        self.assertEqual(set(opened["model"]["extras"][0]), set(
            "id name detail symbol hasIcon tint frame isHidden canMove".split()))
        self.assertEqual(set(opened["log"][0]), {"level", "text"})
        self.assertEqual((first["panel"]["onScreen"], opened["panel"]["onScreen"]), (False, True))

    def test_a_panel_that_was_never_opened_has_no_frame(self):
        done, answers = play({"do": "advance", "seconds": 60}, {"do": "state"},
                             arguments=["--desktop", self.desktop(defaults={"onboardingDone": True})])
        state = answers[1]
        self.assertEqual(state["panel"], {"frame": [0, 0, 0, 0], "onScreen": False, "isKey": False}, done.stderr)
        self.assertEqual(state["windows"], [])

    def test_each_setting_survives_a_restart(self):
        store = str(pathlib.Path(self.folder.name) / "settings.json")
        desktop = self.desktop(defaults={"onboardingDone": True})
        arguments = ["--desktop", desktop, "--defaults", store]
        menu = [{"do": "advance", "seconds": 1}, {"do": "menu", "at": [1490, 18]}, {"do": "choose", "title": "Settings…"},
                {"do": "advance", "seconds": 1}]
        switches = ["Open when the pointer rests on the notch", "Also show items already in the menu bar",
                    "Tuck away items left of Brimshade"]
        changes = [{"do": "press-element", "name": name, "role": "CheckBox"} for name in switches]
        pick = [{"do": "press-element", "name": "Keyboard shortcut", "role": "ComboBox"}, {"do": "advance", "seconds": 1},
                {"do": "press-element", "name": "⌃⌥Space"}]
        first, answers = play(*menu, *changes, *pick, {"do": "state"}, arguments=arguments)
        self.assertEqual([a for a in answers if not a["ok"]], [], first.stderr)
        again, restarted = play({"do": "advance", "seconds": 1}, {"do": "state"}, arguments=arguments)
        for state in (answers[-1], restarted[-1]):
            model = state["model"]
            self.assertEqual((model["hoverToOpen"], model["showVisible"], model["dividerEnabled"], model["shortcut"]),
                             (True, False, True, "controlOptionSpace"))
            self.assertIsNotNone(state["strip"])
            self.assertIsNotNone(state["hotkey"])

    def test_settings_are_kept_in_the_defaults_file_and_a_damaged_one_is_set_aside(self):
        store = pathlib.Path(self.folder.name) / "settings.json"
        first, _ = play({"do": "state"}, arguments=["--defaults", str(store)])
        self.assertEqual(first.returncode, 0, first.stderr)
        self.assertEqual(json.loads(store.read_text())["NSStatusItem Preferred Position BrimshadeButton"], 5)
        store.write_text('{"showVisibleItems": fal')
        again, answers = play({"do": "state"}, arguments=["--defaults", str(store)])
        self.assertEqual(again.returncode, 0, again.stderr)
        self.assertIn("settings.json", again.stderr)
        self.assertTrue(answers[0]["model"]["showVisible"])
        self.assertEqual([p.read_text() for p in store.parent.glob("*damaged*")], ['{"showVisibleItems": fal'])


if __name__ == "__main__":
    unittest.main(verbosity=2)
