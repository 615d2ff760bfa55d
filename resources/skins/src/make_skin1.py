#!/usr/bin/env python3
"""Draws the built-in "Black" skin.

Writes one SVG per picture into src/skin1/ and renders each to
skin1/NAME.png and skin1/NAME@2x.png with rsvg-convert (librsvg2-bin).
Run from anywhere; the SVGs are the sources, the PNGs are committed.
"""

import os
import subprocess
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
SVG_DIR = os.path.join(HERE, "skin1")
PNG_DIR = os.path.join(HERE, "..", "skin1")

# One palette for the whole skin.
BODY = "#1b1d21"
PANEL = "#24272c"
HEAD_TOP = "#2d3036"
HEAD_BOTTOM = "#25282d"
TOOLBAND = "#202328"
EDGE = "#0a0b0d"
HIGHLIGHT = "#3a3e46"
LINE = "#111214"
ICON = "#b9bec6"
ICON_HOVER = "#ffffff"
ACCENT = "#3da5f4"
ACCENT_DARK = "#1f7fd0"
ACCENT_LIGHT = "#7cc4fa"
DANGER = "#e5484d"
GREEN = "#3fbf6e"
GREEN_DARK = "#23894a"
RED_DARK = "#b02a30"
TEXT = "#e1e1e1"

pictures = {}


def svg(name, width, height, body):
    pictures[name] = (width, height,
                      '<svg xmlns="http://www.w3.org/2000/svg" width="%d" height="%d" '
                      'viewBox="0 0 %d %d">\n%s\n</svg>\n' % (width, height, width, height, body))


def gradient(gid, top, bottom):
    return ('<defs><linearGradient id="%s" x1="0" y1="0" x2="0" y2="1">'
            '<stop offset="0" stop-color="%s"/><stop offset="1" stop-color="%s"/>'
            '</linearGradient></defs>' % (gid, top, bottom))


# ---- window frames ---------------------------------------------------------

def frame(name, width, height, head, band=None):
    """A rounded window: header of `head` pixels, optional tool band below it."""
    parts = [gradient("head", HEAD_TOP, HEAD_BOTTOM)]
    clip = ('<clipPath id="shape"><rect x="0" y="0" width="%d" height="%d" rx="7"/></clipPath>'
            % (width, height))
    parts.append(clip)
    parts.append('<g clip-path="url(#shape)">')
    parts.append('<rect width="%d" height="%d" fill="%s"/>' % (width, height, BODY))
    parts.append('<rect width="%d" height="%d" fill="url(#head)"/>' % (width, head))
    if band:
        parts.append('<rect y="%d" width="%d" height="%d" fill="%s"/>'
                     % (head, width, band - head, TOOLBAND))
        parts.append('<rect y="%d" width="%d" height="1" fill="%s"/>' % (band - 1, width, LINE))
    else:
        parts.append('<rect y="%d" width="%d" height="1" fill="%s"/>' % (head - 1, width, LINE))
    # Inner highlight along the top, outer dark edge all round.
    parts.append('<rect x="1" y="1" width="%d" height="%d" rx="6" fill="none" '
                 'stroke="%s" stroke-opacity="0.55" stroke-width="1" '
                 'transform="translate(0.5 0.5)"/>' % (width - 3, height - 3, HIGHLIGHT))
    parts.append('</g>')
    parts.append('<rect x="0.5" y="0.5" width="%d" height="%d" rx="6.5" fill="none" '
                 'stroke="%s" stroke-width="1"/>' % (width - 1, height - 1, EDGE))
    svg(name, width, height, "\n".join(parts))


# Main window: title and menu in the header, tool buttons in the band,
# body from row 131 on (margins 132/20 at first, 131/15 after a skin change).
frame("mainwnd", 200, 260, 58, band=131)
# Dialogs: a 30-pixel title bar, margins of 30 all round.
frame("subdlg", 100, 100, 30)


# ---- title bar buttons -----------------------------------------------------

