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
    """Debian leaves the parts of the theme in packages of their own, which a browser does not find among files."""
    static = pathlib.Path(app.outdir) / "_static"
    script, style = static / "scripts/furo.js", static / "styles/furo.css"
    if "import Gumshoe" in script.read_text():
        # The part looks for a module's exports, and otherwise leaves its name in the window.
        parts = [(static / "scripts/gumshoe-patched.js").read_text(), re.sub("^import .*", "", script.read_text())]
        script.write_text("\n".join(parts))
    part = re.search(r"@import url\((/javascript/[^)]*)\);", style.read_text())
    if part:
        style.write_text(pathlib.Path("/usr/share" + part[1]).read_text() + style.read_text().replace(part[0], ""))


def setup(app):
    app.connect("build-finished", bundle)
