"""The empty map's picture: a traveller at the edge of the known world, at dusk.

It stands at the bottom left of a black window, with cream text above and to the right of it,
so it sinks into black at its top and right edges.
"""
from paint import Brush, dot, gradient, line, outline, page, polar, shape, under

W, H = 748, 721
SUN = (306, 398)
LAYERS = (  # seed, base, height, spacing, roughness, colour at the top, colour in the haze
    (11, 415, 120, 120, .16, '#4c6f66', '#c58f52'),
    (24, 440, 118, 150, .19, '#2f5a58', '#8a7a56'),
    (37, 478, 110, 170, .20, '#1c4448', '#3f6a62'),
    (45, 520, 84, 190, .20, '#0f3035', '#265256'),
)


def defs():
    box = 'gradientUnits="userSpaceOnUse"'
    parts = [
        gradient('sky', [(0, '#000000'), (.16, '#020a0e'), (.42, '#0a2c34'), (.72, '#2a6660'), (.88, '#a98a56'), (1, '#f0b45e')],
                 place=f'{box} x1="0" y1="0" x2="0" y2="440"'),
        gradient('glow', [(0, '#fff2c4'), (.12, '#ffd583', .95), (.4, '#f09a3c', .5), (1, '#a04a18', 0)], 'radial',
                 f'{box} cx="{SUN[0]}" cy="{SUN[1]}" r="300"'),
        gradient('disc', [(0, '#fffdf0'), (.7, '#ffe9a8'), (1, '#ffce70')], 'radial', f'{box} cx="{SUN[0]}" cy="{SUN[1]}" r="46"'),
        gradient('lake', [(0, '#d8a45c'), (.2, '#6f8a74'), (.6, '#1a4c52'), (1, '#082428')], place=f'{box} x1="0" y1="516" x2="0" y2="640"'),
        gradient('shine', [(0, '#ffe9b0', .95), (.5, '#ffb858', .45), (1, '#ff9a3a', 0)], 'radial', f'{box} cx="{SUN[0]}" cy="522" r="150"'),
        gradient('lamp', [(0, '#fff6d0'), (.08, '#ffd878', .9), (.35, '#ff9a30', .32), (1, '#ff7a10', 0)], 'radial'),
        gradient('right', [(0, '#000', 0), (.45, '#000', .12), (.78, '#000', .72), (1, '#000', 1)], place=f'{box} x1="380" y1="0" x2="748" y2="0"'),
        gradient('top', [(0, '#000', 1), (.35, '#000', .85), (1, '#000', 0)], place=f'{box} x1="0" y1="0" x2="0" y2="230"'),
        gradient('near', [(0, '#0a2222'), (1, '#010606')], place=f'{box} x1="0" y1="560" x2="0" y2="721"'),
        gradient('crag', [(0, '#12343a'), (1, '#1d4a4c')], place=f'{box} x1="0" y1="330" x2="0" y2="560"'),
        gradient('cloak', [(0, '#7c2a20'), (.5, '#4a1512'), (1, '#16080a')], place='x1="1" y1="0" x2="0" y2=".3"'),
        '<filter id="soft"><feGaussianBlur stdDeviation="1.1"/></filter><filter id="mist" x="-20%" y="-80%" width="140%" height="260%">'
        '<feGaussianBlur stdDeviation="14 7"/></filter>',
    ]
    for i, (_, base, height, _, _, top, haze) in enumerate(LAYERS):
        parts.append(gradient(f'm{i}', [(0, top), (1, haze)], place=f'{box} x1="0" y1="{base - height}" x2="0" y2="{base + 46}"'))
    return ''.join(parts)


