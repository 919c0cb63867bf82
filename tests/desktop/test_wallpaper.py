"""Wallpaper packs: the month's picture on the desktop and the bitmap beside it."""
import shutil
import struct

from harness import geometry
from harness.desktop import DESKTOP_COLOUR, SHELL_COLOUR, WHITE
from harness.geometry import Rect
from harness.packs import (
    DESKTOP_KEY, PACK, TODAY_COLOUR, CENTRE, TILE, STRETCH, RED, GREEN, BLUE, YELLOW, FOUR, TOLERANCE, SIZE,
    PIXEL_TOLERANCE, save_quarters, save_slope, quarter, differences, Bitmap, Wallpaper_Test,
)
from harness.picture import Picture
from harness.prefix import ROOT
from harness.screen import HEIGHT, WIDTH
from harness.waiting import wait_for


class Picture_On_Desktop(Wallpaper_Test):
    def shown(self, mode):
        desktop = self.world(["3=1-0-%d" % mode], shell=True)
        save_quarters(self.pack(desktop) / "3.jpg")
        self.assert_near(desktop.started(), desktop.place(), what="place")
        self.wallpaper_is(desktop, 3, mode)
        return desktop.screen.picture_at_rest()

    def assert_quarters(self, picture, rect, numbers=range(4)):
        for number in numbers:
            share = picture.share(quarter(rect, number), FOUR[number], TOLERANCE)
            self.assertEqual(share, 1, f"quarter {number} of {rect}")

    def test_a_centred_picture_stands_once_in_the_middle(self):
        picture = self.shown(CENTRE)
        left, top = (WIDTH - SIZE[0]) // 2, (HEIGHT - SIZE[1]) // 2
        place = Rect(left, top, left + SIZE[0], top + SIZE[1])
        self.assert_quarters(picture, place)
        for beside in (Rect(left - 100, top, left, top + 256), Rect(left, top - 100, left + 320, top),
                       Rect(left, top + 256, left + 320, top + 356), Rect(left + 320, 400, left + 420, 600)):
            self.assertTrue(picture.is_all(beside, SHELL_COLOUR), f"bare ground at {beside}")

    def test_a_tiled_picture_is_repeated_from_the_upper_left_corner(self):
        picture = self.shown(TILE)
        for left in range(0, WIDTH, SIZE[0]):
            for top in range(0, HEIGHT, SIZE[1]):
                tile = Rect(left, top, left + SIZE[0], top + SIZE[1])
                if top > 0 and (left < 640 or top < 512):  # neither the icons nor the calendar are there
                    self.assert_quarters(picture, tile)

    def test_a_stretched_picture_fills_the_screen(self):
        picture = self.shown(STRETCH)
        screen = Rect(0, 0, WIDTH, HEIGHT)
        self.assert_quarters(picture, screen, [1, 2])
        # The icons stand in one of the others, the calendar in the other.
        self.assertEqual(picture.share(Rect(4, 256, 636, 508), RED, TOLERANCE), 1)
        self.assertEqual(picture.share(Rect(644, 516, 1276, 600), YELLOW, TOLERANCE), 1)

    def test_the_picture_shows_through_the_gaps_of_the_calendar(self):
        desktop = self.world(["3=1-0-2"], shell=True)
        save_quarters(self.pack(desktop) / "3.jpg")
        desktop.started()
        layout, picture = desktop.layout(), desktop.screen.picture_at_rest()
        for row in range(4):
            gap = desktop.on_screen(layout.row_gap(row)).shrunk(1)
            self.assertEqual(picture.share(gap, YELLOW, TOLERANCE), 1, f"gap below row {row}")
        self.assertGreater(picture.share(desktop.box_rect(10).shrunk(2), WHITE), 0.5)

    def test_the_seasons_pack_as_it_is_shipped(self):
        desktop = self.desktop(settings={"Use Themes": 1, "Pack Name": "Seasons"}, shell=True,
                               events=["10/3/2004=Dentist"])
        shutil.copytree(ROOT / "packs/Seasons", desktop.folder / "Seasons")
        desktop.started()
        self.assertTrue(wait_for(lambda: self.calendar_at(desktop, geometry.THIN, 5, 3), "the pack's style and position"))
        self.assertEqual(self.desktop_values(desktop), ("C:\\Meridex\\Seasons\\3.bmp", "0", "2"))
        shown = desktop.screen.picture_at_rest()
        expected = Picture.of_file(ROOT / "packs/Seasons/3.jpg", WIDTH, HEIGHT)  # as large as the screen
        below = Rect(0, 250, WIDTH, HEIGHT)  # neither the icons nor the calendar are there
        self.assert_same_picture(shown.part(below), expected.part(below))

    def test_with_packs_off_the_desktop_is_left_alone(self):
        desktop = self.world(["3=0-6-2"], settings={"Use Themes": 0})
        save_quarters(self.pack(desktop) / "3.jpg")
        before = self.desktop_values(desktop)
        self.assert_near(desktop.started(), desktop.place(), what="place")
        self.assertEqual(self.desktop_values(desktop), before)
        self.assertEqual(self.bitmaps(desktop), [])
        self.assertEqual(desktop.screen.picture_at_rest().pixel(20, 20), DESKTOP_COLOUR)

    def test_the_users_own_display_mode_goes_before_the_packs(self):
        desktop = self.world(["3=1-0-0"], settings={"Use Other Display Mode": "True", "Other Display Mode": 1}, shell=True)
        save_quarters(self.pack(desktop) / "3.jpg")
        desktop.started()
        self.wallpaper_is(desktop, 3, TILE)
        self.assert_quarters(desktop.screen.picture_at_rest(), Rect(0, 256, 320, 512))


