"""A second compiler's program: a 64-bit one, so it isn't among the cases of the 32-bit run."""
from harness.desktop import PROGRAM, Desktop_Test, record
from harness.prefix import ROOT


class Second_Compiler(Desktop_Test):
    def test_its_program_shows_an_alert_writes_an_event_and_ends(self):
        desktop = self.desktop(events=["5/3/2004=Dentist"], settings={"Alignment": 3},
                               program=ROOT / "build/windows-x64-clang/src/main" / PROGRAM)
        program = desktop.start()
        self.assertEqual(desktop.message_box().text, "Today: 05/03/2004\r\n\r\nDentist")
        desktop.answer("Return")
        desktop.calendar()
        desktop.screen.double_click(*desktop.box_rect(12).centre)
        desktop.find_window("Meridex - ")
        desktop.screen.type("Choir")
        desktop.screen.key("Return")
        desktop.window_gone("Meridex - ")
        self.assertEqual(desktop.data_file.read_bytes(), record("5/3/2004=Dentist") + record("12/3/2004=Choir"))
        desktop.screen.click(*desktop.box_rect(12).centre, button=3)
        desktop.menu_choose(4)
        self.assertEqual(desktop.exit_status(program), 0)
