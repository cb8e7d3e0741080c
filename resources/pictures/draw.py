#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Draws the pictures of the cut options panel, and the icon of kvprint.

Every picture is derived from one description of the strip, which in turn follows from the picture's
name: a family and one On or Off for each of the family's switches. There are two sizes, the preview
next to the switches and the small icon in the list of ready-made combinations.

    draw.py --list                          print the names of the PNG files
    draw.py --svg DIR                       write the SVG files
    draw.py --svg DIR --png DIR             write them and render each at 1x, 1.5x, 2x and 3x
    draw.py --guide DIR                     write the guide's pictures
    draw.py --icon NAME --theme DIR         write the program's icon into a theme of icons
    draw.py --sheet FILE                    write a contact sheet on light and dark grounds
"""

import argparse
import pathlib
import sys

sys.dont_write_bytecode = True
# pylint: disable-next=wrong-import-position
from strippictures import output  # noqa: E402


def main():
    """Does what the arguments say."""
    parser = argparse.ArgumentParser(description="Draws the pictures of the cut options panel.")
    parser.add_argument("--list", action="store_true", help="print the names of the PNG files")
    parser.add_argument("--svg", type=pathlib.Path, help="folder for the SVG files")
    parser.add_argument("--png", type=pathlib.Path, help="folder for the PNG files, needs --svg")
    parser.add_argument("--guide", type=pathlib.Path, help="folder for the guide's pictures")
    parser.add_argument("--icon", help="name of the program's icon, needs --theme")
    parser.add_argument("--theme", type=pathlib.Path, help="folder of the theme of icons")
    parser.add_argument("--rsvg-convert", default="rsvg-convert", help="the program that renders")
    parser.add_argument("--sheet", type=pathlib.Path, help="SVG file for a contact sheet")
    arguments = parser.parse_args()
    if arguments.png and not arguments.svg:
        parser.error("--png needs --svg")
    if bool(arguments.icon) != bool(arguments.theme):
        parser.error("--icon and --theme need each other")

    if arguments.list:
        print("\n".join(output.png_names()))
    if arguments.svg:
        output.write_svgs(arguments.svg)
    if arguments.png:
        output.render_all(arguments.rsvg_convert, arguments.svg, arguments.png)
    if arguments.guide:
        output.write_guide(arguments.guide)
    if arguments.icon:
        output.write_icon(arguments.rsvg_convert, arguments.icon, arguments.theme)
    if arguments.sheet:
        arguments.sheet.write_text(output.sheet())


if __name__ == "__main__":
    main()
