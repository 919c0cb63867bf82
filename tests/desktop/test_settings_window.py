"""The settings window: a whole visit by the keys, the places of its controls, what it stores, and the preview of a pack."""
import shutil
import time

from harness.desktop import WHITE, Desktop_Test
from harness.geometry import Rect
from harness.prefix import ROOT
from harness.settings import BUTTON, DROP_DOWN, SLIDER, STRIP, Settings_Window
from harness.waiting import wait_for

SEASONS = ROOT / "packs/Seasons"
BLACK = (0, 0, 0)
DESKTOP_KEY = "HKCU\\Control Panel\\Desktop"


class Settings_Places(Desktop_Test):
    """Where the system's own controls of each tab stand. The painted ones lie between them."""

    def assert_places(self, tab, kind, expected):
        """expected: text to place in twips and frame; the text None for controls without one, in their order."""
        desktop = self.desktop(settings={"Settings Tab": tab, "Use Theme Pos": 0, "Use Theme Style": 0})
        desktop.started()
        window = Settings_Window(desktop).open()
        natives = window.natives(kind)
        for text, place, frame in expected:
            rects = [tuple(child["rect"]) for child in natives if text is None or child["text"].replace("&&", "&") == text]
            wanted = window.place(*place, frame)
            self.assertTrue(any(all(abs(a - b) <= 1 for a, b in zip(rect, wanted)) for rect in rects),
                            f"{text} at {wanted}: {rects}")

    def test_the_frame(self):
        desktop = self.desktop()
        desktop.started()
        window = Settings_Window(desktop).open()
        left, top, right, bottom = window.state()["rect"]
        self.assertEqual((right - left, bottom - top), (5730 // 15, 5565 // 15))
        self.assert_near(((left + right) / 2, (top + bottom) / 2), (640, 512), 1, "the middle of the window")
        x, y = window.origin()
        for caption, twips in (("OK", 1755), ("Cancel", 2970), ("Apply", 4185)):
            rect = next(child["rect"] for child in window.natives(BUTTON) if child["text"] == caption)
            self.assert_near(rect, (x + twips // 15, y + 312, x + twips // 15 + 76, y + 334), 1, caption)
        strip = window.natives(STRIP)[0]["rect"]
        self.assertEqual((strip[2] - strip[0], strip[3] - strip[1]), (5505 // 15, 5100 // 15))

    def test_general_ticks(self):
        frame = (0, 1305)
        self.assert_places(3, BUTTON, [
            ("Time:", (90, 830, 690, 210), (0, 0)),
            ("Run at Startup", (135, 360, 1680, 195), frame), ("Splash Screen", (1890, 360, 1635, 240), frame),
            ("Alert me when a date Comes up", (135, 720, 3165, 240), frame),
            ("Make Icon Backs Transparent", (135, 1080, 2940, 240), frame),
            ("Don't close the event window with a Carriage Return.", (135, 1440, 4875, 240), frame),
            ("Allow dragging when Manual Position is not selected", (135, 1800, 4875, 240), frame),
            ("Switch into Compact Mode after", (135, 2160, 3345, 240), frame)])

    def test_style_options(self):
        self.assert_places(4, BUTTON, [
            ("Use Pack Style", (180, 405, 1545, 285), (3330, 0)),
            ("Use Pack Postion when available", (225, 405, 2850, 210), (0, 0)),
            ("Manual Position", (225, 3285, 1455, 240), (0, 0)), ("Set Position", (1800, 3285, 1275, 240), (0, 0))])

    def test_style_sliders(self):
        self.assert_places(4, SLIDER, [(None, (270, 720, 435, 1680), (0, 0)), (None, (720, 2655, 2265, 480), (0, 0))])

    def test_tooltip_options(self):
        self.assert_places(5, BUTTON, [
            ("Don't use Tooltips", (315, 450, 2040, 240), (0, 0)),
            ("Use 'Standard' Tooltips", (315, 945, 2400, 240), (0, 0)),
            ("Use 'Balloon' Tooltips", (315, 1440, 2400, 240), (0, 0))])

    def test_wallpaper_controls(self):
        self.assert_places(6, BUTTON, [
            ("Use Meridex Wallpaper Packs....", (180, 225, 4830, 285), (0, 0)),
            ("Preview", (4230, 585, 780, 375), (0, 0)),
            ("Use Other Display Mode....", (2700, 1710, 2265, 285), (0, 1170))])

    def test_colour_controls(self):
        self.assert_places(2, BUTTON, [
            ("Restore Defaults", (1665, 3420, 1560, 345), (0, 0)),
            ("Use System Colours", (90, 405, 1770, 195), (0, 2250)),
            ("Use Others...", (1935, 405, 1230, 195), (0, 2250))])


class Settings_Visit(Desktop_Test):
    def opened(self, tab=1, **world):
        settings = {"Settings Tab": tab, **world.pop("settings", {})}
        desktop = self.desktop(settings=settings, **world)
        desktop.started()
        return desktop, Settings_Window(desktop).open()

    def wait_stored(self, desktop, section, key, value):
        wait_for(lambda: desktop.stored(section, key) == value, f"{key} to be stored as {value}")

    def test_a_whole_visit_by_the_keys(self):
        desktop, window = self.opened(events=["9/3/2004=Tea"])
        keys = desktop.screen.key
        # The events: the other option shows the list.
        keys("Tab", "Up")
        desktop.screen.picture_at_rest()
        self.assertTrue(window.natives("ListBox"))
        # The colours: back to the defaults, by the accelerator of none, so by Tab.
        keys("shift+Tab", "Right")
        # The settings: the time in the title.
        keys("Right", "Tab", "space")
        keys("shift+Tab")
        # The style: the thin box.
        keys("Right")
        desktop.screen.picture_at_rest()
        # The tips: balloons.
        keys("Right", "Tab", "Down", "shift+Tab")
        # The wallpaper has no pack, the import and the about page nothing to change.
        keys("Right", "Right", "Right")
        desktop.screen.picture_at_rest()
        keys("Return")
        window.gone()
        self.wait_stored(desktop, "Settings", "Tooltips", "2")
        self.assertEqual(desktop.stored("Settings", "Bar Time"), "True")
        self.assertEqual(desktop.stored("Settings", "Settings Tab"), "8")

    def test_escape_stores_the_tab_alone(self):
        desktop, window = self.opened(tab=5)
        desktop.screen.key("Tab", "Down", "Escape")
        window.gone()
        self.wait_stored(desktop, "Settings", "Settings Tab", "5")
        self.assertIsNone(desktop.stored("Settings", "Tooltips"))

    def test_a_style_by_the_mouse_changes_the_calendar(self):
        desktop, window = self.opened(tab=4, settings={"Use Theme Pos": 0, "Use Theme Style": 0})
        before = desktop.calendar_window().rect
        desktop.screen.click(*window.place(90, 3195, 240, 240, (3330, 0)).centre)
        ok = next(child["rect"] for child in window.natives(BUTTON) if child["text"] == "OK")
        desktop.screen.click((ok[0] + ok[2]) // 2, (ok[1] + ok[3]) // 2)
        window.gone()
        self.wait_stored(desktop, "Settings", "Style", "0")
        wait_for(lambda: desktop.calendar_window() and desktop.calendar_window().rect != before, "another layout")

    def test_a_slider_by_the_mouse_moves_the_calendar(self):
        desktop, window = self.opened(tab=4, settings={"Use Theme Pos": 0, "Use Theme Style": 0})
        before = desktop.calendar_window().rect
        slider = window.place(720, 2655, 2265, 480)
        desktop.screen.click(slider.left + 20, (slider.top + slider.bottom) // 2 - 6)
        desktop.screen.click(slider.left + 20, (slider.top + slider.bottom) // 2 - 6)
        desktop.screen.key("Return")
        window.gone()
        wait_for(lambda: desktop.calendar_window() and desktop.calendar_window().rect.left < before.left,
                 "the calendar further left")
        self.wait_stored(desktop, "Settings", "Alignment", "2")

    def test_a_drop_down_list_by_the_mouse(self):
        desktop, window = self.opened(tab=3)
        box = window.place(2655, 765, 2400, 330)
        desktop.screen.click(box.right - 8, (box.top + box.bottom) // 2)
        desktop.screen.picture_at_rest()
        desktop.screen.key("Home", "Return", "Return")
        window.gone()
        self.wait_stored(desktop, "Settings", "Bar Date Format", "mm/yyyy")

    def test_the_palette_paints_the_strip_and_sets_a_colour(self):
        desktop, window = self.opened(tab=2)
        palette = window.place(135, 315, 1545, 810, (3375, 2250))
        # The bottom row is black.
        desktop.screen.click(palette.left + 30, palette.top + 49)
        desktop.screen.key("Return")
        window.gone()
        wait_for(lambda: desktop.stored("Colours", "Today") is not None, "the colour to be stored")
        red, green, blue = (int(desktop.stored("Colours", "Today")) >> shift & 255 for shift in (0, 8, 16))
        self.assertLess(max(red, green, blue), 40)

    def test_the_strip_shows_the_colour_under_the_pointer_and_with_shift_ctrl_or_alt_a_ramp(self):
        desktop, window = self.opened(tab=2)
        palette = window.place(135, 315, 1545, 810, (3375, 2250))
        strip = window.place(135, 1170, 1500, 285, (3375, 2250))
        row = strip.top + 4  # above the ruler

        def brightness_at(across):
            return sum(desktop.screen.picture().pixel(strip.left + across, row)) // 3

        # The palette's top row is white.
        desktop.screen.move(palette.left + 30, palette.top)
        wait_for(lambda: brightness_at(10) == 255 and brightness_at(90) == 255, "the strip to be white")
        desktop.screen.hands("keydown", "shift")
        desktop.screen.move(palette.left + 40, palette.top)
        wait_for(lambda: brightness_at(10) < 20 and 70 < brightness_at(90) < 110, "the ramp from black on")
        desktop.screen.hands("keyup", "shift")
        desktop.screen.move(palette.left + 50, palette.top)
        wait_for(lambda: brightness_at(10) == 255 and brightness_at(90) == 255, "the plain colour again")
        # Alt comes last: let go by itself it opens the window's menu.
        for key in ("ctrl", "alt"):
            desktop.screen.move(palette.left + 50, palette.top)
            wait_for(lambda: brightness_at(10) == 255, f"the plain colour before {key}")
            desktop.screen.hands("keydown", key)
            desktop.screen.move(palette.left + 60, palette.top)
            wait_for(lambda: brightness_at(10) < 20, f"a ramp with {key}")
            desktop.screen.hands("keyup", key)

    def test_f8_again_brings_the_one_window_back(self):
        desktop, window = self.opened(tab=4)
        desktop.activate()
        desktop.screen.key("F8")
        window.wait_for_it()
        self.assertEqual(sum(each.title == "Meridex Settings" for each in desktop.windows()), 1)


class High_Contrast(Desktop_Test):
    SCHEME = {"ButtonFace": "0 0 0", "ButtonText": "255 255 255", "Window": "0 0 0", "WindowText": "255 255 255"}

    def opened(self, tab):
        desktop = self.desktop(settings={"Settings Tab": tab}, scheme=self.SCHEME)
        desktop.started()
        window = Settings_Window(desktop).open()
        desktop.screen.rest_pointer()
        return window, desktop.screen.picture_at_rest()

    def test_captions_of_check_boxes_and_options_are_in_its_colours(self):
        for tab, place, frame in ((3, (135, 360, 1680, 195), (0, 1305)), (2, (90, 405, 1770, 195), (0, 2250))):
            window, picture = self.opened(tab)
            caption = window.place(*place, frame)._replace(left=window.place(*place, frame).left + 18)
            self.assertGreater(picture.count(caption, WHITE, 60), 30, f"tab {tab}")
            self.assertGreater(picture.share(caption, BLACK), 0.5, f"tab {tab}")
            window.desktop.close()


class Settings_Packs(Desktop_Test):
    LONGEST = 115

    def test_the_preview_of_twelve_months_puts_the_desktop_back(self):
        settings = {"Use Themes": 1, "Use Theme Pos": 0, "Use Theme Style": 0, "Pack Name": "Seasons", "Settings Tab": 6}
        desktop = self.desktop(settings=settings, shell=True)
        shutil.copytree(SEASONS, desktop.folder / "Seasons")
        desktop.started()
        started = desktop.prefix.registry_value(DESKTOP_KEY, "Wallpaper")
        window = Settings_Window(desktop).open()
        x0, y0, x1, y1 = next(child["rect"] for child in window.natives(BUTTON) if child["text"] == "Preview")
        desktop.screen.click((x0 + x1) // 2, (y0 + y1) // 2)
        seen = set()
        end = time.monotonic() + 60
        while time.monotonic() < end:
            picture = desktop.prefix.registry_value(DESKTOP_KEY, "Wallpaper") or ""
            seen.add(picture.rsplit("\\", 1)[-1])
            if "12.bmp" in seen and picture == started:
                break
            time.sleep(1)
        self.assertLessEqual({f"{month}.bmp" for month in range(1, 13)}, seen)
        window.wait_for_it()
        self.assertEqual(desktop.stored("Settings", "Use Themes"), "1")
        self.assertTrue(window.natives(DROP_DOWN)[0]["enabled"])
        self.assertIsInstance(desktop.calendar(), Rect)
