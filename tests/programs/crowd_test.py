"""Ten tray programs of five kinds in one X11 session whose bar is Brimshade: each is found, opened by name, chosen
from, followed, and disappears."""
import json
import pathlib
import subprocess
import sys
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "support"))
from program import ESCAPE, Session  # noqa: E402

PROGRAM = sys.argv.pop(1)
PATIENCE = 60  # seconds: this many programs start slowly on a busy machine
QT6_ITEM = """
import sys
from PyQt6.QtGui import QIcon, QPixmap
from PyQt6.QtWidgets import QApplication, QMenu, QSystemTrayIcon
application = QApplication(sys.argv)
application.setApplicationName("Counter of Qt 6")
application.setQuitOnLastWindowClosed(False)
pixels = QPixmap(22, 22)
pixels.fill()
item, menu = QSystemTrayIcon(QIcon(pixels)), QMenu()
counter = menu.addAction("Count: 0")
counter.triggered.connect(lambda: counter.setText("Count: 1"))
menu.addSeparator()
menu.addAction("Quit").triggered.connect(application.quit)
item.setContextMenu(menu)
item.show()
application.exec()
"""
# Tile, command, an entry, the window that it shows or hides or the entry that it turns into, the last entry.
PROGRAMS = {
    "Redshift": (["redshift-gtk", "-l", "50:10", "-m", "dummy"], "Info", "window:Info", "Quit"),
    "KeePassXC": (["keepassxc"], "Toggle window", "no window:KeePassXC", "Quit"),
    "Flameshot": (["flameshot"], "About", "window:About", "Quit"),
    "CopyQ": (["copyq"], "Disable Clipboard Storing", "entry:Enable Clipboard Storing", "Exit"),
    "Transmission": (["transmission-gtk", "-m"], "Show Transmission", "window:Transmission", "Quit"),
    "Remmina": (["remmina", "-i"], "Open Main Window", "window:Remmina", "Quit"),
    "Psensor": (["psensor"], "About", "window:About Psensor", "Quit"),
    "Counter of Qt 6": (["/usr/bin/python3", "-c", QT6_ITEM], "Count: 0", "entry:Count: 1", "Quit"),
}
# These dock a window and open their own menus, bypassing Brimshade: tile, command and class, the keys that choose an
# entry, the window that it shows, the keys that choose the last entry.
DOCKED = {
    "Parcellite": ("parcellite", ["Down", "Return"], "About Parcellite", ["Up", "Return"]),
    "volumeicon": ("volumeicon", ["Down", "Down", "Return"], "Preferences", ["Up", "Return"]),
}


class Crowd(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.session = Session()
        cls.addClassCleanup(cls.session.close)
        cls.session.write(".config/keepassxc/keepassxc.ini",
                          "[General]\nUpdateCheckMessageShown=true\n[GUI]\nShowTrayIcon=true\nMinimizeToTray=true\n")
        cls.session.write(".config/copyq/copyq.conf", "[Options]\nconfirm_exit=false\n")
        cls.brimshade = cls.session.start_bar(PROGRAM)
        cls.processes = {name: cls.session.start(*command) for name, (command, *_) in PROGRAMS.items()}
        cls.processes |= {name: cls.session.start(command) for name, (command, *_) in DOCKED.items()}
        for name, process in cls.processes.items():
            cls.brimshade.until(f"an item of {name}", lambda s, pid=process.pid: pid in cls.pids(s), PATIENCE)
        cls.brimshade.until("KeePassXC's window", lambda s: cls.has_window("KeePassXC"), PATIENCE)

    @staticmethod
    def pids(state):
        return {item["pid"] for item in state["menuBar"]}

    @staticmethod
    def items(state):
        """All but Brimshade's and the clock's."""
        return len(state["menuBar"]) - 2

    def open_menu(self, name):
        return self.brimshade.open_menu(name, PATIENCE)

    def choose_from_own_menu(self, name, class_name, keys):
        before = self.windows_of(class_name)
        self.brimshade.choose_tile(name, PATIENCE)
        self.brimshade.until(f"menu of {name}", lambda s: self.windows_of(class_name) - before, PATIENCE)
        for key in keys:
            self.session.xdotool("key", key)

    def windows_of(self, class_name):
        return set(self.session.output_of("xdotool", "search", "--onlyvisible", "--class", class_name).split())

    @classmethod
    def has_window(cls, name):
        return bool(cls.session.text_of("xdotool", "search", "--onlyvisible", "--name", name).split())

    def has_come(self, name, effect):
        kind, what = effect.split(":", 1)
        if kind != "entry":
            return self.has_window(what) == (kind == "window")
        titles = self.open_menu(name)
        self.brimshade.do("key", code=ESCAPE)
        return what in titles

    def test_1_all_are_found_and_pictured(self):
        self.brimshade.open_panel()
        self.brimshade.until("all names", lambda s: {e["name"] for e in s["model"]["extras"] if e["hasIcon"]}
                             == set(self.processes), PATIENCE)
        self.brimshade.close_panel()

    def test_2_each_does_what_is_chosen_in_its_menu(self):
        for name, (_, entry, effect, _) in PROGRAMS.items():
            with self.subTest(name):
                self.assertIn(entry, self.open_menu(name))
                self.brimshade.do("choose", title=entry)
                self.brimshade.until(f"{effect} of {name}", lambda s: self.has_come(name, effect), PATIENCE)

    def test_2b_each_that_draws_its_own_menu_does_what_is_chosen_in_it(self):
        for name, (class_name, keys, window, _) in DOCKED.items():
            with self.subTest(name):
                self.choose_from_own_menu(name, class_name, keys)
                self.brimshade.until(f"{window} of {name}", lambda s: self.has_window(window), PATIENCE)
                self.session.xdotool("key", "alt+F4")
                self.brimshade.until(f"no {window} of {name}", lambda s: not self.has_window(window), PATIENCE)

    def test_3_each_quits_by_its_menu_and_its_item_goes(self):
        left = len(self.processes)
        for name in self.processes:
            with self.subTest(name):
                if name in DOCKED:
                    class_name, *_, keys = DOCKED[name]
                    self.choose_from_own_menu(name, class_name, keys)
                else:
                    last = PROGRAMS[name][-1]
                    self.assertEqual(self.open_menu(name)[-1], last)
                    self.brimshade.do("choose", title=last)
                self.brimshade.until(f"end of {name}", lambda s: self.processes[name].poll() is not None, PATIENCE)
                left -= 1
                self.brimshade.until(f"{left} items", lambda s: self.items(s) == left)


if __name__ == "__main__":
    unittest.main(verbosity=2)
