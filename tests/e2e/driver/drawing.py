"""The drawing of the component: where its points are on the screen."""

import re

from .control import Box
from .user_input import WHEEL_DOWN, WHEEL_UP
from .waiting import wait_for, wait_until

MARGIN = 50  # around the body, in component units
CELL = 10
LARGE = "[WindowPosition]\nWidth=1500\nHeight=1100\n"  # settings with room for drawing


class Drawing:
    """Points are in component units; a cell has ten. Needs a window in which the whole component is visible."""

    def __init__(self, mivo, width, height):
        """The body's size is in cells."""
        self._mivo = mivo
        self._size = (CELL * width, CELL * height)
        view = mivo.frame.find(name=mivo.texts.first("Drawing of the component"))
        self.box = wait_until(lambda: self._viewport(view), "the drawing")

    @staticmethod
    def _viewport(view):
        x, y, width, height = view.box
        return Box(x + 1, y + 1, width - 2, height - 2) if width > 2 else None  # its frame is a pixel wide

    @property
    def factor(self):
        """Pixels of a unit."""
        return int(re.search(r"×(\d+)", self._mivo.status)[1])

    def zoom_to(self, factor):
        """Zooms with the wheel, around a pointer in the middle."""
        self._mivo.input.move(self.box.middle)
        steps = (1, 2, 5, 10)
        change = steps.index(factor) - steps.index(self.factor)
        self._mivo.input.hold("Ctrl")
        for _ in range(abs(change)):
            self._mivo.input.button_down(WHEEL_UP if change > 0 else WHEEL_DOWN)
            self._mivo.input.button_up(WHEEL_UP if change > 0 else WHEEL_DOWN)
        self._mivo.input.let_go("Ctrl")
        wait_for(lambda: self.factor, factor, "the zoom")

    def place(self, x, y):
        """The pixel of a point."""
        factor = self.factor
        pixels = []
        for value, start, length, size in zip((x, y), self.box[:2], self.box[2:], self._size):
            extent = (size + 2 * MARGIN) * factor
            assert extent <= length, "the component does not fit into the window"
            pixels.append(start + MARGIN * factor + (length - extent) // 2 + value * factor)
        return tuple(pixels)

    def point_at(self, x, y):
        """Moves the pointer, until the status bar says that it is there."""
        column, row = self.place(x, y)
        wanted = f"{x / CELL:.1f}, {y / CELL:.1f}"

        def is_there():
            # A window that comes to lie under the pointer is not told where it is before it moves.
            self._mivo.input.move((column + 1, row))
            self._mivo.input.move((column, row))
            return wanted in self._mivo.status

        wait_until(is_there, f"the pointer at {wanted}")

    def click(self, x, y):
        self.point_at(x, y)
        self._mivo.input.button_down()
        self._mivo.input.button_up()

    def double_click(self, x, y):
        self.point_at(x, y)
        self._mivo.input.double_click()

    def drag(self, start, end):
        self.point_at(*start)
        self._mivo.input.button_down()
        self.point_at(*end)
        self._mivo.input.button_up()

    def leave(self):
        """Takes the pointer out of the drawing, to where there is nothing to tell."""
        x, y, _, height = self.box
        self._mivo.input.move((x + 300, y + height + 12))
        wait_until(lambda: not re.search(r"\d\.\d, ", self._mivo.status), "the pointer to have left")

    def picture(self):
        """The drawing without the pointer's marks."""
        return self._mivo.desktop.picture(self.box)
