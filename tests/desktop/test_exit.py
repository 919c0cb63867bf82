"""Exit while the splash still shows."""
import json

from harness.desktop import PROBE, Desktop_Test
from harness.geometry import Rect
from harness.hands import item_rect
from harness.waiting import wait_for

SPLASH = (374, 89)
MENU_ITEMS, EXIT = 4, 4
TRIES = 3


class Exit_Behind_The_Splash(Desktop_Test):
    """The splash shows for a second and a half. Hands that were too slow for it try again."""

    def watched(self, desktop):
        """Has the places of all visible windows written down from now on, whenever one changes; returns what reads them."""
        log = desktop.folder / "places.txt"
        with log.open("wb") as output:
            desktop.programs.append(desktop.prefix.start(PROBE, "watch", output=output))

        def places():
            text = log.read_text()
            return [[Rect(*rect) for rect in json.loads(line)] for line in text[:text.rfind("\n") + 1].splitlines()]

        wait_for(places, "the watch")
        return places

    def test_the_calendar_goes_at_once_and_the_process_with_the_splash(self):
        desktop = self.desktop(shell=True, settings={"Show Splash": 1, "Tooltips": 0, "Alignment": 3})
        places = self.watched(desktop)
        for _ in range(TRIES):
            before = len(places())
            program = desktop.start()
            self.choose_exit(desktop, places)
            self.assertEqual(desktop.exit_status(program), 0)
            wait_for(lambda: places()[-1] == places()[0], "all windows to be gone")
            if self.splash_outlived_calendar(desktop, places()[before:]):
                return
        self.fail("the splash never stood without the calendar")

    @staticmethod
    def splash(now):
        return any((rect.width, rect.height) == SPLASH for rect in now)

    @staticmethod
    def calendar(desktop, now):
        return any(rect.width == desktop.layout().window_size[0] for rect in now)

    def both(self, desktop, now):
        return self.calendar(desktop, now) and self.splash(now)

    def splash_outlived_calendar(self, desktop, all_places):
        since_both = next(number for number, now in enumerate(all_places) if self.both(desktop, now))
        return any(self.splash(now) and not self.calendar(desktop, now) for now in all_places[since_both:])

    def choose_exit(self, desktop, places):
        """Chooses Exit in a box's menu as soon as the calendar stands."""
        wait_for(lambda: self.both(desktop, places()[-1]), "calendar and splash", pause=0.01)
        others = set(places()[-1])
        desktop.screen.click(*desktop.box_rect(10).centre, button=3)

        def menu():
            new = set(places()[-1]) - others
            return new.pop() if len(new) == 1 else None

        desktop.screen.click(*item_rect(wait_for(menu, "the menu", pause=0.01), EXIT, MENU_ITEMS).centre)
