#!/usr/bin/python3
"""Run an end-to-end test with a display and an accessibility bus of its own.

run.py WIDTHxHEIGHT TEST.py [ARGUMENT...]

The display is an Xvfb of that size; both end with the test, whose exit status is handed on. There
is no printer: where the program looks for the print server, nothing listens.
"""

import os
import socket
import subprocess
import sys
import tempfile

# What would lead the program to the developer's own printer, or to another look.
FOREIGN = (
    "CUPS_USER",
    "CUPS_ENCRYPTION",
    "LPDEST",
    "PRINTER",
    "QT_QPA_PLATFORMTHEME",
    "QT_STYLE_OVERRIDE",
    "XDG_CURRENT_DESKTOP",
)


def start_display(size, *options):
    """Start Xvfb on a free display number; answers the process and DISPLAY."""
    reader, writer = os.pipe()
    server = subprocess.Popen(
        ["Xvfb", "-displayfd", str(writer), "-screen", "0", size + "x24", "-nolisten", "tcp",
         *options],
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
    with tempfile.TemporaryDirectory(prefix="tarn-e2e-") as folder, socket.socket() as nobody:
        nobody.bind(("127.0.0.1", 0))  # held, so that no other program comes to listen there
        server, display = start_display(size, "-nocursor", "-fbdir", folder)
        environment = dict(
            {name: value for name, value in os.environ.items() if name not in FOREIGN},
            CUPS_SERVER="%s:%d" % nobody.getsockname(),
            DISPLAY=display,
            HOME=folder,
            XDG_RUNTIME_DIR=folder,
            XDG_CONFIG_HOME=folder + "/config",
            XDG_DATA_HOME=folder + "/data",
            XDG_STATE_HOME=folder + "/state",
            LC_ALL="C.UTF-8",
            QT_QPA_PLATFORM="xcb",
            QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1",
            NO_AT_BRIDGE="0",
            TARN_FRAMEBUFFER=folder + "/Xvfb_screen0",
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
