"""Saving what would be printed as files, through the real file box."""

import os
import sys
import unittest
from xml.etree import ElementTree

from desktop import wait_for
from house import SAMPLES
from pdf import Pdf
from printing import A4, PrintCase, whole_lines


class PrintingToFiles(PrintCase):
    def test_an_estimate_as_pdf_and_svg(self):
        server = self.have_printer()
        self.open_project("MAPLE STREET 9")
        self.estimate()
        self.ui.press("PRINT")
        (job,) = server.jobs(1)
        self.ui.choose_in_menu_of(self.drawing(), "p")
        self.ui.save_as("house")
        saved = Pdf.of_file(self.saved("house.pdf"))
        self.assertEqual(saved.lines(), job.document.lines())
        self.assertEqual(saved.page_size(), A4)
        path = os.path.join(self.folder, "tool.pdf")
        self.house.estimate(
            "MAPLE STREET 9", "--carpet", "1", "--roll-width", "12ft", "--max-pieces", "2",
            "--pdf", path,
        )
        self.assertEqual(Pdf.of_file(path).lines(), saved.lines())
        self.ui.choose_in_menu_of(self.drawing(), "s")
        self.ui.save_as("house")
        self.assertEqual(self.svg_texts(self.saved("house.svg")), self.ui.drawn_text())

    @staticmethod
    def svg_texts(path):
        root = ElementTree.parse(path).getroot()
        return ["".join(text.itertext()) for text in root.iter("{http://www.w3.org/2000/svg}text")]

    def test_a_report_as_pdf_and_svg(self):
        self.open_project("MAPLE STREET 9")
        self.open_report()
        self.ui.choose_in_menu_of(self.report(), "p")
        self.ui.save_as("listing")
        saved = Pdf.of_file(self.saved("listing.pdf"))
        self.assertEqual(saved.page_size(), A4)
        (page,) = saved.typed_pages()
        expected = self.report_lines("MAPLE STREET 9")
        self.assertEqual(whole_lines(page), expected)
        self.ui.choose_in_menu_of(self.report(), "s")
        self.ui.save_as("listing")
        texts = self.svg_texts(self.saved("listing.svg"))
        self.assertEqual(
            [text.rstrip() for text in texts if text.strip()], [line for line in expected if line]
        )

    def test_the_name_offered_is_the_projects_and_a_file_is_replaced_only_after_a_question(self):
        path = os.path.join(self.folder, "MAPLE STREET 9.pdf")
        with open(path, "w", encoding="utf-8") as file:
            file.write("another")
        self.open_project("MAPLE STREET 9")
        self.open_report()
        for answer in ("No", "Yes"):
            self.ui.choose_in_menu_of(self.report(), "p")
            wait_for(lambda: self.ui.focused() == "File name:", "the focus on the name")
            self.assertEqual(self.ui.field("File name:"), "MAPLE STREET 9.pdf")
            self.ui.key("Return")
            wait_for(lambda: self.ui.is_there("alert"), "the question")
            self.assertIn("MAPLE STREET 9.pdf already exists", self.ui.message())
            self.ui.click_on(self.ui.button_of_box(answer))
            wait_for(lambda: not self.ui.is_there("alert"), "the question to go")
            if answer == "No":
                self.ui.answer("Cancel")
                self.assertEqual(self.content_of(path), b"another")
        wait_for(lambda: self.content_of(path) != b"another", "the new file")
        self.assertEqual(Pdf.of_file(path).page_size(), A4)

    @staticmethod
    def content_of(path):
        with open(path, "rb") as file:
            return file.read()

    def test_a_project_with_a_point_in_its_name_becomes_a_pdf_too(self):
        self.house.bring_in("ST. MARY 4", os.path.join(SAMPLES, "maple-street-9.csv"))
        self.open_project("ST. MARY 4")
        self.open_report()
        self.ui.choose_in_menu_of(self.report(), "p")
        wait_for(lambda: self.ui.focused() == "File name:", "the focus on the name")
        self.ui.key("Return")
        self.assertEqual(Pdf.of_file(self.saved("ST. MARY 4.pdf")).page_size(), A4)

    def test_the_menus_open_by_key_too(self):
        self.open_project("MAPLE STREET 9")
        ui = self.ui
        self.open_report()
        ui.take_focus()
        self.save_by_keys("ENTERED DATA REPORT", "listing")
        ui.press("CLOSE")
        ui.press("BACK")
        self.estimate()
        ui.take_focus()
        self.save_by_keys("Layout drawing", "house")

    def save_by_keys(self, name, file):
        self.ui.tab_to(name)
        self.ui.key("Menu")
        self.ui.choose_in_open_menu("p")
        self.ui.save_as(file)
        self.saved(file + ".pdf")

    def test_a_box_that_is_cancelled_saves_nothing(self):
        self.open_project("MAPLE STREET 9")
        self.open_report()
        before = sorted(os.listdir(self.folder))
        self.ui.choose_in_menu_of(self.report(), "p")
        self.ui.answer("Cancel")
        self.assertTrue(self.ui.is_there("push button", "PRINT"))
        self.assertEqual(sorted(os.listdir(self.folder)), before)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1] + sys.argv[1:], verbosity=2)
