"""The tab of imports and exports as a user works it: its buttons, and the system's dialogs that ask for a file."""
import time

from .settings import BUTTON, Settings_Window
from .waiting import wait_for

TAB = 7
# What makes the window open on the tab, with nothing else in the way.
SETTINGS = {"Alignment": 6, "Show Alerts": 0, "Settings Tab": TAB}


class Exchange:
    def __init__(self, desktop):
        """Opens the settings window of a started calendar with the settings above."""
        self.desktop = desktop
        self.window = Settings_Window(desktop).open()

    def press(self, caption, row=0):
        """Presses the button of that caption; of two, that of row 0, the imports, or row 1, the exports."""
        rects = [child["rect"] for child in self.window.natives(BUTTON) if child["text"] == caption]
        left, top, right, bottom = sorted(rects, key=lambda rect: rect[1])[row]
        self.desktop.screen.click((left + right) // 2, (top + bottom) // 2)

    def name_file(self, title, path):
        """Types a path into the open dialog, in which the field of the name has the focus, and agrees. Returns the moment of
        that, on the monotonic clock."""
        self.wait_for_dialog(title)
        self.desktop.screen.type(path)
        agreed = time.monotonic()
        self.desktop.screen.key("Return")
        self.desktop.window_gone(title)
        return agreed

    def cancel(self, title):
        self.wait_for_dialog(title)
        self.desktop.screen.key("Escape")
        self.desktop.window_gone(title)

    def wait_for_dialog(self, title):
        self.desktop.find_window(title)
        wait_for(lambda: any(window["text"] == title and window["active"] for window in self.desktop.probe()),
                 "the dialog to be active")
        self.desktop.screen.picture_at_rest()

    def bring_in(self, name):
        """Imports a CSV file of the program's folder. Returns as above."""
        self.press("from CSV File")
        return self.name_file("Import Events from CSV File", f"C:\\Meridex\\{name}")
