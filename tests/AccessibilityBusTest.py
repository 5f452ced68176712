"""Plays the beginning of a game over AT-SPI: finds the squares, presses them, uses the keyboard and
hears what is announced. Started by RealWindowTest.sh."""

import subprocess
import time

import pyatspi
from gi.repository import Atspi, GLib

FOCUS, SHOWING = "object:state-changed:focused", "object:state-changed:showing"
heard = []


def hear(event):
    if event.detail1 and (str(event.type) == FOCUS
                          or event.source.getRole() == pyatspi.ROLE_NOTIFICATION):
        heard.append(event.source.name)


def wait_for(what, condition):
    """Lets events come in until the condition gives something. The shell test limits the time."""
    print("waiting for", what, flush=True)
    while not (found := condition()):
        while GLib.MainContext.default().iteration(False):
            pass
        time.sleep(0.02)
    return found


def wait_to_hear(text):
    wait_for(f"'{text}'", lambda: any(text in said for said in heard))
    heard.clear()


def find(root, name):
    return pyatspi.findDescendant(root, lambda item: item.name == name)


def do(item, action="Press"):
    actions = item.queryAction()
    actions.doAction([actions.getName(n) for n in range(actions.nActions)].index(action))


def press_key(*keys):
    subprocess.run(["xdotool", "key", *keys], check=True)


# By default a call is given up after 0.8 seconds, which a busy machine can take.
Atspi.set_timeout(10000, 15000)
pyatspi.Registry.registerEventListener(hear, FOCUS, SHOWING)
desktop = pyatspi.Registry.getDesktop(0)
program = wait_for("the game", lambda: find(desktop, "brastel"))
board = wait_for("the board", lambda: find(program, "Board"))


def square(row, column):
    return board.getChildAtIndex(8 * (row - 1) + column - 1)


# Two pieces a side are set up by presses, and carry the rings.
do(find(program, "Two Player"))
for row, own, other in (9, 4, 5), (6, 4, 5):
    do(square(row, own))
    do(square(row, other))
    do(square(row, own), "Give ring")
wait_for("the pieces", lambda: square(6, 5).name == "row 6, column 5: Blue piece 2")
heard.clear()

# The keyboard moves the focus, and the focus is told.
wait_for("the focus", lambda: square(6, 4).getState().contains(pyatspi.STATE_FOCUSED))
press_key("Down", "Down", "Down", "Right")
wait_to_hear("row 9, column 5: Red piece 2")
press_key("space", "Up", "space")
wait_to_hear("Red piece 2 from row 9, column 5 to row 8, column 5")

# Calls come back at once: one that waited for the end of a dialog or a search would be given up by
# the bus.
do(find(program, "Rules"))
rules = wait_for("the rules", lambda: find(program, "Orvel Game Rules"))
do(find(rules, "OK"))
wait_for("the end of the rules", lambda: not find(program, "Orvel Game Rules"))
do(find(program, "God"))
do(find(board, "Hint"))
wait_to_hear("Blue piece")
