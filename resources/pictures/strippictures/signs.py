# SPDX-License-Identifier: Apache-2.0
"""The letters, and the signs that stand above the strip."""

from .svg import box, element, moved, number, path

# Strokes of the letters in a box one unit high: width of the box, path.
LETTERS = {
    "A": (0.84, "M0 1 L0.42 0 L0.84 1 M0.15 0.66 L0.69 0.66"),
    "B": (
        0.68,
        "M0 0 L0 1 L0.4 1 A0.27 0.27 0 0 0 0.4 0.46 L0 0.46"
        " M0 0 L0.36 0 A0.23 0.23 0 0 1 0.36 0.46",
    ),
        "1": (0.3, "M0 0.22 L0.3 0 L0.3 1"),
    "2": (0.6, "M0.02 0.26 A0.29 0.27 0 1 1 0.52 0.46 L0 1 L0.6 1"),
}
LETTER_SPACE = 0.26


def text_length(text, height):
    """How long the text is."""
    widths = [LETTERS[letter][0] for letter in text]
    return (sum(widths) + LETTER_SPACE * (len(widths) - 1)) * height


def text(content, x, y, height, pen, colour, flip=1):
    """A text from x to the right, or mirrored and from x to the left."""
    letters, advance = [], 0.0
    for letter in content:
        width, strokes = LETTERS[letter]
        letters.append(element("path", d=strokes, transform=f"translate({number(advance)} 0)"))
        advance += width + LETTER_SPACE
    drawn = element(
        "g",
        "".join(letters),
        fill="none",
        stroke=colour,
        stroke_width=pen / height,
        stroke_linecap="round",
        stroke_linejoin="round",
    )
    return moved(drawn, x, y, height, flip)


def scissors(x, y, scale, colour):
    """Scissors that point down: the strip is cut in two."""
    blade = "M-1.5 -10.8 L1.5 -9 L-2.4 0 Q-4.2 -2.6 -1.5 -10.8 z"
    half = element("circle", cx=3.9, cy=-15.6, r=2.6, fill="none", stroke=colour, stroke_width=1.9)
    half += path("M2.7 -13.2 L0 -8.8", stroke=colour, stroke_width=2.3)
    half += element("path", d=blade, fill=colour)
    return moved(half + element("g", half, transform="scale(-1 1)"), x, y, scale)


def knife(x, y, scale, colour):
    """A knife whose tip goes into the strip: a layer of it is cut."""
    blade = path("M0 2 L4.2 -4.2 V-9 H0 z", fill=colour)
    handle = box(-0.8, -21, 5, -10, colour, rx=2)
    return moved(element("g", blade + handle, transform="rotate(32)"), x, y, scale)


def links(x, y, scale, colour):
    """Two links that hold each other: the next job is joined."""
    drawn = "".join(
        box(left, -4, left + 12, 4, "none", rx=4, stroke=colour, stroke_width=2.2)
        for left in (-10.5, -1.5)
    )
    return moved(drawn, x, y, scale)


def arrow(x, y, colour):
    """The direction in which the strip leaves the printer."""
    return path(
        "M", x + 3, y - 6, "L", x - 3, y, "L", x + 3, y + 6, fill="none", stroke=colour,
        stroke_width=2.4, stroke_linecap="round", stroke_linejoin="round",
    )  # fmt: skip
