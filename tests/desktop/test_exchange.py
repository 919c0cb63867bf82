"""Imports and exports through the system's own dialogs, driven by the keys, and CSV files as other programs read and write
them: Python's csv module, and the spreadsheet of LibreOffice."""
import csv
import io
import subprocess
import tempfile

from harness import exchange
from harness.desktop import Desktop_Test
from harness.hands import wait_for_file
from harness.waiting import wait_for

HEADINGS = ["Subject", "Start Date", "Description", "Start Time", "End Date", "End Time"]
MIDNIGHT = "12:00:00 AM"
CODE_PAGE = "cp1252"

# Comma, double quote, code page 1252, from the first line on; then the columns' formats; all texts in quotes.
ALL_TEXT = "/".join(f"{column}/2" for column in range(1, 7))
READ_AS_TEXT = f"CSV:44,34,1,1,{ALL_TEXT}"
WRITE_QUOTED = "csv:Text - txt - csv (StarCalc):44,34,1,1,,0,true,true,false"


def row(day, text, next_day):
    return ["Meridex", day, text, MIDNIGHT, next_day, MIDNIGHT]


def cells(data):
    return list(csv.reader(io.StringIO(data.decode(CODE_PAGE), newline="")))


class Exchange_Test(Desktop_Test):
    def opened(self, **world):
        desktop = self.desktop(settings=exchange.SETTINGS, **world)
        desktop.started()
        self.tab = exchange.Exchange(desktop)
        return desktop

    def told(self, desktop, beginning):
        box = desktop.message_box()
        self.assertTrue(box.text.startswith(beginning), box.text)
        desktop.answer("Return")
        return box.text

    def export(self, desktop, name="out.csv"):
        self.tab.press("to CSV File")
        self.tab.name_file("Export Events as CSV File", f"C:\\Meridex\\{name}")
        self.told(desktop, "Successfully exported")
        return (desktop.folder / name).read_bytes()


class Csv_Files(Exchange_Test):
    EVENTS = ["14/2/2004=Valentine's dinner", "25/12/9999=Christmas", "8/3/2004=Bread, milk, and eggs", "9/3/2004=Café"]
    ROWS = [HEADINGS, row("14/02/2004", "Valentine's dinner", "15/02/2004"),
            row("08/03/2004", "Bread, milk, and eggs", "09/03/2004"), row("09/03/2004", "Café", "10/03/2004"),
            row("25/12/2004", "Christmas", "26/12/2004")]

    def test_a_save_dialog_names_the_export(self):
        desktop = self.opened(events=self.EVENTS)
        data = self.export(desktop)
        self.assertEqual(cells(data), self.ROWS)
        self.assertTrue(data.startswith(b'"Subject","Start Date",'), data[:60])

    def test_the_extension_is_added_and_an_old_file_asked_for(self):
        desktop = self.opened(events=self.EVENTS)
        (desktop.folder / "old.csv").write_bytes(b"old")
        self.tab.press("to CSV File")
        self.tab.name_file("Export Events as CSV File", "C:\\Meridex\\old")
        box = desktop.message_box()
        self.assertEqual((box.text, box.buttons), ("Overwrite existing file?", ["Yes", "No"]))
        desktop.screen.key("n")
        # The dialog comes again; Escape cancels it without a word.
        self.tab.cancel("Export Events as CSV File")
        self.assertEqual((desktop.folder / "old.csv").read_bytes(), b"old")
        self.assertTrue(self.tab.window.state()["active"], "the window is active again")

    def test_an_open_dialog_names_the_import(self):
        desktop = self.opened(events=["3/4/2004=Old note", "4/4/9999=Birthday"])
        (desktop.folder / "in.csv").write_bytes(
            b'Subject,Start Date,Location,Description\r\n"Dentist","3/4/2004","High St","Check-up, 9am"\r\n'
            b'"Meridex","4/4/2004",,"Rent"\r\n"Party","4 April 2004",Hall,"Bring the ""good"" plates\r\nand cups"\r\n')
        self.tab.bring_in("in.csv")
        self.told(desktop, "Successfully imported 3 events")
        wait_for_file(desktop, b'"3/4/2004=Old note + Dentist - Check-up, 9am"\r\n'
                      b'"4/4/9999=Birthday + Rent + Party - Bring the good plates and cups"\r\n')
        self.assertEqual((desktop.folder / "data.bak").read_bytes(),
                         b'"3/4/2004=Old note"\r\n"4/4/9999=Birthday"\r\n')

    def test_a_file_that_is_not_there_is_asked_for_again(self):
        desktop = self.opened(events=self.EVENTS)
        self.tab.bring_in("nowhere.csv")
        self.told(desktop, "File doesn't exist!")
        self.tab.cancel("Import Events from CSV File")

    def test_the_export_comes_in_again(self):
        desktop = self.opened(events=self.EVENTS)
        self.export(desktop)
        desktop.data_file.unlink()
        self.tab.bring_in("out.csv")
        self.told(desktop, "Successfully imported 4 events")
        wait_for_file(desktop, b'"14/2/2004=Valentine\'s dinner"\r\n"8/3/2004=Bread, milk, and eggs"\r\n'
                      b'"9/3/2004=Caf\xe9"\r\n"25/12/2004=Christmas"\r\n')

    def test_ten_thousand_rows_come_in(self):
        desktop = self.opened()
        rows = "".join(f'"Event {i}","{i % 28 + 1}/{i // 28 % 12 + 1}/{2004 + i // 336}","at nine"\r\n' for i in range(10000))
        (desktop.folder / "in.csv").write_bytes(b"Subject,Start Date,Description\r\n" + rows.encode())
        self.tab.bring_in("in.csv")
        wait_for(lambda: desktop.framed_window("Meridex"), "the end of the import", 60)
        self.told(desktop, "Successfully imported 10000 events")
        self.assertEqual(desktop.data_file.read_bytes().count(b"\r\n"), 10000)


