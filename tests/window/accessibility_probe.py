#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Asks running programs what a screen reader asks, over the accessibility bus.

Each line of standard input is a request in JSON, each answer one line of standard output:

  {"request": "tree", "pid": 12, "window": "Aide"}   the window's tree, or null while it is not there
  {"request": "listen"}                              from here on, changes of states and texts
                                                     are collected
  {"request": "events", "pid": 12}                   what was collected for that program
  {"request": "act", "pid": 12, "role": "menu item", "name": "Ouvrir"}
                                                     does what the element is there for; true once
                                                     the program has answered

  {"request": "enter", "pid": 12, "role": "text", "name": "Recherche", "text": "a"}
                                                     gives an element that text for its own

Trees end at lists and tables, which hold whole folders in a file dialog, and at the menu bar.
"""
import json
import sys

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

ENDS = {
    Atspi.Role.LIST,
    Atspi.Role.MENU_BAR,
    Atspi.Role.TABLE,
    Atspi.Role.TREE,
    Atspi.Role.TREE_TABLE,
}

KINDS = (
    "state-changed",
    "text-changed",
    "text-selection-changed",
    "text-caret-moved",
    "property-change:accessible-name",
)

collected = []
listeners = []


def application(pid):
    """The program's root, without the library's cache: an answer is what the program says now."""
    desktop = Atspi.get_desktop(0)
    for index in range(desktop.get_child_count()):
        candidate = desktop.get_child_at_index(index)
        if candidate is not None and candidate.get_process_id() == pid:
            candidate.set_cache_mask(Atspi.Cache.NONE)
            return candidate
    return None


def children(node):
    found = (node.get_child_at_index(index) for index in range(node.get_child_count()))
    return [child for child in found if child is not None]


def role_of(node):
    # Since AT-SPI 2.54 such a button has the shorter name.
    name = node.get_role_name()
    return "push button" if name == "button" else name


def described(node):
    box = node.get_extents(Atspi.CoordType.SCREEN)
    interfaces = node.get_interfaces()
    return {
        "role": role_of(node),
        "name": node.get_name(),
        "description": node.get_description(),
        "states": [state.value_nick for state in node.get_state_set().get_states()],
        "box": [box.x, box.y, box.width, box.height],
        "text": Atspi.Text.get_text(node, 0, -1) if "Text" in interfaces else None,
        "value": Atspi.Value.get_current_value(node) if "Value" in interfaces else None,
        "children": [] if node.get_role() in ENDS else [described(c) for c in children(node)],
    }


def tree(request):
    root = application(request["pid"])
    for window in children(root) if root is not None else []:
        if window.get_name() == request["window"]:
            return described(window)
    return None


def find(node, role, name):
    if node is None:
        return None
    if role_of(node) == role and node.get_name() == name:
        return node
    return next(filter(None, (find(child, role, name) for child in children(node))), None)


def act(request):
    root = application(request["pid"])
    found = find(root, request["role"], request["name"]) if root is not None else None
    return found is not None and Atspi.Action.do_action(found, 0)


def enter(request):
    found = find(application(request["pid"]), request["role"], request["name"])
    return found is not None and Atspi.EditableText.set_text_contents(found, request["text"])


def collect(event):
    source = event.source
    if source is not None:
        text = event.any_data if event.type.startswith("object:text-changed") else None
        collected.append(
            (
                source.get_process_id(),
                event.type,
                event.detail1,
                source.get_name(),
                text,
                role_of(source),
            )
        )


def listen(_request):
    if not listeners:
        listeners.append(Atspi.EventListener.new(collect))
        for kind in KINDS:
            listeners[0].register("object:" + kind)
    return True


def events(request):
    return [
        {"type": kind, "detail": detail, "name": name, "text": text, "role": role}
        for pid, kind, detail, name, text, role in collected
        if pid == request["pid"]
    ]


def answer(_source, _condition, loop):
    line = sys.stdin.readline()
    if not line:
        loop.quit()
        return False
    request = json.loads(line)
    requests = {"tree": tree, "listen": listen, "events": events, "act": act, "enter": enter}
    try:
        result = requests[request["request"]](request)
    except GLib.Error:
        # The program is starting or ending; whoever asks waits and asks again.
        result = None
    print(json.dumps(result), flush=True)
    return True


def main():
    loop = GLib.MainLoop()
    conditions = GLib.IO_IN | GLib.IO_HUP
    GLib.io_add_watch(sys.stdin.fileno(), GLib.PRIORITY_DEFAULT, conditions, answer, loop)
    loop.run()


main()
