"""What a user reaches beyond the calendar's own boxes: the popup menus, the event editor, and the colours of the title row."""
from .geometry import Rect
from .picture import rgb
from .waiting import wait_for

MENU_CLASS = "#32768"
MENU_FRAME = 3  # pixels around the items of a popup menu
BALLOON_WIDTH = 137  # pixels, with the text of `balloon`

# Colours that no smoothing of a font gives by chance.
TITLE_COLOURS = {"Fore": 65535, "Inactive": 65280, "Back": 0}


def menu_rect(desktop):
    """Where the open popup menu stands, None if none is open."""
    for window in desktop.probe():
        if window["class"] == MENU_CLASS and window["visible"]:
            return Rect(*window["rect"])
    return None


def open_menu(desktop, point, button=3):
    """Opens the popup menu of a place by the mouse; returns where it stands, painted."""
    desktop.screen.click(*point, button=button)
    rect = wait_for(lambda: menu_rect(desktop), "a menu")
    desktop.screen.picture_at_rest()
    return rect


def item_rect(menu, number, count):
    """The item of that number, from 1 on, in a menu of so many items and no separators."""
    height = (menu.height - 2 * MENU_FRAME) / count
    top = menu.top + MENU_FRAME + (number - 1) * height
    return Rect(menu.left + MENU_FRAME, round(top), menu.right - MENU_FRAME, round(top + height))


def menu_gone(desktop):
    wait_for(lambda: menu_rect(desktop) is None, "the end of the menu")


def balloon(desktop):
    """Where the balloon with the text "Dentist at nine" stands, None if it isn't there."""
    return next((window.rect for window in desktop.windows() if window.rect.width == BALLOON_WIDTH), None)


class Editor:
    """The event editor. Its title begins with the program's name and tells the number of characters."""
    TITLE = "Meridex - "

    def __init__(self, desktop):
        self.desktop = desktop

    def open(self, day):
        self.desktop.screen.double_click(*self.desktop.box_rect(day).centre)
        return self.wait_for_it()

    def wait_for_it(self):
        self.desktop.find_window(self.TITLE)
        wait_for(self.active, "the editor to be active")
        return self

    def there(self):
        return self.desktop.framed_window(self.TITLE) is not None

    def gone(self):
        self.desktop.window_gone(self.TITLE)

    def counts(self, characters, words):
        """Waits until the title tells so many."""
        self.desktop.find_window(f"{self.TITLE}{characters} Characters - {words} Words.")

    def has(self, characters):
        self.desktop.find_window(f"{self.TITLE}{characters} Characters - ")

    def _window(self):
        return next((window for window in self.desktop.probe()
                     if window["visible"] and window["text"].startswith(self.TITLE)), None)

    def active(self):
        window = self._window()
        return window is not None and window["active"]

    def control(self, text):
        """Where one of its controls stands, named by its text."""
        return Rect(*next(child["rect"] for child in self._window()["children"] if child["text"] == text))


def wait_for_file(desktop, content):
    wait_for(lambda: desktop.data_file.exists() and desktop.data_file.read_bytes() == content,
             f"the file to hold {content[:200]}")


def colours_in_title(desktop, picture, colours, layout=None):
    """The names of the colours in which the title's text is painted."""
    rect = desktop.on_screen((layout or desktop.layout()).title_rect, layout).shrunk(2)
    return [name for name in ("Fore", "Inactive") if picture.count(rect, rgb(colours[name]), 40) > 10]


def wait_for_title(desktop, name, colours=None, layout=None):
    """Waits until the title row is painted in that colour alone."""
    wait_for(lambda: colours_in_title(desktop, desktop.screen.picture(), colours or TITLE_COLOURS, layout) == [name],
             f"the title row's colour {name}")