class Bitmap_Beside(Wallpaper_Test):
    def converted(self, jpeg):
        """The bitmap that the program makes of a JPEG, held against another decoder."""
        desktop = self.world(["3=1-0-2"])
        shutil.copy2(jpeg(desktop), self.pack(desktop) / "3.jpg")
        desktop.started()
        bitmap = Bitmap(self.pack(desktop) / "3.bmp")
        self.assertEqual((bitmap.magic, bitmap.start, bitmap.header, bitmap.planes, bitmap.bits, bitmap.packing),
                         (b"BM", 54, 40, 1, 24, 0))
        self.assertGreater(bitmap.height, 0, "from the bottom up")
        self.assertEqual(bitmap.length, bitmap.expected_length)
        self.assertEqual(bitmap.length, bitmap.file_size)
        expected = Picture.of_file(self.pack(desktop) / "3.jpg", bitmap.width, bitmap.height).data
        self.assertEqual(len(bitmap.pixels), len(expected))
        return bitmap, expected

    def test_it_has_the_pixels_of_a_shipped_picture(self):
        bitmap, expected = self.converted(lambda _: ROOT / "packs/Seasons/3.jpg")
        self.assertEqual((bitmap.width, bitmap.height), (1280, 1024))
        self.assert_same_picture(bitmap.pixels, expected)

    def test_it_has_every_pixel_of_a_picture_in_full_colour(self):
        def full(desktop):
            path = desktop.folder / "full.jpg"
            Picture.of_file(ROOT / "packs/Seasons/3.jpg", WIDTH, HEIGHT).save(path)
            return path

        bitmap, expected = self.converted(full)
        self.assertEqual((bitmap.width, bitmap.height), (1280, 1024))
        self.assertLessEqual(max(differences(bitmap.pixels, expected)), PIXEL_TOLERANCE)

    def test_rows_of_an_odd_width_are_padded(self):
        def slope(desktop):
            save_slope(desktop.folder / "slope.jpg", (333, 201))
            return desktop.folder / "slope.jpg"

        bitmap, expected = self.converted(slope)
        self.assertEqual((bitmap.width, bitmap.height), (333, 201))
        self.assertLessEqual(max(differences(bitmap.pixels, expected)), PIXEL_TOLERANCE)

    def test_older_bitmaps_of_the_pack_go_and_one_in_capitals_stays(self):
        desktop = self.world(["3=1-0-2"])
        save_quarters(self.pack(desktop) / "3.jpg")
        for name in ("2.bmp", "old.bmp", "1.BMP", "x.Bmp"):
            (self.pack(desktop) / name).write_bytes(b"BM")
        (desktop.folder / "mine.bmp").write_bytes(b"BM")
        desktop.started()
        self.assertEqual(self.bitmaps(desktop), ["1.BMP", "3.bmp", "x.Bmp"])
        self.assertTrue((desktop.folder / "mine.bmp").exists(), "outside the pack")
        self.assertEqual({path.name for path in self.pack(desktop).iterdir()} - {"1.BMP", "3.bmp", "x.Bmp"},
                         {"3.jpg", "settings.ini"})

    def test_a_bitmap_that_is_there_needs_no_picture(self):
        desktop = self.world(["3=1-0-1"], shell=True)
        save_quarters(self.pack(desktop) / "there.png")
        (self.pack(desktop) / "2.bmp").write_bytes(b"BM")
        Picture.of_file(self.pack(desktop) / "there.png", *SIZE).save(f"bmp3:{self.pack(desktop) / '3.bmp'}")
        before = (self.pack(desktop) / "3.bmp").read_bytes()
        desktop.started()
        self.wallpaper_is(desktop, 3, TILE)
        self.assertEqual((self.pack(desktop) / "3.bmp").read_bytes(), before)
        self.assertEqual(self.bitmaps(desktop), ["2.bmp", "3.bmp"])
        self.assertEqual(desktop.screen.picture_at_rest().share(quarter(Rect(0, 256, 320, 512), 1), GREEN, TOLERANCE), 1)