def sysbutton(name, glyph, state, danger=False):
    w, h = 34, 26
    bg = ""
    color = ICON
    if state == "hover":
        bg = '<rect x="3" y="2" width="28" height="22" rx="4" fill="%s"/>' % (
            DANGER if danger else HIGHLIGHT)
        color = ICON_HOVER
    elif state == "pressed":
        bg = '<rect x="3" y="2" width="28" height="22" rx="4" fill="%s"/>' % (
            RED_DARK if danger else "#30333a")
        color = ICON_HOVER
    stroke = 'fill="none" stroke="%s" stroke-width="1.4" stroke-linecap="round"' % color
    shapes = {
        "close": '<path d="M12.5 8.5 L21.5 17.5 M21.5 8.5 L12.5 17.5" %s/>' % stroke,
        "min": '<path d="M12 13.5 H22" %s/>' % stroke,
        "max": '<rect x="12.5" y="8.5" width="9" height="9" rx="1" %s/>' % stroke,
        "restore": '<rect x="11.5" y="10.5" width="8" height="8" rx="1" %s/>'
                   '<path d="M14.5 10.5 V8.5 Q14.5 7.5 15.5 7.5 H21.5 Q22.5 7.5 22.5 8.5 '
                   'V14.5 Q22.5 15.5 21.5 15.5 H19.5" %s/>' % (stroke, stroke),
    }
    svg(name, w, h, bg + shapes[glyph])


for glyph in ("close", "min", "max", "restore"):
    for state, suffix in (("normal", ""), ("hover", "_hover"), ("pressed", "_pressed")):
        sysbutton(glyph + suffix, glyph, state, danger=(glyph == "close"))


# ---- tool bar --------------------------------------------------------------

def toolmask(name, fill, opacity, stroke=None):
    w, h = 80, 64
    extra = ""
    if stroke:
        extra = (' stroke="%s" stroke-opacity="0.7" stroke-width="1"' % stroke)
    svg(name, w, h, '<rect x="2.5" y="2.5" width="75" height="59" rx="6" fill="%s" '
        'fill-opacity="%s"%s/>' % (fill, opacity, extra))


toolmask("toolbarMask", "#ffffff", "0")
toolmask("toolbarMaskHover", "#ffffff", "0.08", stroke=HIGHLIGHT)
toolmask("toolbarMaskPressed", "#000000", "0.28", stroke=LINE)


def toolicon(name, body, size=32):
    common = ('fill="none" stroke="%s" stroke-width="2" stroke-linecap="round" '
              'stroke-linejoin="round"' % TEXT)
    svg(name, size, size, '<g %s>%s</g>' % (common, body))


toolicon("tb_open",  # a disc with an arrow in
         '<circle cx="16" cy="16" r="11"/><circle cx="16" cy="16" r="3"/>'
         '<path d="M16 5 A11 11 0 0 1 27 16" stroke="%s"/>' % ACCENT)
toolicon("tb_trim",  # scissors
         '<circle cx="9" cy="23" r="4"/><circle cx="23" cy="23" r="4"/>'
         '<path d="M11.5 20 L22 6 M20.5 20 L10 6"/>')
toolicon("tb_crop",
         '<path d="M9 3 V23 H29"/><path d="M3 9 H23 V29"/>')
toolicon("tb_effect",  # sparkle
         '<path d="M16 4 L18.5 13.5 L28 16 L18.5 18.5 L16 28 L13.5 18.5 L4 16 L13.5 13.5 Z"/>')
toolicon("tb_merge",
         '<path d="M6 6 H13 Q16 6 16 10 V14 Q16 18 19 18 H26"/><path d="M6 28 H13 Q16 28 16 24 '
         'V22 Q16 18 19 18"/><path d="M22 14 L26 18 L22 22"/>')
