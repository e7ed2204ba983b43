"""Brimshade as a session's menu bar, driven and read by its script while hands use it."""
import json

from .waiting import Conversation, Deadline


def matches(state):
    return state["model"]["hiddenMatches"] + state["model"]["visibleMatches"]


def names(state):
    return {extra["name"] for extra in state["model"]["extras"]}


def middle(frame):
    x, y, width, height = frame
    return round(x + width / 2), round(y + height / 2)


class Brimshade:
    def __init__(self, session, program, *arguments, settings=None):
        file = session.home / "settings.json"
        if not file.exists():
            file.write_text(json.dumps(settings or {"onboardingDone": True}))
        self._conversation = session.converse("brimshade", program, "--session", "--script", "-", "--real-time",
                                              "--defaults", file, *arguments)
        self.process = self._conversation.process

    def do(self, command, **arguments):
        return self._conversation.do(command, **arguments)

    def until(self, what, found):
        """Lets time pass until found(state) is something, which is then returned."""
        state = None
        deadline = Deadline(lambda: f"{what}; the last state: {json.dumps(state)[:4000]}")
        while True:
            state = self.do("state")
            result = found(state)
            if result:
                return result
            deadline.check()
            self.do("advance", seconds=0.05)

    def element(self, name, role=None):
        """The middle of the one visible element of exactly that name, in points of the bar's screen."""
        found = [element for element in self.do("find", text=name)["elements"]
                 if element["name"] == name and role in (None, element["role"])]
        assert len(found) == 1, (name, found)
        return middle(found[0]["frame"])

    def row(self, title):
        """The middle of an entry of the open menu."""
        return self.element(title, "MenuItem")

    def icon(self):
        """The middle of Brimshade's own item."""
        return middle(self.do("state")["statusItem"]["frame"])
