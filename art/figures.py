"""The four companions of the information window, each with the feet at (0, 0).

The camp fire burns between them: the two on the left are lit from the right, the others from the left.
"""
from paint import dot, gradient, line, shape

SKIN = 'url(#skin)'
RIM = '#ffc070'


def side(name, light, middle, dark, fromRight):
    place = 'x1="1" y1=".2" x2="0" y2=".3"' if fromRight else 'x1="0" y1=".2" x2="1" y2=".3"'
    return gradient(name, [(0, light), (.4, middle), (1, dark)], place=place)


DEFS = ''.join((
    side('skinR', '#ffd2a0', '#c98a5c', '#5a3424', True), side('skinL', '#ffd2a0', '#c98a5c', '#5a3424', False),
    side('robe', '#4fae9e', '#1d625f', '#082628', True), side('robeIn', '#2f7a74', '#134442', '#061a1c', True),
    side('beard', '#fff6e2', '#c9c2b4', '#6a6a70', True),
    side('green', '#9aa84c', '#4a6a2c', '#142610', True), side('leather', '#b87a40', '#6e4020', '#2a160a', True),
    side('trouser', '#8a6a44', '#4e3a26', '#1c140e', True),
    side('ivory', '#fff6dc', '#d8c49c', '#5c5244', False), side('hair', '#e88a3c', '#9a4418', '#38140a', False),
    side('plate', '#fff0d0', '#97a2ae', '#2c3440', False), side('mail', '#b8a890', '#5c6068', '#20242c', False),
    side('cape', '#e0523a', '#8e1e1c', '#300a10', False),
    gradient('crystal', [(0, '#f4fffb'), (.18, '#a8fff0', .85), (.5, '#3fd0c0', .28), (1, '#20a0a0', 0)], 'radial'),
    gradient('orb', [(0, '#fffdf0'), (.2, '#ffe9a0', .85), (.5, '#ffc850', .28), (1, '#ffb030', 0)], 'radial'),
))


def eyes(left, right, y):
    return ''.join(f'<ellipse cx="{x}" cy="{y}" rx="1" ry="1.350" fill="#1c0d06"/>' + dot(x + .3, y - .5, .35, '#fff3d8') for x in (left, right)) + \
        line(f'M{left - 1.6} {y - 2.8}q1.4-.9 2.8 0M{right - 1.2} {y - 2.8}q1.4-.9 2.8 0', '#4a2812', .8, .8)


def sage():
    """Old, bearded, in a teal robe, with a crystal staff. 57 x 167."""
    back = shape('M-13-118C-20-90-24-40-26-2C-14 3 14 3 25-2C23-40 20-90 14-118Z', 'url(#robe)')
    folds = line('M-14-70C-17-40-18-20-18-3M-5-80C-7-45-7-20-7 0M15-72C17-40 18-20 17-2', '#06201f', 1.4, .7) + \
        line('M19-62C22-40 23-20 23.5-4', RIM, 1.3, .9)
    stole = shape('M-4-112L4-112L6-6L-5-6Z', '#c89434') + shape('M-2.5-112L2.5-112L4-8L-3.5-8Z', '#7a1f1c')
    stole += ''.join(f'<path d="M{.3 + i * .02} {-24 - i * 16}l2 3-2 3-2-3z" fill="#ffd77c"/>' for i in range(5))
    left = shape('M-13-117C-21-110-25-92-25-76C-24-68-17-66-13-70C-11-85-9-100-9-112Z', 'url(#robeIn)')
    staff = line('M20.5 2L22.5-150', '#2c1a0c', 3.6) + line('M21.3 0L23.3-150', '#d89a54', 1.1)
    staff += shape('M18-148C15-156 19-162 22.5-166C26-162 30-156 27-148L22.5-144Z', '#3a220f') + \
        dot(22.5, -156, 26, 'url(#crystal)') + shape('M22.5-165L26-156L22.5-148L19-156Z', '#b8fff2') + shape('M22.5-165L26-156L22.5-148Z', '#4fd0c0')
    right = shape('M9-117C17-112 23-102 26-92L24-84C18-82 12-86 8-92Z', 'url(#robe)') + line('M11-116C18-111 23-102 26-92', RIM, 1.2, .9) + \
        dot(22.3, -88, 3.4, 'url(#skinR)')
    head = shape('M-8-133C-8-143-4-147 1-147C7-147 9.5-142 9.5-134C9.5-126 6-121 1-121C-4-121-8-126-8-133Z', 'url(#skinR)')
    beard = shape('M-8-132C-6-128 6-128 9-133C11-122 8-104 2-96C-5-104-9-120-8-132Z', 'url(#beard)') + \
        line('M-2-124C-2-114 0-106 1-101M4-124C4-116 3-108 2-103', '#8a8478', .8, .8)
    face = eyes(-2.2, 5, -135.2) + line('M-4.5-138h4M3-138h4', '#f0e8d8', 1.3)
    hood = shape('M-11-128C-14-142-8-153 2-160C8-152 14-142 12-127C11-138 7-145 1-145C-6-145-10-138-11-128Z', 'url(#robe)') + \
        line('M3-158.5C8.5-151 13-141 12-128', RIM, 1.3, .9)
    belt = shape('M-15-78C-6-74 8-74 17-78L17-73C8-69-6-69-16-73Z', '#6e4020') + dot(1, -73, 3, '#f2c65a')
    return back + folds + stole + belt + left + staff + right + head + beard + face + hood


