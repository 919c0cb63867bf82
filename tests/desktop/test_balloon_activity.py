"""A balloon takes the activity, and gives it back to the calendar when it is clicked away."""
from harness.desktop import WHITE, Desktop_Test
from harness.hands import TITLE_COLOURS, balloon, wait_for_title
from harness.waiting import wait_for

EVENTS = ["10/3/2004=Dentist at nine"]


class Balloon_Activity(Desktop_Test):
    def a_click_closes_it(self, **world):
        desktop = self.desktop(events=EVENTS, settings={"Tooltips": 2, "Alignment": 4}, colours=TITLE_COLOURS, **world)
        desktop.started()
        desktop.screen.click(*desktop.box_rect(4).centre)
        wait_for_title(desktop, "Fore")
        desktop.screen.press(*desktop.caption_rect(10).centre)
        shown = wait_for(lambda: balloon(desktop), "the balloon")
        desktop.screen.release()
        wait_for_title(desktop, "Inactive")
        desktop.screen.click(*shown.centre)
        wait_for(lambda: balloon(desktop) is None, "its end")
        wait_for_title(desktop, "Fore")

        april = desktop.layout(2004, 4)
        unused = desktop.on_screen(april.box_rect(0), april).shrunk(2)  # April 2004 starts on a Thursday
        self.assertGreater(desktop.screen.picture().count(unused, WHITE), 100)
        desktop.screen.key("F4")
        wait_for(lambda: desktop.screen.picture().count(unused, WHITE) == 0, "April")
        wait_for_title(desktop, "Fore", layout=april)

    def test_a_click_on_it_hands_colour_and_keys_back(self):
        self.a_click_closes_it()

    def test_a_click_on_it_hands_colour_and_keys_back_under_the_desktop(self):
        self.a_click_closes_it(shell=True)
