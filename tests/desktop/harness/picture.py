"""A screenshot, and what the tests ask of it."""
import subprocess


def rgb(colour):
    """Red, green, blue of a stored colour number."""
    return colour & 255, colour >> 8 & 255, colour >> 16 & 255


def near(one, other, tolerance=2):
    return all(abs(a - b) <= tolerance for a, b in zip(one, other))


def brightness(colour):
    return (colour[0] * 299 + colour[1] * 587 + colour[2] * 114) // 1000


class Picture:
    def __init__(self, width, height, data):
        self.width, self.height, self.data = width, height, data

    @staticmethod
    def of_screen(width, height, environment):
        command = ["import", "-window", "root", "-depth", "8", "rgb:-"]
        data = subprocess.run(command, env=environment, timeout=20, check=True, capture_output=True).stdout
        return Picture(width, height, data)

    @staticmethod
    def of_file(path, width, height):
        command = ["convert", str(path), "-depth", "8", "rgb:-"]
        data = subprocess.run(command, timeout=30, check=True, capture_output=True).stdout
        return Picture(width, height, data)

    def __eq__(self, other):
        return isinstance(other, Picture) and self.data == other.data

    def save(self, path):
        command = ["convert", "-size", f"{self.width}x{self.height}", "-depth", "8", "rgb:-", str(path)]
        subprocess.run(command, input=self.data, timeout=30, check=True)

    def pixel(self, x, y):
        at = (y * self.width + x) * 3
        return tuple(self.data[at:at + 3])

    def pixels(self, rect):
        for y in range(max(rect.top, 0), min(rect.bottom, self.height)):
            for x in range(max(rect.left, 0), min(rect.right, self.width)):
                yield self.pixel(x, y)

    def part(self, rect):
        """The bytes of a rectangle, to compare two pictures there."""
        rows = range(max(rect.top, 0), min(rect.bottom, self.height))
        left, right = max(rect.left, 0), min(rect.right, self.width)
        return b"".join(self.data[(y * self.width + left) * 3:(y * self.width + right) * 3] for y in rows)

    def count(self, rect, colour, tolerance=2):
        return sum(near(pixel, colour, tolerance) for pixel in self.pixels(rect))

    def share(self, rect, colour, tolerance=2):
        """How much of a rectangle has the colour, 0 to 1."""
        return self.count(rect, colour, tolerance) / (rect.width * rect.height)

    def is_all(self, rect, colour):
        return self.share(rect, colour) == 1

    def ink(self, rect, back):
        """The number of pixels of a text on that ground: those clearly darker than it."""
        limit = brightness(back) - 60
        return sum(brightness(pixel) < limit for pixel in self.pixels(rect))

    def rows_with_ink(self, rect, back):
        limit = brightness(back) - 60
        return [y for y in range(rect.top, rect.bottom)
                if any(brightness(self.pixel(x, y)) < limit for x in range(rect.left, rect.right))]

    def longest_line(self, rect, back):
        """The longest run of dark pixels in one row: an underline is longer than any stroke of a digit."""
        limit, longest = brightness(back) - 60, 0
        for y in range(rect.top, rect.bottom):
            run = 0
            for x in range(rect.left, rect.right):
                run = run + 1 if brightness(self.pixel(x, y)) < limit else 0
                longest = max(longest, run)
        return longest
