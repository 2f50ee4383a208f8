"""The markers of towns, outposts, missions, challenges, wild places and dungeons.

Three families, so that a player knows the campaign at a glance: gold seals with teal enamel (set 1),
standing stones with crimson banners (set 2), sun disks with lapis faces (set 3).
Everything has a dark outline of 1.5 px, which keeps the hard see-through edge from looking ragged on any ground.
"""
import math

INK = '#1a0f08'
CREAM = '#fff3d0'

DEFS = '''
<linearGradient id="gold" x1="0" y1="0" x2="1" y2="1"><stop offset="0" stop-color="#fff3b8"/><stop offset=".35" stop-color="#f0c04e"/>
<stop offset=".7" stop-color="#b97a20"/><stop offset="1" stop-color="#7a4810"/></linearGradient>
<radialGradient id="teal" cx=".36" cy=".3" r=".85"><stop offset="0" stop-color="#4fc2b4"/><stop offset=".5" stop-color="#17807c"/>
<stop offset="1" stop-color="#06393f"/></radialGradient>
<linearGradient id="cloth" x1="0" y1="0" x2="1" y2="1"><stop offset="0" stop-color="#f0604a"/><stop offset=".45" stop-color="#b8241f"/>
<stop offset="1" stop-color="#641014"/></linearGradient>
<linearGradient id="stone" x1="0" y1="0" x2="1" y2=".7"><stop offset="0" stop-color="#ece4d2"/><stop offset=".45" stop-color="#a89e90"/>
<stop offset="1" stop-color="#57504c"/></linearGradient>
<radialGradient id="lapis" cx=".38" cy=".3" r=".85"><stop offset="0" stop-color="#7a8cf0"/><stop offset=".5" stop-color="#2f3fa8"/>
<stop offset="1" stop-color="#141a56"/></radialGradient>
<linearGradient id="wood" x1="0" y1="0" x2="1" y2="1"><stop offset="0" stop-color="#c88a4e"/><stop offset=".5" stop-color="#84502a"/>
<stop offset="1" stop-color="#472712"/></linearGradient>
<linearGradient id="steel" x1="0" y1="0" x2="1" y2="0"><stop offset="0" stop-color="#ffffff"/><stop offset=".5" stop-color="#dfe6ee"/>
<stop offset=".55" stop-color="#8f9cab"/><stop offset="1" stop-color="#b8c4d0"/></linearGradient>
<linearGradient id="ivory" x1="0" y1="0" x2="1" y2="0"><stop offset="0" stop-color="#fff8e2"/><stop offset=".5" stop-color="#ead6a6"/>
<stop offset="1" stop-color="#9a7a48"/></linearGradient>
<linearGradient id="roof" x1="0" y1="0" x2="1" y2="0"><stop offset="0" stop-color="#f2745a"/><stop offset=".5" stop-color="#b52c24"/>
<stop offset="1" stop-color="#5c1014"/></linearGradient>
'''


def path(d, fill, line=3.0):
    """A filled shape with half of `line` as outline outside."""
    return f'<path d="{d}" fill="{fill}" stroke="{INK}" stroke-width="{line}" stroke-linejoin="round" paint-order="stroke"/>'


def thin(d, colour, width=1.0, opacity=1.0):
    return (f'<path d="{d}" fill="none" stroke="{colour}" stroke-width="{width}" stroke-opacity="{opacity}" '
            f'stroke-linecap="round" stroke-linejoin="round"/>')


def circle(cx, cy, r, fill, line=3.0):
    return f'<circle cx="{cx}" cy="{cy}" r="{r}" fill="{fill}" stroke="{INK}" stroke-width="{line}" paint-order="stroke"/>'


def turned(content, angle, cx, cy):
    return f'<g transform="rotate({angle} {cx} {cy})">{content}</g>'


def at(content, x, y, scale=1.0):
    return f'<g transform="translate({x} {y}) scale({scale})">{content}</g>'


