#!/usr/bin/env python3
"""The atlas's pages in a real browser: atlas.py ORVINEL-ATLAS. Exit code 77 where there is no browser."""

import glob
import os
import subprocess
import sys
import tempfile

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import worlds  # noqa: E402
from browser import AXE, Browser, Served, axe_source, run_tests, until, use_system_python  # noqa: E402

ENTER, ESCAPE, DOWN, LEFT, TAB = "\ue007", "\ue00c", "\ue015", "\ue012", "\ue004"


class Pages:
    """The browser with the atlases made for it."""

    def __init__(self, tool, work):
        self.tool, self.work = tool, work
        self.plain = worlds.plain(os.path.join(work, "plain world"))
        self.hostile = worlds.hostile(os.path.join(work, "hostile"))
        self.public = self.make(self.plain, "public atlas")
        self.own = self.make(self.plain, "own", "--character", "secretive sue", "--notes")
        self.attacked = self.make(self.hostile, "attacked", "--character", "1", "--notes")
        self.axe = axe_source()
        self.browser = Browser()

    def make(self, world, name, *options):
        out = os.path.join(self.work, name)
        subprocess.run([self.tool, world, out, *options], check=True)
        return out

    def show(self, atlas, after="", page="index.html"):
        self.browser.open("file://" + os.path.join(atlas, page).replace(" ", "%20") + after)
        if page == "index.html" and "nowhere" not in after:
            until("the map", lambda: self.browser.run("return document.documentElement.dataset.ready"))

    def picture_at(self):
        box = self.browser.run("const b = document.querySelector('.leaflet-image-layer').getBoundingClientRect();"
                               "return [b.left, b.top, b.width, b.height]")
        return box

    def marker(self, name):
        return self.browser.one(f".marker[aria-label$=': {name}']")

    def centre(self, name):
        until("the map at rest", lambda: not self.browser.all(".leaflet-pan-anim, .leaflet-zoom-anim"))
        return self.browser.run("const b = arguments[0].getBoundingClientRect(); return [b.left + b.width / 2, b.top + b.height / 2]",
                                self.marker(name))

    def names(self):
        return self.browser.run("return [...document.querySelectorAll('.marker')].map(m => m.getAttribute('aria-label'))")

    def search(self, words):
        field = self.browser.one("#query")
        field.clear()
        field.send_keys(words)
        until("the search's answer", lambda: self.browser.all("#results .status"))

    def results(self):
        return self.browser.run("return [...document.querySelectorAll('#results .result')].map(r => r.textContent)")


def markers_stand_at_their_pixels(pages):
    """In the picture's own pixels, on the screen as well as in the document; at every zoom."""
    browser = pages.browser
    pages.show(pages.public, "#region=1.1&at=450,350")
    left, top, width, height = pages.picture_at()
    assert (width, height) == (900, 700) and left % 1 == 0 and top % 1 == 0, (left, top, width, height)
    browser.keys(ESCAPE)
    until("no window", lambda: not browser.all(".leaflet-popup"))
    for name, (x, y) in (("Old Borg", worlds.BOSS), ("Eir", worlds.CAPTURED)):
        box = browser.run("const b = arguments[0].querySelector('.box').getBoundingClientRect(); return [b.left, b.top, b.width, b.height]",
                          pages.marker(name))
        assert box == [left + x - 6, top + y - 6, 13, 13], (name, box)
    seen = browser.pixels()
    left, top = int(left), int(top)
    assert seen(left + 299 + 3, top + 250 + 3) == (0x20, 0x40, 0xC0), "the box of Eir in her profession's colour"
    assert seen(left + 300 - 6, top + 250) == (0, 0, 0), "its outline"
    blue, red = seen(left + 397, top + 560), seen(left + 402, top + 560)
    assert blue[2] > 100 > red[2] and red[0] > 150 > blue[0], ("no blur at the edge in the picture", blue, red)
    browser.one(".leaflet-control-zoom-out").click()
    until("a smaller picture", lambda: pages.picture_at()[2] == 450)
    left, top, _, _ = pages.picture_at()
    x, y = pages.centre("Old Borg")
    assert abs(x - left - worlds.BOSS[0] / 2) <= 1 and abs(y - top - worlds.BOSS[1] / 2) <= 1


