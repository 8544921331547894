#!/usr/bin/env python3
"""Draws the information illustrations and the report page background.

Run from anywhere:  python3 resources/make_art.py [--png]
Writes resources/info/*.svg, resources/info/index.txt,
resources/report/PrintingBackground.svg and resources/art.qrc.  With --png it also renders
resources/report/PrintingBackground.png (2550 x 3300, US Letter at 300 dpi)
with rsvg-convert and reduces it to a few colours with pngquant and optipng,
the same commands as:
    rsvg-convert -w 2550 -h 3300 -b white PrintingBackground.svg -o full.png
    pngquant --speed 1 --output PrintingBackground.png 16 full.png
    optipng -o5 PrintingBackground.png

The drawings keep to what Qt SVG renders (SVG Tiny 1.2): presentation
attributes only, no CSS, no markers, no filters, no masks, no patterns.
Arrowheads are small polygons.
"""

import math
import os
import subprocess
import sys
import tempfile

HERE = os.path.dirname(os.path.abspath(__file__))
INFO_DIR = os.path.join(HERE, "info")
REPORT_DIR = os.path.join(HERE, "report")

W, H = 640, 420
FONT = "DejaVu Sans, Arial, sans-serif"
INK = "#333333"
ACC = "#1f6fb2"        # the measured quantity
ACC_LT = "#d6e6f5"     # tint of the accent for highlighted parts
FOAM = "#f3f3f1"       # foam panels of a block
CORE = "#c9c9c9"       # concrete core
CORE_DK = "#b3b3b3"    # footing and slab concrete
GROUND = "#8c8c8c"
MUTED = "#777777"

# ---------------------------------------------------------------- helpers


def f(v):
    """Number to compact SVG text."""
    if isinstance(v, str):
        return v
    r = round(v, 1)
    if r == int(r):
        return str(int(r))
    return "%.1f" % r


def esc(s):
    return s.replace("&", "&amp;").replace("<", "&lt;").replace(">", "&gt;")


def text_width(s, size, bold=False):
    """Rough advance width of DejaVu Sans text, for label boxes and layout checks."""
    w = 0.0
    for ch in s:
        if ch in "il.,:;'|!":
            w += 0.30
        elif ch in "fjrt()[]/":
            w += 0.40
        elif ch == " ":
            w += 0.32
        elif ch in "mwMW":
            w += 0.95
        elif ch.isdigit():
            w += 0.64
        elif ch.isupper():
            w += 0.70
        elif ch in "\"°×":
            w += 0.50
        else:
            w += 0.60
    return w * size * (1.08 if bold else 1.0)


class Svg:
    def __init__(self, w=W, h=H):
        self.w, self.h = w, h
        self.parts = []

    def add(self, s):
        self.parts.append(s)

    # primitives -----------------------------------------------------------
    def rect(self, x, y, w, h, fill="none", stroke=INK, sw=2, rx=0, extra=""):
        r = ' rx="%s"' % f(rx) if rx else ""
        self.add('<rect x="%s" y="%s" width="%s" height="%s"%s fill="%s" stroke="%s" stroke-width="%s"%s/>'
                 % (f(x), f(y), f(w), f(h), r, fill, stroke, f(sw), extra))

    def line(self, x1, y1, x2, y2, stroke=INK, sw=2, dash=None):
        d = ' stroke-dasharray="%s"' % dash if dash else ""
        self.add('<line x1="%s" y1="%s" x2="%s" y2="%s" stroke="%s" stroke-width="%s"%s/>'
                 % (f(x1), f(y1), f(x2), f(y2), stroke, f(sw), d))

    def poly(self, pts, fill="none", stroke=INK, sw=2, closed=True, join="miter", dash=None):
        tag = "polygon" if closed else "polyline"
        p = " ".join("%s,%s" % (f(x), f(y)) for x, y in pts)
        d = ' stroke-dasharray="%s"' % dash if dash else ""
        self.add('<%s points="%s" fill="%s" stroke="%s" stroke-width="%s" stroke-linejoin="%s"%s/>'
                 % (tag, p, fill, stroke, f(sw), join, d))

    def path(self, d, fill="none", stroke=INK, sw=2, join="miter", cap="butt", dash=None):
        da = ' stroke-dasharray="%s"' % dash if dash else ""
        self.add('<path d="%s" fill="%s" stroke="%s" stroke-width="%s" stroke-linejoin="%s" stroke-linecap="%s"%s/>'
                 % (d, fill, stroke, f(sw), join, cap, da))

    def circle(self, cx, cy, r, fill="none", stroke=INK, sw=2):
        self.add('<circle cx="%s" cy="%s" r="%s" fill="%s" stroke="%s" stroke-width="%s"/>'
                 % (f(cx), f(cy), f(r), fill, stroke, f(sw)))

    def text(self, x, y, s, size=15, anchor="start", fill=INK, bold=False, italic=False):
        b = ' font-weight="bold"' if bold else ""
        i = ' font-style="italic"' if italic else ""
        self.add('<text x="%s" y="%s" font-family="%s" font-size="%s" fill="%s" text-anchor="%s"%s%s>%s</text>'
                 % (f(x), f(y), FONT, f(size), fill, anchor, b, i, esc(s)))

    def label(self, x, y, s, size=15, fill=INK, bold=False, anchor="middle", pad=3, bg="#ffffff"):
        """Text centred on (x, y) over a white box, so it reads across lines."""
        tw = text_width(s, size, bold)
        if anchor == "middle":
            x0 = x - tw / 2
        elif anchor == "start":
            x0 = x
        else:
            x0 = x - tw
        self.rect(x0 - pad, y - size * 0.62 - pad, tw + 2 * pad, size * 1.2 + 2 * pad, fill=bg, stroke="none", sw=0)
        self.text(x, y + size * 0.36, s, size, anchor, fill, bold)

    # dimensions ------------------------------------------------------------
    def arrowhead(self, x, y, ang, color=ACC, length=11, half=4.5):
        """Filled arrowhead with its tip at (x, y), pointing along ang (radians)."""
        ca, sa = math.cos(ang), math.sin(ang)
        bx, by = x - ca * length, y - sa * length
        px, py = -sa * half, ca * half
        self.poly([(x, y), (bx + px, by + py), (bx - px, by - py)], fill=color, stroke="none", sw=0)

    def dim(self, x1, y1, x2, y2, text=None, off=0, color=ACC, size=15, ext=True, lab_at=0.5,
            bold=True, gap=4):
        """Dimension between two points, drawn offset by `off` to the left of the direction p1->p2."""
        dx, dy = x2 - x1, y2 - y1
        ln = math.hypot(dx, dy)
        ux, uy = dx / ln, dy / ln
        nx, ny = uy, -ux  # left normal in screen coordinates (y down)
        ax, ay = x1 + nx * off, y1 + ny * off
        bx, by = x2 + nx * off, y2 + ny * off
        if ext and off:
            s = 1 if off > 0 else -1
            self.line(x1 + nx * gap * s, y1 + ny * gap * s, ax + nx * 6 * s, ay + ny * 6 * s, color, 1.2)
            self.line(x2 + nx * gap * s, y2 + ny * gap * s, bx + nx * 6 * s, by + ny * 6 * s, color, 1.2)
        self.line(ax + ux * 9, ay + uy * 9, bx - ux * 9, by - uy * 9, color, 2)
        ang = math.atan2(dy, dx)
        self.arrowhead(bx, by, ang, color)
        self.arrowhead(ax, ay, ang + math.pi, color)
        if text:
            lx = ax + (bx - ax) * lab_at
            ly = ay + (by - ay) * lab_at
            self.label(lx, ly, text, size, color, bold)


    def leader(self, x1, y1, x2, y2, text, color=INK, size=14, anchor="start", dot=True, bold=False):
        """Label at (x1, y1) with a thin leader line from its nearer end to the point (x2, y2)."""
        tw = text_width(text, size, bold)
        if anchor == "start":
            t0, t1 = x1, x1 + tw
        elif anchor == "end":
            t0, t1 = x1 - tw, x1
        else:
            t0, t1 = x1 - tw / 2, x1 + tw / 2
        lx = t1 + 5 if x2 > t1 else t0 - 5
        self.line(lx, y1, x2, y2, color, 1.2)
        if dot:
            self.circle(x2, y2, 3, fill=color, stroke="none", sw=0)
        self.text(x1, y1 + size * 0.36, text, size, anchor, color, bold)

    def finish(self, title, caption):
        head = ['<?xml version="1.0" encoding="UTF-8"?>',
                '<svg xmlns="http://www.w3.org/2000/svg" version="1.1" width="%d" height="%d" viewBox="0 0 %d %d">'
                % (self.w, self.h, self.w, self.h),
                '<title>%s</title>' % esc(title),
                '<rect x="0" y="0" width="%d" height="%d" fill="#ffffff" stroke="none"/>' % (self.w, self.h)]
        head.append('<text x="24" y="36" font-family="%s" font-size="20" font-weight="bold" fill="%s">%s</text>'
                    % (FONT, INK, esc(title)))
        tail = ['<line x1="24" y1="378" x2="616" y2="378" stroke="#bbbbbb" stroke-width="1"/>',
                '<text x="320" y="403" font-family="%s" font-size="15" fill="%s" text-anchor="middle">%s</text>'
                % (FONT, INK, esc(caption)),
                '</svg>', '']
        return "\n".join(head + self.parts + tail)


