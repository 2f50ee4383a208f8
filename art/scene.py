"""The information window's picture: four companions at their camp fire below a ruined arch.

The window writes its text on black left of it: the left edge is see-through and the picture grows out of it.
"""
import figures
from paint import Brush, dot, gradient, line, outline, page, shape, under

W, H = 518, 443
FIRE = (238, 330)
PLACES = ((figures.sage, 162, 291), (figures.healer, 316, 291), (figures.ranger, 78, 342), (figures.guard, 395, 342))


def defs():
    box = 'gradientUnits="userSpaceOnUse"'
    return figures.DEFS + ''.join((
        gradient('sky', [(0, '#02070d'), (.35, '#08242f'), (.62, '#17474e'), (.75, '#2c5a56')], place=f'{box} x1="0" y1="0" x2="0" y2="400"'),
        gradient('moon', [(0, '#fffbea'), (.10, '#fff1c8', .8), (.3, '#a8d8c8', .25), (1, '#a8d8c8', 0)], 'radial'),
        gradient('far', [(0, '#16404a'), (1, '#2a5c5c')], place=f'{box} x1="0" y1="150" x2="0" y2="270"'),
        gradient('stone', [(0, '#3c5a5c'), (1, '#24383a')], place=f'{box} x1="0" y1="60" x2="0" y2="270"'),
        gradient('ground', [(0, '#23403a'), (.35, '#16302c'), (1, '#050c0c')], place=f'{box} x1="0" y1="262" x2="0" y2="443"'),
        gradient('blaze', [(0, '#fff0b0', .95), (.08, '#ffc860', .75), (.35, '#ff8a2a', .35), (1, '#ff6a10', 0)], 'radial'),
        gradient('flame', [(0, '#fff8d0'), (.4, '#ffc23e'), (.8, '#f2661a'), (1, '#a82c08')], 'radial', 'cx=".5" cy=".85" r=".85"'),
        gradient('fade', [(0, '#000'), (.056, '#000'), (.17, '#fff'), (.86, '#fff'), (.95, '#000')], place=f'{box} x1="0" y1="0" x2="{W}" y2="0"'),
        gradient('fadeUp', [(0, '#000', 1), (.04, '#000', .9), (.2, '#000', 0), (.9, '#000', 0), (1, '#000', 1)], place=f'{box} x1="0" y1="0" x2="0" y2="{H}"'),
        f'<mask id="edge"><rect width="{W}" height="{H}" fill="url(#fade)"/></mask>',
        '<filter id="soft" x="-30%" y="-30%" width="160%" height="160%"><feGaussianBlur stdDeviation="2.2"/></filter>',
        '<filter id="mist" x="-30%" y="-200%" width="160%" height="500%"><feGaussianBlur stdDeviation="20 8"/></filter>'))


def ruin(brush):
    """A broken arch, lit from below by the fire."""
    left = 'M196 268V120C196 116 198 112 203 112H221V268Z'
    right = 'M282 268V128H306V268Z'
    arch = 'M196 128C196 82 222 58 252 58C268 58 280 64 289 74L284 77L287 82L279 84L281 90L274 88C268 83 261 80 252 80C234 80 221 98 221 130Z'
    drawn = shape(left, 'url(#stone)') + shape(right, 'url(#stone)') + shape(arch, 'url(#stone)')
    for x, y0, y1 in ((196, 134, 268), (282, 138, 268)):
        for y in range(y0, y1, 17):
            drawn += line(f'M{x} {y}h25', '#0c1f22', 1.3, .7) + line(f'M{x + (8 if y % 2 else 16)} {y}v17', '#0c1f22', 1.1, .6)
    for a, b in (('M199 112L220 116', 0), ('M204 92L224 106', 0), ('M216 74L231 92', 0), ('M234 62L241 82', 0), ('M256 58L254 80', 0), ('M276 64L266 84', 0)):
        drawn += line(a, '#0c1f22', 1.3, .7)
    drawn += line('M221 130C221 98 234 80 252 80C262 80 270 84 276 90M221 132V266', '#ffb468', 1.8, .6) + line('M282 140V266', '#ffb468', 1.8, .6)
    drawn += shape('M278 128L284 118L292 124L299 116L309 128V133H278Z', '#2f4a4c')
    for _ in range(60):
        side = brush.chance.choice(((198, 219), (284, 304)))
        x, y = brush.between(*side), brush.between(120, 262)
        drawn += dot(x, y, brush.between(.4, 1.1), brush.chance.choice(['#4c6a66', '#12262a', '#3f5a4a']), 'opacity=".6"')
    for _ in range(46):
        x = brush.between(194, 224)
        y = brush.between(108, 150) - (8 if x < 210 else 0)
        drawn += dot(x, y, brush.between(1, 2.6), brush.chance.choice(['#2c5a34', '#3f7a3a', '#1c3f2a']), 'opacity=".8"')
    return drawn


def woods(brush, low, high, foot, colour, step, gap):
    drawn, x = '', -20.0
    while x < W + 20:
        if not gap[0] < x < gap[1]:
            drawn += shape(brush.pine(x, foot + brush.between(-4, 6), brush.between(low, high)), colour)
        x += brush.between(step * .6, step * 1.4)
    return drawn


