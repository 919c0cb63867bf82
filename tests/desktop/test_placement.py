"""Where the calendar stands."""
from harness.desktop import Desktop_Test


class Placement(Desktop_Test):
    def stands(self, alignment, **settings):
        desktop = self.desktop(settings={"Alignment": alignment, **settings})
        self.assert_near(desktop.started(), desktop.place(), what=f"place {alignment}")

    def test_bottom_right(self):
        self.stands(0)

    def test_bottom_left(self):
        self.stands(2)

    def test_the_centre_of_the_screen(self):
        self.stands(3)

    def test_top_right(self):
        self.stands(4)

    def test_top_centre(self):
        self.stands(5)

    def test_top_left(self):
        self.stands(6)

    def test_the_manual_position(self):
        self.stands(7, Manual_PosX=1500, Manual_PosY=3000)

    def test_centre_left(self):
        self.stands(9)

    def test_a_number_without_a_place_leaves_the_window_on_the_screen(self):
        desktop = self.desktop(settings={"Alignment": 12})
        self.assertEqual(desktop.started().width, desktop.layout().window_size[0])
