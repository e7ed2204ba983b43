#!/usr/bin/env python3
"""bench/memory.py PROGRAM: resident memory over 100 openings of the panel, in virtual time.

The reference is the same process after its tenth opening: any growth after that is a leak."""
import json
import subprocess
import sys

from usage import resident_kib

OPENINGS = 100


def main(program):
    process = subprocess.Popen([program, "--script", "-"], stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)

    def do(command, **fields):
        process.stdin.write(json.dumps({"do": command, **fields}) + "\n")
        process.stdin.flush()
        return json.loads(process.stdout.readline())

    do("advance", seconds=1)
    x, y, width, height = do("state")["statusItem"]["frame"]
    if do("state")["model"]["extras"]:
        sys.exit("nothing should have been scanned yet")
    resident = []
    for _ in range(OPENINGS):
        do("click", at=[x + width / 2, y + height / 2])
        do("advance", seconds=1.2)
        do("picture", file="/dev/null")
        do("key", code=53)
        do("advance", seconds=0.6)
        resident.append(resident_kib(process.pid))
    process.stdin.close()
    process.wait()
    tenth, last = resident[9], resident[-1]
    print(f"resident: first {resident[0] / 1024:.1f} MiB, tenth {tenth / 1024:.1f} MiB, "
          f"hundredth {last / 1024:.1f} MiB, growth after the tenth {(last - tenth) / 1024:+.2f} MiB "
          f"(ratio {last / tenth:.3f}); most {max(resident) / 1024:.1f} MiB")


if __name__ == "__main__":
    main(sys.argv[1])
