"""An open message box keeps the user from the calendar and from the editor."""
from harness.desktop import DESKTOP_COLOUR, WHITE, Desktop_Test
from harness.hands import Editor, menu_rect, wait_for_file
from harness.waiting import wait_for

EVENT = "5/3/2004=Dentist"
CONTENT = b'"5/3/2004=Dentist"\r\n'


class Under_A_Message_Box(Desktop_Test):
    def world(self):
        desktop = self.desktop(events=[EVENT], settings={"Alignment": 6, "Show Alerts": 0})
        desktop.started()
        return desktop

    def opened(self, desktop):
        """F1's box, and no click of the test's lands on it."""
        desktop.activate()
        desktop.screen.key("F1")
        box = desktop.message_box()
        self.assertIn("Dentist", box.text)
        return box.rect

    def month_is(self, desktop, first_box_used):
        april = desktop.layout(2004, 4)
        first = desktop.on_screen(april.box_rect(0), april).shrunk(2)  # March 2004 starts there, April on a Thursday
        picture = desktop.screen.picture_at_rest()
        return picture.count(first, WHITE) > 100 if first_box_used else picture.is_all(first, DESKTOP_COLOUR)

    def test_the_calendar_takes_no_click(self):
        desktop = self.world()
        box = self.opened(desktop)
        self.assertGreater(box.left, desktop.calendar_window().rect.right)
        arrow = desktop.on_screen(desktop.layout().next_rect).centre
        desktop.screen.click(*arrow)
        desktop.screen.click(*desktop.box_rect(12).centre, button=3)
        desktop.screen.double_click(*desktop.box_rect(10).centre)
        desktop.screen.picture_at_rest()
        self.assertIsNone(menu_rect(desktop))
        self.assertFalse(Editor(desktop).there())
        self.assertTrue(self.month_is(desktop, first_box_used=True), "March")
        desktop.answer("Return")
        # What came to the window is served in order: had it come before, the month would turn twice.
        desktop.screen.click(*arrow)
        wait_for(lambda: self.month_is(desktop, first_box_used=False), "April")
        desktop.screen.key("F2")
        wait_for(lambda: self.month_is(desktop, first_box_used=True), "March")
        self.assertFalse(Editor(desktop).there())

    def test_the_editor_takes_no_click_and_no_key(self):
        desktop = self.world()
        editor = Editor(desktop).open(10)
        desktop.screen.type("Choir")
        editor.counts(5, 1)
        box = self.opened(desktop)
        for button in ("&OK", "Cancel"):
            place = editor.control(button).centre
            self.assertFalse(box.left <= place[0] < box.right and box.top <= place[1] < box.bottom, "beside the box")
            desktop.screen.click(*place)
        desktop.screen.type("x")
        desktop.screen.picture_at_rest()
        self.assertIsNotNone(desktop.framed_window("Meridex"), "the box stays")
        self.assertEqual(desktop.data_file.read_bytes(), CONTENT)
        desktop.answer("Return")
        editor.counts(5, 1)
        desktop.screen.click(*editor.control("&OK").centre)
        editor.gone()
        wait_for_file(desktop, b'"5/3/2004=Choir"\r\n')  # F1 has moved the day under work to today
