from hand import *
from beasts import *
from limbs import placed

p = Page("15", "Two monkeys quarrel over a banana: one hangs by its tail, one holds on to the branch; the toucan already eats the other banana")

def monkey_head(p, eyes="dot", mouth="open", look=1):
    """In three quarters to the right, round (0, 0), about 110 wide."""
    p.shape(oval(-46, 2, 19, 21))
    p.shape(oval(-51, 3, 8, 11), 3)
    p.one("-4 -52, 30 -44, 47 -14, 46 16, 30 40, 4 48, -26 42, -44 20, -48 -8, -34 -38", "-8 -44!, -14 -70, 2 -58!, 8 -74, 16 -46!")
    p.shape("12 -30, 26 -38, 44 -28, 51 -4, 54 16, 40 40, 12 44, -12 34, -18 12, -10 -6, -14 -24, -4 -34")
    p.eye(4, -10, 5.5, eyes)
    p.eye(29, -12, 5.2, eyes)
    if eyes == "dot":
        p.lines("-3 -23, 4 -27, 11 -25", "23 -26, 30 -28, 36 -25")
    p.lines("19 4, 22 6", "30 4, 33 3")
    if mouth == "open":
        p.shape("2 16!, 22 20, 42 13!, 38 30, 18 34, 6 28", 3)
    else:
        p.shape("2 16!, 22 19, 42 13!, 40 28, 22 32, 6 28", 3)
        p.line("4 23, 22 26, 41 21")

def foot(x, y, turn=0, size=1):
    """A foot that grips, the big toe off like a thumb, and the crease between its toes; its ankle lies at (x, y), the toes at the right."""
    return [placed(text, x, y, turn, size, 1) for text in (
        "-16 -14, -24 4, -22 18, -6 23, 22 22, 46 23, 56 15, 50 5, 30 3!, 40 -5, 40 -16, 30 -19, 18 -9, 14 -14", "55 14, 40 14")]


p.note("leaves far away")
p.shape("-10 350, 90 316, 200 392, 330 428, 470 418, 640 360!, 640 560!, -10 560!")
p.shape("-10 456, 110 440, 240 474, 380 450, 520 476, 640 440!, 640 560!, -10 560!")

TAIL = limb("478 76, 464 60, 444 66, 438 90, 444 120", 20, 20, 20, steps=15)
p.note("trunk and branch; the tail of the little monkey goes round it")
p.one(TAIL)
p.one("524 -20!, 640 -20!, 640 560!, 530 560, 548 460, 540 340, 534 250, 506 160, 470 100, 506 64", limb("570 140, 400 122, 240 138, 100 112, -20 120", 110, 62, 56, 52, 46))
p.lines("576 260, 580 340", "602 390, 596 464")
p.shape("150 -10!, 214 6, 240 56!, 176 58, 130 30, 120 -10!")
p.line("160 8, 190 24, 216 42")
p.shape("-10 -6!, 50 -4, 96 24, 108 62!, 46 58, 4 36, -10 24!")
p.line("14 14, 50 24, 84 46")

p.note("toucan with the other banana")
with p.at(340, 94, 1, 0, flip=True):
    p.shape("-22 -10, -50 26!, -32 36!, -6 8")
    p.shape("28 -64!, 62 -72, 98 -48, 106 -22!, 70 -34, 28 -38!")
    p.one(oval(-4, -16, 28, 32, 20), oval(14, -48, 25))
    p.shape("-22 -22, -2 -26, 8 -8, -8 10, -22 4")
    p.spot(18, -54, 5)
    p.shape("70 -36!, 68 -8, 88 12, 112 8!, 96 -6, 92 -26!")

p.note("little monkey hangs by its tail")
def hanging():
    return p.at(462, 268, 1, 180)
with hanging():
    p.one(limb("-4 42, -22 100, -26 158, -14 196", 24, 21, 20), limb("-20 44, -62 60, -66 98", 36, 28, 24), foot(-68, 100, 172, .74)[0], limb("24 44, 66 62, 66 104", 36, 28, 24), foot(68, 106, 8, .74)[0],
          "-34 -30, 0 -42, 34 -30, 46 16, 36 60, 0 76, -36 60, -44 16", join=(-9, 200, 15))
    p.shape("-26 0, -8 -6, 2 10, 0 40, -14 50, -28 34")
    p.one(limb("-22 -20, -60 -30, -70 -66", 32, 26, 24), oval(-70, -72, 16, 18), join=(-20, -18, 17))
    with p.at(4, -72, 1.02, 6):
        monkey_head(p, eyes="happy")

p.note("big monkey swings on the branch")
p.one(limb("108 396, 62 432, 30 402, 34 352, 58 344", 20, 18, 16))
FAR, far_toe = foot(50, 496, -4)
p.one(limb("126 396, 64 424, 48 492", 66, 50, 34), FAR)
p.line(far_toe)
p.one(limb("160 262, 98 200, 100 128", 50, 42, 38), "80 130, 74 106, 78 88, 92 80, 116 80, 130 92, 130 106!, 144 104, 150 114, 142 124, 126 124, 118 134")
p.lines("95 97, 95 78", "112 97, 112 78")
NEAR, near_toe = foot(237, 486, 0)
p.one("130 264, 176 244, 218 268, 216 322, 190 384, 168 424, 112 428, 86 396, 96 330",
      limb("142 392, 230 386, 234 478", 76, 58, 38), NEAR)
p.line(near_toe)
p.shape("132 296, 162 292, 176 316, 166 356, 140 392, 112 388, 106 362, 114 326")
with p.at(194, 204, 1.18, 2):
    monkey_head(p, mouth="open")

p.note("banana between them")
with p.at(327, 354, .92, -26):
    p.shape("-74 -18!, -70 20, -34 56, 20 58, 58 22, 80 -28!, 62 -34!, 34 -4, -10 6, -44 -4, -62 -26!")
    p.line("-24 28, 2 35, 30 26")
p.note("their hands round its ends")
p.one(limb("200 286, 226 350, 266 372", 48, 40, 32), oval(276, 376, 23, 21), join=(196, 280, 25))
p.lines("270 366, 286 370", "270 378, 286 382")
with hanging():
    p.one(limb("26 4, 60 4, 84 -36", 30, 27, 24), oval(89, -43, 18, 17), join=(22, 4, 18))
    p.line("84 -40, 96 -48")
p.save()
