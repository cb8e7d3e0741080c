# SPDX-License-Identifier: Apache-2.0
"""The parts of a picture, from the ground upwards."""

import itertools

from . import signs
from .layout import Layout
from .style import (
    BACKING,
    BACKING_EDGE,
    BLANK,
    CHAIN,
    CLOTH,
    CUT,
    FOLD_LINE,
    HAND,
    HATCH,
    HOUSING,
    INK,
    LABEL_LINE,
    LINER,
    LINER_EDGE,
    MOUTH,
    NEXT_PAPER,
    OUTLINE,
    PAPER,
    PAPER_BACK,
    PAPER_EDGE,
    STITCH,
    WEAVE,
)
from .svg import box, path


def draw_pieces(layout):
    """The layers of each piece: the face, and below it the edge with label layer and backing."""
    strip, style = layout.strip, layout.style
    line, bottom = style.line, style.face_bottom
    face, edge = (LINER, LINER_EDGE) if strip.family == "label" else (PAPER, PAPER_EDGE)
    if strip.special:
        face = CLOTH
    for left, right in layout.pieces():
        inner = left + line, right - line
        yield box(left, style.top, right, style.bottom, OUTLINE, rx=line)
        yield box(inner[0], style.top + line, inner[1], bottom, face)
        yield box(inner[0], bottom, inner[1], bottom + style.film, edge)
        yield box(inner[0], bottom + style.film, inner[1], style.bottom - line, BACKING_EDGE)


def hatching(left, top, right, bottom, step, lean=1):
    """Slanted lines that fill a rectangle; lean -1 for the other slant."""
    steps = []
    run = bottom - top
    x = left - run
    while x < right:
        low, high = max(x, left), min(x + run, right)
        if high - low > 0.5:
            ends = [bottom - (low - x), bottom - (high - x)]
            if lean < 0:
                ends = [top + bottom - y for y in ends]
            steps += ["M", low, ends[0], "L", high, ends[1]]
        x += step
    return steps


def draw_blanks(layout):
    """The hatching of the tape that carries no print."""
    style = layout.style
    top, bottom = style.top + style.line, style.face_bottom
    for left, right in layout.blanks():
        left = left + style.line if left == layout.start else left
        right = right - style.line if right == layout.end else right
        yield box(left, top, right, bottom, BLANK)
        lines = hatching(left, top, right, bottom, style.hatch)
        yield path(*lines, fill="none", stroke=HATCH, stroke_width=style.line)


def draw_cloth(layout):
    """The weave of special tape."""
    style = layout.style
    if not layout.strip.special:
        return
    left = layout.start + style.line
    area = left, style.top + style.line, style.exit, style.face_bottom
    yield box(*area, CLOTH)
    for lean in (1, -1):
        lines = hatching(*area, style.hatch * 0.75, lean)
        yield path(*lines, fill="none", stroke=WEAVE, stroke_width=style.line * 0.7)
    inset = style.stitch
    for y in (area[1] + inset - style.line / 2, area[3] - inset + style.line / 2):
        yield path(
            "M", layout.start + inset, y, "H", style.exit, fill="none", stroke=STITCH,
            stroke_width=style.line, stroke_dasharray=f"{style.dash * 1.5} {style.dash}",
        )  # fmt: skip


def draw_labels(layout):
    """The labels that stick on a liner."""
    style = layout.style
    if layout.strip.family != "label":
        return
    line, inset = style.line, style.inset
    top, bottom = style.top + inset + line, style.face_bottom - inset
    for left, right in layout.faces():
        yield box(left, top, right, bottom, LABEL_LINE, rx=inset)
        yield box(
            left + line, top + line, right - line, bottom - line, PAPER, rx=inset - line / 2
        )


def draw_text(layout):
    """The print on each label."""
    strip, style = layout.strip, layout.style
    length = signs.text_length(strip.text, style.letter)
    top = style.top + (style.line + style.depth - style.letter) / 2
    flip = -1 if strip.mirrored else 1
    for left, right in layout.faces():
        x = (left + right - flip * length) / 2
        yield signs.text(strip.text, x, top, style.letter, style.pen, INK, flip)


def draw_next_job(layout):
    """The first label of the chained job, on its way out of the printer."""
    strip, style = layout.strip, layout.style
    if not strip.chained:
        return
    left, right = layout.next_job()
    yield box(left, style.top + style.line, right, style.face_bottom, NEXT_PAPER)
    top = style.top + (style.line + style.depth - style.letter) / 2
    if strip.mirrored:
        x = left + style.pen * 2 + signs.text_length(strip.next_text, style.letter)
    else:
        x = left + style.pen * 2
    flip = -1 if strip.mirrored else 1
    yield signs.text(strip.next_text, x, top, style.letter, style.pen, INK, flip)


