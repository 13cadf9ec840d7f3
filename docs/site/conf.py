"""The site's settings. Its pages are laid out by scripts/docs_pages.py."""

import os
import pathlib

project = "touchstone2"
html_title = f"touchstone2 {os.environ['TOUCHSTONE2_VERSION']}"
language = "en"

extensions = ["myst_parser", "breathe"]
myst_heading_anchors = 4
breathe_projects = {"touchstone2": os.environ["TOUCHSTONE2_API_XML"]}
breathe_default_project = "touchstone2"
breathe_show_include = False

html_theme = "furo"
html_static_path = ["_static"]
html_css_files = ["site.css"]
html_show_sphinx = False
html_show_copyright = False
html_copy_source = False
html_extra_path = ["_extra"]
html_theme_options = {"navigation_with_keys": True}
templates_path = []
# Names of the standard library and of private classes have no page here.
nitpicky = False
highlight_language = "none"
pygments_style = "friendly"
pygments_dark_style = "native"


def join_scripts(app, exception):
    """Puts the theme's script and the one it imports into one file.

    Debian packages them as modules, which browsers do not load from the file system.
    """
    if exception:
        return
    scripts = pathlib.Path(app.outdir) / "_static" / "scripts"
    module = 'import Gumshoe from "./gumshoe-patched.js";\n'
    text = (scripts / "furo.js").read_text(encoding="utf-8")
    if text.startswith(module):
        imported = (scripts / "gumshoe-patched.js").read_text(encoding="utf-8")
        (scripts / "furo.js").write_text(imported + text[len(module) :], encoding="utf-8")


def setup(app):
    app.connect("build-finished", join_scripts)
