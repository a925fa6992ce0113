"""What is installed beside the programs: that it is all there, and that others can read it."""

import configparser
import gzip
import os
import re
import shutil
import struct
import unittest
import xml.etree.ElementTree

from installed import BUILD, SOURCE, Installed, run, source

PROGRAMS = ["tarn", "tarn-data", "tarn-estimate", "tarn-order"]


class Tree(Installed):
    def test_every_program_has_its_man_page_and_completions(self):
        for name in PROGRAMS:
            for path in (
                f"bin/{name}",
                f"share/man/man1/{name}.1.gz",
                f"share/bash-completion/completions/{name}",
                f"share/zsh/vendor-completions/_{name}",
                f"share/fish/vendor_completions.d/{name}.fish",
            ):
                self.assertIn(path, self.files())
        self.assertIn("share/man/man5/tarn-formats.5.gz", self.files())

    def test_files_are_for_everyone_to_read_and_for_nobody_to_write(self):
        for name in self.files():
            mode = os.stat(self.path(name)).st_mode & 0o777
            self.assertEqual(mode, 0o755 if name.startswith("bin/") else 0o644, name)

    def test_the_programs_run_from_there_and_tell_the_version_that_is_built(self):
        version = re.search(r"VERSION (\S+)", source("CMakeLists.txt").split("project(")[1]).group(1)
        for name in PROGRAMS:
            told = run(self.path("bin", name), "--version")
            self.assertRegex(told, rf"^{name} {re.escape(version)}(\+git\.[0-9a-f]{{12}})?\n$")

    def test_the_version_tells_the_commit_that_is_built(self):
        if not os.path.exists(os.path.join(SOURCE, ".git")):
            self.skipTest("no checkout")
        if shutil.which("git") is None:
            self.skipTest("no git")
        told = run(self.path("bin", "tarn-data"), "--version").strip().split("+git.")[1]
        known = run("git", "-C", SOURCE, "cat-file", "-t", told)
        self.assertEqual(known, "commit\n")

    def test_the_menu_entry_starts_the_program_that_is_installed(self):
        entry = configparser.ConfigParser(interpolation=None)
        entry.optionxform = str
        entry.read(self.path("share/applications/tarn.desktop"))
        entry = entry["Desktop Entry"]
        self.assertTrue(os.access(self.path("bin", entry["Exec"].split()[0]), os.X_OK))
        self.assertIn(f"share/icons/hicolor/scalable/apps/{entry['Icon']}.svg", self.files())
        self.assertIn("text/csv", entry["MimeType"])

    def test_the_menu_entry_is_valid(self):
        if shutil.which("desktop-file-validate") is None:
            self.skipTest("desktop-file-validate is not installed")
        told = run("desktop-file-validate", self.path("share/applications/tarn.desktop"))
        self.assertEqual(told, "")

    def metainfo(self):
        folder = self.path("share/metainfo")
        (name,) = os.listdir(folder)
        return os.path.join(folder, name)

    def test_the_description_for_software_lists_is_valid(self):
        if shutil.which("appstreamcli") is None:
            self.skipTest("appstreamcli is not installed")
        told = run("appstreamcli", "validate", "--no-net", self.metainfo())
        self.assertNotRegex(told, r"(?m)^[EWI]:")

    def test_the_description_tells_the_version_and_day_of_the_changes(self):
        version, day = re.search(r"(?m)^## (\S+) - (\S+)$", source("CHANGELOG.md")).groups()
        release = xml.etree.ElementTree.parse(self.metainfo()).find("releases/release")
        self.assertEqual((release.get("version"), release.get("date")), (version, day))

    def test_the_icons_have_the_sizes_of_their_folders(self):
        pictures = [name for name in self.files() if name.endswith("/apps/tarn.png")]
        if shutil.which("rsvg-convert") is None:
            self.skipTest("rsvg-convert is not installed")
        self.assertEqual(len(pictures), 8)
        for name in pictures:
            with open(self.path(name), "rb") as file:
                size = struct.unpack(">II", file.read(24)[16:])
            self.assertEqual("{}x{}".format(*size), name.split("/")[3], name)

    def test_the_guide_has_its_pictures_and_the_places_that_it_leads_to(self):
        page = self.path("share/doc/tarn/guide/guide.html")
        if not os.path.exists(page):
            self.skipTest("built without python3-markdown")
        with open(page, encoding="utf-8") as file:
            text = file.read()
        pictures = re.findall(r'src="([^"]*)"', text)
        self.assertEqual(len(pictures), source("docs", "guide.md").count("]("
                         "images/"))
        for picture in pictures:
            self.assertTrue(os.path.exists(os.path.join(os.path.dirname(page), picture)), picture)
        links = re.findall(r'href="([^"]*)"', text)
        self.assertGreater(len(links), 3)
        for link in links:
            self.assertRegex(link, r"^(#|https:)")
            if link.startswith("#"):
                self.assertIn(f'id="{link[1:]}"', text)
        self.assertIn("<table>", text)

    def test_the_samples_can_be_read(self):
        folder = self.path("share/doc/tarn/examples")
        self.assertEqual(len(os.listdir(folder)), 2)
        for name in os.listdir(folder):
            units = ["--metric"] if "metric" in name else []
            run(self.path("bin/tarn-estimate"), "--rooms", os.path.join(folder, name),
                "--carpet", "1", "--roll-width", "12ft", *units)

    def test_every_library_that_the_programs_need_is_among_the_licences(self):
        listed = source("docs", "licences.md")
        needed = set()
        for name in PROGRAMS:
            told = run("objdump", "-p", self.path("bin", name))
            needed |= set(re.findall(r"NEEDED\s+(\S+?)(?:-linux-x86-64)?\.so", told))
        self.assertIn("libQt6Core", needed)
        for library in needed:
            self.assertIn("ld-linux" if library.startswith("ld") else library, listed)

    def test_the_man_pages_are_zipped_without_the_time(self):
        for name in self.files():
            if name.endswith(".gz"):
                with open(self.path(name), "rb") as file:
                    self.assertEqual(file.read(8)[3:], b"\0\0\0\0\0", name)
                with gzip.open(self.path(name)) as file:
                    self.assertGreater(len(file.read()), 100, name)


if __name__ == "__main__":
    unittest.main(verbosity=2)
