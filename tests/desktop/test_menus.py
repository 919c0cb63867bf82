"""The four popup menus, chosen from by mouse and keys, and the pictures in that of a day box."""
from harness.desktop import DESKTOP_COLOUR, WHITE, Desktop_Test, record
from harness.geometry import Layout, Rect
from harness.hands import item_rect, menu_gone, menu_rect, open_menu
from harness.picture import Picture, near
from harness.prefix import ROOT
from harness.waiting import wait_for

MARCH = 3


class Months_Menu(Desktop_Test):
    """A month that is chosen is drawn anew from the file, so an event that came into the file meanwhile tells whether one
    was."""

    def opened(self):
        desktop = self.desktop(settings={"Alignment": 3})
        desktop.started()
        desktop.activate()
        desktop.data_file.write_bytes(record("10/3/2004=Dentist"))
        return desktop, self.open_months(desktop, desktop.layout())

    @staticmethod
    def open_months(desktop, layout):
        return open_menu(desktop, desktop.on_screen(layout.next_rect, layout).centre)

    @staticmethod
    def has_event(desktop):
        return desktop.screen.picture().ink(desktop.caption_rect(10).shrunk(1), WHITE) > 30

    def month_stays(self, desktop):
        picture = desktop.screen.picture_at_rest()
        layout = desktop.layout()
        self.assertEqual(picture.ink(desktop.caption_rect(10).shrunk(1), WHITE), 0, "March isn't drawn anew")
        first = desktop.on_screen(layout.box_rect(0)).shrunk(2)
        self.assertGreater(picture.count(first, WHITE), 100, "March starts on a Monday")

    def test_a_click_on_the_grey_month_chooses_nothing_and_one_on_another_does(self):
        desktop, menu = self.opened()
        desktop.screen.click(*item_rect(menu, MARCH, 12).centre)
        if menu_rect(desktop):
            desktop.screen.key("Escape")
        menu_gone(desktop)
        self.month_stays(desktop)
        desktop.screen.click(*item_rect(self.open_months(desktop, desktop.layout()), 4, 12).centre)
        april = desktop.layout(2004, 4)
        unused = desktop.on_screen(april.box_rect(0), april).shrunk(1)
        wait_for(lambda: desktop.screen.picture().is_all(unused, DESKTOP_COLOUR), "April")
        desktop.screen.click(*item_rect(self.open_months(desktop, april), MARCH, 12).centre)
        wait_for(lambda: self.has_event(desktop), "March with the event")

    def test_the_keys_choose_no_grey_month_either(self):
        desktop, _ = self.opened()
        desktop.screen.key(*["Down"] * MARCH, "Return")
        menu_gone(desktop)
        self.month_stays(desktop)
        self.open_months(desktop, desktop.layout())
        desktop.screen.key(*["Down"] * 4, "Return")
        april = desktop.layout(2004, 4)
        unused = desktop.on_screen(april.box_rect(0), april).shrunk(1)
        wait_for(lambda: desktop.screen.picture().is_all(unused, DESKTOP_COLOUR), "April")

    def test_a_menu_opens_in_the_middle_below_the_pointer(self):
        desktop = self.desktop(settings={"Alignment": 3})
        desktop.started()
        desktop.activate()
        layout = desktop.layout()
        for place in (layout.title_rect, layout.header_rect(2), layout.box_rect(9)):
            x, y = desktop.on_screen(place).centre
            menu = open_menu(desktop, (x, y))
            self.assertAlmostEqual(menu.centre[0], x, delta=1)
            self.assertAlmostEqual(menu.top, y, delta=1)
            desktop.screen.key("Escape")
            menu_gone(desktop)


