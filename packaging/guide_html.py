"""Writes the guide as a page of HTML with its pictures: guide_html.py GUIDE.md FOLDER."""

import os
import re
import shutil
import sys

import markdown

PAGE = """<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>{title}</title>
<style>
body {{ max-width: 44em; margin: 2em auto; padding: 0 1em; line-height: 1.5;
        font-family: "Liberation Sans", Arial, sans-serif; color: #222; background: #fff; }}
h1, h2, h3 {{ line-height: 1.2; color: #35615c; }}
img {{ max-width: 100%; height: auto; border: 1px solid #ccc; }}
table {{ border-collapse: collapse; }}
td, th {{ border: 1px solid #ccc; padding: 0.2em 0.6em; text-align: left; vertical-align: top; }}
pre {{ overflow-x: auto; background: #f5f5f2; padding: 0.6em; }}
a {{ color: #2a5db0; }}
</style>
</head>
<body>
{body}
</body>
</html>
"""


def without_other_pages(text):
    """A link to another page of the source's documentation, which is not here, is its text alone."""
    return re.sub(r"\[([^]]*)\]\((?!images/|#|https?:)[^)]*\)", r"\1", text)


def make_page(text):
    """The page, and the pictures that it shows."""
    body = markdown.markdown(
        without_other_pages(text), extensions=["tables", "toc", "fenced_code", "sane_lists"]
    )
    title = re.match(r"# (.*)", text).group(1)
    return PAGE.format(title=title, body=body), sorted(set(re.findall(r'src="(images/[^"]*)"', body)))


def main(guide, folder):
    with open(guide, encoding="utf-8") as file:
        page, pictures = make_page(file.read())
    shutil.rmtree(folder, ignore_errors=True)
    os.makedirs(os.path.join(folder, "images"))
    for picture in pictures:
        shutil.copyfile(
            os.path.join(os.path.dirname(guide), picture), os.path.join(folder, picture)
        )
    with open(os.path.join(folder, "guide.html"), "w", encoding="utf-8") as file:
        file.write(page)


if __name__ == "__main__":
    main(*sys.argv[1:])
