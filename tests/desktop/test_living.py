"""A day with the calendar: writing an event, the menus, the keys, a drag and midnight."""
from harness import geometry
from harness.desktop import DESKTOP_COLOUR, WHITE, Desktop_Test
from harness.picture import rgb
from harness.waiting import wait_for

TODAY_COLOUR = rgb(16761024)
EDITOR = "Meridex - "


class Editor(Desktop_Test):
    def open_editor(self, desktop, day):
        desktop.started()
        desktop.screen.double_click(*desktop.box_rect(day).centre)
        return desktop.find_window(EDITOR)

    def wait_for_file(self, desktop, content):
        wait_for(lambda: desktop.data_file.exists() and desktop.data_file.read_bytes() == content, f"the file to hold {content}")

    def test_a_typed_event_stands_in_its_box_and_in_the_file(self):
        desktop = self.desktop()
        self.open_editor(desktop, 10)
        desktop.screen.type('Tom & "Jane"')
        desktop.find_window("Meridex - 12 Characters - 3 Words.")
        desktop.screen.key("Return")
        desktop.window_gone(EDITOR)
        self.wait_for_file(desktop, b"\"10/3/2004=Tom && 'Jane'\"\r\n")
        picture = desktop.screen.picture_at_rest()
        self.assertGreater(picture.ink(desktop.caption_rect(10).shrunk(1), WHITE), 30)
        self.assertEqual(picture.ink(desktop.caption_rect(11).shrunk(1), WHITE), 0)

    def test_two_lines_with_an_accent_are_stored_byte_for_byte(self):
        desktop = self.desktop(settings={"Carriage_Return": 1}, keyboard="fr")
        self.open_editor(desktop, 10)
        desktop.screen.type("Caf")
        desktop.screen.key("eacute", "Return")
        desktop.screen.type("noon")
        desktop.find_window("Meridex - 10 Characters - 2 Words.")
        desktop.screen.key("Tab", "Tab", "space")  # over the check box to OK
        desktop.window_gone(EDITOR)
        self.wait_for_file(desktop, b'"10/3/2004=Caf\xe9\r\nnoon"\r\n')

    def test_escape_leaves_the_file_alone(self):
        desktop = self.desktop(events=["10/3/2004=Dentist"])
        self.open_editor(desktop, 10)
        desktop.screen.type("x")
        desktop.screen.key("Escape")
        desktop.window_gone(EDITOR)
        self.assertEqual(desktop.data_file.read_bytes(), b'"10/3/2004=Dentist"\r\n')


class Menus(Desktop_Test):
    def test_clear_takes_the_event_out_of_the_box_and_of_the_file(self):
        desktop = self.desktop(events=["10/3/2004=Dentist", "11/3/2004=Choir"])
        desktop.started()
        desktop.screen.click(*desktop.box_rect(10).centre, button=3)
        desktop.menu_choose(1)
        wait_for(lambda: desktop.data_file.read_bytes() == b'"11/3/2004=Choir"\r\n', "the record to go")
        desktop.screen.rest_pointer()
        wait_for(lambda: desktop.screen.picture().ink(desktop.caption_rect(10).shrunk(1), WHITE) == 0, "an empty box")

    def test_exit_ends_the_program(self):
        desktop = self.desktop()
        program = desktop.start()
        desktop.calendar()
        desktop.screen.click(*desktop.box_rect(10).centre, button=3)
        desktop.menu_choose(4)
        self.assertEqual(desktop.exit_status(program), 0)


class Keys(Desktop_Test):
    def test_f9_goes_through_the_styles_and_stores_each(self):
        desktop = self.desktop()
        desktop.started()
        desktop.activate()
        for style in (geometry.SMALL, geometry.THIN, geometry.SQUARE):
            desktop.screen.key("F9")
            desktop.settings["Style"] = style
            wait_for(lambda: desktop.calendar_window() and desktop.calendar_window().rect.width ==
                     desktop.layout().window_size[0], f"style {style}")
            self.assertEqual(desktop.stored("Settings", "Style"), str(style))
        self.assert_near(desktop.calendar(), desktop.place(), what="place")

    def test_f4_and_the_arrow_turn_the_month(self):
        desktop = self.desktop(settings={"Alignment": 4})
        desktop.started()
        desktop.activate()
        desktop.screen.key("F4")
        april = desktop.layout(2004, 4)
        unused = desktop.on_screen(april.box_rect(0), april)  # April 2004 starts on a Thursday
        wait_for(lambda: desktop.screen.picture().is_all(unused.shrunk(1), DESKTOP_COLOUR), "April")
        desktop.screen.click(*desktop.on_screen(april.previous_rect, april).centre)
        wait_for(lambda: desktop.screen.picture().count(unused.shrunk(2), WHITE) > 100, "March")


class Dragging(Desktop_Test):
    def test_a_drag_moves_the_window_and_stores_its_place(self):
        desktop = self.desktop(settings={"Alignment": 7, "Manual_PosX": 3000, "Manual_PosY": 3000, "Use Theme Pos": 0})
        before = desktop.started()
        x, y = desktop.on_screen(desktop.layout().title_rect).centre

        def window_is_moved(across, down):
            wait_for(lambda: desktop.calendar_window() and desktop.calendar_window().rect == before.moved(across, down),
                     f"the window {across} to the right and {down} down")

        desktop.screen.drag((x, y), (x + 120, y + 80), followed=window_is_moved)
        window_is_moved(120, 80)
        self.assertEqual(wait_for(lambda: desktop.stored("Settings", "Manual_PosX"), "the stored place"), str(3000 + 120 * 15))
        self.assertEqual(desktop.stored("Settings", "Manual_PosY"), str(3000 + 80 * 15))


class Midnight(Desktop_Test):
    def today_is(self, desktop, day, layout):
        rect = desktop.on_screen(layout.number_rect(layout.box_of(day)), layout).shrunk(2)
        return desktop.screen.picture().share(rect, TODAY_COLOUR) > 0.5

    def test_midnight_turns_the_day_and_raises_the_alert(self):
        desktop = self.desktop(now="2004-03-31 23:59:57", events=["1/4/2004=Fools"])
        desktop.started()
        box = desktop.message_box()
        self.assertEqual(box.text, "Today: 01/04/2004\r\n\r\nFools")
        desktop.answer("Return")
        april = desktop.layout(2004, 4)
        wait_for(lambda: self.today_is(desktop, 1, april), "1 April marked")

    def test_a_clock_set_back_turns_the_day_too(self):
        desktop = self.desktop()
        desktop.started()
        self.assertTrue(self.today_is(desktop, 5, desktop.layout()))
        desktop.set_clock("2004-03-03 12:00:00")
        wait_for(lambda: self.today_is(desktop, 3, desktop.layout()), "3 March marked")
        self.assertFalse(self.today_is(desktop, 5, desktop.layout()))