class Title_Menu(Desktop_Test):
    def shrunk(self):
        """A calendar at the top left that the user has shrunk, and its one-item menu."""
        desktop = self.desktop(settings={"Alignment": 6})
        desktop.started()
        desktop.activate()
        desktop.screen.key("F12")
        wait_for(lambda: desktop.calendar_window().rect.height < 40, "the title row alone")
        desktop.screen.picture_at_rest()
        return desktop, open_menu(desktop, desktop.on_screen(desktop.layout().title_rect).centre)

    def opens(self, desktop):
        wait_for(lambda: desktop.calendar_window().rect.height == desktop.layout().window_size[1], "the open calendar")
        picture = desktop.screen.picture_at_rest()
        self.assertGreater(picture.count(desktop.box_rect(10).shrunk(2), WHITE), 100)

    def test_expand_opens_the_shrunk_calendar_by_the_mouse(self):
        desktop, menu = self.shrunk()
        desktop.screen.click(*item_rect(menu, 1, 1).centre)
        self.opens(desktop)

    def test_expand_opens_the_shrunk_calendar_by_the_keys(self):
        desktop, _ = self.shrunk()
        desktop.screen.key("Down", "Return")
        self.opens(desktop)


class Start_Day_Menu(Desktop_Test):
    WEDNESDAY = 4

    def headers(self, desktop, picture):
        return [picture.part(desktop.on_screen(desktop.layout().header_rect(column)).shrunk(2)) for column in range(7)]

    def test_set_as_start_day_stores_the_weekday_and_turns_headers_and_boxes(self):
        desktop = self.desktop(settings={"Alignment": 6})  # where six rows move nothing
        desktop.started()
        desktop.activate()
        before = self.headers(desktop, desktop.screen.picture_at_rest())
        self.assertEqual(len(set(before)), 7)
        menu = open_menu(desktop, desktop.on_screen(desktop.layout().header_rect(2)).centre)
        desktop.screen.click(*item_rect(menu, 1, 1).centre)
        wait_for(lambda: self.headers(desktop, desktop.screen.picture()) == before[2:] + before[:2], "Wednesday in front")
        wait_for(lambda: desktop.stored("Settings", "Start Day") == str(self.WEDNESDAY), "the stored day")
        layout = Layout(desktop.settings["Style"], 2004, 3, self.WEDNESDAY)
        picture = desktop.screen.picture_at_rest()
        self.assertEqual(layout.first, 5)
        for box in range(5):
            self.assertTrue(picture.is_all(desktop.on_screen(layout.box_rect(box)).shrunk(1), DESKTOP_COLOUR), f"box {box}")
        self.assertGreater(picture.ink(desktop.number_rect(1, layout).shrunk(2), WHITE), 5)


class Menu_Pictures(Desktop_Test):
    NAMES = ("clear", "file", "settings", "exit")
    SIZE = 13

    def expected(self, name, ground):
        """The picture as the menu shows it: what was drawn on is the menu's own ground."""
        picture = Picture.of_file(ROOT / f"resources/{name}.bmp", self.SIZE, self.SIZE)
        drawn_on = picture.pixel(0, self.SIZE - 1)
        pixels = [picture.pixel(x, y) for y in range(self.SIZE) for x in range(self.SIZE)]
        self.assertGreater(sum(not near(pixel, drawn_on) for pixel in pixels), 20, f"{name} is more than its ground")
        return b"".join(bytes(ground if pixel == drawn_on else pixel) for pixel in pixels)

    def places(self, screen, row, expected):
        """The left edges at which the picture stands in the row of an item, whatever its height."""
        return [left for top in range(row.top, row.bottom - self.SIZE + 1)
                for left in range(row.left, row.right - self.SIZE + 1)
                if screen.part(Rect(left, top, left + self.SIZE, top + self.SIZE)) == expected]

    def test_the_four_pictures_stand_left_of_the_texts_of_the_box_menu(self):
        desktop = self.desktop(settings={"Alignment": 3})
        desktop.started()
        menu = open_menu(desktop, desktop.box_rect(10).centre)
        screen = desktop.screen.picture_at_rest()
        ground = screen.pixel(menu.right - 10, menu.bottom - 5)
        for number, name in enumerate(self.NAMES, 1):
            row = item_rect(menu, number, len(self.NAMES))
            found = self.places(screen, row, self.expected(name, ground))
            self.assertEqual(len(found), 1, f"the picture of {name}")
            left = row._replace(right=found[0])
            self.assertEqual(screen.count(left, ground, 0), left.width * left.height, f"nothing left of {name}")
            self.assertGreater(screen.ink(row._replace(left=found[0] + self.SIZE), ground), 20, f"the text behind {name}")
