"""Do the captions of each language fit the places that show them, and do all places that list them agree?"""
import os
import re
import shutil
import struct
import subprocess

TOP = os.path.join(os.path.dirname(os.path.abspath(__file__)), '..')
DATA = os.path.join(TOP, 'world', 'Data')
FIRST_MESSAGE = 201
TOOLS = 301  # from here on the words of the tools beside the program
# Read, but shown nowhere.
UNUSED = {20, 45, 77, 78, 79, 80, 82, 84, 90, 94, 96, 101}
SKILL_WORD = 45  # compared with the campaign files, which are English

# Room in pixels for captions that stand beside something else; bold where the label is.
BOLD = {2: 80, 3: 125, 5: 95, 7: 64, 8: 200, 10: 80, 30: 200, 32: 150, 33: 60, 40: 60, 41: 60, 44: 150, 46: 150, 47: 100, 48: 115,
        49: 70, 50: 70, 53: 70, 58: 97, 59: 110, 63: 95, 64: 95, 65: 110, 83: 150, 85: 90, 97: 90, 100: 64, 106: 60, 114: 150, 115: 200}
PLAIN = {6: 82, 11: 150, 15: 70, 16: 70, 17: 70, 18: 70, 24: 70, 25: 70, 26: 70, 27: 70, 34: 200, 35: 200, 36: 200, 37: 200, 38: 200,
         39: 200, 51: 98, 52: 98, 54: 66, 55: 66, 56: 66, 57: 66, 60: 200, 61: 184, 73: 200, 87: 170, 88: 170, 98: 75, 99: 75, 103: 70,
         109: 60, 111: 38, 112: 47}
COMBO = {4: 95, 9: 75, 96: 75}  # shown between "<<< " and " >>>"
HEADLINE, HEADLINE_PIXELS, HEADLINE_ROOM = 12, 32, 600  # of the empty map


class Font:
    """Advance widths of a TrueType file, enough to measure a line of Western text."""

    def __init__(self, path):
        with open(path, 'rb') as f:
            self.data = f.read()
        count = self.number('>H', 4)
        self.tables = {self.data[12 + 16 * i:16 + 16 * i]: self.number('>I', 20 + 16 * i) for i in range(count)}
        self.unitsPerEm = self.number('>H', self.tables[b'head'] + 18)
        self.metrics = self.number('>H', self.tables[b'hhea'] + 34)
        self.glyphs = dict(self.characterMap())

    def number(self, layout, at):
        return struct.unpack_from(layout, self.data, at)[0]

    def characterMap(self):
        start = self.tables[b'cmap']
        records = [struct.unpack_from('>HHI', self.data, start + 4 + 8 * i) for i in range(self.number('>H', start + 2))]
        table = start + next(offset for platform, encoding, offset in records if (platform, encoding) == (3, 1))
        segments = self.number('>H', table + 6) // 2
        ends, starts, deltas, ranges = (table + 14 + 2 * segments * i + (2 if i else 0) for i in range(4))
        for k in range(segments):
            end, begin, delta, jump = (self.number('>H', at + 2 * k) for at in (ends, starts, deltas, ranges))
            for code in range(begin, min(end, 0xFFFE) + 1):
                glyph = self.number('>H', ranges + 2 * k + jump + 2 * (code - begin)) if jump else code
                yield code, (glyph + delta) & 0xFFFF if glyph or not jump else 0

    def width(self, text, pixels=11):
        glyphs = (min(self.glyphs.get(ord(c), 0), self.metrics - 1) for c in text)
        return sum(self.number('>H', self.tables[b'hmtx'] + 4 * g) for g in glyphs) * pixels / self.unitsPerEm


def read(name):
    with open(os.path.join(DATA, name), 'rb') as f:
        lines = f.read().decode('cp1252').split('\r\n')
    return {int(number): text for number, _, text in (line.partition('\t') for line in lines if line)}


def named():
    """Number and English text of each name in the program's list of captions."""
    with open(os.path.join(TOP, 'src', 'base', 'Caption.h'), encoding='utf-8') as f:
        return {int(number): text for number, text in re.findall(r'^    \w+ = (\d+),? +// "(.*)"$', f.read(), re.M)}


def documented():
    """The numbers that the rows of the translator's table name."""
    with open(os.path.join(TOP, 'docs', 'translating.md'), encoding='utf-8') as f:
        rows = re.findall(r'^\| ([0-9, -]+) \|', f.read(), re.M)
    for span in ','.join(rows).split(','):
        first, _, last = span.strip().partition('-')
        yield from range(int(first), int(last or first) + 1)


def unnamed():
    names, english, shown = named(), read('Language.txt'), set(documented())
    if len(names) < 100:
        yield 'Caption.h: its list is not written as it is read here'
    for number, text in names.items():
        cut = text.endswith(' ...') and english.get(number, '').startswith(text[:-4])  # longer than a line
        if english.get(number) != text and not cut:
            yield f'Language.txt: {number} is "{english.get(number)}", Caption.h says "{text}"'
        if number not in shown and number not in UNUSED:
            yield f'docs/translating.md does not say where {number} stands'
    for number in sorted((set(english) | set(BOLD) | set(PLAIN) | set(COMBO)) - set(names)):
        if number < TOOLS:
            yield f'Caption.h: no name for {number}'


def faults():
    english = read('Language.txt')
    yield from unnamed()
    for name in ('Languages/English.txt', 'Languages/Italiano.txt', 'Languages/Deutsch.txt'):
        texts = read(name)
        if set(texts) != set(english):
            yield f'{name}: other numbers than Language.txt: {sorted(set(texts) ^ set(english))}'
            continue
        if texts[SKILL_WORD] != english[SKILL_WORD]:
            yield f'{name}: caption {SKILL_WORD} must stay as the campaign files write it'
        for number in (n for n in english if n >= FIRST_MESSAGE):
            if any((mark in texts[number]) != (mark in english[number]) for mark in ('%1', '%2')):
                yield f'{name}: message {number} names other things than the English one'
        yield from tooWide(name, texts)
    if read('Languages/English.txt') != english:
        yield 'Languages/English.txt differs from Language.txt'


def fontFile(style):
    """The file of the font that the program uses, or None where it is not installed."""
    if not shutil.which('fc-match'):
        return None
    found = subprocess.run(['fc-match', '-f', '%{family}\t%{file}', 'Liberation Sans:style=' + style],
                           stdout=subprocess.PIPE, text=True, check=True).stdout
    family, _, path = found.partition('\t')
    return path if family == 'Liberation Sans' else None


def tooWide(name, texts):
    files = fontFile('Bold'), fontFile('Regular')
    if None in files:
        return
    bold, plain = (Font(path) for path in files)
    rows = [(bold, n, texts[n], room) for n, room in BOLD.items()] + [(plain, n, texts[n], room) for n, room in PLAIN.items()] + \
        [(plain, n, f'<<< {texts[n]} >>>', room) for n, room in COMBO.items()]
    for font, number, text, room in rows:
        if font.width(text) + len(text) / 5 > room:
            yield f'{name}: {number} "{text}" is {font.width(text):.0f} px wide, there is room for {room}'
    if plain.width(texts[HEADLINE], HEADLINE_PIXELS) > HEADLINE_ROOM:
        yield f'{name}: {HEADLINE} is wider than the {HEADLINE_ROOM} px of the map'