def ranger():
    """Young, hooded, with a long bow. 63 x 141."""
    cloak = shape('M-14-104C-22-76-25-40-26-14L-16-20L-8-12L0-20L8-12L16-20L22-14C21-45 18-78 13-104Z', 'url(#green)')
    legs = shape('M-11-52L-12-10H-3L-1-48L4-10H12L11-52Z', 'url(#trouser)') + shape('M-13-26L-14 0C-8 2-3 1-1-1L-2-26Z', 'url(#leather)') + \
        shape('M2-26L3-1C8 2 14 2 17 0L13-5L12-26Z', 'url(#leather)') + line('M-13-22h11M2-22h10', '#2a160a', 1.4)
    tunic = shape('M-12-104C-14-84-14-62-14-44C-5-40 5-40 14-44C14-64 14-84 12-104Z', 'url(#leather)') + \
        line('M0-100V-44M-11-96L10-64', '#3a1e0c', 1.3) + line('M12.5-96C13.5-80 14-62 14-46', RIM, 1.2, .9)
    belt = shape('M-14-62H14V-57H-14Z', '#3a1e0c') + shape('M-3-63H3V-56H-3Z', '#f2c65a')
    quiver = shape('M-16-112L-7-116L-1-76L-9-74Z', '#5a3218') + ''.join(line(f'M{-14 + i * 3} {-113 - i}l-3-12', '#e8d8b8', 1.5) for i in range(3))
    bow = line('M26-118C40-88 40-44 26-12', '#2a160a', 3.4) + line('M26-118C39-88 39-44 26-12', '#c8843c', 1.8) + line('M26-118V-12', '#f0e4c8', .7, .8)
    right = shape('M9-104C17-100 24-88 33-74L30-68C22-72 13-82 8-90Z', 'url(#green)') + dot(33, -70, 3.3, 'url(#skinR)') + line('M12-103C19-98 26-86 33-76', RIM, 1.1, .9)
    left = shape('M-12-104C-19-98-21-82-20-70L-16-58L-12-60L-12-78L-8-94Z', 'url(#green)') + dot(-14.5, -57, 3.2, 'url(#skinR)')
    head = shape('M-7-116C-7-126-3-129 1-129C6-129 9-126 9-117C9-110 5-105 1-105C-3-105-7-110-7-116Z', 'url(#skinR)') + \
        eyes(-1.4, 5, -117.5) + line('M1-110.5h3.5', '#7a3a24', 1)
    hood = shape('M-12-104C-15-122-9-134 1-136C11-134 15-122 13-104C10-100 6-101 4-103C9-108 10-116 8-123C4-129-3-128-6-122C-8-115-6-107-2-103C-5-100-9-100-12-104Z', 'url(#green)') + \
        line('M3-135.5C11-133 14.5-121 13-106', RIM, 1.3, .9)
    return f'<g transform="translate(-5 0)">{quiver}{cloak}{legs}{tunic}{belt}{left}{head}{hood}{bow}{right}</g>'


def healer():
    """In ivory and gold, auburn hair, a small light in her hands. 47 x 147."""
    hair = shape('M-9-128C-13-110-14-90-10-72C-4-76 6-78 10-74C14-92 12-112 8-128Z', 'url(#hair)')
    robe = shape('M-10-108C-9-92-9-82-8-74C-15-50-20-22-22-1C-10 3 10 3 22-1C20-24 15-52 8-74C9-84 10-94 10-108C4-112-4-112-10-108Z', 'url(#ivory)')
    folds = line('M-5-66C-8-44-11-20-11-1M0-66C0-44 0-20 0 1M6-64C9-42 12-20 13-1', '#6a5a40', 1.2, .6) + line('M-9-68C-15-46-19-22-21-4', RIM, 1.3, .95)
    trim = line('M-22-3C-10 1 10 1 22-3', '#d89a34', 3) + shape('M-8.5-77C-3-74 3-74 8.5-77L8.5-71C3-68-3-68-8.5-71Z', '#d89a34') + \
        line('M-6-110L0-100L6-110', '#d89a34', 2)
    stole = shape('M-3-71L3-71L5-26L0-20L-5-26Z', '#17807c') + shape('M0-52l3 4-3 4-3-4z', '#ffd77c') + shape('M0-38l3 4-3 4-3-4z', '#ffd77c')
    arms = shape('M-10-107C-16-100-17-88-13-78L-2-83L-2-88L-9-90C-8-96-7-100-6-104Z', 'url(#ivory)') + \
        shape('M10-107C16-100 17-88 13-78L2-83L2-88L9-90C8-96 7-100 6-104Z', 'url(#ivory)') + line('M-11-106C-16-100-17-88-13.5-79', RIM, 1.1, .9)
    light = dot(0, -90, 26, 'url(#orb)') + dot(0, -90, 4, '#fffbe6')
    hands = shape('M-5-86C-4-82 4-82 5-86L3-83H-3Z', 'url(#skinL)')
    head = shape('M-7-122C-7-131-4-134 0-134C5-134 7.5-131 7.5-122C7.5-116 4-111 0-111C-4-111-7-116-7-122Z', 'url(#skinL)') + \
        eyes(-3, 3.2, -122.4) + line('M-1.5-115.5h3', '#a04a34', 1.1) + shape('M-3-112H3V-106H-3Z', 'url(#skinL)')
    front = shape('M-8-118C-10-130-6-140 0-141C7-140 11-130 8.5-118C8-126 5-131 0-132C-4-131-7-127-8-118Z', 'url(#hair)') + \
        line('M-8.5-124C-8-134-4-140 1-140.5', RIM, 1.2, .9) + line('M-7.5-131C-3-134 4-134 8-131', '#f2c65a', 1.6)
    return hair + robe + folds + trim + stole + arms + head + front + light + hands