toolicon("tb_preference",
         '<circle cx="16" cy="16" r="4.5"/><path d="M16 3 V7 M16 25 V29 M3 16 H7 M25 16 H29 '
         'M6.8 6.8 L9.6 9.6 M22.4 22.4 L25.2 25.2 M6.8 25.2 L9.6 22.4 M22.4 9.6 L25.2 6.8"/>')
toolicon("arrow_down", '<path d="M4 6 L8 10 L12 6"/>', size=16)


# ---- start button ----------------------------------------------------------

def startface(name, top, bottom, glyph):
    w, h = 120, 44
    g = gradient("face", top, bottom)
    shape = ('<rect x="0.5" y="0.5" width="119" height="43" rx="7" fill="url(#face)" '
             'stroke="%s" stroke-width="1"/>' % EDGE)
    shine = ('<rect x="1.5" y="1.5" width="117" height="20" rx="6" fill="#ffffff" '
             'fill-opacity="0.10"/>')
    svg(name, w, h, g + shape + shine + glyph)


startface("start", ACCENT, ACCENT_DARK, "")
startface("start_disabled", "#3a3e46", "#2e3137", "")
startface("stop", DANGER, RED_DARK, "")
svg("startMask", 120, 44, '<rect x="1" y="1" width="118" height="42" rx="7" fill="#000000" '
    'fill-opacity="0"/>')
svg("startMaskHover", 120, 44, '<rect x="1" y="1" width="118" height="42" rx="7" '
    'fill="#ffffff" fill-opacity="0.16"/>')
svg("stopMaskHover", 120, 44, '<rect x="1" y="1" width="118" height="42" rx="7" '
    'fill="#ffffff" fill-opacity="0.16"/>')


# ---- sliders, progress ---------------------------------------------------------

def pill(name, w, h, fill, opacity="1"):
    r = h / 2.0
    svg(name, w, h, '<rect x="0" y="0" width="%d" height="%d" rx="%s" fill="%s" '
        'fill-opacity="%s"/>' % (w, h, r, fill, opacity))


# The playback slider: the whole track as high as the handle, so that it
# sits in the middle of it; the played part and the trimmed range over it.
svg("sliderbar", 40, 14, '<rect x="0" y="5" width="40" height="4" rx="2" fill="#3a3e46"/>')
# Tiled along the track: square ends, or the tiles show their seams.
svg("groove", 40, 4, '<rect x="0" y="0" width="40" height="4" fill="%s"/>' % ACCENT)
pill("sliderbarTrim", 40, 4, ACCENT)
svg("trimedtimebg", 40, 4, '<rect x="0" y="0" width="40" height="4" fill="%s" '
    'fill-opacity="0.45"/>' % ACCENT_LIGHT)
pill("progressbg", 40, 8, "#2e3137")
pill("progresschunk", 40, 8, ACCENT)


def handle(name, fill, ring):
    svg(name, 14, 14, '<circle cx="7" cy="7" r="6" fill="%s" stroke="%s" stroke-width="1.5"/>'
        % (fill, ring))


handle("handle", TEXT, BODY)
handle("handlehover", ICON_HOVER, ACCENT)
handle("handlepressed", ACCENT_LIGHT, ACCENT_DARK)
svg("begin", 8, 16, '<path d="M1 1 H7 L7 3 L3 3 L3 13 L7 13 L7 15 H1 Z" fill="%s"/>' % ACCENT_LIGHT)
svg("end", 8, 16, '<path d="M7 1 H1 L1 3 L5 3 L5 13 L1 13 L1 15 H7 Z" fill="%s"/>' % ACCENT_LIGHT)
svg("volume_handle", 12, 12, '<circle cx="6" cy="6" r="5" fill="%s"/>' % TEXT)


# ---- player buttons ---------------------------------------------------------

def playicon(name, body, color):
    svg(name, 28, 28, '<g fill="%s">%s</g>' % (color, body))


PLAY = '<path d="M10 7.5 L20.5 14 L10 20.5 Z"/>'
PAUSE = '<rect x="9" y="8" width="3.5" height="12" rx="1"/><rect x="15.5" y="8" width="3.5" ' \
        'height="12" rx="1"/>'
