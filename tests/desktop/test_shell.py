"""The calendar under the desktop's own windows, for which a stand-in stands here."""
from harness.desktop import SHELL_COLOUR, WHITE, Desktop_Test
from harness.picture import near, rgb
from harness.waiting import wait_for


class Embedded(Desktop_Test):
    def test_the_calendar_lives_under_the_desktop_and_leaves_its_gaps_open(self):
        desktop = self.desktop(shell=True)
        self.assert_near(desktop.started(), desktop.place(), what="place")
        layout, picture = desktop.layout(), desktop.screen.picture_at_rest()
        for row in range(4):
            self.assertTrue(picture.is_all(desktop.on_screen(layout.row_gap(row)).shrunk(1), SHELL_COLOUR), f"row {row}")
        inner = desktop.box_rect(10).shrunk(2)
        self.assertTrue(near(picture.pixel(inner.left, inner.top), WHITE))

    def test_keys_and_clicks_reach_it_there(self):
        desktop = self.desktop(shell=True, settings={"Alignment": 4})
        desktop.started()
        april = desktop.layout(2004, 4)
        unused = desktop.on_screen(april.box_rect(0), april).shrunk(2)
        desktop.screen.click(*desktop.on_screen(april.next_rect, april).centre)
        wait_for(lambda: desktop.screen.picture().is_all(unused, SHELL_COLOUR), "April by the arrow")
        desktop.screen.key("F2")
        wait_for(lambda: desktop.screen.picture().count(unused, WHITE) > 100, "March by the key")

    def test_the_splash_comes_and_goes(self):
        desktop = self.desktop(shell=True, settings={"Show Splash": 1})
        desktop.start()

        def splash():
            return [window for window in desktop.windows() if (window.rect.width, window.rect.height) == (374, 89)]

        wait_for(splash, "the splash")
        wait_for(lambda: not splash(), "its end")
        desktop.calendar()
        today = desktop.number_rect(5).shrunk(2)
        self.assertGreater(desktop.screen.picture_at_rest().share(today, rgb(16761024)), 0.5)
