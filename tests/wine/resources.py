"""The resources of a built program."""
import struct


class Resources:
    def __init__(self, program):
        """program: the bytes of its file."""
        self._program = program
        header, = struct.unpack_from("<I", program, 0x3C)
        sections, header_size = struct.unpack_from("<H12xH", program, header + 6)
        table = header + 24 + header_size
        for at in range(table, table + 40 * sections, 40):
            name, address, start = struct.unpack_from("<8s4xI4xI", program, at)
            if name.rstrip(b"\0") == b".rsrc":
                self._address, self._start = address, start
                return
        raise SystemExit("The program has no resources")

    def _entries(self, directory):
        """What a directory holds: places by their types, numbers or languages."""
        named, numbered = struct.unpack_from("<HH", self._program, self._start + directory + 12)
        entries = (struct.unpack_from("<II", self._program, self._start + directory + 16 + 8 * i)
                   for i in range(named + numbered))
        return {key: offset & 0x7FFFFFFF for key, offset in entries}

    def numbers(self, kind):
        """The numbers of the resources of a type."""
        return sorted(self._entries(self._entries(0)[kind]))

    def read(self, kind, number):
        """The bytes of the resource of that type and number, in its first language."""
        try:
            languages = self._entries(self._entries(self._entries(0)[kind])[number])
        except KeyError:
            raise SystemExit(f"The program has no resource {kind}, {number}") from None
        at, size = struct.unpack_from("<II", self._program, self._start + next(iter(languages.values())))
        first = self._start + at - self._address
        return self._program[first:first + size]