STOP = '<rect x="8.5" y="8.5" width="11" height="11" rx="1.5"/>'
for base, body in (("play", PLAY), ("pause", PAUSE), ("stopplay", STOP)):
    playicon(base, body, ICON)
    playicon(base + "_hover", body, ACCENT_LIGHT)

SPEAKER = '<path d="M6 11 H9.5 L14 7 V21 L9.5 17 H6 Z" fill="%s"/>'
svg("mute", 28, 28, SPEAKER % ICON + '<path d="M17 10.5 Q20 14 17 17.5 M19.5 8 Q24.5 14 19.5 20" '
    'fill="none" stroke="%s" stroke-width="1.6" stroke-linecap="round"/>' % ICON)
svg("muted", 28, 28, SPEAKER % ICON + '<path d="M17.5 11 L23 17 M23 11 L17.5 17" fill="none" '
    'stroke="%s" stroke-width="1.6" stroke-linecap="round"/>' % DANGER)
svg("snapshot", 28, 28, '<g fill="none" stroke="%s" stroke-width="1.6" stroke-linejoin="round">'
    '<path d="M5 10 H9 L11 7.5 H17 L19 10 H23 V21 H5 Z"/><circle cx="14" cy="15" r="3.5"/></g>'
    % ICON)

for base, color in (("fullscreen", ICON), ("fullscreen_hover", ACCENT_LIGHT)):
    svg(base, 28, 28, '<path d="M6 11 V6 H11 M17 6 H22 V11 M22 17 V22 H17 M11 22 H6 V17" fill="none" '
        'stroke="%s" stroke-width="1.8" stroke-linecap="round" stroke-linejoin="round"/>' % color)


# ---- task rows --------------------------------------------------------------

def box(name, checked, hover):
    stroke = ACCENT if (hover or checked) else "#6b7079"
    fill = ACCENT if checked else "none"
    tick = ('<path d="M4.5 9 L7.5 12 L13.5 5.5" fill="none" stroke="#ffffff" stroke-width="2" '
            'stroke-linecap="round" stroke-linejoin="round"/>' if checked else "")
    svg(name, 18, 18, '<rect x="1.5" y="1.5" width="15" height="15" rx="3" fill="%s" '
        'stroke="%s" stroke-width="1.5"/>%s' % (fill, stroke, tick))


box("checkbox", False, False)
box("checkbox_hover", False, True)
box("checkbox_checked", True, False)

CHEVRON = 'fill="none" stroke="%s" stroke-width="1.8" stroke-linecap="round" ' \
          'stroke-linejoin="round"'
svg("expand", 16, 16, '<path d="M6 3.5 L10.5 8 L6 12.5" %s/>' % (CHEVRON % ICON))
svg("collapse", 16, 16, '<path d="M3.5 6 L8 10.5 L12.5 6" %s/>' % (CHEVRON % ICON))
svg("item_up", 16, 16, '<path d="M3.5 10 L8 5.5 L12.5 10" %s/>' % (CHEVRON % ICON))
svg("item_down", 16, 16, '<path d="M3.5 6 L8 10.5 L12.5 6" %s/>' % (CHEVRON % ICON))
svg("item_close", 16, 16, '<path d="M4.5 4.5 L11.5 11.5 M11.5 4.5 L4.5 11.5" %s/>'
    % (CHEVRON % ICON))
svg("item_close_hover", 16, 16, '<path d="M4.5 4.5 L11.5 11.5 M11.5 4.5 L4.5 11.5" %s/>'
    % (CHEVRON % DANGER))
svg("item_pause", 16, 16, '<g fill="%s"><rect x="4" y="3.5" width="3" height="9" rx="0.8"/>'
    '<rect x="9" y="3.5" width="3" height="9" rx="0.8"/></g>' % ICON)
