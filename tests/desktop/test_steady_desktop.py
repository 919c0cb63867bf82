"""The desktop's icons, the pack's picture and the calendar stand together on the screen, however often the picture changes."""
from harness.desktop import WHITE
from harness.geometry import Rect
from harness.picture import near, rgb
from harness.screen import HEIGHT, WIDTH
from harness.waiting import wait_for
from test_wallpaper import BLUE, FOUR, GREEN, RED, TOLERANCE, YELLOW, Wallpaper_Test, quarter, save_quarters

ICON_TEXT_BACK = rgb(0x800000)
ICONS = Rect(0, 0, 400, 80)
MIDDLE = Rect(WIDTH // 2 - 60, HEIGHT // 2 - 60, WIDTH // 2 + 60, HEIGHT // 2 + 60)  # neither icons nor calendar are there
MONTHS = {3: FOUR, 4: (YELLOW, BLUE, GREEN, RED)}


class Steady_Desktop(Wallpaper_Test):
    def world(self):
        desktop = super().world(["3=1-2-2", "4=1-2-2"], shell=True)
        desktop.settings["Alignment"] = 2
        for month, colours in MONTHS.items():  # as large as the screen: small ones are painted too fast to do harm
            save_quarters(self.pack(desktop) / f"{month}.jpg", colours, (WIDTH, HEIGHT))
        return desktop

    @staticmethod
    def missing(desktop, month):
        """What of the three isn't on the screen."""
        picture = desktop.screen.picture()
        day = desktop.box_rect(10, desktop.layout(2004, month)).shrunk(2)
        there = {"the icons": picture.count(ICONS, ICON_TEXT_BACK, 0) > 400,
                 "the picture": all(near(picture.pixel(*quarter(MIDDLE, number).centre), colour, TOLERANCE)
                                    for number, colour in enumerate(MONTHS[month])),
                 "the calendar": picture.share(day, WHITE) > 0.5}
        return [what for what, is_there in there.items() if not is_there]

    def assert_all_stay(self, desktop, month, what):
        """Three looks in a row: while the desktop is being painted, one may be unlucky."""
        looks = 0

        def stand():
            nonlocal looks
            looks = 0 if self.missing(desktop, month) else looks + 1
            return looks == 3

        wait_for(stand, f"icons, picture and calendar together, {what}", 5, pause=0.1)

    def test_fifty_changes_of_the_picture_leave_icons_and_calendar_on_view(self):
        desktop = self.world()
        desktop.started()
        self.assert_all_stay(desktop, 3, "at the start")
        for change in range(1, 51):
            month = 3 + change % 2
            desktop.set_clock(f"2004-{month:02}-05 09:00:00")
            self.assert_all_stay(desktop, month, f"change {change}")

    def test_five_starts_with_a_pack_show_all_three(self):
        for start in range(1, 6):
            desktop = self.world()
            desktop.started()
            self.assert_all_stay(desktop, 3, f"start {start}")
            desktop.close()
