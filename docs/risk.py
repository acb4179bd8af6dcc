#!/usr/bin/env python3
"""The decision rule in pictures and the risk of a wrong verdict (docs/risk.md).

    docs/risk.py            writes pictures and tables
    docs/risk.py --check    fails when they are not what it would write, or a point worked by hand is not met

Writes help/entscheidungsregel-faelle-LANGUAGE.svg and help/risiko-kurven-LANGUAGE.svg (SVG Tiny:
attributes only), and the table below the heading named in HEADINGS in help/LANGUAGE/entscheidungsregel.md.
Limits and uncertainties are those that a new database gets."""
import math, pathlib, sqlite3, sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
K = 2  # coverage factor of the expanded uncertainty
HEADINGS = {"de": "## Risiko mit den ausgelieferten Werten", "en": "## Risk with the delivered values"}


# The risk --------------------------------------------------------------------------------------

def phi(z):
    """Standard normal distribution function, without loss in its tails."""
    return math.erfc(-z / math.sqrt(2)) / 2


def conforming(d, t, u):
    """Probability that the true deviation lies within -t to t, where d was measured with u."""
    return phi((t - d) / u) - phi((-t - d) / u)


def without_u(d, t):
    return "ja" if abs(d) <= t else "nein"


def with_u(d, expanded, t):
    d = abs(d)
    if round(d + expanded - t, 9) <= 0:  # 2.7 and 0.3 are 3
        return "ja"
    return "nein" if round(d - expanded - t, 9) > 0 else "?"


def risk(verdict, d, t, u):
    """Probability that the verdict is wrong; None for the one that leaves it open."""
    p = conforming(d, t, u)
    return {"ja": 1 - p, "nein": p, "?": None}[verdict]


# Worked by hand with a table of the normal distribution, Φ(0) = 0.5, Φ(1) = 0.841345, Φ(2) = 0.977250:
BY_HAND = [
    # 50 W, limit 3 W, U 0.3 W, so u 0.15 W. Measured 2.70 W from it: Φ(0.30 / 0.15) - Φ(-5.70 / 0.15)
    # = Φ(2) - Φ(-38) = 0.977250 - 0, so a "ja" is wrong with 0.022750.
    ("ja", 2.70, 3, 0.15, 0.022750),
    # 2.85 W: Φ(1) - Φ(-39) = 0.841345, so 0.158655.
    ("ja", 2.85, 3, 0.15, 0.158655),
    # Both limits count where u is as wide as they are: d = t = u = 1, Φ(0) - Φ(-2)
    # = 0.5 - (1 - 0.977250) = 0.477250, so a "ja" is wrong with 0.522750.
    ("ja", 1, 1, 1, 0.522750),
]


# What is delivered -----------------------------------------------------------------------------

def delivered():
    base = sqlite3.connect(":memory:")
    for name in ("schema.sql", "delivered.sql"):
        base.executescript((ROOT / "src/store/sql" / name).read_text(encoding="utf-8"))
    return base


def points():
    """Class, quantity, value, limit, expanded uncertainty."""
    base = delivered()
    power = base.execute("SELECT bis, MU FROM MU_Leistung ORDER BY ID").fetchall()
    speed = base.execute("SELECT bis, MU FROM MU_Drehzahl ORDER BY ID").fetchall()
    for name, percent, watt, rpm in base.execute(
            "SELECT Bezeichnung, Prozent, Watt, GrenzAbw FROM Toleranzen ORDER BY ID"):
        for value in (25, 100, 200):
            row = next(i for i, (to, _) in enumerate(power) if value <= to)
            expanded = power[row][1] if row == 0 else value * power[row][1] / 100
            yield name, "W", value, max(value * percent / 100, watt), expanded
        for value in (60, 120):
            expanded = value * next(mu for to, mu in speed if value <= to) / 100
            yield name, "1/min", value, round(rpm), expanded


# The table -------------------------------------------------------------------------------------

SHARES = (0.90, 0.95, 0.99)  # of the limit, at which a "ja" without regard to U is looked at
HEADS = {
    "de": ("Messpunkt", "T", "U", "T/U", "„?“ bei D von … bis", "falsches „ja“ bei {} T"),
    "en": ("Point", "T", "U", "T/U", "“?” at D from … to", "wrong “yes” at {} T"),
}
CLASSES = {"medizinische Geräte": "medical devices",
           "stationäre Trainingsgeräte": "stationary training devices"}
UNITS = {"de": {"W": "W", "1/min": "1/min"}, "en": {"W": "W", "1/min": "rpm"}}


def number(value, decimals, language, trim=False):
    text = f"{value:.{decimals}f}"
    if trim and "." in text:
        text = text.rstrip("0").rstrip(".")
    return text.replace(".", ",") if language == "de" else text


