"""The figures of the Windows build under Wine."""
import contextlib
import datetime
import pathlib
import shutil
import statistics
import subprocess
import sys
import tempfile
import time

ROOT = pathlib.Path(__file__).resolve().parents[1]
sys.path.insert(0, str(ROOT / "tests/desktop"))

from display_tap import Display_Tap  # noqa: E402
from figures import Figure  # noqa: E402
from harness import exchange  # noqa: E402
from harness.desktop import Desktop  # noqa: E402
from harness.prefix import WINE, Prefix  # noqa: E402
from harness.screen import Screen  # noqa: E402
from harness.waiting import wait_for  # noqa: E402
from timing import medians, seconds_of  # noqa: E402

BUILD = ROOT / "build/windows-x64"
PROGRAM = BUILD / "src/main/meridex.exe"
TOOLS = BUILD / "bench"
TICK = 100  # milliseconds


class Plain_Prefix:
    """A prefix whose windows are those of the screen itself, without Wine's own desktop, on the real clock."""

    def __init__(self, data):
        self._folder = pathlib.Path(tempfile.mkdtemp(prefix="meridex-bench-"))
        self.screen = Screen()
        self.prefix = Prefix(self._folder / "prefix", self.screen.environment, "en_GB")
        settings = self.prefix.folder / "user.reg"
        lines = settings.read_text(encoding="latin-1").splitlines(keepends=True)
        settings.write_text("".join(line for line in lines if not line.startswith('"Desktop"=')), encoding="latin-1")
        folder = self.prefix.drive / "Meridex"
        folder.mkdir()
        shutil.copy2(data / "calendar.dat", folder)
        for file in [PROGRAM, TOOLS / "floor_window.exe"]:
            shutil.copy2(file, folder)
        self.prefix.boot(lambda: True)

    def close(self):
        self.prefix.end()
        self.screen.close()
        shutil.rmtree(self._folder, ignore_errors=True)

    @staticmethod
    def command(name, *arguments):
        return [WINE, f"C:\\Meridex\\{name}.exe", *map(str, arguments)]

    def start(self, name, *arguments, display=None):
        environment = dict(self.prefix.environment, **({"DISPLAY": display} if display else {}))
        return subprocess.Popen(self.command(name, *arguments), env=environment, stdin=subprocess.DEVNULL,
                                stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)


def size():
    return [Figure("meridex.exe, x64, stripped", PROGRAM.stat().st_size / 1e6, "MB", 1)]


def month_change(data, rounds):
    """In a process for each run; the median of the runs' medians."""
    with contextlib.closing(Plain_Prefix(data / "today")) as plain:
        results = {}
        for count in ("1000", "32767"):
            folder = plain.prefix.drive / count
            folder.mkdir()
            shutil.copy2(data / count / "calendar.dat", folder)
            shutil.copy2(TOOLS / "bench_month_change.exe", folder)
            runs = []
            for _ in range(rounds):
                status, output = plain.prefix.run(f"C:\\{count}\\bench_month_change.exe")
                if status != 0:
                    raise RuntimeError("the month change didn't run under Wine")
                runs.append(dict(line.split() for line in output.decode("ascii").splitlines()))
            results[count] = {key: statistics.median(float(run[key]) for run in runs) for key in ("change_ms", "floor_ms")}
    change = results["32767"]["change_ms"]
    return [
        Figure("Wine: month change, 32,767 records", change, "ms", 3, results["32767"]["floor_ms"],
               "read into a kept buffer, quotes by SSE2"),
        Figure("Wine: growth from 1,000 records on", change, "ms", 32.767, results["1000"]["change_ms"],
               "month change, 1,000 records"),
    ]


def start(data, programs, rounds):
    with contextlib.closing(Plain_Prefix(data / "today")) as plain:
        def first_window(name):
            command = [str(programs / "bench_first_map"), *plain.command(name)]
            output = subprocess.run(command, env=plain.prefix.environment, check=True, timeout=60, text=True,
                                    stdout=subprocess.PIPE, stderr=subprocess.DEVNULL).stdout
            time.sleep(0.3)  # what the program leaves behind is gone
            return float(output)

        plain.start("floor_window", 0, "Another window")
        time.sleep(3)
        floor, own = medians(rounds, lambda: first_window("floor_window"), lambda: first_window("meridex"))
    return [Figure("Wine: start to the first window", own, "ms", 1.5, floor, "a program that opens a window")]


