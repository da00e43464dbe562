"""Draws art/figures.svg: the construction rules that art/STYLE.md tells, in pictures."""
from hand import *
from limbs import HANDS, palm, sleeve
from people import *
from faces import head

p = Page("figures", "Row 1: a head in three quarters, in profile, from behind, in profile with its tongue out. Row 2: a sleeve fused with "
         "the body, a sleeve in front of the body, a hand that holds. Row 3: the hands. Row 4: an animal from ovals, fused")

with p.at(80, 70, .9):
    head(p, "34", "short", mouth="open", brows=2)
with p.at(236, 70, .9):
    head(p, "side", "pony", mouth="smile")
with p.at(380, 70, .9):
    head(p, "back", "tails")
with p.at(520, 70, .9):
    head(p, "side", "curly", eyes="closed", mouth="tongue")

with p.at(100, 190, .8):
    palm(p, 116, -22, -62, 1, "wave")
    p.shape(limb("0 -30, 0 6", 30, 30))
    p.one("-34 0!, 34 0!, 40 60, 42 120!, -42 120!, -40 60", limb("22 22, 76 52, 118 -18", 44, 36, flat=True))
with p.at(300, 190, .8):
    p.shape(limb("0 -30, 0 6", 30, 30))
    p.one("-34 0!, 34 0!, 42 60, 42 120!, -42 120!, -42 60")
    palm(p, 34, 84, -8, 1, "flat")
    p.one(limb("-22 24, -30 86, 36 84", 44, 32, flat=True), join=(-20, 23, 24))
with p.at(470, 220, .9):
    p.shape(limb("26 66, 74 -50", 16, 16))
    palm(p, 26, 12, -10, 1.2, "fist")
    sleeve(p, "-70 50, -30 20, 28 10", 44, 36, grow=False)

for i, kind in enumerate(HANDS):
    palm(p, 40 + i * 82, 345, -60 if kind in ("open", "wave", "glove", "point") else -20, 1, kind)

with p.at(150, 460, .75):
    for x, y, rx, ry in ((0, 0, 60, 44), (-66, -34, 34, 28), (-96, -24, 16, 12)):
        p.shape(oval(x, y, rx, ry, 0), 3)
    for way in ("-34 20, -38 50, -36 76", "36 20, 44 50, 40 76"):
        p.shape(limb(way, 34, 26), 3)
with p.at(420, 460, .75):
    p.one(oval(-74, -66, 14), limb("-12 20, -14 50, -12 72", 32, 26), limb("60 14, 68 44, 66 72", 32, 26))
    p.one(oval(0, 0, 60, 44), oval(-66, -34, 34, 28), oval(-96, -24, 16, 12), limb("-40 20, -44 50, -42 78", 36, 28), limb("30 20, 38 50, 34 78", 40, 28),
          limb("56 -10, 76 -20, 84 -40", 18, 14), oval(-46, -60, 14))
    p.spot(-108, -28, 7, 6)
    p.eye(-78, -40, 5)
    p.line("-98 -12, -88 -14, -80 -20")
p.save(PAGES.parent / "figures.svg")
