"""The site's settings. Its pages are laid out by scripts/docs_pages.py."""

import os

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
