#!/usr/bin/python3
"""Checks TALU's main window the way a screen reader sees it: over AT-SPI.

Expects a running TALU with the demo patch loaded, on the accessibility bus of
the current D-Bus session (run_atspi.sh sets all of that up). Checks that
every visible control has a name, that the controls users look for by name
are there, and that the panels respond to AT-SPI actions.

  atspi_panels.py [--pid PID]                 run the checks
  atspi_panels.py --wait-only [--timeout S]   wait until the window is on the bus

Exit codes: 0 pass, 1 fail, 77 skip (no accessibility bus or registry).
"""
import argparse
import os
import sys
import time
import warnings

try:
    import gi
    gi.require_version("Atspi", "2.0")
    from gi.repository import Atspi, GLib
except (ImportError, ValueError) as error:
    print(f"SKIP: AT-SPI bindings missing ({error})")
    sys.exit(77)

# get_action_name is deprecated for get_name, which the bindings cannot offer
# (Accessible.get_name hides it); the old call still works.
warnings.filterwarnings("ignore", message=".*get_action_name is deprecated", category=DeprecationWarning)

APP_NAME = "Art-Net Tester"
WINDOW_NAME = "Torvane TALU"
R = Atspi.Role

# Controls a user operates; each one needs a name to be announced by.
NAMED_ROLES = {
    R.PUSH_BUTTON, R.TOGGLE_BUTTON, R.CHECK_BOX, R.RADIO_BUTTON, R.COMBO_BOX,
    R.SPIN_BUTTON, R.TEXT, R.ENTRY, R.PASSWORD_TEXT, R.SLIDER, R.PAGE_TAB,
    R.TREE, R.TREE_TABLE, R.TABLE, R.LIST, R.LIST_BOX,
}
# Their children are items (rows, cells, popup entries), not controls.
LEAF_ROLES = {R.TREE, R.TREE_TABLE, R.TABLE, R.LIST, R.LIST_BOX, R.COMBO_BOX}

# (role, name) pairs a user must find on the start page.
EXPECTED = [
    (R.PUSH_BUTTON, "Upload"),
    (R.PUSH_BUTTON, "Browse for a patch file"),
    (R.PUSH_BUTTON, "Load"),
    (R.PUSH_BUTTON, "Browse for a .tpx recording"),
    (R.PUSH_BUTTON, "Play"),
    (R.PUSH_BUTTON, "Rewind"),
    (R.SPIN_BUTTON, "Frame rate"),
    (R.CHECK_BOX, "Loop playback"),
    (R.PAGE_TAB, "Standard Art-Net"),
    (R.PAGE_TAB, "GPS Mirra"),
    (R.PAGE_TAB, "Groups"),
    (R.PAGE_TAB, "Patch"),
    (R.PAGE_TAB, "DMX"),
]


class Node:
    """One accessible with what the checks need, read once."""

    def __init__(self, acc, ancestors):
        self.acc = acc
        self.role = acc.get_role()
        self.name = acc.get_name() or ""
        self.showing = acc.get_state_set().contains(Atspi.StateType.SHOWING)
        # Named ancestors and the node itself, for messages:
        # "frame 'Torvane TALU' > text 'Patch file path' > push button ''"
        self.path = (ancestors + " > " if ancestors else "") + f"{acc.get_role_name()} '{self.name}'"


def find_window(pid):
    """The main window's frame, or None. Raises GLib.Error without a registry."""
    desktop = Atspi.get_desktop(0)
    for i in range(desktop.get_child_count()):
        app = desktop.get_child_at_index(i)
        if app is None or app.get_name() != APP_NAME:
            continue
        if pid and app.get_process_id() != pid:
            continue
        # Always ask the program itself: a cached state would not see the
        # effect of the actions we trigger.
        app.set_cache_mask(Atspi.Cache.NONE)
        for k in range(app.get_child_count()):
            frame = app.get_child_at_index(k)
            if frame is not None and frame.get_role() == R.FRAME and frame.get_name() == WINDOW_NAME:
                return frame
    return None


def walk(acc, ancestors=""):
    """Every accessible under acc, depth first, without descending into items."""
    node = Node(acc, ancestors)
    yield node
    if node.role in LEAF_ROLES:
        return
    for i in range(acc.get_child_count()):
        child = acc.get_child_at_index(i)
        if child is not None:
            yield from walk(child, node.path if node.name else ancestors)


def find(window, role, name, showing=None):
    for node in walk(window):
        if node.role == role and node.name == name and (showing is None or node.showing == showing):
            return node
    return None


def wait_for(window, role, name, timeout=5.0):
    """The showing control of that role and name, polled for until timeout."""
    deadline = time.monotonic() + timeout
    while True:
        node = find(window, role, name, showing=True)
        if node or time.monotonic() > deadline:
            return node
        time.sleep(0.2)