svg("item_continue", 16, 16, '<path d="M5 3.5 L12.5 8 L5 12.5 Z" fill="%s"/>' % ICON)
svg("combo_arrow", 12, 12, '<path d="M2.5 4.5 L6 8 L9.5 4.5" %s/>' % (CHEVRON % ICON))

# Placeholders in the rows, 4:3 like a thumbnail.
svg("video", 80, 60, '<rect width="80" height="60" rx="4" fill="%s"/>'
    '<rect x="26" y="17" width="28" height="26" rx="3" fill="none" stroke="#4a4f58" '
    'stroke-width="2"/><path d="M35 24 L46 30 L35 36 Z" fill="#4a4f58"/>' % PANEL)
svg("audio", 80, 60, '<rect width="80" height="60" rx="4" fill="%s"/>'
    '<g fill="#4a4f58"><circle cx="33" cy="40" r="5"/><circle cx="49" cy="37" r="5"/></g>'
    '<path d="M37 40 V20 L53 17 V37" fill="none" stroke="#4a4f58" stroke-width="2.5"/>' % PANEL)
svg("dvd", 80, 60, '<rect width="80" height="60" rx="4" fill="%s"/>'
    '<circle cx="40" cy="30" r="19" fill="none" stroke="#4a4f58" stroke-width="2"/>'
    '<circle cx="40" cy="30" r="5" fill="none" stroke="#4a4f58" stroke-width="2"/>'
    '<path d="M40 14 A16 16 0 0 1 56 30" fill="none" stroke="%s" stroke-width="2" '
    'stroke-linecap="round"/>' % (PANEL, ACCENT))


# ---- profile popup, edit tabs -------------------------------------------------

svg("menuIndicator", 12, 12, '<path d="M4.5 2.5 L8 6 L4.5 9.5" %s/>' % (CHEVRON % ICON))
svg("menuIndicatorLeft", 12, 12, '<path d="M7.5 2.5 L4 6 L7.5 9.5" %s/>' % (CHEVRON % ICON))
svg("recommend", 16, 16, '<path d="M8 1.5 L10 6 L14.8 6.3 L11.1 9.4 L12.3 14.2 L8 11.6 '
    'L3.7 14.2 L4.9 9.4 L1.2 6.3 L6 6 Z" fill="#f5b740"/>')

TAB = 'fill="none" stroke="%s" stroke-width="1.6" stroke-linecap="round" ' \
      'stroke-linejoin="round"' % TEXT
svg("trimIcon", 20, 20, '<g %s><circle cx="5.5" cy="14.5" r="2.5"/><circle cx="14.5" '
    'cy="14.5" r="2.5"/><path d="M7 12.5 L14 3 M13 12.5 L6 3"/></g>' % TAB)
svg("cropIcon", 20, 20, '<g %s><path d="M6 2 V14 H18"/><path d="M2 6 H14 V18"/></g>' % TAB)
svg("imageIcon", 20, 20, '<g %s><rect x="2.5" y="4" width="15" height="12" rx="2"/>'
    '<path d="M3 14 L8 9 L12 13 L14 11 L17 14"/><circle cx="13" cy="7.5" r="1"/></g>' % TAB)
svg("watermarkIcon", 20, 20, '<g %s><path d="M10 2.5 Q15 9 15 12 A5 5 0 0 1 5 12 Q5 9 10 2.5 Z"/>'
    '</g>' % TAB)
svg("effectIcon", 20, 20, '<g %s><path d="M10 2 L11.7 8.3 L18 10 L11.7 11.7 L10 18 L8.3 11.7 '
    'L2 10 L8.3 8.3 Z"/></g>' % TAB)
svg("audioIcon", 20, 20, '<g %s><path d="M3 8 H6 L10 4.5 V15.5 L6 12 H3 Z"/>'
    '<path d="M13 7.5 Q15 10 13 12.5 M15 5 Q18.5 10 15 15"/></g>' % TAB)