# building blocks of the drawings ---------------------------------------------


def wall_elevation(s, x, y_bottom, width, courses, ch=24, bw=74, fill=FOAM, start_offset=0.0,
                   highlight=None, hl_fill=ACC_LT, stroke=INK):
    """Front view of block courses, bottom course first, with staggered vertical joints.

    highlight: set of course indexes (0 = bottom) drawn in the accent tint.
    Returns the y of the top of the wall.
    """
    top = y_bottom - courses * ch
    for c in range(courses):
        yb = y_bottom - c * ch
        fc = hl_fill if highlight and c in highlight else fill
        s.rect(x, yb - ch, width, ch, fill=fc, stroke="none", sw=0)
        off = (start_offset + (0.5 if c % 2 else 0.0)) * bw
        jx = x + bw - off if off > 0 else x + bw
        while jx < x + width - 6:
            if jx > x + 6:
                s.line(jx, yb - ch, jx, yb, stroke, 1.2)
            jx += bw
    for c in range(1, courses):
        s.line(x, y_bottom - c * ch, x + width, y_bottom - c * ch, stroke, 1.2)
    s.rect(x, top, width, courses * ch, stroke=stroke, sw=2)
    return top


def footing(s, x, y, w, h=22, label=True, size=14):
    s.rect(x, y, w, h, fill=CORE_DK, stroke=INK, sw=2)
    if label:
        s.text(x + w / 2, y + h / 2 + size * 0.36, "footing", size, "middle", INK)


def ground(s, x1, x2, y):
    s.line(x1, y, x2, y, GROUND, 2)
    k = x1 + 6
    while k < x2 - 6:
        s.line(k, y + 1, k - 7, y + 8, GROUND, 1.2)
        k += 14


def plan_walls(s, paths, thick=16, closed=None, core=True):
    """Plan view of ICF walls: each path (list of points) is drawn as a band of foam with a
    concrete core and dark outlines.  Drawing the three layers in passes makes junctions
    (corners and T-intersections) merge cleanly."""
    closed = closed or [False] * len(paths)

    def d_of(pts, cl):
        d = "M" + " L".join("%s %s" % (f(x), f(y)) for x, y in pts)
        return d + (" Z" if cl else "")

    for pts, cl in zip(paths, closed):
        s.path(d_of(pts, cl), stroke=INK, sw=thick + 4, join="miter", cap="butt")
    for pts, cl in zip(paths, closed):
        s.path(d_of(pts, cl), stroke=FOAM, sw=thick, join="miter", cap="butt")
    if core:
        for pts, cl in zip(paths, closed):
            s.path(d_of(pts, cl), stroke=CORE, sw=thick * 0.42, join="miter", cap="butt")


def plan_end_caps(s, pts_list, thick=16):
    """Close the open ends of plan walls with a short dark line."""
    for (x1, y1), (x2, y2) in pts_list:
        dx, dy = x2 - x1, y2 - y1
        ln = math.hypot(dx, dy)
        nx, ny = -dy / ln * (thick / 2 + 2), dx / ln * (thick / 2 + 2)
        s.line(x1 + nx, y1 + ny, x1 - nx, y1 - ny, INK, 2)


def marker(s, x, y, txt, fill=ACC, r=12, size=13):
    s.circle(x, y, r, fill=fill, stroke="#ffffff", sw=2)
    s.text(x, y + size * 0.36, txt, size, "middle", "#ffffff", True)


def section_wall(s, x, y_bottom, courses, ch=26, foam=14, core=30, steps=None):
    """Cross-section through a straight wall: two foam panels and the concrete core.
    Returns (x_outer_left, x_core_left, x_core_right, x_outer_right, y_top)."""
    top = y_bottom - courses * ch
    xl, xcl, xcr, xr = x, x + foam, x + foam + core, x + 2 * foam + core
    s.rect(xcl, top, core, courses * ch, fill=CORE, stroke="none", sw=0)
    s.rect(xl, top, foam, courses * ch, fill=FOAM, stroke=INK, sw=2)
    s.rect(xcr, top, foam, courses * ch, fill=FOAM, stroke=INK, sw=2)
    for c in range(1, courses):
        yy = y_bottom - c * ch
        s.line(xl, yy, xl + foam, yy, INK, 1.2)
        s.line(xcr, yy, xr, yy, INK, 1.2)
    return xl, xcl, xcr, xr, top


def person(s, cx, cy, scale=1.0, fill=INK, hat=ACC):
    """A simple worker figure in a hard hat; (cx, cy) is the top of the head."""
    r = 9 * scale
    hy = cy + r + 2 * scale
    s.circle(cx, hy, r, fill=fill, stroke="none", sw=0)
    # hard hat: a dome over the head and a brim
    s.path("M%s %s A%s %s 0 0 1 %s %s Z" % (f(cx - r - 1), f(hy - 1), f(r + 1), f(r + 1), f(cx + r + 1), f(hy - 1)),
           fill=hat, stroke="none", sw=0)
    s.rect(cx - r - 4 * scale, hy - 3 * scale, 2 * r + 8 * scale, 3 * scale, fill=hat, stroke="none", sw=0)
    w = 15 * scale
    k = 8 * scale
    top = hy + r + 3 * scale
    h = 30 * scale
    s.path("M%s %s L%s %s Q%s %s %s %s L%s %s Q%s %s %s %s L%s %s Z" % (
        f(cx - w), f(top + h), f(cx - w), f(top + k), f(cx - w), f(top), f(cx - w + k), f(top),
        f(cx + w - k), f(top), f(cx + w), f(top), f(cx + w), f(top + k), f(cx + w), f(top + h)),
        fill=fill, stroke="none", sw=0)


# ---------------------------------------------------------------- wall screen


def wall_height():
    s = Svg()
    ground(s, 40, 600, 318)
    footing(s, 130, 318, 300, 28)
    top = wall_elevation(s, 160, 318, 240, 6, ch=36, bw=108)
    s.dim(400, 318, 400, top, "8' 0\"", off=-58)
    s.dim(160, 318 - 36, 160, 318 - 72, "16\"", off=40, size=14, bold=False)
    s.leader(470, 130, 402, top + 1, "top of wall", INK, 14, dot=True)
    s.leader(470, 300, 431, 318, "top of footing", INK, 14)
    s.text(40, 80, "6 courses of 16\" = 8' 0\"", 15, "start", MUTED)
    return s.finish("Wall height", "Wall height: from the top of the footing to the top of the wall")


def wall_length():
    s = Svg()
    # a house in plan with a notch, its outside faces dimensioned run by run
    pts = [(120, 100), (420, 100), (420, 200), (520, 200), (520, 320), (120, 320)]
    plan_walls(s, [pts], thick=14, closed=[True])
    s.dim(120, 100, 420, 100, "40'", off=26)
    s.dim(420, 100, 420, 200, "14'", off=30)
    s.dim(420, 100, 520, 100, "12'", off=26, ext=False)
    s.line(520, 190, 520, 68, ACC, 1.2)
    s.line(420, 96, 420, 68, ACC, 1.2)
    s.dim(520, 200, 520, 320, "16'", off=30)
    s.dim(520, 320, 120, 320, "52'", off=26)
    s.dim(120, 320, 120, 100, "30'", off=30)
    s.text(290, 200, "40 + 14 + 12 + 16 + 52 + 30", 15, "middle", INK)
    s.text(290, 226, "= 164 linear feet", 17, "middle", ACC, True)
    return s.finish("Wall length", "Wall length: the lengths of all wall runs added together, in feet")