class Csv_Files_And_An_Office(Exchange_Test):
    def converted(self, data, how, source, target):
        with tempfile.TemporaryDirectory() as folder:
            with open(f"{folder}/file.{source}", "wb") as file:
                file.write(data)
            subprocess.run(["soffice", f"-env:UserInstallation=file://{folder}/profile", "--headless", *how, "--outdir",
                            f"{folder}/out", f"{folder}/file.{source}"], check=True, timeout=60, capture_output=True)
            with open(f"{folder}/out/file.{target}", "rb") as file:
                return file.read()

    def through_the_office(self, data):
        """A CSV file that was opened in a spreadsheet, as text in all columns, and saved again."""
        sheet = self.converted(data, [f"--infilter={READ_AS_TEXT}", "--convert-to", "ods"], "csv", "ods")
        return self.converted(sheet, ["--convert-to", WRITE_QUOTED], "ods", "csv")

    def test_a_spreadsheet_reads_the_export(self):
        desktop = self.opened(events=Csv_Files.EVENTS)
        self.assertEqual(cells(self.through_the_office(self.export(desktop))), Csv_Files.ROWS)

    def test_what_a_spreadsheet_writes_comes_in(self):
        desktop = self.opened()
        (desktop.folder / "in.csv").write_bytes(self.through_the_office(
            b'"Subject","Start Date","Description"\r\n"Dentist","3/4/2004","Check-up, 9am"\r\n"Rent","4/4/2004","x ""y"""\r\n'))
        self.tab.bring_in("in.csv")
        self.told(desktop, "Successfully imported 2 events")
        wait_for_file(desktop, b'"3/4/2004=Dentist - Check-up, 9am"\r\n"4/4/2004=Rent - x y"\r\n')


class Other_Files(Exchange_Test):
    def test_the_text_export(self):
        desktop = self.opened(events=["14/2/2004=Valentine's dinner", "25/12/9999=Christmas"])
        self.tab.press("to Text File")
        self.tab.name_file("Export Events to Text File", "C:\\Meridex\\out")
        self.told(desktop, "Successfully exported 2 events to the text file...")
        lines = (desktop.folder / "out.txt").read_bytes().split(b"\r\n")
        self.assertEqual([line.split(b"  -  ")[-1] for line in lines], [b"Valentine's dinner", b"", b"Christmas", b"", b""])
        self.assertIn(b"14 February 2004", lines[0])
        self.assertIn(b"25 December 2004 (every year)", lines[2])

    def test_the_data_file_out_and_in(self):
        desktop = self.opened(events=["8/3/2004=Tea"])
        self.tab.press("Data File", row=1)
        self.tab.name_file("Export Data File", "C:\\Meridex\\copy.dat")
        self.told(desktop, "Successfully exported data file to...")
        desktop.data_file.write_bytes(b'"8/3/2004=Another"\r\n')
        self.tab.press("Data File")
        self.tab.name_file("Import Data File", "C:\\Meridex\\copy.dat")
        box = desktop.message_box()
        self.assertIn("Replace current file 'calendar.dat' modified on ", box.text)
        self.assertIn("with new file 'copy.dat' modified on ", box.text)
        self.assertEqual(box.buttons, ["Yes", "No", "Cancel"])
        desktop.screen.key("y")
        wait_for_file(desktop, b'"8/3/2004=Tea"\r\n')
        wait_for(lambda: desktop.message_box().text.startswith("Successfully imported data file from..."), "the success")
        desktop.answer("Return")

    def test_the_configuration_goes_out(self):
        desktop = self.opened()
        self.tab.press("Configuration", row=1)
        self.tab.name_file("Export Configuration File", "C:\\Meridex\\out")
        self.told(desktop, "Successfully exported current configuration to file...")
        lines = (desktop.folder / "out.ini").read_bytes().split(b"\r\n")
        self.assertEqual(len(lines), 33)
        self.assertEqual(lines[:3], [b'"Style=1"', b'"TaskPos=6"', b'"Col_Today=16761024"'])
        self.assertEqual(lines[30:], [b'"Auto_Compact=0"', b'"Tooltips=1"', b""])

    def test_the_configuration_closes_the_window(self):
        desktop = self.opened()
        (desktop.folder / "in.ini").write_bytes(b'"Tooltips=2"\r\n"Start_Day=1"\r\n')
        self.tab.press("Configuration")
        self.tab.name_file("Import Configuration File", "C:\\Meridex\\in.ini")
        self.told(desktop, "Loaded configuration file successfully.")
        self.tab.window.gone()
        self.assertEqual(desktop.stored("Settings", "Tooltips"), "2")
        self.assertEqual(desktop.stored("Settings", "Start Day"), "1")
