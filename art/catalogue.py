"""Every picture of the program: its kind, its size in pixels and its source.

Kinds: keyed = magenta is see-through; flat = no see-through part; alpha = PNG transparency.
Sources: NAME.txt in pixels/, NAME.svg in svg/, NAME.py:ARGUMENT a module here whose draw(ARGUMENT) gives SVG text.
"""
import importlib
import os

import pixels

HERE = os.path.dirname(os.path.abspath(__file__))

MARKERS = {
    'picCollArmi': (14, 14), 'picCollArmature': (14, 14), 'picGreenMarker': (15, 14), 'picNote': (15, 15),
    'picTreasure': (15, 15), 'picPet': (16, 16),
    'picSelezione': (22, 21), 'picCollSelezione': (22, 21), 'picGreenSelezione': (22, 21),
    'picNoteSelezione': (22, 21), 'picTreasureSelezione': (22, 21),
}
ZONES = {
    'picVanquish0': (24, 29), 'picDungeonEntrance0': (29, 25),
    'picOutpost1': (22, 24), 'picOutpost2': (35, 42), 'picOutpost3': (38, 38),
    'picMission1': (32, 47), 'picMission2': (45, 47), 'picMission3': (64, 61),
    'picTown1': (32, 36), 'picTown2': (60, 51), 'picTown3': (62, 61),
    'picChallenge2': (44, 51), 'picChallenge3': (59, 68),
}
BUTTONS = ('quit', 'minimize', 'maximize', 'close')
COSTS = ('imgExtUpKeep', 'imgExtAdrenaline', 'imgExtEnergy', 'imgExtRecharge', 'imgExtCast')
ICON_SIZES = (16, 24, 32, 48, 64, 128, 256)

PICTURES = {}
# A marker of a new kind is as large as its drawing.
for _name in sorted(_file[:-len('.txt')] for _file in os.listdir(os.path.join(HERE, 'pixels')) if _file.startswith('pic')):
    if _name not in MARKERS:
        _rows = pixels.read(_name + '.txt')
        MARKERS[_name] = (len(_rows[0]), len(_rows))
for _name, (_w, _h) in MARKERS.items():
    PICTURES['markers/' + _name] = ('keyed', _w, _h, _name + '.txt')
for _name, (_w, _h) in ZONES.items():
    PICTURES['markers/' + _name] = ('keyed', _w, _h, 'zones.py:' + _name)
for _name in BUTTONS:
    PICTURES['windows/' + _name] = ('flat', 15, 15, _name + '.txt')
for _name in COSTS:
    PICTURES['windows/' + _name] = ('alpha', 16, 16, _name + '.svg')
for _name in ('101', '102', '103'):
    for _suffix, _size in (('', 32), ('-large', 64)):
        PICTURES['cursors/' + _name + _suffix] = ('alpha', _size, _size, 'cursor' + _name + '.svg')
for _size in ICON_SIZES:
    PICTURES[f'icon/orvinel-{_size}'] = ('alpha', _size, _size, 'icon-small.svg' if _size < 32 else 'icon.svg')
PICTURES['windows/picSplash'] = ('flat', 748, 721, 'splash.py:')
PICTURES['windows/imgScene'] = ('alpha', 518, 443, 'scene.py:')
PICTURES['windows/imgLogo'] = ('flat', 177, 45, 'logo.svg')
for _i in range(4):
    PICTURES[f'windows/imgChar{_i}'] = ('flat', 120, 44, f'strips.py:{_i}')


def svg(source):
    if '.py' in source:
        module, _, argument = source.partition('.py:')
        return importlib.import_module(module).draw(argument)
    with open(os.path.join(HERE, 'svg', source)) as f:
        return f.read()
