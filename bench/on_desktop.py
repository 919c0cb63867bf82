"""The figures of the real program on Wine's desktop, worked by the mouse and the keys."""
import contextlib
import datetime
import statistics
import subprocess
import time

from figures import Figure
from wine import tool  # which finds the harness

from harness import exchange, geometry
from harness.desktop import CALENDAR_CLASS, Desktop
from harness.settings import BUTTON, LIST, Settings_Window
from harness.waiting import wait_for

HOLD = 300  # milliseconds until a held button brings the balloon
KEYS_LEFT_OPEN = 2  # by each opening of the settings window: those of the user and of the machine in which no "Run" value is
KINDS = {"objects": "GDI objects", "windows": "windows", "handles": "handles"}


def work(desktop, *words, seconds=120):
    """Lets bench_object_count work the calendar; gives what its process holds afterwards."""
    status, told = desktop.prefix.run(tool("bench_object_count"), *map(str, words), seconds=seconds)
    if status != 0:
        raise RuntimeError("nothing was counted: " + told.decode("ascii"))
    return {kind: int(number) for kind, number in (line.split() for line in told.decode("ascii").splitlines())}


def gained(before, after, by):
    return [Figure(f"Wine: {KINDS[kind]} gained by {by}", after[kind] - before[kind], "", 0) for kind in KINDS]


class Months:
    """Turned by the arrows of a calendar that stands on the month of its clock."""

    def __init__(self, desktop):
        self._desktop = desktop
        self._forward, self._back = desktop.layout().next_rect.centre, desktop.layout().previous_rect.centre
        desktop.activate()  # as the arrows do; the title has another colour then
        self._first = self._title()

    def there_and_back(self, count, every=0):
        """So many months forward and as many back, one each `every` milliseconds; gives what the process holds then. Throws
        if another month isn't on view in between, and the first one in the end."""
        seconds = 60 + count * (0.1 + every / 1000)
        work(self._desktop, "months", count, every, *self._forward, seconds=seconds)
        if self._title() == self._first:
            raise RuntimeError("the month hasn't changed")
        held = work(self._desktop, "months", count, every, *self._back, seconds=seconds)
        if self._title() != self._first:
            raise RuntimeError("some changes of the month failed")
        return held

    def _title(self):
        return self._desktop.screen.picture_at_rest().part(self._desktop.on_screen(self._desktop.layout().title_rect))


def click_times(desktop, programs, button, places):
    """The milliseconds of each."""
    command = [programs / "bench_click_time", button, *(number for place in places for number in place)]
    output = subprocess.run(list(map(str, command)), env=desktop.screen.environment, check=True, timeout=120, text=True,
                            stdout=subprocess.PIPE).stdout
    return [float(line) for line in output.split()]


def repaint_time(events, programs, rounds):
    with contextlib.closing(Desktop(data=events)) as desktop:
        desktop.prefix.start(tool("floor_window"))
        time.sleep(3)
        return statistics.median(click_times(desktop, programs, "release", [(200, 200)] * rounds)[1:])


def balloon_time(events, programs):
    """After the hold."""
    with contextlib.closing(Desktop(data=events, settings={"Tooltips": 2})) as desktop:
        desktop.started()
        # Far from each other, so that none lies under the balloon of the one before.
        boxes = [desktop.box_rect(day).centre for day in (10, 22, 7, 15, 1)]
        times = [passed - HOLD for passed in click_times(desktop, programs, "press", boxes)]
        balloons = [window for window in desktop.probe() if window["class"] == CALENDAR_CLASS and window["visible"] and
                    window["rect"][2] - window["rect"][0] not in geometry.window_widths()]
    if min(times) <= 0 or len(balloons) != 1:
        raise RuntimeError("a held box brought no balloon")
    return statistics.median(times[1:])


def on_screen(data, programs, rounds):
    """The month change by the arrow, the balloon, and what a thousand changes leave behind."""
    events = (data / "32767/calendar.dat").read_bytes()
    with contextlib.closing(Desktop(data=events)) as desktop:
        desktop.started()
        layout = desktop.layout()
        arrows = [desktop.on_screen(rect).centre for rect in (layout.previous_rect, layout.next_rect)]
        change = statistics.median(click_times(desktop, programs, "release", arrows * rounds)[1:])
        desktop.screen.rest_pointer()
        months = Months(desktop)
        before = months.there_and_back(25)
        months.there_and_back(250)
        after = months.there_and_back(250)
    balloon = balloon_time(events, programs)
    repaint = repaint_time(events, programs, 2 * rounds)
    return [
        Figure("Wine: month change on screen, after the release", change, "ms", max(50, 2 * repaint),
               beside={"a window of one colour repainted": repaint}),
        Figure("Wine: balloon on screen, after the hold of 0.3 s", balloon, "ms", 100),
        *gained(before, after, "1,000 month changes"),
    ]


def list_time(events, programs, rounds):
    """From the release over "Events Overview" to the list on the screen; the other option takes it away each time."""
    with contextlib.closing(Desktop(data=events, settings={"Settings Tab": 1})) as desktop:
        desktop.started()
        window = Settings_Window(desktop).open()
        rects = {child["text"]: geometry.Rect(*child["rect"]) for child in window.natives(BUTTON)}
        places = [rects[text].centre for text in ("General Statistics", "Events Overview")]
        times = click_times(desktop, programs, "release", places * rounds)[1::2]
        if not window.natives(LIST):
            raise RuntimeError("the list of all events isn't on view")
    return statistics.median(times)


def settings_window(data, programs, rounds):
    """Its opening on a full store, what openings leave behind, and its list of all events."""
    events = (data / "32767/calendar.dat").read_bytes()
    with contextlib.closing(Desktop(data=events)) as desktop:
        desktop.started()
        header = desktop.on_screen(desktop.layout().header_rect(0))
        beside_all = (header.left + 4, header.top + 4)
        opening = statistics.median(click_times(desktop, programs, "f8", [beside_all] * rounds)[1:])
        before = work(desktop, "settings", 20, seconds=240)
        after = work(desktop, "settings", 200, seconds=240)
    listing = list_time(events, programs, rounds)
    objects, windows, handles = gained(before, after, "200 openings")
    unlike_keys = abs(handles.value - 200 * KEYS_LEFT_OPEN)  # fewer would hide as many that are lost
    return [
        Figure("Wine: settings window on screen, after F8", opening, "ms", 400),
        objects, windows,
        Figure(f"{handles.name}, but for the two registry keys of each", unlike_keys, "", 0),
        Figure("Wine: all events sorted and shown, 32,767, after the release", listing, "ms", 600),
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
