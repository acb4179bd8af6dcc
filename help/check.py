#!/usr/bin/env python3
"""Checks the pages of the help: help/check.py [--pictures DIR].

Every screen has one page in each language, every page stands in the contents, links and pictures
lead somewhere, and every message box is told. DIR is what tools/gallery made, itself or its
directory "light"; without it a picture has to be named in the gallery's source. Prints what it finds, one a
line; the exit code is 1 when it found something.
"""

import argparse
import re
import sys
from collections import Counter
from pathlib import Path

HELP = Path(__file__).resolve().parent
ROOT = HELP.parent
LANGUAGES = ("de", "en")
GALLERY = (ROOT / "tools/gallery.cpp").read_text("utf-8")

# Of a box, so many characters from its beginning have to stand in a page, a placeholder being any
# few. What the first one cuts off sooner than SHORTEST says too little to be looked for.
QUOTED = 60
SHORTEST = 12
PLACEHOLDER = ".{0,40}?"

STRING = r'"((?:[^"\\]|\\.)*)"'
LINK = re.compile(r"(!?)\[[^\]]*\]\(([^)]*)\)")

found = []


def finding(where, text):
    found.append(f"{where}: {text}")


def one_line(text):
    """Blanks, line ends and marks of Markdown make no difference."""
    return " ".join(text.replace("**", "").replace("\\", "").split())


def screens():
    """The names of the screens that the program has."""
    return re.findall(r"bindScreen<(\w+)>", (ROOT / "src/app/screens.cpp").read_text("utf-8"))


def boxes():
    """Key and text by language of every message box."""
    source = (ROOT / "tests/support/boxtexts.h").read_text("utf-8")
    for row in re.findall(r'^ {4}\{".*\},?$', source, re.M):
        key, _, _, *texts = [
            re.sub(r"\\(.)", lambda m: {"r": "\r", "n": "\n"}.get(m[1], m[1]), one)
            for one in re.findall(STRING, row)
        ]
        yield key, dict(zip(LANGUAGES, texts, strict=True))


class Page:
    def __init__(self, path):
        self.where = str(path.relative_to(HELP))
        self.language = path.parent.name
        self.text = path.read_text("utf-8")
        first = self.text.split("\n", 1)[0]
        head = re.fullmatch(r"<!--(.*)-->", first)
        self.screens = head[1].split() if head else []
        if not head:
            finding(self.where, "the first line does not name its screens: <!-- frmA frmB -->")
        self.links = [m[2] for m in LINK.finditer(self.text) if not m[1]]
        self.pictures = [m[2] for m in LINK.finditer(self.text) if m[1]]
        self.plain = one_line(self.text)

    def check_form(self):
        body = self.text.split("\n", 1)[-1]
        if len(re.findall(r"^# .", body, re.M)) != 1:
            finding(self.where, "needs one title: # ...")
        if re.search(r"<(?!!--)/?[a-z][^>]*>", body, re.I):
            finding(self.where, "raw HTML")

    def check_links(self, names):
        for target in self.links:
            if target.startswith("https://"):
                continue
            if not target.endswith(".md") or target[:-3] not in names:
                finding(self.where, f"a link leads nowhere: {target}")

    def check_pictures(self, pictures):
        for name in self.pictures:
            stem, _, suffix = name.rpartition(".")
            there = f"{stem}-{self.language}.{suffix}"
            if suffix == "svg":
                if not (HELP / there).exists():
                    finding(self.where, f"no drawing help/{there}")
            elif suffix != "png":
                finding(self.where, f"neither a picture nor a drawing: {name}")
            elif not pictures and not re.search(f'"{stem}(["%]|-")', GALLERY):
                finding(self.where, f"tools/gallery knows no picture {stem}")
            elif pictures and not any((d / there).exists() for d in (pictures, pictures / "light")):
                finding(self.where, f"tools/gallery makes no picture {there}")


def check_screens(language, pages):
    known = screens()
    explained = Counter(name for page in pages.values() for name in page.screens)
    for name in known:
        if explained[name] != 1:
            finding(language, f"{name} stands on {explained[name] or 'no'} page(s)")
    for name in explained:
        if name not in known:
            finding(language, f"{name} is no screen of the program")


def contents(language, pages):
    """The pages in the order of the contents."""
    if "index" not in pages:
        finding(language, "no index.md")
        return []
    order = [link[:-3] for link in pages["index"].links if link.endswith(".md")]
    for name in pages:
        if name != "index" and order.count(name) != 1:
            finding(language, f"{name}.md stands {order.count(name)} times in index.md")
    return order


def check_boxes(language, pages):
    told = "\n".join(page.plain for page in pages.values())
    for key, texts in boxes():
        text = one_line(texts[language].split("…")[0])
        parts = re.split(r"%\d|%$", text[:QUOTED])
        pattern = PLACEHOLDER.join(re.escape(part.strip()) for part in parts)
        if len(parts[0].strip()) >= SHORTEST and not re.search(pattern, told):
            finding(language, f"no page tells the box {key}: {text}")


def main():
    arguments = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    arguments.add_argument("--pictures", type=Path, metavar="DIR", help="what tools/gallery made")
    pictures = arguments.parse_args().pictures
    if pictures and not pictures.is_dir():
        finding(str(pictures), "no such directory")

    books = {
        language: {p.stem: Page(p) for p in sorted((HELP / language).glob("*.md"))}
        for language in LANGUAGES
    }
    orders = {}
    for language, pages in books.items():
        for page in pages.values():
            page.check_form()
            page.check_links(pages)
            page.check_pictures(pictures)
        check_screens(language, pages)
        check_boxes(language, pages)
        orders[language] = contents(language, pages)
    german, english = (books[language] for language in LANGUAGES)
    for name in sorted(german.keys() ^ english.keys()):
        finding(name + ".md", "stands in one language only")
    for name in sorted(german.keys() & english.keys()):
        if sorted(german[name].screens) != sorted(english[name].screens):
            finding(name + ".md", "explains other screens in the other language")
    if orders["de"] != orders["en"]:
        finding("index.md", "has another order in the other language")

    print("\n".join(found) if found else "The help is whole.")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
