"""check_version.py PROGRAM RELEASE ICON: the system shows a built program's version and the calendar's icon."""
import pathlib
import re
import struct
import sys

from resources import Resources

ICON, ICON_GROUP, VERSION = 3, 14, 16  # types of resources
OF_THE_PROGRAM = 1


def text_of(version, name):
    """A text of the version: it stands behind its name, and both are ended by a zero; zeros fill up to the next place."""
    found = re.search(f"{name}\0+([^\0]+)\0", version.decode("utf-16-le", "replace"))
    return found and found[1]


def pictures_of(file):
    """The pictures in the bytes of an icon's file."""
    count, = struct.unpack_from("<4xH", file)
    places = (struct.unpack_from("<8xII", file, 6 + 16 * i) for i in range(count))
    return [file[at:at + size] for size, at in places]


def pictures_in(resources, group):
    """The pictures of the program's icon of that number."""
    icon = resources.read(ICON_GROUP, group)
    count, = struct.unpack_from("<4xH", icon)
    return [resources.read(ICON, struct.unpack_from("<12xH", icon, 6 + 14 * i)[0]) for i in range(count)]


def main(path, release, icon):
    resources = Resources(pathlib.Path(path).read_bytes())
    version = resources.read(VERSION, OF_THE_PROGRAM)
    wanted = {"FileDescription": "Meridex desktop calendar", "FileVersion": release, "ProductName": "Meridex",
              "ProductVersion": release}
    wrong = [name for name, text in wanted.items() if text_of(version, name) != text]
    # The system shows the icon of the lowest number.
    if pictures_in(resources, resources.numbers(ICON_GROUP)[0]) != pictures_of(pathlib.Path(icon).read_bytes()):
        wrong.append(f"Its icon isn't {icon}")
    if wrong:
        raise SystemExit("\n".join(wrong))


main(*sys.argv[1:])