def in_out_corners():
    s = Svg()
    pts = [(110, 100), (390, 100), (390, 200), (500, 200), (500, 320), (110, 320)]
    plan_walls(s, [pts], thick=14, closed=[True])
    # outside corners: the corner points away from the building
    for (x, y) in [(110, 100), (390, 100), (500, 200), (500, 320), (110, 320)]:
        marker(s, x + (-20 if x < 300 else 20), y + (-20 if y < 210 else 20), "O")
    # inside corner at (390, 200): the corner points into the building
    marker(s, 390 + 22, 200 - 22, "I", fill=INK)
    s.text(150, 160, "building", 15, "start", MUTED, italic=False)
    # legend
    marker(s, 545, 95, "O")
    s.text(565, 100, "outside", 14, "start", INK)
    marker(s, 545, 130, "I", fill=INK)
    s.text(565, 135, "inside", 14, "start", INK)
    s.text(250, 230, "5 outside + 1 inside", 16, "middle", ACC, True)
    s.text(250, 254, "90° corners", 15, "middle", INK)
    return s.finish("Inside and outside corners",
                    "Count the 90° corners: outside corners point out, inside corners in")


def arc_mark(s, cx, cy, r, a1, a2, txt, color=ACC, lx=None, ly=None, size=14):
    """Angle arc centred on (cx, cy) from a1 to a2 (degrees, screen y down)."""
    p1 = (cx + r * math.cos(math.radians(a1)), cy + r * math.sin(math.radians(a1)))
    p2 = (cx + r * math.cos(math.radians(a2)), cy + r * math.sin(math.radians(a2)))
    sweep = 1 if (a2 - a1) % 360 < 180 else 0
    s.path("M%s %s A%s %s 0 0 %d %s %s" % (f(p1[0]), f(p1[1]), f(r), f(r), sweep, f(p2[0]), f(p2[1])),
           stroke=color, sw=2)
    if txt:
        am = math.radians((a1 + ((a2 - a1) % 360) / 2))
        tx = lx if lx is not None else cx + (r + 16) * math.cos(am)
        ty = ly if ly is not None else cy + (r + 16) * math.sin(am)
        s.label(tx, ty, txt, size, color, True, pad=1)


def angle_info():
    s = Svg()
    # a straight wall with a 45-degree bay in plan
    y0 = 290
    d = 80
    turns = [(190, y0), (190 + d, y0 - d), (370, y0 - d), (370 + d, y0)]
    pts = [(50, y0)] + turns + [(590, y0)]
    plan_walls(s, [pts], thick=14)
    plan_end_caps(s, [((50, y0), (190, y0)), ((590, y0), (370 + d, y0))], 14)
    for i, (cx, cy) in enumerate(turns):
        marker(s, cx, cy + (30 if cy == y0 else -32), str(i + 1))
    # the 45-degree angle shown at the first turn
    s.line(199, y0, 300, y0, ACC, 1.5, dash="6 4")
    arc_mark(s, 190, y0, 70, 315, 360, None)
    s.label(286, y0 - 16, "45°", 15, ACC, True, pad=1)
    s.text(320, 100, "Bay wall in plan: 4 angle locations", 16, "middle", ACC, True)
    s.text(320, 355, "45° angle blocks: 4\", 6\" and 8\" walls", 14, "middle", MUTED)
    return s.finish("45° angles", "45° angles: count every place where the wall turns 45 degrees")


def t_block():
    s = Svg()
    main = [(60, 150), (580, 150)]
    b1 = [(230, 150), (230, 320)]
    b2 = [(440, 150), (440, 320)]
    plan_walls(s, [main, b1, b2], thick=16)
    plan_end_caps(s, [((60, 150), (580, 150)), ((580, 150), (60, 150)),
                      ((230, 320), (230, 150)), ((440, 320), (440, 150))], 16)
    for x in (230, 440):
        s.rect(x - 40, 138, 80, 24, fill="none", stroke=ACC, sw=3)
        marker(s, x, 110, "T")
    s.text(320, 80, "2 T-block locations", 16, "middle", ACC, True)
    s.text(335, 245, "inside wall", 14, "middle", MUTED)
    s.text(540, 190, "outside wall", 14, "middle", MUTED)
    s.text(320, 352, "T-blocks: 6\" and 8\" walls", 14, "middle", MUTED)
    return s.finish("T-blocks", "T-blocks: count every place where a wall meets another wall in a T")


def brick_stack(s, x, y_bottom, y_top, w=22, ch=12):
    y = y_bottom
    s.rect(x, y_top, w, y_bottom - y_top, fill="#e8d9cf", stroke=INK, sw=1.5)
    while y - ch > y_top + 1:
        y -= ch
        s.line(x, y, x + w, y, INK, 1)


def corbel_info():
    s = Svg()
    s.text(160, 76, "Section", 15, "middle", MUTED, True)
    ground(s, 40, 320, 320)
    footing(s, 80, 320, 150, 24)
    ch = 25
    xl, xcl, xcr, xr, top = section_wall(s, 130, 320, 8, ch=ch, foam=12, core=28)
    # corbel course (second course): its outer side flares out into a ledge for the brick
    cy_b = 320 - ch
    cy_t = cy_b - ch
    s.poly([(xr, cy_b), (xr + 12, cy_b), (xr + 44, cy_t), (xr, cy_t)], fill=ACC_LT, stroke=ACC, sw=2)
    s.poly([(xr, cy_b - 8), (xr + 30, cy_t), (xr, cy_t)], fill=CORE, stroke=INK, sw=1.2)
    brick_stack(s, xr + 6, cy_t, top + 8, w=34)
    s.leader(250, 150, xr + 40, 160, "brick", INK, 14)
    s.leader(250, 292, xr + 28, cy_t + 8, "corbel course", ACC, 14, bold=True)
    # right: elevation with the corbel run
    ex, eb = 390, 300
    s.text(490, 76, "Elevation", 15, "middle", MUTED, True)
    ground(s, 370, 610, eb)
    wall_elevation(s, ex, eb, 200, 8, ch=22, bw=66, highlight={1})
    s.dim(ex, eb - 22, ex + 200, eb - 22, None, off=-22 - 20)
    s.text(ex + 100, eb + 44, "linear feet of corbel", 14, "middle", ACC, True)
    return s.finish("Corbel", "Corbel: linear feet of wall that gets a corbel (brick-ledge) course")


def curb_info():
    s = Svg()
    s.text(160, 76, "Section", 15, "middle", MUTED, True)
    ch = 26
    ground(s, 40, 320, 320)
    footing(s, 70, 320, 150, 24)
    # wall section: outside on the left, the slab side on the right
    xl, xcl, xcr, xr, top = section_wall(s, 120, 320, 7, ch=ch, foam=12, core=28)
    cy_b = 320 - 3 * ch
    cy_t = cy_b - ch
    s.rect(xr, cy_t, 30, ch, fill=ACC_LT, stroke=ACC, sw=2)
    s.rect(xr, cy_t - 20, 150, 20, fill=CORE_DK, stroke=INK, sw=2)
    s.text(xr + 95, cy_t - 5, "slab", 14, "middle", INK)
    s.leader(215, 272, xr + 16, cy_b - 6, "curb course", ACC, 14, bold=True)
    # right: plan of the curb course with one corner
    s.text(500, 76, "Plan", 15, "middle", MUTED, True)
    x0, y0, x1, y1 = 420, 110, 590, 290
    plan_walls(s, [[(x0, y0), (x0, y1), (x1, y1)]], thick=14)
    plan_end_caps(s, [((x0, y0), (x0, y1)), ((x1, y1), (x0, y1))], 14)
    s.poly([(x0 + 9, y0), (x0 + 17, y0), (x0 + 17, y1 - 17), (x1, y1 - 17), (x1, y1 - 9), (x0 + 9, y1 - 9)],
           fill=ACC_LT, stroke=ACC, sw=1.5)
    marker(s, x0 + 34, y1 - 34, "C")
    s.text(x0 + 54, y1 - 29, "curb corner", 13, "start", INK)
    s.dim(x0, y0, x0, y1, None, off=-30)
    s.dim(x0, y1, x1, y1, None, off=-30)
    s.text(505, 345, "linear feet of curb", 14, "middle", ACC, True)
    s.text(505, 160, "slab side", 13, "middle", MUTED)
    return s.finish("Curb", "Curb: linear feet of curb course, and its corners")


