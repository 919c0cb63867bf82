"""The figures of the Windows build under Wine, beside floor programs in a prefix without Wine's own desktop."""
import contextlib
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
import native  # noqa: E402
from figures import Figure  # noqa: E402
from harness import geometry  # noqa: E402
from harness.prefix import WINE, Prefix  # noqa: E402
from harness.screen import Screen  # noqa: E402
from timing import medians, seconds_of  # noqa: E402

BUILD = ROOT / "build/windows-x64"
PROGRAM = BUILD / "src/main/meridex.exe"
TOOLS = BUILD / "bench"
TICK = 100  # milliseconds


def tool(name):
    return f"Z:{TOOLS}/{name}.exe".replace("/", "\\")


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
        self.prefix.preset("Software\\Meridex\\Settings", {"Show Splash": 0})
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
                runs.append([float(time) for time in output.split()])
            results[count] = [statistics.median(column) for column in zip(*runs)]
    (_, small), (floor, change) = results["1000"], results["32767"]
    return [
        Figure("Wine: month change, 32,767 records", change, "ms", 3, floor, "read into a kept buffer, quotes by SSE2"),
        Figure("Wine: growth from 1,000 records on", change, "ms", 32.767, small, native.SMALL_CHANGE),
    ]


def start(data, programs, rounds):
    with contextlib.closing(Plain_Prefix(data / "today")) as plain:
        def first_window(name):
            command = [str(programs / "bench_first_map"), *plain.command(name)]
            output = subprocess.run(command, env=plain.prefix.environment, check=True, timeout=60, text=True,
                                    stdout=subprocess.PIPE, stderr=subprocess.DEVNULL).stdout
            milliseconds, width = map(float, output.split())
            if name == "meridex" and width not in geometry.window_widths():
                raise RuntimeError("the first window isn't the calendar")
            time.sleep(0.3)  # what the program leaves behind is gone
            return milliseconds

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
    warm from the other's tick. The median turn counts, as many times as there are turns: what another machine of the same
    host does to one turn of either program isn't theirs."""
    turns = 8
    times, memory = [], []
    with contextlib.closing(Plain_Prefix(data / "today")) as plain:
        for _ in range(turns):
            spent, held = [], []
            for program in [("floor_window", TICK), ("meridex",)]:
                process = plain.start(*program)
                time.sleep(5)
                before = processor_time(process)
                time.sleep(seconds / turns)
                spent.append(processor_time(process) - before)
                held.append(resident_memory(process))
                process.terminate()
                process.wait(20)
            times.append(spent)
            memory.append(held)
    floor_time, own_time = (statistics.median(column) * turns * 1e3 for column in zip(*times))
    floor_memory, own_memory = (statistics.median(column) for column in zip(*memory))
    floor_name = f"an empty program with a timer of {TICK} ms"
    return [
        Figure(f"Wine: processor time of {seconds} s idle", own_time, "ms", 1.2, floor_time, floor_name),
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
                   f"djpeg -bmp, and the start of an empty program; without that start {(own - process) / floor:.2f} times djpeg")]
