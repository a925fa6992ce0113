"""What is made of the programs' own options: the reference, the man pages, the completions."""

import os
import shutil
import subprocess
import tempfile
import unittest

from installed import BUILD, SOURCE, run, source

TOOLS = os.path.join(BUILD, "src", "tools")
PROGRAMS = ["tarn", "tarn-data", "tarn-estimate", "tarn-order"]


class Reference(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.mkdtemp(prefix="tarn-reference-")
        cls.addClassCleanup(shutil.rmtree, cls.folder)
        run(
            os.path.join(TOOLS, "tarn-reference"),
            "--formats", os.path.join(SOURCE, "src", "tools", "reference", "formats.md"),
            "--page", os.path.join(cls.folder, "reference.md"),
            "--folder", cls.folder,
            "--day", "2026-01-31",
        )

    def path(self, *names):
        return os.path.join(self.folder, *names)

    def pages(self):
        return [self.path("man", name) for name in sorted(os.listdir(self.path("man")))]


class Page(Reference):
    def test_the_reference_is_what_the_programs_say_now(self):
        with open(self.path("reference.md"), encoding="utf-8") as file:
            self.assertEqual(
                source("docs", "reference.md"),
                file.read(),
                "docs/reference.md is not up to date: ./dev reference writes it",
            )

    def test_it_has_every_option_that_the_help_of_each_program_tells(self):
        text = source("docs", "reference.md")
        for program in PROGRAMS:
            told = run(os.path.join(TOOLS, program), "--help", env={"PATH": os.environ["PATH"]})
            options = [word for word in told.replace(",", " ").split() if word.startswith("--")]
            self.assertGreater(len(options), 1)
            section = text.split(f"\n## {program}\n")[1].split("\n## ")[0]
            for option in options:
                self.assertIn(option.rstrip(").;:"), section, program)


class ManPages(Reference):
    def test_there_is_one_for_each_program_and_one_for_their_files(self):
        names = [os.path.basename(page) for page in self.pages()]
        self.assertEqual(
            names, ["tarn-data.1", "tarn-estimate.1", "tarn-formats.5", "tarn-order.1", "tarn.1"]
        )

    def test_mandoc_finds_nothing_to_say(self):
        if shutil.which("mandoc") is None:
            self.skipTest("mandoc is not installed")
        for page in self.pages():
            done = subprocess.run(
                ["mandoc", "-T", "lint", page], capture_output=True, text=True, check=False
            )
            self.assertEqual(done.stdout + done.stderr, "", page)

    def test_groff_formats_them_without_a_warning(self):
        if shutil.which("man") is None or shutil.which("groff") is None:
            self.skipTest("man is not installed")
        for page in self.pages():
            done = subprocess.run(
                ["man", "--warnings", "-E", "UTF-8", "-l", "-Tutf8", "-Z", page],
                capture_output=True,
                env=dict(os.environ, LC_ALL="C.UTF-8", MANWIDTH="80"),
                check=False,
            )
            self.assertEqual((done.returncode, done.stderr), (0, b""), page)

    def test_a_page_shows_options_with_the_signs_that_are_typed(self):
        if shutil.which("mandoc") is None:
            self.skipTest("mandoc is not installed")
        shown = run("mandoc", "-T", "ascii", "-O", "width=200", self.path("man", "tarn-order.1"))
        plain = "".join(shown[i] for i in range(len(shown))
                        if shown[i] != "\b" and not (i + 1 < len(shown) and shown[i + 1] == "\b"))
        self.assertIn("--roll [NAME:]12ft[=PRICE]", plain)
        self.assertIn("tarn-order --rooms house.csv --roll 12ft=18.50", plain)


class Bash(Reference):
    def complete(self, *words):
        """What is offered for the last of the words."""
        script = """
            source "$1"; shift
            COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1))
            function=$(complete -p "$1" | sed 's/.* -F \\([^ ]*\\).*/\\1/')
            "$function" "$1" "${COMP_WORDS[COMP_CWORD]}" "${COMP_WORDS[COMP_CWORD - 1]}"
            printf '%s\\n' "${COMPREPLY[@]}"
        """
        told = run("bash", "-c", script, "bash", self.path("bash", words[0]), *words,
                   cwd=self.path("fish"))
        return told.split()

    def test_options_are_completed(self):
        self.assertEqual(self.complete("tarn-order", "--pattern"), ["--pattern", "--pattern-drift"])
        self.assertIn("--roll-width", self.complete("tarn-estimate", "--carpet", "1", "--"))
        self.assertEqual(self.complete("tarn", "--conf"), ["--config-dir"])

    def test_choices_are_completed_behind_a_blank_and_behind_an_equals_sign(self):
        self.assertEqual(self.complete("tarn-order", "--lay", ""), ["down", "cross", "both"])
        self.assertEqual(self.complete("tarn-order", "--lay", "c"), ["cross"])
        self.assertEqual(self.complete("tarn-order", "--lay", "=", "b"), ["both"])
        self.assertEqual(self.complete("tarn-order", "--lay", "="), ["down", "cross", "both"])

    def test_files_and_folders_are_completed_where_they_belong(self):
        self.assertEqual(self.complete("tarn-order", "--rooms", "tarn-d"), ["tarn-data.fish"])
        self.assertEqual(self.complete("tarn", "tarn-d"), ["tarn-data.fish"])
        self.assertEqual(self.complete("tarn", "--config-dir", "../f"), ["../fish"])
        self.assertEqual(self.complete("tarn", "--config-dir", "tarn-d"), [])
        self.assertEqual(self.complete("tarn-order", "--carpet", ""), [])

    def test_commands_and_their_options_are_completed(self):
        self.assertEqual(self.complete("tarn-data", "back"), ["backup", "backups"])
        self.assertIn("--replace", self.complete("tarn-data", "import", "--"))
        self.assertNotIn("--replace", self.complete("tarn-data", "export", "--"))
        self.assertEqual(self.complete("tarn-data", "import", "--database", "tarn-d"),
                         ["tarn-data.fish"])


class OtherShells(Reference):
    def scripts(self, shell):
        return [self.path(shell, name) for name in sorted(os.listdir(self.path(shell)))]

    def test_zsh_can_read_its_completions(self):
        if shutil.which("zsh") is None:
            self.skipTest("zsh is not installed")
        self.assertEqual(len(self.scripts("zsh")), len(PROGRAMS))
        for script in self.scripts("zsh"):
            run("zsh", "-n", script)

    def test_zsh_completes_by_them(self):
        if shutil.which("zsh") is None:
            self.skipTest("zsh is not installed")
        # A shell within a shell: what Tab shows is what it would show to a user.
        script = """
            zmodload zsh/zpty
            zpty shell zsh -f -i
            zpty -w shell 'PS1=; fpath=("$FOLDER" $fpath); autoload -U compinit; compinit -u -D'
            zpty -w shell 'zstyle ":completion:*" list-prompt ""; LISTMAX=10000; echo re''ady'
            zpty -r shell text '*ready*'
            zpty -w -n shell "$1"$'\\t\\t'
            zpty -r shell text "*$2*"
            print -r -- found
        """
        for typed, shown in (("tarn-order --half", "half-drop"),
                             ("tarn-order --lay c", "cross"),
                             ("tarn-data resto", "restore")):
            told = run("zsh", "-f", "-c", script, "zsh", typed, shown,
                       env=dict(os.environ, FOLDER=self.path("zsh"), HOME=self.folder, TERM="dumb"))
            self.assertIn("found", told, typed)

    def fish(self, line):
        script = "source $argv[1]; complete -C $argv[2]"
        told = run("fish", "--no-config", "-c", script,
                   self.path("fish", line.split()[0] + ".fish"), line,
                   env=dict(os.environ, HOME=self.folder))
        return [each.split("\t")[0] for each in told.splitlines()]

    def test_fish_completes_by_its_scripts(self):
        if shutil.which("fish") is None:
            self.skipTest("fish is not installed")
        for script in self.scripts("fish"):
            run("fish", "-n", script, env=dict(os.environ, HOME=self.folder))
        self.assertEqual(self.fish("tarn-order --pattern"), ["--pattern", "--pattern-drift"])
        self.assertEqual(self.fish("tarn-order --lay c"), ["cross"])
        self.assertEqual(self.fish("tarn-data back"), ["backup", "backups"])
        self.assertIn("--replace", self.fish("tarn-data import --"))
        self.assertNotIn("--replace", self.fish("tarn-data export --"))


if __name__ == "__main__":
    unittest.main(verbosity=2)