def ground(brush):
    points = brush.ridge(-99, 999, [(-10, 272), (80, 266), (170, 262), (260, 264), (350, 262), (440, 268), (530, 272)], .03)
    drawn = shape(under(points, H), 'url(#ground)')
    drawn += f'<ellipse cx="{FIRE[0]}" cy="{FIRE[1] + 6}" rx="190" ry="62" fill="url(#blaze)" opacity=".75"/>'
    for _ in range(420):
        y = 270 + 172 * brush.chance.random() ** 1.2
        x = brush.between(0, W)
        near = max(0.0, 1 - ((x - FIRE[0]) ** 2 + (2.4 * (y - FIRE[1])) ** 2) ** .5 / 210)
        h = brush.between(3, 7) * (.6 + (y - 262) / 150)
        colour = '#e8b050' if near > .5 else '#7a8a3c' if near > .22 else '#1c3a2c'
        drawn += line(f'M{x:.1f} {y:.1f}q{brush.between(-1, 1):.1f} {-h / 2:.1f} {brush.between(-3, 3):.1f} {-h:.1f}', colour, .9, .25 + near * .5)
    return drawn


def shadow(x, y, away):
    return f'<ellipse cx="{x + away * 26}" cy="{y + 1}" rx="44" ry="6.5" fill="#020808" opacity=".6" filter="url(#soft)"/>'


def fire(brush):
    x, y = FIRE
    stones = ''.join(f'<ellipse cx="{x + 27 * c:.1f}" cy="{y + 10 + 9 * s:.1f}" rx="7" ry="5" fill="#3a3a36" stroke="#120c08" stroke-width="1.2"/>'
                     f'<path d="M{x + 27 * c - 4:.1f} {y + 7.5 + 9 * s:.1f}q4-3 8 0" fill="none" stroke="#d89a5c" stroke-width="1.2" opacity=".8"/>'
                     for c, s in ((-1, 0), (-.8, .7), (-.3, 1), (.3, 1), (.8, .7), (1, 0), (.7, -.7), (-.7, -.7)))
    logs = line(f'M{x - 18} {y + 12}L{x + 14} {y + 3}', '#2a160a', 6) + line(f'M{x + 18} {y + 12}L{x - 14} {y + 3}', '#3a200e', 6) + \
        line(f'M{x - 17} {y + 10}L{x + 12} {y + 2}', '#c8682a', 1.4, .8)
    tongues = shape(f'M{x - 15} {y + 8}C{x - 22} {y - 8} {x - 8} {y - 14} {x - 9} {y - 30}C{x - 2} {y - 22} {x + 1} {y - 30} {x - 1} {y - 46}'
                    f'C{x + 9} {y - 34} {x + 7} {y - 24} {x + 12} {y - 26}C{x + 20} {y - 10} {x + 22} {y + 0} {x + 14} {y + 8}Z', 'url(#flame)')
    heart = shape(f'M{x - 7} {y + 8}C{x - 10} {y - 4} {x - 2} {y - 10} {x} {y - 20}C{x + 4} {y - 10} {x + 10} {y - 4} {x + 7} {y + 8}Z', '#fff4c0', 'opacity=".85"')
    sparks = ''.join(dot(x + brush.between(-34, 34) * (1 + i / 40), y - 30 - i * 3.4, brush.between(.6, 1.5), '#ffc860', f'opacity="{brush.between(.35, .95):.2f}"') for i in range(44))
    return dot(x, y - 8, 130, 'url(#blaze)') + stones + logs + tongues + heart + sparks


def draw(_):
    brush = Brush(19)
    ridge = brush.ridge(-400, 1200, brush.peaks(W, 246, 92, 110), .16)
    sky = f'<rect width="{W}" height="{H}" fill="url(#sky)"/>' + brush.stars(120, 20, 8, W, 190) + dot(404, 62, 86, 'url(#moon)') + \
        dot(404, 62, 16, '#fff8e0') + dot(399, 58, 4, '#eadfbe') + dot(409, 67, 3, '#eadfbe') + dot(408, 55, 1.8, '#eadfbe')
    land = shape(under(ridge, 290), 'url(#far)') + f'<ellipse cx="260" cy="250" rx="300" ry="14" fill="#6a9a8c" opacity=".4" filter="url(#mist)"/>'
    land += woods(brush, 60, 120, 268, '#0d2f33', 17, (120, 380)) + woods(brush, 100, 190, 274, '#071f22', 30, (70, 430))
    people = ''
    for who, x, y in PLACES:
        people += shadow(x, y, -1 if x < FIRE[0] else 1) + f'<g transform="translate({x} {y})">{who()}</g>'
    back = f'<g mask="url(#edge)">{sky}{land}{ruin(brush)}{ground(brush)}{fire(brush)}</g>'
    return page(W, H, defs(), back + f'<g>{people}</g>' + f'<g mask="url(#edge)"><rect width="{W}" height="{H}" fill="url(#fadeUp)"/></g>')