def seal(cx, cy, r, face='teal'):
    rim = max(2.2, r * 0.2)
    shine = f'M{cx - r * .55:.2f} {cy - r * .1:.2f}A{r * .58:.2f} {r * .58:.2f} 0 0 1 {cx + r * .05:.2f} {cy - r * .58:.2f}'
    return circle(cx, cy, r, 'url(#gold)') + circle(cx, cy, r - rim, f'url(#{face})', 1.6) + thin(shine, '#fff', r * .09, .55)


# Emblems stand around (0, 0) in a square of 20 x 20.
TENT = path('M0-8L8.5 7.5H-8.5Z', CREAM, 2.2) + path('M0-1L3.4 7.5H-3.4Z', '#5a3a1c', 0) + thin('M0-8V-10.5', CREAM, 1.4)
TOWERS = path('M-9 8V-2H-7.5V-4H-6V-2.6H-4.5V-4H-3V-6.5H-4V-10H-2V-8.6H-1V-10H1V-8.6H2V-10H4V-6.5H3V-4H4.5V-2.6H6V-4H7.5V-2H9V8Z',
              CREAM, 2.2) + path('M-2.2 8V3.6A2.2 2.4 0 0 1 2.2 3.6V8Z', '#4a2c14', 0) + path('M-.8-5.5H.8V-2.5H-.8Z', '#4a2c14', 0)
TOWER = path('M-4.5 9L-3.5-3H-5.5V-9H-3V-7H-1.2V-9H1.2V-7H3V-9H5.5V-3H3.5L4.5 9Z', CREAM, 2.2) \
    + path('M-1.5 9V5A1.5 1.8 0 0 1 1.5 5V9Z', '#4a2c14', 0)
STAR = path('M0-10L2.6-3.2 9.6-3 4.1 1.5 6 8.4 0 4.5-6 8.4-4.1 1.5-9.6-3-2.6-3.2Z', '#ffe08a', 2.2)
CUP = path('M-6.5-9H6.5C6.5-2 4.5 2 1.6 3V5.5L5 7.2V9.2H-5V7.2L-1.6 5.5V3C-4.5 2-6.5-2-6.5-9Z', 'url(#gold)', 2.2) \
    + thin('M-6.5-7C-11-7-10-.5-4.6-.2M6.5-7C11-7 10-.5 4.6-.2', INK, 3) \
    + thin('M-6.5-7C-11-7-10-.5-4.6-.2M6.5-7C11-7 10-.5 4.6-.2', '#f0c04e', 1.5) + thin('M-4-7C-3.8-3-2.6 0-1.4 1', '#fff6cc', 1.2)
FIRE = path('M0-10C4-5 6.5-3 6.2 1.5C6 5-3.5 6-5 2.5C-6.5-.5-2.5-3 0-10Z', '#ffb63a', 2.2) \
    + path('M.3-4C2 0 3 .5 2.2 3H-2C-3 1-.4-1 .3-4Z', '#fff0b0', 0) + path('M-7 4.5H7L4.5 9H-4.5Z', 'url(#gold)', 2)


def sword(length, width=3.0):
    """Stands upright, its point at (0, -length), its guard at (0, 0)."""
    w = width / 2
    return (path(f'M0 {-length}L{w} {-length + 2.6 * w}V0H{-w}V{-length + 2.6 * w}Z', 'url(#steel)', 2.4)
            + path(f'M{-w * 3} -.9H{w * 3}V1.1H{-w * 3}Z', 'url(#gold)', 2.4)
            + path(f'M-1 1H1V{4 + w}H-1Z', '#6a3a1a', 2.4) + circle(0, 5 + w, 1.5, 'url(#gold)', 2.2))


def spear(length):
    return (path(f'M-.8 0V{-length + 7}H.8V0Z', 'url(#wood)', 2.2)
            + path(f'M0 {-length}L2.8 {-length + 6}L0 {-length + 8.5}L-2.8 {-length + 6}Z', 'url(#steel)', 2.4))


