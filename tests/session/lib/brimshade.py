"""Brimshade, driven and read by its script."""
import json

from .waiting import PATIENCE, Conversation, Deadline

RETURN, ESCAPE = 36, 53  # key codes in its script


def matches(state):
    return state["model"]["hiddenMatches"] + state["model"]["visibleMatches"]


def names(state):
    return {extra["name"] for extra in state["model"]["extras"]}


def middle(frame):
    x, y, width, height = frame
    return round(x + width / 2), round(y + height / 2)


class Program(Conversation):
    @property
    def pid(self):
        return self.process.pid

    def state(self):
        return self.do("state")

    def wait(self, seconds):
        self.do("advance", seconds=seconds)

    def until(self, what, found, patience=PATIENCE):
        """Lets its time pass until found(state) is true, and returns that value."""
        state = None
        deadline = Deadline(lambda: f"{what}; the last state: {json.dumps(state)[:4000]}", patience)
        while True:
            state = self.state()
            result = found(state)
            if result:
                return result
            deadline.check()
            self.wait(0.05)

    def found(self, text, **like):
        """The windows' elements that contain that text."""
        return [element for element in self.do("find", text=text)["elements"] if like.items() <= element.items()]

    def element(self, name, role=None):
        """The middle of the one visible element with exactly that name, in points of the bar's screen."""
        found = self.found(name, name=name, **({"role": role} if role else {}))
        assert len(found) == 1, (name, found)
        return middle(found[0]["frame"])

    def row(self, title):
        """The middle of an entry of the open menu."""
        return self.element(title, "MenuItem")

    def icon(self):
        """The middle of Brimshade's own item."""
        return middle(self.state()["statusItem"]["frame"])

    def open_panel(self):
        self.until("nothing open", lambda s: not s["panel"]["onScreen"] and not s["menu"])
        self.ask_for_panel()
        return self.until("the open panel", lambda s: s["model"]["isOpen"] and s["panel"]["isKey"] and s)

    def ask_for_panel(self):
        self.do("click", at=self.icon())

    def close_panel(self):
        self.do("key", code=ESCAPE)
        self.until("the closed panel", lambda s: not s["panel"]["onScreen"])

    def choose_tile(self, typed, patience=PATIENCE):
        """Opens the panel, types part of a name and presses Return."""
        self.open_panel()
        self.do("type", text=typed)
        self.until(f"one match of {typed}", lambda s: len(matches(s)) == 1, patience)
        self.do("key", code=RETURN)

    def open_menu(self, typed, patience=PATIENCE):
        """Chooses the tile and returns the titles of the menu that opens."""
        self.choose_tile(typed, patience)
        return self.until(f"the menu of {typed}", lambda s: s["menu"], patience)

    def end(self):
        if not self.process.stdin.closed:
            self.process.stdin.close()
        return self.process.wait(PATIENCE)


class Brimshade(Program):
    """Brimshade as a session's menu bar, while hands use it."""

    def __init__(self, session, program, *arguments, settings=None):
        file = session.home / "settings.json"
        if not file.exists():
            file.write_text(json.dumps(settings or {"onboardingDone": True}))
        super().__init__(session.talk("brimshade", program, "--session", "--script", "-", "--real-time", "--defaults",
                                      file, *arguments), "brimshade")
        session.own(self)
        self._toggle = lambda: session.output_of(program, "--toggle")

    def ask_for_panel(self):
        """By --toggle and not by a click, because its item moves when a program comes or goes."""
        self._toggle()
