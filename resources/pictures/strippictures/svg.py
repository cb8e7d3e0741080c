# SPDX-License-Identifier: Apache-2.0
"""Text of SVG elements."""


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


def box(left, top, right, bottom, fill, **attributes):
    """A filled rectangle."""
    size = {"x": left, "y": top, "width": right - left, "height": bottom - top}
    return element("rect", **size, fill=fill, **attributes)


def path(*steps, **attributes):
    """A path of commands and coordinates."""
    words = (step if isinstance(step, str) else number(step) for step in steps)
    return element("path", d=" ".join(words), **attributes)


def moved(content, x, y, scale=1.0, flip=1):
    """The content at another place, in another size, and mirrored when flip is -1."""
    place = f"translate({number(x)} {number(y)}) scale({number(flip * scale)} {number(scale)})"
    return element("g", content, transform=place)


def document(content, width, height):
    """A complete SVG document."""
    return (
        f'<svg xmlns="http://www.w3.org/2000/svg" width="{number(width)}" height="{number(height)}"'
        f' viewBox="0 0 {number(width)} {number(height)}">\n{content}\n</svg>\n'
    )
