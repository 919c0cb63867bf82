"""Exit while the splash still shows."""
import json
from typing import NamedTuple

from harness.desktop import PROBE, Desktop_Test
from harness.geometry import Rect, window_widths
from harness.hands import item_rect
from harness.waiting import wait_for

SPLASH = (374, 89)
MENU_ITEMS, EXIT = 4, 4
TRIES = 3
OUTLIVED = 200  # milliseconds that a splash must stand alone, of those 1500 that it shows


class Places(NamedTuple):
    """Where the visible windows stood from a moment on."""
    at: int  # milliseconds
    rects: list

    def splash(self):
        return any((rect.width, rect.height) == SPLASH for rect in self.rects)

    def calendar(self):
        return any(rect.width in window_widths() for rect in self.rects)


class Exit_Behind_The_Splash(Desktop_Test):
    """The splash shows for a second and a half. Hands that were too slow for it try again."""

    def watched(self, desktop):
        """Has the places of all visible windows written down from now on, whenever one changes; returns what reads them."""
        log = desktop.folder / "places.txt"
        with log.open("wb") as output:
            desktop.programs.append(desktop.prefix.start(PROBE, "watch", output=output))

        def places():
            text = log.read_text()
            lines = (json.loads(line) for line in text[:text.rfind("\n") + 1].splitlines())
            return [Places(line["at"], [Rect(*rect) for rect in line["places"]]) for line in lines]

        wait_for(places, "the watch")
        return places

    def test_the_calendar_goes_at_once_and_the_process_with_the_splash(self):
        desktop = self.desktop(shell=True, settings={"Show Splash": 1, "Tooltips": 0, "Alignment": 3})
        places = self.watched(desktop)
        for _ in range(TRIES):
            before = len(places())
            program = desktop.start()
            self.choose_exit(desktop, places, before)
            self.assertEqual(desktop.exit_status(program), 0)
            wait_for(lambda: places()[-1].rects == places()[0].rects, "all windows to be gone")
            if self.splash_outlived_calendar(places()[before:]):
                return
        self.fail("the splash never stood without the calendar")

    @staticmethod
    def splash_outlived_calendar(seen):
        since_both = next(number for number, now in enumerate(seen) if now.calendar() and now.splash())
        calendar_went = next(now.at for now in seen[since_both:] if not now.calendar())
        splash_went = next(now.at for now in seen[since_both:] if not now.splash())
        return splash_went - calendar_went >= OUTLIVED

    @staticmethod
    def choose_exit(desktop, places, before):
        """Chooses Exit in a box's menu as soon as the calendar stands."""
        wait_for(lambda: any(now.calendar() and now.splash() for now in places()[before:]), "calendar and splash", pause=0.01)
        others = set(places()[-1].rects)
        desktop.screen.click(*desktop.box_rect(10).centre, button=3)

        def menu():
            new = set(places()[-1].rects) - others
            return new.pop() if len(new) == 1 else None

        desktop.screen.click(*item_rect(wait_for(menu, "the menu", pause=0.01), EXIT, MENU_ITEMS).centre)
