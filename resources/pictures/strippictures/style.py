# SPDX-License-Identifier: Apache-2.0
"""How the pictures look: their colours, and the measures of each size."""

from dataclasses import dataclass, replace

# What stands on the dialog has a luminance that is told from white and from a dark ground alike.
OUTLINE = "#757b84"
HOUSING = "#757b84"
MOUTH = "#3f444c"
CUT = "#e23a40"
HAND = "#757b84"
CHAIN = "#3b82c4"
BACKING_EDGE = "#a8763c"

# What stands on the tape.
PAPER = "#ffffff"
PAPER_EDGE = "#d3d8de"
PAPER_BACK = "#dfe3e8"
NEXT_PAPER = "#cfe3f6"
CLOTH = "#dcebe1"
STITCH = "#4a7a5e"
WEAVE = "#c3d9cb"
BACKING = "#a8763c"
LINER = "#efdfc2"
LINER_EDGE = "#d6bc90"
LABEL_LINE = "#7a5a2e"
FOLD_LINE = "#5d646e"
BLANK = "#eceff2"
HATCH = "#b4bac3"
INK = "#1d2126"


@dataclass(frozen=True)
class Style:
    """The measures of one picture size, in points; lengths run along the strip."""

    width: float
    height: float
    top: float  # of the strip
    depth: float  # of the strip's face, across
    film: float  # thickness of the label layer, as seen at the strip's edge
    backing: float  # the same of the backing
    start: float  # where a strip with blank tape begins
    lead: float  # length of the blank tape before the first label
    feed: float  # length from the last label to the printer
    liner_feed: float  # the same for labels on a liner
    exit: float  # where the printer begins
    housing: float  # by how much the printer is deeper than the strip, on each side
    teeth: int  # how many of them a printer with teeth has
    tooth: float  # their depth
    gap: float  # length that a full cut leaves free
    end_gap: float  # the same between the strip's end and the printer
    slit: float  # length that a half cut lays bare
    tab: float  # from a full cut to the half cut
    curl: float  # size of the corner that is peeled off
    letter: float  # height of the letters
    pen: float  # width of the letters' strokes
    line: float  # width of the outlines
    over: float  # by how much a cut line is longer than the strip is deep, on each side
    dash: float  # length of a dash
    hatch: float  # distance of the lines on blank tape
    symbol: float  # scale of the signs above the strip; 0 for none
    link: float  # scale of the sign for chained jobs
    hand: float  # scale of the scissors for a person
    stitch: float  # distance of a seam from the edge of special tape
    inset: float  # distance of a label's edge from the liner's
    grid: float = 1.0  # pixels per point for which straight edges are put between pixels

    def snap(self, value):
        """The nearest place between two pixels."""
        return int(value * self.grid + 0.5) / self.grid

    @property
    def face_bottom(self):
        """The lower edge of the strip's face."""
        return self.top + self.depth

    @property
    def bottom(self):
        """The lower edge of the strip with its layers."""
        return self.face_bottom + self.film + self.backing + self.line


# fmt: off
PREVIEW = Style(
    width=240, height=92, top=33, depth=36, film=3, backing=5, start=1, lead=11, feed=27,
    liner_feed=18, exit=214, housing=8, teeth=9, tooth=4, gap=8, end_gap=10, slit=3, tab=4,
    curl=11, letter=14, pen=2.5, line=1, over=5, dash=3, hatch=6, symbol=1, link=1.1, hand=1,
    stitch=3, inset=4,
)

ICON = Style(
    width=200, height=20, top=2, depth=12, film=1, backing=3, start=1, lead=8, feed=24,
    liner_feed=14, exit=186, housing=1, teeth=4, tooth=3, gap=7, end_gap=8, slit=2, tab=5,
    curl=6, letter=7, pen=1.4, line=1, over=1, dash=2, hatch=4, symbol=0, link=0.47, hand=0.5,
    stitch=1, inset=0,
)

# The program's icon, and how it is drawn where there is only room for a sixth of that.
PROGRAM = replace(
    PREVIEW, width=64, height=64, top=22, depth=28, film=2, backing=6, start=2, lead=0, feed=10,
    exit=46, housing=3, gap=4, end_gap=10, letter=18, pen=4.5, line=2, over=4, symbol=1.1,
)
SMALL_PROGRAM = replace(
    PREVIEW, width=16, height=16, top=3, depth=9, film=0, backing=2, start=0, lead=0, feed=4,
    exit=13, housing=1, gap=0, end_gap=4, letter=5, pen=1.2, line=1, over=1, symbol=0,
)
# fmt: on
