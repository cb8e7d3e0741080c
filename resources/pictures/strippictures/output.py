# SPDX-License-Identifier: Apache-2.0
"""The files: SVG, PNG in all scales, pictures of the guide, and a contact sheet."""

import concurrent.futures
import os
import subprocess
from dataclasses import replace

from . import icon
from .parts import picture
from .strip import OPTIONS, PRESETS, PREVIEWS, strip_named
from .style import ICON, PREVIEW
from .svg import box, document, element

PICTURES = {
    **{name: (strip_named(name), PREVIEW) for name in PREVIEWS},
    **{"Preset" + name: (strip_named(name), ICON) for name in PRESETS},
}

# Ending of the file's name -> pixels per point, and those that straight edges are put between.
SCALES = {"": (1, 1), "@1.5x": (1.5, 1.5), "@2x": (2, 1), "@3x": (3, 1)}


def svg(strip, style):
    """The SVG document of a strip in one of the sizes."""
    return document(picture(strip, style), style.width, style.height)


def png_names():
    """The names of all PNG files."""
    return [name + suffix + ".png" for name in PICTURES for suffix in SCALES]


def write_svgs(folder):
    """Writes the SVG files, one for each grid."""
    folder.mkdir(parents=True, exist_ok=True)
    for name, (strip, style) in PICTURES.items():
        for suffix, (scale, grid) in SCALES.items():
            if scale == grid:
                text = svg(strip, replace(style, grid=grid))
                (folder / f"{name}{suffix}.svg").write_text(text)


def source_of(name, suffix):
    """The name of the SVG file that a PNG file is rendered from."""
    scale, grid = SCALES[suffix]
    return name + (suffix if scale == grid else "") + ".svg"


def render(tool, source, target, scale):
    """Renders one SVG file."""
    subprocess.run([tool, "--zoom", str(scale), "--output", target, source], check=True)


def render_all(tool, svgs, folder):
    """Renders the SVG files in all scales, several at a time."""
    folder.mkdir(parents=True, exist_ok=True)
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        jobs = [
            pool.submit(
                render, tool, svgs / source_of(name, suffix), folder / f"{name}{suffix}.png", scale
            )
            for name in PICTURES
            for suffix, (scale, _) in SCALES.items()
        ]
        for job in jobs:
            job.result()


def write_guide(folder):
    """Writes a picture of each option and of each ready-made combination, as SVG."""
    pictures = {
        **{f"option-{name}": strip for name, strip in OPTIONS.items()},
        **{f"preset-{name}": strip_named(name) for name in PRESETS},
    }
    folder.mkdir(parents=True, exist_ok=True)
    for name, strip in pictures.items():
        (folder / f"{name}.svg").write_text(svg(strip, PREVIEW))


def write_icon(tool, name, folder):
    """Writes the program's icon into a theme's folder: as SVG, and rendered in each of its sizes."""
    sources = folder / "scalable" / "apps"
    sources.mkdir(parents=True, exist_ok=True)
    (sources / f"{name}.svg").write_text(icon.svg())
    for size in icon.SIZES:
        target = folder / f"{size}x{size}" / "apps"
        target.mkdir(parents=True, exist_ok=True)
        subprocess.run(
            [tool, "--width", str(size), "--output", target / f"{name}.png"],
            input=icon.svg(size).encode(),
            check=True,
        )


SHEET_GROUNDS = ("#ffffff", "#efefef", "#2b2b2b")


def sheet():
    """All pictures and those of the guide's options in four columns, on light and dark grounds."""
    columns, line = 4, 26
    width, height = PREVIEW.width + 16, PREVIEW.height + 16
    previews = [svg_pair for name, svg_pair in PICTURES.items() if not name.startswith("Preset")]
    previews += [(strip, PREVIEW) for strip in OPTIONS.values()]
    icons = [svg_pair for name, svg_pair in PICTURES.items() if name.startswith("Preset")]
    rows, icon_rows = -(-len(previews) // columns), -(-len(icons) // columns)
    ground = rows * height + icon_rows * line + 16
    content = []
    for number, colour in enumerate(SHEET_GROUNDS):
        top = number * ground
        content.append(box(0, top, columns * width, top + ground, colour))
        for pictures, origin, step in (
            (previews, top + 8, height),
            (icons, top + 8 + rows * height, line),
        ):
            for index, (strip, style) in enumerate(pictures):
                place = {"x": index % columns * width + 8, "y": origin + index // columns * step}
                size = {"width": style.width, "height": style.height}
                content.append(element("svg", picture(strip, style), **place, **size))
    return document("\n".join(content), columns * width, len(SHEET_GROUNDS) * ground)
