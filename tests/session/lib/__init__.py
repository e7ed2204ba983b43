"""Real sessions on a machine without a screen, for tests: displays, programs, hands and eyes. See docs/HACKING.md."""
