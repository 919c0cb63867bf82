"""check_manifest.py PROGRAM: the manifest in a built program asks the system for what the calendar needs of it."""
import pathlib
import sys
import xml.etree.ElementTree as ElementTree

from resources import Resources

MANIFEST, OF_THE_PROGRAM = 24, 1  # the resource's type and number

V1, V3 = "{urn:schemas-microsoft-com:asm.v1}", "{urn:schemas-microsoft-com:asm.v3}"
COMPATIBILITY = "{urn:schemas-microsoft-com:compatibility.v1}"
SETTINGS = "{http://schemas.microsoft.com/SMI/%d/WindowsSettings}"

# Vista, 7, 8, 8.1, 10 and 11.
SYSTEMS = {"{e2011457-1546-43c5-a5fe-008deee3d3f0}", "{35138b9a-5d96-4fbd-8e2d-a2440225f93a}",
           "{4a2f28e3-53b9-4441-ba9c-d69d4a4a6e38}", "{1f676c76-80e1-4239-95bb-83d0f6d0da78}",
           "{8e0f7a12-bfb3-4fe8-b9a5-48fd50a15a9a}"}


def main(path):
    tree = ElementTree.fromstring(Resources(pathlib.Path(path).read_bytes()).read(MANIFEST, OF_THE_PROGRAM))

    def texts(name):
        return [element.text.strip() for element in tree.iter(name)]

    def attributes(name, attribute):
        return [element.get(attribute) for element in tree.iter(name)]

    found = {
        "systems": set(attributes(COMPATIBILITY + "supportedOS", "Id")),
        "rights": attributes(V3 + "requestedExecutionLevel", "level"),
        "dots an inch": texts(SETTINGS % 2005 + "dpiAware"),
        "code page": texts(SETTINGS % 2019 + "activeCodePage"),
        "controls": [(element.get("name"), element.get("version"))
                     for element in tree.findall(f"{V1}dependency/{V1}dependentAssembly/{V1}assemblyIdentity")],
    }
    wanted = {
        "systems": SYSTEMS,
        "rights": ["asInvoker"],
        "dots an inch": ["true"],
        "code page": ["Legacy"],
        "controls": [("Microsoft.Windows.Common-Controls", "6.0.0.0")],
    }
    wrong = [f"{what}: {found[what]}, not {value}" for what, value in wanted.items() if found[what] != value]
    if wrong:
        raise SystemExit("\n".join(wrong))


main(sys.argv[1])
