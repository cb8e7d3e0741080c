# SPDX-License-Identifier: Apache-2.0
"""The program's icon: a label that has just been cut off, in front of the printer."""

import itertools
from dataclasses import replace

from . import signs
from .layout import Layout
from .parts import draw_full_cuts, draw_pieces, draw_text
from .strip import Strip
from .style import HOUSING, MOUTH, PAPER, PROGRAM, SMALL_PROGRAM
from .svg import box, document

STRIP = Strip("tape", labels=1, text="A", cut_at_end=True, blank_removed=True)

# Sizes in pixels whose straight edges are put between pixels.
SIZES = (16, 32, 48, 128)


def draw_printer(layout):
    """The whole printer, which ends within the picture."""
    style = layout.style
    left, right = style.exit, style.width - style.start
    yield box(
        left, style.top - style.housing, right, style.bottom + style.housing, HOUSING,
        rx=style.width / 16,
    )  # fmt: skip
    if style.symbol:
        yield box(left + style.line, style.top, left + 2 * style.line, style.bottom, MOUTH)
        middle = (style.top + style.bottom) / 2
        yield signs.arrow((left + right + style.line) / 2, middle, PAPER)


def svg(size=PROGRAM.width):
    """The SVG document for a size in pixels."""
    style = SMALL_PROGRAM if size == SMALL_PROGRAM.width else PROGRAM
    layout = Layout(STRIP, replace(style, grid=size / style.width))
    parts = (draw_pieces, draw_text, draw_printer, draw_full_cuts)
    content = itertools.chain.from_iterable(part(layout) for part in parts)
    return document("\n".join(content), style.width, style.height)
