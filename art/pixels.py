"""Pictures drawn by hand, one letter a pixel.

A file holds lines "letter = #rrggbb", an empty line, then the rows; "." is see-through.
"""
import os

HERE = os.path.dirname(os.path.abspath(__file__))


def read(name):
    with open(os.path.join(HERE, 'pixels', name)) as f:
        head, _, body = f.read().partition('\n\n')
    colours = {'.': (0, 0, 0, 0)}
    for line in head.splitlines():
        letter, _, value = line.partition(' = #')
        colours[letter] = tuple(int(value[i:i + 2], 16) for i in (0, 2, 4)) + (255,)
    rows = body.split()
    assert len({len(r) for r in rows}) == 1, f'{name}: rows of different lengths'
    return [[colours[letter] for letter in row] for row in rows]
