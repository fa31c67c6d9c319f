#!/usr/bin/env python3
"""Draws pulse.gif, beside this file: rings that run outwards from a dot, without end."""

import pathlib
import struct

SIZE = 120  # px
FRAMES = 16
DELAY = 6  # 1/100 s
RINGS = 2
REACH = 54.0  # px, where a ring has faded away
FINE = 3  # samples a pixel on each axis
BITS = 5  # of a colour's number
GROUND = (15, 18, 23)
LIGHT = (124, 196, 255)


def brightness(distance, phase):
    """How much light there is so far from the middle, 0 to 1."""
    if distance < 9:
        return 1.0
    light = 0.0
    for ring in range(RINGS):
        way = (phase + ring / RINGS) % 1
        nearness = 1 - abs(distance - 9 - way * (REACH - 9)) / 4
        light = max(light, min(1.0, 2 * nearness) * (1 - way))
    return max(0.0, light)


def pixels(phase):
    """The numbers of the colours of one frame, line by line."""
    levels = (1 << BITS) - 1
    samples = [(i + 0.5) / FINE for i in range(FINE)]
    for y in range(SIZE):
        for x in range(SIZE):
            light = sum(
                brightness(((x + dx - SIZE / 2) ** 2 + (y + dy - SIZE / 2) ** 2) ** 0.5, phase)
                for dy in samples
                for dx in samples
            )
            yield round(levels * light / FINE**2)


def compressed(numbers):
    """The codes of a frame, in blocks as the file has them."""
    clear = 1 << BITS
    table, width, text = {}, BITS + 1, ()
    bits, length = clear, width

    def put(code):
        nonlocal bits, length
        bits |= code << length
        length += width

    def code_of(text):
        return text[0] if len(text) == 1 else table[text]

    for number in numbers:
        longer = text + (number,)
        if len(longer) == 1 or longer in table:
            text = longer
            continue
        put(code_of(text))
        text = (number,)
        if clear + 2 + len(table) == 4096:
            put(clear)
            table, width = {}, BITS + 1
            continue
        table[longer] = clear + 2 + len(table)
        if table[longer] == 1 << width:
            width += 1
    put(code_of(text))
    put(clear + 1)
    data = bits.to_bytes((length + 7) // 8, "little")
    blocks = [data[i : i + 255] for i in range(0, len(data), 255)]
    return bytes([BITS]) + b"".join(bytes([len(b)]) + b for b in blocks) + b"\0"


def animation():
    """The whole file."""
    shares = [i / ((1 << BITS) - 1) for i in range(1 << BITS)]
    table = bytes(round(g + (l - g) * s) for s in shares for g, l in zip(GROUND, LIGHT))
    screen = struct.pack("<HHBBB", SIZE, SIZE, 0x80 | (BITS - 1), 0, 0)
    yield b"GIF89a" + screen + table
    yield b"\x21\xff\x0bNETSCAPE2.0\x03\x01\0\0\0"
    for frame in range(FRAMES):
        yield struct.pack("<BBBBHBB", 0x21, 0xF9, 4, 4, DELAY, 0, 0)
        yield b"," + struct.pack("<HHHHB", 0, 0, SIZE, SIZE, 0)
        yield compressed(pixels(frame / FRAMES / RINGS))
    yield b";"


if __name__ == "__main__":
    pathlib.Path(__file__).with_suffix(".gif").write_bytes(b"".join(animation()))
