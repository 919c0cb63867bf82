"""The calendar in the windows of newer shells, on screens beyond the first, under its own boxes, and when the shell ends."""
from harness.desktop import SHELL_COLOUR, WHITE, Desktop_Test
from harness.geometry import Rect
from harness.hands import Editor, balloon
from harness.waiting import wait_for

LAYERED = 0x80000
CLOSE = 16
END_OF_SHELL = 0x8000 + 2
SCREENS = 0x8000 + 3
MOVE_VIEW = 0x8000 + 4


class Shell_Test(Desktop_Test):
    def shell(self, chain="", left=0, top=0, **world):
        desktop = self.desktop(shell=True, **world)
        desktop.prefix.environment.update(MERIDEX_DESKTOP_CHAIN=chain, MERIDEX_DESKTOP_BEYOND_LEFT=str(left),
                                          MERIDEX_DESKTOP_BEYOND_TOP=str(top))
        return desktop

    @staticmethod
    def holder(desktop):
        """The shell's window that holds the calendar, and the calendar in it, as the probe sees them."""
        place = desktop.calendar_window().rect
        return next((window, child) for window in desktop.probe() for child in window["children"]
                    if Rect(*child["rect"]) == place and window["class"] != child["class"])

    def turns_the_month(self, desktop, ground=SHELL_COLOUR):
        """A click on the arrow; April 2004 starts on a Thursday, March on a Monday."""
        april = desktop.layout(2004, 4)
        unused = desktop.on_screen(april.box_rect(0), april).shrunk(2)
        self.assertGreater(desktop.screen.picture_at_rest().count(unused, WHITE), 100, "March")
        desktop.screen.click(*desktop.on_screen(april.next_rect, april).centre)
        wait_for(lambda: desktop.screen.picture().is_all(unused, ground), "April by the arrow")


class Newer_Shells(Shell_Test):
    def test_icons_in_a_worker_take_the_calendar_there(self):
        desktop = self.shell("workerw", settings={"Alignment": 4})
        self.assert_near(desktop.started(), desktop.place(), what="place")
        self.assertEqual(self.holder(desktop)[0]["class"], "WorkerW")
        self.turns_the_month(desktop)

    def test_a_desktop_that_keeps_no_bitmap_gets_a_layered_calendar(self):
        desktop = self.shell("raised", settings={"Alignment": 4})
        self.assert_near(desktop.started(), desktop.place(), what="place")
        top, calendar = self.holder(desktop)
        self.assertEqual(top["class"], "Progman")
        self.assertTrue(calendar["ex_style"] & LAYERED)
        self.turns_the_month(desktop)

    def test_a_desktop_that_keeps_none_and_refuses_layers_is_left_after_one_trial(self):
        for modern in (False, True):
            desktop = self.shell("raised", settings={"Alignment": 4}, events=["6/3/2004=Choir"], modern=modern)
            report = desktop.folder / "report.txt"
            desktop.prefix.environment.update(MERIDEX_DESKTOP_LAYERS="refused", MERIDEX_DESKTOP_REPORT="C:\\Meridex\\report.txt")
            desktop.start()
            lone = wait_for(desktop.lone_calendar, "the calendar before the desktop")
            desktop.screen.focus("Wine desktop")
            self.assert_near(lone["rect"], desktop.place(), what="place")
            self.assertFalse(lone["ex_style"] & LAYERED)
            self.turns_the_month(desktop)
            desktop.set_clock("2004-03-05 23:59:57")  # the box comes after more than one look for a desktop
            self.assertIn("Choir", desktop.message_box().text)
            self.assertEqual(report.read_text().count("layers refused"), 1)
            self.assertIsNotNone(desktop.lone_calendar())
            desktop.answer("Return")
            desktop.close()

    def test_a_desktop_that_keeps_one_gets_a_plain_calendar(self):
        desktop = self.shell()
        desktop.started()
        self.assertFalse(self.holder(desktop)[1]["ex_style"] & LAYERED)


