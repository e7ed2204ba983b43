"""Tray items that do what hardly any real program does, in the whole program: in its bar, its panel and its menus."""
import json
import os
import pathlib
import subprocess
import sys
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "support"))
from program import PATIENCE, RETURN, Session, matches  # noqa: E402
from lib.waiting import Lines  # noqa: E402

PROGRAM = sys.argv.pop(1)


class MockItem:
    """An item in a process of its own."""

    def __init__(self, session, **wanted):
        self._process = session.start_item(wanted, stdout=subprocess.PIPE)
        self._lines = session.own(Lines(os.dup(self._process.stdout.fileno())))
        self._calls = []
        assert self._lines.next(f"the item {wanted}") == "registered"

    @property
    def calls(self):
        """All calls that it has received so far."""
        self._calls += map(json.loads, self._lines.so_far())
        return self._calls

    def change(self, signal, **properties):
        self._process.stdin.write(json.dumps({"properties": properties, "signal": signal}).encode() + b"\n")
        self._process.stdin.flush()

    def end(self):
        self._process.stdin.close()
        self._process.wait(PATIENCE)


class MockItems(unittest.TestCase):
    def setUp(self):
        self.session = Session()
        self.addCleanup(self.session.close)
        self.brimshade = self.session.start_host(PROGRAM)

    def bar(self, title):
        return next((item["frame"] for item in self.brimshade.state()["menuBar"] if item["title"] == title), None)

    def middle_of(self, title):
        x, y, width, height = self.brimshade.until(title, lambda s: self.bar(title))
        return [x + width / 2, y + height / 2]

    def until_called(self, item, *call):
        self.brimshade.until(f"{call} in {item.calls}", lambda s: list(call) in item.calls)

    def test_clicks_and_the_wheel_over_the_bar(self):
        item = MockItem(self.session, properties={"Title": "More", "ItemIsMenu": False})
        at = self.middle_of("More")
        x, y, width, height = self.bar("More")
        self.brimshade.do("click", at=at)
        self.until_called(item, "Activate", int(x), int(y + height))
        self.brimshade.do("click", at=at, button="middle")
        self.until_called(item, "SecondaryActivate", int(x), int(y + height))
        self.brimshade.do("scroll", at=at, by=[0, 2])
        self.until_called(item, "Scroll", 240, "vertical")
        self.brimshade.do("scroll", at=at, by=[-1, 0])
        self.until_called(item, "Scroll", -120, "horizontal")
        self.brimshade.do("menu", at=at)
        self.assertEqual(self.brimshade.state()["menu"], ["Open"])
        self.brimshade.do("choose", title="Open")
        self.brimshade.until("the choice", lambda s: ["Event", 1, "clicked"] in [c[:3] for c in item.calls])

    def test_the_tile_offers_the_same(self):
        item = MockItem(self.session, properties={"Title": "More", "ItemIsMenu": False,
                                                  "ToolTip": ["What it does", "and how"]})
        self.middle_of("More")
        self.brimshade.open_panel()
        x, y, width, height = self.brimshade.until("the tile", lambda s: self.brimshade.found("More", window="panel"))[0]["frame"]
        at = [x + width / 2, y + height / 2]
        self.brimshade.do("click", at=at, button="middle")
        self.brimshade.until("the middle click", lambda s: "SecondaryActivate" in [c[0] for c in item.calls])
        self.brimshade.do("scroll", at=at, by=[0, -1])
        self.until_called(item, "Scroll", -120, "vertical")
        self.brimshade.until("the tooltip", lambda s: self.brimshade.found("What it does"))
        self.brimshade.do("menu", at=at)
        self.assertEqual(self.brimshade.state()["menu"][0], "Activate")
        self.brimshade.do("choose", title="Activate")
        self.brimshade.until("the activation", lambda s: "Activate" in [c[0] for c in item.calls])

    def test_what_lacks_activation_opens_its_menu(self):
        MockItem(self.session, properties={"Title": "Less", "ItemIsMenu": False}, unknown=["Activate"])
        self.brimshade.do("click", at=self.middle_of("Less"))
        self.assertEqual(self.brimshade.until("the menu", lambda s: s["menu"]), ["Open"])

    def test_a_label_comes_changes_and_goes(self):
        item = MockItem(self.session, properties={"Title": "Weather"})
        self.middle_of("Weather")
        plain = self.bar("Weather")[2]
        item.change("XAyatanaNewLabel", XAyatanaLabel="9 °C", XAyatanaLabelGuide="-88 °C")
        wide = self.brimshade.until("the label", lambda s: (w := self.bar("Weather")[2]) > plain and w)
        item.change("XAyatanaNewLabel", XAyatanaLabel="-12 °C")
        self.brimshade.until("the other label", lambda s: self.brimshade.found("-12 °C"))
        self.assertEqual(self.bar("Weather")[2], wide)
        item.change("XAyatanaNewLabel", XAyatanaLabel="")
        self.brimshade.until("no label", lambda s: self.bar("Weather")[2] == plain)

    def test_an_open_panel_shows_what_becomes_of_the_items(self):
        item = MockItem(self.session, properties={"Title": "First"})
        self.middle_of("First")
        self.brimshade.open_panel()
        self.brimshade.do("type", text="s")
        details = lambda s: sorted(e["detail"] for e in s["model"]["extras"])  # noqa: E731
        self.brimshade.until("the item", lambda s: details(s) == ["First"])
        other = MockItem(self.session, properties={"Title": "Second"})
        self.brimshade.until("a new item", lambda s: details(s) == ["First", "Second"])
        item.change("NewTitle", Title="Last")
        self.brimshade.until("another title", lambda s: details(s) == ["Last", "Second"])
        other.end()
        state = self.brimshade.until("an item less", lambda s: details(s) == ["Last"] and s)
        self.assertEqual(state["model"]["query"], "s")
        self.assertTrue(state["model"]["isOpen"])

    def test_attention_is_marked_on_the_tile(self):
        item = MockItem(self.session, properties={"Title": "Urgent"})
        self.middle_of("Urgent")
        self.brimshade.open_panel()
        marks = lambda: self.brimshade.found("Wants attention")  # noqa: E731
        self.brimshade.until("the tile", lambda s: len(s["model"]["extras"]) == 1)
        self.assertEqual(marks(), [])
        item.change("NewStatus", Status="NeedsAttention")
        self.brimshade.until("a mark in the bar and one on the tile", lambda s: len(marks()) == 2
                             and [m["window"] for m in marks()].count("panel") == 1)
        item.change("NewStatus", Status="Active")
        self.brimshade.until("no mark", lambda s: not marks())

    def test_forty_items_come_are_opened_and_go(self):
        items = [MockItem(self.session, path=f"/item/{i}", properties={"Id": f"mock{i}", "Title": f"Mock {i:02}"})
                 for i in range(40)]
        state = self.brimshade.until("all in the bar", lambda s: len(s["menuBar"]) == 41 and s)
        # Places are not kept here: later items stand at the left end.
        self.assertEqual(state["menuBar"][-1]["identifier"], "BrimshadeButton")
        self.brimshade.open_panel()
        self.brimshade.until("all in the panel", lambda s: len(s["model"]["extras"]) == 40)
        self.brimshade.do("type", text="Mock 3")
        self.brimshade.until("ten of them", lambda s: len(matches(s)) == 10)
        self.brimshade.do("type", text="7")
        self.brimshade.until("one of them", lambda s: len(matches(s)) == 1)
        self.brimshade.do("key", code=RETURN)
        self.assertEqual(self.brimshade.until("its menu", lambda s: s["menu"]), ["Open"])
        self.brimshade.do("choose", title="Open")
        self.brimshade.until("the choice", lambda s: ["Event", 1, "clicked"] in [c[:3] for c in items[37].calls])
        for item in items:
            item.end()
        self.brimshade.until("an empty bar", lambda s: len(s["menuBar"]) == 1)


if __name__ == "__main__":
    unittest.main(verbosity=2)
