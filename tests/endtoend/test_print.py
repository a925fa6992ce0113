"""Printing, to a print server of the test's own."""

import os
import sys
import unittest

from desktop import wait_for
from pdf import Pdf
from printing import A4, LETTER, PrintCase, whole_lines

COLUMN_HEADS = slice(5, 8)  # of the listing's lines


def without_runs_of_blanks(lines):
    return [" ".join(line.split()) for line in lines]


class PrintingReports(PrintCase):
    def expect_report_closed(self):
        ui = self.ui
        ui.wait_gone("push button", "PRINT")
        ui.see("push button", "BACK")
        ui.see("push button", "SAVE")
        self.assertEqual(ui.boxes(), [])

    def expect_printed(self, job, expected):
        self.assertEqual(job.title, "ENTERED DATA REPORT")
        self.assertEqual(job.document.page_size(), A4)
        (page,) = job.document.typed_pages()
        self.assertEqual(whole_lines(page), expected)

    def test_the_listing_arrives_line_by_line(self):
        server = self.have_printer()
        self.open_project("MAPLE STREET 9")
        self.open_report()
        self.assertFalse(self.ui.is_there("push button", "BACK"))
        self.assertFalse(self.ui.is_there("push button", "SAVE"))
        self.ui.press("PRINT")
        self.expect_report_closed()
        (job,) = server.jobs(1)
        self.expect_printed(job, self.report_lines("MAPLE STREET 9"))

    def test_the_listing_in_metric_arrives_by_keys_alone(self):
        server = self.have_printer()
        self.open_project("KANAALHUIS", metric=True)
        self.open_report()
        self.ui.take_focus()
        self.ui.press_by_key("PRINT")
        self.expect_report_closed()
        (job,) = server.jobs(1)
        self.expect_printed(job, self.report_lines("KANAALHUIS", "--metric"))

    def test_a_hundred_rooms_take_pages_with_heads_and_come_once_each(self):
        server = self.have_printer()
        file = os.path.join(self.folder, "rooms.csv")
        with open(file, "w", encoding="utf-8") as rooms:
            rooms.write("width,length,covering,base,room,remark\n")
            for number in range(1, 101):
                rooms.write(f"{60 + number},{300 - number},C1,W2L1,{number},door {number}\n")
        self.house.bring_in("HOTEL", file)
        self.open_project("HOTEL")
        self.open_report()
        self.ui.press("PRINT")
        self.expect_report_closed()
        (job,) = server.jobs(1)
        self.assertEqual(job.document.page_size(), A4)
        expected = self.report_lines("HOTEL")
        heads = expected[COLUMN_HEADS]
        self.assertIn("ITEM", heads[0])
        first, *further = job.document.typed_pages()
        self.assertGreaterEqual(len(further), 2)
        for page in further:
            self.assertEqual(page[: len(heads)], heads)
            first += page[len(heads) :]
        self.assertEqual(first, expected)
        self.assertEqual(sum("door " in line for line in first), 100)


class PrintingEstimates(PrintCase):
    def expect_printed(self, job, project, metric, *last_lines):
        """The title, the drawing as it stands with its cut list, and the last lines."""
        date = self.report_lines(project)[2].strip()
        title = f"TARN RESULT (PROJECT: {project}) {date}"
        self.assertEqual(" ".join(job.title.split()), title)
        self.assertEqual(job.document.page_size(), A4)
        width = "366cm" if metric else "12ft"
        lay = "cross" if last_lines[-1] == "CROSSLAY" else "down"
        cut_list = self.house.estimate(
            project, *(["--metric"] if metric else []), "--carpet", "1", "--roll-width", width,
            "--lay", lay, "--max-pieces", "2",
        )
        lines = job.document.lines()
        self.assertEqual(
            lines, [title] + without_runs_of_blanks(self.ui.drawn_text()) + list(last_lines)
        )
        below = len(last_lines)
        self.assertEqual(
            lines[-len(cut_list) - below : -below], without_runs_of_blanks(cut_list)
        )

    def test_feet_in_both_lays(self):
        server = self.have_printer()
        self.open_project("MAPLE STREET 9")
        self.estimate()
        self.ui.press("PRINT")
        (job,) = server.jobs(1)
        self.expect_printed(
            job, "MAPLE STREET 9", False, "Carpet-1 Width=12'0\"", "DOWNLAY"
        )
        self.estimate("CROSS LAY")
        self.ui.press("PRINT")
        self.expect_printed(
            server.jobs(2)[1], "MAPLE STREET 9", False, "Carpet-1 Width=12'0\"", "CROSSLAY"
        )

    def test_a_double_click_prints_one_page(self):
        server = self.have_printer()
        self.open_project("MAPLE STREET 9")
        self.estimate()
        self.ui.click_on(self.ui.see("push button", "PRINT"), double=True)
        server.jobs(1)
        self.ui.press("REDRAW")
        wait_for(lambda: not any("Total" in line for line in self.ui.drawn_text()), "no list")
        self.ui.press("PRINT")
        pages = [job.document.lines() for job in server.jobs(2)]
        self.assertEqual([any("Total" in line for line in page) for page in pages], [True, False])

    def test_metric_by_keys_alone(self):
        server = self.have_printer()
        self.open_project("KANAALHUIS", metric=True)
        self.estimate()
        self.ui.take_focus()
        self.ui.press_by_key("PRINT")
        (job,) = server.jobs(1)
        self.expect_printed(job, "KANAALHUIS", True, "Carpet-1 Width=366", "DOWNLAY")

    def test_a_drawing_redrawn_without_its_list_is_printed_as_it_stands(self):
        server = self.have_printer()
        self.open_project("MAPLE STREET 9")
        self.estimate()
        self.ui.press("REDRAW")
        wait_for(lambda: not any("Total" in line for line in self.ui.drawn_text()), "no list")
        self.ui.press("PRINT")
        (job,) = server.jobs(1)
        self.assertEqual(
            job.document.lines()[1:], self.ui.drawn_text() + ["Carpet-1 Width=12'0\"", "DOWNLAY"]
        )


