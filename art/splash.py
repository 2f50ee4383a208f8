"""The empty map's picture: a traveller at the edge of the known world, at dusk.

It stands at the bottom left of a black window, with cream text above and to the right of it,
so it sinks into black at its top and right edges.
"""
from paint import Brush, dot, gradient, line, outline, page, polar, shape, under

W, H = 748, 721
SUN = (306, 398)
LAYERS = (  # seed, base, height, spacing, roughness, colour at the top, colour in the haze
    (11, 415, 122, 120, .30, '#4c6f66', '#c58f52'),
    (24, 440, 118, 150, .30, '#2f5a58', '#8a7a56'),
    (37, 478, 104, 170, .30, '#1c4448', '#3f6a62'),
    (45, 520, 84, 190, .28, '#0f3035', '#265256'),
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
        gradient('crag0', [(0, '#3a6660'), (1, '#24504e')], place=f'{box} x1="0" y1="430" x2="0" y2="560"'),
        gradient('crag1', [(0, '#2c5452'), (1, '#173c3e')], place=f'{box} x1="0" y1="450" x2="0" y2="570"'),
        gradient('crag2', [(0, '#1c4041'), (1, '#0c2629')], place=f'{box} x1="0" y1="490" x2="0" y2="580"'),
        gradient('cloak', [(0, '#7c2a20'), (.5, '#4a1512'), (1, '#16080a')], place='x1="1" y1="0" x2="0" y2=".3"'),
        '<filter id="soft"><feGaussianBlur stdDeviation="1.1"/></filter><filter id="mist" x="-20%" y="-80%" width="140%" height="260%">'
        '<feGaussianBlur stdDeviation="14 7"/></filter>',
        # A breath of grain, or the long dark gradients would show steps.
        '<filter id="grain" x="0" y="0" width="100%" height="100%"><feTurbulence type="fractalNoise" baseFrequency=".7" numOctaves="2" seed="4"/>'
        '<feColorMatrix values="0 0 0 0 1  0 0 0 0 .9  0 0 0 0 .7  0 0 0 1.6 -.5"/></filter>',
    ]
    for i, (_, base, height, _, _, top, haze) in enumerate(LAYERS):
        parts.append(gradient(f's{i}', [(0, '#02161c', .62), (.7, '#02161c', .22), (1, '#02161c', 0)],
                              place=f'{box} x1="0" y1="{base - height}" x2="0" y2="{base + 30}"'))
        parts.append(gradient(f'm{i}', [(0, top), (1, haze)], place=f'{box} x1="0" y1="{base - height}" x2="0" y2="{base + 46}"'))
    credits = '<radialGradient id="credits" cx="1" cy="1" r="1"><stop offset="0" stop-color="#04090a" stop-opacity=".9"/>' \
        '<stop offset=".62" stop-color="#04090a" stop-opacity=".74"/><stop offset="1" stop-color="#04090a" stop-opacity="0"/></radialGradient>'
    return credits + ''.join(parts)


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


def shadowed(brush, ridge, summit, foot, base):
    """The half of a mountain that turns away from the sun, parted from the lit half by a jagged spur."""
    (sx, sy), (fx, _) = summit, foot
    low, high = min(sx, fx), max(sx, fx)
    crest = sorted((p for p in ridge if low <= p[0] <= high), reverse=sx > fx)
    spur, y = [], base + 40.0
    sway = (fx - sx) * .10
    while y > sy + 8:
        t = (y - sy) / (base + 40 - sy)
        spur.append((sx + sway * t + brush.between(-1, 1) * 16 * t, y))
        y -= brush.between(9, 17)
    return outline([(sx, sy)] + crest + [(fx, base + 40)] + spur)


