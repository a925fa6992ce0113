#!/usr/bin/python3
"""Run an end-to-end test with a display and an accessibility bus of its own.

run.py WIDTHxHEIGHT TEST.py [ARGUMENT...]

The display is an Xvfb of that size; both end with the test, whose exit status is handed on.
"""

import os
import subprocess
import sys
import tempfile


def start_display(size):
    """Start Xvfb on a free display number; answers the process and DISPLAY."""
    reader, writer = os.pipe()
    server = subprocess.Popen(
        ["Xvfb", "-displayfd", str(writer), "-screen", "0", size + "x24", "-nolisten", "tcp"],
        pass_fds=[writer],
        stdout=subprocess.DEVNULL,
        stderr=subprocess.DEVNULL,
    )
    os.close(writer)
    with os.fdopen(reader) as numbers:
        number = numbers.readline().strip()
    if not number:
        sys.exit("Xvfb did not start")
    return server, ":" + number


def main():
    size, *command = sys.argv[1:]
    server, display = start_display(size)
    with tempfile.TemporaryDirectory(prefix="tarn-e2e-") as folder:
        environment = dict(
            os.environ,
            DISPLAY=display,
            HOME=folder,
            XDG_RUNTIME_DIR=folder,
            XDG_CONFIG_HOME=folder + "/config",
            XDG_DATA_HOME=folder + "/data",
            LC_ALL="C.UTF-8",
            QT_QPA_PLATFORM="xcb",
            QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1",
            NO_AT_BRIDGE="0",
        )
        os.chmod(folder, 0o700)
        try:
            return subprocess.call(
                ["dbus-run-session", "--", "/usr/bin/python3", *command], env=environment
            )
        finally:
            server.terminate()
            server.wait()


if __name__ == "__main__":
    sys.exit(main())
