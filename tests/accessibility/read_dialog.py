# SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
# SPDX-License-Identifier: GPL-3.0-or-later

"""Reads the print dialog through the accessibility bus and uses it.

read_dialog.py <tessarin-print> <folder> <PPD with ink counters>
"""

import base64
import os
import re
import shutil
import subprocess
import sys
import time
import zlib

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

PATIENCE = 60.0  # seconds for what must come
# Every slider: page, name, what is shown at first and at its greatest number, the least and the greatest number.
SLIDERS = (
    ("General", "Brightness", "100%", "200%", 50, 200),
    ("General", "Contrast", "100%", "200%", 50, 200),
    ("Color", "Reference Light", "D65", "D80", 50, 80),
    ("Color", "Color Gamut", "100%", "200%", 50, 200),
    ("Color", "Shadows", "100%", "200%", 50, 200),
    ("Color", "Greytone A", "+0", "+50", -50, 50),
    ("Color", "Greytone B", "+0", "+50", -50, 50),
    ("Correction", "Black", "0%", "50%", -50, 50),
    ("Correction", "Cyan", "0%", "50%", -50, 50),
    ("Correction", "Magenta", "0%", "50%", -50, 50),
    ("Correction", "Yellow", "0%", "50%", -50, 50),
    ("Ink Usage", "Black Usage (UCR)", "50%", "100%", 0, 100),
    ("Ink Usage", "Bright Cyan Usage", "50%", "100%", 0, 100),
    ("Ink Usage", "Usage Bright Magenta", "50%", "100%", 0, 100),
    ("Ink Usage", "Total Ink Maximum", "300%", "400%", 200, 400),
    ("Ink Limits", "Ink-Intensity", "0%", "80%", 0, 80),
    ("Ink Limits", "Ink-Limit Black", "100%", "200%", 50, 200),
    ("Ink Limits", "Ink-Limit Cyan", "100%", "200%", 50, 200),
    ("Ink Limits", "Ink-Limit Magenta", "100%", "200%", 50, 200),
    ("Ink Limits", "Ink-Limit Yellow", "100%", "200%", 50, 200),
)
problems = []


def wrong(what):
    problems.append(what)
    print("WRONG", what, flush=True)


def expect(what, found, expected):
    if found != expected:
        wrong(f"{what}: {found!r}, not {expected!r}")


def wait_for(what, ask):
    """The first answer that is not nothing; a tree that is being changed may break off an answer."""
    end = time.monotonic() + PATIENCE
    while True:
        try:
            answer = ask()
        except GLib.Error:
            answer = None
        if answer:
            return answer
        if time.monotonic() > end:
            raise SystemExit(f"FAILED: in vain: {what}")
        time.sleep(0.1)


def role_of(node):
    """None of a node whose program has ended."""
    try:
        return node.get_role()
    except GLib.Error:
        return None


def children(node):
    found = [node.get_child_at_index(i) for i in range(node.get_child_count())]
    return [child for child in found if child is not None]


def everything(node):
    yield node
    for child in children(node):
        yield from everything(child)


def has(node, state):
    return node.get_state_set().contains(state)


def is_shown(node):
    return has(node, Atspi.StateType.SHOWING)


def labels(node):
    """The names of the labels that a node says belong to it."""
    return [
        relation.get_target(i).get_name()
        for relation in node.get_relation_set()
        if relation.get_relation_type() == Atspi.RelationType.LABELLED_BY
        for i in range(relation.get_n_targets())
    ]


def find(root, role, name):
    def look():
        return next((n for n in everything(root) if n.get_role() == role and n.get_name() == name and is_shown(n)), None)

    return wait_for(f"{role.value_nick} {name!r}", look)


def text_of(node):
    text = node.get_text_iface()
    return Atspi.Text.get_text(text, 0, Atspi.Text.get_character_count(text))


def press(node, action="Press"):
    names = [Atspi.Action.get_action_name(node.get_action_iface(), i) for i in range(node.get_n_actions())]
    node.do_action(names.index(action))


def show_page(window, name):
    pages = find(window, Atspi.Role.LIST, "Pages")
    item = next(child for child in children(pages) if child.get_name() == name)
    press(item, "Toggle")


def show_tab(window, name):
    press(find(window, Atspi.Role.PAGE_TAB, name))


def open_dialog(program, folder, *printer):
    ticket = os.path.join(folder, "ticket")
    log = os.path.join(folder, "panel.log")
    dialog = subprocess.Popen([program, *printer, "--log", log, "--ticket", ticket])

    def window():
        desktop = Atspi.get_desktop(0)
        for application in children(desktop):
            for frame in children(application):
                if application.get_process_id() == dialog.pid and frame.get_name().startswith("Print"):
                    return frame
        return None

    return dialog, wait_for("the dialog on the bus", window), ticket, log