def processor_time(process):
    """Seconds of all threads so far."""
    tasks = pathlib.Path(f"/proc/{process.pid}/task")
    return sum(int((task / "schedstat").read_text().split()[0]) for task in tasks.iterdir()) / 1e9


def resident_memory(process):
    """In MB."""
    for line in pathlib.Path(f"/proc/{process.pid}/status").read_text(encoding="ascii").splitlines():
        if line.startswith("VmRSS:"):
            return int(line.split()[1]) / 1e3
    raise RuntimeError("a program ended while it was measured")


def idle(data, seconds):
    """Both programs in turns in the same prefix, each alone: at the same time the one would find the processor's caches
    warm from the other's tick."""
    turns = 4
    times, memory = [0, 0], []
    with contextlib.closing(Plain_Prefix(data / "today")) as plain:
        for _ in range(turns):
            held = []
            for which, program in enumerate([("floor_window", TICK), ("meridex",)]):
                process = plain.start(*program)
                time.sleep(5)
                before = processor_time(process)
                time.sleep(seconds / turns)
                times[which] += processor_time(process) - before
                held.append(resident_memory(process))
                process.terminate()
                process.wait(20)
            memory.append(held)
    floor_memory, own_memory = (statistics.median(column) for column in zip(*memory))
    floor_name = f"an empty program with a timer of {TICK} ms"
    return [
        Figure(f"Wine: processor time of {seconds} s idle", times[1] * 1e3, "ms", 1.2, times[0] * 1e3, floor_name),
        Figure("Wine: resident memory", own_memory, "MB", 1.3, floor_memory, floor_name),
    ]


def idle_display(data, seconds):
    with contextlib.closing(Plain_Prefix(data / "today")) as plain, \
            contextlib.closing(Display_Tap(plain.screen.environment["DISPLAY"])) as tap:
        own = plain.start("meridex", display=tap.name)
        time.sleep(8)
        before = tap.sent_by(own.pid)
        if before == 0:
            raise RuntimeError("the calendar didn't come to the display")
        time.sleep(seconds)
        sent = tap.sent_by(own.pid) - before
    return [Figure(f"Wine: sent to the display by {seconds * 1000 // TICK} idle ticks", sent, "bytes", 0)]


def click_times(desktop, programs, button, places):
    command = [programs / "bench_click_time", button, *(number for place in places for number in place)]
    output = subprocess.run(list(map(str, command)), env=desktop.screen.environment, check=True, timeout=120, text=True,
                            stdout=subprocess.PIPE).stdout
    return statistics.median(map(float, output.split()[1:]))


def tool(name):
    return f"Z:{TOOLS}/{name}.exe".replace("/", "\\")


def on_screen(data, programs, rounds):
    """The month change by the arrow, the balloon, and the GDI objects."""
    events = (data / "32767/calendar.dat").read_bytes()
    with contextlib.closing(Desktop(data=events, settings={"Tooltips": 2})) as desktop:
        desktop.started()
        layout = desktop.layout()
        arrows = [desktop.on_screen(rect).centre for rect in (layout.previous_rect, layout.next_rect)]
        change = click_times(desktop, programs, "release", arrows * rounds)
        status, counted = desktop.prefix.run(tool("bench_gdi_count"), *map(str, layout.next_rect.centre), seconds=120)
        if status != 0:
            raise RuntimeError("the GDI objects weren't counted: " + counted.decode("ascii"))
        objects = {key: int(value) for key, value in (line.split() for line in counted.decode("ascii").splitlines())}
    with contextlib.closing(Desktop(data=events, settings={"Tooltips": 2})) as desktop:
        desktop.started()
        # Far from each other, so that none lies under the balloon of the one before.
        boxes = [desktop.box_rect(day).centre for day in (10, 22, 7, 15, 1)]
        balloon = click_times(desktop, programs, "press", boxes)
    with contextlib.closing(Desktop(data=events)) as desktop:
        desktop.prefix.start(tool("floor_window"))
        time.sleep(3)
        repaint = click_times(desktop, programs, "release", [(200, 200)] * (2 * rounds))
    return [
        Figure("Wine: month change on screen, after the release", change, "ms", max(50, 2 * repaint)),
        Figure("Wine: balloon on screen, after the hold of 0.3 s", balloon - 300, "ms", 100),
        Figure("Wine: GDI objects gained by 1,000 month changes", objects["after"] - objects["before"], "", 0),
    ]


