#!/usr/bin/python3
"""Reads the running program over the accessibility bus, as a screen reader does, and prints what it is told.

Started by vorlesen.sh. Ends with status 1 where something that must be read is missing.
"""

import subprocess
import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

PAUSE = 0.7  # seconds: longer than the program waits for the user to pause
told = []


def on_event(event):
    source = event.source
    kind = event.type
    if kind.startswith("object:state-changed") and not event.detail1:
        return
    if kind.startswith("object:state-changed:showing") and source.get_role_name() != "notification":
        return
    if not is_shown(source):  # which no screen reader tells
        return
    if kind.startswith("object:text-changed") and not source.get_state_set().contains(Atspi.StateType.READ_ONLY):
        return  # fields that are worked out
    told.append(f"  {kind.removeprefix('object:')}: {line(source)}")


def settle(seconds=PAUSE):
    """Lets events come in."""
    loop = GLib.MainLoop()
    GLib.timeout_add(int(seconds * 1000), loop.quit)
    loop.run()


def value_of(node):
    interfaces = node.get_interfaces()
    if "Text" in interfaces:
        return Atspi.Text.get_text(node, 0, Atspi.Text.get_character_count(node))
    if "Value" in interfaces:
        return f"{Atspi.Value.get_current_value(node):g}"
    return ""


def line(node):
    text = f'{node.get_role_name()} „{node.get_name()}“'
    value = value_of(node)
    if value:
        text += f" = {value}"
    return text.replace("\n", " / ")


def is_shown(node):
    return node.get_state_set().contains(Atspi.StateType.SHOWING)


def children(node):
    return [child for child in (node.get_child_at_index(i) for i in range(node.get_child_count())) if child]


def outline(node, depth=0):
    """What is shown, without the panes that only hold others."""
    if not is_shown(node):
        return
    is_pane = node.get_role_name() in ("filler", "panel", "layered pane", "scroll pane", "viewport") and not node.get_name()
    if not is_pane:
        print("  " * depth + line(node))
    if node.get_role_name() in ("combo box", "table", "menu bar"):
        return
    for child in children(node):
        outline(child, depth if is_pane else depth + 1)


def find(node, role, name):
    if node.get_role_name() == role and node.get_name().startswith(name):
        return node
    for child in children(node):
        found = find(child, role, name)
        if found:
            return found
    return None


def needed(node, role, name):
    found = find(node, role, name)
    if not found:
        sys.exit(f"missing: {role} {name}")
    return found


def keys(*names):
    for name in names:
        subprocess.run(["xdotool", "key", name], check=True)
        settle()


def actions_of(node):
    return [Atspi.Action.get_action_name(node, i) for i in range(Atspi.Action.get_n_actions(node))]


def act(node, name):
    """Does one of the actions of an object."""
    actions = actions_of(node)
    if name not in actions:
        sys.exit(f"no action {name}: {actions}")
    Atspi.Action.do_action(node, actions.index(name))
    settle()


def say(heading):
    """Prints what was told since the last time, below a heading."""
    print(f"\n== {heading}")
    for text in told:
        print(text)
    told.clear()


def application():
    for _ in range(300):
        for app in children(Atspi.get_desktop(0)):
            if app.get_name() == "zerna" and app.get_child_count() > 0:
                return app
        time.sleep(0.2)
    sys.exit("the program is not on the bus")


def main():
    Atspi.init()
    listener = Atspi.EventListener.new(on_event)
    for kind in ("object:state-changed:focused", "object:state-changed:showing",
                 "object:property-change:accessible-name", "object:property-change:accessible-value",
                 "object:text-changed:insert"):
        listener.register(kind)
    window = needed(application(), "frame", "Zerna")
    subprocess.run(["xdotool", "search", "--onlyvisible", "--name", "^Zerna", "windowfocus", "--sync"], check=True)
    settle(1)
    told.clear()

    print("== Hauptfenster")
    outline(window)

    needed(window, "text", "Atomprozent, Komponente 1")
    keys("ctrl+a", "6", "0")
    say("Anteil 60 eingetippt")
    value = needed(window, "text", "Fermienergie")
    Atspi.Component.grab_focus(value)
    settle()
    say("Ergebnis Fermienergie angesteuert")
    print(f"  Handlungen: {', '.join(actions_of(value))}")
    keys("ctrl+d")
    say("Strg+D: Legierung merken")

    chart = needed(window, "chart", "Konzentrationsdiagramm")
    Atspi.Component.grab_focus(chart)
    settle()
    keys("Right", "Right", "Right")
    act(chart, "Letzter Punkt")
    say("Diagramm, dreimal →, dann die Aktion „Letzter Punkt“")
    print(f"  Beschreibung: {chart.get_description()}")
    print(f"  Handlungen: {', '.join(actions_of(chart))}")

    act(needed(window, "radio button", "Periodensystem"), "Press")
    table = needed(window, "table", "Periodensystem")
    say("Knopf Periodensystem gedrückt")
    print(f"  {Atspi.Table.get_n_rows(table)} Zeilen, {Atspi.Table.get_n_columns(table)} Spalten, "
          f"{table.get_child_count()} Zellen")
    print(f"  Zeile 4, Spalte 11: {line(Atspi.Table.get_accessible_at(table, 3, 10))}")
    Atspi.Component.grab_focus(table)
    keys("Right", "Down", "z", "n")
    act(Atspi.Table.get_accessible_at(table, 2, 12), "Press")
    say("→ ↓ Z N, dann die Zelle von Aluminium gedrückt")


main()