def range_(index):
    seed, base, height, spacing, rough, _, _ = LAYERS[index]
    brush = Brush(seed)
    points = brush.peaks(W, base, height, spacing)
    ridge = brush.ridge(-400, 1200, points, rough)
    drawn = shape(under(ridge, base + 60), f'url(#m{index})')
    for before, summit, after in zip(points, points[1:], points[2:]):
        if summit[1] < before[1] and summit[1] < after[1]:
            top = min((p for p in ridge if abs(p[0] - summit[0]) < 14), key=lambda p: p[1])
            foot = before if summit[0] < SUN[0] - 20 else after
            drawn += shape(shadowed(brush, ridge, top, foot, base), f'url(#s{index})')
    for k in range(3, len(ridge) - 3, 2):
        x, y = ridge[k]
        if y > base - height * .1 or not -10 < x < W:
            continue
        way, depth = (1 if x < SUN[0] else -1), (base - y) * brush.between(.2, .7)
        drawn += line(f'M{x:.1f} {y + 2:.1f}l{way * depth * .22:.1f} {depth * .4:.1f}l{-way * depth * .1:.1f} {depth * .25:.1f}l{way * depth * .14:.1f} {depth * .3:.1f}',
                      '#ffdca0' if brush.chance.random() < .4 else '#01161a', brush.between(.4, 1.2), brush.between(.05, .15))
    rim = 'M' + 'L'.join(f'{x:.1f} {y:.1f}' for x, y in ridge if -10 < x < W)
    return drawn + line(rim, '#ffdf9e', 1.1, .38 - .07 * index)


def mist(y, strength, colour='#e8b878'):
    return f'<ellipse cx="{SUN[0]}" cy="{y}" rx="420" ry="12" fill="{colour}" opacity="{strength}" filter="url(#mist)"/>'


def crag(brush):
    """Columns of rock, each with a lit and a dark face, higher towards the middle."""
    drawn = ''
    for row, (foot, lift) in enumerate(((576, 0), (578, 26), (580, 58))):
        columns = []
        for i in range(15):
            x = 412 + i * 15.5 + brush.between(-5, 5)
            beside = max(0.0, abs(x + 9 - 514) - 54) / 66
            rise = 150 * max(0.0, 1 - beside) ** 1.1 - lift
            columns.append((x, foot - max(8.0, rise * brush.between(.9, 1.04)), brush.between(15, 25)))
        for x, top, w in sorted(columns, key=lambda c: c[1]):
            top = max(top, 426)
            split = x + w * brush.between(.3, .5)
            drawn += shape(f'M{x - 3:.1f} {foot}L{x:.1f} {top + 6:.1f}L{split:.1f} {top:.1f}L{x + w:.1f} {top + 8:.1f}L{x + w + 3:.1f} {foot}Z', f'url(#crag{row})')
            drawn += shape(f'M{split:.1f} {top:.1f}L{x + w:.1f} {top + 8:.1f}L{x + w + 3:.1f} {foot}L{split - 3:.1f} {foot}L{split + 2:.1f} {(top + foot) / 2:.1f}Z', '#03161a', 'fill-opacity=".45"')
            drawn += line(f'M{x:.1f} {top + 6:.1f}L{split:.1f} {top:.1f}', '#ffdf9e', .9, .35) + line(f'M{x:.1f} {top + 8:.1f}L{x - 2:.1f} {foot - 6}', '#c8a468', .8, .22)
    return drawn


def castle():
    """Keep and towers on a crag across the lake."""
    brush = Brush(7)
    strand = brush.ridge(-99, 999, [(396, 583), (430, 575), (520, 577), (610, 574), (650, 584)], .04)
    drawn = crag(brush) + shape(under(strand, 586), '#061c1f') + line('M398 586H650', '#d8a860', 1, .35)
    for x in range(404, 640, 9):
        drawn += shape(brush.pine(x + brush.between(-3, 3), 578 + brush.between(-3, 5), brush.between(14, 34)), '#082326')
    wall, dark = '#0c2a30', '#071e23'
    towers = ((466, 430, 20, 66, 24), (488, 430, 16, 92, 30), (506, 430, 24, 122, 44), (533, 430, 15, 84, 28), (549, 432, 19, 58, 22))
    drawn += shape('M458 438V398H472V392H480V396H540V392H548V396H568V438Z', wall)
    for x, foot, w, h, roof in towers:
        top = foot - h
        drawn += shape(f'M{x} {foot}V{top}H{x + w}V{foot}Z', wall) + shape(f'M{x} {foot}V{top}H{x + w * .3:.1f}V{foot}Z', '#2f5a56')
        drawn += shape(f'M{x - 3} {top + 2}L{x + w / 2} {top - roof}L{x + w + 3} {top + 2}Z', dark)
        drawn += shape(f'M{x - 3} {top + 2}L{x + w / 2} {top - roof}L{x + w * .36:.1f} {top + 2}Z', '#3a5c54')
        drawn += line(f'M{x + w / 2} {top - roof}v-7', '#e8c070', 1, .9) + shape(f'M{x + w / 2} {top - roof - 7}l7 2.2l-7 2.2z', '#c8402a')
    for x, y in ((475, 384), (494, 356), (494, 372), (516, 326), (516, 344), (516, 366), (539, 364), (557, 390), (483, 410), (505, 412), (527, 410), (549, 412)):
        drawn += dot(x, y, 7, 'url(#lamp)') + shape(f'M{x - 1.3} {y + 2.6}v-4a1.3 1.5 0 0 1 2.6 0v4z', '#ffe29a')
    return drawn


