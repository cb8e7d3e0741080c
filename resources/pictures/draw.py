#!/usr/bin/env python3
"""Draws the pictures of the cut options panel.

Every picture is derived from one description of the strip, `Strip`, which in turn follows from the
picture's name: a family and one On or Off for each of the family's switches. There are two sizes,
the preview next to the switches and the small icon in the list of ready-made combinations.

    draw.py --list                          print the names of the PNG files
    draw.py --svg DIR                       write the SVG files
    draw.py --svg DIR --png DIR             write them and render each at 1x and 2x
    draw.py --sheet FILE                    write a contact sheet on a light and a dark ground
"""

import argparse
import concurrent.futures
import itertools
import os
import pathlib
import re
import subprocess
from dataclasses import dataclass, replace


# --- What is drawn ------------------------------------------------------------------------------


@dataclass(frozen=True)
class Strip:
    """What comes out of the printer for a print job of some labels."""

    family: str  # "label": labels on a liner; "tape": print on an endless tape
    exit: str = "blade"  # how the printer's exit looks: "blade", or "teeth" to tear the tape off
    labels: int = 3
    text: str = "ABC"
    cut_every: bool = False
    cut_at_end: bool = False
    auto_cut: bool = False
    half_cut: bool = False
    chained: bool = False
    special: bool = False
    marked: bool = False
    mirrored: bool = False

    @property
    def cut_between(self):
        """Whether the printer cuts between two labels."""
        return self.cut_every or self.auto_cut

    @property
    def cut_after(self):
        """Whether the printer cuts after the last label."""
        return self.cut_at_end or (self.auto_cut and not self.chained)

    @property
    def blank_ends(self):
        """Whether blank tape is fed before the first and after the last label."""
        return self.family == "tape" and not self.chained


# Prefix of the picture's name -> the strip with all switches off, the switches in the name's order.
FAMILIES = {
    "EveryEndMirror": (Strip("label"), ("cut_every", "cut_at_end", "mirrored")),
    "AHCM": (Strip("tape"), ("auto_cut", "half_cut", "chained", "mirrored")),
    "SPMR": (Strip("tape"), ("special", "mirrored")),
    "CTMR": (Strip("tape", exit="teeth"), ("marked", "chained", "mirrored")),
}

PREVIEWS = (
    "EveryEndMirrorOffOffOff",
    "EveryEndMirrorOffOnOff",
    "EveryEndMirrorOnOffOff",
    "EveryEndMirrorOffOffOn",
    "EveryEndMirrorOffOnOn",
    "EveryEndMirrorOnOffOn",
    *("AHCM" + "".join(words) for words in itertools.product(("Off", "On"), repeat=4)),
    "SPMROnOff",
    "SPMROnOn",
    "CTMROnOffOff",
    "CTMROffOffOff",
    "CTMROnOnOff",
    "CTMROffOnOff",
)

PRESETS = (
    "EveryEndMirrorOffOffOff",
    "EveryEndMirrorOffOnOff",
    "EveryEndMirrorOnOffOff",
    "EveryEndMirrorOnOnOff",
    "AHCMOffOffOffOff",
    "AHCMOffOffOnOff",
    "AHCMOffOnOffOff",
    "AHCMOffOnOnOff",
    "AHCMOnOffOffOff",
    "AHCMOnOffOnOff",
    "AHCMOnOnOffOff",
    "AHCMOnOnOnOff",
    "SPMROnOff",
    "CTMROnOffOff",
    "CTMROnOnOff",
    "CTMROffOnOff",
    "CTMROffOffOff",
)


def strip_named(name):
    """The strip that the picture of that name shows."""
    prefix, words = re.fullmatch(r"([A-Za-z]+?)((?:On|Off)+)", name).groups()
    strip, switches = FAMILIES[prefix]
    states = [word == "On" for word in re.findall("On|Off", words)]
    if len(states) != len(switches):
        raise ValueError(f"{name}: {len(switches)} switches expected")
    return replace(strip, **dict(zip(switches, states)))


# --- How it looks -------------------------------------------------------------------------------

PAPER = "#ffffff"
LINER = "#d5dae1"
OUTLINE = "#8b919a"
BLANK = "#eceef1"
HATCH = "#c3c8cf"
HOUSING = "#757b85"
BADGE = "#ffffff"
INK = "#1f2328"
CUT = "#e5393f"
HAND = "#868c95"


