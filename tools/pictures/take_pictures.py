#!/usr/bin/env python3
"""Takes the pictures of the guide and the README from the running program; see scripts/pictures.sh."""
import pathlib
import shutil
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tests/desktop"))
from harness.desktop import Desktop  # pylint: disable=wrong-import-position
from harness.geometry import Rect
from harness.settings import Settings_Window
from harness.waiting import wait_for

GUIDE, DOCS = ROOT / "guide", ROOT / "docs/pictures"
NOW = "2004-03-05 14:07:00"
TABS = {1: "events", 2: "colours", 3: "general", 4: "style", 6: "wallpaper", 7: "exchange"}


def sample_events():
    script = '. "$1/scripts/lib/sample.sh" && sample_calendar 2004 03 05'
    return subprocess.run(["bash", "-c", script, "bash", str(ROOT)], check=True, stdout=subprocess.PIPE,
                          timeout=30).stdout


def keep(picture, rect, path, colours=64):
    """A part of the screen as a small file, the same bytes for the same picture."""
    crop = f"{rect.right - rect.left}x{rect.bottom - rect.top}+{rect.left}+{rect.top}"
    subprocess.run(["convert", "-size", f"{picture.width}x{picture.height}", "-depth", "8", "rgb:-", "-crop", crop, "+repage",
                    "+dither", "-colors", str(colours), "-strip", "-define", "png:exclude-chunks=date,time", str(path)],
                   input=picture.data, check=True, timeout=60)
    print(path.relative_to(ROOT))


def around(rect, margin):
    return Rect(rect.left - margin, rect.top - margin, rect.right + margin, rect.bottom + margin)


class Pictures:
    def __init__(self, **settings):
        self.desktop = Desktop(now=NOW, data=sample_events(), settings={"Alignment": 3, **settings})

    def __enter__(self):
        return self.desktop

    def __exit__(self, *_):
        self.desktop.close()


def take_calendar():
    with Pictures() as desktop:
        place = desktop.started()
        keep(desktop.screen.picture_at_rest(), around(place, 5), GUIDE / "calendar.png")


def take_styles():
    for style, name in ((0, "thin"), (2, "small")):  # calendar.png shows the square one
        with Pictures(Style=style) as desktop:
            place = desktop.started()
            keep(desktop.screen.picture_at_rest(), around(place, 5), GUIDE / f"style-{name}.png", 32)


def take_editor():
    with Pictures() as desktop:
        desktop.started()
        desktop.screen.double_click(*desktop.box_rect(9).centre)
        title = desktop.find_window("Meridex - ").title
        desktop.screen.rest_pointer()
        picture = desktop.screen.picture_at_rest()
        keep(picture, desktop.framed_window(title).rect, GUIDE / "editor.png", 32)


def take_balloon():
    with Pictures(Tooltips=2) as desktop:
        place = desktop.started()
        windows = len(desktop.windows())
        desktop.screen.press(*desktop.box_rect(16).centre)
        wait_for(lambda: len(desktop.windows()) > windows, "the balloon")
        desktop.screen.release()
        desktop.screen.rest_pointer()
        keep(desktop.screen.picture_at_rest(), around(place, 5), GUIDE / "balloon.png")


def take_menu():
    with Pictures() as desktop:
        place = desktop.started()
        desktop.screen.click(*desktop.box_rect(16).centre, button=3)
        wait_for(lambda: len(desktop.windows()) > 1, "the menu")
        keep(desktop.screen.picture_at_rest(), around(place, 5), GUIDE / "menu.png")


def take_settings():
    for tab, name in TABS.items():
        with Pictures(**{"Settings Tab": tab, "Use Themes": 1, "Pack Name": "Seasons", "Use Theme Pos": 0,
                         "Use Theme Style": 0}) as desktop:
            shutil.copytree(ROOT / "packs/Seasons", desktop.folder / "Seasons")
            desktop.started()
            window = Settings_Window(desktop).open()
            desktop.screen.rest_pointer()
            rect = Rect(*window.state()["rect"])
            picture = desktop.screen.picture_at_rest()
            keep(picture, rect, GUIDE / f"tab-{name}.png", 256)
            if name == "style":
                keep(picture, rect, DOCS / "settings.png", 256)


def take_desktop():
    """The calendar among the icons, on a pack's picture."""
    with tempfile.TemporaryDirectory() as folder:
        screen = pathlib.Path(folder, "screen.png")
        subprocess.run([ROOT / "scripts/run.sh", "--no-build", "--desktop", "--now", "2004-12-03 10:00:00", "--setting",
                        "Settings Use Themes 1", "--setting", 'Settings "Pack Name" Seasons', "--setting",
                        "Settings Style 1", "--screenshot", screen], check=True, timeout=120, stdin=subprocess.DEVNULL)
        subprocess.run(["convert", screen, "-quality", "85", "-strip", DOCS / "desktop.jpg"], check=True,
                       timeout=60)
    print("docs/pictures/desktop.jpg")


PICTURES = {"calendar": take_calendar, "styles": take_styles, "editor": take_editor, "balloon": take_balloon,
            "menu": take_menu, "settings": take_settings, "desktop": take_desktop}

if __name__ == "__main__":
    unknown = [name for name in sys.argv[1:] if name not in PICTURES]
    if unknown:
        sys.exit(f"No picture is called {', '.join(unknown)}; the names: {', '.join(PICTURES)}")
    for wanted in sys.argv[1:] or PICTURES:
        PICTURES[wanted]()