class Change_Of_Day(Wallpaper_Test):
    ORDER = (YELLOW, BLUE, GREEN, RED)

    def test_midnight_of_the_months_last_day_brings_the_next_picture_style_and_position(self):
        desktop = self.world(["5=1-0-2", "6=0-6-1"], now="2004-05-31 22:00:00", settings={"Style": 2, "Alignment": 3},
                             shell=True)
        save_quarters(self.pack(desktop) / "5.jpg")
        save_quarters(self.pack(desktop) / "6.jpg", self.ORDER)
        desktop.started()
        self.assertTrue(self.calendar_at(desktop, geometry.SQUARE, 0, 5), "May's style and position")
        self.wallpaper_is(desktop, 5, STRETCH)
        self.assertEqual(desktop.screen.picture_at_rest().share(Rect(644, 4, 1276, 508), GREEN, TOLERANCE), 1)

        desktop.set_clock("2004-05-31 23:59:58")
        wait_for(lambda: self.calendar_at(desktop, geometry.THIN, 6, 6), "June's style and position")
        self.wallpaper_is(desktop, 6, TILE)
        self.assertEqual(self.bitmaps(desktop), ["6.bmp"])
        picture = desktop.screen.picture_at_rest()
        for left in range(0, WIDTH, SIZE[0]):
            tile = Rect(left, 768, left + SIZE[0], HEIGHT)
            for number, colour in enumerate(self.ORDER):
                self.assertEqual(picture.share(quarter(tile, number), colour, TOLERANCE), 1, f"quarter {number} of {tile}")
        layout = desktop.layout(2004, 6)
        boxes = picture.share(desktop.box_rect(2, layout).shrunk(2), WHITE)
        self.assertGreater(boxes, 0.5, "the boxes stand on the picture")
        self.assertEqual([desktop.stored("Settings", key) for key in ("Style", "Alignment")], ["2", "3"], "the user's own")

    def test_a_new_day_within_the_month_sets_the_picture_again_and_converts_nothing(self):
        desktop = self.world(["3=1-0-2"])
        save_quarters(self.pack(desktop) / "3.jpg")
        desktop.started()
        bitmap = self.pack(desktop) / "3.bmp"
        (self.pack(desktop) / "3.jpg").unlink()
        before = bitmap.read_bytes(), bitmap.stat().st_mtime_ns
        for name, text in {"Wallpaper": "", "TileWallpaper": "1", "WallpaperStyle": "0"}.items():
            desktop.prefix.set_registry_value(DESKTOP_KEY, name, text)
        desktop.set_clock("2004-03-05 23:59:59")
        wait_for(lambda: self.desktop_values(desktop) == (f"C:\\Meridex\\{PACK}\\3.bmp", "0", "2"), "the picture again")
        self.assertEqual((bitmap.read_bytes(), bitmap.stat().st_mtime_ns), before)
        self.assertIsNone(desktop.framed_window("Meridex"))


