"""scripts/run.sh shows any calendar file at any date."""
import os
import pathlib
import subprocess
import tempfile
import unittest

from harness import geometry
from harness.desktop import DESKTOP_COLOUR, WHITE, WHOLE_SCREEN, record
from harness.picture import Picture, rgb
from harness.prefix import ROOT
from harness.screen import HEIGHT, WIDTH


class Run_Script(unittest.TestCase):
    def run_script(self, *options):
        environment = {name: value for name, value in os.environ.items() if name != "DISPLAY"}
        return subprocess.run([ROOT / "scripts/run.sh", "--no-build", *options], env=environment, timeout=100, text=True,
                              stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False)

    def test_it_shows_a_file_at_a_date_and_saves_the_screen(self):
        with tempfile.TemporaryDirectory() as folder:
            data, picture = pathlib.Path(folder, "events.dat"), pathlib.Path(folder, "screen.png")
            content = record("19/8/2004=Alert of today") + record("10/8/2004=Dentist")
            data.write_bytes(content)
            result = self.run_script("--data", data, "--now", "2004-08-19 12:00:00", "--screenshot", picture,
                                     "--setting", "Settings Start Day 2", "--setting", "Settings Alignment 6",
                                     "--setting", "Colours Today 255")
            self.assertEqual(result.returncode, 0, result.stdout)
            self.assertIn("Closing a message titled Meridex", result.stdout)
            self.assertEqual(data.read_bytes(), content)
            screen = Picture.of_file(picture, WIDTH, HEIGHT)
        layout = geometry.Layout(geometry.SQUARE, 2004, 8, 2)
        left, top = geometry.placed(6, layout.window_twips, WHOLE_SCREEN)
        self.assertEqual((left, top), (0, 0))
        today = layout.number_rect(layout.box_of(19)).shrunk(2)
        self.assertGreater(screen.share(today, rgb(255)), 0.5)
        self.assertGreater(screen.ink(layout.caption_rect(layout.box_of(10)).shrunk(1), WHITE), 30)
        self.assertEqual(screen.ink(layout.caption_rect(layout.box_of(11)).shrunk(1), WHITE), 0)
        self.assertTrue(screen.is_all(layout.row_gap(2).shrunk(1), DESKTOP_COLOUR))

    def test_a_bad_option_is_refused(self):
        self.assertEqual(self.run_script("--now", "someday").returncode, 2)
        self.assertEqual(self.run_script("--bogus").returncode, 2)
        self.assertEqual(self.run_script("--setting", "Settings").returncode, 2)