@dataclass(frozen=True)
class Style:
    """The measures of one picture size, in pixels; lengths run along the strip."""

    width: float
    height: float
    top: float  # of the strip
    depth: float  # of the strip, across
    exit: float  # where the printer's housing begins
    housing: float  # by how much the housing is deeper than the strip, on each side
    teeth: int  # how many of them a housing with teeth has
    tooth: float  # their depth
    label: float  # length of a label
    between: float  # length between two labels
    gap: float  # length that a full cut leaves free
    lead: float  # blank length before the first label
    feed: float  # blank length after the last label
    hand: float  # the same where a person cuts
    tab: float  # from a half cut to the label when the labels are cut apart as well
    margin: float  # length left at an end that is not blank
    letter: float  # height of the letters
    pen: float  # width of the letters' strokes
    line: float  # width of the outlines
    cut: float  # width of the cut lines
    over: float  # by how much a cut line is longer than the strip is deep, on each side
    dash: str  # pattern of a full cut
    dots: float  # distance of a half cut's dots
    mark: float  # length of a cut mark
    scissors: float  # scale of the scissors; 0 for none
    badge: float  # size of the sign on the printer
    inset: float  # distance of a label's edge from the liner's

    @property
    def bottom(self):
        return self.top + self.depth


# fmt: off
PREVIEW = Style(
    width=240, height=92, top=34.5, depth=39, exit=222, housing=7.5, teeth=8, tooth=4,
    label=48, between=18, gap=6, lead=15, feed=10, hand=22, tab=1, margin=4, letter=14, pen=2.25,
    line=1, cut=1.75, over=6, dash="4 2.6", dots=4.4, mark=8, scissors=1, badge=13, inset=5,
)

ICON = Style(
    width=200, height=20, top=3.5, depth=13, exit=188, housing=2.5, teeth=4, tooth=2.5,
    label=38, between=18, gap=6, lead=13, feed=8, hand=15, tab=1, margin=3, letter=6.5, pen=1.3,
    line=1, cut=1.5, over=3, dash="3 1.5", dots=2.8, mark=4.5, scissors=0, badge=7.5, inset=1.5,
)
# fmt: on

# Strokes of the letters in a box one unit high: width of the box, path.
LETTERS = {
    "A": (0.84, "M0 1 L0.42 0 L0.84 1 M0.15 0.66 L0.69 0.66"),
    "B": (
        0.68,
        "M0 0 L0 1 L0.4 1 A0.27 0.27 0 0 0 0.4 0.46 L0 0.46"
        " M0 0 L0.36 0 A0.23 0.23 0 0 1 0.36 0.46",
    ),
    "C": (0.78, "M0.78 0.18 A0.46 0.5 0 1 0 0.78 0.82"),
}
LETTER_SPACE = 0.26


def number(value):
    """The shortest text for a coordinate."""
    return f"{value:.3f}".rstrip("0").rstrip(".")


def element(tag, content="", **attributes):
    """An SVG element; numbers and names are brought into SVG's form."""
    texts = []
    for name, value in attributes.items():
        text = value if isinstance(value, str) else number(value)
        texts.append(f' {name.strip("_").replace("_", "-")}="{text}"')
    return f"<{tag}{''.join(texts)}" + (f">{content}</{tag}>" if content else "/>")


def rounded(left, top, right, bottom, left_radius, right_radius):
    """The path of a rectangle with its own corner radius on each end."""
    n, l, r = number, left_radius, right_radius
    return (
        f"M{n(left + l)} {n(top)} H{n(right - r)} a{n(r)} {n(r)} 0 0 1 {n(r)} {n(r)}"
        f" V{n(bottom - r)} a{n(r)} {n(r)} 0 0 1 {n(-r)} {n(r)} H{n(left + l)}"
        f" a{n(l)} {n(l)} 0 0 1 {n(-l)} {n(-l)} V{n(top + l)} a{n(l)} {n(l)} 0 0 1 {n(l)} {n(-l)} z"
    )


# --- The layout of one picture ------------------------------------------------------------------