def pick_printer(window, key, name):
    """The panel of another printer is made while the listener is known to the dialog."""
    found = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", "^Print"], check=True, capture_output=True)
    number = found.stdout.split()[-1]
    keys = ["key", "--delay", "80", "alt+r", key]
    subprocess.run(["xdotool", "windowfocus", "--sync", number, *keys], check=True, timeout=PATIENCE)
    wait_for(f"{name} opens", lambda: window.get_name() == f"Print \N{EN DASH} {name}")


def check_names(window, page):
    """Everything the keyboard reaches has a name, and a pop-up of the toolkit its caption as label."""
    reached = 0
    for node in everything(window):
        if not (has(node, Atspi.StateType.FOCUSABLE) and is_shown(node)):
            continue
        if any(child.get_role() == Atspi.Role.PAGE_TAB_LIST for child in children(node)):
            continue  # hands the focus on to its tabs
        reached += 1
        if node.get_role() in (Atspi.Role.UNKNOWN, Atspi.Role.INVALID) or not (node.get_name() or labels(node)):
            wrong(f"{page}: {node.get_role_name()} without a name")
    if reached < 5:
        wrong(f"{page}: only {reached} controls")


class Listener:
    """Hears that something of a node changed. There before a dialog opens, as a screen reader is."""

    def __init__(self):
        self.heard = []
        self.listener = Atspi.EventListener.new(lambda event: self.heard.append((event.source, event.type)))
        for change in ("accessible-value", "accessible-description"):
            self.listener.register(f"object:property-change:{change}")

    def take(self):
        while GLib.MainContext.default().iteration(False):
            pass
        return self.heard

    def forget(self):
        self.take().clear()

    def told(self, node, change):
        return any(source == node and kind.endswith(f":{change}") for source, kind in self.take())

    def wait(self, node, *changes):
        for change in changes:
            wait_for(f"told of {change} of {node.get_name()}", lambda: self.told(node, change))


def number(text):
    return float(re.search(r"[+-]?[0-9]+", text)[0])


def check_sliders(window, listener):
    """Every slider reads as it is shown, and moves."""
    for page in dict.fromkeys(row[0] for row in SLIDERS):
        show_tab(window, page)
        here = [row for row in SLIDERS if row[0] == page]
        for _, name, first, last, least, most in here:
            slider = find(window, Atspi.Role.SLIDER, name)
            value = slider.get_value_iface()
            expect(f"{name} at first", Atspi.Value.get_current_value(value), number(first))
            expect(f"the text of {name} at first", slider.get_description().partition("; ")[0], first)
            expect(f"the least {name}", Atspi.Value.get_minimum_value(value), float(least))
            expect(f"the most {name}", Atspi.Value.get_maximum_value(value), float(most))
            for text in (last, first):
                listener.forget()
                Atspi.Value.set_current_value(value, number(text))
                listener.wait(slider, "accessible-value", "accessible-description")
                expect(name, Atspi.Value.get_current_value(value), number(text))
                expect(f"the text of {name}", slider.get_description().partition("; ")[0], text)
                if not any(n.get_name() == text and is_shown(n) for n in everything(window)):
                    wrong(f"{name}: {text} is not shown")
        sliders = [n.get_name() for n in everything(window) if n.get_role() == Atspi.Role.SLIDER and is_shown(n)]
        expect(f"the sliders of the page {page}", sorted(sliders), sorted(row[1] for row in here))


def check_slider(window, listener):
    brightness = find(window, Atspi.Role.SLIDER, "Brightness")
    value = brightness.get_value_iface()
    listener.forget()
    Atspi.Value.set_current_value(value, 94.0)  # the nearest is taken
    listener.wait(brightness, "accessible-value", "accessible-description")
    expect("brightness", Atspi.Value.get_current_value(value), 95.0)
    press(brightness, "Decrease")
    wait_for("a step down", lambda: Atspi.Value.get_current_value(value) == 90.0)


def choose(window, caption, choice):
    popup = find(window, Atspi.Role.COMBO_BOX, caption)
    options = children(popup.get_child_at_index(0))
    press(next(o for o in options if o.get_name() == choice))
    wait_for(f"{caption} shows {choice}", lambda: text_of(popup) == choice)
    selected = [o.get_name() for o in children(popup.get_child_at_index(0)) if has(o, Atspi.StateType.SELECTED)]
    expect(caption, selected, [choice])


def check_reasons(window, tab):
    """What cannot be used says why; a slider says it behind its value. How many such controls there are."""
    show_tab(window, tab)
    roles = (Atspi.Role.SLIDER, Atspi.Role.COMBO_BOX, Atspi.Role.CHECK_BOX)
    controls = [n for n in everything(window) if n.get_role() in roles and is_shown(n)]
    disabled = [n for n in controls if not has(n, Atspi.StateType.ENABLED)]
    for node in disabled:
        reason = node.get_description()
        if node.get_role() == Atspi.Role.SLIDER:
            reason = reason.partition("; ")[2]
        if not reason:
            wrong(f"{node.get_name()} does not say why it is disabled")
    return len(disabled)