class Screens_Beyond(Shell_Test):
    def test_the_calendar_stands_where_the_screen_says_and_takes_clicks(self):
        desktop = self.shell(left=300, top=200, settings={"Alignment": 4})
        self.assert_near(desktop.started(), desktop.place(), what="place")
        self.assertEqual(self.holder(desktop)[0]["rect"][:2], [-300, -200])
        self.turns_the_month(desktop)
        desktop.screen.key("F2")  # back, which places the window again
        wait_for(lambda: desktop.calendar_window().rect == desktop.place(), "the place of March")

    def test_screens_that_come_and_go_leave_it_where_it_was(self):
        desktop = self.shell(settings={"Alignment": 4})
        desktop.started()
        for left, top in ((300, 0), (300, 200), (0, 0)):
            desktop.post(desktop.shell_window()["handle"], SCREENS, left, top)
            wait_for(lambda: desktop.shell_window()["rect"][:2] == [-left, -top], "the desktop's new corner")
            wait_for(lambda: desktop.calendar_window().rect == desktop.place(), f"the calendar at its place, {left} {top}")
        self.turns_the_month(desktop)

    def test_a_drag_moves_it_and_stores_its_place_on_the_screen(self):
        desktop = self.shell(left=300, top=200, settings={"Alignment": 7, "Manual_PosX": 3000, "Manual_PosY": 3000,
                                                          "Use Theme Pos": 0})
        before = desktop.started()
        self.assert_near(before, desktop.place(), what="place")
        desktop.screen.click(*desktop.on_screen(desktop.layout().header_rect(0)).centre)  # it becomes active by this
        desktop.screen.picture_at_rest()
        start = desktop.on_screen(desktop.layout().title_rect).centre

        def window_is_moved(across, down):
            wait_for(lambda: desktop.calendar_window() and desktop.calendar_window().rect == before.moved(across, down),
                     f"the window {across} to the right and {down} down")

        desktop.screen.drag(start, (start[0] + 120, start[1] + 80), followed=window_is_moved)
        self.assertEqual(wait_for(lambda: desktop.stored("Settings", "Manual_PosX"), "the stored place"), str(3000 + 120 * 15))
        self.assertEqual(desktop.stored("Settings", "Manual_PosY"), str(3000 + 80 * 15))


class Boxes_And_The_Shell(Shell_Test):
    def assert_shell_enabled(self, desktop):
        self.assertTrue(desktop.shell_window()["enabled"])
        self.assertFalse(self.holder(desktop)[1]["enabled"], "the calendar takes no input under a box")

    def test_the_shell_stays_enabled_under_the_alert_of_midnight(self):
        desktop = self.shell(now="2004-03-31 23:59:55", events=["1/4/2004=Fools"])
        desktop.started()
        self.assertIn("Fools", desktop.message_box().text)
        self.assert_shell_enabled(desktop)
        desktop.answer("Return")

    def test_the_shell_stays_enabled_under_a_box_over_the_editor(self):
        desktop = self.shell(events=["5/3/2004=Dentist"], settings={"Alignment": 6, "Show Alerts": 0})
        desktop.started()
        editor = Editor(desktop).open(10)
        desktop.screen.click(*desktop.box_rect(12).centre, button=1)
        desktop.screen.key("F1")
        self.assertIn("Dentist", desktop.message_box().text)
        self.assert_shell_enabled(desktop)
        desktop.answer("Return")
        self.assertTrue(editor.there())


