"""Balloons beside held boxes, tooltips, and the gaps through which the desktop takes its clicks."""
from harness.desktop import SHELL_COLOUR, Desktop_Test
from harness.waiting import wait_for

PALE_YELLOW = (255, 255, 238)
EVENTS = [f"{day}/3/2004=Dentist at nine" for day in (2, 7, 23, 28)]
CORNERS = {"bottom_right": 0, "bottom_left": 2, "top_right": 4, "top_left": 6}


class Balloon(Desktop_Test):
    def balloon(self, desktop):
        """The balloon's window; its width follows the text's, 137 pixels."""
        found = [window.rect for window in desktop.windows() if window.rect.width == 137]
        return found[0] if found else None

    def opened(self, corner, day):
        desktop = self.desktop(events=EVENTS, settings={"Alignment": CORNERS[corner], "Tooltips": 2, "Style": 0})
        desktop.started()
        desktop.screen.press(*desktop.caption_rect(day).centre)
        balloon = wait_for(lambda: self.balloon(desktop), "the balloon")
        desktop.screen.release()
        inner = balloon.shrunk(6)
        wait_for(lambda: desktop.screen.picture().share(inner, PALE_YELLOW) > 0.5, "its pale yellow")
        return desktop, balloon, desktop.box_rect(day)

    def closes(self, desktop):
        desktop.screen.click(*desktop.box_rect(4).centre)
        wait_for(lambda: self.balloon(desktop) is None, "its end on a click elsewhere")

    def test_at_the_bottom_right_it_opens_above_and_to_the_left(self):
        desktop, balloon, box = self.opened("bottom_right", 28)
        self.assertAlmostEqual(balloon.right, box.left, delta=1)
        self.assertAlmostEqual(balloon.bottom, box.top - 125 / 15, delta=1)
        self.closes(desktop)

    def test_at_the_bottom_left_it_opens_above_and_to_the_right(self):
        desktop, balloon, box = self.opened("bottom_left", 23)
        self.assertAlmostEqual(balloon.left, box.right, delta=1)
        self.assertAlmostEqual(balloon.bottom, box.top - 125 / 15, delta=1)
        self.closes(desktop)

    def test_at_the_top_right_it_opens_below_and_to_the_left(self):
        desktop, balloon, box = self.opened("top_right", 7)
        self.assertAlmostEqual(balloon.right, box.left, delta=1)
        self.assertAlmostEqual(balloon.top, box.bottom, delta=1)
        self.closes(desktop)

    def test_at_the_top_left_it_opens_below_and_to_the_right(self):
        desktop, balloon, box = self.opened("top_left", 2)
        self.assertAlmostEqual(balloon.left, box.right, delta=1)
        self.assertAlmostEqual(balloon.top, box.bottom, delta=1)
        self.closes(desktop)

    def test_a_click_opens_none(self):
        desktop = self.desktop(events=EVENTS, settings={"Tooltips": 2})
        desktop.started()
        desktop.screen.click(*desktop.caption_rect(7).centre)
        desktop.screen.picture_at_rest()
        self.assertIsNone(self.balloon(desktop))


class Tooltip(Desktop_Test):
    def test_it_shows_over_a_box_with_an_event_and_goes_with_the_pointer(self):
        desktop = self.desktop(events=EVENTS, settings={"Tooltips": 1})
        desktop.started()
        before = {window.rect for window in desktop.windows()}

        def tips():
            return [window.rect for window in desktop.windows() if window.rect not in before and window.rect.height < 40]

        desktop.screen.move(*desktop.box_rect(10).centre)
        desktop.screen.move(*desktop.caption_rect(7).centre)
        wait_for(tips, "the tip")
        desktop.screen.rest_pointer()
        wait_for(lambda: not tips(), "its end")


class Gap(Desktop_Test):
    def test_a_click_in_a_gap_reaches_the_icons_behind(self):
        desktop = self.desktop(shell=True, settings={"Alignment": 6})
        report = desktop.folder / "report.txt"
        desktop.prefix.environment["MERIDEX_DESKTOP_REPORT"] = "C:\\Meridex\\report.txt"
        desktop.started()
        gap = desktop.on_screen(desktop.layout().row_gap(1))
        self.assertTrue(desktop.screen.picture_at_rest().is_all(gap.shrunk(1), SHELL_COLOUR))
        x, y = gap.centre
        desktop.screen.click(*desktop.box_rect(10).centre)
        desktop.screen.click(x, y)
        wait_for(lambda: report.exists() and f"press icons {x} {y}" in report.read_text(), "the press behind the gap")
        self.assertEqual(report.read_text().count("press icons"), 1, "the press on a box stays with the calendar")