def rose():
    """The sun is the rose of a sea chart: rings, degrees and points, thin and gold in the sky."""
    cx, cy = SUN
    drawn = ''
    for r, width, strength in ((92, .9, .5), (98, .5, .4), (176, .6, .3), (236, .8, .36), (243, .5, .3)):
        drawn += f'<circle cx="{cx}" cy="{cy}" r="{r}" fill="none" stroke="#ffe2a0" stroke-width="{width}" stroke-opacity="{strength}"/>'
    for degrees in range(180, 361, 3):
        inner = 236 if degrees % 15 else 228
        (ax, ay), (bx, by) = polar(cx, cy, inner, degrees), polar(cx, cy, 243, degrees)
        drawn += line(f'M{ax:.1f} {ay:.1f}L{bx:.1f} {by:.1f}', '#ffe2a0', .7, .4)
    for i in range(-8, 9):
        degrees = -90 + i * 11.25
        reach, half = ((262, 5) if i % 8 == 0 else (222, 4) if i % 4 == 0 else (172, 3) if i % 2 == 0 else (124, 2))
        tip, left, right = polar(cx, cy, reach, degrees), polar(cx, cy, 62, degrees - half * 1.5), polar(cx, cy, 62, degrees + half * 1.5)
        middle = polar(cx, cy, 50, degrees)
        drawn += shape(outline([tip, left, middle]), '#ffe9b8', 'fill-opacity=".30"')
        drawn += shape(outline([tip, right, middle]), '#c98a3a', 'fill-opacity=".30"')
    return drawn


def clouds(brush):
    drawn = ''
    for _ in range(26):
        x, y = brush.between(-60, 620), brush.between(225, 392)
        w, h = brush.between(60, 190), brush.between(1.5, 5.5)
        near = max(0.0, 1 - abs(x + w / 2 - SUN[0]) / 330)
        colour = '#ffd9a0' if near > .45 else '#c98a5a' if near > .2 else '#2d5a5c'
        drawn += f'<ellipse cx="{x + w / 2:.1f}" cy="{y:.1f}" rx="{w / 2:.1f}" ry="{h:.1f}" fill="{colour}" opacity="{.10 + .28 * near:.2f}"/>'
    return f'<g filter="url(#soft)">{drawn}</g>'


def range_(index):
    seed, base, height, spacing, rough, _, _ = LAYERS[index]
    brush = Brush(seed)
    points = brush.ridge(-400, 1200, brush.peaks(W, base, height, spacing), rough)
    drawn = shape(under(points, base + 60), f'url(#m{index})')
    # Ribs run down from the crest: lit towards the sun, dark away from it.
    for k in range(3, len(points) - 3, 3):
        x, y = points[k]
        if y > base - height * .12 or not -10 < x < W:
            continue
        side = 1 if x < SUN[0] else -1
        depth = (base - y) * brush.between(.25, .6)
        drawn += line(f'M{x:.1f} {y + 1:.1f}l{side * depth * .35:.1f} {depth * .45:.1f}l{-side * depth * .12:.1f} {depth * .3:.1f}',
                      '#ffdca0' if brush.chance.random() < .5 else '#021418', brush.between(.5, 1.5), brush.between(.05, .16))
    rim = 'M' + 'L'.join(f'{x:.1f} {y:.1f}' for x, y in points if -10 < x < W)
    drawn += line(rim, '#ffdf9e', 1.1, .34 - .06 * index)
    return drawn


def mist(y, strength, colour='#e8b878'):
    return f'<ellipse cx="{SUN[0]}" cy="{y}" rx="420" ry="12" fill="{colour}" opacity="{strength}" filter="url(#mist)"/>'


