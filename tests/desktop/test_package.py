"""What users download: the installer, a newer one over it, and the way out again."""
import os
import pathlib
import subprocess
import tempfile
import zipfile

from harness.desktop import BUILD, PROGRAM, Desktop_Test, record
from harness.prefix import ARCHITECTURE, ROOT
from harness.waiting import wait_for

UNINSTALL = "HKCU\\Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Meridex"
EVENTS = record("9/3/2004=Dentist") + record("16/3/9999=Grandmother's birthday")


class Package(Desktop_Test):
    def setUp(self):
        super().setUp()
        temporary = tempfile.TemporaryDirectory(prefix="meridex-packages-")
        self.addCleanup(temporary.cleanup)
        self.packages = pathlib.Path(temporary.name)

    def package(self, release, folder=""):
        """The files of a release."""
        to = self.packages / (folder or release)
        subprocess.run([ROOT / "scripts/package.sh", "--no-build", "--release", release, "--to", to], check=True,
                       timeout=60, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL)
        return to

    def installer(self, release):
        return f"Z:{self.package(release)}/meridex-{release}-{ARCHITECTURE}-setup.exe".replace("/", "\\")

    def installed(self, desktop):
        """The folder that the installer chooses."""
        return next((desktop.prefix.drive / "users").glob("*/AppData/Local/Programs/Meridex"), None)

    def run_in_silence(self, desktop, *command):
        status, _ = desktop.prefix.run(*command)
        self.assertEqual(status, 0, desktop.prefix.complaints())

    def uninstall(self, desktop, folder, *options):
        """The uninstaller goes on in a copy of itself, so its own end isn't that of its work."""
        self.run_in_silence(desktop, f"{desktop.prefix.windows_path(folder)}\\uninstall.exe", "/S", *options)
        wait_for(lambda: not (folder / "uninstall.exe").exists(), "the end of the uninstaller")

    def names(self, folder):
        return sorted(path.name for path in folder.iterdir()) if folder.exists() else []

    def test_an_upgrade_closes_the_calendar_and_keeps_the_events(self):
        desktop = self.desktop()
        self.run_in_silence(desktop, self.installer("0.41"), "/S")
        folder = self.installed(desktop)
        self.assertEqual(self.names(folder), ["Default", "Seasons", "guide", PROGRAM, "uninstall.exe"])
        self.assertIsNone(desktop.stored("Desktop", "Modern"))
        (folder / "calendar.dat").write_bytes(EVENTS)
        program = desktop.prefix.start(f"{desktop.prefix.windows_path(folder)}\\{PROGRAM}")
        self.addCleanup(program.kill)
        desktop.calendar()

        self.run_in_silence(desktop, self.installer("0.42"), "/S", "/MODERN=1")
        self.assertEqual(program.wait(15), 0)
        self.assertEqual((folder / "calendar.dat").read_bytes(), EVENTS)
        self.assertEqual((folder / PROGRAM).read_bytes(), (BUILD / "src/main" / PROGRAM).read_bytes())
        self.assertEqual(desktop.prefix.registry_value(UNINSTALL, "DisplayVersion"), "0.42")
        self.assertEqual(desktop.stored("Desktop", "Modern"), "1")
        start_menu = next((desktop.prefix.drive / "users").glob("*/AppData/Roaming/Microsoft/Windows/Start Menu/Programs/Meridex"))
        self.assertEqual(self.names(start_menu), ["Guide.lnk", "Meridex.lnk", "Uninstall Meridex.lnk"])
        again = desktop.prefix.start("start", "/wait", desktop.prefix.windows_path(start_menu / "Meridex.lnk"))
        self.addCleanup(again.kill)
        desktop.calendar()

    def test_the_uninstaller_keeps_the_events_unless_told_otherwise(self):
        desktop = self.desktop(settings={"Style": 2})
        installer = self.installer("0.42")
        self.run_in_silence(desktop, installer, "/S")
        folder = self.installed(desktop)
        (folder / "calendar.dat").write_bytes(EVENTS)
        (folder / "Seasons/mine.jpg").write_bytes(b"mine")
        (folder / "Seasons/3.bmp").write_bytes(b"made of 3.jpg")
        self.uninstall(desktop, folder)
        self.assertEqual(self.names(folder), ["Seasons", "calendar.dat"])
        self.assertEqual(self.names(folder / "Seasons"), ["mine.jpg"])
        self.assertEqual(desktop.stored("Settings", "Style"), "2")
        self.assertIsNone(desktop.prefix.registry_value(UNINSTALL, "DisplayName"))

        (folder / "Seasons/mine.jpg").unlink()
        self.run_in_silence(desktop, installer, "/S")
        self.assertEqual((folder / "calendar.dat").read_bytes(), EVENTS)
        self.uninstall(desktop, folder, "/FORGET=1")
        wait_for(lambda: not folder.exists(), "the end of the folder")
        self.assertIsNone(desktop.stored("Settings", "Style"))

    def test_another_folder_can_be_chosen(self):
        desktop = self.desktop()
        self.run_in_silence(desktop, self.installer("0.42"), "/S", "/D=C:\\Calendar")
        self.assertIn(PROGRAM, self.names(desktop.prefix.drive / "Calendar"))

    def test_the_packages_are_the_same_bytes_whenever_they_are_built(self):
        one, other = self.package("0.42"), self.package("0.42", "again")
        self.assertEqual(len(self.names(one)), 4)
        for name in self.names(one):
            self.assertEqual((one / name).read_bytes(), (other / name).read_bytes(), name)

    def test_the_zip_holds_the_program_its_guide_and_the_packs(self):
        for architecture in "x64", "x86":
            with zipfile.ZipFile(self.package("0.42", architecture) / f"meridex-0.42-{architecture}.zip") as archive:
                names = {os.path.dirname(name) for name in archive.namelist()}
                self.assertEqual(names - {""}, {"Meridex", "Meridex/guide", "Meridex/Default", "Meridex/Seasons"})
                program = archive.read(f"Meridex/{PROGRAM}")
            self.assertEqual(program, (ROOT / f"build/windows-{architecture}/src/main" / PROGRAM).read_bytes())
