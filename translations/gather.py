#!/usr/bin/env python3
"""Brings the translations up to date with the texts of the programs.

lupdate finds the texts, which are the literals in the calls of Words and CountedWords
(src/base/Words.h). It sorts them by the classes that say them; here all are in one context, so that
a text that is said in several places is translated once. What was translated stays; what nothing
says any more goes; what is new is unfinished.

Tells what is unfinished, and ends with status 1 then, or with --check when a file is not up to date.
"""

import argparse
import pathlib
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree
from xml.sax.saxutils import escape

HOME = pathlib.Path(__file__).resolve().parent
LANGUAGES = ("de", "es")
FORMS = 2  # of a count, in each of these languages
CONTEXT = "tarn"


def text_of(element):
    """An element's text; characters that no XML may hold stand in it as <byte value="xd"/>."""
    if element is None:
        return ""
    text = element.text or ""
    for byte in element:
        text += chr(int(byte.get("value").removeprefix("x"), 16)) + (byte.tail or "")
    return text


def messages_of(path):
    """What stands in a .ts file: {(source, comment): (places, is counted, translations)}."""
    found = {}
    place = None
    for message in ElementTree.parse(path).getroot().iter("message"):
        key = (text_of(message.find("source")), text_of(message.find("comment")))
        # lupdate names a file once for all texts that follow each other there.
        places = []
        for each in message.findall("location"):
            place = each.get("filename") or place
            places.append(place)
        translation = message.find("translation")
        forms = [text_of(each) for each in translation.findall("numerusform")]
        known = found.setdefault(key, ([], message.get("numerus") == "yes", []))
        known[0].extend(each for each in dict.fromkeys(places) if each and each not in known[0])
        known[2][:] = forms or [text_of(translation)]
    return found


def texts_of_the_programs(program):
    sources = sorted(
        str(path) for path in (HOME.parent / "src").rglob("*") if path.suffix in (".h", ".cpp"))
    with tempfile.TemporaryDirectory(dir=HOME) as folder:
        raw = pathlib.Path(folder) / "raw.ts"
        listed = pathlib.Path(folder) / "sources"
        listed.write_text("\n".join(sources), encoding="utf-8")
        subprocess.run(
            [program, "-silent", "-locations", "relative", "-I", str(HOME.parent / "src"),
             "-tr-function-alias", "tr=Words,tr+=CountedWords", f"@{listed}", "-ts", str(raw)],
            check=True, stderr=subprocess.DEVNULL)
        found = messages_of(raw)
        # Places are told from the folder of the .ts file.
        return {key: ([place.removeprefix("../") for place in places], counted)
                for key, (places, counted, _) in found.items()}


def written(language, texts, former):
    lines = ['<?xml version="1.0" encoding="utf-8"?>', "<!DOCTYPE TS>",
             f'<TS version="2.1" language="{language}" sourcelanguage="en">', "<context>",
             f"    <name>{CONTEXT}</name>"]
    for (source, comment), (places, counted) in sorted(
            texts.items(), key=lambda text: (text[1][0], text[0])):
        forms = former.get((source, comment), (None, None, []))[2]
        forms = (forms + [""] * FORMS)[:FORMS if counted else 1]
        state = "" if all(forms) else ' type="unfinished"'
        lines.append('    <message numerus="yes">' if counted else "    <message>")
        lines += [f'        <location filename="{escape(place)}"/>' for place in places]
        lines.append(f"        <source>{quoted(source)}</source>")
        if comment:
            lines.append(f"        <comment>{quoted(comment)}</comment>")
        if counted:
            lines.append(f"        <translation{state}>")
            lines += [f"            <numerusform>{quoted(form)}</numerusform>" for form in forms]
            lines.append("        </translation>")
        else:
            lines.append(f"        <translation{state}>{quoted(forms[0])}</translation>")
        lines.append("    </message>")
    return "\n".join(lines + ["</context>", "</TS>", ""])


def quoted(text):
    text = escape(text, {'"': "&quot;", "'": "&apos;"})
    return text.replace("\r", '<byte value="xd"/>')


def lupdate():
    """The program of Qt 6, which Debian does not put where programs are looked for."""
    own = pathlib.Path("/usr/lib/qt6/bin/lupdate")
    return str(own) if own.exists() else shutil.which("lupdate") or "lupdate"


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--lupdate", default=lupdate(), help="the program")
    parser.add_argument("--check", action="store_true", help="change nothing, tell what would be")
    arguments = parser.parse_args()
    texts = texts_of_the_programs(arguments.lupdate)
    failed = False
    for language in LANGUAGES:
        path = HOME / f"tarn_{language}.ts"
        former = messages_of(path) if path.exists() else {}
        content = written(language, texts, former)
        missing = [key for key in texts if key not in former or not all(former[key][2])]
        gone = [key for key in former if key not in texts]
        print(f"{path.name}: {len(texts)} texts, {len(missing)} unfinished, {len(gone)} gone")
        for source, _ in missing[:20]:
            print(f"  unfinished: {source!r}")
        failed = failed or bool(missing)
        if arguments.check:
            if not path.exists() or path.read_text(encoding="utf-8") != content:
                print(f"  {path.name} does not say where each text stands now: ./dev words")
                failed = True
        else:
            path.write_text(content, encoding="utf-8")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
