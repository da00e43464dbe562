from hand import *
from limbs import palm
from people import head
from sideface import side_head

p = Page("47", "A strong castle: the knight rides to the drawbridge, the king waves from the tower, a goose swims past the bridge")

p.note("hill and path")
p.shape("-10 290!, 130 262, 300 276, 640 210!, 640 560!, -10 560!")

p.note("castle seen from below")
def battlement(x, y, w, h, n):
    """A wall with `n` teeth, 18 deep."""
    step = w / (2 * n - 1)
    teeth = [f"{x + step * k} {y + 18 * up}!" for k in range(1, 2 * n - 1) for up in ((k + 1) % 2, k % 2)]
    return ", ".join([f"{x} {y + h}!", f"{x} {y}!", *teeth, f"{x + w} {y}!", f"{x + w} {y + h}!"])


p.shape("338 398!, 342 120!, 416 120!, 420 398!")
p.shape(battlement(326, 70, 106, 56, 3))
p.shape(battlement(456, 34, 168, 364, 4))
p.shape(battlement(318, 178, 140, 220, 3))
p.shape("332 398!, 332 300, 350 264, 388 248, 426 264, 444 300, 444 398!")
p.shape("350 398!, 350 306, 366 280, 388 268, 410 280, 426 306, 426 398!")
with p.within("350 398!, 350 306, 366 280, 388 268, 410 280, 426 306, 426 398!"):
    p.line("388 200, 388 400", 4)
p.note("the king in the tower window")
window = "474 268!, 474 156, 490 106, 536 80, 582 106, 598 156, 598 268!"
p.shape(window)
with p.within(window):
    with p.at(538, 190, 1, flip=True):
        p.shape("-72 110!, -58 70, -20 46, 24 46, 70 60, 86 110!")
        side_head(p, "short", mouth="", brows=None, r=5.6)
        p.shape("49 22!, 36 18, 20 26, 2 14, -10 10!, -24 34, -12 58, 14 74, 40 70, 54 52")
        p.line("42 36, 34 42, 25 40")
        p.shape("-42 -25!, -46 -68!, -23 -52!, -2 -80!, 22 -53!, 47 -74!, 50 -22!, 0 -32")
palm(p, 431, 214, -110, 1, "wave", -1)
p.shape(limb("546 262, 480 264, 432 216", 36, 34, 30, flat=True))
p.shape("452 268!, 640 268!, 640 290!, 452 290!")
p.note("moat, drawbridge, frog")
p.shape("290 424!, 640 410!, 640 480, 500 478, 420 486, 320 492, 280 460")
p.shape("336 396!, 466 396!, 520 476!, 326 482!")

p.note("knight on his horse, in profile")
with p.at(164, 372, 1.0):
    p.shape(limb("62 -24, 76 -214", 12, 12))
    p.shape("78 -222!, 118 -234, 150 -216, 188 -228!, 180 -180!, 150 -172, 120 -186, 78 -168!")
    p.shape(limb("-34 30, -30 84, -44 112, -38 134", 50, 34, 24, 22, flat=True))
    p.shape(limb("58 26, 62 84, 54 134", 44, 28, 24, flat=True))
    p.shape("-49 130!, -26 130!, -22 150!, -54 150!")
    p.shape("42 130!, 67 130!, 72 150!, 38 150!")
    p.shape("-90 -22!, -126 -30, -150 6, -142 92!, -122 50, -86 10!")
    p.one(oval(-14, 8, 90, 48), limb("46 4, 84 -42, 106 -92", 96, 64, 48), limb("104 -100, 140 -78, 166 -54", 52, 42, 38),
          limb("-64 10, -78 64, -106 96, -98 138", 82, 48, 26, 24, flat=True), limb("62 24, 106 44, 118 76, 102 100", 56, 40, 28, 24, flat=True))
    p.shape("-112 134!, -86 134!, -82 154!, -116 154!")
    p.shape("114 106!, 94 90!, 78 104!, 100 126!")
    p.shape("96 -114!, 104 -150, 122 -116!")
    p.shape("100 -126!, 72 -118, 68 -98!, 52 -92, 54 -70!, 36 -62, 34 -34!, 64 -46, 88 -78, 104 -100!")
    p.eye(130, -88, 5.5)
    p.spot(172, -58, 4)
    p.line("170 -46, 158 -46, 148 -56")
    p.shape("-72 -34!, -82 40!, -54 26!, -28 52!, -2 30!, 24 54!, 34 -38!, -20 -36")
    p.one("-44 -32, -42 -78, -34 -104!, -14 -96, 4 -106!, 22 -90, 26 -60, 22 -26!", limb("-14 -40, 38 -8, 26 62", 54, 46, 34, flat=True))
    p.line("-42 -44, -8 -38, 24 -50", 4)
    p.shape("6 52!, 6 78, 8 84!, 64 84!, 62 70, 46 62, 44 54!")
    with p.at(-8, -146, .86):
        p.shape("-14 -50!, -60 -84, -100 -60, -110 -20!, -76 -34, -40 -34!")
        side_head(p, None, mouth="smile", brows=None, ear=False)
        p.shape("44 -34!, 24 -30, 12 -14!, 12 36!, -30 52!, -54 30, -56 -20, -34 -58, 10 -62, 38 -46")
    p.line("150 -58, 108 -40, 60 -50", 4)
    palm(p, 46, -49, -8, .9, "fist")
    p.one(limb("-16 -80, -14 -44, 16 -40, 48 -50", 42, 38, 34, 30, flat=True), join=(-16, -84, 22))
p.note("goose in front runs along")
with p.at(474, 514, .9, 2):
    p.lines("-16 22, -24 40", "6 24, 10 40", width=4)
    p.shape("-64 -16!, -30 -20, 10 -16, 26 -50, 30 -74, 48 -84, 62 -68, 52 -48, 44 -6, 20 24, -24 26, -52 10")
    p.shape("60 -76!, 86 -66, 58 -58!")
    p.eye(46, -68, 4.5)
p.save()
