"""The libraries that the program has, where they come from, and the folder that it lies in itself."""
import shutil

from harness.desktop import BUILD, PROGRAM, Desktop_Test, record
from harness.settings import BUTTON, Settings_Window
from harness.waiting import wait_for

PLANTED = BUILD / "tests/desktop/desktop_planted.dll"
COMMON_CONTROLS = "comctl32.dll"

# What the program looks up at run time, and what a file dialog may look for in turn. Wine itself has ole32, uxtheme, version and
# msimg32 from the program's folder for its own windows before the program's first line.
NAMES = ["comctl32", "oleacc", "oleaut32", "comdlg32", "shell32", "winmm", "dwmapi", "shlwapi", "propsys", "winspool.drv", "secur32",
         "cryptbase", "netapi32", "mpr", "usp10", "riched20"]


class Libraries(Desktop_Test):
    def test_a_plain_start_has_no_common_controls_and_a_box_has_them(self):
        desktop = self.desktop(events=["5/3/2004=Dentist"], settings={"Show Alerts": 0})
        desktop.started()
        self.assertNotIn(COMMON_CONTROLS, desktop.loaded_libraries())
        desktop.activate()
        desktop.screen.key("F1")
        self.assertTrue(desktop.message_box().text)
        self.assertIn(COMMON_CONTROLS, desktop.loaded_libraries())

    def test_libraries_beside_the_program_are_left_alone(self):
        desktop = self.desktop(events=["5/3/2004=Dentist"], settings={"Settings Tab": 7, "Alignment": 6})
        for name in NAMES:
            shutil.copy2(PLANTED, desktop.folder / (name if "." in name else f"{name}.dll"))
        # As on Windows: Wine alone would take its own library before one beside the program.
        desktop.prefix.environment["WINEDLLOVERRIDES"] += f";{','.join(NAMES)}=n,b"
        desktop.start()
        desktop.message_box()
        desktop.answer("Return")
        desktop.calendar()
        window = Settings_Window(desktop).open()
        button = next(child for child in window.natives(BUTTON) if child["text"] == "from CSV File")
        left, top, right, bottom = button["rect"]
        desktop.screen.click((left + right) // 2, (top + bottom) // 2)
        desktop.find_window("Import Events from CSV File")
        desktop.screen.key("Escape")
        desktop.window_gone("Import Events from CSV File")
        self.assertEqual([path.name for path in desktop.folder.glob("*.loaded")], [])
        self.assertLess({"comctl32.dll", "uxtheme.dll"}, desktop.loaded_libraries())


class Program_Folder(Desktop_Test):
    def test_a_folder_whose_name_the_code_page_lacks_is_the_programs_all_the_same(self):
        desktop = self.desktop()
        folder = desktop.prefix.drive / "カレンダー"
        folder.mkdir()
        shutil.copy2(BUILD / "src/main" / PROGRAM, folder)
        (folder / "calendar.dat").write_bytes(record("5/3/2004=Dentist"))
        desktop.programs.append(desktop.prefix.start(f"C:\\カレンダー\\{PROGRAM}"))
        self.assertEqual(desktop.message_box().text, "Today: 05/03/2004\r\n\r\nDentist")
        desktop.answer("Return")
        wait_for(desktop.calendar_window, "the calendar")