def axe(length):
    head = f'M.8 {-length + 1.5}C3 {-length + 1} 5 {-length - 1} 8 {-length - 2}C10 {-length + 3} 10 {-length + 7} 8 {-length + 12}' \
           f'C5 {-length + 10} 3 {-length + 8.5} .8 {-length + 8}Z'
    return path(f'M-1 0V{-length - 1}H1V0Z', 'url(#wood)', 2.4) + path(head, 'url(#steel)', 2.4)


def stele(x, y, w, h):
    k = w * .28
    shape = f'M{x} {y + h}V{y + k}Q{x} {y} {x + k} {y}H{x + w - k}Q{x + w} {y} {x + w} {y + k}V{y + h}Z'
    base = f'M{x - 2.5} {y + h}V{y + h - 5}H{x + w + 2.5}V{y + h}Z'
    return (path(shape, 'url(#stone)') + thin(f'M{x + 1.4} {y + h - 6}V{y + k}Q{x + 1.4} {y + 1.4} {x + k} {y + 1.4}H{x + w - k}', '#fffaf0', 1.2, .8)
            + path(base, 'url(#stone)') + thin(f'M{x - 1.6} {y + h - 4}H{x + w + 1.5}', '#fffaf0', 1, .7))


def banner(x, y, w, h, emblem):
    cut = h * .16
    cloth = f'M{x} {y}H{x + w}V{y + h}L{x + w / 2} {y + h - cut}L{x} {y + h}Z'
    fringe = f'M{x + 1} {y + h - 1.6}L{x + w / 2} {y + h - cut - 1.6}L{x + w - 1} {y + h - 1.6}'
    return (path(cloth, 'url(#cloth)') + thin(fringe, '#f6cf6a', 1.3) + thin(f'M{x + 1.1} {y + 2}V{y + h - 3}', '#ffb0a0', .9, .7)
            + path(f'M{x - 2} {y - 2}H{x + w + 2}V{y + .6}H{x - 2}Z', 'url(#gold)', 2.4)
            + at(emblem, x + w / 2, y + h * .45, w / 27))


def sun(cx, cy, rays, inner, outer, short):
    shape = []
    for i in range(rays * 2):
        a = math.pi * i / rays - math.pi / 2
        r = inner * .96 if i % 2 else (outer if i % 4 == 0 else short)
        shape.append(f'{cx + r * math.cos(a):.2f} {cy + r * math.sin(a):.2f}')
    lines = ''
    for i in range(rays):
        a = 2 * math.pi * i / rays - math.pi / 2
        r = (outer if i % 2 == 0 else short) - 2.5
        lines += thin(f'M{cx + inner * math.cos(a):.2f} {cy + inner * math.sin(a):.2f}L{cx + r * math.cos(a):.2f} {cy + r * math.sin(a):.2f}',
                      '#fff3b8', .9, .8)
    return path('M' + 'L'.join(shape) + 'Z', 'url(#gold)') + lines


def picOutpost1():
    return path('M7 19L11 22.5L15 19Z', 'url(#gold)', 2.6) + seal(11, 11, 9.4) + at(TENT, 11, 11.6, .62)


def picMission1():
    ribbon = path('M7 24V45L11.5 41L15 45V26Z', 'url(#cloth)') + path('M25 24V45L20.5 41L17 45V26Z', 'url(#cloth)')
    return ribbon + thin('M8.3 28V41M18.3 29V41', '#ffb0a0', .9, .7) + seal(16, 16, 13.8) + at(STAR, 16, 16.6, .98)


def picTown1():
    shield = 'M2 8H30V20C30 28 23 32 16 34.5C9 32 2 28 2 20Z'
    inner = 'M5 11H27V20C27 26 21.5 29.3 16 31.3C10.5 29.3 5 26 5 20Z'
    crown = 'M4 8V1.8H8.5V4H13.5V1.8H18.5V4H23.5V1.8H28V8Z'
    return (path(crown, 'url(#gold)') + path(shield, 'url(#gold)') + path(inner, 'url(#teal)', 1.6)
            + thin('M6.4 21V12.5H15', '#fff', 1, .5) + at(TOWERS, 16, 20.4, .86))


