"""Icons, pointers and bitmaps as Windows files. A picture is anything with width, height and pixel(column, row)."""
import pathlib
import struct

RESOURCES = pathlib.Path(__file__).resolve().parents[2] / "resources"
MENU_GROUND = (192, 192, 192)  # replaced by the menus' own colour when a bitmap is loaded

# The colours that every system of 16 colours has.
SYSTEM_COLOURS = [(r, g, b) for b in (0, 128) for g in (0, 128) for r in (0, 128)][:7] + [
    (192, 192, 192), (128, 128, 128)] + [
    (255 if i & 1 else 0, 255 if i & 2 else 0, 255 if i & 4 else 0) for i in range(1, 8)]


def pixels_of(picture):
    return [[picture.pixel(x, y) for x in range(picture.width)] for y in range(picture.height)]


def header(picture, bits, colours=0):
    return struct.pack("<IiiHHIIiiII", 40, picture.width, picture.height * 2, 1, bits, 0, 0, 0, 0, colours, 0)


def mask_of(pixels):
    """One bit a pixel, set where nothing is drawn; rows of whole 32 bits from the bottom up."""
    mask, pitch = b"", (len(pixels[0]) + 31) // 32 * 4
    for row in reversed(pixels):
        bits = sum(1 << (pitch * 8 - 1 - x) for x, (_, _, _, a) in enumerate(row) if a < 128)
        mask += bits.to_bytes(pitch, "big")
    return mask


def icon_image(picture):
    """One picture of an icon file: 32 bits a pixel for the systems that know them, with a mask for the others."""
    pixels = pixels_of(picture)
    colours = b"".join(struct.pack("4B", b, g, r, a) for row in reversed(pixels) for r, g, b, a in row)
    return header(picture, 32) + colours + mask_of(pixels)


def nearest(colour, palette):
    return min(range(len(palette)), key=lambda i: sum((a - b) ** 2 for a, b in zip(colour, palette[i])))


def indexed_image(picture, bits, palette, listed):
    """The same by the numbers of a palette's colours; `listed` is how many of them the header tells, 0 for all."""
    pixels, known, colours = pixels_of(picture), {}, b""
    per_byte = 8 // bits
    pitch = (picture.width * bits + 31) // 32 * 4
    for row in reversed(pixels):
        codes = []
        for *colour, coverage in row:
            key = tuple(colour)
            if coverage >= 128 and key not in known:
                known[key] = nearest(key, palette)
            codes.append(known[key] if coverage >= 128 else palette.index((0, 0, 0)))
        codes += [0] * (-len(codes) % per_byte)
        packed = codes if bits == 8 else [a << 4 | b for a, b in zip(codes[::2], codes[1::2])]
        colours += bytes(packed).ljust(pitch, b"\0")
    table = b"".join(struct.pack("4B", b, g, r, 0) for r, g, b in palette)
    return header(picture, bits, listed) + table + colours + mask_of(pixels)


def palette_image(picture):
    """In the 16 colours of the systems and screens that have no more."""
    return indexed_image(picture, 4, SYSTEM_COLOURS, 0)


def own_palette(picture, most):
    """At most that many colours for the picture, black among them: the boxes of a median cut."""
    drawn = [tuple(pixel[:3]) for row in pixels_of(picture) for pixel in row if pixel[3] >= 128]
    boxes = [sorted(drawn)]
    while len(boxes) < most - 1:
        def spread(box):
            return max((max(c[i] for c in box) - min(c[i] for c in box), i) for i in range(3))
        widest = max(range(len(boxes)), key=lambda i: (spread(boxes[i])[0], len(boxes[i])))
        width, channel = spread(boxes[widest])
        if width == 0:
            break
        box = sorted(boxes.pop(widest), key=lambda c: (c[channel], c))
        middle = len(box) // 2
        # Equal colours stay together.
        while middle < len(box) and box[middle][channel] == box[0][channel]:
            middle += 1
        while middle > 1 and middle < len(box) and box[middle - 1][channel] == box[middle][channel]:
            middle -= 1
        if middle == 0 or middle == len(box):
            middle = next(i for i in range(1, len(box)) if box[i][channel] != box[0][channel])
        boxes += [box[:middle], box[middle:]]
    palette = {tuple(round(sum(c[i] for c in box) / len(box)) for i in range(3)) for box in boxes}
    return [(0, 0, 0)] + sorted(palette - {(0, 0, 0)})


def small_image(picture, bits):
    """In colours of its own, 16 or 256 at most."""
    palette = own_palette(picture, 1 << bits)
    return indexed_image(picture, bits, palette, len(palette))


def entry(picture, depth):
    """A picture in a depth: 32 bits a pixel, "system" for the 16 system colours, 4 or 8 for a palette of its own."""
    if depth == 32:
        return picture, 32, icon_image(picture)
    if depth == "system":
        return picture, 4, palette_image(picture)
    return picture, depth, small_image(picture, depth)


def write_icon(name, entries):
    data = struct.pack("<3H", 0, 1, len(entries))
    offset = 6 + 16 * len(entries)
    for picture, bits, image in entries:
        colours = 16 if bits == 4 else 0
        data += struct.pack("<4BHHII", picture.width % 256, picture.height % 256, colours, 0, 1, bits, len(image), offset)
        offset += len(image)
    (RESOURCES / name).write_bytes(data + b"".join(image for _, _, image in entries))


def write_pointer(name, picture, hot_spot):
    """A pointer of black, white and nothing, which every system can show."""
    pixels = pixels_of(picture)
    pitch, white = (picture.width + 31) // 32 * 4, b""
    for row in reversed(pixels):
        bits = sum(1 << (pitch * 8 - 1 - x) for x, (r, _, _, a) in enumerate(row) if a and r)
        white += bits.to_bytes(pitch, "big")
    image = header(picture, 1) + struct.pack("8B", 0, 0, 0, 0, 255, 255, 255, 0) + white + mask_of(pixels)
    head = struct.pack("<3H4BHHII", 0, 2, 1, picture.width, picture.height, 2, 0, *hot_spot, len(image), 22)
    (RESOURCES / name).write_bytes(head + image)


def write_bitmap(name, picture):
    """24 bits a pixel on the menus' ground. The ground must be the bottom left pixel: the loader looks there for it."""
    body = b""
    for row in reversed(pixels_of(picture)):
        line = b""
        for *colour, a in row:
            mixed = [(c * a + ground * (255 - a) + 127) // 255 for c, ground in zip(colour, MENU_GROUND)]
            line += bytes(reversed(mixed))
        body += line.ljust((picture.width * 3 + 3) // 4 * 4, b"\0")
    info = struct.pack("<IiiHHIIiiII", 40, picture.width, picture.height, 1, 24, 0, len(body), 0, 0, 0, 0)
    file = struct.pack("<2sIHHI", b"BM", 54 + len(body), 0, 0, 54)
    (RESOURCES / name).write_bytes(file + info + body)