def lake(brush):
    drawn = shape('M-5 520H760V660H-5Z', 'url(#lake)') + shape('M120 516H500V650H120Z', 'url(#shine)')
    for _ in range(150):
        y = 521 + 110 * brush.chance.random() ** 1.6
        spread = 40 + (y - 520) * 1.5
        x = SUN[0] + brush.between(-1, 1) * spread
        w = brush.between(6, 26) * (1 + (y - 520) / 120)
        drawn += line(f'M{x - w / 2:.1f} {y:.1f}h{w:.1f}', '#ffe6ac', brush.between(.6, 1.5), brush.between(.15, .6))
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
    way = ('M306 664C330 656 350 668 384 663C430 658 470 640 520 626C556 616 584 606 588 590C590 576 560 572 540 562'
           'C516 550 478 552 474 536C470 520 520 522 536 508C548 494 492 492 488 474C486 460 506 452 508 438')
    return line(way, '#04100f', 4, .5, 'stroke-dasharray="8 6"') + line(way, '#ffd77c', 2.2, .95, 'stroke-dasharray="8 6"')


def birds(brush):
    drawn = ''
    for _ in range(9):
        x, y, w = brush.between(150, 250), brush.between(268, 330), brush.between(3, 6)
        drawn += line(f'M{x - w:.1f} {y - 1:.1f}q{w * .6:.1f} -2.5 {w:.1f} 1q{w * .4:.1f} -3.5 {w:.1f} -1', '#10282a', 1.1, .8)
    return drawn


def ledge(brush):
    points = brush.ridge(-99, 999, [(-10, 606), (40, 618), (96, 634), (150, 640), (214, 641), (284, 645), (300, 658), (312, 676), (340, 694), (400, 706), (480, 700), (600, 690), (760, 676)], .07)
    drawn = ''
    for x, h, lean in ((10, 330, 4), (52, 262, -3), (-8, 210, 0), (88, 176, 2), (118, 120, 0), (30, 150, 0)):
        drawn += shape(brush.pine(x, 640, h, lean), '#041314')
    for x, h in ((592, 110), (630, 150), (668, 122), (700, 168), (560, 74), (735, 140)):
        drawn += shape(brush.pine(x, 704, h), '#051a1b')
    drawn += shape(under(points, 730), 'url(#near)')
    crest = [(x, y) for x, y in points if 110 < x < 312]
    drawn += line('M' + 'L'.join(f'{x:.1f} {y:.1f}' for x, y in crest), '#ffb860', 1.6, .6)
    for _ in range(70):
        x = brush.between(100, 292)
        drawn += line(f'M{x:.1f} {642 + brush.between(0, 4):.1f}q{brush.between(-2, 2):.1f} -4 {brush.between(-4, 4):.1f} {brush.between(-12, -5):.1f}',
                      brush.chance.choice(['#8a6a30', '#3f5a34', '#071c1a']), .9, .7)
    return drawn