def percent(value, language):
    if value < 0.001:
        return "< " + number(0.1, 1, language) + " %"
    return number(100 * value, 1, language) + " %"


def table(language):
    *heads, wrong = HEADS[language]
    heads += [wrong.format(number(share, 2, language)) for share in SHARES]
    lines = [heads, ["---"] + ["---:"] * (len(heads) - 1)]
    for name, unit, value, t, expanded in points():
        u = expanded / K
        cells = [f"{CLASSES[name] if language == 'en' else name}, {value} {UNITS[language][unit]}",
                 number(t, 2, language, trim=True), number(expanded, 2, language),
                 number(t / expanded, 1, language),
                 f"{number(t - expanded, 2, language)} … {number(t + expanded, 2, language)}"]
        for share in SHARES:
            d = share * t
            left_open = " (?)" if with_u(d, expanded, t) == "?" else ""
            cells.append(percent(risk(without_u(d, t), d, t, u), language) + left_open)
        lines.append(cells)
    return ["| " + " | ".join(cells) + " |" for cells in lines]


def with_table(page, language):
    """The page with the first table below its heading written anew."""
    lines = page.split("\n")
    start = lines.index(HEADINGS[language])
    first = next(i for i in range(start, len(lines)) if lines[i].startswith("|"))
    last = first
    while last < len(lines) and lines[last].startswith("|"):
        last += 1
    return "\n".join(lines[:first] + table(language) + lines[last:])


# The pictures ----------------------------------------------------------------------------------

INK, PALE, EDGE, ACCENT = "#1b1e20", "#4d5358", "#85898d", "#0b57a4"
GOOD, GOOD_GROUND = "#1a7436", "#e2f2e6"
BAD, BAD_GROUND = "#b3261e", "#f0c0bb"
OPEN, OPEN_GROUND = "#855600", "#fff0cc"


class Picture:
    def __init__(self, width, height, title):
        self.size, self.parts = (width, height), []
        self.title = title
        self.rect(0, 0, width, height, "#ffffff")

    def add(self, name, content=None, **attributes):
        text = "".join(f' {key.replace("_", "-")}="{value:.1f}"' if isinstance(value, float) else
                       f' {key.replace("_", "-")}="{value}"' for key, value in attributes.items())
        self.parts.append(f"<{name}{text}/>" if content is None else f"<{name}{text}>{content}</{name}>")

    def rect(self, x, y, width, height, fill, **more):
        self.add("rect", x=float(x), y=float(y), width=float(width), height=float(height), fill=fill, **more)

    def line(self, x1, y1, x2, y2, colour=INK, width=1, **more):
        self.add("line", x1=float(x1), y1=float(y1), x2=float(x2), y2=float(y2), stroke=colour,
                 stroke_width=width, **more)

    def polygon(self, corners, fill):
        self.add("polygon", points=" ".join(f"{x:.1f},{y:.1f}" for x, y in corners), fill=fill)

    def path(self, corners, colour, width, **more):
        self.add("polyline", points=" ".join(f"{x:.1f},{y:.1f}" for x, y in corners), fill="none",
                 stroke=colour, stroke_width=width, **more)

    def text(self, x, y, content, size=14, anchor="middle", colour=INK, bold=False):
        weight = {"font_weight": "bold"} if bold else {}
        self.add("text", content, x=float(x), y=float(y), font_family="DejaVu Sans, sans-serif",
                 font_size=size, text_anchor=anchor, fill=colour, **weight)

    def hatched(self, x, y, width, height):
        """Open in colour and in grey: pale ground, slanting lines."""
        self.rect(x, y, width, height, OPEN_GROUND)
        step = 9
        for i in range(1, int((width + height) / step) + 1):
            c = i * step  # of the line a + b = c within the rectangle
            a1, a2 = max(0, c - height), min(c, width)
            if a2 > a1:
                self.line(x + a1, y + (c - a1), x + a2, y + (c - a2), "#d9b866", 1)

    def arrow(self, x1, x2, y, colour=INK):
        """A dimension with a head at both ends."""
        self.line(x1, y, x2, y, colour, 1.5)
        for x, inwards in ((x1, 1), (x2, -1)):
            self.polygon([(x, y), (x + 8 * inwards, y - 4), (x + 8 * inwards, y + 4)], colour)

    def sign(self, x, y, verdict):
        if verdict == "ja":
            self.add("circle", cx=float(x), cy=float(y), r=9, fill=GOOD)
            self.path([(x - 4.5, y), (x - 1.2, y + 3.8), (x + 4.8, y - 3.6)], "#ffffff", 2.4)
        elif verdict == "nein":
            self.rect(x - 8.5, y - 8.5, 17, 17, BAD)
            self.line(x - 4, y - 4, x + 4, y + 4, "#ffffff", 2.4)
            self.line(x - 4, y + 4, x + 4, y - 4, "#ffffff", 2.4)
        else:
            self.polygon([(x, y - 9.5), (x + 10.5, y + 8.5), (x - 10.5, y + 8.5)], OPEN)
            self.text(x, y + 6.5, "?", 13, colour="#ffffff", bold=True)

    def __str__(self):
        width, height = self.size
        return (f'<svg xmlns="http://www.w3.org/2000/svg" version="1.2" baseProfile="tiny" width="{width}" '
                f'height="{height}" viewBox="0 0 {width} {height}">\n<title>{self.title}</title>\n'
                + "\n".join(self.parts) + "\n</svg>\n")


