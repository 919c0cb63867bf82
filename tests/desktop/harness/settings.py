"""The settings window as a user has it before them."""
from .geometry import Rect
from .waiting import wait_for

TITLE = "Meridex Settings"
TABS = ["Events", "Colours", "Settings", "Style & Position", "Tooltips", "Wallpaper", "Import\\Export", "About"]
TWIPS = 15
PAGE = (225, 765)  # where each page lies in the window, twips

BUTTON, LIST, DROP_DOWN, SLIDER, STRIP, TEXT = ("Button", "ListBox", "ComboBox", "msctls_trackbar32", "SysTabControl32",
                                                "Edit")


class Settings_Window:
    def __init__(self, desktop):
        self.desktop = desktop

    def open(self):
        """Opens it by F8 and waits until it stands, active and painted."""
        if self.desktop.shell:
            x, y, _, _ = self.desktop.on_screen(self.desktop.layout().header_rect(0))
            self.desktop.screen.click(x + 4, y + 4)
        else:
            self.desktop.activate()
        self.desktop.screen.key("F8")
        return self.wait_for_it()

    def wait_for_it(self):
        self.desktop.find_window(TITLE)
        wait_for(lambda: self.state()["active"], "the settings window to be active")
        self.desktop.screen.picture_at_rest()
        return self

    def gone(self):
        self.desktop.window_gone(TITLE)

    def state(self):
        """As the probe sees it."""
        return next(window for window in self.desktop.probe() if window["text"] == TITLE)

    def origin(self):
        """The top left of the client area on the screen: that of the tab strip less its own place in it."""
        left, top, _, _ = self.natives(STRIP)[0]["rect"]
        return left - 45 // TWIPS, top - 45 // TWIPS

    def natives(self, kind, visible=True):
        return [child for child in self.state()["children"]
                if child["class"] == kind and (child["visible"] or not visible)]

    def turn_to(self, tab):
        """Turns to a tab by the keys; the strip has the focus when the window opens."""
        self.desktop.screen.key("Home", *["Right"] * (tab - 1))
        self.desktop.screen.picture_at_rest()

    def place(self, left, top, width, height, frame=(0, 0)):
        """A control's place in twips within a frame of the page, as a rectangle of the screen."""
        x, y = self.origin()
        across, down = left + frame[0] + PAGE[0], top + frame[1] + PAGE[1]
        return Rect(x + round(across / TWIPS), y + round(down / TWIPS), x + round((across + width) / TWIPS),
                    y + round((down + height) / TWIPS))