class PrintingTrouble(PrintCase):
    def unready_printers(self):
        """No server, and then one after the other that cannot print; with the cause told."""
        yield "no server", "cannot be reached"
        self.address.take_and_keep_silent()
        yield "a server that keeps silent", "it keeps silent"
        for option, cause in (
            ("--no-queue", "There is no default printer."),
            ("--stopped", "is stopped."),
            ("--not-accepting", "takes no jobs."),
        ):
            self.have_printer(option)
            yield option, cause

    def test_a_report_waits_until_the_printer_is_ready(self):
        self.open_project("MAPLE STREET 9")
        self.open_report()
        shown = self.ui.field("ENTERED DATA REPORT")
        for trouble, cause in self.unready_printers():
            with self.subTest(trouble):
                self.ui.press("PRINT")
                self.expect_not_ready(cause)
                self.assertEqual(self.ui.field("ENTERED DATA REPORT"), shown)
                self.assertFalse(self.ui.is_there("push button", "BACK"))
        server = self.have_printer()
        self.ui.press("PRINT")
        self.ui.wait_gone("push button", "PRINT")
        self.assertEqual(self.ui.boxes(), [])
        (job,) = server.jobs(1)
        (page,) = job.document.typed_pages()
        self.assertEqual(whole_lines(page), self.report_lines("MAPLE STREET 9"))

    def test_an_estimate_waits_until_the_printer_is_ready(self):
        self.open_project("MAPLE STREET 9")
        self.estimate()
        drawn = self.ui.drawn_text()
        for trouble, cause in self.unready_printers():
            with self.subTest(trouble):
                self.ui.press("PRINT")
                self.expect_not_ready(cause)
                self.assertEqual(self.ui.drawn_text(), drawn)
                # Still usable: the list goes and is pasted again.
                self.ui.press("REDRAW")
                wait_for(lambda: len(self.ui.drawn_text()) < len(drawn), "the roll alone")
                self.ui.press("PASTE CUTS")
                self.ui.click_on(self.drawing())
                wait_for(lambda: self.ui.drawn_text() == drawn, "the list again")
                self.assertEqual(self.ui.boxes(), [])
        server = self.have_printer()
        self.ui.press("PRINT")
        (job,) = server.jobs(1)
        self.assertEqual(self.ui.boxes(), [])
        self.assertEqual(job.document.lines()[1:-2], without_runs_of_blanks(drawn))

    def save_page(self, name):
        """The page's size when the estimate is saved."""
        self.ui.choose_in_menu_of(self.drawing(), "p")
        self.ui.save_as(name)
        return Pdf.of_file(self.saved(name + ".pdf")).page_size()

    def test_a_printer_that_comes_later_is_asked_for_its_page_then(self):
        self.open_project("MAPLE STREET 9")
        self.estimate()
        self.assertEqual(self.save_page("before"), A4)
        server = self.have_printer("--paper", "Letter")
        self.assertEqual(self.save_page("unasked"), A4)
        self.ui.press("PRINT")
        (job,) = server.jobs(1)
        # The driver turns the page on an upright sheet.
        self.assertEqual(sorted(job.document.page_size()), sorted(LETTER))
        self.assertEqual(self.save_page("after"), LETTER)

    def test_a_printer_that_is_there_is_asked_for_its_page_at_the_start(self):
        self.have_printer("--paper", "Letter")
        self.open_project("MAPLE STREET 9")
        self.estimate()
        self.assertEqual(self.save_page("page"), LETTER)


class PrintingNowhere(PrintCase):
    def test_a_test_that_makes_no_printer_has_none(self):
        self.address = os.environ["CUPS_SERVER"]
        self.open_project("MAPLE STREET 9")
        self.open_report()
        self.ui.press("PRINT")
        self.expect_not_ready("cannot be reached")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1] + sys.argv[1:], verbosity=2)
