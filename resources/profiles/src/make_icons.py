#!/usr/bin/env python3
"""Draws the catalogue's icons: the group icons, the small profile icons and
the recommended mark, as SVG under src/icons, rendered to PNG beside the
documents with rsvg-convert (Debian's librsvg2-bin), each also at twice its
size as "@2x" for HiDPI screens. The PNGs are committed;
building needs neither this script nor rsvg-convert.

    python3 resources/profiles/src/make_icons.py

Every icon is a rounded tile in the colour of its kind with a white
pictogram or a short label on it, drawn on a 32-unit grid.
"""

import re
import subprocess
from pathlib import Path

HERE = Path(__file__).resolve().parent
OUT = HERE.parent
SVG = HERE / "icons"

VIDEO, AUDIO, PICTURE, HD, DEVICE, CONSOLE, USER = (
    "#2f6fb5", "#d9822b", "#3a9a5b", "#7a4fb0", "#3c4654", "#2b2f36", "#5a6b7d")

# Pictograms in white on the tile, 32 units square.
STROKE = 'fill="none" stroke="#fff" stroke-width="2" stroke-linejoin="round" stroke-linecap="round"'
GLYPHS = {
    "phone": '<rect x="10" y="4" width="12" height="24" rx="2.5" %s/>'
             '<circle cx="16" cy="24.5" r="1.2" fill="#fff"/>'
             '<line x1="14" y1="7" x2="18" y2="7" %s/>' % (STROKE, STROKE),
    "keypad": '<rect x="10" y="3" width="12" height="26" rx="2.5" %s/>'
              '<rect x="12.5" y="6" width="7" height="7" fill="#fff"/>' % STROKE
              + "".join('<circle cx="%g" cy="%g" r="1" fill="#fff"/>' % (x, y)
                        for x in (13, 16, 19) for y in (17, 20.5, 24)),
    "tablet": '<rect x="5" y="6" width="22" height="20" rx="2.5" %s/>'
              '<circle cx="16" cy="23" r="1.1" fill="#fff"/>' % STROKE,
    "player": '<rect x="9" y="3" width="14" height="26" rx="3" %s/>'
              '<rect x="11.5" y="6" width="9" height="8" fill="#fff"/>'
              '<circle cx="16" cy="21.5" r="4" %s/>' % (STROKE, STROKE),
    "handheld": '<rect x="2.5" y="10" width="27" height="13" rx="6.5" %s/>'
                '<rect x="10" y="12.5" width="12" height="8" fill="#fff"/>'
                '<circle cx="6.5" cy="16.5" r="1.3" fill="#fff"/>'
                '<circle cx="25.5" cy="16.5" r="1.3" fill="#fff"/>' % STROKE,
    "gamepad": '<path d="M9 10h14c3.5 0 5.5 3 6 7l.5 4c.3 2.5-2.5 4-4.3 2.2L21.5 20h-11l-3.7 3.2'
               'C5 25 2.2 23.5 2.5 21l.5-4c.5-4 2.5-7 6-7z" %s/>'
               '<line x1="9" y1="13" x2="9" y2="17" %s/><line x1="7" y1="15" x2="11" y2="15" %s/>'
               '<circle cx="22" cy="13.5" r="1.2" fill="#fff"/>'
               '<circle cx="24.5" cy="16" r="1.2" fill="#fff"/>' % (STROKE, STROKE, STROKE),
    "tv": '<rect x="4" y="6" width="24" height="16" rx="2" %s/>'
          '<line x1="12" y1="26" x2="20" y2="26" %s/><line x1="16" y1="22" x2="16" y2="26" %s/>'
          % (STROKE, STROKE, STROKE),
    "settop": '<rect x="5" y="4" width="22" height="14" rx="1.5" %s/>'
              '<rect x="9" y="22" width="14" height="5" rx="1.5" fill="#fff"/>' % STROKE,
    "film": '<rect x="5" y="6" width="22" height="20" rx="2" %s/>'
            '<line x1="10" y1="6" x2="10" y2="26" %s/><line x1="22" y1="6" x2="22" y2="26" %s/>'
            % (STROKE, STROKE, STROKE)
            + "".join('<rect x="6.5" y="%g" width="2" height="2" fill="#fff"/>'
                      '<rect x="23.5" y="%g" width="2" height="2" fill="#fff"/>' % (y, y)
                      for y in (9, 15, 21)),
    "note": '<path d="M12 23V8l12-3v15" %s/>'
            '<circle cx="9.5" cy="23" r="3" fill="#fff"/>'
            '<circle cx="21.5" cy="20" r="3" fill="#fff"/>' % STROKE,
    "picture": '<rect x="4" y="7" width="24" height="18" rx="2" %s/>'
               '<path d="M7 22l6-7 4 4.5 3-3 5 5.5z" fill="#fff"/>'
               '<circle cx="21.5" cy="11.5" r="2" fill="#fff"/>' % STROKE,
    "hd": '<rect x="4" y="6" width="24" height="16" rx="2" %s/>'
          '<line x1="12" y1="26" x2="20" y2="26" %s/>'
          '<text x="16" y="18.5" font-family="DejaVu Sans" font-weight="bold" font-size="9" '
          'fill="#fff" text-anchor="middle">HD</text>' % (STROKE, STROKE),
    "user": '<circle cx="16" cy="11" r="5" %s/>'
            '<path d="M6 27c1-6 5-9 10-9s9 3 10 9" %s/>' % (STROKE, STROKE),
    "star": '<path d="M16 3l3.8 8.2 8.9 1-6.6 6.1 1.8 8.8L16 22.6l-7.9 4.5 1.8-8.8-6.6-6.1 '
            '8.9-1z" fill="#fff"/>',
}