class Layout:
    """Where the parts of a strip lie along it."""

    def __init__(self, strip, style):
        self.strip, self.style = strip, style
        end = style.exit - style.line / 2 - (style.gap if strip.cut_after else 0)
        feed = style.hand if strip.special else style.feed
        after = feed if strip.blank_ends else style.margin
        last = end - after - style.label
        pitch = style.label + style.between
        self.labels = [last - pitch * i for i in reversed(range(strip.labels))]
        before = style.lead if strip.blank_ends else style.margin
        self.start = self.labels[0] - before
        self.end = end

    def breaks(self):
        """The middle of each full cut between labels."""
        if not self.strip.cut_between:
            return []
        style = self.style
        middle = style.between / 2
        offset = style.margin + style.gap / 2 if self.strip.half_cut else middle
        return [left + style.label + offset for left in self.labels[:-1]]

    def full_cuts(self):
        """The middle of each full cut."""
        return self.breaks() + ([self.end + self.style.gap / 2] if self.strip.cut_after else [])

    def half_cuts(self):
        """Each half cut: where the backing can be bent to peel a label off."""
        if not self.strip.half_cut:
            return []
        margin = self.style.margin
        if self.strip.cut_between:
            peeled = self.labels if self.strip.blank_ends else self.labels[1:]
            return [left - self.style.tab for left in peeled]
        between = [left - self.style.between / 2 for left in self.labels[1:]]
        first = [self.labels[0] - margin] if self.strip.blank_ends else []
        return first + between

    def marks(self):
        """The middle of each printed cut mark."""
        if not self.strip.marked:
            return []
        return [left - self.style.between / 2 for left in self.labels[1:]]

    def pieces(self):
        """Start and end of each piece of the strip; the last one may reach into the printer."""
        half = self.style.gap / 2
        starts = [self.start] + [x + half for x in self.breaks()]
        ends = [x - half for x in self.breaks()]
        inside = 0 if self.strip.cut_after else self.style.tooth + 1
        return list(zip(starts, ends + [self.end + inside]))

    def blanks(self):
        """Start and end of the blank tape at both ends."""
        if not self.strip.blank_ends:
            return []
        last = self.labels[-1] + self.style.label
        margin = self.style.margin
        return [(self.start, self.labels[0] - margin), (last + margin, self.end)]


# --- The parts of the picture -------------------------------------------------------------------


def draw_pieces(layout):
    """The tape or the liner."""
    strip, style = layout.strip, layout.style
    for left, right in layout.pieces():
        yield element(
            "path",
            d=rounded(left, style.top, right, style.bottom, 1.5, 1.5),
            fill=LINER if strip.family == "label" else PAPER,
            stroke=OUTLINE,
            stroke_width=style.line,
        )


def draw_blanks(layout):
    """The hatching of the tape that carries no print."""
    style = layout.style
    step = style.depth / 6
    top, bottom = style.top + style.line / 2, style.bottom - style.line / 2
    for left, right in layout.blanks():
        left, right = left + style.line / 2, right - style.line / 2
        area = {"x": left, "y": top, "width": right - left, "height": bottom - top}
        yield element("rect", fill=BLANK, **area)
        path = []
        run = bottom - top
        x = left - run
        while x < right:
            low, high = max(x, left), min(x + run, right)
            if high - low > 0.5:
                path.append(
                    f"M{number(low)} {number(bottom - (low - x))}"
                    f" L{number(high)} {number(bottom - (high - x))}"
                )
            x += step
        yield element("path", d=" ".join(path), fill="none", stroke=HATCH, stroke_width=style.line)


def draw_label_paper(layout):
    """The labels that stick on a liner."""
    style = layout.style
    if layout.strip.family != "label":
        return
    radius = style.inset
    for left in layout.labels:
        yield element(
            "rect",
            x=left,
            y=style.top + style.inset,
            width=style.label,
            height=style.depth - 2 * style.inset,
            rx=radius * 0.8,
            fill=PAPER,
            stroke=OUTLINE,
            stroke_width=style.line * 0.8,
        )


def draw_text(layout):
    """The print on each label."""
    strip, style = layout.strip, layout.style
    boxes = [LETTERS[letter] for letter in strip.text]
    total = sum(width for width, _ in boxes) + LETTER_SPACE * (len(boxes) - 1)
    letters, x = [], 0.0
    for width, path in boxes:
        letters.append(element("path", d=path, transform=f"translate({number(x)} 0)"))
        x += width + LETTER_SPACE
    across = style.top + (style.depth - style.letter) / 2
    flip = -1 if strip.mirrored else 1
    for left in layout.labels:
        middle = left + style.label / 2
        origin = middle - flip * total * style.letter / 2
        yield element(
            "g",
            "".join(letters),
            transform=f"translate({number(origin)} {number(across)})"
            f" scale({number(flip * style.letter)} {number(style.letter)})",
            fill="none",
            stroke=INK,
            stroke_width=style.pen / style.letter,
            stroke_linecap="round",
            stroke_linejoin="round",
        )