def taper_info():
    s = Svg()
    s.text(165, 76, "Section", 15, "middle", MUTED, True)
    ch = 34
    ground(s, 40, 320, 330)
    footing(s, 70, 330, 160, 24)
    xl, xcl, xcr, xr, top = section_wall(s, 120, 330, 6, ch=ch, foam=16, core=34)
    yb = top + ch
    # tapered top course: the inside panel leans out, so the concrete widens toward the top
    s.rect(xcl, top - 1, xr - xcl + 2, ch + 1, fill="#ffffff", stroke="none", sw=0)
    s.poly([(xcl, yb), (xcr, yb), (xcr + 22, top), (xcl, top)], fill=CORE, stroke="none", sw=0)
    s.poly([(xcr, yb), (xr, yb), (xr + 22, top), (xcr + 22, top)], fill=ACC_LT, stroke=ACC, sw=2)
    s.line(xcl, yb, xcl, top, INK, 2)
    # sill plate on the wide top and a floor joist bearing on it
    s.rect(xl, top - 10, xr + 22 - xl, 10, fill="#e9e1cf", stroke=INK, sw=1.5)
    s.rect(xcl, top - 34, 180, 24, fill="#e9e1cf", stroke=INK, sw=1.5)
    s.text(xcl + 110, top - 17, "floor joist", 13, "middle", INK)
    s.leader(235, top + 52, xr + 14, yb - 12, "tapered course", ACC, 14, bold=True)
    s.leader(235, top + 82, xcr + 8, top + 10, "wider top", INK, 14)
    # right: elevation with the tapered run
    ex, eb = 410, 300
    s.text(505, 76, "Elevation", 15, "middle", MUTED, True)
    ground(s, 390, 620, eb)
    wtop = wall_elevation(s, ex, eb, 190, 7, ch=22, bw=60, highlight={6})
    s.dim(ex, wtop, ex + 190, wtop, None, off=24)
    s.text(ex + 95, wtop - 44, "linear feet of taper", 14, "middle", ACC, True)
    s.text(505, 340, "Tapered blocks: 6\" and 8\" walls", 14, "middle", MUTED)
    return s.finish("Tapered top", "Tapered: linear feet of wall topped with a tapered course")


def radius_info():
    s = Svg()
    cx, cy = 170, 330
    R = 230
    a1, a2 = -80, -10  # degrees
    pts = []
    for i in range(0, 41):
        a = math.radians(a1 + (a2 - a1) * i / 40)
        pts.append((cx + R * math.cos(a), cy + R * math.sin(a)))
    # straight walls joining the curve
    p0, p1 = pts[0], pts[-1]
    t0 = (math.cos(math.radians(a1 - 90)), math.sin(math.radians(a1 - 90)))
    s0 = (p0[0] + t0[0] * 110, p0[1] + t0[1] * 110)
    t1 = (math.cos(math.radians(a2 + 90)), math.sin(math.radians(a2 + 90)))
    s1 = (p1[0] + t1[0] * 70, p1[1] + t1[1] * 70)
    plan_walls(s, [[s0] + pts + [s1]], thick=14)
    plan_end_caps(s, [(s0, p0), (s1, p1)], 14)
    # radius line
    am = math.radians(-45)
    rx, ry = cx + R * math.cos(am), cy + R * math.sin(am)
    s.circle(cx, cy, 4, fill=ACC, stroke="none", sw=0)
    s.line(cx, cy, rx - 9 * math.cos(am), ry - 9 * math.sin(am), ACC, 2, dash="8 5")
    s.arrowhead(rx, ry, am)
    s.label(cx + 0.45 * R * math.cos(am) - 26, cy + 0.45 * R * math.sin(am) - 14, "radius (ft)", 14, ACC, True)
    s.text(cx - 8, cy + 22, "centre", 13, "middle", INK)
    # arc length of the curved run
    Ro = R + 40
    arc = []
    for i in range(0, 41):
        a = math.radians(a1 + (a2 - a1) * i / 40)
        arc.append((cx + Ro * math.cos(a), cy + Ro * math.sin(a)))
    s.poly(arc[1:-1], stroke=ACC, sw=2, closed=False, join="round")
    s.arrowhead(arc[0][0], arc[0][1], math.radians(a1 - 90))
    s.arrowhead(arc[-1][0], arc[-1][1], math.radians(a2 + 90))
    for a in (a1, a2):
        ar = math.radians(a)
        s.line(cx + (R + 12) * math.cos(ar), cy + (R + 12) * math.sin(ar),
               cx + (Ro + 8) * math.cos(ar), cy + (Ro + 8) * math.sin(ar), ACC, 1.2)
    s.label(500, 110, "linear feet of", 14, ACC, True)
    s.label(500, 130, "radius wall", 14, ACC, True)
    s.text(620, 345, "Radius blocks: 6\" walls", 14, "end", MUTED)
    return s.finish("Radius wall", "Radius: linear feet of curved wall, and its radius in feet")


def buck_info():
    s = Svg()
    ground(s, 150, 610, 340)
    wall_elevation(s, 170, 340, 420, 9, ch=26, bw=80)
    wx, wy, ww, wh = 310, 170, 160, 110
    bt = 10
    s.rect(wx - bt, wy - bt, ww + 2 * bt, wh + 2 * bt, fill=ACC_LT, stroke="none", sw=0)
    s.rect(wx, wy, ww, wh, fill="#ffffff", stroke=ACC, sw=2)
    s.rect(wx - bt, wy - bt, ww + 2 * bt, wh + 2 * bt, fill="none", stroke=ACC, sw=2)
    s.line(wx + ww / 2, wy, wx + ww / 2, wy + wh, "#bbbbbb", 1.2)
    s.dim(wx - bt, wy - bt, wx + ww + bt, wy - bt, "width", off=26)
    s.dim(wx + ww + bt, wy - bt, wx + ww + bt, wy + wh + bt, "height", off=36)
    s.leader(34, 140, wx - bt + 1, wy - bt + 1, "buck: top", ACC, 14, bold=True)
    s.leader(34, 215, wx - bt + 2, wy + 55, "buck: side", ACC, 14, bold=True)
    s.leader(34, 300, wx + 40, wy + wh + bt - 2, "buck: sill", ACC, 14, bold=True)
    s.text(380, 76, "top, two sides and sill of every opening", 14, "middle", INK)
    return s.finish("Buck", "Buck: linear feet of buck framing the openings (top, sides and sill)")


def block_3d(s, x, y, w=150, h=50, d=26, fill=FOAM, stroke=INK, top_fill=None):
    """A straight block in a simple oblique view; (x, y) is the front bottom-left corner."""
    dx, dy = d * 0.8, -d * 0.6
    s.poly([(x, y - h), (x + dx, y - h + dy), (x + w + dx, y - h + dy), (x + w, y - h)],
           fill=top_fill or "#e6e6e3", stroke=stroke, sw=2)
    s.poly([(x + w, y), (x + w, y - h), (x + w + dx, y - h + dy), (x + w + dx, y + dy)],
           fill="#e0e0dc", stroke=stroke, sw=2)
    s.rect(x, y - h, w, h, fill=fill, stroke=stroke, sw=2)
    # the core seen at the top
    s.poly([(x + dx * 0.3 + 6, y - h + dy * 0.3), (x + w + dx * 0.3 - 6, y - h + dy * 0.3),
            (x + w + dx * 0.7 - 6, y - h + dy * 0.7), (x + dx * 0.7 + 6, y - h + dy * 0.7)],
           fill=CORE, stroke=stroke, sw=1.2)


def stepper(s, x, y, value):
    s.rect(x, y, 70, 34, fill="#ffffff", stroke=INK, sw=1.5, rx=3)
    s.text(x + 60, y + 23, value, 16, "end", INK, True)
    s.rect(x + 76, y, 22, 34, fill="#f4f4f4", stroke=INK, sw=1.5, rx=3)
    s.line(x + 76, y + 17, x + 98, y + 17, INK, 1.2)
    s.poly([(x + 87, y + 4), (x + 81, y + 13), (x + 93, y + 13)], fill=INK, stroke="none", sw=0)
    s.poly([(x + 87, y + 30), (x + 81, y + 21), (x + 93, y + 21)], fill=INK, stroke="none", sw=0)


def add_remove_straight():
    s = Svg()
    block_3d(s, 60, 190, w=180, h=60, d=30)
    s.dim(60, 190, 240, 190, "49\"", off=-26)
    s.dim(60, 190, 60, 130, "16\"", off=30)
    s.text(150, 100, "Straight block", 15, "middle", INK, True)
    # plus: extra blocks
    s.text(330, 100, "Add", 16, "start", ACC, True)
    block_3d(s, 330, 175, w=90, h=30, d=16, fill=ACC_LT)
    block_3d(s, 430, 175, w=90, h=30, d=16, fill=ACC_LT)
    s.text(560, 165, "+2", 22, "middle", ACC, True)
    # minus: remove blocks
    s.text(330, 240, "Remove", 16, "start", INK, True)
    block_3d(s, 330, 310, w=90, h=30, d=16)
    s.line(326, 272, 430, 318, INK, 3)
    s.line(326, 318, 430, 272, INK, 3)
    s.text(500, 300, "-1", 22, "middle", INK, True)
    stepper(s, 60, 270, "2")
    s.text(60, 330, "type a count, or step below zero", 13, "start", MUTED)
    return s.finish("Added or removed straight blocks",
                    "Straight blocks to add; the down arrow goes below zero to remove them")


