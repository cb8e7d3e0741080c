# SPDX-License-Identifier: Apache-2.0
"""Opens the print dialog of an application through the accessibility interface and lists its contents.

usage: print_dialog.py PICTURE TAB BOX PROGRAM [ARGUMENT...]

Prints "tab TITLE" for each tab of the dialog, "control NAME" for each check box of the tab TAB, which
it selects when there is one, and which has the check box BOX, and "library PATH" for each of our
libraries that the application has loaded; saves a picture of the dialog, and ends the application.
"""

import subprocess
import sys
import time

import pyatspi

TIMEOUT = 60


def wait_for(find, what):
    """What find() finds, as soon as it does."""
    end = time.monotonic() + TIMEOUT
    while time.monotonic() < end:
        try:
            found = find()
        except Exception:  # The tree changes while it is looked at.
            found = None
        if found:
            return found
        time.sleep(0.2)
    sys.exit(f"{what} does not appear")


def below(node):
    """A node and all below it."""
    if node is None:
        return
    yield node
    for child in node:
        yield from below(child)


def find(root, role, name=None):
    """The first node of that role, and that beginning of the name, that can be seen."""
    for node in below(root):
        if node.getRole() == role and (name is None or node.name.startswith(name)):
            if node.getState().contains(pyatspi.STATE_SHOWING):
                return node
    return None


def act(node, name):
    """Does what the node can do under that name."""
    actions = node.queryAction()
    for i in range(actions.nActions):
        if actions.getName(i) == name:
            actions.doAction(i)
            return
    names = [actions.getName(i) for i in range(actions.nActions)]
    sys.exit(f"{node} cannot {name}, but {names}")


def application(pid):
    for candidate in pyatspi.Registry.getDesktop(0):
        if candidate and candidate.get_process_id() == pid:
            return candidate
    return None


def output_of(*command, **given):
    return subprocess.run(command, check=True, stdout=subprocess.PIPE, **given).stdout


def window(title):
    """The number of the window that has a title like that."""
    return output_of("xdotool", "search", "--sync", "--onlyvisible", "--name", title).split()[0]


def press_keys(keys, title):
    subprocess.run(["xdotool", "windowfocus", "--sync", window(title), "key", keys], check=True)


def look(process, panel, box):
    # An application that is asked before it has told all of itself is not seen later either.
    search = ["xdotool", "search", "--sync", "--onlyvisible", "--pid", str(process.pid)]
    subprocess.run(search, check=True, stdout=subprocess.DEVNULL, timeout=TIMEOUT)
    app = wait_for(lambda: application(process.pid), "The application")
    # A program may do nothing but open its dialog.
    menu_or_dialog = lambda: find(app, pyatspi.ROLE_MENU_ITEM, "File") or find(
        app, pyatspi.ROLE_DIALOG, "Print"
    )
    opened = wait_for(menu_or_dialog, "The menu File")
    if opened.getRole() == pyatspi.ROLE_MENU_ITEM:
        press_keys("ctrl+p", app.name)
    dialog = wait_for(lambda: find(app, pyatspi.ROLE_DIALOG, "Print"), "The print dialog")
    if not find(dialog, pyatspi.ROLE_PAGE_TAB):
        button = wait_for(
            lambda: find(dialog, pyatspi.ROLE_PUSH_BUTTON, "Options"), "The button Options"
        )
        act(button, "Press")
    wait_for(lambda: find(dialog, pyatspi.ROLE_PAGE_TAB), "A tab")
    tabs = [node for node in below(dialog) if node.getRole() == pyatspi.ROLE_PAGE_TAB]
    for tab in tabs:
        print("tab", tab.name)
    for tab in tabs:
        if tab.name == panel:
            act(tab, "Press")
            wait_for(
                lambda: find(dialog, pyatspi.ROLE_CHECK_BOX, box), f"The check box {box}"
            )
    for node in below(dialog):
        if node.getRole() == pyatspi.ROLE_CHECK_BOX:
            if node.getState().contains(pyatspi.STATE_SHOWING):
                print("control", node.name)


def save_picture(path):
    # Not of the screen: the dialog has a depth of its own.
    dump = output_of("xwd", "-silent", "-id", window("^Print$"))
    pixels = output_of("xwdtopnm", "-quiet", input=dump)
    with open(path, "wb") as file:
        subprocess.run(["pnmtopng", "-quiet"], input=pixels, check=True, stdout=file)


def main():
    picture, panel, box, program, *arguments = sys.argv[1:]
    process = subprocess.Popen([program, *arguments])
    try:
        look(process, panel, box)
        time.sleep(1)  # For the drawing.
        save_picture(picture)
        with open(f"/proc/{process.pid}/maps") as maps:
            paths = {line.split(maxsplit=5)[5].strip() for line in maps if "/" in line}
        for path in sorted(paths):
            if "kvprint" in path or "KVMQRV" in path:
                print("library", path)
    finally:
        process.kill()
        process.wait()


main()
