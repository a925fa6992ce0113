"""A printer for the program, and tests with one."""

import os
import re
import select
import socket
import subprocess
import tempfile
import threading
import unittest

from desktop import Program, wait_for
from house import House
from pdf import Pdf

A4 = (842, 595)
LETTER = (792, 612)

NOT_READY = "Warning: Your printer is not ready!\n\nYou couldn't print in the program"


class Address:
    """A loopback address for the program. It is held from the start: nobody else comes to listen
    there, and at first nobody does."""

    def __init__(self):
        self.socket = socket.socket()
        self.socket.bind(("127.0.0.1", 0))
        self.target = None

    def __str__(self):
        return "%s:%d" % self.socket.getsockname()

    def take_and_keep_silent(self):
        """Let everything connect, and answer nothing."""
        self.socket.listen()

    def lead_to(self, server):
        """Have everything that comes from now on go to that print server."""
        opening = self.target is None
        host, port = server.address.split(":")
        self.target = host, int(port)
        if opening:
            self.socket.listen()
            threading.Thread(target=self._serve, daemon=True).start()

    def _serve(self):
        while True:
            try:
                client, _ = self.socket.accept()
            except OSError:  # closed
                return
            threading.Thread(target=self._relay, args=(client, self.target), daemon=True).start()

    @staticmethod
    def _relay(client, target):
        with client, socket.create_connection(target) as server:
            other = {client: server, server: client}
            while True:
                for end in select.select([client, server], [], [])[0]:
                    try:
                        content = end.recv(65536)
                        other[end].sendall(content)
                    except OSError:
                        return
                    if not content:
                        return

    def close(self):
        if self.target is not None:
            self.socket.shutdown(socket.SHUT_RDWR)  # ends the thread that waits there
        self.socket.close()


class PrintServer:
    """A print server of the test's own, with a queue as the arguments say."""

    def __init__(self, programs, *arguments):
        self.process = subprocess.Popen(
            [os.path.join(programs, "tests", "paper", "tarn_print_server"), *arguments],
            stdin=subprocess.PIPE,
            stdout=subprocess.PIPE,
            text=True,
        )
        self.address = self.process.stdout.readline().strip()
        self.folder = self.process.stdout.readline().strip()
        if not self.folder:
            raise AssertionError(f"no print server, status {self.stop()}")

    def job_count(self):
        return sum(name.endswith(".done") for name in os.listdir(self.folder))

    def jobs(self, count):
        """Wait until so many jobs were printed; they, in their order."""
        wait_for(lambda: self.job_count() >= count, f"{count} jobs")
        numbers = sorted(
            int(name.split(".")[0]) for name in os.listdir(self.folder) if name.endswith(".done")
        )
        return [Job(os.path.join(self.folder, str(number))) for number in numbers]

    def stop(self):
        """Answers the exit status: 0 when nothing is left of it."""
        self.process.stdin.close()
        self.process.stdout.close()
        return self.process.wait()


class Job:
    def __init__(self, base):
        with open(base + ".title", encoding="utf-8") as file:
            self.title = file.read()
        with open(base + ".document", "rb") as file:
            self.document = Pdf(file.read())


def whole_lines(lines):
    """Put together again what was too long for a line and went on in the next, at its remark."""
    whole = []
    for line in lines:
        start = len(line) - len(line.lstrip())
        *before, remark = re.split(" {2,}", whole[-1]) if whole else [""]
        if before and start > 60 and start == whole[-1].rindex(remark):
            whole[-1] += " " + line.lstrip()
        else:
            whole.append(line)
    return whole


class PrintCase(unittest.TestCase):
    """A program with a project in feet and one in metres, and an address for its printing system
    where at first nothing listens."""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = folder.name
        self.programs = os.environ["TARN_PROGRAMS"]
        self.house = House(self.programs, self.folder)
        self.address = Address()
        self.addCleanup(self.address.close)
        self.house.bring_in_samples()

    def have_printer(self, *arguments):
        server = PrintServer(self.programs, *arguments)
        self.addCleanup(lambda: self.assertEqual(server.stop(), 0))
        self.address.lead_to(server)
        return server

    def open_project(self, project, metric=False):
        self.ui = ui = Program(
            self.house.program("tarn"), "--config-dir", self.house.config,
            environment={"CUPS_SERVER": str(self.address), "HOME": self.folder},
        )
        self.addCleanup(ui.__exit__)
        ui.press("SELECT PROJECT")
        ui.click_on(ui.item("DIRECTORIES", "SAMPLES"))
        wait_for(lambda: project in ui.items("PROJECTS"), "the projects")
        ui.click_on(ui.item("PROJECTS", project))
        ui.press("DONE")
        ui.see("label", "OPERATION MENU")
        if metric:
            ui.click("check box", "Metric")

    def open_report(self):
        self.ui.press("ENTER/EDIT DATA")
        self.ui.press("REPORT")
        self.ui.see("push button", "PRINT")

    def estimate(self, lay="DOWN LAY"):
        ui = self.ui
        ui.press("ESTIMATE")
        ui.choose(lay)
        ui.press("OK")
        ui.choose("2")
        ui.press("Continue")
        wait_for(ui.drawn_text, "the drawing")

    def report_lines(self, project, *options):
        """What the command line prints, from its heading on."""
        text = self.house.run(
            "tarn-data", "report", "--database", self.house.database, "--project", project, *options
        )
        return [line.rstrip() for line in text.strip("\n").splitlines()]

    def expect_not_ready(self, cause):
        """One message, with its cause and the way out below it."""
        self.assertEqual(self.ui.message(), NOT_READY)
        below = self.ui.texts_of_box()[1]
        self.assertIn(cause, below)
        self.assertIn('choose "Save as PDF"', below)
        self.ui.answer("OK")

    def drawing(self):
        return wait_for(lambda: next(self.ui.showing(name="Layout drawing"), None), "a drawing")

    def report(self):
        return self.ui.see("text", "ENTERED DATA REPORT")

    def saved(self, name):
        """The path of a file that the program saved, when it is there."""
        path = os.path.join(self.folder, name)
        wait_for(lambda: os.path.isfile(path) and not self.ui.boxes(), name)
        return path
