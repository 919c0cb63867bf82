"""A desktop whose places are beyond 16 bits of twips: the calendar asks whether it shall work on such desktops."""
from harness.desktop import Desktop_Test, record
from harness.hands import Editor, wait_for_file
from harness.waiting import wait_for

LARGE = (2560, 1440)
MOVE_WORK_AREA = 0x8001  # the stand-in's message
ADVICE = ("Your desktop is larger than this calendar was first made for.\r\n\r\n"
          "Would you like it to work on large desktops from now on? It then opens right away and won't ask again; your events "
          "and settings stay as they are.\r\n\r\n"
          "If you choose No, the calendar closes.")


class Large_Desktop(Desktop_Test):
    def asked(self, desktop):
        program = desktop.start()
        box = desktop.message_box()
        self.assertEqual((box.text.replace("\r\n", "\n"), box.buttons), (ADVICE.replace("\r\n", "\n"), ["Yes", "No"]))
        return program

    def end(self, desktop, program):
        desktop.screen.key("alt+F4")
        self.assertEqual(desktop.exit_status(program), 0)

    def test_yes_goes_on_to_the_calendar_and_is_asked_for_once(self):
        desktop = self.desktop(size=LARGE, events=["11/3/2004=Choir"])
        program = self.asked(desktop)
        desktop.answer("Return")
        self.assert_near(desktop.calendar(), desktop.place(), what="the calendar after the question")
        self.assertEqual(desktop.stored("Desktop", "Modern"), "1")
        self.assertIsNone(program.poll())
        self.saves(desktop)
        self.assertEqual(len(self.instance_windows(desktop)), 1, "nothing is left of the program that asked")
        later = desktop.start()
        self.assertEqual(desktop.exit_status(program), 0)
        self.assert_near(desktop.calendar(), desktop.place(), what="the calendar of the next start")
        self.assertFalse(desktop.framed_window("Meridex"), "a question")
        desktop.activate()
        self.end(desktop, later)

    def saves(self, desktop):
        """The calendar that the question made is a whole one."""
        editor = Editor(desktop).open(10)
        desktop.screen.type("Tea")
        editor.counts(3, 1)
        desktop.screen.key("Return")
        editor.gone()
        wait_for_file(desktop, record("11/3/2004=Choir") + record("10/3/2004=Tea"))

    @staticmethod
    def instance_windows(desktop):
        return [window for window in desktop.probe() if window["class"] == "Meridex_Instance"]

    def test_no_ends_the_program_with_status_1_and_stores_nothing(self):
        desktop = self.desktop(size=LARGE)
        program = self.asked(desktop)
        desktop.screen.key("Right", "Return")
        self.assertEqual(desktop.exit_status(program), 1)
        self.assertFalse(desktop.stored("Desktop", "Modern"))
        self.asked(desktop)

    def test_a_yes_that_cannot_be_stored_is_told_and_ends_the_program_with_status_1(self):
        desktop = self.desktop(size=LARGE, refused="Desktop")
        program = self.asked(desktop)
        desktop.screen.key("Return")
        wait_for(lambda: desktop.message_box().buttons == ["OK"], "the report after the question")
        self.assertTrue(desktop.message_box().text.startswith("Error 75: "), desktop.message_box().text)
        desktop.answer("Return")
        self.assertEqual(desktop.exit_status(program), 1)

    def test_a_work_area_that_grows_under_an_open_editor_asks_too(self):
        desktop = self.desktop(events=["11/3/2004=Choir"], shell=True)
        program = desktop.start()
        desktop.calendar()
        editor = Editor(desktop).open(10)
        desktop.post(desktop.shell_window()["handle"], MOVE_WORK_AREA, 0, LARGE[0] | LARGE[1] << 16)
        box = desktop.message_box()
        self.assertEqual((box.text.replace("\r\n", "\n"), box.buttons), (ADVICE.replace("\r\n", "\n"), ["Yes", "No"]))
        desktop.answer("Return")
        editor.gone()
        wait_for(desktop.calendar_window, "the calendar after the question")
        self.assertIsNone(program.poll())
        self.assertEqual(desktop.stored("Desktop", "Modern"), "1")
        self.assertEqual(len(self.instance_windows(desktop)), 1, "nothing is left of the program that asked")
        self.assertEqual(desktop.data_file.read_bytes(), record("11/3/2004=Choir"))

    def test_with_the_consent_it_starts_without_a_question(self):
        desktop = self.desktop(size=LARGE, modern=True)
        self.assert_near(desktop.started(), desktop.place(), what="the calendar")