class Owners_Of_Boxes(Shell_Test):
    def owner(self, desktop, text):
        """The owner of the open box, which has that text; 0 if it has none."""
        self.assertIn(text, desktop.message_box().text)
        return next(window["owner"] for window in desktop.probe()
                    if window["class"] == "#32770" and window["text"] == "Meridex")

    def world(self, **world):
        return self.desktop(events=["5/3/2004=Dentist at nine", "6/3/2004=Choir", "10/3/2004=Dentist at nine"], **world)

    def test_the_calendar_owns_the_box_over_it(self):
        desktop = self.world(settings={"Alignment": 6, "Show Alerts": 0})
        desktop.started()
        desktop.activate()
        desktop.screen.key("F1")
        self.assertEqual(self.owner(desktop, "Dentist"), desktop.lone_calendar()["handle"])
        desktop.answer("Return")

    def test_the_editor_owns_the_box_over_it(self):
        for shell in (False, True):
            desktop = self.world(settings={"Alignment": 6}, shell=shell, now="2004-03-04 09:00:00")
            desktop.started()
            Editor(desktop).open(10)
            desktop.set_clock("2004-03-05 00:00:01")
            owner = self.owner(desktop, "Dentist")
            title = next(window["text"] for window in desktop.probe() if window["handle"] == owner)
            self.assertTrue(title.startswith(Editor.TITLE), title)
            desktop.answer("Return")
            desktop.close()

    def test_a_box_over_a_balloon_belongs_to_the_calendar(self):
        desktop = self.world(settings={"Tooltips": 2, "Alignment": 4, "Show Alerts": 1}, now="2004-03-04 09:00:00")
        desktop.started()
        desktop.screen.press(*desktop.caption_rect(10).centre)
        wait_for(lambda: balloon(desktop), "the balloon")
        desktop.screen.release()
        desktop.set_clock("2004-03-05 00:00:01")
        self.assertEqual(self.owner(desktop, "Dentist"), desktop.lone_calendar()["handle"])
        desktop.answer("Return")

    def test_as_a_part_of_the_desktop_the_calendar_owns_none_and_the_splash_neither(self):
        for splash in (0, 1):
            desktop = self.world(settings={"Show Splash": splash, "Show Alerts": 1}, shell=True)
            desktop.start()
            self.assertEqual(self.owner(desktop, "Dentist"), 0, f"splash {splash}")
            desktop.answer("Return")
            desktop.close()


class Shell_Begins_Again(Shell_Test):
    def begun_again(self, **world):
        desktop = self.shell(settings={"Alignment": 4}, events=["6/3/2004=Choir"], **world)
        desktop.started()
        before = desktop.shell_window()["handle"]
        desktop.post(before, END_OF_SHELL, 1)
        wait_for(lambda: (desktop.shell_window() or {"handle": before})["handle"] != before, "the new shell")
        return desktop

    def test_with_the_consent_the_calendar_becomes_a_part_of_it(self):
        desktop = self.begun_again(modern=True)
        wait_for(lambda: desktop.calendar_window() and not desktop.lone_calendar(), "the calendar on the new desktop")
        self.assert_near(desktop.calendar_window().rect, desktop.place(), what="place")
        self.turns_the_month(desktop)

    def test_without_it_the_calendar_stays_an_ordinary_window(self):
        desktop = self.begun_again()
        wait_for(desktop.lone_calendar, "the calendar beside the new desktop")
        desktop.set_clock("2004-03-05 23:59:57")  # the box comes after more than one look for a desktop
        self.assertIn("Choir", desktop.message_box().text)
        self.assertIsNotNone(desktop.lone_calendar())
        self.assertIsNone(desktop.calendar_window())
        desktop.answer("Return")