def traveller():
    """A cloaked figure with a staff and a lantern; a fox waits beside."""
    glow = dot(236, 606, 120, 'url(#lamp)')
    staff = line('M176 645L186 548', '#22140a', 3) + line('M177.5 641L186.6 552', '#c88a48', 1, .8)
    cloak = shape('M196 574C188 580 183 592 180 610C177 624 176 636 174 643C186 648 210 648 222 643C220 626 219 606 214 592C211 582 207 576 203 574Z', 'url(#cloak)')
    hem = shape('M174 643C186 648 210 648 222 643L219 639C208 643 188 643 176 639Z', '#c8843c', 'fill-opacity=".55"')
    folds = line('M190 592C186 608 184 624 183 642M199 590C199 608 199 626 199 645M207 592C211 608 213 626 214 643', '#1a0608', 1.3, .8)
    arm = shape('M205 580C211 584 220 590 231 592L232 597.5C221 599 209 596 202 590Z', '#6a221b') + line('M206 581C212 585 221 590 231 592', '#ffb45c', 1.2, .9)
    hood = shape('M192 577C188 570 188.5 561 194 556.5C199 553 206 555 208.5 561C210.5 567 209.5 573 206 578C201 581 196 580 192 577Z', '#5e1b16') + \
        shape('M204 560.5C208 562 208.5 570 205 575C202.5 571 202 564 204 560.5Z', '#1c0808')
    rim = line('M203 555.5C208 557 210.5 564 208.5 571L207 577C213 586 218 604 220.5 640', '#ffb45c', 1.5, .95)
    pack = shape('M190 580C183 579 178 584 179 592C180 600 186 603 191 600Z', '#3c2412') + line('M180 586C184 583 188 583 191 585', '#8a5c2c', 1.2)
    lamp = line('M232 594.5C235 594.5 236 596 236 598', '#e8b850', 1.2) + shape('M231.5 599H240.5L242.5 612H229.5Z', '#33200c') + \
        shape('M233 601H239L240.3 610.5H231.7Z', '#fff2bc') + shape('M230.5 597.8H241.5V599.5H230.5ZM229 611.8H243V613.5H229Z', '#c8902e')
    fox = shape('M252 645C248 636 250 629 255 625L252.5 616L258.5 619.5C261 618.5 264 618.8 266 620L271.5 616.5L269.5 624C272.5 627 276 629 276.5 630.5'
                'C274 632 270 632.5 266.5 632C270 637 270 641 269 645Z', '#a8481a') + \
        shape('M254 645C246 647 236 643 235 636C240 640 247 640 251.5 636.5Z', '#8e3a14') + shape('M235 636C236 640 239 642.5 242 643.5C240 640 238 638 235 636Z', '#f0dcb8') + \
        shape('M266.5 632C270 632.5 274 632 276.5 630.5C274 628.5 270 629 266 629.5C264 636 266 640 266 645H269C270 641 270 637 266.5 632Z', '#f0dcb8') + \
        dot(267.3, 626.3, .9, '#1a0804') + line('M252.6 617L255.3 625C251 629 249.5 635 252 643', '#ffc070', 1.3, .9)
    return glow + pack + cloak + hem + folds + staff + arm + hood + rim + lamp + fox


def draw(_):
    brush = Brush(3)
    sky = f'<rect width="{W}" height="{H}" fill="url(#sky)"/>' + brush.stars(170, 0, 60, W, 300)
    sun = f'<rect width="{W}" height="{H}" fill="url(#glow)"/>' + rose() + dot(*SUN, 45, 'url(#disc)') + clouds(brush) + birds(brush)
    land = range_(0) + mist(424, .42) + range_(1) + mist(462, .30) + range_(2) + mist(500, .22, '#9ab89a') + range_(3)
    near = lake(brush) + castle() + mist(560, .2, '#8ab0a0') + shore(brush) + route() + ledge(brush) + traveller()
    grain = f'<rect width="{W}" height="{H}" filter="url(#grain)" opacity=".05"/>'
    dark = f'<rect width="{W}" height="{H}" fill="url(#top)"/><rect width="{W}" height="{H}" fill="url(#right)"/>' + \
        '<rect x="190" y="490" width="558" height="231" fill="url(#credits)"/>'  # in small windows the credits stand there
    return page(W, H, defs(), sky + sun + land + near + grain + dark)
