"""Compact mode after the idle time: what opens the calendar again, and what doesn't."""
from harness.desktop import Desktop_Test
from harness.waiting import wait_for

TITLE_ROW = 425  # twips: the height of the shrunk window


class Auto_Compact(Desktop_Test):
    SETTINGS = {"Auto Compact": 1, "Timeout Value": 2, "Timeout Format": 0, "Bar Time": "True", "Bar Time Format": "H:mm:ss"}

    @staticmethod
    def shrunk(desktop):
        window = desktop.calendar_window()
        return window and window.rect.height == round(TITLE_ROW / 15)

    def seconds_pass(self, desktop, title, number):
        """Waits until the time in the title has changed so often, and sees the window shrunk all the while."""
        shown = {desktop.screen.picture().part(title)}

        def another():
            self.assertTrue(self.shrunk(desktop), "it stays shrunk")
            shown.add(desktop.screen.picture().part(title))
            return len(shown) > number

        wait_for(another, "the time to go on")

    def test_a_pointer_at_rest_leaves_it_shrunk_and_a_move_over_the_title_opens_it(self):
        desktop = self.desktop(settings=self.SETTINGS)
        layout, place = desktop.layout(), desktop.place()
        title = layout.title_rect
        # The window stands on the lower edge of the screen: shrinking, it brings its title down to the pointer.
        down = place.bottom - round(TITLE_ROW / 15)
        title = title.moved(place.left, down)
        x, y = title.centre
        self.assertTrue(desktop.box_rect(29).top < y, "over the boxes of the open calendar")
        desktop.screen.move(x, y)
        desktop.start()
        wait_for(lambda: desktop.calendar_window() and not self.shrunk(desktop), "the open calendar")
        wait_for(lambda: self.shrunk(desktop), "the end of the idle time")
        self.seconds_pass(desktop, title, 3)

        for step in (2, -2):  # it shrinks again each time: the pointer rests then
            desktop.screen.move(x + step, y)
            wait_for(lambda: desktop.calendar_window().rect.height == layout.window_size[1], "the open calendar")
            wait_for(lambda: self.shrunk(desktop), "the end of the idle time")
            self.seconds_pass(desktop, title, 2)
