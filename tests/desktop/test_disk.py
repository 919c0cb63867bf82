"""A data file that can't be written, or not as a whole."""
import shutil
import stat
import subprocess

from harness.desktop import Desktop_Test, record
from harness.hands import Editor, wait_for_file

ERROR, SAVING_FAILED = "ERROR", "Error saving data file."


class Disk(Desktop_Test):
    def save(self, desktop, text):
        """Writes a text for the 10th and presses Enter."""
        editor = Editor(desktop).open(10)
        desktop.screen.type(text)
        editor.counts(len(text), len(text.split()))
        desktop.screen.key("Return")
        return editor

    def refused(self, desktop, text):
        editor = self.save(desktop, text)
        box = desktop.message_box(ERROR)
        self.assertEqual((box.text, box.buttons), (SAVING_FAILED, ["OK"]))
        desktop.answer("Return", ERROR)
        editor.gone()


class Read_Only_File(Disk):
    def test_a_save_tells_its_failure_and_leaves_the_file_as_it_was(self):
        desktop = self.desktop(events=["11/3/2004=Choir"], permissions=True)
        content = desktop.data_file.read_bytes()
        desktop.data_file.chmod(0o444)
        desktop.started()
        self.refused(desktop, "Dentist")
        self.assertEqual(desktop.data_file.read_bytes(), content)
        self.assertEqual(stat.S_IMODE(desktop.data_file.stat().st_mode), 0o444)
        desktop.data_file.chmod(0o644)
        self.save(desktop, "Dentist at 9").gone()
        wait_for_file(desktop, content + record("10/3/2004=Dentist at 9"))

    def test_with_the_consent_too_and_no_file_is_left_beside_it(self):
        desktop = self.desktop(events=["11/3/2004=Choir"], permissions=True, modern=True)
        content = desktop.data_file.read_bytes()
        desktop.data_file.chmod(0o444)
        files = sorted(desktop.folder.iterdir())
        desktop.started()
        self.refused(desktop, "Dentist")
        self.assertEqual(desktop.data_file.read_bytes(), content)
        self.assertEqual(sorted(desktop.folder.iterdir()), files)
        desktop.data_file.chmod(0o644)
        self.save(desktop, "Dentist at 9").gone()
        wait_for_file(desktop, content + record("10/3/2004=Dentist at 9"))


class Full_Disk(Disk):
    ROOM = 4096  # bytes, a page
    EVENTS = [f"{day}/3/{year}=Choir at seven, then tea" for year in range(2004, 2008) for day in range(1, 28)]
    TEXT = "Dentist at nine, then the bank, the post office and the grocer"

    def world(self, modern=False):
        """Events that nearly fill the disk; the text for the 10th, written in among them, leaves no room for the last."""
        desktop = self.desktop(events=self.EVENTS, settings={"Show Alerts": 0}, modern=modern)
        self.assertTrue(self.ROOM - 40 < len(desktop.data_file.read_bytes()) < self.ROOM)
        records = [record(f"10/3/2004={self.TEXT}" if event.startswith("10/3/2004=") else event) for event in self.EVENTS]
        self.expected = b""
        while len(self.expected) + len(records[0]) <= self.ROOM:
            self.expected += records.pop(0)
        self.assertTrue(records and len(self.expected) < self.ROOM, "a part of a record would find room")
        return desktop

    def mounted(self, folder):
        """A disk of that room in that folder, which takes a right that not every root has: the next test needs none."""
        folder.mkdir()
        command = ["mount", "-t", "tmpfs", "-o", f"size={self.ROOM}", "meridex", str(folder)]
        if subprocess.run(command, timeout=20, check=False, capture_output=True).returncode != 0:
            self.skipTest("nothing can be mounted here")
        self.addCleanup(subprocess.run, ["umount", "--lazy", str(folder)], timeout=20, check=True)
        return folder

    def test_a_small_disk_keeps_the_whole_records_that_find_room(self):
        desktop = self.world()
        disk = self.mounted(desktop.folder / "Disk")
        shutil.move(desktop.data_file, disk)
        desktop.data_file.symlink_to(disk / "calendar.dat")
        desktop.started()
        self.refused(desktop, self.TEXT)
        self.assertEqual(desktop.data_file.read_bytes(), self.expected)

    def test_a_limit_on_its_files_does_the_same(self):
        desktop = self.world()
        desktop.start(["env", "--ignore-signal=XFSZ", "prlimit", f"--fsize={self.ROOM}"])
        desktop.calendar()
        self.refused(desktop, self.TEXT)
        self.assertEqual(desktop.data_file.read_bytes(), self.expected)

    def test_with_the_consent_the_old_file_stays_whole_and_nothing_lies_beside_it(self):
        desktop = self.world(modern=True)
        content = desktop.data_file.read_bytes()
        files = sorted(desktop.folder.iterdir())
        desktop.start(["env", "--ignore-signal=XFSZ", "prlimit", f"--fsize={self.ROOM}"])
        desktop.calendar()
        self.refused(desktop, self.TEXT)
        self.assertEqual(desktop.data_file.read_bytes(), content)
        self.assertEqual(sorted(desktop.folder.iterdir()), files)
