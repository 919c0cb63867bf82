"""The program's windows as a screen reader in another process hears them."""
from harness import reader
from harness.desktop import Desktop_Test
from harness.hands import Editor, menu_gone, open_menu
from harness.reader import Reader
from harness.settings import Settings_Window
from harness.waiting import wait_for

LONG = "Dentist at nine, then the bank & the post office, and the train at half past six"
FAILURE = 0x80000000  # errors of the system begin here
NOT_CONNECTED = 0x800401FD
EVENTS = ["8/3/2004=" + LONG.replace("&", "&&"), "9/3/9999=Birthday"]


class Reading_The_Calendar(Desktop_Test):
    def started(self, **world):
        desktop = self.desktop(**{"events": EVENTS, **world})
        desktop.started()
        return desktop, Reader(desktop)

    def test_the_month_is_read_day_by_day(self):
        desktop, heard = self.started()
        calendar = heard.read()
        self.assertEqual((calendar.role, calendar.name), (reader.CLIENT, "Meridex"))
        days = calendar.visible(reader.CELL)
        self.assertEqual(len(days), 31)
        self.assertEqual(days[0].name, "Monday, 1 March 2004")
        self.assertEqual(days[4].name, "Friday, 5 March 2004, today")
        self.assertEqual(days[7].name, "Monday, 8 March 2004, " + LONG)
        self.assertEqual(days[8].name, "Tuesday, 9 March 2004, Birthday")
        self.assertEqual(days[30].name, "Wednesday, 31 March 2004")
        for number, day in enumerate(days, 1):
            self.assertEqual(day.rect, desktop.box_rect(number), day.name)

    def test_the_dates_are_in_the_users_language(self):
        _, heard = self.started(language="de_DE")
        days = heard.read().visible(reader.CELL)
        self.assertEqual(days[0].name, "Montag, 1. M\u00e4rz 2004")
        self.assertEqual(days[4].name, "Freitag, 5. M\u00e4rz 2004, today")

    def test_under_the_desktops_own_window_it_is_read_as_well(self):
        desktop, heard = self.started(shell=True)
        days = heard.read().visible(reader.CELL)
        self.assertEqual((len(days), days[7].name), (31, "Monday, 8 March 2004, " + LONG))
        self.assertEqual(days[7].rect, desktop.box_rect(8))

    def test_a_balloon_is_called_by_all_that_it_shows(self):
        desktop, _ = self.started(settings={"Tooltips": 2})
        desktop.screen.press(*desktop.caption_rect(9).centre)
        wait_for(lambda: Reader(desktop).read().name == "4 days time, Birthday", "the balloon's name")
        desktop.screen.release()

    def test_title_arrows_and_headers_are_read_where_they_stand(self):
        desktop, heard = self.started()
        calendar, layout = heard.read(), desktop.layout()
        self.assertEqual(calendar.rect, desktop.place())
        for name, rect in (("Previous month", layout.previous_rect), ("Next month", layout.next_rect)):
            arrow = calendar.one(reader.PUSH_BUTTON, name)
            self.assertEqual((arrow.rect, arrow.action), (desktop.on_screen(rect), "Press"))
        self.assertEqual([header.name for header in calendar.visible(reader.COLUMN_HEADER)],
                         ["Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday", "Sunday"])
        self.assertEqual(calendar.one(reader.TEXT).rect, desktop.on_screen(layout.title_rect))

    def test_what_is_under_the_pointer_is_found(self):
        desktop, heard = self.started()
        day = "Monday, 8 March 2004, " + LONG
        self.assertEqual(heard.hit(*desktop.number_rect(8).centre).name, day)
        self.assertEqual(heard.hit(*desktop.caption_rect(8).centre).name, day, "number and caption are one")
        self.assertEqual(heard.hit(*desktop.on_screen(desktop.layout().next_rect).centre).name, "Next month")
        ground = desktop.on_screen(desktop.layout().row_gap(1)).centre
        self.assertEqual(heard.hit(*ground).number, 0, "the ground between the boxes is the window itself")
        self.assertIsNone(heard.hit(5, 5))

    def test_the_way_from_one_to_the_next_leads_through_all_that_is_seen(self):
        _, heard = self.started()
        self.assertEqual(heard.walk(), [thing.name for thing in heard.read().visible()])

    def test_the_reader_turns_the_month_and_hears_of_it(self):
        _, heard = self.started()
        told = heard.listen()
        heard.act("Next month")
        wait_for(lambda: ("order", 0) in told(), "the news of another month")
        days = heard.read().visible(reader.CELL)
        self.assertEqual((len(days), days[0].name), (30, "Thursday, 1 April 2004"))

    def test_under_a_menu_the_reader_turns_no_month(self):
        desktop, heard = self.started()
        desktop.activate()
        open_menu(desktop, desktop.box_rect(4).centre)
        heard.act("Next month")
        self.assertEqual(len(heard.read().visible(reader.CELL)), 31)
        desktop.screen.key("Escape")
        menu_gone(desktop)
        self.assertEqual(len(heard.read().visible(reader.CELL)), 31)
        heard.act("Next month")
        wait_for(lambda: len(heard.read().visible(reader.CELL)) == 30, "April")

    def test_the_titles_new_time_is_told_by_the_titles_number(self):
        desktop, heard = self.started(settings={"Bar Time": "True"})
        title = heard.read().one(reader.TEXT)
        told = heard.listen()
        desktop.set_clock("2004-03-05 09:30:00")
        wait_for(lambda: ("name", title.number) in told(), "the news of the title")
        self.assertNotEqual(heard.read().one(reader.TEXT).name, title.name)

    def test_at_midnight_another_day_is_heard_as_today(self):
        desktop, heard = self.started()
        told = heard.listen()
        desktop.set_clock("2004-03-06 00:00:01")
        wait_for(lambda: ("order", 0) in told(), "the news of the day")
        days = [day.name for day in heard.read().visible(reader.CELL)]
        self.assertEqual([day for day in days if "today" in day], ["Saturday, 6 March 2004, today"])

    def test_the_reader_opens_the_editor_and_reads_it(self):
        desktop, heard = self.started()
        heard.act("Monday, 8 March 2004, " + LONG)
        editor = Reader(desktop, "Meridex - ").read()
        self.assertEqual(editor.role, reader.DIALOG)
        text = editor.one(reader.TEXT_BOX)
        self.assertEqual((text.name, text.value), ("Monday 8th March 2004", LONG))
        self.assertTrue(text.state & reader.FOCUSED)
        self.assertEqual(editor.one(reader.PUSH_BUTTON, "OK").keys, "Alt+O")
        self.assertTrue(editor.one(reader.PUSH_BUTTON, "Apply").state & reader.UNAVAILABLE)

    def test_a_single_new_event_is_told_by_the_number_of_its_day(self):
        desktop, heard = self.started()
        told = heard.listen()
        editor = Editor(desktop).open(10)
        desktop.screen.type("Choir")
        desktop.screen.key("Return")
        editor.gone()
        day = next(day for day in heard.read().visible(reader.CELL) if day.name.endswith("Choir"))
        wait_for(lambda: ("name", day.number) in told(), "the news of the day's event")

    def test_the_program_ends_in_order_though_a_reader_has_hold_of_it(self):
        desktop, heard = self.started()
        told = heard.hold()
        instance = next(window for window in desktop.probe() if window["class"] == "Meridex_Instance")
        desktop.post(instance["handle"], 16)  # WM_CLOSE
        self.assertEqual(desktop.exit_status(desktop.programs[0]), 0)
        self.assertGreaterEqual(wait_for(told, "the reader's error"), FAILURE)

    def test_in_compact_mode_the_title_alone_is_read(self):
        _, heard = self.started()
        heard.act(heard.read().one(reader.TEXT).name)
        wait_for(lambda: len(heard.read().visible()) == 1, "the title alone")