def corner_block_plan(s, x, y, a=110, b=70, t=10, c=16, fill=FOAM, hl=False):
    """90-degree corner block in plan: outer leg a, inner leg b; (x, y) is the outer corner."""
    k = 2 * t + c
    outer = [(x, y), (x + a, y), (x + a, y + t), (x + t, y + t), (x + t, y + b + k), (x, y + b + k)]
    core = [(x + t, y + t), (x + a, y + t), (x + a, y + t + c), (x + t + c, y + t + c),
            (x + t + c, y + b + k), (x + t, y + b + k)]
    inner = [(x + t + c, y + t + c), (x + a, y + t + c), (x + a, y + k), (x + k, y + k),
             (x + k, y + b + k), (x + t + c, y + b + k)]
    st = ACC if hl else INK
    s.poly(core, fill=CORE, stroke=st, sw=1.2)
    s.poly(outer, fill=fill, stroke=st, sw=2)
    s.poly(inner, fill=fill, stroke=st, sw=2)


def add_remove_corner():
    s = Svg()
    s.text(155, 76, "90° corner block (plan)", 15, "middle", INK, True)
    corner_block_plan(s, 70, 128, a=170, b=110, t=14, c=26)
    s.dim(70, 128, 240, 128, "long leg", off=20, size=14)
    s.text(340, 100, "Add", 16, "start", ACC, True)
    corner_block_plan(s, 340, 120, a=70, b=40, t=7, c=12, fill=ACC_LT, hl=True)
    corner_block_plan(s, 440, 120, a=70, b=40, t=7, c=12, fill=ACC_LT, hl=True)
    s.text(565, 160, "+2", 22, "middle", ACC, True)
    s.text(340, 245, "Remove", 16, "start", INK, True)
    corner_block_plan(s, 340, 262, a=70, b=40, t=7, c=12)
    s.line(334, 258, 416, 336, INK, 3)
    s.line(334, 336, 416, 258, INK, 3)
    s.text(500, 310, "-1", 22, "middle", INK, True)
    stepper(s, 70, 310, "2")
    return s.finish("Added or removed corner blocks",
                    "90° corner blocks to add; the down arrow goes below zero to remove them")


def calora_info():
    s = Svg()
    # plan of one block: two foam panels, the core, and the sticks lying against the inside panel
    x0, y0 = 110, 110
    L = 420
    t = 26
    core = 96  # 8" core at 12 px to the inch
    s.text(320, 78, "One 8\" block seen from above, 2 layers of sticks", 15, "middle", INK, True)
    s.rect(x0, y0, L, t, fill=FOAM, stroke=INK, sw=2)
    s.rect(x0, y0 + t, L, core, fill=CORE, stroke="none", sw=0)
    s.rect(x0, y0 + t + core, L, t, fill=FOAM, stroke=INK, sw=2)
    s.line(x0, y0 + t, x0, y0 + t + core, INK, 1.2, dash="4 4")
    s.line(x0 + L, y0 + t, x0 + L, y0 + t + core, INK, 1.2, dash="4 4")
    for layer in range(2):
        yy = y0 + t + core - 24 * (layer + 1)
        for i in range(3):
            sx = x0 + 20 + i * 136
            s.rect(sx, yy + 2, 108, 20, fill=ACC_LT, stroke=ACC, sw=2, rx=2)
    s.dim(x0 + L, y0 + t, x0 + L, y0 + t + core, "8\"", off=34, size=15)
    s.dim(x0, y0 + t + core, x0, y0 + t + core - 48, "2 × 2\"", off=36, size=15)
    s.text(x0 + L / 2, y0 + t + 30, "concrete: 4\" left", 14, "middle", INK, True)
    s.text(320, 300, "3 sticks per block in each layer", 15, "middle", ACC, True)
    s.text(320, 326, "each layer takes 2\" of the concrete core", 14, "middle", INK)
    return s.finish("Calora sticks", "Calora sticks: the number of layers of sticks in the core (0 for none)")


def cut_half_info():
    s = Svg()
    ground(s, 30, 610, 330)
    ch = 30
    # left: the wall topped with a course of half-height blocks
    top = wall_elevation(s, 50, 330, 220, 4, ch=ch, bw=90)
    s.rect(50, top - 15, 220, 15, fill=ACC_LT, stroke=ACC, sw=2)
    for jx in (95, 185):
        s.line(jx, top - 15, jx, top, ACC, 1.2)
    s.dim(270, top, 270, top - 15, None, off=-14)
    s.text(294, top - 2, "+8\"", 15, "start", ACC, True)
    s.text(160, top - 52, "Half block course", 15, "middle", ACC, True)
    s.text(160, top - 31, "half-height blocks", 14, "middle", INK)
    # right: the wall topped with a course of cut blocks, two cut from one block
    top2 = wall_elevation(s, 350, 330, 220, 4, ch=ch, bw=90, start_offset=0.25)
    s.rect(350, top2 - 15, 220, 15, fill=ACC_LT, stroke=ACC, sw=2)
    for jx in (410, 500):
        s.line(jx, top2 - 15, jx, top2, ACC, 1.2)
    s.dim(570, top2, 570, top2 - 15, None, off=-14)
    s.text(594, top2 - 2, "+8\"", 15, "start", ACC, True)
    s.text(460, top2 - 52, "Cut block course", 15, "middle", ACC, True)
    s.text(460, top2 - 31, "blocks cut in two along their length", 14, "middle", INK)
    bx, by = 400, 86
    s.rect(bx, by, 120, 30, fill=FOAM, stroke=INK, sw=2)
    s.line(bx - 10, by + 15, bx + 130, by + 15, ACC, 2, dash="6 4")
    s.text(bx - 18, by + 20, "1 block", 14, "end", INK)
    s.text(bx + 138, by + 20, "= 2 cut pieces", 14, "start", INK)
    return s.finish("Half or cut block course",
                    "Half or cut course: one 8-inch course on top of the wall")


def extenders_info():
    s = Svg()
    ground(s, 40, 600, 330)
    ch = 34
    top = wall_elevation(s, 90, 330, 460, 5, ch=ch, bw=110)
    s.rect(90, top - 12, 460, 12, fill=ACC_LT, stroke=ACC, sw=2)
    for jx in range(90 + 60, 550, 60):
        s.line(jx, top - 12, jx, top, ACC, 1.2)
    s.dim(550, top, 550, top - 12, None, off=-16)
    s.text(590, top - 1, "+4\"", 16, "start", ACC, True)
    s.leader(110, top - 50, 260, top - 7, "4\" extenders", ACC, 15, bold=True)
    s.dim(90, 330, 550, 330, "wall length", off=-24, size=14)
    s.text(580, top - 40, "one extender per 2 ft", 14, "end", INK)
    s.text(580, top - 20, "of wall, plus 5%", 14, "end", INK)
    return s.finish("4\" extenders", "4\" extenders: tick to raise the top of the wall by 4 inches")


# ------------------------------------------------------------- man-hours screen


def sqft_wall():
    s = Svg()
    ground(s, 40, 600, 310)
    top = wall_elevation(s, 100, 310, 420, 6, ch=28, bw=100, fill=ACC_LT)
    s.dim(100, top, 520, top, "length", off=24)
    s.dim(520, top, 520, 310, "height", off=40)
    s.label(310, 225, "square feet = length × height", 16, ACC, True)
    s.text(320, 348, "e.g. 140 ft × 8 ft = 1120 sq ft; openings are not taken off", 14, "middle", INK)
    return s.finish("Square feet of wall", "Square feet of wall: the gross wall area, length × height")


def plan_with_features(s):
    """Plan of a house with corners, two 45-degree turns and a T."""
    outer = [(100, 110), (360, 110), (400, 150), (520, 150), (520, 320), (100, 320)]
    inner = [(300, 110), (300, 320)]
    plan_walls(s, [outer, inner], thick=12, closed=[True, False])
    return outer