def tile(colour, body):
    return ('<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 32 32">'
            '<rect x="0.5" y="0.5" width="31" height="31" rx="6" fill="%s"/>%s</svg>\n'
            % (colour, body))


def glyph_icon(colour, glyph):
    return tile(colour, GLYPHS[glyph])


def label_icon(colour, label, glyph=None):
    """A format: its short name, with a small mark of its kind above."""
    size = 11 if len(label) <= 3 else 9 if len(label) <= 4 else 7.5
    mark = {"film": '<rect x="7" y="5" width="18" height="2.5" rx="1" fill="#fff" opacity=".7"/>'
                    + "".join('<rect x="%g" y="5" width="1.5" height="2.5" fill="%s"/>'
                              % (x, colour) for x in (10, 14, 18, 22)),
            "note": '<path d="M14.5 11V4.5l5-1.2v5.5" fill="none" stroke="#fff" '
                    'stroke-width="1.3" opacity=".8"/><circle cx="13.3" cy="11" r="1.6" '
                    'fill="#fff" opacity=".8"/><circle cx="18.3" cy="8.8" r="1.6" fill="#fff" '
                    'opacity=".8"/>',
            "picture": '<path d="M10 10l4-5 3 3 2-2 3 4z" fill="#fff" opacity=".8"/>',
            "hd": '<text x="16" y="10.5" font-family="DejaVu Sans" font-weight="bold" '
                  'font-size="7" fill="#fff" opacity=".8" text-anchor="middle">HD</text>',
            None: ""}[glyph]
    text = ('<text x="16" y="23" font-family="DejaVu Sans Condensed, DejaVu Sans" '
            'font-weight="bold" font-size="%g" fill="#fff" text-anchor="middle">%s</text>'
            % (size, label))
    return tile(colour, mark + text)


# Small profile icons by base name.
LABELS = {
    "asf": "ASF", "avi": "AVI", "divx": "DIVX", "dv": "DV", "dvd": "DVD", "mov": "MOV",
    "mpeg-4": "MP4", "mpeg-1": "MPG1", "mpeg-2": "MPG2", "h.264": "H.264", "rm": "RM",
    "vcd": "VCD", "wmv": "WMV", "xvid": "XVID", "mkv": "MKV", "webm": "WEBM", "flv": "FLV",
    "swf": "SWF", "3gp": "3GP",
}
AUDIO_LABELS = {"ac3": "AC3", "aiff": "AIFF", "alac": "ALAC", "flac": "FLAC", "au": "AU",
                "m4a": "M4A", "mp2": "MP2", "mp3": "MP3", "ogg": "OGG", "ra": "RA", "wav": "WAV",
                "wma": "WMA"}
