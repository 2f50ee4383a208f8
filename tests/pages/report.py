#!/usr/bin/env python3
"""The page of orvinel-report in a real browser: report.py ORVINEL-REPORT. Exit code 77 where there is no browser."""

import base64
import os
import re
import subprocess
import sys
import tempfile

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import worlds  # noqa: E402
from browser import AXE, Browser, axe_source, run_tests, use_system_python  # noqa: E402


class Pages:
    def __init__(self, tool, work):
        self.plain = self.make(tool, worlds.plain(os.path.join(work, "plain")), os.path.join(work, "plain.html"))
        self.attacked = self.make(tool, worlds.hostile(os.path.join(work, "hostile")), os.path.join(work, "attacked.html"))
        self.axe = axe_source()
        self.browser = Browser()

    @staticmethod
    def make(tool, world, page):
        with open(page, "wb") as file:
            subprocess.run([tool, world, "--format", "html"], check=True, stdout=file)
        return page

    def show(self, page):
        self.browser.open("file://" + page)


def can_be_read_without_seeing_it(pages):
    browser = pages.browser
    pages.show(pages.plain)
    assert browser.all("table") and browser.all("svg[role=img]")
    assert not browser.run("return [...document.querySelectorAll('table')].filter(t => !t.querySelector('th[scope=col]') ||"
                           " !t.querySelector('th[scope=row]')).length"), "a table without headers"
    assert not browser.run("return [...document.querySelectorAll('svg')].filter(s => s.getAttribute('aria-hidden') !== 'true' &&"
                           " !s.getAttribute('aria-label') && !s.querySelector('title')).length"), "a picture without a text"
    levels = browser.run("return [...document.querySelectorAll('h1, h2, h3, h4, h5')].map(h => Number(h.tagName[1]))")
    assert levels[0] == 1 and all(b <= a + 1 for a, b in zip(levels, levels[1:])), levels
    assert not browser.all("script")


def says_how_far_each_character_is(pages):
    text = pages.browser
    pages.show(pages.plain)
    for name in ("Secretive Sue", "Bert"):
        assert name in text.text("main")
    own = pages.browser.run("return [...document.querySelectorAll('section.character')].map(s => s.textContent)")
    assert "1 of 3" in own[0] and "Wall of Ember" in own[0] and "Old Borg" in own[0] and "Grave Box" in own[0]
    assert "Sunken Urn" not in own[0] and "Sunken Urn" in own[1], "a chest is missing only for who has not opened it"


def fits_every_screen_and_paper(pages):
    browser = pages.browser
    for page in (pages.plain, pages.attacked):
        for width, height in ((360, 640), (1600, 1000)):
            browser.size(width, height)
            pages.show(page)
            assert browser.run("return document.documentElement.scrollWidth") <= width, (page, width)
    browser.size(1600, 1000)
    paper = base64.b64decode(browser.command("Page.printToPDF", preferCSSPageSize=True)["data"])
    sheets = re.findall(rb"/MediaBox \[0 0 ([\d.]+) ([\d.]+)\]", paper)
    assert sheets and all(abs(float(w) - 595) < 2 and abs(float(h) - 842) < 2 for w, h in sheets), ("A4", sheets)


def hostile_names_are_texts(pages):
    browser = pages.browser
    pages.show(pages.attacked)
    assert browser.run("return !window.hacked && !document.querySelector('script, iframe, #hacked, [onerror], [onload]')")
    text = browser.text("main")
    # The first is captured, and the last has characters that no page may hold as they are.
    for attack in worlds.ATTACKS[1:-1]:
        assert attack in text, attack


def nothing_of_weight_for_axe(pages):
    if not pages.axe:
        print(f"  (left out: no {AXE}; it comes by npm)")
        return
    browser = pages.browser
    for dark in (False, True):
        browser.dark(dark)
        for width, height in ((1600, 1000), (360, 640)):
            browser.size(width, height)
            pages.show(pages.plain)
            assert not (found := browser.faults(pages.axe)), (dark, width, found)


TESTS = [can_be_read_without_seeing_it, says_how_far_each_character_is, fits_every_screen_and_paper, hostile_names_are_texts,
         nothing_of_weight_for_axe]


def main(tool, *wanted):
    with tempfile.TemporaryDirectory() as work:
        return run_tests(lambda: Pages(tool, work), TESTS, wanted)


if __name__ == "__main__":
    use_system_python()
    sys.exit(main(*sys.argv[1:]))