def picOutpost2():
    return stele(5, 2, 25, 38.5) + banner(9.5, 8, 16, 25, at(TOWER, 0, 0, 1.25))


def picMission2():
    spears = at(turned(spear(41), 33, 0, 0), 16, 37) + at(turned(spear(41), -33, 0, 0), 29, 37)
    butts = path('M5.5 45L9 39.5L11 41L8 45.5Z', 'url(#wood)', 2.2) + path('M39.5 45L36 39.5L34 41L37 45.5Z', 'url(#wood)', 2.2)
    return spears + butts + stele(10.5, 8, 24, 37.5) + banner(14, 13.5, 17, 25, at(STAR, 0, 0, 1.12))


def tower(x, y, w, h, roof):
    body = path(f'M{x} {y + h}V{y}H{x + w}V{y + h}Z', 'url(#stone)')
    cap = path(f'M{x - 2} {y + 1}L{x + w / 2} {y - roof}L{x + w + 2} {y + 1}Z', 'url(#roof)')
    window = path(f'M{x + w / 2 - 1.3} {y + 9}V{y + 6}A1.3 1.5 0 0 1 {x + w / 2 + 1.3} {y + 6}V{y + 9}Z', '#ffd36a', 1.6)
    return body + cap + window + thin(f'M{x + w / 2} {y - roof}V{y - roof - 1.4}', '#f6cf6a', 1.6)


def picTown2():
    wall = path('M8 49.5V24H12V27H16V24H20V27H24V24H36V27H40V24H44V27H48V24H52V49.5Z', 'url(#stone)')
    gate = path('M35.5 49.5V42A2 2 0 0 1 35.5 42Z', INK, 0)
    return (tower(20.5, 14, 19, 22, 12) + wall + tower(3, 19, 12, 30.5, 14) + tower(45, 19, 12, 30.5, 14)
            + banner(21, 20, 18, 27, at(TOWERS, 0, 0, 1.12)) + gate)


def picChallenge2():
    left, right = turned('<g transform="scale(-1 1)">' + axe(40) + '</g>', -24, 0, 0), turned(axe(40), 24, 0, 0)
    return at(right, 15, 43) + at(left, 29, 43) + stele(10.5, 13, 23, 36.5) + banner(14, 18.5, 16, 24, at(CUP, 0, 0, 1.15))


def picOutpost3():
    return sun(19, 19, 12, 11, 17.3, 14.4) + seal(19, 19, 10.8, 'lapis') + at(FIRE, 19, 18.8, .62)


def picMission3():
    return sun(32, 30.5, 16, 19, 29, 24) + seal(32, 30.5, 18.5, 'lapis') + at(STAR, 32, 31.4, 1.36)


def dome(cx, base, r, body, height):
    top = base - height
    return (path(f'M{cx - body} {base}V{top}H{cx + body}V{base}Z', 'url(#ivory)')
            + path(f'M{cx - r} {top}C{cx - r * 1.35} {top - r * .9} {cx - r * .3} {top - r * 1.2} {cx} {top - r * 2}'
                   f'C{cx + r * .3} {top - r * 1.2} {cx + r * 1.35} {top - r * .9} {cx + r} {top}Z', 'url(#gold)')
            + thin(f'M{cx - r * .62} {top - 1}C{cx - r * .8} {top - r * .8} {cx - r * .2} {top - r * 1.1} {cx - .5} {top - r * 1.5}', '#fff8d8', 1, .9))