def dashes(style, x, top, bottom, colour):
    """A dashed line across the strip."""
    y = top
    while y < bottom:
        end = min(y + style.dash, bottom)
        yield box(x - style.line, style.snap(y), x + style.line, style.snap(end), colour)
        y += 2 * style.dash


def draw_marks(layout):
    """The printed cut marks: dashes across the tape."""
    style = layout.style
    for x in layout.marks():
        yield from dashes(style, x, style.top + style.line, style.face_bottom, INK)


def draw_half_cuts(layout):
    """A slit in the label layer, the backing whole, and a corner that is peeled off."""
    style = layout.style
    size, line = style.curl, style.line
    bottom = style.face_bottom
    for x in layout.half_cuts():
        right = x + style.slit
        yield box(x, style.top, right, bottom + style.film, BACKING)
        yield path(
            "M", right, bottom - size, "L", right + size, bottom, "V", bottom + style.film,
            "H", right, "z", fill=BACKING,
        )  # fmt: skip
        yield path(
            "M", right, bottom - size, "L", right + size, bottom,
            "Q", right + 0.95 * size, bottom - 0.55 * size,
            right + 1.05 * size, bottom - 0.95 * size,
            "Q", right + 0.55 * size, bottom - 0.9 * size, right, bottom - size, "z",
            fill=PAPER_BACK, stroke=FOLD_LINE, stroke_width=line, stroke_linejoin="round",
        )  # fmt: skip
        if style.symbol:
            middle = x + style.slit / 2
            yield signs.knife(middle, style.top - 1, style.symbol, CUT)


def draw_ghosts(layout):
    """The outlines of the blank tape that is left out."""
    style = layout.style
    half = style.line / 2
    for left, right in layout.ghosts():
        yield path(
            "M", right, style.top + half, "H", left + half, "V", style.bottom - half, "H", right,
            fill="none", stroke=OUTLINE, stroke_width=style.line,
            stroke_dasharray=f"{style.dash} {style.dash}",
        )  # fmt: skip


def draw_full_cuts(layout):
    """The way of the knife through each gap, with scissors where there is room for them."""
    style = layout.style
    half = style.snap(style.line * 0.75)
    for x in layout.full_cuts():
        yield box(x - half, style.top - style.over, x + half, style.bottom + style.over, CUT)
        if style.symbol:
            yield signs.scissors(x, style.top - style.over + 4, style.symbol, CUT)


def draw_hand_cut(layout):
    """A dashed line and scissors where a person has to cut the tape."""
    style = layout.style
    x = layout.hand_cut()
    if x is None:
        return
    over, colour = (style.over, HAND) if style.symbol else (-style.line, MOUTH)
    yield from dashes(style, x, style.top - over, style.bottom + over, colour)
    if style.symbol:
        yield signs.scissors(x, style.top - over + 2, style.hand, HAND)
    else:
        middle = (x + style.exit) / 2
        yield signs.scissors(middle, style.face_bottom - style.line, style.hand, MOUTH)


def draw_printer(layout):
    """The edge of the printer at which the strip comes out."""
    style = layout.style
    top, bottom = style.top - style.housing, style.bottom + style.housing
    left, right = style.exit, style.width
    if layout.strip.exit == "teeth":
        step = (bottom - top) / style.teeth
        zigzag = [
            part
            for _ in range(style.teeth)
            for part in ("l", style.tooth, -step / 2, "l", -style.tooth, -step / 2)
        ]
        yield path("M", right, top, "V", bottom, "H", left, *zigzag, "z", fill=HOUSING)
        return
    yield path(
        "M", right, top, "H", left + 4, "q", -4, 0, -4, 4, "V", bottom - 4, "q", 0, 4, 4, 4,
        "H", right, "z", fill=HOUSING,
    )  # fmt: skip
    yield box(left + style.line, style.top, left + 3 * style.line, style.bottom, MOUTH)
    if style.symbol:
        yield signs.arrow((left + right) / 2, (style.top + style.bottom) / 2, PAPER)


def draw_chain(layout):
    """Two links where the next job joins this one."""
    style = layout.style
    if not layout.strip.chained:
        return
    if style.symbol:
        yield signs.links(layout.edges[-1], style.top - 10, style.link, CHAIN)
    else:
        x = (style.exit + style.tooth + style.width) / 2
        yield signs.links(x, (style.top + style.bottom) / 2, style.link, PAPER)


PARTS = (
    draw_pieces,
    draw_blanks,
    draw_cloth,
    draw_labels,
    draw_next_job,
    draw_text,
    draw_marks,
    draw_half_cuts,
    draw_ghosts,
    draw_hand_cut,
    draw_printer,
    draw_chain,
    draw_full_cuts,
)


def picture(strip, style):
    """The SVG content of a strip in one of the sizes."""
    layout = Layout(strip, style)
    return "\n".join(itertools.chain.from_iterable(part(layout) for part in PARTS))