CASES = {
    "de": {"title": "Die vier Fälle der Entscheidungsregel", "limits": "zulässig: −T bis +T",
           "without": ("ohne", "Berück. MU"), "with": ("mit", "Berück. MU"), "case": "Fall",
           "d": "Abweichung D", "ja": "ja", "nein": "nein", "?": "?"},
    "en": {"title": "The four cases of the decision rule", "limits": "permissible: −T to +T",
           "without": ("without", "regard to MU"), "with": ("with", "regard to MU"), "case": "Case",
           "d": "deviation D", "ja": "yes", "nein": "no", "?": "?"},
}


def cases(language):
    """Amounts of the deviation as shares of the limit, the uncertainty drawn wide."""
    words, expanded = CASES[language], 0.25
    p = Picture(760, 344, words["title"])
    left, right, top, bottom = 64, 544, 62, 306
    low, high = -1.4, 1.8
    x = lambda share: left + (share - low) / (high - low) * (right - left)

    def zone(a, b, fill):
        p.rect(x(a), top, x(b) - x(a), bottom - top, fill)
    zone(low, high, BAD_GROUND)
    zone(-1, 1, GOOD_GROUND)
    for side in (-1, 1):
        p.hatched(x(side - expanded), top, x(side + expanded) - x(side - expanded), bottom - top)
    p.line(x(0), top, x(0), bottom, EDGE, 1)
    for side in (-1, 1):
        p.line(x(side), top - 10, x(side), bottom + 6, INK, 3)
    p.arrow(x(-1), x(1), top - 22)
    p.text(x(0), top - 30, words["limits"], 14)
    for share, text in ((-1, "−T"), (0, "0"), (1, "+T")):
        p.text(x(share), bottom + 24, text, 15, bold=share != 0)
    columns = (612, 706)
    for column, key in zip(columns, ("without", "with")):
        for row, word in enumerate(words[key]):
            p.text(column, top - 30 + 18 * row, word, 13, colour=PALE)
    p.text(left / 2, top - 12, words["case"], 13, colour=PALE)

    height = (bottom - top) / 4
    for case, d in enumerate((0.45, 0.86, 1.14, 1.46), 1):
        y = top + (case - 0.5) * height + 4
        if case > 1:
            p.line(8, top + (case - 1) * height, 752, top + (case - 1) * height, "#c9cdd1", 1)
        p.text(left / 2, y + 6, str(case), 18, bold=True)
        p.line(x(d - expanded), y, x(d + expanded), y, INK, 5)
        for end in (d - expanded, d + expanded):
            p.line(x(end), y - 8, x(end), y + 8, INK, 2)
        p.add("circle", cx=float(x(d)), cy=float(y), r=6, fill=INK)
        if case == 1:
            p.arrow(x(0), x(d), y - 17, ACCENT)
            p.text(x(0) - 6, y - 13, words["d"], 13, "end", ACCENT)
            for half in (-0.5, 0.5):
                p.text(x(d + half * expanded), y + 20, "U", 13, bold=True)
        for column, verdict in zip(columns, (without_u(d, 1), with_u(d, expanded, 1))):
            p.sign(column - 20, y, verdict)
            p.text(column, y + 5, words[verdict], 15, "start", bold=True)
    return str(p)


CURVES = {
    "de": {"title": "Wahrscheinlichkeit eines falschen Urteils über der Abweichung", "ratio": "T/U = 10",
           "y": "Wahrscheinlichkeit eines falschen Urteils", "x": "Abweichung D, % der zulässigen Abweichung T",
           "without": "ohne Berück. MU", "with": "mit Berück. MU", "open": "„?“",
           "wrong": ("falsches „ja“", "falsches „nein“"), "most": "höchstens "},
    "en": {"title": "Probability of a wrong verdict against the deviation", "ratio": "T/U = 10",
           "y": "probability of a wrong verdict", "x": "deviation D, % of the permissible deviation T",
           "without": "without regard to MU", "with": "with regard to MU", "open": "“?”",
           "wrong": ("wrong “yes”", "wrong “no”"), "most": "at most "},
}