class Missing_Pack(Wallpaper_Test):
    MESSAGE = f"Missing Pack {PACK}. Packs will now be disabled."
    MIDDLE = Rect(600, 500, 680, 540)

    def told_once(self, desktop):
        box = desktop.message_box()
        self.assertEqual((box.text, box.buttons), (self.MESSAGE, ["OK"]))
        desktop.screen.picture_at_rest()  # the clock ticks many times
        boxes = [window for window in desktop.windows() if window.framed]
        self.assertEqual(len(boxes), 1, "boxes on top of each other")
        desktop.answer("Return")
        wait_for(lambda: self.desktop_values(desktop) == ("", "0", "0"), "the desktop without its picture")
        self.assertEqual(desktop.stored("Settings", "Use Themes"), "0")

    def nothing_more(self, desktop, day):
        """A further day passes without a message."""
        rect = desktop.number_rect(day).shrunk(2)
        desktop.set_clock(f"2004-03-{day:02} 12:00:00")
        wait_for(lambda: desktop.screen.picture().share(rect, TODAY_COLOUR) > 0.5, f"{day} March")
        self.assertIsNone(desktop.framed_window("Meridex"))
        self.assertEqual(self.desktop_values(desktop), ("", "0", "0"))

    def test_at_the_start_it_is_told_once_and_takes_the_picture_off(self):
        desktop = self.world()
        save_quarters(desktop.folder / "before.png")
        Picture.of_file(desktop.folder / "before.png", *SIZE).save(f"bmp3:{desktop.folder / 'before.bmp'}")
        values = {"Wallpaper": "C:\\Meridex\\before.bmp", "TileWallpaper": "1", "WallpaperStyle": "2"}
        for name, text in values.items():
            desktop.prefix.set_registry_value(DESKTOP_KEY, name, text)
        desktop.start()
        self.told_once(desktop)
        self.assert_near(desktop.calendar(), desktop.place(), what="place")
        self.assertIsNone(desktop.framed_window("Meridex"))
        self.nothing_more(desktop, 6)

    def test_in_the_midst_of_a_run_it_clears_the_desktop(self):
        desktop = self.world(["3=1-0-0"], shell=True)
        save_quarters(self.pack(desktop) / "3.jpg")
        desktop.started()
        self.assertFalse(desktop.screen.picture_at_rest().is_all(self.MIDDLE, SHELL_COLOUR))
        self.pack(desktop).rename(desktop.folder / "Elsewhere")
        desktop.set_clock("2004-03-06 12:00:00")
        self.told_once(desktop)
        wait_for(lambda: desktop.screen.picture().is_all(self.MIDDLE, SHELL_COLOUR), "the bare desktop")
        self.nothing_more(desktop, 7)

    def test_the_next_start_says_nothing(self):
        desktop = self.world()
        desktop.start()
        self.told_once(desktop)
        desktop.calendar()
        first = desktop.programs[-1]
        desktop.start()
        self.assertEqual(desktop.exit_status(first), 0)
        desktop.calendar()
        self.assertIsNone(desktop.framed_window("Meridex"))

    def test_a_pack_without_its_table_is_told_and_stays_chosen(self):
        desktop = self.world([])
        (self.pack(desktop) / "settings.ini").unlink()
        before = self.desktop_values(desktop)
        desktop.start()
        box = desktop.message_box()
        self.assertEqual(box.text, f"Error loading in Settings file...\r\n\r\nC:\\Meridex\\{PACK}\\settings.ini")
        desktop.answer("Return")
        desktop.calendar()
        self.assertEqual(desktop.stored("Settings", "Use Themes"), "1")
        self.assertEqual(self.desktop_values(desktop), before)


class Bad_Picture(Wallpaper_Test):
    def refused(self, spoil):
        """spoil: makes the file of the month's picture out of a good JPEG's bytes."""
        desktop = self.world(["3=1-0-2"], events=["10/3/2004=Dentist"])
        save_slope(desktop.folder / "good.jpg", SIZE)
        content = spoil(desktop, (desktop.folder / "good.jpg").read_bytes())
        if content is not None:
            (self.pack(desktop) / "3.jpg").write_bytes(content)
        before = self.desktop_values(desktop)
        desktop.start()
        box = desktop.message_box()
        self.assertEqual(box.text, f"Error loading in Picture file...\r\n\r\nC:\\Meridex\\{PACK}\\3.jpg")
        self.assertEqual((box.title, box.buttons), ("Meridex", ["OK"]))
        desktop.answer("Return")
        self.assert_near(desktop.calendar(), desktop.place(), what="place")
        picture = desktop.screen.picture_at_rest()
        self.assertGreater(picture.ink(desktop.caption_rect(10).shrunk(1), WHITE), 30)
        self.assertIsNone(desktop.framed_window("Meridex"))
        self.assertEqual(self.bitmaps(desktop), [])
        self.assertEqual(self.desktop_values(desktop), before)
        self.assertEqual(desktop.stored("Settings", "Use Themes"), "1")

    def test_a_jpeg_cut_short(self):
        self.refused(lambda _, good: good[:len(good) // 2])

    def test_a_jpeg_cut_within_its_header(self):
        self.refused(lambda _, good: good[:30])

    def test_a_file_of_no_bytes(self):
        self.refused(lambda _, good: b"")

    def test_a_missing_file(self):
        self.refused(lambda _, good: None)

    def test_another_format_under_the_name_of_a_jpeg(self):
        def png(desktop, _):
            save_quarters(desktop.folder / "3.png")
            return (desktop.folder / "3.png").read_bytes()

        self.refused(png)

    def test_a_picture_of_20000_by_20000(self):
        def huge(_, good):
            frame = good.index(b"\xff\xc0")
            return good[:frame + 5] + struct.pack(">HH", 20000, 20000) + good[frame + 9:]

        self.refused(huge)
