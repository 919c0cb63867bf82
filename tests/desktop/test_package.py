"""What users download: the installer, a newer one over it, and the way out again."""
import os
import pathlib
import shutil
import subprocess
import tempfile
import zipfile

from harness.desktop import BUILD, PROGRAM, Desktop_Test, record
from harness.prefix import ARCHITECTURE, ROOT
from harness.waiting import wait_for

RUN = "HKCU\\Software\\Microsoft\\Windows\\CurrentVersion\\Run"
WALLPAPER = "HKCU\\Control Panel\\Desktop"
UNINSTALL = "HKCU\\Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Meridex"
EVENTS = record("9/3/2004=Dentist") + record("16/3/9999=Grandmother's birthday")


class Package(Desktop_Test):
    def setUp(self):
        super().setUp()
        temporary = tempfile.TemporaryDirectory(prefix="meridex-packages-")
        self.addCleanup(temporary.cleanup)
        self.packages = pathlib.Path(temporary.name)

    def package(self, release, folder="", tree=ROOT):
        """The files of a release."""
        to = self.packages / (folder or release)
        subprocess.run([tree / "scripts/package.sh", "--no-build", "--release", release, "--to", to], check=True,
                       timeout=60, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                       env={**os.environ, "SOURCE_DATE_EPOCH": "1100000000"})
        return to

    def copied_tree(self):
        """The part of the tree of which packages are made, somewhere else and without its history."""
        tree = self.packages / "tree"
        known = subprocess.run(["git", "-c", "safe.directory=*", "ls-files", "-z", "scripts", "packaging", "resources", "guide",
                                "packs", "CMakeLists.txt"], cwd=ROOT, check=True, timeout=30, capture_output=True)
        for name in known.stdout.decode().split("\0")[:-1]:
            (tree / name).parent.mkdir(parents=True, exist_ok=True)
            shutil.copy2(ROOT / name, tree / name)
        (tree / "build").symlink_to(ROOT / "build")
        return tree

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

    def uninstaller_in_place(self, desktop, folder, *options):
        """The command of the uninstaller that isn't copied first, so that its end is that of its work."""
        windows_folder = desktop.prefix.windows_path(folder)
        return f"{windows_folder}\\uninstall.exe", *options, f"_?={windows_folder}"

    def start_menu(self, desktop):
        programs = next((desktop.prefix.drive / "users").glob("*/AppData/Roaming/Microsoft/Windows/Start Menu/Programs"))
        return programs / "Meridex"

    def names(self, folder):
        return sorted(path.name for path in folder.iterdir()) if folder.exists() else []

    def test_an_upgrade_closes_the_calendar_and_keeps_the_events(self):
        desktop = self.desktop(settings={"Style": 2})
        self.run_in_silence(desktop, self.installer("0.41"), "/S")
        folder = self.installed(desktop)
        self.assertEqual(self.names(folder), ["Default", "Seasons", "guide", PROGRAM, "uninstall.exe"])
        self.assertIsNone(desktop.stored("Desktop", "Modern"))
        (folder / "calendar.dat").write_bytes(EVENTS)
        (folder / "Default/settings.ini").write_bytes(b"1=2-0-0")
        program = desktop.prefix.start(f"{desktop.prefix.windows_path(folder)}\\{PROGRAM}")
        self.addCleanup(program.kill)
        desktop.calendar()

        self.run_in_silence(desktop, self.installer("0.42"), "/S", "/MODERN=1")
        self.assertEqual(program.wait(15), 0)
        self.assertEqual((folder / "calendar.dat").read_bytes(), EVENTS)
        self.assertEqual((folder / "Default/settings.ini").read_bytes(), b"1=2-0-0")
        self.assertEqual(desktop.stored("Settings", "Style"), "2")
        self.assertEqual((folder / PROGRAM).read_bytes(), (BUILD / "src/main" / PROGRAM).read_bytes())
        self.assertEqual(desktop.prefix.registry_value(UNINSTALL, "DisplayVersion"), "0.42")
        self.assertEqual(desktop.stored("Desktop", "Modern"), "1")
        self.assertEqual(self.names(self.start_menu(desktop)), ["Guide.lnk", "Meridex.lnk", "Uninstall Meridex.lnk"])
        again = desktop.prefix.start("start", "/wait", desktop.prefix.windows_path(self.start_menu(desktop) / "Meridex.lnk"))
        self.addCleanup(again.kill)
        desktop.calendar()

    def test_an_upgrade_leaves_the_mode_as_it_is_unless_told(self):
        desktop = self.desktop(modern=True)
        installer = self.installer("0.42")
        self.run_in_silence(desktop, installer, "/S")
        self.assertEqual(desktop.stored("Desktop", "Modern"), "1")
        self.run_in_silence(desktop, installer, "/S", "/MODERN=0")
        self.assertIsNone(desktop.stored("Desktop", "Modern"))

    def test_the_mode_is_not_offered_on_a_system_that_is_too_old_for_it(self):
        desktop = self.desktop()
        desktop.prefix.set_registry_value("HKCU\\Software\\Wine", "Version", "winxp64" if ARCHITECTURE == "x64" else "winxp")
        self.run_in_silence(desktop, self.installer("0.42"), "/S", "/MODERN=1")
        self.assertIsNone(desktop.stored("Desktop", "Modern"))

    def test_a_calendar_that_cant_be_closed_is_left_as_it_is(self):
        desktop = self.desktop(size=(2560, 1440))
        self.run_in_silence(desktop, self.installer("0.41"), "/S")
        folder = self.installed(desktop)
        left = self.names(folder)
        self.addCleanup(desktop.prefix.start(f"{desktop.prefix.windows_path(folder)}\\{PROGRAM}").kill)
        desktop.message_box()  # the question of a large desktop
        for command in ((self.installer("0.42"), "/S"), self.uninstaller_in_place(desktop, folder, "/S")):
            status, _ = desktop.prefix.run(*command)
            self.assertEqual(status, 2)
            self.assertEqual(self.names(folder), left)
            self.assertEqual(desktop.prefix.registry_value(UNINSTALL, "DisplayVersion"), "0.41")

    def test_the_uninstaller_keeps_the_events_unless_told_otherwise(self):
        desktop = self.desktop(settings={"Style": 2})
        installer = self.installer("0.42")
        self.run_in_silence(desktop, installer, "/S")
        folder = self.installed(desktop)
        (folder / "calendar.dat").write_bytes(EVENTS)
        (folder / "Seasons/mine.jpg").write_bytes(b"mine")
        (folder / "Seasons/3.bmp").write_bytes(b"made of 3.jpg")
        (folder / "guide/mine.html").write_bytes(b"mine")
        self.uninstall(desktop, folder)
        self.assertEqual(self.names(folder), ["Seasons", "calendar.dat", "guide"])
        self.assertEqual(self.names(folder / "Seasons"), ["mine.jpg"])
        self.assertEqual(self.names(folder / "guide"), ["mine.html"])
        self.assertFalse(self.start_menu(desktop).exists())
        self.assertEqual(desktop.stored("Settings", "Style"), "2")
        self.assertIsNone(desktop.prefix.registry_value(UNINSTALL, "DisplayName"))

        (folder / "Seasons/mine.jpg").unlink()
        (folder / "guide/mine.html").unlink()
        for ending in "new", "whole", "bak":
            (folder / f"calendar.dat.~{ending}").write_bytes(EVENTS)
        self.run_in_silence(desktop, installer, "/S")
        self.assertEqual((folder / "calendar.dat").read_bytes(), EVENTS)
        self.uninstall(desktop, folder, "/FORGET=1")
        wait_for(lambda: not folder.exists(), "the end of the folder")
        self.assertIsNone(desktop.stored("Settings", "Style"))

    def test_no_to_the_uninstallers_question_keeps_the_events(self):
        desktop = self.desktop()
        self.run_in_silence(desktop, self.installer("0.42"), "/S")
        folder = self.installed(desktop)
        (folder / "calendar.dat").write_bytes(EVENTS)
        uninstaller = desktop.prefix.start(*self.uninstaller_in_place(desktop, folder, "/FORGET=1"))
        self.addCleanup(uninstaller.kill)

        def in_front(child_text):
            """Whether the active window has a child of that text that takes keys."""
            return any(window["active"] and any(child_text in child["text"] and child["enabled"] for child in window["children"])
                       for window in desktop.probe())

        for text in "&Uninstall", "delete your events", "&Close":
            wait_for(lambda: in_front(text), f'"{text}" of the uninstaller')
            desktop.screen.key("Return")
        self.assertEqual(uninstaller.wait(15), 0)
        self.assertEqual((folder / "calendar.dat").read_bytes(), EVENTS)

    def test_what_leads_to_the_installed_calendar_goes_with_it(self):
        desktop = self.desktop()
        self.run_in_silence(desktop, self.installer("0.42"), "/S")
        folder = self.installed(desktop)
        picture = folder / "Seasons/3.bmp"
        picture.write_bytes(b"made of 3.jpg")
        desktop.prefix.set_registry_value(RUN, "Meridex", f"{desktop.prefix.windows_path(folder)}\\{PROGRAM}")
        desktop.prefix.set_registry_value(WALLPAPER, "Wallpaper", desktop.prefix.windows_path(picture))
        self.uninstall(desktop, folder)
        self.assertIsNone(desktop.prefix.registry_value(RUN, "Meridex"))
        self.assertFalse(desktop.prefix.registry_value(WALLPAPER, "Wallpaper"))

    def test_what_leads_elsewhere_stays(self):
        desktop = self.desktop()
        self.run_in_silence(desktop, self.installer("0.42"), "/S")
        values = (RUN, "Meridex", f"C:\\Meridex\\{PROGRAM}"), (WALLPAPER, "Wallpaper", "C:\\mine.bmp")
        (desktop.prefix.drive / "mine.bmp").write_bytes(b"mine")
        for value in values:
            desktop.prefix.set_registry_value(*value)
        self.uninstall(desktop, self.installed(desktop))
        for key, name, text in values:
            self.assertEqual(desktop.prefix.registry_value(key, name), text)

    def test_another_folder_can_be_chosen(self):
        desktop = self.desktop()
        self.run_in_silence(desktop, self.installer("0.42"), "/S", "/D=C:\\Calendar")
        folder = desktop.prefix.drive / "Calendar"
        self.assertIn(PROGRAM, self.names(folder))
        (folder / PROGRAM).unlink()
        self.run_in_silence(desktop, self.installer("0.43"), "/S")
        self.assertIn(PROGRAM, self.names(folder))
        self.assertIsNone(self.installed(desktop))

    def test_the_packages_are_the_same_bytes_wherever_they_are_packed(self):
        tree = self.copied_tree()
        for command in ("init", "--quiet"), ("add", "--all"):
            subprocess.run(["git", *command], cwd=tree, check=True, timeout=30)
        (tree / "guide/draft.html").write_bytes(b"not of the packages")
        one, other = self.package("0.42"), self.package("0.42", "again", tree)
        self.assertEqual(len(self.names(one)), 5)
        subprocess.run(["sha256sum", "--check", "--strict", "--quiet", "SHA256SUMS"], cwd=one, check=True, timeout=30)
        self.assertEqual(len((one / "SHA256SUMS").read_text(encoding="ascii").splitlines()), 4)
        for name in self.names(one):
            self.assertEqual((one / name).read_bytes(), (other / name).read_bytes(), name)

    def test_without_the_trees_history_there_are_no_packages(self):
        result = subprocess.run([self.copied_tree() / "scripts/package.sh", "--no-build", "--to", self.packages / "none"],
                                timeout=60, stdin=subprocess.DEVNULL, capture_output=True, check=False,
                                env={name: text for name, text in os.environ.items() if name != "SOURCE_DATE_EPOCH"})
        self.assertEqual(result.returncode, 1)
        self.assertIn(b"without the tree's history", result.stderr)
        self.assertEqual(self.names(self.packages / "none"), [])

    def test_the_installer_asks_for_no_administrator(self):
        folder = self.package("0.42")
        for architecture in "x64", "x86":
            self.assertIn(b'<requestedExecutionLevel level="asInvoker"',
                          (folder / f"meridex-0.42-{architecture}-setup.exe").read_bytes())

    def test_the_zip_holds_the_program_its_guide_and_the_packs(self):
        for architecture in "x64", "x86":
            with zipfile.ZipFile(self.package("0.42", architecture) / f"meridex-0.42-{architecture}.zip") as archive:
                names = {os.path.dirname(name) for name in archive.namelist()}
                self.assertEqual(names - {""}, {"Meridex", "Meridex/guide", "Meridex/Default", "Meridex/Seasons"})
                program = archive.read(f"Meridex/{PROGRAM}")
            self.assertEqual(program, (ROOT / f"build/windows-{architecture}/src/main" / PROGRAM).read_bytes())