class View_Of_The_Icons_Moves(Shell_Test):
    def moved(self, desktop, to_worker):
        shell = desktop.shell_window()
        desktop.post(shell["handle"], MOVE_VIEW, int(to_worker))
        wait_for(lambda: self.view_is_in(desktop) == ("WorkerW" if to_worker else "Progman"), "the view to move")

    @staticmethod
    def view_is_in(desktop):
        return next(window["class"] for window in desktop.probe()
                    if any(child["class"] == "SHELLDLL_DefView" for child in window["children"]))

    def holder_class(self, desktop):
        return self.holder(desktop)[0]["class"] if desktop.calendar_window() else None

    def test_with_the_consent_the_calendar_follows_to_the_worker_and_back(self):
        desktop = self.shell(settings={"Alignment": 4}, modern=True)
        desktop.started()
        for to_worker in (True, False, True):
            self.moved(desktop, to_worker)
            there = "WorkerW" if to_worker else "Progman"
            wait_for(lambda: self.holder_class(desktop) == there, f"the calendar in the {there}")
            self.assert_near(desktop.calendar_window().rect, desktop.place(), what="place")
        self.turns_the_month(desktop)

    def test_without_it_the_calendar_stays(self):
        desktop = self.shell(settings={"Alignment": 4, "Show Alerts": 1}, events=["6/3/2004=Choir"])
        desktop.started()
        self.moved(desktop, True)
        desktop.set_clock("2004-03-05 23:59:57")  # the box comes after more than one look for a desktop
        self.assertIn("Choir", desktop.message_box().text)
        self.assertEqual(self.holder_class(desktop), "Progman")
        desktop.answer("Return")


class End_Of_The_Shell(Shell_Test):
    GROUND = (58, 110, 165)

    def without_shell(self, **world):
        desktop = self.shell(**world)
        program = desktop.start()
        desktop.calendar()
        desktop.post(desktop.shell_window()["handle"], END_OF_SHELL)
        wait_for(lambda: desktop.shell_window() is None and desktop.lone_calendar(), "the calendar without the shell")
        return desktop, program

    def test_the_calendar_stands_at_its_place_and_takes_clicks(self):
        desktop, _ = self.without_shell(settings={"Alignment": 4})
        self.assert_near(desktop.lone_calendar()["rect"], desktop.place(), what="place")
        layout = desktop.layout()
        picture = desktop.screen.picture_at_rest()
        for row in range(4):
            self.assertTrue(picture.is_all(desktop.on_screen(layout.row_gap(row)).shrunk(1), self.GROUND), f"row {row}")
        self.turns_the_month(desktop, self.GROUND)

    def test_its_clock_goes_on(self):
        desktop, _ = self.without_shell(settings={"Alignment": 4}, events=["6/3/2004=Choir"])
        desktop.set_clock("2004-03-06 00:00:01")
        self.assertIn("Choir", desktop.message_box().text)
        desktop.answer("Return")

    def test_no_process_stays_behind_when_it_closes(self):
        desktop, program = self.without_shell()
        desktop.post(desktop.lone_calendar()["handle"], CLOSE)
        self.assertEqual(desktop.exit_status(program), 0)

    def test_an_open_balloon_survives_it(self):
        desktop = self.shell(events=["10/3/2004=Dentist at nine"], settings={"Tooltips": 2, "Alignment": 4})
        desktop.started()
        desktop.screen.click(*desktop.box_rect(4).centre)
        desktop.screen.press(*desktop.caption_rect(10).centre)
        place = wait_for(lambda: balloon(desktop), "the balloon")
        desktop.screen.release()
        desktop.post(desktop.shell_window()["handle"], END_OF_SHELL)
        wait_for(desktop.lone_calendar, "the calendar without the shell")
        self.assertEqual(balloon(desktop), place)
        desktop.screen.click(*place.centre)
        wait_for(lambda: balloon(desktop) is None, "its end")

    def test_an_open_box_survives_it(self):
        desktop = self.shell(events=["5/3/2004=Dentist"], settings={"Alignment": 6, "Show Alerts": 0})
        desktop.started()
        desktop.screen.click(*desktop.on_screen(desktop.layout().header_rect(0)).centre)
        desktop.screen.key("F1")
        desktop.message_box()
        desktop.post(desktop.shell_window()["handle"], END_OF_SHELL)
        wait_for(desktop.lone_calendar, "the calendar without the shell")
        self.assertFalse(desktop.lone_calendar()["enabled"])
        desktop.answer("Return")
        wait_for(lambda: desktop.lone_calendar()["enabled"], "a calendar that takes input again")