svg("subtitleIcon", 20, 20, '<g %s><rect x="2.5" y="4" width="15" height="12" rx="2"/>'
    '<path d="M5.5 12.5 H9.5 M11.5 12.5 H14.5 M5.5 9.5 H7.5 M9.5 9.5 H14.5"/></g>' % TAB)


# ---- colour button -------------------------------------------------------------

# Black pixels take the chosen colour; the rim stays.
svg("colorone", 24, 16, '<rect x="0.5" y="0.5" width="23" height="15" rx="3" fill="#6b7079"/>'
    '<rect x="2" y="2" width="20" height="12" rx="2" fill="#000000"/>')


# ---- start page, player, about ----------------------------------------------------

LOGO = ('<g transform="translate(%s) scale(%s)">'
        '<rect x="0" y="0" width="64" height="64" rx="14" fill="url(#logo)"/>'
        '<path d="M22 18 L46 32 L22 46 Z" fill="#ffffff"/>'
        '<circle cx="32" cy="32" r="24" fill="none" stroke="#ffffff" stroke-opacity="0.35" '
        'stroke-width="2"/></g>')
LOGO_GRADIENT = gradient("logo", ACCENT_LIGHT, ACCENT_DARK)

svg("logo", 64, 64, LOGO_GRADIENT + LOGO % ("0 0", "1"))
svg("gettingstart", 40, 40, '<rect x="0.5" y="0.5" width="39" height="39" rx="6" fill="%s" '
    'stroke="%s" stroke-width="1"/>' % (PANEL, HIGHLIGHT))
for name, glyph in (("gs_import", '<circle cx="12" cy="12" r="8"/><circle cx="12" cy="12" r="2"/>'),
                    ("gs_trim", '<circle cx="7" cy="17" r="3"/><circle cx="17" cy="17" r="3"/>'
                                '<path d="M9 14.5 L17 4 M15 14.5 L7 4"/>'),
                    ("gs_crop", '<path d="M7 3 V17 H21"/><path d="M3 7 H17 V21"/>'),
                    ("gs_start", '<path d="M8 5 L19 12 L8 19 Z"/>')):
    svg(name, 24, 24, '<g fill="none" stroke="%s" stroke-width="2" stroke-linecap="round" '
        'stroke-linejoin="round">%s</g>' % (ACCENT, glyph))

svg("playerbg", 40, 40, '<rect width="40" height="40" fill="#101113"/>')
svg("playwnddefault", 160, 120, LOGO_GRADIENT + '<rect width="160" height="120" fill="#101113"/>'
    '<g opacity="0.5">' + LOGO % ("48 28", "1") + '</g>')
svg("about", 480, 300, LOGO_GRADIENT + gradient("bg", "#26292f", "#141518")
    + '<rect width="480" height="300" fill="url(#bg)"/>'
    + '<circle cx="420" cy="40" r="160" fill="%s" fill-opacity="0.06"/>' % ACCENT
    + '<circle cx="460" cy="300" r="120" fill="%s" fill-opacity="0.05"/>' % ACCENT
    + LOGO % ("40 40", "1.25")
    + '<text x="40" y="168" font-family="DejaVu Sans, sans-serif" font-size="30" '
      'font-weight="bold" fill="%s">Tessarine Kestrove</text>' % TEXT
    + '<text x="40" y="196" font-family="DejaVu Sans, sans-serif" font-size="14" '
      'fill="#9aa0a6">DVD and video converter</text>')


def main():
    os.makedirs(SVG_DIR, exist_ok=True)
    os.makedirs(PNG_DIR, exist_ok=True)
    for name, (width, height, text) in sorted(pictures.items()):
        source = os.path.join(SVG_DIR, name + ".svg")
        with open(source, "w") as out:
            out.write(text)
        for zoom, suffix in ((1, ""), (2, "@2x")):
            target = os.path.join(PNG_DIR, name + suffix + ".png")
            subprocess.run(["rsvg-convert", "-z", str(zoom), "-o", target, source], check=True)
    print("%d pictures" % len(pictures))


if __name__ == "__main__":
    sys.exit(main())
