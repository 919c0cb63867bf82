"""A program that saves without a pause, with the user's consent to today's desktops, is killed at random moments. Each time the
file must be the old or the new one. MERIDEX_KILLS tells how often, MERIDEX_SEED when."""
import os
import random
import shutil
import time

from harness.desktop import BUILD, Desktop_Test, record
from harness.waiting import wait_for

KILLS = int(os.environ.get("MERIDEX_KILLS", "40"))
SEED = int(os.environ.get("MERIDEX_SEED", str(random.randrange(1_000_000))))
LONGEST_WAIT = 0.2  # seconds that a program saves before it is killed
OTHERS = [f"{day}/{month}/2005=" + "Choir at seven, then tea, " * 30 for month in range(1, 13) for day in range(1, 29)]


class Killed_While_It_Saves(Desktop_Test):
    LONGEST = 60 + 2 * KILLS

    @staticmethod
    def content(number):
        """The file when that number has been saved."""
        return b"".join(map(record, [*OTHERS, f"5/3/2004={number}"]))

    def test_the_old_file_or_the_new_one_is_there_whole(self):
        desktop = self.desktop(data=self.content(0))
        shutil.copy2(BUILD / "tests/desktop/desktop_saver.exe", desktop.folder)
        moments = random.Random(SEED)
        found = {"old": 0, "new": 0}
        halves = 0
        for kill in range(KILLS):
            number = self.saved_before_the_kill(desktop, kill, moments.uniform(0, LONGEST_WAIT))
            content = desktop.data_file.read_bytes()
            halves += (desktop.folder / "calendar.dat.~new").exists()
            old_or_new = {self.content(number): "old", self.content(number + 1): "new"}.get(content)
            self.assertIsNotNone(old_or_new, f"kill {kill} of seed {SEED}: {len(content)} bytes, saved was {number}")
            found[old_or_new] += 1
        print(f"Seed {SEED}: {KILLS} kills, {found['old']} times the old file, {found['new']} times the new one; "
              f"{halves} times in the middle of a save")

    def saved_before_the_kill(self, desktop, kill, wait):
        """Lets the program save for a while; returns the last number that it has told."""
        log = desktop.folder / f"saved-{kill}.txt"
        with log.open("wb") as output:
            program = desktop.prefix.start("C:\\Meridex\\desktop_saver.exe", output=output)
        desktop.programs.append(program)
        wait_for(lambda: b"\n" in log.read_bytes(), "the first save")
        time.sleep(wait)  # the moment is the matter here: nothing is waited for
        self.assertIsNone(program.poll(), log.read_text())
        program.kill()
        program.wait(20)
        text = log.read_text()
        return int(text[:text.rindex("\n")].splitlines()[-1])