def curves(language):
    words, expanded = CURVES[language], 0.1
    u = expanded / K
    p = Picture(760, 380, words["title"])
    left, right, top, bottom = 78, 726, 40, 318
    low, high, most = 70, 130, 0.55
    x = lambda share: left + (100 * share - low) / (high - low) * (right - left)
    y = lambda value: bottom - value / most * (bottom - top)

    p.hatched(x(1 - expanded), top, x(1 + expanded) - x(1 - expanded), bottom - top)
    for tenth in range(0, 6):
        p.line(left, y(tenth / 10), right, y(tenth / 10), "#c9cdd1", 1)
        p.text(left - 8, y(tenth / 10) + 5, f"{10 * tenth} %", 13, "end")
    for share in range(low, high + 1, 10):
        p.line(x(share / 100), bottom, x(share / 100), bottom + 5)
        p.text(x(share / 100), bottom + 21, f"{share} %", 13)
    p.line(left, bottom, right, bottom)
    p.line(left, top, left, bottom)
    p.line(x(1), top, x(1), bottom, INK, 3)
    p.text(x(1), top - 8, "T", 15, bold=True)
    p.text(left - 68, 20, words["y"], 13, "start", PALE)
    p.text(right, bottom + 46, words["x"], 13, "end", PALE)

    def curve(a, b, verdict):
        steps = 120
        return [(x(d), y(risk(verdict(d), d, 1, u))) for d in (a + (b - a) * i / steps for i in range(steps + 1))]
    simple = lambda d: without_u(d, 1)
    p.path(curve(low / 100, 1, simple) + curve(1 + 1e-9, high / 100, simple), INK, 2, stroke_dasharray="7,4")
    edge = 1 + expanded + 1e-8
    for a, b in ((low / 100, 1 - expanded), (edge, high / 100)):
        p.path(curve(a, b, lambda d: with_u(d, expanded, 1)), ACCENT, 5)
    for d in (1 - expanded, 1 + expanded):
        p.add("circle", cx=float(x(d)), cy=float(y(risk(without_u(d, 1), d, 1, u))), r=5, fill=ACCENT)

    # The key
    at = left + 10
    p.text(at, top + 16, words["ratio"], 14, "start", bold=True)
    p.line(at, top + 38, at + 42, top + 38, INK, 2, stroke_dasharray="7,4")
    p.text(at + 52, top + 43, words["without"], 13, "start")
    p.line(at, top + 62, at + 42, top + 62, ACCENT, 5)
    p.text(at + 52, top + 67, words["with"], 13, "start")
    p.hatched(at, top + 78, 42, 18)
    p.text(at + 52, top + 92, words["with"] + ": " + words["open"], 13, "start")
    share = number(100 * risk("ja", 1 - expanded, 1, u), 1, language) + " %"
    p.text(x(1 - expanded) - 10, y(0.045), words["most"] + share, 13, "end", ACCENT, bold=True)
    p.text(x(1 + expanded) + 10, y(0.045), words["most"] + share, 13, "start", ACCENT, bold=True)
    p.text(x(0.84), y(0.15), words["wrong"][0], 14)
    p.text(x(1.16), y(0.15), words["wrong"][1], 14)
    return str(p)


# Write or check --------------------------------------------------------------------------------

def products():
    for language in ("de", "en"):
        yield ROOT / f"help/entscheidungsregel-faelle-{language}.svg", cases(language)
        yield ROOT / f"help/risiko-kurven-{language}.svg", curves(language)
        page = ROOT / f"help/{language}/entscheidungsregel.md"
        yield page, with_table(page.read_text(encoding="utf-8"), language)


def main():
    if sys.argv[1:] not in ([], ["--check"]):
        sys.exit(__doc__)
    faults = [f"{verdict} at {d} of {t}, u {u}: {risk(verdict, d, t, u):.6f}, by hand {hand:.6f}"
              for verdict, d, t, u, hand in BY_HAND if abs(risk(verdict, d, t, u) - hand) > 1e-6]
    for path, text in products():
        there = path.read_text(encoding="utf-8") if path.exists() else None
        if text == there:
            continue
        if sys.argv[1:]:
            faults.append(f"{path.relative_to(ROOT)} is not what docs/risk.py writes")
        else:
            path.write_text(text, encoding="utf-8")
    if faults:
        sys.exit("\n".join(faults))


if __name__ == "__main__":
    main()
