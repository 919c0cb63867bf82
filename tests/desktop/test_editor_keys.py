"""The keys of the event editor, and the question of another day's unsaved text."""
from harness.desktop import Desktop_Test
from harness.geometry import SMALL
from harness.hands import Editor, wait_for_file
from harness.waiting import wait_for

QUESTION = "Desktop Wallpaper"  # its title


class Editor_Keys(Desktop_Test):
    def opened(self, **world):
        desktop = self.desktop(**world)
        desktop.started()
        return desktop, Editor(desktop).open(10)

    def written(self, **world):
        desktop, editor = self.opened(**world)
        desktop.screen.type("Choir")
        editor.counts(5, 1)
        return desktop, editor

    def saves(self, desktop, editor, record):
        editor.gone()
        wait_for_file(desktop, record)

    def drops(self, desktop, editor):
        """It closes without saving. A file is written before the editor closes."""
        editor.gone()
        self.assertFalse(desktop.data_file.exists())

    def test_alt_o_saves_and_closes(self):
        desktop, editor = self.written()
        desktop.screen.key("alt+o")
        self.saves(desktop, editor, b'"10/3/2004=Choir"\r\n')

    def test_tab_and_space_tick_every_year_and_enter_saves_from_there(self):
        desktop, editor = self.written()
        desktop.screen.key("Tab", "space", "Return")
        self.saves(desktop, editor, b'"10/3/9999=Choir"\r\n')

    def test_tab_and_space_press_ok(self):
        desktop, editor = self.written(settings={"Carriage_Return": 1})
        desktop.screen.key("Tab", "Tab", "space")
        self.saves(desktop, editor, b'"10/3/2004=Choir"\r\n')

    def test_enter_on_cancel_drops_the_text(self):
        desktop, editor = self.written()
        desktop.screen.key("Tab", "Tab", "Tab", "Return")
        self.drops(desktop, editor)

    def test_space_on_cancel_drops_the_text(self):
        desktop, editor = self.written()
        desktop.screen.key("Tab", "Tab", "Tab", "space")
        self.drops(desktop, editor)

    def test_shift_and_tab_go_back_to_apply_and_enter_saves_there(self):
        desktop, editor = self.written(settings={"Carriage_Return": 1})
        desktop.screen.key("shift+Tab", "Return")
        self.saves(desktop, editor, b'"10/3/2004=Choir"\r\n')

    def test_tab_goes_round_and_selects_the_text(self):
        desktop, editor = self.written()
        desktop.screen.key(*["Tab"] * 5)  # the check box, OK, Cancel, Apply, the text
        desktop.screen.type("Tea")
        editor.counts(3, 1)
        desktop.screen.key("Return")
        self.saves(desktop, editor, b'"10/3/2004=Tea"\r\n')

    def test_space_in_the_text_is_a_letter(self):
        desktop, editor = self.written()
        desktop.screen.key("space", "o", "n")
        editor.counts(8, 2)
        desktop.screen.key("Return")
        self.saves(desktop, editor, b'"10/3/2004=Choir on"\r\n')

    def test_alt_f9_changes_the_box_style_as_f9_does(self):
        desktop = self.desktop()
        desktop.started()
        desktop.activate()
        desktop.screen.hands("keydown", "alt", "key", "F9", "keyup", "alt")  # F9 goes up while Alt is held
        desktop.settings["Style"] = SMALL
        wait_for(lambda: desktop.calendar_window() and
                 desktop.calendar_window().rect.width == desktop.layout().window_size[0], "the small style")
        wait_for(lambda: desktop.stored("Settings", "Style") == str(SMALL), "the stored style")


class Save_Question(Desktop_Test):
    def asked(self):
        """The editor with unsaved text of the 10th, and the question that a double-click on the 17th brings up."""
        desktop = self.desktop(settings={"Alignment": 6}, events=["17/3/2004=Tea"])
        desktop.started()
        editor = Editor(desktop).open(10)
        desktop.screen.type("Choir")
        editor.counts(5, 1)
        desktop.screen.double_click(*desktop.box_rect(17).centre)
        box = desktop.message_box(QUESTION)
        self.assertEqual(box.text, "Save changes for the Wednesday 10th March 2004?")
        self.assertEqual(box.buttons, ["Yes", "No", "Cancel"])
        return desktop, editor

    def test_cancel_brings_the_keys_back_to_the_editor(self):
        desktop, editor = self.asked()
        desktop.answer("Escape", QUESTION)
        editor.wait_for_it()
        desktop.screen.type("s at 9")
        editor.counts(11, 3)
        desktop.screen.key("Return")
        editor.gone()
        wait_for_file(desktop, b'"17/3/2004=Tea"\r\n"10/3/2004=Choirs at 9"\r\n')

    def test_no_opens_the_other_day_and_the_keys_go_there(self):
        desktop, editor = self.asked()
        desktop.answer("n", QUESTION)
        editor.counts(3, 1)
        editor.wait_for_it()
        desktop.screen.type("Coffee")
        editor.counts(6, 1)
        desktop.screen.key("Return")
        editor.gone()
        wait_for_file(desktop, b'"17/3/2004=Coffee"\r\n')

    def test_yes_saves_and_opens_the_other_day(self):
        desktop, editor = self.asked()
        desktop.answer("y", QUESTION)
        wait_for_file(desktop, b'"17/3/2004=Tea"\r\n"10/3/2004=Choir"\r\n')
        editor.counts(3, 1)
