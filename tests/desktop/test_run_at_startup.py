"""The program's entry among those that start with Windows."""
from harness.desktop import Desktop_Test

RUN_KEY = "Software\\Microsoft\\Windows\\CurrentVersion\\Run"
PROGRAM_PATH = "C:\\Meridex\\meridex.exe"


class Run_Value(Desktop_Test):
    MACHINE, USER = f"HKLM\\{RUN_KEY}", f"HKCU\\{RUN_KEY}"

    def started_with(self, **values):
        """The entries of the machine and of the user once the calendar is up, which is after the load's last step."""
        desktop = self.desktop()
        for place, text in values.items():
            desktop.prefix.set_registry_value(getattr(self, place), "Meridex", text)
        desktop.started()
        return tuple(desktop.prefix.registry_value(place, "Meridex") for place in (self.MACHINE, self.USER))

    def test_an_entry_of_the_machine_moves_to_the_user_with_the_running_programs_path(self):
        self.assertEqual(self.started_with(MACHINE="D:\\Old\\meridex.exe"), (None, PROGRAM_PATH))

    def test_it_replaces_the_users_own(self):
        self.assertEqual(self.started_with(MACHINE="D:\\Old\\meridex.exe", USER="E:\\Older\\meridex.exe"),
                         (None, PROGRAM_PATH))

    def test_without_an_entry_none_is_written(self):
        self.assertEqual(self.started_with(), (None, None))

    def test_an_entry_of_the_user_alone_stays_as_it_is(self):
        self.assertEqual(self.started_with(USER="E:\\Older\\meridex.exe"), (None, "E:\\Older\\meridex.exe"))

    def test_an_empty_entry_of_the_machine_goes_and_is_not_made_again(self):
        self.assertEqual(self.started_with(MACHINE=""), (None, None))
