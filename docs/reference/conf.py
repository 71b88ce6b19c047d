"""Sphinx: how the pages become a site that opens from the file system. generate.py fills in what stands between @ signs."""
import pathlib
import re

project = "tessaro"
version = release = "@version@"
html_title = "tessaro @version@"
extensions = ["myst_parser"]
myst_enable_extensions = ["colon_fence", "deflist"]
myst_heading_anchors = 3
primary_domain = highlight_language = "c"
html_theme = "furo"
html_static_path = ["static"]
html_css_files = ["site.css"]
html_js_files = ["briefs.js", "site.js"]
# Calls in the gallery may leave something out.
suppress_warnings = ["misc.highlighting_failure"]
html_show_copyright = False
html_copy_source = False
# A summary would be fetched, which browsers refuse for files; site.js tells what each page is about instead.
html_show_search_summary = False


def bundle(app, exception):
    """Makes up for what the theme lacks as Debian builds it, for readers who open it from the file system."""
    static = pathlib.Path(app.outdir) / "_static"
    script, style = static / "scripts/furo.js", static / "styles/furo.css"
    code, rules = script.read_text(), style.read_text()
    # Parts that lie in files of their own, where a browser may not read them.
    if "import Gumshoe" in code:
        part = (static / "scripts/gumshoe-patched.js").read_text()  # without modules it leaves its name in the window
        script.write_text(part + re.sub("^import .*", "", code))
    normal = re.search(r"@import url\((/javascript/[^)]*)\);", rules)
    if normal:
        rules = pathlib.Path("/usr/share" + normal[1]).read_text() + rules.replace(normal[0], "")
    # The dark colours for readers whose system is dark: a rule in two conditions, which their compiler drops.
    if "prefers-color-scheme" not in rules:
        dark = re.search(r'body\[data-theme="dark"\] (\{[^}]*\})', rules)[1]
        rules += f'\n@media screen and (prefers-color-scheme: dark) {{ body:not([data-theme="light"]) {dark} }}\n'
    style.write_text(rules)


def setup(app):
    app.connect("build-finished", bundle)
