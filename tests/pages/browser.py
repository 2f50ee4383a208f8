"""A headless browser that looks at pages as a reader does: whole pixels, real mouse, keys and touch. Whatever it asks
for is written down, so that a page that reaches for the network is found out."""

import functools
import http.server
import importlib.util
import json
import os
import shutil
import subprocess
import sys
import tempfile
import threading
import time
import traceback

LIMIT = 10  # seconds until something that does not come counts as missing
AXE = "axe-core@4.10.2"  # from npm; for tests only


SYSTEM_PYTHON = "/usr/bin/python3"  # the one that the system's packages are for


def use_system_python():
    if not importlib.util.find_spec("selenium") and os.path.exists(SYSTEM_PYTHON) and sys.executable != SYSTEM_PYTHON:
        os.execv(SYSTEM_PYTHON, [SYSTEM_PYTHON, *sys.argv])


class Missing(Exception):
    """The machine lacks what the tests need."""


def until(what, look):
    end = time.monotonic() + LIMIT
    while True:
        found = look()
        if found:
            return found
        if time.monotonic() > end:
            raise AssertionError(f"never seen: {what}")
        time.sleep(0.02)


class Browser:
    def __init__(self):
        try:
            from selenium import webdriver
            from selenium.webdriver.chrome.service import Service
        except ImportError:
            raise Missing("python3-selenium") from None
        binary, driver = shutil.which("chromium"), shutil.which("chromedriver")
        if not binary or not driver:
            raise Missing("chromium and chromium-driver")
        self.profile = tempfile.mkdtemp()
        options = webdriver.ChromeOptions()
        options.binary_location = binary
        for word in ("--headless=new", "--no-sandbox", "--disable-gpu", "--no-first-run", "--disable-background-networking",
                     "--disable-component-update", "--disable-sync", "--hide-scrollbars", "--force-color-profile=srgb",
                     "--host-resolver-rules=MAP * ~NOTFOUND, EXCLUDE 127.0.0.1", "--user-data-dir=" + self.profile):
            options.add_argument(word)
        options.set_capability("goog:loggingPrefs", {"browser": "ALL", "performance": "ALL"})
        self.driver = webdriver.Chrome(service=Service(driver), options=options)
        self.size(1600, 1000)
        self.driver.get("about:blank")
        self.complaints(), self.requests()  # of the browser's own first page

    def close(self):
        self.driver.quit()
        shutil.rmtree(self.profile, ignore_errors=True)

    def size(self, width, height, touch=False):
        self.command("Emulation.setDeviceMetricsOverride", width=width, height=height, deviceScaleFactor=1, mobile=touch)
        self.command("Emulation.setTouchEmulationEnabled", enabled=touch)

    def dark(self, on):
        value = "dark" if on else "light"
        features = [{"name": "prefers-color-scheme", "value": value}, {"name": "prefers-reduced-motion", "value": "reduce"}]
        self.command("Emulation.setEmulatedMedia", features=features)

    def scripts(self, on):
        self.command("Emulation.setScriptExecutionDisabled", value=not on)

    def command(self, name, **parameters):
        return self.driver.execute_cdp_cmd(name, parameters)

    def open(self, address):
        self.driver.get("about:blank")  # else an address that differs in what follows # is not loaded again
        self.driver.get(address)

    def run(self, script, *arguments):
        return self.driver.execute_script(script, *arguments)

    def one(self, selector):
        return until(selector, lambda: next(iter(self.all(selector)), None))

    def all(self, selector):
        return self.driver.find_elements("css selector", selector)

    def text(self, selector):
        """As it stands in the document, whether or not it is in sight."""
        return self.run("return arguments[0].textContent", self.one(selector))

    def keys(self, *words):
        from selenium.webdriver.common.action_chains import ActionChains
        ActionChains(self.driver).send_keys(*words).perform()

    def click(self, x, y):
        for kind in ("mousePressed", "mouseReleased"):
            self.command("Input.dispatchMouseEvent", type=kind, x=x, y=y, button="left", clickCount=1)

    def touch(self, *path):
        """A finger that goes down at the first point, along the others, and up."""
        for i, (x, y) in enumerate(path):
            self.command("Input.dispatchTouchEvent", type="touchMove" if i else "touchStart", touchPoints=[{"x": x, "y": y}])
        self.command("Input.dispatchTouchEvent", type="touchEnd", touchPoints=[])

    def pixels(self):
        """A function (x, y) -> (red, green, blue) of what is seen now."""
        shot = self.driver.get_screenshot_as_png()
        done = subprocess.run(["convert", "png:-", "-depth", "8", "-print", "%w ", "rgb:-"], input=shot, check=True,
                              capture_output=True).stdout
        width, _, flat = done.partition(b" ")
        return lambda x, y: tuple(flat[3 * (y * int(width) + x):][:3])

    def complaints(self):
        return [f"{line['level']}: {line['message']}" for line in self.driver.get_log("browser")]

    def requests(self):
        """The addresses asked for since the last call."""
        messages = [json.loads(line["message"])["message"] for line in self.driver.get_log("performance")]
        return [m["params"]["request"]["url"] for m in messages if m["method"] == "Network.requestWillBeSent"]

    def faults(self, axe):
        """What axe-core finds on the page, without trifles."""
        self.run(axe)
        found = self.driver.execute_async_script(
            "const done = arguments[0]; axe.run({preload: false}).then(r => done(r.violations), e => done([{id: String(e), impact: 'critical', nodes: []}]))")
        return [f"{v['id']}: {[n['target'] for n in v['nodes']][:3]}" for v in found if v["impact"] in ("moderate", "serious", "critical")]