def windows_say_what_the_program_says(pages):
    browser = pages.browser
    pages.show(pages.public, "#region=1.1")
    browser.click(*pages.centre("Old Borg"))
    text = browser.text(".leaflet-popup .window")
    for part in ("Old Borg", "Mirefen", "Wall of Ember", "You burn.", "Warden", "Adrenaline5", "Recharge30", "Walks about.",
                 "Borg's Iron Tooth", "Damage +15%"):
        assert part in text, (part, text)
    assert "Energy" not in text, "a cost of nothing is not told"
    assert browser.run("return location.hash") == "#region=1.1&at=200,100", "the address follows the reader"
    assert browser.run("const i = document.querySelector('.window img'); return i.complete && i.naturalWidth") == 900
    browser.click(*pages.centre("Ada Reed"))
    until("the collector's window", lambda: "Iron Mace" in browser.text(".leaflet-popup .window"))
    text = browser.text(".leaflet-popup .window")
    assert "5 Frog Skins" in text and "By the well" in text, text


def search_tells_who_gives_and_who_drops(pages):
    browser = pages.browser
    pages.show(pages.public)
    pages.search("iron")
    found = until("both", lambda: len(pages.results()) == 2 and pages.results())
    assert found == ["Borg's Iron Toothdropped by Old Borg · Mirefen · Coast",
                     "Iron Macegiven by Ada Reed · 5 Frog Skins · Mirefen · Coast"], found
    for words, wanted in (("eclat", "Éclat"), ("frog ada", "Ada Reed"), ("hare", "Moor Hare"), ("mirefen", "Mirefen"),
                          ("urn", "Sunken Urn"), ("BORG", "Old Borg"), ("lost", "Lost Art")):
        pages.search(words)
        until(f"{wanted} for {words}", lambda wanted=wanted: any(r.startswith(wanted) for r in pages.results()))
    assert pages.results() == ["Lost Artplace unknown"] and not browser.all("#results a")
    pages.search("nothing like this")
    until("nothing found", lambda: browser.text("#results .status") == "Nothing found")
    pages.search("hills eir")
    until("one result", lambda: len(pages.results()) == 2)
    browser.all("#results a")[0].click()
    until("the other region", lambda: browser.run("return document.documentElement.dataset.ready") == "1.2")
    until("its window", lambda: "Éclat" in browser.text(".leaflet-popup .window"))
    assert not browser.one("#results").is_displayed()


def layers_can_be_switched(pages):
    browser = pages.browser
    pages.show(pages.public, "#region=1.1")
    everything = set(pages.names())
    assert {"Zones: Mirefen", "Elite skills: Old Borg", "Collectors: Ada Reed", "Pets: Moor Hare"} <= everything, everything
    assert not browser.one("#layer4").is_displayed(), "no switch for chests where there are none"
    switches = {"#layer0": "Zones: Mirefen", "#layer3": "Collectors: Ada Reed", "#layer5": "Pets: Moor Hare"}
    for switch, name in switches.items():
        browser.one(switch).click()
        assert set(pages.names()) == everything - {name}, name
        browser.one(switch).click()
    assert set(pages.names()) == everything
    browser.one("#layer1").click()
    assert "Green items: Old Borg" in pages.names() and "Elite skills: Eir" not in pages.names()
    browser.one("#layer2").click()
    assert not [name for name in pages.names() if "Borg" in name]
    # Whoever follows a link to a place sees it all the same.
    browser.run("location.hash = '#region=1.1&at=300,250'")
    until("Eir", lambda: "Elite skills: Eir" in pages.names() and "Éclat" in browser.text(".leaflet-popup .window"))


def addresses_lead_to_places(pages):
    browser = pages.browser
    pages.show(pages.public, "#region=1.1&at=500,400")
    assert "Ada Reed" in browser.text(".leaflet-popup .window")
    left, top, _, _ = pages.picture_at()
    middle = browser.run("const b = document.getElementById('map').getBoundingClientRect(); return [b.left + b.width / 2, b.top + b.height / 2]")
    assert abs(left + 500 - middle[0]) < 60, "the place is in the middle"
    pages.show(pages.public, "#region=1.1&at=321,123")
    assert browser.all(".ring") and not browser.all(".leaflet-popup"), "a place where nothing stands is ringed"
    browser.run("location.hash = '#region=1.2'")
    until("hills", lambda: browser.driver.title == "Hills - Orvinel")
    browser.driver.back()
    until("coast again", lambda: browser.driver.title == "Coast - Orvinel")
    for broken in ("#region=9.9", "#region=nowhere", "#region=1.1&at=1e9,x", "#%00"):
        pages.show(pages.public, broken + "&nowhere")
        if broken == "#region=9.9":
            pages.browser.run("location.hash = '#region=9.9'")
            until("a word", lambda: "no region" in browser.text("#message"))
        else:
            until("the first region", lambda: browser.driver.title == "Coast - Orvinel")
    pages.show(pages.public, "#region=3.1")
    assert "no picture" in browser.text("#message") and "Treasures: Sunken Urn" in pages.names(), "a picture that is none"
    pages.show(pages.public, page="regions/1.1.html")
    link = next(a for a in browser.all(".places a") if a.get_attribute("href").endswith("at=640,200"))
    browser.open(link.get_attribute("href"))
    until("the pet's window", lambda: "Moor Hare" in browser.text(".leaflet-popup .window"))


