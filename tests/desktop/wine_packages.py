"""Packages for Windows to be tried under Wine: the newest one, of a part of the world, and one made up that came before it."""

import functools
import hashlib
import pathlib
import shutil
import subprocess
import tempfile

import wine
from journeys import PROGRAM, crlf

PACKAGING = pathlib.Path(__file__).resolve().parents[2] / "packaging"
NAME = "Campaign.03.Sunhollow"
LISTED = r"HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\Orvinel"
VERSION = PROGRAM.parent / "Data/Version.txt"
OLD, NEW = "3.9.0", VERSION.read_text().strip() if VERSION.exists() else ""


def new_package(folder):
    """A part of the world is enough."""
    shutil.copytree(PROGRAM.parent, folder, ignore=shutil.ignore_patterns("Campaign.01*", "Campaign.02*", "Installed.txt"))


def old_package(folder):
    new_package(folder)
    (folder / "Data/History.txt").write_text("the old one")
    for path in (folder / "Data/Language.txt", *folder.glob("Data/Languages/*.txt")):
        path.write_bytes(path.read_bytes() + crlf("201\tOld"))
    for path in (folder / NAME / "Zones.txt", *folder.glob(f"Data/Worlds/*/{NAME}/*.txt")):
        path.write_bytes(path.read_bytes() + crlf("; old"))
    for path in folder.glob("Campaign.04.*/**/*.jpg"):  # enough to be in the middle of
        path.write_bytes(path.read_bytes() + b"old")
    with (folder / "update.exe").open("ab") as file:  # behind its end, where nobody looks
        file.write(b"old")
    (folder / "licences/Former.txt").write_text("of a library that is used no more")
    (folder / "Campaign.02.Former").mkdir()
    (folder / "Campaign.02.Former/Regions.txt").write_bytes(crlf("1\tGone"))


def package(version, folder):
    """The version's folder, as players get it."""
    (old_package if version == OLD else new_package)(folder)
    subprocess.run([PACKAGING / "list-installed", folder, version], check=True)
    return folder


@functools.cache
def setup(version):
    """The setup of the version, and the sums of what it brings."""
    made = pathlib.Path(tempfile.mkdtemp(dir=wine.PREFIX))
    folder = package(version, made / "Orvinel")
    output = made / f"Orvinel-{version}-setup.exe"
    subprocess.run([PACKAGING / "windows/make-setup", folder, output, "-DQUICK"], check=True)
    sums = everything(folder)
    shutil.rmtree(folder)
    return output, sums


def forget_setup():
    """The list of programs knows of none; the setup asks for its language again."""
    subprocess.run(["wine", "reg", "delete", LISTED, "/f"], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)


def everything(folder):
    return {str(path.relative_to(folder)): hashlib.sha256(path.read_bytes()).hexdigest()
            for path in folder.rglob("*") if path.is_file()}


def windows_path(folder):
    return "Z:" + str(folder).replace("/", "\\")


def resources(program):
    """What the system reads of a program without starting it: number of the kind -> the contents."""
    data = program.read_bytes()
    header = int.from_bytes(data[0x3C:0x40], "little")
    number = lambda at, size=4: int.from_bytes(data[at:at + size], "little")
    first = header + 24 + number(header + 20, 2)
    sections = [first + 40 * i for i in range(number(header + 6, 2))]
    start = next(at for at in sections if data[at:at + 8].rstrip(b"\0") == b".rsrc")
    address, base = number(start + 12), number(start + 20)

    def leaves(at):
        for i in range(number(at + 12, 2) + number(at + 14, 2)):
            child = number(at + 16 + 8 * i + 4)
            if child & 0x80000000:
                yield from leaves(base + (child & 0x7FFFFFFF))
            else:
                where = base + number(base + child) - address
                yield data[where:where + number(base + child + 4)]

    kinds = range(number(base + 12, 2), number(base + 12, 2) + number(base + 14, 2))
    return {number(base + 16 + 8 * i): list(leaves(base + (number(base + 16 + 8 * i + 4) & 0x7FFFFFFF))) for i in kinds}