def draw_marks(layout):
    """The printed cut marks: a tick from each edge of the tape."""
    style = layout.style
    for x in layout.marks():
        top, bottom = style.top + style.line / 2, style.bottom - style.line / 2
        yield element(
            "path",
            d=f"M{number(x)} {number(top)} v{number(style.mark)}"
            f" M{number(x)} {number(bottom)} v{number(-style.mark)}",
            stroke=INK,
            stroke_width=style.pen * 0.8,
        )


def draw_half_cuts(layout):
    """Dotted lines that do not leave the tape."""
    style = layout.style
    count = int((style.depth - style.line) / style.dots)
    first = style.top + (style.depth - (count - 1) * style.dots) / 2
    for x in layout.half_cuts():
        yield element(
            "path",
            d=f"M{number(x)} {number(first)} V{number(first + (count - 1) * style.dots + 0.01)}",
            stroke=CUT,
            stroke_width=style.cut * 1.3,
            stroke_linecap="round",
            stroke_dasharray=f"0 {number(style.dots)}",
        )


def draw_scissors(x, y, scale, colour):
    """Scissors that point down to their tip."""
    blade = "M-1.5 -1.2 L1.5 0.6 L-2.6 10 Q-4 7 -1.5 -1.2 z"
    half = element("circle", cx=3.9, cy=-6, r=2.7, fill="none", stroke=colour, stroke_width=1.8)
    half += element("path", d="M2.7 -3.6 L0 0.8", stroke=colour, stroke_width=2.2)
    half += element("path", d=blade, fill=colour)
    return element(
        "g",
        half + element("g", half, transform="scale(-1 1)"),
        transform=f"translate({number(x)} {number(y - 9.6 * scale)}) scale({number(scale)})",
    )


def draw_cut_line(style, x, colour):
    """A dashed line across the strip and a little beyond."""
    top, bottom = style.top - style.over, style.bottom + style.over
    return element(
        "path",
        d=f"M{number(x)} {number(top)} V{number(bottom)}",
        stroke=colour,
        stroke_width=style.cut,
        stroke_dasharray=style.dash,
    )


def draw_full_cuts(layout):
    """A line for each full cut, with scissors where there is room for them."""
    style = layout.style
    for x in layout.full_cuts():
        yield draw_cut_line(style, x, CUT)
        if style.scissors:
            yield draw_scissors(x, style.top - style.over + 2, style.scissors, CUT)


def draw_hand_cut(layout):
    """A grey line and scissors where a person has to cut the tape."""
    style = layout.style
    if not layout.strip.special:
        return
    x = layout.labels[-1] + style.label + style.margin
    yield draw_cut_line(style, x, HAND)
    if style.scissors:
        yield draw_scissors(x, style.top - style.over + 2, style.scissors * 1.25, HAND)


def draw_housing(layout):
    """The edge of the printer at which the strip comes out."""
    style = layout.style
    top, bottom = style.top - style.housing, style.bottom + style.housing
    left, right = style.exit, style.width
    if layout.strip.exit == "teeth":
        step = (bottom - top) / style.teeth
        tooth = style.tooth
        up = f"{number(-step / 2)}"
        zigzag = f" l{number(tooth)} {up} l{number(-tooth)} {up}" * style.teeth
        body = f"M{number(right)} {number(top)} V{number(bottom)} H{number(left)}{zigzag} z"
    else:
        radius = style.housing * 0.6
        body = rounded(left, top, right + 10, bottom, radius, radius)
    yield element("path", d=body, fill=HOUSING)