def everything_can_be_done_by_keyboard(pages):
    browser = pages.browser
    focused = lambda script: browser.run("const e = document.activeElement; return " + script)  # noqa: E731
    pages.show(pages.public, "#region=1.1")
    browser.keys(TAB)
    assert focused("e.className") == "skip" and browser.one(".skip").is_displayed()
    browser.keys(TAB)
    browser.keys("mace")
    until("a result", lambda: len(pages.results()) == 1)
    browser.keys(DOWN)
    assert focused("e.className") == "result"
    browser.keys(ENTER)
    until("reading on in the window", lambda: focused("e.className") == "window" and "Iron Mace" in focused("e.textContent"))
    browser.keys(ESCAPE)
    until("back at the marker", lambda: (focused("e.getAttribute('aria-label')") or "").endswith("Ada Reed"))
    assert not browser.all(".leaflet-popup")
    browser.keys(ENTER)
    until("the window again", lambda: focused("e.className") == "window")
    browser.run("document.getElementById('map').focus()")
    before = pages.picture_at()[0]
    browser.keys(LEFT)
    until("the map moves", lambda: pages.picture_at()[0] > before)
    browser.one("#region").send_keys("H")
    until("hills", lambda: browser.run("return document.documentElement.dataset.ready") == "1.2")


def fits_desktop_and_phone(pages):
    browser = pages.browser
    for width, height in ((1600, 1000), (360, 640)):
        browser.size(width, height)
        for page, after in (("index.html", "#region=1.1&at=200,100"), ("regions/1.1.html", "")):
            pages.show(pages.own, after, page)
            assert browser.run("return document.documentElement.scrollWidth") <= width, (page, width)
        pages.show(pages.own, "#region=1.1&at=200,100")
        inside = ("const b = document.querySelector('.leaflet-popup').getBoundingClientRect();"
                  "const m = document.getElementById('map').getBoundingClientRect();"
                  "return b.left >= m.left && b.right <= m.right && b.top >= m.top && m.right <= innerWidth && m.bottom <= innerHeight")
        until(f"the window inside the map at {width}", lambda: browser.run(inside))
    browser.size(1600, 1000)


def works_by_touch(pages):
    browser = pages.browser
    browser.size(360, 640, touch=True)
    try:
        pages.show(pages.public, "#region=1.1&at=450,350")
        browser.keys(ESCAPE)
        before = pages.picture_at()[0]
        browser.touch((250, 350), (240, 350), (200, 350), (150, 350))
        until("the map follows the finger", lambda: pages.picture_at()[0] < before - 50)
        pages.show(pages.public, "#region=1.1&at=205,140")
        x, y = pages.centre("Old Borg")
        browser.touch((x + 8, y + 8))  # a finger is wider than a marker
        until("the window", lambda: "Wall of Ember" in browser.text(".leaflet-popup .window"))
    finally:
        browser.size(1600, 1000)


def texts_are_there_without_scripts(pages):
    browser = pages.browser
    browser.scripts(False)
    try:
        browser.open("file://" + pages.public.replace(" ", "%20") + "/index.html")
        assert "needs JavaScript" in browser.one(".notice").text
        assert not browser.one("#query").is_displayed()
        links = [a.get_attribute("href") for a in browser.all("nav a")]
        assert len(links) == 3 and links[0].endswith("/regions/1.1.html"), links
        browser.open(links[0])
        text = browser.one("main").text
    finally:
        browser.scripts(True)
    for part in ("Old Borg", "Wall of Ember", "You burn.", "Ada Reed", "5 Frog Skins", "Iron Mace", "Moor Hare", "Mirefen", "Town"):
        assert part in text, part