def corners_ts():
    s = Svg()
    plan_with_features(s)
    marks = [((100, 110), (-20, -20), "C"), ((520, 150), (20, -20), "C"), ((520, 320), (20, 20), "C"),
             ((100, 320), (-20, 20), "C"), ((360, 110), (-2, -26), "A"), ((400, 150), (8, -28), "A"),
             ((300, 110), (0, -26), "T"), ((300, 320), (0, 26), "T")]
    for (x, y), (dx, dy), t in marks:
        marker(s, x + dx, y + dy, t)
    s.text(200, 210, "C  90° corners: 4", 15, "middle", INK)
    s.text(200, 236, "A  45° angles: 2", 15, "middle", INK)
    s.text(200, 262, "T  T-intersections: 2", 15, "middle", INK)
    s.text(410, 240, "total 8", 18, "middle", ACC, True)
    return s.finish("Corners and Ts", "Corners and Ts: count every corner, 45° angle and T of the wall")


def sqft_openings():
    s = Svg()
    ground(s, 40, 600, 320)
    wall_elevation(s, 70, 320, 500, 8, ch=26, bw=100)
    ops = [(130, 150, 100, 80, "3' × 4'", "12"), (300, 150, 100, 80, "3' × 4'", "12"), (450, 124, 80, 196, "3' × 7'", "21")]
    for (x, y, w, h, t, a) in ops:
        s.rect(x, y, w, h, fill=ACC_LT, stroke=ACC, sw=2)
        s.text(x + w / 2, y + h / 2 - 2, t, 14, "middle", ACC, True)
        s.text(x + w / 2, y + h / 2 + 18, a + " sq ft", 13, "middle", INK)
    s.label(320, 354, "12 + 12 + 21 = 45 sq ft of openings", 16, ACC, True)
    return s.finish("Square feet of openings",
                    "Square feet of openings: width × height of every door and window, added")


def lf_corbel_curb_taper():
    s = Svg()
    ground(s, 40, 600, 300)
    wall_elevation(s, 60, 300, 520, 7, ch=26, bw=90)
    # corbel run low on the left, tapered run at the top, curb run in the middle
    s.rect(60, 300 - 2 * 26, 200, 26, fill=ACC_LT, stroke=ACC, sw=2)
    s.text(160, 300 - 34, "corbel 40'", 14, "middle", ACC, True)
    s.rect(260, 300 - 4 * 26, 170, 26, fill=ACC_LT, stroke=ACC, sw=2)
    s.text(345, 300 - 86, "curb 30'", 14, "middle", ACC, True)
    s.rect(330, 300 - 7 * 26, 250, 26, fill=ACC_LT, stroke=ACC, sw=2)
    s.text(455, 300 - 164, "tapered 50'", 14, "middle", ACC, True)
    s.label(320, 340, "40 + 30 + 50 = 120 lineal feet", 16, ACC, True)
    return s.finish("Lineal feet of corbel, curb and taper",
                    "Lineal feet of corbel, curb and tapered courses, added together")


def mh_wall_height():
    s = Svg()
    base = 340
    px = 11.5  # px per foot
    ground(s, 120, 625, base)
    top = wall_elevation(s, 230, base, 190, 16, ch=16 * px / 12, bw=64)
    s.line(170, base, 170, base - 22 * px, INK, 1.5)
    for ft, lab in [(4, "4'"), (10, "10'"), (12, "12'"), (20, "20'")]:
        y = base - ft * px
        s.line(164, y, 228, y, ACC, 1.2, dash="5 4")
        s.text(158, y + 5, lab, 14, "end", ACC, True)
    s.dim(420, base, 420, top, None, off=-22)
    s.text(452, (base + top) / 2 + 5, "wall height", 14, "start", ACC, True)
    # scaffold plank and a worker near the top of the wall
    py = base - 14 * px
    s.rect(560, py, 64, 8, fill="#e9e1cf", stroke=INK, sw=1.5)
    s.line(566, py + 8, 566, base, INK, 1.5)
    s.line(618, py + 8, 618, base, INK, 1.5)
    s.line(566, base, 618, py + 8, INK, 1, dash="3 3")
    person(s, 592, py - 60, 1.0)
    return s.finish("Wall height (labour)", "Wall height: the full height of the wall, in 4-inch steps")


def size_of_crew():
    s = Svg()
    for i in range(6):
        person(s, 90 + i * 92, 110, 1.6)
    s.label(320, 250, "crew of 6", 20, ACC, True)
    s.text(320, 290, "A 6-person crew on 1000 sq ft of wall: 0.006 workers per sq ft", 14, "middle", INK)
    s.text(320, 314, "Days = man hours ÷ (crew × 8.5 hours)", 14, "middle", INK)
    return s.finish("Size of crew", "Size of crew: the number of workers on the wall (1 to 20)")


def rebar_panel(s, x, y, w, h, rows, verts, extra=0):
    """A wall face with the horizontal rows and vertical bars of its steel."""
    s.rect(x, y, w, h, fill=FOAM, stroke=INK, sw=2)
    for i in range(rows):
        yy = y + h - (i + 1) * h / (rows + 1)
        s.line(x + 6, yy, x + w - 6, yy, ACC, 2.5)
        if extra >= 2:
            s.line(x + 6, yy + 6, x + w - 6, yy + 6, ACC, 2.5)
    for i in range(verts):
        xx = x + (i + 1) * w / (verts + 1)
        s.line(xx, y + 6, xx, y + h + (18 if extra >= 1 else 0), ACC, 2.5)


def complexity_rebar():
    s = Svg()
    words = ["None", "Minor", "Average", "Above Average", "Intense"]
    xs = [30, 148, 266, 384, 502]
    specs = [(0, 0, 0), (2, 2, 0), (4, 3, 0), (5, 5, 1), (6, 7, 2)]
    for x, wd, (r, v, e) in zip(xs, words, specs):
        rebar_panel(s, x, 110, 108, 170, r, v, e)
        s.rect(x - 6, 280, 120, 14, fill=CORE_DK, stroke=INK, sw=1.5)
        s.text(x + 54, 322, wd, 14 if len(wd) < 10 else 13, "middle", ACC, True)
    s.text(30, 90, "simple", 14, "start", INK)
    s.text(610, 90, "complex", 14, "end", INK)
    s.line(95, 86, 518, 86, INK, 1.5)
    s.arrowhead(528, 86, 0, INK)
    s.text(320, 352, "more rows, closer verticals, dowels, double bars, laps", 14, "middle", INK)
    return s.finish("Complexity of rebar", "Complexity of rebar: how much steel and how hard to place it")


def crew_experience():
    s = Svg()
    levels = [("Low", 1, "first ICF walls"), ("Average", 3, "a few ICF jobs"), ("High", 6, "many ICF jobs")]
    for i, (wd, n, note) in enumerate(levels):
        x = 50 + i * 190
        s.rect(x, 80, 160, 230, fill="#ffffff", stroke=ACC if i == 1 else "#bbbbbb", sw=2, rx=8)
        person(s, x + 80, 100, 1.5, INK)
        # experience stars
        for k in range(n):
            sx = x + 80 - (min(n, 6) - 1) * 11 + k * 22
            sy = 222
            pts = []
            for j in range(10):
                rr = 9 if j % 2 == 0 else 4
                a = math.radians(-90 + j * 36)
                pts.append((sx + rr * math.cos(a), sy + rr * math.sin(a)))
            s.poly(pts, fill=ACC, stroke="none", sw=0)
        s.text(x + 80, 264, wd, 18, "middle", ACC, True)
        s.text(x + 80, 290, note, 13, "middle", INK)
    s.text(320, 345, "more experience, fewer man hours", 15, "middle", INK)
    return s.finish("Crew experience", "Crew experience: how many ICF walls this crew has built")


def site_conditions():
    s = Svg()
    # three small site sketches
    for i, (wd, kind) in enumerate([("Ideal", 0), ("Average", 1), ("Poor", 2)]):
        x = 40 + i * 195
        s.rect(x, 80, 170, 200, fill="#ffffff", stroke=ACC if i == 1 else "#bbbbbb", sw=2, rx=8)
        gy = 230
        if kind == 0:
            s.line(x + 10, gy, x + 160, gy, GROUND, 2)
            wall_elevation(s, x + 55, gy, 60, 3, ch=16, bw=30)
            s.text(x + 85, 130, "flat, dry, open", 13, "middle", INK)
            s.text(x + 85, 148, "good access", 13, "middle", INK)
        elif kind == 1:
            s.poly([(x + 10, gy + 6), (x + 60, gy), (x + 160, gy - 14)], stroke=GROUND, sw=2, closed=False)
            wall_elevation(s, x + 60, gy, 60, 3, ch=16, bw=30)
            s.text(x + 85, 130, "some slope", 13, "middle", INK)
            s.text(x + 85, 148, "or tight access", 13, "middle", INK)
        else:
            s.path("M%s %s Q%s %s %s %s L%s %s Q%s %s %s %s" % (
                f(x + 10), f(gy - 44), f(x + 40), f(gy - 40), f(x + 56), f(gy), f(x + 120), f(gy),
                f(x + 140), f(gy + 2), f(x + 160), f(gy - 22)), stroke=GROUND, sw=2)
            wall_elevation(s, x + 62, gy, 56, 3, ch=16, bw=28)
            for k in range(3):
                s.path("M%s %s q6 -5 12 0 t12 0" % (f(x + 28 + k * 44), f(gy + 12)), stroke=MUTED, sw=2)
            s.text(x + 85, 130, "steep, wet, muddy", 13, "middle", INK)
            s.text(x + 85, 148, "no room to work", 13, "middle", INK)
        s.text(x + 85, 268, wd, 18, "middle", ACC, True)
    s.text(320, 330, "ground, weather and access at the wall", 15, "middle", INK)
    return s.finish("Site conditions", "Site conditions: how easy the site is to work on")


