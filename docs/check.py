#!/usr/bin/env python3
"""Opens the site as its readers do, from the file system in a browser without a window, and fails on what they would miss.

    docs/check.py SITE [--gallery DIRECTORY] [--pictures DIRECTORY]

Every function has its page, and a picture, a sound or a worked example on it; every link leads somewhere; no page says a
word on the console, lacks a picture or is wider than a phone; the search finds every function by its name and by each of
its plain words, and a question is answered within two clicks. `--pictures` keeps what some pages look like.
"""
import argparse
import base64
import collections
import fcntl
import html.parser
import json
import os
import pathlib
import subprocess
import sys
import tempfile
import time
import urllib.parse

ROOT = pathlib.Path(__file__).resolve().parent.parent
sys.path.insert(0, str(ROOT / "docs/reference"))
import generate  # noqa: E402  the names of functions, their words and examples

FIRST = 8  # results that a reader looks at
QUESTION = "how do I draw a sprite with soft edges at half opacity?"
ANSWERS = {"functions/BBIFlipBlend.html", "functions/BBIExpandBlendBlt.html"}
# Words of the guide; those of functions are in tasks.txt.
WORDS = {"pitch": "guide/records.html", "stdcall": "guide/targets.html", "damaged files": "guide/streams.html",
         "threads": "guide/threads.html", "exactness": "guide/exactness.html", "trusted": "guide/trust.html"}
PHONE, DESK = (390, 844), (1280, 1000)
LOOKED_AT = ["index.html", "functions/BBIFlipBlend.html", "functions/GetDWORD.html", "families/blits.html",
             "guide/records.html", "guide/first-call.html", "tasks.html", "functions/waveEffectReverbA1.html"]


class Page(html.parser.HTMLParser):
    """The places that a page leads to, and those in it that others may lead to."""

    def __init__(self, path):
        super().__init__()
        self.targets, self.places = [], set()
        self.feed(path.read_text())

    def handle_starttag(self, tag, attributes):
        attributes = dict(attributes)
        self.places.update(filter(None, (attributes.get("id"), attributes.get("name") if tag == "a" else None)))
        self.targets += filter(None, (attributes.get("href"), attributes.get("src")))