def a_web_server_will_do(pages):
    served = Served(pages.public)
    try:
        pages.browser.open(served.address + "#region=1.1&at=200,100")
        until("the window", lambda: "Wall of Ember" in pages.browser.text(".leaflet-popup .window"))
        assert all(url.startswith(served.address) for url in pages.browser.requests() if url.startswith("http"))
    finally:
        served.close()


def only_what_was_asked_for_is_personal(pages):
    browser = pages.browser
    for path in glob.glob(os.path.join(pages.public, "**"), recursive=True):
        if os.path.isfile(path):
            with open(path, "rb") as file:
                content = file.read()
            for secret in (b"Secretive", b"Sue", b"Bert", b"hoard", b"oak", b"2026-10-16"):
                assert secret not in content or path.endswith((".jpg", ".png")), (path, secret)
    pages.show(pages.own, "#region=1.1&at=300,250")
    assert "Captured by Secretive Sue" in browser.text(".leaflet-popup .window")
    browser.one("#won").click()
    assert "Elite skills: Eir" not in pages.names() and "Elite skills: Old Borg" in pages.names()
    pages.show(pages.own, "#region=1.1&at=%d,%d" % worlds.NOTE)
    assert browser.text(".window") == "My hoardUnder theoak"
    pages.show(pages.own, "#region=3.1&at=140,160")
    assert "Opened by Secretive Sue on 2026-10-16" in browser.text(".leaflet-popup .window")


def hostile_names_are_texts(pages):
    browser = pages.browser
    plain = lambda text: "".join(c for c in text if c not in "\u202e\u2028")  # noqa: E731
    clean = "return !window.hacked && !document.querySelector('#hacked, iframe, svg, main img[onerror]')"
    pages.show(pages.attacked, "#region=1.1")
    for i, attack in enumerate(worlds.ATTACKS):
        for y in (100, 200, 300, 400, 600):
            browser.run(f"location.hash = '#region=1.1&at={100 + 100 * i},{y}'")
            seen = until("the window", lambda: browser.run("const w = document.querySelector('.window h2'); return w && w.textContent") or None)
            until(f"{attack} at {y}", lambda a=attack: plain(browser.text(".window h2")) == plain(a))
            assert plain(attack) in plain(browser.text(".window")), seen
    labels = "\n".join(plain(name) for name in pages.names())
    assert all(plain(attack) in labels for attack in worlds.ATTACKS)
    for attack in worlds.ATTACKS:
        pages.search(plain(attack)[:12].split("\u2028")[0])
        until(attack, lambda a=attack: any(plain(a) in plain(r) for r in pages.results()))
    assert browser.run(clean)
    for page in ("regions/1.1.html", "regions/1.2.html", "regions/3.1.html"):
        pages.show(pages.attacked, page=page)
        assert browser.run(clean), page
    pages.show(pages.attacked, page="regions/1.1.html")
    text = plain(browser.text("main"))
    assert all(text.count(plain(attack)) >= 5 for attack in worlds.ATTACKS)


def nothing_of_weight_for_axe(pages):
    if not pages.axe:
        print(f"  (left out: no {AXE}; it comes by npm)")
        return
    browser = pages.browser
    for dark in (False, True):
        browser.dark(dark)
        for width, height in ((1600, 1000), (360, 640)):
            browser.size(width, height)
            for page, after in (("index.html", "#region=1.1&at=200,100"), ("regions/1.1.html", "")):
                pages.show(pages.own, after, page)
                assert not (found := browser.faults(pages.axe)), (page, dark, width, found)
            pages.show(pages.own)
            pages.search("e")
            until("results", lambda: len(pages.results()) > 5)
            browser.run("document.querySelectorAll('details').forEach(d => d.open = true)")
            assert not (found := browser.faults(pages.axe)), ("search", dark, width, found)
    browser.dark(False)
    browser.size(1600, 1000)


TESTS = [markers_stand_at_their_pixels, windows_say_what_the_program_says, search_tells_who_gives_and_who_drops, layers_can_be_switched,
         addresses_lead_to_places, everything_can_be_done_by_keyboard, fits_desktop_and_phone, works_by_touch,
         texts_are_there_without_scripts, a_web_server_will_do, only_what_was_asked_for_is_personal, hostile_names_are_texts,
         nothing_of_weight_for_axe]


def main(tool, *wanted):
    with tempfile.TemporaryDirectory() as work:
        return run_tests(lambda: Pages(tool, work), TESTS, wanted)


if __name__ == "__main__":
    use_system_python()
    sys.exit(main(*sys.argv[1:]))
