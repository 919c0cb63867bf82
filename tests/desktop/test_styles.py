"""The three box styles in months of five and six rows, judged at the places that the measures give."""
from harness.desktop import DESKTOP_COLOUR, WHITE, Desktop_Test
from harness.geometry import SMALL, SQUARE, STYLES, THIN
from harness.picture import brightness, near, rgb

TODAY_COLOUR = rgb(16761024)
FIVE_ROWS, SIX_ROWS = "2004-03-05 09:00:00", "2004-08-05 09:00:00"


class Box_Styles(Desktop_Test):
    def look(self, style, now):
        desktop = self.desktop(now=now, settings={"Style": style, "Show Alerts": 0})
        place = desktop.started()
        layout = desktop.layout()
        self.assert_near(place, desktop.place(), what="place")
        picture = desktop.screen.picture_at_rest()
        for box in range(37):
            rect = desktop.on_screen(layout.box_rect(box))
            if box in layout.used:
                self.box_stands(picture, rect, box - layout.first + 1, desktop)
            elif box < 35 or layout.six_rows:
                self.assertTrue(picture.is_all(rect.shrunk(1), DESKTOP_COLOUR), f"box {box} is hidden")
        self.gaps_are_open(picture, layout, desktop)
        self.header_stands(picture, layout, desktop)
        return desktop, layout, picture

    def box_stands(self, picture, rect, day, desktop):
        back = TODAY_COLOUR if day == desktop.now.day else WHITE
        inner = rect.shrunk(2)
        self.assertTrue(near(picture.pixel(inner.left, inner.top), back), f"ground of day {day}")
        self.assertGreater(picture.share(inner, back), 0.5, f"ground of day {day}")
        self.assertGreater(picture.ink(desktop.number_rect(day).shrunk(2), back), 5, f"number of day {day}")
        x, y = rect.centre
        for what, line in {"left": [(rect.left + i, y) for i in (-1, 0, 1)], "top": [(x, rect.top + i) for i in (-1, 0, 1)],
                           "right": [(rect.right + i, y) for i in (-2, -1, 0)],
                           "bottom": [(x, rect.bottom + i) for i in (-2, -1, 0)]}.items():
            self.assertLess(min(brightness(picture.pixel(*point)) for point in line), 60, f"{what} border of day {day}")

    def gaps_are_open(self, picture, layout, desktop):
        """The desktop shows between rows and between columns."""
        for row in range(4):
            gap = desktop.on_screen(layout.row_gap(row))
            self.assertTrue(picture.is_all(gap.shrunk(1), DESKTOP_COLOUR), f"gap under row {row}")
        for column in range(6):
            gap = desktop.on_screen(layout.column_gap(column))
            self.assertTrue(picture.is_all(gap.shrunk(1), DESKTOP_COLOUR), f"gap beside column {column}")

    def header_stands(self, picture, layout, desktop):
        back = rgb(8390687)
        labels = {"<": layout.previous_rect, ">": layout.next_rect, "title": layout.title_rect}
        labels.update((f"header {column}", layout.header_rect(column)) for column in range(7))
        for name, rect in labels.items():
            inner = desktop.on_screen(rect).shrunk(2)
            self.assertTrue(near(picture.pixel(inner.left, inner.top), back), f"ground of {name}")
            self.assertLess(picture.share(inner, back), 1, f"text of {name}")

    def test_the_square_box_in_five_rows(self):
        _, layout, _ = self.look(SQUARE, FIVE_ROWS)
        self.assertEqual(layout.window_twips, (6450, 5735))

    def test_the_square_box_in_six_rows(self):
        _, layout, _ = self.look(SQUARE, SIX_ROWS)
        self.assertEqual(layout.window_twips, (6450, 6725))

    def test_the_thin_box_in_five_rows(self):
        _, layout, _ = self.look(THIN, FIVE_ROWS)
        self.assertEqual(layout.window_twips, (9750, 2860))

    def test_the_thin_box_in_six_rows(self):
        _, layout, _ = self.look(THIN, SIX_ROWS)
        self.assertEqual(layout.window_twips, (9750, 3280))

    def test_the_small_box_in_five_rows(self):
        _, layout, _ = self.look(SMALL, FIVE_ROWS)
        self.assertEqual(layout.window_twips, (3300, 2585))

    def test_the_small_box_in_six_rows(self):
        _, layout, _ = self.look(SMALL, SIX_ROWS)
        self.assertEqual(layout.window_twips, (3300, 2945))


class Events_In_Boxes(Desktop_Test):
    def look(self, style):
        desktop = self.desktop(now=FIVE_ROWS, settings={"Style": style}, events=["10/3/2004=Dentist", "10/4/2004=Next month",
                                                                                 "25/3/9999=Birthday", "26/3/2003=Past"])
        desktop.started()
        return desktop, desktop.screen.picture_at_rest()

    def captions_stand(self, style):
        desktop, picture = self.look(style)
        for day in range(1, 32):
            ink = picture.ink(desktop.caption_rect(day).shrunk(1), TODAY_COLOUR if day == 5 else WHITE)
            if day in (10, 25):
                self.assertGreater(ink, 30, f"caption of day {day}")
            else:
                self.assertEqual(ink, 0, f"caption of day {day}")

    def test_captions_stand_in_their_square_boxes(self):
        self.captions_stand(SQUARE)

    def test_captions_stand_in_their_thin_boxes(self):
        self.captions_stand(THIN)

    def test_small_boxes_underline_the_days_with_an_event(self):
        desktop, picture = self.look(SMALL)
        for day in range(1, 32):
            back = TODAY_COLOUR if day == 5 else WHITE
            longest = picture.longest_line(desktop.box_rect(day).shrunk(2), back)
            # A number of two digits is underlined over its width, and its blanks' too.
            (self.assertGreater if day in (10, 25) else self.assertLess)(longest, 10, f"underline of day {day}")
        self.assertIsNone(STYLES[SMALL].caption)
