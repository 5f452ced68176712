"""Plays the beginning of a game over AT-SPI: finds the squares, presses them, uses the keyboard and
hears what is announced. Started by AccessibilityBusTest.sh."""

import subprocess
import sys
import time

import pyatspi
from gi.repository import Atspi, GLib

FOCUS = "object:state-changed:focused"
SHOWING = "object:state-changed:showing"
heard = []


def hear(event):
    if not event.detail1:
        return
    is_notification = event.source.getRole() == pyatspi.ROLE_NOTIFICATION
    if str(event.type) == FOCUS or is_notification:
        heard.append(event.source.name)


def wait_for(what, condition):
    """Lets events come in until the condition gives something, for at most ten seconds."""
    end = time.monotonic() + 10
    while time.monotonic() < end:
        found = condition()
        if found:
            return found
        while GLib.MainContext.default().iteration(False):
            pass
        time.sleep(0.02)
    sys.exit(f"waited in vain for {what}; heard: {heard}")


def wait_to_hear(text):
    wait_for(f"'{text}'", lambda: any(text in said for said in heard))
    heard.clear()


def find(root, name):
    return pyatspi.findDescendant(root, lambda item: item.name == name)


def do(item, action):
    actions = item.queryAction()
    names = [actions.getName(n) for n in range(actions.nActions)]
    actions.doAction(names.index(action))


def press_key(*keys):
    subprocess.run(["xdotool", "key", *keys], check=True)


def game():
    desktop = pyatspi.Registry.getDesktop(0)
    return next((item for item in desktop if item and item.name == "brastel"), None)


# By default a call is given up after 0.8 seconds, which a busy machine can take.
Atspi.set_timeout(10000, 15000)
pyatspi.Registry.registerEventListener(hear, FOCUS, SHOWING)
program = wait_for("the game", game)
board = wait_for("the board", lambda: find(program, "Board"))


def square(row, column):
    return board.getChildAtIndex(8 * (row - 1) + column - 1)


# Two pieces a side are set up by presses, and carry the rings.
do(find(program, "Two Player"), "Press")
for row, column, action in [(9, 4, "Press"), (9, 5, "Press"), (9, 4, "Give ring"),
                            (6, 4, "Press"), (6, 5, "Press"), (6, 4, "Give ring")]:
    do(square(row, column), action)
wait_for("the pieces", lambda: square(6, 5).name == "row 6, column 5: Blue piece 2")
assert square(9, 4).name == "row 9, column 4: Red piece 1, carries a ring", square(9, 4).name
assert find(board, "Red's turn circle: to move")
assert find(board, "Status line: empty")
heard.clear()

# The keyboard moves the focus, and the focus is told.
window = find(program, "Brastel")
wait_for("the focus", lambda: square(6, 4).getState().contains(pyatspi.STATE_FOCUSED))
press_key("Down")
wait_to_hear("row 7, column 4: empty")
press_key("Down", "Down", "Right")
wait_to_hear("row 9, column 5: Red piece 2")
press_key("space")
wait_to_hear("Red piece 2 picked up")
assert square(9, 5).getState().contains(pyatspi.STATE_SELECTED)
press_key("Up", "space")
wait_to_hear("Red piece 2 from row 9, column 5 to row 8, column 5")
assert square(9, 5).name == "row 9, column 5: empty", square(9, 5).name
assert find(board, "Blue's turn circle: to move")

# Buttons, menus and a dialog. Calls come back at once: one that waited for the end of a dialog or a
# search would be given up by the bus.
do(find(board, "Backward"), "Press")
wait_to_hear("Taken back")
do(find(program, "Rules"), "Press")
rules = wait_for("the rules", lambda: find(program, "Orvel Game Rules"))
do(find(rules, "OK"), "Press")
wait_for("the end of the rules", lambda: not find(program, "Orvel Game Rules"))
do(find(program, "God"), "Press")
do(find(board, "Hint"), "Press")
wait_to_hear("Blue piece")
do(find(program, "New Game"), "Press")
wait_to_hear("At the start")
print("The accessibility bus works.")
