"""Drawing with chance, but the same every time: ridges, pines, stars and stones as SVG paths."""
import math
import random


class Brush:
    def __init__(self, seed):
        self.chance = random.Random(seed)

    def between(self, low, high):
        return low + (high - low) * self.chance.random()

    def ridge(self, x0, x1, heights, rough, steps=7):
        """A jagged line through the points (x, y) of `heights`, by halving and shifting; returns points."""
        points = [p for p in heights if x0 <= p[0] <= x1]
        for _ in range(steps):
            finer = [points[0]]
            for (ax, ay), (bx, by) in zip(points, points[1:]):
                if bx - ax < 1.6:
                    finer.append((bx, by))
                    continue
                t = self.between(.38, .62)
                shift = self.between(-1, 1) * rough * (bx - ax)
                finer += [(ax + (bx - ax) * t, ay + (by - ay) * t + shift), (bx, by)]
            points = finer
        return points

    def peaks(self, width, base, height, spacing):
        """Alternating summits and saddles from left of 0 to right of width."""
        points, x, up = [], -spacing, False
        while x < width + spacing * 2:
            rise = self.between(.55, 1) if up else self.between(0, .3)
            points.append((x, base - height * rise))
            x += spacing * self.between(.35, .75)
            up = not up
        return points

    def pine(self, x, y, h, lean=0.0):
        """A conifer whose foot is at (x, y)."""
        left, right = [], []
        tiers = max(5, int(h / 9))
        for i in range(tiers + 1):
            t = i / tiers
            half = h * .2 * t ** .85 * self.between(.8, 1.12)
            ty = y - h + h * .93 * t
            cx = x + lean * (1 - t)
            left += [(cx - half, ty + h * .035), (cx - half * .5, ty)]
            right += [(cx + half * self.between(.85, 1.1), ty + h * .035), (cx + half * .5, ty)]
        trunk = [(x + h * .02, y - h * .06), (x + h * .02, y + h * .02), (x - h * .02, y + h * .02), (x - h * .02, y - h * .06)]
        return outline([(x + lean, y - h)] + right + trunk + left[::-1])

    def stars(self, count, x0, y0, x1, y1, colour='#fff1cf'):
        drawn = []
        for _ in range(count):
            r = self.between(.35, .8) if self.chance.random() < .88 else self.between(.9, 1.35)
            drawn.append(f'<circle cx="{self.between(x0, x1):.1f}" cy="{self.between(y0, y1):.1f}" r="{r:.2f}" '
                         f'fill="{colour}" opacity="{self.between(.15, .8):.2f}"/>')
        return ''.join(drawn)


def outline(points):
    return 'M' + 'L'.join(f'{x:.1f} {y:.1f}' for x, y in points) + 'Z'


def under(points, bottom):
    """The ground below a ridge line."""
    return outline(points + [(points[-1][0], bottom), (points[0][0], bottom)])


def shape(d, fill, extra=''):
    return f'<path d="{d}" fill="{fill}" {extra}/>'


def line(d, colour, width=1.0, opacity=1.0, extra=''):
    return (f'<path d="{d}" fill="none" stroke="{colour}" stroke-width="{width}" stroke-opacity="{opacity}" '
            f'stroke-linecap="round" stroke-linejoin="round" {extra}/>')


def dot(x, y, r, fill, extra=''):
    return f'<circle cx="{x:.1f}" cy="{y:.1f}" r="{r:.2f}" fill="{fill}" {extra}/>'


def gradient(name, stops, kind='linear', place='x1="0" y1="0" x2="0" y2="1"'):
    """Stops are (offset, colour) or (offset, colour, opacity)."""
    inner = ''.join(f'<stop offset="{s[0]}" stop-color="{s[1]}" stop-opacity="{s[2] if len(s) > 2 else 1}"/>' for s in stops)
    return f'<{kind}Gradient id="{name}" {place}>{inner}</{kind}Gradient>'


def polar(cx, cy, r, degrees):
    a = math.radians(degrees)
    return cx + r * math.cos(a), cy + r * math.sin(a)


def page(width, height, defs, content):
    return (f'<svg xmlns="http://www.w3.org/2000/svg" width="{width}" height="{height}" viewBox="0 0 {width} {height}">'
            f'<defs>{defs}</defs>{content}</svg>')