def guard():
    """In plate, with a red cape, a round shield and a spear. 55 x 179."""
    cape = shape('M-14-124C-20-90-24-44-25-6C-16 0-6-4 0-2C8-4 18 0 25-6C24-46 21-92 15-124Z', 'url(#cape)') + \
        line('M-18-60C-20-40-21-22-21-8M17-66C19-44 20-24 20-8', '#3a0a10', 1.5, .7) + line('M-15-118C-20-88-23.5-46-24.5-8', RIM, 1.3, .9)
    spear = line('M23 2V-160', '#24140a', 3.6) + line('M22.4 2V-160', '#c88a4c', 1.2) + \
        shape('M23-178L28-162L23-152L18-162Z', 'url(#plate)') + shape('M23-178L23-152L18-162Z', '#fff6e0') + shape('M19-151H27V-147H19Z', '#c89434')
    legs = shape('M-12-64L-14-6H-3L-1-56L4-6H14L12-64Z', 'url(#mail)') + shape('M-13-36L-15 0C-10 2-4 2-2 0L-3-36C-6-40-10-40-13-36Z', 'url(#plate)') + \
        shape('M3-36L3 0C7 2 13 2 17 0L12-36C10-40 6-40 3-36Z', 'url(#plate)') + line('M-13.5-20h10.5M3-20h10.5', '#3a4048', 1.2) + \
        line('M-13-36L-14.6-2', RIM, 1.1, .9)
    chest = shape('M-14-122C-17-104-15-88-12-78H12C15-88 17-104 14-122C6-128-6-128-14-122Z', 'url(#plate)') + line('M0-124V-80M-12-96C-5-91 5-91 12-96', '#4a525c', 1.3, .8) + \
        shape('M0-116l4 6-4 6-4-6z', '#f2c65a')
    skirt = shape('M-13-80H13L16-54L8-60L4-50L0-58L-4-50L-8-60L-16-54Z', '#7a1f1c') + shape('M-13-82H13V-76H-13Z', '#c89434')
    right = shape('M11-122C19-120 23-110 24-100L26-88L20-84L15-96L10-108Z', 'url(#plate)') + dot(23, -87, 3.8, 'url(#mail)') + shape('M9-126C17-129 22-121 22-114C17-111 12-112 9-116Z', 'url(#plate)')
    left = shape('M-11-122C-19-120-23-112-23-104L-24-92H-15L-13-104Z', 'url(#plate)') + shape('M-9-126C-17-129-22-121-22-114C-17-111-12-112-9-116Z', 'url(#plate)') + \
        line('M-10-126.5C-17-128.5-21.5-121-21.5-115', RIM, 1.2, .95)
    shield = dot(-13, -84, 16.5, '#1a0f08') + dot(-13, -84, 15.2, '#c89434') + dot(-13, -84, 12.6, 'url(#cape)') + \
        shape('M-13-95L-10.5-86.5L-2-84L-10.5-81.5L-13-73L-15.5-81.5L-24-84L-15.5-86.5Z', '#ffe09a') + dot(-13, -84, 2.8, '#8a5416') + \
        line('M-27.5-88A15.2 15.2 0 0 1-16-99', '#fff0c8', 1.4, .95)
    head = shape('M-7-138C-7-146-4-150 0-150C5-150 7.5-146 7.5-138C7.5-132 4-127 0-127C-4-127-7-132-7-138Z', 'url(#skinL)')
    helm = shape('M-9-126C-11-146-7-156 0-157C8-156 11-146 9.5-126L5-128L4.5-139H1.5L1-132H-1L-1.5-139H-5L-5-128Z', 'url(#plate)') + \
        shape('M-1.5-156C-6-164 2-170 12-164C16-160 17-152 14-146C13-154 8-158 1.5-157Z', 'url(#cape)') + line('M-8.8-130C-10-146-6.5-155-1-156.5', RIM, 1.2, .95) + \
        eyes(-3, 3, -138.2)
    return cape + legs + spear + skirt + chest + left + right + head + helm + shield
