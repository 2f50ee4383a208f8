#!/usr/bin/python3
"""pictures.py WORLDGEN: paints the skills and the pets and measures that nobody takes one for another."""
import itertools
import pathlib
import subprocess
import sys
import tempfile

try:
    from PIL import Image
    from skimage.metrics import structural_similarity
    import numpy
except ImportError:
    print("needs python3-skimage")
    sys.exit(77)

WORLD = pathlib.Path(__file__).resolve().parents[2] / "world"
# What the worst pair measures, and a little more; a painting used twice with other colours reaches 0.7 to 0.9.
SKILLS_ALIKE = 0.45
PETS_ALIKE = 0.50


def paint(worldgen, part, folder):
    subprocess.run([worldgen, folder, "--only", part], check=True)
    return {int(p.stem): p for p in pathlib.Path(folder).glob(f"*/{part}/*.jpg")}


def seen(path, side):
    """A picture as an eye takes it in at a glance: without frame, without the finest strokes."""
    picture = Image.open(path).convert("RGB")
    rim = picture.width // 12
    picture = picture.crop((rim, rim, picture.width - rim, picture.height - rim))
    return numpy.asarray(picture.resize((side, side), Image.LANCZOS))


def likeness(one, other):
    return structural_similarity(one, other, channel_axis=2, win_size=7)


def closest(pictures, names):
    """All pairs, the most alike first."""
    pairs = [(likeness(pictures[a], pictures[b]), a, b) for a, b in itertools.combinations(names, 2)]
    return sorted(pairs, reverse=True)


def professions():
    for table in sorted((WORLD / "source" / "skills").glob("*.txt")):
        rows = [line.split("\t") for line in table.read_text("utf-8").splitlines() if line[:1].isdigit()]
        yield table.stem, [int(row[0]) for row in rows]


def told(what, pairs, bound):
    for value, a, b in pairs[:1]:
        print(f"{what}: most alike are {a} and {b}: {value:.2f}")
    for value, a, b in pairs:
        if value > bound:
            print(f"{what}: {a} and {b} look alike: {value:.2f}, allowed {bound}")
    return all(value <= bound for value, _, _ in pairs)


def main():
    worldgen = sys.argv[1]
    with tempfile.TemporaryDirectory() as folder:
        skills = {number: seen(path, 48) for number, path in paint(worldgen, "imgElite", folder).items()}
        pets = {number: seen(path, 64) for number, path in paint(worldgen, "imgPets", folder).items()}
    good = [told(name, closest(skills, numbers), SKILLS_ALIKE) for name, numbers in professions()]
    good.append(told("pets", closest(pets, sorted(pets)), PETS_ALIKE))
    twice = likeness(skills[1], skills[1])
    assert twice > 0.99 and len(skills) >= 165 and len(pets) >= 22
    return 0 if all(good) else 1


sys.exit(main())