def settings_window(data, programs, rounds):
    """The opening of the settings window on a full store, and the handles that openings leave behind."""
    events = (data / "32767/calendar.dat").read_bytes()
    with contextlib.closing(Desktop(data=events)) as desktop:
        desktop.started()
        header = desktop.on_screen(desktop.layout().header_rect(0))
        opening = click_times(desktop, programs, "f8", [(header.left + 4, header.top + 4)] * rounds)
        status, counted = desktop.prefix.run(tool("bench_gdi_count"), "settings", seconds=240)
        if status != 0:
            raise RuntimeError("the openings weren't counted: " + counted.decode("ascii"))
        number = {key: int(value) for key, value in (line.split() for line in counted.decode("ascii").splitlines())}
    return [
        Figure("Wine: settings window on screen, after F8", opening, "ms", 400),
        Figure("Wine: GDI objects gained by 200 openings", number["after"] - number["before"], "", 0),
        Figure("Wine: handles gained by 200 openings", number["handles_after"] - number["handles_before"], "", 0),
    ]


def seconds_of_import(rows, events=()):
    """Of the real program, from the key that ends the dialog to the message. A row is its fields without quotes."""
    text = "".join(",".join(f'"{field}"' for field in row) + "\r\n" for row in rows)
    with contextlib.closing(Desktop(settings=exchange.SETTINGS, events=events)) as desktop:
        desktop.started()
        (desktop.folder / "in.csv").write_text("Subject,Start Date,Description\n" + text, encoding="ascii", newline="")
        begun = exchange.Exchange(desktop).bring_in("in.csv")
        wait_for(lambda: desktop.framed_window("Meridex"), "the end of the import", 120)
        seconds = time.monotonic() - begun
        if not desktop.message_box().text.startswith(f"Successfully imported {len(rows)} events"):
            raise RuntimeError("the rows didn't come in: " + desktop.message_box().text)
    return seconds


def csv_import():
    """Ten thousand rows, of as many days into an empty calendar, and of the first seven of thirty thousand events."""
    def date(number):
        day = datetime.date(1982, 1, 1) + datetime.timedelta(days=number)
        return f"{day.day}/{day.month}/{day.year}"
    new_days = [("Event", date(i * 7919 % 10000), "An event of an ordinary length") for i in range(10000)]
    first_days = [("Event", date(i % 7)) for i in range(10000)]
    events = [f"{date(i)}=An event of an ordinary length" for i in range(30000)]
    return [Figure("Wine: CSV import of 10,000 rows of new days", seconds_of_import(new_days), "s", 60),
            Figure("Wine: CSV import of 10,000 rows into the first 7 of 30,000 lines", seconds_of_import(first_days, events),
                   "s", 60)]


def jpeg(data, rounds):
    picture, bitmap, floor_bitmap = (data / name for name in ("picture.jpg", "picture.bmp", "floor.bmp"))
    subprocess.run(["convert", "-seed", "7", "-size", "1920x1200", "plasma:", "-quality", "90", picture], check=True)
    with contextlib.closing(Plain_Prefix(data / "today")) as plain:
        environment = plain.prefix.environment
        windows = [f"Z:{path}".replace("/", "\\") for path in (picture, bitmap)]
        own, process, floor = medians(
            rounds,
            lambda: seconds_of([WINE, tool("bench_jpeg"), *windows], environment),
            lambda: seconds_of([WINE, tool("bench_jpeg")], environment),
            lambda: seconds_of(["djpeg", "-bmp", "-outfile", floor_bitmap, picture]))
    if not bitmap.exists() or bitmap.stat().st_size < 1920 * 1200 * 3:
        raise RuntimeError("no bitmap was written")
    return [Figure("Wine: JPEG of 1920 by 1200 to a bitmap", own * 1e3, "ms", 1.5, (process + floor) * 1e3,
                   "djpeg -bmp, and an empty program")]