class Browser:
    """Chromium, spoken to through two pipes in its debugging protocol."""

    def __init__(self):
        self.profile = tempfile.TemporaryDirectory(ignore_cleanup_errors=True)
        to_browser, from_browser = os.pipe(), os.pipe()
        ends = [fcntl.fcntl(end, fcntl.F_DUPFD, 10) for end in (to_browser[0], from_browser[1])]
        flags = ["--headless=new", "--disable-gpu", "--no-first-run", "--mute-audio", "--remote-debugging-pipe",
                 f"--user-data-dir={self.profile.name}"] + (["--no-sandbox"] if os.getuid() == 0 else [])
        self.process = subprocess.Popen(["chromium", *flags, "about:blank"], pass_fds=(3, 4), stderr=subprocess.DEVNULL,
                                        preexec_fn=lambda: [os.dup2(end, i + 3) for i, end in enumerate(ends)])
        for end in (*ends, to_browser[0], from_browser[1]):
            os.close(end)
        self.out, self.into = os.fdopen(to_browser[1], "wb", 0), os.fdopen(from_browser[0], "rb", 1 << 16)
        self.number, self.session, self.pending, self.said = 0, None, b"", []
        target = next(t for t in self("Target.getTargets")["targetInfos"] if t["type"] == "page")
        self.session = self("Target.attachToTarget", targetId=target["targetId"], flatten=True)["sessionId"]
        for domain in ("Page", "Runtime", "Log"):
            self(domain + ".enable")

    def close(self):
        self.process.kill()
        self.process.wait()
        self.profile.cleanup()

    def read(self):
        while b"\0" not in self.pending:
            piece = os.read(self.into.fileno(), 1 << 16)
            if not piece:
                raise SystemExit("The browser has ended.")
            self.pending += piece
        message, self.pending = self.pending.split(b"\0", 1)
        message = json.loads(message)
        what, about = message.get("method"), message.get("params", {})
        if what == "Runtime.exceptionThrown":
            details = about["exceptionDetails"]
            self.said.append(details.get("exception", {}).get("description") or f"{details['text']}: {details.get('url')}")
        elif what == "Log.entryAdded" and about["entry"]["level"] in ("error", "warning"):
            self.said.append(f"{about['entry']['text']} {about['entry'].get('url', '')}")
        elif what == "Runtime.consoleAPICalled" and about["type"] in ("error", "warning", "assert"):
            self.said.append(str([a.get("value") for a in about["args"]]))
        return message

    def __call__(self, method, **parameters):
        self.number += 1
        message = {"id": self.number, "method": method, "params": parameters}
        if self.session:
            message["sessionId"] = self.session
        self.out.write(json.dumps(message).encode() + b"\0")
        while True:
            answer = self.read()
            if answer.get("id") == self.number:
                if "error" in answer:
                    raise SystemExit(f"{method}: {answer['error']}")
                return answer["result"]

    def open(self, url):
        self("Page.navigate", url=url)
        while self.read().get("method") != "Page.loadEventFired":
            pass

    def run(self, script):
        result = self("Runtime.evaluate", expression=script, awaitPromise=True, returnByValue=True)
        if "exceptionDetails" in result:
            raise SystemExit(f"{result['exceptionDetails']}\n{script}")
        return result["result"].get("value")

    def wait(self, condition):
        for _ in range(600):
            if self.run(condition):
                return
            time.sleep(0.05)
        raise SystemExit(f"Waited in vain: {condition}")

    def size(self, width, height, dark=False):
        self("Emulation.setDeviceMetricsOverride", width=width, height=height, deviceScaleFactor=1, mobile=width < 600)
        self("Emulation.setEmulatedMedia", features=[{"name": "prefers-color-scheme", "value": "dark" if dark else "light"}])

    def picture(self, path):
        path.write_bytes(base64.b64decode(self("Page.captureScreenshot")["data"]))


def dead_links(site):
    pages = {path: Page(path) for path in site.rglob("*.html")}
    for path, page in pages.items():
        for target in page.targets:
            parts = urllib.parse.urlsplit(target)
            if parts.scheme in ("http", "https", "data", "mailto"):
                continue
            file = (path.parent / urllib.parse.unquote(parts.path)).resolve() if parts.path else path
            place = urllib.parse.unquote(parts.fragment)
            if not file.exists() or (place and file in pages and place not in pages[file].places | {"top"}):
                yield f"{path.relative_to(site)}: leads nowhere: {target}"


# All pictures and sounds of a page arrive, no mark of Markdown is left, and nothing is wider than the window.
LOOK = """(async () => {
  const missing = await Promise.all([...document.images].map(async image => {
    image.loading = "eager";
    try { await image.decode(); } catch { return "not shown: " + image.src; }
  }));
  for (const audio of document.querySelectorAll("audio")) missing.push(await new Promise(done => {
    audio.onloadedmetadata = () => done();
    audio.onerror = () => done("not played: " + audio.src);
    audio.preload = "metadata";
    audio.load();
  }));
  const text = document.querySelector("article").cloneNode(true);
  text.querySelectorAll("code, pre, script, style, .entry").forEach(node => node.remove());
  for (const match of text.textContent.matchAll(/.*(`|\\*\\*|\\]\\().*/g)) missing.push("markup: " + match[0]);
  // The theme lets a part of the page scroll rather than the page.
  let wide = 0;
  for (let part = document.querySelector("article"); part; part = part.parentElement)
    wide = Math.max(wide, part.scrollWidth - screen.width);
  return missing.filter(Boolean).concat(wide > 0 ? ["wider than a phone by " + wide] : []);
})()"""

# The pages that the search finds first, without opening a page for each query.
SEARCH = """(async query => {
  document.getElementById("search-results").replaceChildren();
  Search.performSearch(query);
  while (!Search.status.innerText) await new Promise(done => setTimeout(done, 5));
  await new Promise(done => setTimeout(done));
  return [...document.querySelectorAll("#search-results li a")].map(a => a.getAttribute("href").split(/[?#]/)[0]);
})"""


