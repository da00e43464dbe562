"""Draws art/figures.svg: the construction rules that art/STYLE.md tells, in pictures."""
from hand import *
from people import *

p = Page("figures", "Row 1: a head in three quarters, in profile, from behind, looking down. Row 2: a limb fused with the body, a limb "
         "in front of the body, a hand that holds. Row 3: an animal from ovals, fused")

with p.at(80, 90):
    head(p, "34", "short", mouth="open", brows=2)
with p.at(230, 90):
    head(p, "side", "pony", mouth="smile")
with p.at(390, 90):
    head(p, "back", "tails")
with p.at(540, 96, 1, 16):
    head(p, "side", "curly", eyes="closed", mouth="tongue")

with p.at(90, 230, .9):
    p.shape(limb("0 -30, 0 6", 26, 26))
    p.one("-34 0!, 34 0!, 44 60, 46 130!, -46 130!, -44 60", limb("24 20, 70 40, 96 20", 44, 34, flat=True))
    p.one(arm("98 18, 112 4, 120 -14", 26, 22, thumb=-1))
with p.at(290, 230, .9):
    p.shape(limb("0 -30, 0 6", 26, 26))
    p.one("-34 0!, 34 0!, 48 60, 48 130!, -48 130!, -48 60")
    p.one(limb("-26 24, -12 70, 20 84", 46, 38, flat=True), join=(-26, 22, 22))
    p.one(arm("22 84, 34 84, 46 78", 28, 24, thumb=-1))
with p.at(480, 290):
    p.shape(limb("10 60, 60 -60", 18, 18))
    p.one(arm("-60 40, -20 20, 14 10", 44, 34, thumb=-1, grip=True, hand=1.15))
    p.line("26 -6, 36 6")

with p.at(130, 440):
    for x, y, rx, ry, t in ((0, 0, 60, 44, 0), (-66, -34, 34, 28, 0), (-96, -24, 16, 12, 0)):
        p.shape(oval(x, y, rx, ry, t), 3)
    for way in ("-34 20, -38 50, -36 76", "36 20, 44 50, 40 76"):
        p.shape(limb(way, 34, 26), 3)
with p.at(420, 440):
    p.one(oval(-74, -66, 14), limb("-12 20, -14 50, -12 72", 32, 26), limb("60 14, 68 44, 66 72", 32, 26))
    p.one(oval(0, 0, 60, 44), oval(-66, -34, 34, 28), oval(-96, -24, 16, 12), limb("-40 20, -44 50, -42 78", 36, 28), limb("30 20, 38 50, 34 78", 40, 28),
          limb("56 -10, 76 -20, 84 -40", 18, 14), oval(-46, -60, 14))
    p.spot(-108, -28, 7, 6)
    p.eye(-78, -40, 5)
    p.line("-98 -12, -88 -14, -80 -20")
p.save(PAGES.parent / "figures.svg")