def castle():
    """Keep and towers on a crag across the lake."""
    brush = Brush(7)
    left = brush.ridge(-999, 999, [(404, 556), (432, 500), (450, 452), (463, 424)], .12, 4)
    right = brush.ridge(-999, 999, [(560, 418), (576, 462), (604, 508), (640, 560)], .12, 4)
    drawn = shape(outline(left + right + [(640, 566), (404, 566)]), 'url(#crag)')
    for _ in range(34):
        x, y = brush.between(430, 600), brush.between(436, 548)
        drawn += line(f'M{x:.1f} {y:.1f}l{brush.between(-4, 2):.1f} {brush.between(8, 22):.1f}', brush.chance.choice(['#5f8a78', '#03191d']), 1, .28)
    wall, dark = '#0c2a30', '#071e23'
    towers = ((466, 430, 20, 66, 24), (488, 430, 16, 92, 30), (506, 430, 24, 122, 44), (533, 430, 15, 84, 28), (549, 432, 19, 58, 22))
    drawn += shape('M460 432V396H472V392H480V396H540V392H548V396H566V434Z', wall)
    for x, foot, w, h, roof in towers:
        top = foot - h
        drawn += shape(f'M{x} {foot}V{top}H{x + w}V{foot}Z', wall) + shape(f'M{x} {foot}V{top}H{x + w * .3:.1f}V{foot}Z', '#2f5a56')
        drawn += shape(f'M{x - 3} {top + 2}L{x + w / 2} {top - roof}L{x + w + 3} {top + 2}Z', dark)
        drawn += shape(f'M{x - 3} {top + 2}L{x + w / 2} {top - roof}L{x + w * .36:.1f} {top + 2}Z', '#3a5c54')
        drawn += line(f'M{x + w / 2} {top - roof}v-7', '#e8c070', 1, .9) + shape(f'M{x + w / 2} {top - roof - 7}l7 2.2l-7 2.2z', '#c8402a')
    for x, y in ((475, 384), (494, 356), (494, 372), (516, 326), (516, 344), (516, 366), (539, 364), (557, 390), (483, 410), (505, 412), (527, 410), (549, 412)):
        drawn += dot(x, y, 7, 'url(#lamp)') + shape(f'M{x - 1.3} {y + 2.6}v-4a1.300 1.500 0 0 1 2.600 0v4z', '#ffe29a')
    return drawn


def lake(brush):
    drawn = shape('M-5 520H760V660H-5Z', 'url(#lake)') + shape('M120 516H500V650H120Z', 'url(#shine)')
    for _ in range(150):
        y = 521 + 110 * brush.chance.random() ** 1.6
        spread = 40 + (y - 520) * 1.5
        x = SUN[0] + brush.between(-1, 1) * spread
        w = brush.between(6, 26) * (1 + (y - 520) / 120)
        drawn += line(f'M{x - w / 2:.1f} {y:.1f}h{w:.1f}', '#ffe6ac', brush.between(.6, 1.500), brush.between(.15, .6))
    for _ in range(120):
        x, y, w = brush.between(-5, 700), brush.between(522, 640), brush.between(12, 60)
        drawn += line(f'M{x:.1f} {y:.1f}h{w:.1f}', brush.chance.choice(['#06262c', '#3f7a76']), .9, brush.between(.12, .4))
    return drawn


def shore(brush):
    points = brush.ridge(-99, 999, [(-10, 548), (60, 552), (130, 566), (176, 586), (250, 612), (330, 634), (420, 640), (520, 622), (620, 596), (700, 580), (760, 574)], .06)
    drawn = ''
    for x, y in points[::2]:
        if x < 150 or x > 560:
            drawn += shape(brush.pine(x, y + 4, brush.between(18, 42)), '#0b2a2c')
    return drawn + shape(under(points, 730), '#092427') + line('M' + 'L'.join(f'{x:.1f} {y:.1f}' for x, y in points), '#5f8a70', 1, .35)


def route():
    """The way still to go, drawn as maps draw it."""
    return line('M236 640C268 634 300 640 340 628C392 612 372 590 418 578C462 566 440 548 470 536C500 522 486 492 500 470C508 456 506 446 508 436',
                '#06181a', 3.6, .5, 'stroke-dasharray="1 9"') + \
        line('M236 640C268 634 300 640 340 628C392 612 372 590 418 578C462 566 440 548 470 536C500 522 486 492 500 470C508 456 506 446 508 436',
             '#ffd77c', 2.2, .95, 'stroke-dasharray="7 6"')


