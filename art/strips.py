"""The plaques below the companions: dark wood in a gold frame, a gem in each one's colour at the left."""
from paint import gradient, line, page, shape

W, H = 120, 44
GEMS = (('#b8fff2', '#17a090', '#064842'), ('#e6ffb0', '#6ea82c', '#244a0c'), ('#fffbe0', '#f2c040', '#8a5a10'), ('#ffc8b0', '#d83a28', '#5c0c10'))


def draw(index):
    light, middle, dark = GEMS[int(index)]
    defs = gradient('wood', [(0, '#3a2212'), (.5, '#27160b'), (1, '#170c06')]) + \
        gradient('gold', [(0, '#fff0b0'), (.5, '#d89c3a'), (1, '#7a4a12')], place='x1="0" y1="0" x2="1" y2="1"')
    grain = ''.join(line(f'M2 {y}C40 {y - 2} 80 {y + 3} 118 {y}', '#5c3a1e', .8, .35) for y in (8, 14, 21, 27, 34, 39))
    gem = shape('M12 15L17 22L12 29L7 22Z', middle, 'stroke="#120804" stroke-width="1.2"') + shape('M12 15L12 29L7 22Z', light, 'opacity=".8"') + \
        shape('M7 22H17L12 29Z', dark, 'opacity=".55"')
    corners = ''.join(f'<path d="M{x} {y}l3.5 3.5-3.5 3.5-3.5-3.5z" fill="url(#gold)"/>' for x, y in ((5, 1.5), (115, 1.5), (5, 35.5), (115, 35.5)))
    return page(W, H, defs, f'<rect width="{W}" height="{H}" fill="#0c0603"/><rect x="1.5" y="1.5" width="117" height="41" fill="url(#wood)" stroke="url(#gold)" stroke-width="1.6"/>'
                + grain + '<rect x="4.5" y="4.5" width="111" height="35" fill="none" stroke="#8a5a20" stroke-width=".8"/>' + corners
                + line('M20.5 8V36', '#8a5a20', .9, .9) + gem)
