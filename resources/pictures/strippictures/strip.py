# SPDX-License-Identifier: Apache-2.0
"""What a picture shows: the strip that comes out of the printer, and the names of the pictures."""

import itertools
import re
from dataclasses import dataclass, replace


@dataclass(frozen=True)
class Strip:
    """What comes out of the printer for a print job of some labels."""

    family: str  # "label": labels on a liner; "tape": print on an endless tape
    exit: str = "knife"  # how the printer's exit looks: "knife", or "teeth" to tear the tape off
    labels: int = 3
    text: str = "AB"
    next_text: str = "12"  # of the job that is chained to this one
    cut_every: int = 0  # how many labels there are between two cuts; 0 for no cuts
    cut_at_end: bool = False
    auto_cut: bool = False
    half_cut: bool = False
    chained: bool = False
    special: bool = False
    marked: bool = False
    mirrored: bool = False
    blank_removed: bool = False

    @property
    def labels_per_piece(self):
        """How many labels there are between two full cuts; 0 for no cuts between labels."""
        return self.cut_every or int(self.auto_cut)

    @property
    def cut_after(self):
        """Whether the printer cuts after the last label."""
        return self.cut_at_end or (self.auto_cut and not self.chained)

    @property
    def leads_blank(self):
        """Whether blank tape comes before the first label."""
        return self.family == "tape" and not (self.chained or self.blank_removed)

    @property
    def trails_blank(self):
        """Whether blank tape is fed after the last label."""
        return self.family == "tape" and not (self.chained or self.blank_removed)


# Prefix of the picture's name -> the strip with all switches off, the switches in the name's order.
FAMILIES = {
    "EveryEndMirror": (Strip("label"), ("cut_every", "cut_at_end", "mirrored")),
    "AHCM": (Strip("tape"), ("auto_cut", "half_cut", "chained", "mirrored")),
    "SPMR": (Strip("tape"), ("special", "mirrored")),
    "CTMR": (Strip("tape", exit="teeth"), ("marked", "chained", "mirrored")),
}

# The pictures of the preview.
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

# The ready-made combinations, in the order of the menu.
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

# Each option by itself, for the guide.
OPTIONS = {
    "cut-every": Strip("label", labels=4, text="A", cut_every=2, cut_at_end=True),
    "cut-at-end": Strip("label", cut_at_end=True),
    "auto-cut": Strip("tape", auto_cut=True),
    "half-cut": Strip("tape", half_cut=True),
    "special-tape": Strip("tape", special=True),
    "chain-printing": Strip("tape", chained=True),
    "mirror-printing": Strip("tape", mirrored=True),
    "remove-blank-space": Strip("tape", blank_removed=True, cut_at_end=True),
    "cut-mark": Strip("tape", exit="teeth", marked=True),
}


def strip_named(name):
    """The strip that the picture of that name shows."""
    prefix, words = re.fullmatch(r"([A-Za-z]+?)((?:On|Off)+)", name).groups()
    strip, switches = FAMILIES[prefix]
    states = [word == "On" for word in re.findall("On|Off", words)]
    if len(states) != len(switches):
        raise ValueError(f"{name}: {len(switches)} switches expected")
    return replace(strip, **dict(zip(switches, states)))