def picTown3():
    door = path('M28 59.2V51A3 3.4 0 0 1 34 51V59.2Z', '#3a2210', 0)
    windows = ''.join(path(f'M{x - .9} {y + 4}V{y + 1}A.9 1 0 0 1 {x + .9} {y + 1}V{y + 4}Z', '#2f3fa8', 1)
                      for x, y in ((31, 40), (18, 47), (44, 47), (9.5, 51), (52.5, 51)))
    return (sun(31, 30, 16, 19, 28.5, 24) + seal(31, 30, 18.5, 'lapis') + dome(31, 59.2, 9, 8.5, 20.7)
            + dome(18, 59, 5.5, 5, 13.5) + dome(44, 59, 5.5, 5, 13.5)
            + path('M4 59V49.5H14V59ZM48 59V49.5H58V59Z', 'url(#ivory)') + windows + door)


def picChallenge3():
    leaves = ''
    for side in (-1, 1):
        for i in range(6):
            a = math.radians(96 + i * 23)
            x, y = 29.5 + side * 23.5 * math.sin(a), 37 - 25.5 * math.cos(a)
            leaf = path('M0-6.5C3.2-3 3.2 2 0 5C-3.2 2-3.2-3 0-6.5Z', '#8ecb4a' if i % 2 else '#5fa832', 2.4)
            leaves += at(turned(leaf, side * (math.degrees(a) - 200), 0, 0), round(x, 2), round(y, 2))
    return sun(29.5, 30.5, 16, 18, 28.5, 23.5) + leaves + seal(29.5, 30.5, 17.6, 'lapis') + at(CUP, 29.5, 30.8, 1.16) \
        + path('M22 61.5L29.5 58L37 61.5L34.5 66.5L29.5 63.5L24.5 66.5Z', 'url(#cloth)', 2.6)


def picVanquish0():
    shield = 'M4.5 10C7.5 10 10 9.2 12 8C14 9.2 16.5 10 19.5 10V16.5C19.5 22 16 25.3 12 27.3C8 25.3 4.5 22 4.5 16.5Z'
    return (at(turned(sword(24, 3), 40, 0, 0), 5.5, 22) + at(turned(sword(24, 3), -40, 0, 0), 18.5, 22)
            + path(shield, 'url(#wood)') + thin('M5.9 16V11.3C8.5 11.2 10.6 10.5 12 9.7', '#ffdca8', 1, .8)
            + thin('M12 9.8V25.7M5.2 16.5H18.8', '#f0c04e', 1.7) + circle(12, 16.5, 2.6, 'url(#gold)', 1.6))


def picDungeonEntrance0():
    arch = 'M2 23.5V12.5A12.5 11 0 0 1 27 12.5V23.5Z'
    stones = ''.join(thin(f'M{14.5 - 12 * math.cos(a):.2f} {12.5 - 10.5 * math.sin(a):.2f}L{14.5 - 8 * math.cos(a):.2f} {12.5 - 6.5 * math.sin(a):.2f}',
                          '#3a322c', 1.2) for a in (0.0, .55, 1.1, 2.04, 2.59, math.pi))
    steps = path('M6.5 23.5V20.5H22.5V23.5Z', '#6e6258', 1.2) + path('M8.5 20.7V18.3H20.5V20.7Z', '#4c4038', 1.2)
    return ('<defs><radialGradient id="deep" cx=".5" cy=".9" r=".8"><stop offset="0" stop-color="#ff9a2e"/><stop offset=".4" stop-color="#7a2c0c"/>'
            '<stop offset="1" stop-color="#0c0606"/></radialGradient></defs>'
            + path(arch, 'url(#stone)') + path('M6.5 23.5V13A8 7 0 0 1 22.5 13V23.5Z', 'url(#deep)', 1.6) + steps + stones
            + path('M12.3.9H16.7L16 6H13Z', 'url(#gold)', 1.6))


def draw(name):
    from catalogue import ZONES
    width, height = ZONES[name]
    return (f'<svg xmlns="http://www.w3.org/2000/svg" width="{width}" height="{height}" viewBox="0 0 {width} {height}">'
            f'<defs>{DEFS}</defs>{globals()[name]()}</svg>')