def axe_source():
    """axe-core's script, kept in the user's cache; nothing where it cannot be had."""
    folder = os.path.join(os.environ.get("XDG_CACHE_HOME", os.path.expanduser("~/.cache")), "orvinel-tests", AXE)
    script = os.path.join(folder, "package", "axe.min.js")
    if not os.path.exists(script):
        if not shutil.which("npm"):
            return None
        os.makedirs(folder, exist_ok=True)
        made = subprocess.run(["npm", "pack", "--silent", AXE], cwd=folder, capture_output=True, text=True)
        if made.returncode:
            return None
        subprocess.run(["tar", "-xzf", made.stdout.split()[-1], "package/axe.min.js"], cwd=folder, check=True)
    with open(script, encoding="utf-8") as file:
        return file.read()


class Served:
    """A folder as a web server shows it."""

    def __init__(self, folder):
        class Quiet(http.server.SimpleHTTPRequestHandler):
            def log_message(self, *_):
                pass
        self.server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), functools.partial(Quiet, directory=folder))
        threading.Thread(target=self.server.serve_forever, daemon=True).start()
        self.address = f"http://127.0.0.1:{self.server.server_port}/"

    def close(self):
        self.server.shutdown()
        self.server.server_close()


def quiet(browser):
    """No page may complain, or ask for anything but its own files."""
    complaints = [line for line in browser.complaints() if "favicon.ico" not in line]
    assert not complaints, complaints
    own = ("file:", "data:", "about:", "chrome", "http://127.0.0.1:")
    strangers = [url for url in browser.requests() if not url.startswith(own)]
    assert not strangers, strangers


def run_tests(make_pages, tests, wanted):
    """Runs the tests, or those of the names wanted, on the pages, which hold a `browser`; the exit code."""
    failed = []
    try:
        pages = make_pages()
    except Missing as missing:
        print(f"skipped: {missing} is not installed (tools/dev/install-packages pages)")
        return 77
    try:
        pages.browser.dark(False)
        for test in tests:
            if wanted and test.__name__ not in wanted:
                continue
            try:
                test(pages)
                quiet(pages.browser)
                print(f"ok {test.__name__}", flush=True)
            except Exception:  # each test tells its own story
                failed.append(test.__name__)
                print(f"FAILED {test.__name__}\n{traceback.format_exc()}", flush=True)
                pages.browser.complaints(), pages.browser.requests()
    finally:
        pages.browser.close()
    print(f"{len(failed)} failed" if failed else "pages: all as expected")
    return 1 if failed else 0
