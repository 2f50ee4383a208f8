#!/usr/bin/env python3
"""guide.py WRITE-GUIDE: writes the pages that are delivered and follows every link in them; or
guide.py FOLDER: follows those of the pages that lie there."""

import html.parser
import pathlib
import shutil
import subprocess
import sys
import tempfile
import urllib.parse

SKIPPED = 77


class Page(html.parser.HTMLParser):
    def __init__(self, path):
        super().__init__()
        self.links, self.anchors, self.language, self.images, self.items = [], set(), "", [], 0
        self.feed(path.read_text(encoding="utf-8"))

    def handle_starttag(self, tag, attributes):
        attributes = dict(attributes)
        if tag == "html":
            self.language = attributes.get("lang", "")
        self.anchors.add(attributes.get("id"))
        self.links += [attributes[name] for name in ("href", "src") if name in attributes]
        self.items += tag in ("li", "tr", "pre")
        if tag == "img":
            self.images.append(attributes)


def faults(folder):
    """What a reader would stumble over: a link into nothing, one that leaves the folder, a picture without words."""
    pages = {path: Page(path) for path in sorted(folder.rglob("*.html"))}
    reached = set()
    for path, page in pages.items():
        here = path.relative_to(folder)
        for link in page.links:
            parts = urllib.parse.urlsplit(link)
            if parts.scheme:
                yield f"{here}: {link} is not part of what is delivered"
                continue
            target = (path.parent / urllib.parse.unquote(parts.path)).resolve() if parts.path else path
            if folder not in target.parents or not target.exists():
                yield f"{here}: {link} leads nowhere"
            elif parts.fragment and urllib.parse.unquote(parts.fragment) not in pages[target].anchors:
                yield f"{here}: {link}: there is no such place on that page"
            reached.add(target)
        for image in page.images:
            if not image.get("alt"):
                yield f"{here}: {image['src']} has no words for who cannot see it"
    for path in set(pages) - reached:
        yield f"{path.relative_to(folder)}: no page leads there"
    for language in "de", "it":
        for name in "start", "guide", "data-formats", "translating", "make-a-campaign":
            yield from translated(folder, pages, language, name)


def translated(folder, pages, language, name):
    """A page in another language has the chapters, entries and pictures of the English one."""
    path = folder / language / f"{name}.html"
    page, english = pages.get(path), pages[folder / f"{name}.html"]
    if not page or page.language != language:
        yield f"{language}/{name}.html: missing, or in another language"
    elif [len(page.images), len(page.anchors), page.items] != [len(english.images), len(english.anchors), english.items]:
        yield f"{language}/{name}.html: other chapters, entries or pictures than the English page"


def main(first):
    if pathlib.Path(first).is_dir():
        return report(faults(pathlib.Path(first).resolve()))
    if not shutil.which("cmark-gfm"):
        print("cmark-gfm is not installed: left out")
        return SKIPPED
    with tempfile.TemporaryDirectory() as work:
        folder = pathlib.Path(work).resolve() / "Guide"
        subprocess.run([first, folder], check=True)
        return report(faults(folder))


def report(found):
    found = list(found)
    print("\n".join(found) or "every link leads somewhere")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
