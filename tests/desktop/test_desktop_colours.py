"""The colours of the desktop's icons, which the calendar's title row takes over if it is told to."""
from harness.desktop import Desktop_Test
from harness.hands import colours_in_title
from harness.picture import near
from harness.waiting import wait_for

SET_TEXT_COLOUR, SET_TEXT_BACK_COLOUR = 4132, 4134  # the list view's messages
INACTIVE = 0x00FFFF
# What the settings hold instead must not show.
STORED = {"Menu Colour Source": 0, "Fore": 0x0000FF, "Back": 0x00FF00, "Inactive": INACTIVE}
DARK_GREY = (0x4B, 0x4B, 0x4B)


def number(red, green, blue):
    return red | green << 8 | blue << 16


class Desktop_Colours(Desktop_Test):
    """An alert holds the start up before the calendar asks the icons' list for its colours: until then they are set."""

    def list_view(self, desktop):
        return next((child["handle"] for window in desktop.probe() if window["class"] == "Progman"
                     for child in window["children"] if child["class"] == "SysListView32"), None)

    def started(self, text, back, **settings):
        desktop = self.desktop(shell=True, events=["5/3/2004=Dentist"], settings=settings, colours=STORED)
        self.report = desktop.folder / "report.txt"
        desktop.prefix.environment["MERIDEX_DESKTOP_REPORT"] = "C:\\Meridex\\report.txt"
        desktop.start()
        desktop.find_window("Meridex")
        window = self.list_view(desktop)
        desktop.post(window, SET_TEXT_COLOUR, 0, number(*text))
        desktop.post(window, SET_TEXT_BACK_COLOUR, 0, back)
        wait_for(lambda: f"set text back colour {back}\n" in self.report.read_text(), "the colours of the icons")
        desktop.screen.focus("Wine desktop")
        desktop.message_box()
        desktop.answer("Return")
        desktop.calendar()
        return desktop

    def active(self, desktop, text):
        """Activates the calendar and waits until its title row has the colour of the icons' text."""
        colours = {"Fore": number(*text), "Inactive": INACTIVE}
        self.assertEqual(colours_in_title(desktop, desktop.screen.picture_at_rest(), colours), ["Inactive"])
        x, y, _, _ = desktop.on_screen(desktop.layout().header_rect(0))
        desktop.screen.click(x + 4, y + 4)
        wait_for(lambda: colours_in_title(desktop, desktop.screen.picture(), colours) == ["Fore"], "the desktop's text colour")
        desktop.screen.rest_pointer()
        return desktop.screen.picture_at_rest()

    def row_is(self, desktop, picture, text, back):
        """Every part of the title row is written in the text's colour on the ground."""
        layout = desktop.layout()
        for rect in (layout.previous_rect, layout.title_rect, layout.next_rect, *map(layout.header_rect, range(7))):
            inner = desktop.on_screen(rect).shrunk(2)
            self.assertTrue(near(picture.pixel(inner.left, inner.top), back, 0), f"{picture.pixel(inner.left, inner.top)}")
            self.assertGreater(picture.count(inner, text, 40), 3)

    def test_both_colours_reach_the_title_row_when_the_calendar_becomes_active(self):
        text, back = (250, 60, 200), (20, 60, 100)
        desktop = self.started(text, number(*back), **{"Trans Icons": 1})
        self.row_is(desktop, self.active(desktop, text), text, back)
        wait_for(lambda: "set text back colour -1\n" in self.report.read_text(), "icons without a background")
        picture = desktop.screen.picture_at_rest()
        self.row_is(desktop, picture, text, back)  # the calendar keeps what it found

    def test_without_transparent_icons_the_desktop_keeps_its_own(self):
        text, back = (40, 250, 200), (100, 20, 60)
        desktop = self.started(text, number(*back), **{"Trans Icons": 0})
        self.row_is(desktop, self.active(desktop, text), text, back)
        self.assertNotIn("set text back colour -1\n", self.report.read_text())

    def test_icons_without_a_background_give_a_dark_grey_one(self):
        text = (250, 60, 200)
        desktop = self.started(text, -1, **{"Trans Icons": 1})
        self.row_is(desktop, self.active(desktop, text), text, DARK_GREY)
