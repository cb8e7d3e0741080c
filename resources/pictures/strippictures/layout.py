# SPDX-License-Identifier: Apache-2.0
"""Where the parts of a strip lie along it."""


class Layout:
    """The places of a strip's parts; the same option never moves the labels of a family."""

    def __init__(self, strip, style):
        self.strip, self.style = strip, style
        snap = style.snap
        on_liner = strip.family == "label"
        first = style.start + (0 if on_liner else style.lead)
        last = style.exit - (style.liner_feed if on_liner else style.feed)
        pitch = (last - first) / strip.labels
        # The edges of the labels: where they can be cut apart.
        self.edges = [snap(first + pitch * i) for i in range(strip.labels + 1)]
        self.pitch = pitch
        self.start = snap(style.start if strip.leads_blank else self.edges[0])
        # Where the strip ends when the printer cuts after the last label.
        self.end = self.edges[-1] if strip.blank_removed else snap(style.exit - style.end_gap)

    def breaks(self):
        """The middle of each full cut between labels."""
        step = self.strip.labels_per_piece
        return self.edges[step:-1:step] if step else []

    def full_cuts(self):
        """The middle of each full cut."""
        after = self.end + self.style.end_gap / 2
        return self.breaks() + ([self.style.snap(after)] if self.strip.cut_after else [])

    def half_cuts(self):
        """Where each half cut begins."""
        if not self.strip.half_cut:
            return []
        first = self.edges[:1] if self.strip.leads_blank else []
        tab = self.style.gap / 2 + self.style.tab if self.strip.labels_per_piece else 0
        return first + [self.style.snap(edge + tab) for edge in self.edges[1:-1]]

    def marks(self):
        """The middle of each printed cut mark."""
        return self.edges[1:-1] if self.strip.marked else []

    def hand_cut(self):
        """Where a person has to cut the tape; None for nowhere."""
        if not self.strip.special:
            return None
        return self.style.snap((self.edges[-1] + self.style.exit) / 2)

    def pieces(self):
        """Start and end of each piece of the strip; the last one may reach into the printer."""
        half = self.style.snap(self.style.gap / 2)
        starts = [self.start] + [x + half for x in self.breaks()]
        ends = [x - half for x in self.breaks()]
        last = self.end if self.strip.cut_after else self.style.width
        return list(zip(starts, ends + [last]))

    def faces(self):
        """Start and end of what is left of each label between the cuts."""
        style = self.style
        half = style.snap(style.gap / 2)
        if self.strip.family == "label":
            side = half + max(style.inset, 2 * style.line)
            return [(left + side, right - side) for left, right in zip(self.edges, self.edges[1:])]
        bounds = []
        breaks, slits = self.breaks(), self.half_cuts()
        for left, right in zip(self.edges, self.edges[1:]):
            begin = left + (half if left in breaks else 0)
            inside = [x for x in slits if left <= x < right]
            begin = max([begin] + [x + style.slit + style.curl for x in inside])
            bounds.append((begin, right - (half if right in breaks else 0)))
        return bounds

    def blanks(self):
        """Start and end of the blank tape at both ends."""
        areas = []
        if self.strip.leads_blank:
            areas.append((self.start, self.edges[0]))
        if self.strip.trails_blank:
            areas.append((self.edges[-1], self.end if self.strip.cut_after else self.style.exit))
        return areas

    def ghosts(self):
        """Start and end of the blank tape that is left out, at both ends."""
        if not self.strip.blank_removed:
            return []
        return [
            (self.style.start, self.edges[0]),
            (self.end + self.style.end_gap, self.style.exit),
        ]

    def next_job(self):
        """Start and end of what is seen of the next job's label; None for none."""
        return (self.edges[-1], self.style.exit) if self.strip.chained else None
