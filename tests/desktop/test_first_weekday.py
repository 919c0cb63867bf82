"""The week starts on the day that the system's language tells, unless a setting says otherwise."""
from harness.desktop import DESKTOP_COLOUR, Desktop_Test
from harness.geometry import Layout

BY_LANGUAGE, SUNDAY, MONDAY = 0, 1, 2


class First_Weekday(Desktop_Test):
    def look(self, language, start_day, columns_from):
        """The seven headers as they are painted, once the boxes of March 2004 have been seen in their columns."""
        desktop = self.desktop(language=language, settings={"Start Day": start_day, "Alignment": 6})
        desktop.started()
        picture = desktop.screen.picture_at_rest()
        layout = Layout(desktop.settings["Style"], 2004, 3, columns_from)
        for box in range(35):
            rect = desktop.on_screen(layout.box_rect(box), layout)
            if box in layout.used:
                self.assertEqual(picture.count(rect.shrunk(1), DESKTOP_COLOUR), 0, f"box {box} stands")
            else:
                self.assertTrue(picture.is_all(rect.shrunk(1), DESKTOP_COLOUR), f"box {box} is hidden")
        return [picture.part(desktop.on_screen(layout.header_rect(column), layout).shrunk(2)) for column in range(7)]

    def test_american_weeks_start_on_sunday_and_british_ones_on_monday(self):
        american = self.look("en_US", BY_LANGUAGE, SUNDAY)
        self.assertEqual(len(set(american)), 7)
        self.assertEqual(american, self.look("en_US", SUNDAY, SUNDAY))
        british = self.look("en_GB", BY_LANGUAGE, MONDAY)
        self.assertEqual(british, american[1:] + american[:1])