def bars_of(window, box):
    bars = children(find(window, Atspi.Role.PANEL, box))
    return [n for n in bars if n.get_role() == Atspi.Role.PROGRESS_BAR and is_shown(n)]


def check_ink(window):
    for box in ("Last Job", "All Jobs"):
        bars = bars_of(window, box)
        if not bars:
            wrong(f"{box}: no bars")
        for bar in bars:
            level = f"{Atspi.Value.get_current_value(bar.get_value_iface()):g}%"
            if not bar.get_name() or not bar.get_description().endswith(f" ({level})"):
                wrong(f"bar {bar.get_name()!r} at {level}: {bar.get_description()!r}")


def write_counters(ppd, counters):
    """Puts other counters into a PPD."""
    data = base64.b64encode(zlib.compress(counters.encode())).decode()
    with open(ppd, encoding="latin-1") as file:
        text, count = re.subn(r'(?m)^\*EXData0000: ".*"$', f'*EXData0000: "{data}"', file.read())
    expect("places of counters", count, 1)
    with open(ppd, "w", encoding="latin-1") as file:
        file.write(text)


def check_reload(window, listener, ppd):
    """Reading the counters anew is told of the bars that are shown, and of no others."""
    write_counters(ppd, "LastInk_K=500\nTotalInk_K=1500000\nLastInk_Y=250\nTotalInk_Y=100000\n")
    listener.forget()
    press(find(window, Atspi.Role.PUSH_BUTTON, "Reload"))
    shown = bars_of(window, "Last Job") + bars_of(window, "All Jobs")
    for bar in shown:
        listener.wait(bar, "accessible-value", "accessible-description")
    black, yellow = bars_of(window, "All Jobs")
    expect("black", black.get_description(), "1500 (150%)")
    expect("the level of black", Atspi.Value.get_current_value(black.get_value_iface()), 100.0)
    expect("the level of yellow", Atspi.Value.get_current_value(yellow.get_value_iface()), 10.0)
    others = [s for s, _ in listener.take() if role_of(s) == Atspi.Role.PROGRESS_BAR and s not in shown]
    expect("told of bars that are not shown", len(others), 0)


def use_dialog(program, folder, listener):
    dialog, window, ticket, log = open_dialog(program, folder, "--sample")
    try:
        pick_printer(window, "End", "Save as PDF")
        pick_printer(window, "Home", "Sample printer")
        for tab in ("General", "Color", "Correction", "Ink Consumption", "Ink Usage", "Ink Limits"):
            show_tab(window, tab)
            check_names(window, tab)
        check_sliders(window, listener)
        show_tab(window, "General")
        check_slider(window, listener)
        choose(window, "Media Type", "Coated Matte 120 g")
        if not check_reasons(window, "Ink Usage"):
            wrong("nothing on the page Ink Usage is disabled")
        show_tab(window, "General")
        choose(window, "Media Type", "Photo Satin 260 g")
        for page in ("General", "Printer Features", "Summary", "Tessarin Settings"):
            show_page(window, page)
            check_names(window, page)
        press(find(window, Atspi.Role.PUSH_BUTTON, "Print"))
        expect("exit status", dialog.wait(PATIENCE), 0)
    finally:
        dialog.kill()
        dialog.wait()
    with open(ticket, encoding="utf-8") as lines:
        written = lines.read().splitlines()
    for line in ("vornBrightness=-10", "vornMediaType=PhotoSatin06"):
        if line not in written:
            wrong(f"the ticket has no line {line}")
    with open(log, encoding="utf-8", errors="replace") as lines:
        if "Handle event #4501" not in lines.read():
            wrong("no event of the pop-up reached the panel")


def read_ink(program, folder, listener, fixture):
    ppd = shutil.copy(fixture, folder)
    dialog, window, _, _ = open_dialog(program, folder, "--ppd", ppd)
    try:
        show_tab(window, "Ink Consumption")
        check_ink(window)
        check_reload(window, listener, ppd)
        press(find(window, Atspi.Role.PUSH_BUTTON, "Cancel"))
        expect("exit status", dialog.wait(PATIENCE), 1)
    finally:
        dialog.kill()
        dialog.wait()


listener = Listener()
use_dialog(sys.argv[1], sys.argv[2], listener)
read_ink(sys.argv[1], sys.argv[2], listener, sys.argv[3])
for problem in problems:
    print("FAILED:", problem)
sys.exit(1 if problems else 0)