def draw_chain(layout):
    """Two links on the printer when the next job joins this one."""
    style = layout.style
    if not layout.strip.chained:
        return
    size = style.badge
    solid = style.exit + (style.tooth if layout.strip.exit == "teeth" else 0)
    x = (solid + style.width) / 2
    y = (style.top + style.bottom) / 2
    for middle in (y - 0.3 * size, y + 0.3 * size):
        yield element(
            "rect",
            x=x - 0.25 * size,
            y=middle - 0.44 * size,
            width=0.5 * size,
            height=0.88 * size,
            rx=0.25 * size,
            fill="none",
            stroke=BADGE,
            stroke_width=0.15 * size,
        )


PARTS = (
    draw_pieces,
    draw_blanks,
    draw_label_paper,
    draw_text,
    draw_marks,
    draw_half_cuts,
    draw_hand_cut,
    draw_housing,
    draw_chain,
    draw_full_cuts,
)


def picture(strip, style):
    """The SVG content of a strip in one of the sizes."""
    layout = Layout(strip, style)
    return "\n".join(itertools.chain.from_iterable(part(layout) for part in PARTS))


# --- The files ----------------------------------------------------------------------------------

PICTURES = {
    **{name: (strip_named(name), PREVIEW) for name in PREVIEWS},
    **{"Preset" + name: (strip_named(name), ICON) for name in PRESETS},
}
SCALES = {"": 1, "@2x": 2}


def document(content, width, height):
    """A complete SVG document."""
    return (
        f'<svg xmlns="http://www.w3.org/2000/svg" width="{number(width)}" height="{number(height)}"'
        f' viewBox="0 0 {number(width)} {number(height)}">\n{content}\n</svg>\n'
    )


def write_pictures(folder):
    """Writes all SVG files and answers their paths."""
    folder.mkdir(parents=True, exist_ok=True)
    paths = []
    for name, (strip, style) in PICTURES.items():
        path = folder / f"{name}.svg"
        path.write_text(document(picture(strip, style), style.width, style.height))
        paths.append(path)
    return paths


def render(tool, source, target, scale):
    """Renders one SVG file."""
    subprocess.run([tool, "--zoom", str(scale), "--output", target, source], check=True)


def render_all(tool, sources, folder):
    """Renders the SVG files in all scales, several at a time."""
    folder.mkdir(parents=True, exist_ok=True)
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        jobs = [
            pool.submit(render, tool, source, folder / f"{source.stem}{suffix}.png", scale)
            for source in sources
            for suffix, scale in SCALES.items()
        ]
        for job in jobs:
            job.result()


def sheet():
    """All pictures in four columns, on a light and on a dark ground."""
    columns, width, height, line = 4, 256, 108, 26
    rows = -(-len(PREVIEWS) // columns)
    icon_rows = -(-len(PRESETS) // columns)
    ground = rows * height + icon_rows * line + 16
    content = []
    for top, colour in ((0, "#f0f0f0"), (ground, "#2b2b2d")):
        content.append(
            element("rect", x=0, y=top, width=columns * width, height=ground, fill=colour)
        )
        for names, origin, step in (
            (list(PREVIEWS), top + 8, height),
            (["Preset" + name for name in PRESETS], top + 8 + rows * height, line),
        ):
            for index, name in enumerate(names):
                x, y = index % columns * width + 8, origin + index // columns * step
                strip, style = PICTURES[name]
                box = {"x": x, "y": y, "width": style.width, "height": style.height}
                content.append(element("svg", picture(strip, style), **box))
    return document("\n".join(content), columns * width, 2 * ground)


def main():
    parser = argparse.ArgumentParser(description="Draws the pictures of the cut options panel.")
    parser.add_argument("--list", action="store_true", help="print the names of the PNG files")
    parser.add_argument("--svg", type=pathlib.Path, help="folder for the SVG files")
    parser.add_argument("--png", type=pathlib.Path, help="folder for the PNG files, needs --svg")
    parser.add_argument("--rsvg-convert", default="rsvg-convert", help="the program that renders")
    parser.add_argument("--sheet", type=pathlib.Path, help="SVG file for a contact sheet")
    arguments = parser.parse_args()
    if arguments.png and not arguments.svg:
        parser.error("--png needs --svg")

    if arguments.list:
        print("\n".join(name + suffix + ".png" for name in PICTURES for suffix in SCALES))
    if arguments.svg:
        sources = write_pictures(arguments.svg)
        if arguments.png:
            render_all(arguments.rsvg_convert, sources, arguments.png)
    if arguments.sheet:
        arguments.sheet.write_text(sheet())


if __name__ == "__main__":
    main()