class Reading_The_Settings(Desktop_Test):
    def opened(self, tab):
        desktop = self.desktop(settings={"Settings Tab": tab})
        desktop.started()
        window = Settings_Window(desktop).open()
        return window, Reader(desktop, "Meridex Settings")

    def test_tabs_and_ticks_are_read_with_their_states(self):
        window, heard = self.opened(3)
        settings = heard.read()
        tabs = settings.one(reader.TABS).children
        self.assertEqual([tab.name for tab in tabs],
                         ["Events", "Colours", "Settings", "Style & Position", "Tooltips", "Wallpaper",
                          "Import\\Export", "About"])
        self.assertEqual([tab.name for tab in tabs if tab.state & reader.SELECTED], ["Settings"])
        self.assertTrue(all(tab.role == reader.TAB and tab.rect.width > 20 and tab.rect.height > 10 for tab in tabs))
        ticks = {box.name: bool(box.state & reader.CHECKED) for box in settings.visible(reader.CHECK_BOX)}
        self.assertFalse(ticks["Splash Screen"])
        self.assertTrue(ticks["Alert me when a date Comes up"])
        self.assertNotIn("Use Pack Style", ticks, "that is another page's")
        self.assertEqual(settings.one(reader.DROP_DOWN, "Date:").value, "d Month - yyyy")
        self.assertTrue(settings.one(reader.DROP_DOWN, "Compact Mode after").state & reader.UNAVAILABLE)
        self.assertIn("Title Bar", [group.name for group in settings.visible(reader.GROUP)])
        splash = settings.one(reader.CHECK_BOX, "Splash Screen")
        self.assert_near(splash.rect, window.place(1890, 360, 1635, 240, (0, 1305)), 1, "its place")

    def test_the_items_of_a_drop_down_list_stand_where_they_are_picked_while_it_is_open(self):
        window, heard = self.opened(3)
        screen = window.desktop.screen

        def dates():
            return heard.read().one(reader.DROP_DOWN, "Date:")

        box = dates()
        self.assertEqual([item.name for item in box.children][:2], ["mm/yyyy", "dd/mm/yyyy"])
        self.assertEqual([item.name for item in box.children if item.state & reader.SELECTED], [box.value])
        self.assertTrue(all(item.state & reader.OFF_SCREEN for item in box.children), "it is closed")
        screen.click(box.rect.right - 8, box.rect.centre[1])
        wait_for(lambda: not any(item.state & reader.OFF_SCREEN for item in dates().children), "the open list")
        screen.click(*dates().children[1].rect.centre)
        wait_for(lambda: dates().value == "dd/mm/yyyy", "the date's form that was picked")
        self.assertTrue(all(item.state & reader.OFF_SCREEN for item in dates().children), "it is closed again")

    def test_a_reader_that_has_hold_of_a_closed_window_hears_that_it_is_gone(self):
        window, heard = self.opened(3)
        told = heard.hold()
        window.desktop.screen.key("Escape")
        window.gone()
        self.assertEqual(wait_for(told, "the reader's error"), NOT_CONNECTED)

    def test_the_reader_turns_to_a_tab_and_ticks(self):
        _, heard = self.opened(3)
        heard.act("Splash Screen")
        wait_for(lambda: heard.read().one(reader.CHECK_BOX, "Splash Screen").state & reader.CHECKED, "the tick")
        heard.focus("Alert me when a date Comes up")
        wait_for(lambda: heard.read().one(reader.CHECK_BOX, "Alert me when a date Comes up").state & reader.FOCUSED,
                 "the focus")
        heard.act("Tooltips")
        wait_for(lambda: len(heard.read().visible(reader.OPTION)) == 3, "the options of the tooltips")
