#!/usr/bin/env python3
"""Draws the program's icons, bitmaps and its pointer into resources/. Needs nothing but Python itself.

    python3 tools/pictures/make_pictures.py

The result depends on this folder alone: run it again after a change and commit what it wrote.
"""
import image_files
import setup_pictures
import small_pictures
import window_pictures
from image_files import entry, write_bitmap, write_icon, write_pointer

BUTTONS = {
    "import_data": (window_pictures.data_picture, False),
    "import_configuration": (window_pictures.configuration_picture, False),
    "import_csv": (window_pictures.csv_picture, False),
    "export_data": (window_pictures.data_picture, True),
    "export_configuration": (window_pictures.configuration_picture, True),
    "export_text": (window_pictures.text_picture, True),
    "export_csv": (window_pictures.csv_picture, True),
}


def write_program_icon():
    pictures = [small_pictures.program_picture(size) for size in (16, 32, 48)]
    entries = [entry(picture, "system") for picture in pictures] + [entry(picture, 32) for picture in pictures]
    entries.append(entry(small_pictures.program_picture(64), 32))
    entries.append(entry(small_pictures.program_picture(96), 8))
    write_icon("meridex.ico", entries)


def write_button_icon(name, draw, outwards):
    """The size of a button's picture at 96, 144 and 192 dots an inch."""
    small, middle, large = (window_pictures.button_picture(size, draw, outwards) for size in (32, 48, 64))
    write_icon(name + ".ico", [entry(small, "system"), entry(small, 32), entry(middle, 8), entry(large, 8)])


def main():
    image_files.RESOURCES.mkdir(exist_ok=True)
    write_program_icon()
    information = small_pictures.information_picture(16)
    write_icon("information.ico", [entry(information, "system"), entry(information, 32)])
    write_bitmap("clear.bmp", small_pictures.clear_picture())
    write_bitmap("file.bmp", small_pictures.file_picture())
    write_bitmap("settings.bmp", small_pictures.settings_picture())
    write_bitmap("exit.bmp", small_pictures.exit_picture())
    write_icon("monitor.ico", [entry(window_pictures.monitor_picture(*size), 4) for size in window_pictures.MONITORS])
    write_icon("small_calendar.ico",
               [entry(window_pictures.small_calendar_picture(*size), 4) for size in window_pictures.CALENDARS])
    write_bitmap("setup.bmp", setup_pictures.setup_picture())
    for name, (draw, outwards) in BUTTONS.items():
        write_button_icon(name, draw, outwards)
    write_pointer("cross_hair.cur", window_pictures.cross_hair_picture(), (16, 16))


if __name__ == "__main__":
    main()