def press(node):
    """Runs the control's activating action, as a screen reader user would."""
    names = [Atspi.Action.get_action_name(node.acc, i) for i in range(Atspi.Action.get_n_actions(node.acc))]
    for wanted in ("Press", "Toggle", "Click"):
        if wanted in names:
            return Atspi.Action.do_action(node.acc, names.index(wanted))
    return bool(names) and Atspi.Action.do_action(node.acc, 0)


class Checks:
    def __init__(self):
        self.failures = 0
        self.unnamed = {}  # path: page it was first seen on
        self.unlabelled = {}

    def check(self, ok, message, details=()):
        print(("PASS  " if ok else "FAIL  ") + message)
        for line in details:
            print("      " + line)
        self.failures += 0 if ok else 1
        return ok


def is_labelled(acc):
    return any(r.get_relation_type() == Atspi.RelationType.LABELLED_BY for r in acc.get_relation_set())


def collect_unnamed(c, window, page):
    """Notes the visible controls a screen reader cannot say the purpose of."""
    for n in walk(window):
        if not n.showing or n.role not in NAMED_ROLES:
            continue
        if not n.name.strip():
            c.unnamed.setdefault(n.path, page)
        # Over AT-SPI Qt names a combo box by its current text, not by its
        # accessible name: only a label (a buddy QLabel) says what it chooses.
        if n.role == R.COMBO_BOX and not is_labelled(n.acc):
            c.unlabelled.setdefault(n.path, page)


def report_unnamed(c):
    for found, what in ((c.unnamed, "control has an accessible name"), (c.unlabelled, "combo box has a label")):
        c.check(not found, f"every visible {what} ({len(found)} without)",
                [f"{path}   (on the {page})" for path, page in found.items()])


def press_named(c, window, role, name):
    node = find(window, role, name, showing=True)
    return c.check(node is not None and press(node), f"pressed {Atspi.Role.get_name(role)} '{name}'")


def run_checks(window):
    c = Checks()
    collect_unnamed(c, window, "start page")

    # The controls users look for are there under their names.
    nodes = list(walk(window))
    for role, name in EXPECTED:
        found = any(n.role == role and n.name == name and n.showing for n in nodes)
        c.check(found, f"showing {Atspi.Role.get_name(role)} '{name}'")

    # The side tabs, each in turn (a tab list is named after its current tab).
    for tab in ("Groups", "DMX"):
        if press_named(c, window, R.PAGE_TAB, tab):
            c.check(wait_for(window, R.PAGE_TAB_LIST, tab) is not None, f"'{tab}' is the current side tab")
            collect_unnamed(c, window, f"{tab} tab")
        if tab == "Groups":
            c.check(find(window, R.TREE, "Groups & Universes", showing=True) is not None,
                    "tree 'Groups & Universes' is showing")

    # The GPS tab shows one row per group of the demo patch, each with its
    # own recording field.
    if press_named(c, window, R.PAGE_TAB, "GPS Mirra"):
        c.check(wait_for(window, R.PUSH_BUTTON, "Load set") is not None, "'Load set' is showing")
        c.check(wait_for(window, R.TEXT, 'Recording for "Facade"') is not None,
                "text field 'Recording for \"Facade\"' is showing")
        collect_unnamed(c, window, "GPS Mirra tab")

    # Live broadcast swaps the playback tabs for the node's panel. Start
    # listening is only looked at, never pressed: it binds a socket.
    if press_named(c, window, R.RADIO_BUTTON, "Live broadcast"):
        c.check(wait_for(window, R.PUSH_BUTTON, "Start listening") is not None, "'Start listening' is showing")
        c.check(find(window, R.PUSH_BUTTON, "Load set", showing=True) is None, "'Load set' is hidden again")
        collect_unnamed(c, window, "live broadcast page")

    # Named controls, on every page visited above.
    report_unnamed(c)

    print(f"{c.failures} check(s) failed" if c.failures else "all checks passed")
    return 1 if c.failures else 0


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--pid", type=int, default=0, help="only the TALU with this process id")
    parser.add_argument("--wait-only", action="store_true", help="only wait for the window to appear")
    parser.add_argument("--timeout", type=float, default=20.0, help="seconds to wait for the window")
    args = parser.parse_args()

    if not os.environ.get("DBUS_SESSION_BUS_ADDRESS"):
        print("SKIP: no D-Bus session")
        return 77
    if Atspi.init() not in (0, 1):  # 1: already initialised
        print("SKIP: AT-SPI could not be initialised")
        return 77

    deadline = time.monotonic() + args.timeout
    window = None
    while window is None:
        try:
            window = find_window(args.pid)
        except GLib.Error as error:
            print(f"SKIP: accessibility registry not reachable ({error.message})")
            return 77
        if window is None:
            if time.monotonic() > deadline:
                print(f"FAIL: no '{WINDOW_NAME}' window of '{APP_NAME}' on the accessibility bus "
                      f"after {args.timeout:g} s")
                return 1
            time.sleep(0.25)

    if args.wait_only:
        return 0
    return run_checks(window)


if __name__ == "__main__":
    sys.exit(main())