def searches(browser, site, reference):
    browser.open(f"{site.as_uri()}/search.html?q=pitch")
    browser.wait("Search.status?.innerText.length > 0")
    # Results come one by one, five milliseconds apart, which is nothing for a reader but much for hundreds of queries.
    browser.run("window.setTimeout = (later => (what, when) => later(what, 0))(window.setTimeout), 0")
    wanted = {name: {f"functions/{name}.html"} for name in reference.functions}
    wanted |= {word: {page} for word, page in WORDS.items()}
    plain = collections.defaultdict(set)
    for _, entries in reference.tasks:
        for words, names in entries:
            for word in words:
                plain[word] |= {f"functions/{name}.html" for name in names}
    for query, pages in (wanted | plain).items():
        first = browser.run(f"{SEARCH}({json.dumps(query)})")[:1 if query in reference.functions else FIRST]
        if not pages & set(first):
            yield f"the search for {query!r} finds {', '.join(first) or 'nothing'}"


def question(browser, site):
    """From the front page by keyboard to the results, and with one click to the answer."""
    browser.open(f"{site.as_uri()}/index.html")
    browser.run("document.querySelector('.sidebar-search').focus()")
    browser("Input.insertText", text=QUESTION)
    for kind in ("keyDown", "keyUp"):
        browser("Input.dispatchKeyEvent", type=kind, key="Enter", code="Enter", windowsVirtualKeyCode=13, text="\r")
    browser.wait("location.pathname.endsWith('search.html') && document.readyState === 'complete' "
                 "&& document.querySelector('.search-summary')?.innerText.length > 0")
    first = browser.run("[...document.querySelectorAll('#search-results li a')].map(a => a.getAttribute('href'))")
    if not ANSWERS & {a.split("?")[0].split("#")[0] for a in first[:3]}:
        yield f"the question is answered by {first[:3]}"


def main():
    arguments = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    arguments.add_argument("site", type=pathlib.Path)
    arguments.add_argument("--gallery", type=pathlib.Path, default=ROOT / "out/gallery")
    arguments.add_argument("--pictures", type=pathlib.Path)
    chosen = arguments.parse_args()
    site, faults = chosen.site.resolve(), []
    reference = generate.Reference(chosen.gallery)

    for name, function in reference.functions.items():
        if not (site / f"functions/{name}.html").exists():
            faults.append(f"{name} has no page")
        first = function.get("alias_of", name)
        if not reference.figures[first] and first not in reference.examples:
            faults.append(f"{name} has neither picture nor example")
    faults += dead_links(site)

    browser = Browser()
    try:
        browser.size(*PHONE)
        pages = sorted(site.rglob("*.html"))
        for path in pages:
            browser.said.clear()
            browser.open(path.as_uri())
            faults += [f"{path.relative_to(site)}: {fault}" for fault in browser.run(LOOK) + browser.said]
        browser.said.clear()
        for dark in True, False:
            browser.size(*DESK, dark)
            browser.open((site / "index.html").as_uri())
            if (browser.run("getComputedStyle(document.body).backgroundColor") != "rgb(255, 255, 255)") != dark:
                faults.append(f"a {'dark' if dark else 'light'} system gets a {'light' if dark else 'dark'} page")
        browser.size(*DESK)
        faults += [*searches(browser, site, reference), *question(browser, site), *browser.said]
        if chosen.pictures:
            chosen.pictures.mkdir(parents=True, exist_ok=True)
            for page in LOOKED_AT:
                for how, size, dark in [("phone", PHONE, False), ("desk", DESK, False), ("dark", DESK, True)]:
                    browser.size(*size, dark)
                    browser.open((site / page).as_uri())
                    browser.picture(chosen.pictures / f"{pathlib.Path(page).stem}-{how}.png")
    finally:
        browser.close()
    print("\n".join(faults))
    print(f"{len(pages)} pages, {len(faults)} faults")
    return bool(faults)


if __name__ == "__main__":
    sys.exit(main())