def man_hour_rate():
    s = Svg()
    bw, gap = 128, 26
    boxes = ["10 ratings|each fact rated", "total rating|sum of the 10", "man-hour rate|hours per sq ft",
             "hours, days|and labour cost"]
    for i, t in enumerate(boxes):
        a, b = t.split("|")
        x = 25 + i * (bw + gap)
        s.rect(x, 120, bw, 76, fill=ACC_LT if i == 2 else "#ffffff", stroke=ACC, sw=2, rx=6)
        s.text(x + bw / 2, 153, a, 14, "middle", INK, True)
        s.text(x + bw / 2, 176, b, 12, "middle", INK)
        if i:
            s.line(x - gap + 3, 158, x - 9, 158, ACC, 2)
            s.arrowhead(x - 2, 158, 0)
    s.text(320, 246, "e.g. total 30 gives 0.09 man hours per sq ft", 15, "middle", ACC, True)
    s.text(320, 272, "hours = rate × square feet of wall", 14, "middle", INK)
    s.text(320, 296, "days = hours ÷ (crew × 8.5)", 14, "middle", INK)
    s.text(320, 320, "cost = hours × labour cost per hour", 14, "middle", INK)
    return s.finish("Man-hour rate", "Man-hour rate: man hours per square foot, from the total rating")


def other_turns():
    s = Svg()
    # headings 0, 30, 8, -60 and 0 degrees: turns of 30, 22, 68 and 60 degrees
    pts = [(50, 300), (190, 300), (294, 240), (403, 225), (433, 277), (590, 277)]
    plan_walls(s, [pts], thick=14)
    plan_end_caps(s, [((50, 300), (190, 300)), ((590, 277), (433, 277))], 14)
    for i, (x, y) in enumerate(pts[1:-1]):
        marker(s, x, y + 32 if i == 3 else y - 32, str(i + 1))
    s.text(320, 110, "4 other turns", 18, "middle", ACC, True)
    s.text(320, 136, "odd angles and jogs, not 90° corners, 45° angles or Ts", 14, "middle", INK)
    return s.finish("Other turns", "Other turns: count the turns that are not corners, 45° angles or Ts")


# ------------------------------------------------------------ job summary screen


def form_field(s, x, y, label, value, w=170):
    s.text(x, y + 22, label, 14, "start", INK)
    s.rect(x + 120, y + 4, w, 28, fill="#ffffff", stroke="#999999", sw=1.5, rx=3)
    s.text(x + 128, y + 23, value, 14, "start", INK)


def custom_item():
    s = Svg()
    s.rect(40, 70, 330, 250, fill="#f7f7f7", stroke=INK, sw=2, rx=6)
    s.text(205, 96, "Custom item", 15, "middle", INK, True)
    form_field(s, 60, 110, "Name", "Window bucks")
    form_field(s, 60, 152, "Quantity", "12")
    form_field(s, 60, 194, "Unit", "Parts")
    form_field(s, 60, 236, "Price / unit", "$18.50")
    s.rect(230, 282, 70, 26, fill=ACC, stroke="none", sw=0, rx=4)
    s.text(265, 300, "OK", 14, "middle", "#ffffff", True)
    s.line(380, 195, 420, 195, ACC, 2)
    s.arrowhead(430, 195, 0)
    s.rect(440, 150, 170, 90, fill="#ffffff", stroke=ACC, sw=2, rx=6)
    s.text(525, 176, "Job summary line", 13, "middle", INK, True)
    s.text(525, 202, "12 × $18.50", 14, "middle", INK)
    s.text(525, 226, "= $222.00", 16, "middle", ACC, True)
    s.text(320, 354, "your own lines sit beside the lines made from the worksheets", 14, "middle", INK)
    return s.finish("Custom item", "Custom item: add your own priced line to the job summary")


def adjust_tab():
    s = Svg()
    s.rect(50, 70, 250, 270, fill="#f7f7f7", stroke=INK, sw=2, rx=6)
    s.text(175, 96, "Summarize", 15, "middle", INK, True)
    items = [("Wall", True), ("Rebar", True), ("Concrete", True), ("Tilt", False), ("Man Hours", True)]
    for i, (wd, on) in enumerate(items):
        y = 118 + i * 42
        s.rect(80, y, 22, 22, fill=ACC if on else "#ffffff", stroke=ACC if on else "#999999", sw=2, rx=3)
        if on:
            s.poly([(85, y + 11), (90, y + 17), (98, y + 5)], stroke="#ffffff", sw=3, closed=False, join="round")
        s.text(116, y + 17, wd, 15, "start", INK)
    s.line(310, 205, 350, 205, ACC, 2)
    s.arrowhead(360, 205, 0)
    s.rect(370, 110, 230, 190, fill="#ffffff", stroke=ACC, sw=2, rx=6)
    s.text(485, 136, "Job summary", 14, "middle", INK, True)
    for i, wd in enumerate(["Wall parts", "Rebar", "Concrete", "Man Hours"]):
        s.line(385, 152 + i * 34, 585, 152 + i * 34, "#dddddd", 1)
        s.text(390, 174 + i * 34, wd, 14, "start", INK)
        s.text(580, 174 + i * 34, "$ ...", 14, "end", MUTED)
    s.text(485, 322, "Tilt lines hidden", 13, "middle", MUTED)
    return s.finish("Adjust tabs", "Adjust tabs: choose which estimates add their lines to the summary")


def file_icon(s, x, y, label):
    s.poly([(x, y), (x + 50, y), (x + 66, y + 16), (x + 66, y + 80), (x, y + 80)], fill="#ffffff", stroke=INK, sw=2)
    s.poly([(x + 50, y), (x + 50, y + 16), (x + 66, y + 16)], fill="#eeeeee", stroke=INK, sw=1.5)
    for k in range(3):
        s.line(x + 10, y + 34 + k * 12, x + 56, y + 34 + k * 12, "#bbbbbb", 2)
    s.text(x + 33, y + 100, label, 14, "middle", ACC, True)


def summary_sheet(s, x, y, title):
    s.rect(x, y, 150, 130, fill="#ffffff", stroke=INK, sw=2, rx=5)
    s.text(x + 75, y + 22, title, 13, "middle", INK, True)
    for i in range(4):
        s.line(x + 12, y + 44 + i * 20, x + 138, y + 44 + i * 20, "#bbbbbb", 2)


def custom_item_template():
    s = Svg()
    summary_sheet(s, 40, 110, "Job A summary")
    file_icon(s, 287, 120, "lines.zci")
    summary_sheet(s, 450, 110, "Job B summary")
    s.line(196, 175, 270, 175, ACC, 2)
    s.arrowhead(280, 175, 0)
    s.text(236, 160, "Save", 14, "middle", ACC, True)
    s.line(360, 175, 434, 175, ACC, 2)
    s.arrowhead(444, 175, 0)
    s.text(400, 160, "Load", 14, "middle", ACC, True)
    s.text(320, 300, "keep the lines you use on every job in a template file", 14, "middle", INK)
    s.text(320, 324, "and load them into the next job", 14, "middle", INK)
    return s.finish("Custom item template", "Template: save the job summary lines to a file and load them again")


