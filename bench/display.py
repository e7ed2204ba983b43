"""A private X display for benchmarks of the whole program."""
import contextlib
import os
import subprocess


@contextlib.contextmanager
def private_display(size="1512x982x24"):
    """Starts Xvfb on a free display number and gives the environment to run programs on it."""
    reader, writer = os.pipe()
    server = subprocess.Popen(["Xvfb", "-displayfd", str(writer), "-screen", "0", size, "-nolisten", "tcp"],
                              pass_fds=[writer], stderr=subprocess.DEVNULL)
    os.close(writer)
    try:
        with os.fdopen(reader) as numbers:
            display = ":" + numbers.readline().strip()
        environment = {key: value for key, value in os.environ.items() if key not in ("WAYLAND_DISPLAY", "QT_QPA_PLATFORM")}
        yield {**environment, "DISPLAY": display, "QT_QUICK_BACKEND": "software", "LC_ALL": "C.UTF-8"}
    finally:
        server.terminate()
        server.wait()
