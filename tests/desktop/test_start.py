"""The program's start and its ends."""
import shutil

from harness.desktop import BUILD, PROGRAM, Desktop_Test
from harness.hands import TITLE_COLOURS, wait_for_title
from harness.waiting import wait_for


class Start(Desktop_Test):
    def test_an_alert_comes_before_the_calendar_and_return_closes_it(self):
        desktop = self.desktop(events=["4/3/2004=Yesterday", "5/3/2004=Dentist && Tom", "5/3/9999=Second"])
        desktop.start()
        box = desktop.message_box()
        self.assertEqual(box.text, "Today: 05/03/2004\r\n\r\nDentist & Tom")
        self.assertEqual(box.buttons, ["OK"])
        self.assertIsNone(desktop.calendar_window())
        desktop.answer("Return")
        desktop.calendar()
        self.assertIsNone(desktop.framed_window("Meridex"))

    def test_no_alert_comes_when_alerts_are_off(self):
        desktop = self.desktop(events=["5/3/2004=Dentist"], settings={"Show Alerts": 0})
        desktop.started()
        self.assertEqual(len(desktop.windows()), 1)

    def test_a_second_start_closes_the_first(self):
        desktop = self.desktop()
        first = desktop.start()
        desktop.calendar()
        second = desktop.start()
        self.assertEqual(desktop.exit_status(first), 0)
        wait_for(lambda: len(desktop.windows()) == 1, "one calendar")
        desktop.calendar()
        self.assertIsNone(second.poll(), "the second goes on")

    def test_another_programs_window_of_the_same_title_is_left_alone(self):
        desktop = self.desktop()
        desktop.show_foreign_window("Meridex")
        desktop.started()
        self.assertTrue(desktop.foreign_window("Meridex"))

    def ends_with(self, number, description, **stored):
        desktop = self.desktop(**stored)
        program = desktop.start()
        box = desktop.message_box()
        self.assertIn(str(number), box.text)
        self.assertIn(description, box.text)
        self.assertIsNone(desktop.calendar_window())
        desktop.answer("Return")
        self.assertEqual(desktop.exit_status(program), 1)

    def test_a_stored_text_that_is_no_number_ends_the_program_with_its_report(self):
        self.ends_with(13, "Type mismatch", settings={"Timeout Value": "soon"})

    def test_a_stored_number_beyond_its_type_ends_the_program_with_its_report(self):
        self.ends_with(6, "Overflow", settings={"Manual_PosX": 40000})

    def test_a_colour_that_is_no_number_ends_the_program_with_its_report(self):
        self.ends_with(13, "Type mismatch", colours={"Today": ""})

    def test_without_a_file_the_calendar_is_empty_and_none_is_made(self):
        desktop = self.desktop()
        desktop.started()
        self.assertFalse(desktop.data_file.exists())

    def test_a_bad_line_is_told_and_the_calendar_comes_up(self):
        desktop = self.desktop(data=b'"10/3/2004=Dentist"\r\nnonsense\r\n"11/3/2004=Lost"\r\n')
        desktop.start()
        self.assertEqual(desktop.message_box("ERROR").text, "Error loading in data file.")
        desktop.answer("Return", "ERROR")
        desktop.calendar()
        picture = desktop.screen.picture_at_rest()
        self.assertGreater(picture.ink(desktop.caption_rect(10).shrunk(1), (255, 255, 255)), 30)
        self.assertEqual(picture.ink(desktop.caption_rect(11).shrunk(1), (255, 255, 255)), 0)


class Uncaught_Failures(Desktop_Test):
    """A failure that comes out of the middle of another one, or where none may come out, ends the program at once."""

    def ends_with(self, way, text):
        desktop = self.desktop()
        shutil.copy2(BUILD / "tests/desktop/desktop_uncaught.exe", desktop.folder / PROGRAM)
        program = desktop.prefix.start(f"C:\\Meridex\\{PROGRAM}", way)
        desktop.programs.append(program)
        box = desktop.message_box()
        self.assertEqual((box.text, box.buttons), (text, ["OK"]))
        self.assertIsNone(program.poll(), "it waits for its box")
        desktop.answer("Return")
        self.assertEqual(desktop.exit_status(program), 1)

    def test_out_of_a_function_that_lets_none_out(self):
        self.ends_with("noexcept", "Error 61: Disk full")

    def test_in_the_middle_of_another_failure(self):
        self.ends_with("within", "Error 70: Permission denied")

    def test_an_end_without_a_failure(self):
        self.ends_with("nothing", "Unknown error")


class Title_Row(Desktop_Test):
    def test_the_title_row_follows_the_active_window(self):
        desktop = self.desktop(colours=TITLE_COLOURS)
        desktop.started()
        x, y = desktop.box_rect(10).centre
        desktop.screen.click(x, y)
        wait_for_title(desktop, "Fore")
        desktop.programs.append(desktop.prefix.start("notepad"))
        wait_for(lambda: desktop.screen.windows("notepad.exe"), "another program's window")
        wait_for_title(desktop, "Inactive")