PICTURE_LABELS = {"bmp": "BMP", "gif": "GIF", "jpeg": "JPG", "png": "PNG"}
HD_LABELS = {"hdasf": "ASF", "hdavi": "AVI", "hdh.264": "H.264", "hdmov": "MOV",
             "hdmpeg-2": "MPG2", "hdmpeg-4": "MP4", "hdrm": "RM", "hdts": "TS", "hdwmv": "WMV",
             "hdxvid": "XVID"}
DEVICE_GLYPHS = {
    "android": "phone", "galaxys3": "phone", "galaxytab": "tablet", "appletv": "settop",
    "appletvhd": "settop", "ipad": "tablet", "ipad2": "tablet", "ipadmini": "tablet",
    "iphone": "phone", "iphone4": "phone", "iphone5": "phone", "ipod": "player",
    "ipodtouch": "phone", "blackberry": "keypad", "wmvmobile": "keypad", "archos": "tablet",
    "zen": "player", "iriver": "player", "zune": "player", "ps3": "gamepad", "psp": "handheld",
    "xbox360": "gamepad",
}
CONSOLES = {"ps3", "psp", "xbox360"}

GROUP_ICONS = {
    "group_user": (USER, "user"), "group_video": (VIDEO, "film"), "group_audio": (AUDIO, "note"),
    "group_android": (DEVICE, "phone"), "group_apple_tv": (DEVICE, "settop"),
    "group_hd": (HD, "hd"), "group_ipad": (DEVICE, "tablet"), "group_iphone": (DEVICE, "phone"),
    "group_ipod": (DEVICE, "player"), "group_phone": (DEVICE, "keypad"),
    "group_pic_anim": (PICTURE, "picture"), "group_portable": (DEVICE, "player"),
    "group_ps3": (CONSOLE, "gamepad"), "group_psp": (CONSOLE, "handheld"),
    "group_xbox": (CONSOLE, "gamepad"), "group_zune": (DEVICE, "player"),
}


def small_icon(name):
    if name in LABELS:
        return label_icon(VIDEO, LABELS[name], "film")
    if name in AUDIO_LABELS:
        return label_icon(AUDIO, AUDIO_LABELS[name], "note")
    if name in PICTURE_LABELS:
        return label_icon(PICTURE, PICTURE_LABELS[name], "picture")
    if name in HD_LABELS:
        return label_icon(HD, HD_LABELS[name], "hd")
    return glyph_icon(CONSOLE if name in CONSOLES else DEVICE, DEVICE_GLYPHS[name])


def render(svg_text, name, png, size):
    SVG.mkdir(exist_ok=True)
    source = SVG / (name + ".svg")
    source.write_text(svg_text, encoding="utf-8")
    png.parent.mkdir(exist_ok=True)
    # Twice the size beside it, for HiDPI screens.
    for scale, target in ((1, png), (2, png.with_name(png.stem + "@2x.png"))):
        subprocess.run(["rsvg-convert", "-w", str(size * scale), "-h", str(size * scale),
                        "-o", str(target), str(source)], check=True)


def main():
    catalogue = (OUT / "Group.xml").read_text(encoding="utf-8")
    names = sorted(set(re.findall(r'<IconName value="(?:big|small)/([^"]+)\.png"', catalogue)))
    for name in names:
        render(small_icon(name), name, OUT / "small" / (name + ".png"), 32)
    for name, (colour, glyph) in GROUP_ICONS.items():
        render(glyph_icon(colour, glyph), name, OUT / (name + ".png"), 48)
    render('<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 32 32">'
           '<path d="M16 2l4.2 9 9.8 1.1-7.3 6.7 2 9.7L16 23.6l-8.7 4.9 2-9.7L2 12.1l9.8-1.1z" '
           'fill="#f2b01e" stroke="#b57a00" stroke-width="1.2" stroke-linejoin="round"/></svg>\n',
           "recommend", OUT / "recommend.png", 16)


if __name__ == "__main__":
    main()
