"""Makes the manual of one language as PDF from the pages of the help, in the order of index.md:

    manual.py LANGUAGE VERSION PICTURES FILE

PICTURES is the folder that has NAME-LANGUAGE.png, as tools/gallery leaves them; drawings,
NAME-LANGUAGE.svg, lie beside this file. Needs python3-markdown and weasyprint.
"""

import html
import re
import sys
from pathlib import Path
from urllib.parse import unquote

import markdown
import weasyprint

TEXTS = {
    "de": {"title": "Handbuch", "contents": "Inhalt", "version": "Version"},
    "en": {"title": "Manual", "contents": "Contents", "version": "Version"},
}

STYLE = """
@page { size: A4; margin: 24mm 20mm 22mm 22mm;
  @top-left { content: string(chapter); font-size: 8.5pt; color: #4d5358; }
  @top-right { content: "torvena"; font-size: 8.5pt; color: #4d5358; }
  @bottom-right { content: counter(page); font-size: 8.5pt; color: #4d5358; } }
@page cover { @top-left { content: none } @top-right { content: none } @bottom-right { content: none } }
html { font: 9.5pt/1.45 "DejaVu Sans", sans-serif; color: #1b1e20; }
.cover { page: cover; text-align: center; padding-top: 60mm; }
.cover img { width: 45mm; }
.cover h1 { font-size: 34pt; margin: 12mm 0 2mm; bookmark-level: none; string-set: none; }
.cover p { font-size: 13pt; margin: 1mm; color: #4d5358; }
.contents { break-before: page; }
.contents a { display: block; color: inherit; text-decoration: none; margin: 1.2mm 0 1.2mm 5mm; }
.contents a::after { content: leader(".") target-counter(attr(href), page); }
.contents h3 { margin: 5mm 0 1mm; bookmark-level: none; }
section { break-before: page; }
h1 { font-size: 18pt; color: #0b57a4; margin: 0 0 4mm; string-set: chapter content(); }
h2 { font-size: 12.5pt; color: #0b57a4; margin: 7mm 0 2mm; }
h3 { font-size: 10.5pt; margin: 5mm 0 1.5mm; }
h1, h2, h3 { break-after: avoid; hyphens: none; }
p, li { orphans: 2; widows: 2; }
a { color: #0b57a4; text-decoration: none; }
section a::after { content: " (" target-counter(attr(href), page) ")"; font-size: 8pt; color: #4d5358; }
section a[href^="http"]::after { content: none; }
figure { margin: 4mm 0; text-align: center; break-inside: avoid; }
figure img { max-width: 100%; max-height: 120mm; border: 0.3pt solid #c9cdd1; }
figcaption { font-size: 8.5pt; color: #4d5358; margin-top: 1mm; }
table { border-collapse: collapse; width: 100%; font-size: 8.5pt; margin: 2mm 0 4mm; }
th, td { border: 0.4pt solid #c9cdd1; padding: 1mm 1.6mm; text-align: left; vertical-align: top; }
th { background: #eff0f1; }
tr { break-inside: avoid; }
thead { display: table-header-group; }
code, pre { font-family: "DejaVu Sans Mono", monospace; font-size: 8.5pt; }
pre { background: #eff0f1; padding: 2mm; white-space: pre-wrap; }
"""


def wrong(text):
    sys.exit(f"manual.py: {text}")


def converted(text):
    return markdown.markdown(text, extensions=["tables", "fenced_code", "sane_lists"])


class Manual:
    def __init__(self, language, pictures):
        self.language = language
        self.pictures = Path(pictures)
        self.home = Path(__file__).resolve().parent
        self.pages = self.home / language
        index = (self.pages / "index.md").read_text(encoding="utf-8")
        self.chapters = []  # (title, [(name, title)])
        for line in index.splitlines():
            if heading := re.match(r"##\s+(.*)", line):
                self.chapters.append((heading[1], []))
            elif link := re.match(r"\s*[-*]\s+\[([^]]+)\]\(([^)]+)\.md\)", line):
                if not self.chapters:
                    self.chapters.append(("", []))
                self.chapters[-1][1].append((link[2], link[1]))
        self.names = [name for _, entries in self.chapters for name, _ in entries]
        lost = {path.stem for path in self.pages.glob("*.md")} - set(self.names) - {"index"}
        if lost:
            wrong(f"{language}/index.md does not list {', '.join(sorted(lost))}")

    def picture(self, name):
        stem, _, kind = unquote(name).rpartition(".")
        folder = self.home if kind == "svg" else self.pictures
        path = folder / f"{stem}-{self.language}.{kind}"
        if not path.exists():
            wrong(f"the picture {path} is missing")
        return path.resolve().as_uri()

    def page(self, name):
        path = self.pages / f"{name}.md"
        if not path.exists():
            wrong(f"{self.language}/index.md lists {name}.md, which is missing")
        text = re.sub(r"\A<!--.*?-->\s*", "", path.read_text(encoding="utf-8"), flags=re.S)

        def link(match):
            target = unquote(match[1])
            if target.startswith("https:"):
                return match[0]
            stem = target.removesuffix(".md")
            if stem == "index":
                return 'href="#contents"'
            if stem not in self.names:
                wrong(f"{path.name} ({self.language}) leads to {target}, which is no page")
            return f'href="#{stem}"'

        def figure(match):
            caption, source = match[1], match[2]
            return (f'<figure><img src="{self.picture(html.unescape(source))}" alt="{caption}"/>'
                    f"<figcaption>{caption}</figcaption></figure>")

        body = converted(text)
        body = re.sub(r'href="([^"]+)"', link, body)
        body = re.sub(r'<p><img alt="([^"]*)" src="([^"]+)" ?/?></p>', figure, body)
        body = re.sub(r'(<img alt="[^"]*" src=")(?!file:)([^"]+)"',
                      lambda inline: f'{inline[1]}{self.picture(html.unescape(inline[2]))}"', body)
        return f'<section id="{name}">{body}</section>'

    def whole(self, version):
        texts = TEXTS[self.language]
        icon = (self.home.parent / "packaging/icons/torvena.svg").as_uri()
        parts = [f'<!DOCTYPE html><html lang="{self.language}"><head><meta charset="utf-8">'
                 f"<title>torvena – {texts['title']}</title><style>{STYLE}</style></head><body>"
                 f'<div class="cover"><img src="{icon}" alt=""/><h1>torvena</h1>'
                 f"<p>{texts['title']}</p><p>{texts['version']} {version}</p></div>"
                 f'<div class="contents" id="contents"><h1>{texts["contents"]}</h1>']
        for chapter, entries in self.chapters:
            parts.append(f"<h3>{html.escape(chapter)}</h3>")
            parts += [f'<a href="#{name}">{html.escape(title)}</a>' for name, title in entries]
        parts.append("</div>")
        parts += [self.page(name) for name in self.names]
        parts.append("</body></html>")
        return "".join(parts)


def main():
    if len(sys.argv) != 5 or sys.argv[1] not in TEXTS:
        wrong("usage: manual.py de|en VERSION PICTURES FILE")
    language, version, pictures, file = sys.argv[1:]
    text = Manual(language, pictures).whole(version)
    weasyprint.HTML(string=text).write_pdf(file, optimize_size=("fonts", "images"))


main()