def ledge(brush):
    points = brush.ridge(-99, 999, [(-10, 606), (40, 618), (96, 634), (150, 640), (214, 640), (244, 646), (262, 668), (300, 690), (380, 704), (480, 700), (600, 690), (760, 676)], .07)
    drawn = ''
    for x, h, lean in ((10, 330, 4), (52, 262, -3), (-8, 210, 0), (88, 176, 2), (118, 120, 0), (30, 150, 0)):
        drawn += shape(brush.pine(x, 640, h, lean), '#041314')
    for x, h in ((592, 110), (630, 150), (668, 122), (700, 168), (560, 74), (735, 140)):
        drawn += shape(brush.pine(x, 704, h), '#051a1b')
    drawn += shape(under(points, 730), 'url(#near)')
    crest = [(x, y) for x, y in points if 110 < x < 262]
    drawn += line('M' + 'L'.join(f'{x:.1f} {y:.1f}' for x, y in crest), '#ffb860', 1.6, .6)
    for _ in range(70):
        x = brush.between(100, 262)
        drawn += line(f'M{x:.1f} {642 + brush.between(0, 4):.1f}q{brush.between(-2, 2):.1f} -4 {brush.between(-4, 4):.1f} {brush.between(-12, -5):.1f}',
                      brush.chance.choice(['#8a6a30', '#3f5a34', '#071c1a']), .9, .7)
    return drawn


def traveller():
    """A cloaked figure with a staff and a lantern; a fox waits beside."""
    body = shape('M184 642C180 620 184 596 190 582C186 578 187 566 194 562C202 558 210 562 211 570C212 576 210 580 207 583C214 594 222 620 222 642Z', 'url(#cloak)')
    hood = shape('M189 583C185 572 188 561 198 559C208 558 214 566 212 576C210 583 204 587 198 587Z', '#571a15') + \
        line('M203 560C211 562 214 569 212 577C216 592 221 618 222 640', '#ffb45c', 1.500, .9)
    folds = line('M194 590C190 606 190 624 191 640M203 590C208 606 211 624 211 640', '#1c0708', 1.400, .8)
    arm = shape('M205 590C213 593 222 598 230 600L230 605C220 605 208 602 203 598Z', '#6a221b')
    staff = line('M181 644L187 552', '#2c1a0c', 3) + line('M182 640L187.700 556', '#c88a48', 1, .8)
    lamp = dot(231, 614, 120, 'url(#lamp)') + line('M230 602v5', '#e8b850', 1.200) + \
        shape('M226.500 608h9l1.500 12h-12z', '#3a220c') + shape('M228 610h6l1 8.500h-8z', '#fff0b4')
    fox = shape('M246 643C243 634 247 627 251 624L250 616L254.500 619.500C257 618.500 259 619 261 620L265.500 617L264 624C266 627 264 629 260.500 630C263 634 263 640 262 643Z', '#8a3c14') + \
        shape('M247 643C240 644 233 641 231.500 635C236 638 241 637 245 634Z', '#7a3210') + line('M250.500 617L251.500 625C248 629 246 635 247.500 642', '#ffb860', 1.300, .85)
    return lamp + staff + body + folds + hood + arm + fox


def draw(_):
    brush = Brush(3)
    sky = f'<rect width="{W}" height="{H}" fill="url(#sky)"/>' + brush.stars(170, 0, 60, W, 300)
    sun = f'<rect width="{W}" height="{H}" fill="url(#glow)"/>' + rose() + dot(*SUN, 45, 'url(#disc)') + clouds(brush)
    land = range_(0) + mist(424, .42) + range_(1) + mist(462, .30) + range_(2) + mist(500, .22, '#9ab89a') + range_(3)
    near = lake(brush) + castle() + mist(548, .25, '#8ab0a0') + shore(brush) + route() + ledge(brush) + traveller()
    dark = f'<rect width="{W}" height="{H}" fill="url(#top)"/><rect width="{W}" height="{H}" fill="url(#right)"/>'
    return page(W, H, defs(), sky + sun + land + near + dark)
