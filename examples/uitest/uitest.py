# SPDX-License-Identifier: Apache-2.0
"""Drives a running Qt application by what accessibility says of it: its identifiers and names.

    screen = Screen("PanelKit head unit")
    screen.find("soundTile").press()
    bass = screen.find("bass")
    bass.value = 3
    print([row.name for row in screen.find("list").rows()])
    screen.picture("sound.png")

Everything goes over the AT-SPI bus: the application may be written in any language and knows
nothing of its test. It needs Debian's python3-pyatspi and at-spi2-core; see docs/guide/ui-testing.md.
"""

import subprocess
import time

import pyatspi

PATIENCE = 10  # s, until what is looked for has to be there
PAUSE = 0.05  # s, from one look to the next
TAP = 0.06  # s
REPORT = 0.016  # s, from one move of a finger to the next


class NotFound(LookupError):
    """What was looked for did not come."""


def wait_for(what, find, patience=PATIENCE):
    """What `find` returns, as soon as it is something."""
    end = time.monotonic() + patience
    while True:
        found = find()
        if found:
            return found
        if time.monotonic() > end:
            raise NotFound(what)
        time.sleep(PAUSE)


class Widget:
    """Something on the screen. Two of these may be the same widget."""

    def __init__(self, node):
        self._node = node

    def __repr__(self):
        return f"<{self.role} {self.name!r} ({self.identifier})>"

    @property
    def name(self):
        return self._node.name or ""

    @property
    def description(self):
        return self._node.description or ""

    @property
    def identifier(self):
        """The object's name. Qt 6 says it as such; with Qt 5 it is the description of a PanelKit
        widget that the application has not described otherwise."""
        own = self._node.get_accessible_id() or ""
        return own.split(".")[-1] or self.description

    @property
    def role(self):
        return self._node.getRoleName()

    def has(self, state):
        """Such as "pressed", "checked", "enabled", "focused", "showing"."""
        wanted = getattr(pyatspi, "STATE_" + state.upper())
        return self._node.getState().contains(wanted)

    @property
    def rectangle(self):
        """Left, top, width and height, in px of the screen."""
        place = self._node.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
        return place.x, place.y, place.width, place.height

    @property
    def is_visible(self):
        return self.has("showing") and self.rectangle[2] > 0

    @property
    def actions(self):
        try:
            action = self._node.queryAction()
        except NotImplementedError:
            return []
        return [action.getName(i) for i in range(action.nActions)]

    def do(self, name):
        self._node.queryAction().doAction(self.actions.index(name))

    def press(self):
        self.do("Press")

    def long_press(self):
        self.do("LongPress")

    def toggle(self):
        self.do("Toggle")

    @property
    def value(self):
        return self._node.queryValue().currentValue

    @value.setter
    def value(self, value):
        self._node.queryValue().currentValue = value

    @property
    def range(self):
        values = self._node.queryValue()
        return values.minimumValue, values.maximumValue

    def children(self):
        return [Widget(node) for node in self._node if node]

    def tree(self):
        """It and all that is visible in it, from the top down."""
        yield self
        for child in self.children():
            if child.is_visible:
                yield from child.tree()

    def rows(self):
        """The rows of a list that are in sight. Those above and below are not asked for."""
        left, top, width, height = self.rectangle
        component = self._node.queryComponent()
        rows = []
        y = top
        while y < top + height:
            node = component.getAccessibleAtPoint(left + width // 2, y, pyatspi.DESKTOP_COORDS)
            row = Widget(node) if node else None
            if row and row.role == "list item":
                rows.append(row)
                y = row.rectangle[1] + row.rectangle[3]
            else:
                y += 1
        return rows

    def place(self, right, down):
        """A point of it on the screen, given as parts of its width and height."""
        left, top, width, height = self.rectangle
        return left + round(right * width), top + round(down * height)


class Screen:
    """A running application."""

    def __init__(self, application, patience=PATIENCE):
        def running():
            desktop = pyatspi.Registry.getDesktop(0)
            desktop.clearCache()
            return next((app for app in desktop if app and app.name == application), None)
        self._application = wait_for(application, running, patience)
        # What is true now is asked for each time: nothing here waits for events.
        self._application.setCacheMask(pyatspi.cache.NONE)

    @property
    def process(self):
        return self._application.get_process_id()

    def widgets(self):
        for window in Widget(self._application).children():
            yield from window.tree()

    def find(self, identifier=None, name=None, role=None, patience=PATIENCE):
        """The first visible widget that is all of this."""
        def fits(widget):
            return ((identifier is None or widget.identifier == identifier)
                    and (name is None or widget.name == name)
                    and (role is None or widget.role == role))
        return wait_for(f"{identifier or name or role}",
                        lambda: next((each for each in self.widgets() if fits(each)), None),
                        patience)

    def is_there(self, identifier):
        return any(each.identifier == identifier for each in self.widgets())

    def drag(self, start, end, duration=0.3):
        """A finger from one point of the screen to another one, in so many s. The display makes it:
        this needs X11."""
        mouse = pyatspi.Registry.generateMouseEvent
        steps = max(1, round(duration / REPORT))
        mouse(*start, pyatspi.MOUSE_ABS)
        mouse(*start, pyatspi.MOUSE_B1P)
        for step in range(1, steps + 1):
            time.sleep(REPORT)
            mouse(*(begin + (to - begin) * step // steps for begin, to in zip(start, end)),
                  pyatspi.MOUSE_ABS)
        mouse(*end, pyatspi.MOUSE_B1R)

    def touch(self, point, duration=TAP):
        """A finger that stays where it comes down."""
        mouse = pyatspi.Registry.generateMouseEvent
        mouse(*point, pyatspi.MOUSE_ABS)
        mouse(*point, pyatspi.MOUSE_B1P)
        time.sleep(duration)
        mouse(*point, pyatspi.MOUSE_B1R)

    def picture(self, path):
        """What the display shows, as a PNG file. Debian's scrot takes it: this needs X11."""
        subprocess.run(["scrot", "--overwrite", path], check=True)