ILLUSTRATIONS = [
    # name, drawing, one-line description for index.txt
    ("Wall_Height_Info", wall_height, "wall height from the top of the footing to the top of the wall, in 16-inch courses"),
    ("Wall_Length_Info", wall_length, "plan of a house: the wall length is all wall runs added together"),
    ("In_Out_Corners_Info", in_out_corners, "plan with outside and inside 90-degree corners marked"),
    ("Angle_Info", angle_info, "plan of a bay wall: each 45-degree turn is one angle location"),
    ("T_Block_Info", t_block, "plan of walls meeting in a T: each meeting is one T-block location"),
    ("Corbel_Info", corbel_info, "section and elevation of the corbel (brick-ledge) course and its linear feet"),
    ("Curb_Info", curb_info, "section of the curb course with the slab on its ledge; plan with its linear feet and corners"),
    ("Taper_Top_Info", taper_info, "section of a tapered top course under floor framing, and its linear feet"),
    ("Radius_Info", radius_info, "plan of a curved wall with its radius and its linear feet"),
    ("Buck_Info", buck_info, "elevation of an opening framed by buck on top, sides and sill"),
    ("Add_Remove_Straight_Info", add_remove_straight, "straight block, and adding or removing straight blocks by hand"),
    ("Add_Remove_Corner_Info", add_remove_corner, "90-degree corner block, and adding or removing corner blocks by hand"),
    ("Calora_Stick_Info", calora_info, "one block from above with two layers of calora sticks in the core"),
    ("Cut_Half_Block_Info", cut_half_info, "a half-block course and a cut-block course topping the wall by 8 inches"),
    ("Extenders_Info", extenders_info, "4-inch extenders on the top course"),
    ("Square_Feet_Wall_Info", sqft_wall, "gross square feet of wall: length times height"),
    ("Corners_Ts_Info", corners_ts, "plan with corners, 45-degree angles and Ts counted together"),
    ("Square_Feet_Openings_Info", sqft_openings, "elevation with doors and windows: their areas added"),
    ("LF_Corbel_Curb_Taper_Info", lf_corbel_curb_taper, "elevation with corbel, curb and tapered runs: their lineal feet added"),
    ("MH_Wall_Height_Info", mh_wall_height, "wall height for labour, with the 4, 10, 12 and 20 foot steps"),
    ("Size_of_Crew_Info", size_of_crew, "a crew of six workers"),
    ("Complexity_of_Rebar_Info", complexity_rebar, "rebar complexity from None to Intense"),
    ("Crew_Experience_Info", crew_experience, "crew experience Low, Average, High"),
    ("Site_Conditions_Info", site_conditions, "site conditions Ideal, Average, Poor"),
    ("Man_Hour_Rate_Info", man_hour_rate, "from the ratings to the man-hour rate, hours, days and cost"),
    ("Other_Turns_Info", other_turns, "plan with turns that are not corners, 45-degree angles or Ts"),
    ("Custom_Item_Info", custom_item, "the custom-item form and the priced line it adds"),
    ("Adjust_Tab_Info", adjust_tab, "the five switches that choose which estimates add summary lines"),
    ("Custom_Item_Template_Info", custom_item_template, "saving the summary lines to a template file and loading them"),
]


# ------------------------------------------------------------ report background


def printing_background():
    """US Letter page at 300 dpi (2550 x 3300): a light header band of block courses with the
    product line's name, a thin frame and a footer rule.  The text of the report starts
    1.2 cm from the top, so the band stays within the top 1.1 cm."""
    cm = 300 / 2.54
    pw, ph = 2550, 3300
    band_t, band_b = round(0.50 * cm), round(1.08 * cm)
    fl, fr = round(0.90 * cm), pw - round(0.75 * cm)
    fb = ph - round(0.60 * cm)
    foot_y = ph - round(1.15 * cm)
    frame = "#c4d1de"
    band = "#eef3f8"
    joint = "#d9e3ed"
    name = "#5d7f9f"
    sub = "#7f95aa"
    out = ['<?xml version="1.0" encoding="UTF-8"?>',
           '<svg xmlns="http://www.w3.org/2000/svg" version="1.1" width="21.6cm" height="27.9cm" '
           'viewBox="0 0 %d %d">' % (pw, ph),
           '<title>Zol Blocks ICF Wall Estimate page</title>',
           '<rect x="0" y="0" width="%d" height="%d" fill="#ffffff" stroke="none"/>' % (pw, ph)]
    # header band: two staggered courses of blocks in a very light tint, left clear where
    # the words sit so that they read cleanly
    bh = band_b - band_t
    out.append('<rect x="%d" y="%d" width="%d" height="%d" fill="%s" stroke="none"/>'
               % (fl, band_t, fr - fl, bh, band))
    clear_l = fl + 46 + text_width("Zol Blocks", 50, True) + 90
    clear_r = fr - 46 - text_width("ICF Wall Estimate", 40) - 80
    ch = bh / 2
    bw = ch * 3.0
    for c in range(2):
        y0 = band_t + c * ch
        x = clear_l + (bw / 2 if c else 0)
        while x < clear_r:
            out.append('<line x1="%s" y1="%s" x2="%s" y2="%s" stroke="%s" stroke-width="3"/>'
                       % (f(x), f(y0 + 5), f(x), f(y0 + ch - 5), joint))
            x += bw
    out.append('<line x1="%s" y1="%s" x2="%s" y2="%s" stroke="%s" stroke-width="3"/>'
               % (f(clear_l), f(band_t + ch), f(clear_r), f(band_t + ch), joint))
    ty = band_t + bh / 2 + 17
    out.append('<text x="%d" y="%s" font-family="%s" font-size="50" font-weight="bold" fill="%s">Zol Blocks</text>'
               % (fl + 46, f(ty), FONT, name))
    out.append('<text x="%d" y="%s" font-family="%s" font-size="40" fill="%s" text-anchor="end">ICF Wall Estimate</text>'
               % (fr - 46, f(ty - 2), FONT, sub))
    out.append('<rect x="%d" y="%d" width="%d" height="%d" fill="none" stroke="%s" stroke-width="3"/>'
               % (fl, band_t, fr - fl, bh, frame))
    # thin frame below the band and the footer rule
    out.append('<polyline points="%d,%d %d,%d %d,%d %d,%d" fill="none" stroke="%s" stroke-width="3"/>'
               % (fl, band_b, fl, fb, fr, fb, fr, band_b, frame))
    out.append('<line x1="%d" y1="%d" x2="%d" y2="%d" stroke="%s" stroke-width="3"/>'
               % (fl + 40, foot_y, fr - 40, foot_y, frame))
    out.append('<text x="%d" y="%d" font-family="%s" font-size="26" fill="%s" text-anchor="middle">'
               'Zol Blocks \u00b7 insulated concrete forms</text>'
               % ((fl + fr) // 2, (foot_y + fb) // 2 + 9, FONT, sub))
    out.append('</svg>')
    out.append('')
    return "\n".join(out)


def main():
    os.makedirs(INFO_DIR, exist_ok=True)
    os.makedirs(REPORT_DIR, exist_ok=True)
    index = []
    for name, fn, desc in ILLUSTRATIONS:
        svg = fn()
        with open(os.path.join(INFO_DIR, name + ".svg"), "w", encoding="utf-8") as out:
            out.write(svg)
        index.append("%s -> %s" % (name, desc))
    with open(os.path.join(INFO_DIR, "index.txt"), "w", encoding="utf-8") as out:
        out.write("\n".join(index) + "\n")
    # the Qt resource file: illustrations under /info, the page background under /report
    qrc = ['<!DOCTYPE RCC>', '<RCC version="1.0">', '<qresource prefix="/info">']
    for name, _, _ in sorted(ILLUSTRATIONS):
        qrc.append('    <file alias="%s.svg">info/%s.svg</file>' % (name, name))
    qrc += ['</qresource>', '<qresource prefix="/report">',
            '    <file alias="PrintingBackground.svg">report/PrintingBackground.svg</file>',
            '    <file alias="PrintingBackground.png">report/PrintingBackground.png</file>',
            '</qresource>', '</RCC>', '']
    with open(os.path.join(HERE, "art.qrc"), "w", encoding="utf-8") as out:
        out.write("\n".join(qrc))
    bg_svg = os.path.join(REPORT_DIR, "PrintingBackground.svg")
    with open(bg_svg, "w", encoding="utf-8") as out:
        out.write(printing_background())
    if "--png" in sys.argv[1:]:
        bg_png = os.path.join(REPORT_DIR, "PrintingBackground.png")
        with tempfile.TemporaryDirectory() as tmp:
            full = os.path.join(tmp, "full.png")
            subprocess.run(["rsvg-convert", "-w", "2550", "-h", "3300", "-b", "white", bg_svg, "-o", full], check=True)
            subprocess.run(["pngquant", "--force", "--speed", "1", "--output", bg_png, "16", full], check=True)
        subprocess.run(["optipng", "-quiet", "-o5", bg_png], check=True)


if __name__ == "__main__":
    main()
