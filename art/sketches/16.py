from hand import *

p = Page("16", "Penguins on the slide: one about to go, one sitting with its scarf flying, one on its belly; the seal waits with open flippers")

BODY = [oval(2, -112, 41, 38), oval(-2, -46, 50, 50), "-30 -100, 36 -100, 46 -60, -46 -60", "-44 -30, -66 -2!, -20 0"]
BIB = [oval(24, -106, 29, 26), oval(14, -40, 33, 38), "4 -94, 30 -94, 34 -60, 0 -60"]


def face(x, y, beak, both=False):
    """Eye (or both) and beak of a head that looks to the right, round (x, y)."""
    with p.at(x, y):
        p.eye(-5, -6, 5.4)
        if both:
            p.eye(24, -8, 5)
        if beak == "open":
            p.shape("4 6!, 22 22, 32 6!", 3)
            p.shape("2 4!, 16 -6, 44 4!, 22 10")
        else:
            p.shape("3 4!, 18 -5, 44 6!, 20 16")


def cap():
    p.shape("-42 -122!, -38 -148, -6 -166, 28 -156, 42 -124!, 0 -132")
    p.line("-41 -135, 0 -146, 37 -139", 4)
    p.shape(oval(-4, -172, 13))


def foot(x, y, turn=0):
    with p.at(x, y, 1, turn):
        p.shape("-20 -6, -6 -14, 20 -10, 30 2, 20 9, -16 8")


p.note("sky, icebergs, sea, hill of ice with its flag")
p.shape("380 188!, 430 110!, 468 52!, 520 40!, 556 92!, 588 80!, 640 150!, 640 190!, 300 190!")
p.line("520 40, 516 84, 534 116")
p.shape("300 190!, 640 186!, 640 560!, 300 560!")
p.shape("-10 168!, 60 152, 300 150, 470 164, 586 220, 606 310, 572 400, 556 560!, -10 560!")
p.shape(box(20, 16, 11, 142))
p.shape("31 22!, 62 16, 86 32, 120 22!, 104 44!, 118 68!, 86 70, 60 58, 31 66!")

p.note("the slide: a clear S")
p.shape("58 170!, 240 164, 430 182, 552 232, 572 296, 506 352, 392 378, 304 392, 290 412, 314 440, 400 462, 470 500!, 440 570!, 300 556, 180 530, 94 474, 84 404, 150 342, 300 306, 410 286, 430 264, 370 236, 230 216, 76 208!, 52 190")
p.lines("470 222, 512 248, 522 276", "440 330, 380 344, 320 354", "206 352, 166 368, 138 394")
p.line("30 300, 40 340, 28 380")

p.note("first penguin, on its toes at the edge")
with p.at(112, 186, .86, 10):
    p.one(BODY, limb("32 -72, 66 -84, 94 -112", 30, 28, 18), limb("-32 -72, -64 -64, -98 -82", 32, 28, 18))
    with p.within(*BODY):
        p.one(BIB)
    face(12, -104, "shut")
    cap()
    foot(-26, 1)
    foot(26, 2)

p.note("second penguin sits, scarf flying behind")
with p.at(350, 214, .86, -8):
    scarf = "-26 -92!, -60 -112, -96 -94, -132 -116!, -130 -76!, -96 -60, -62 -76, -30 -62!"
    p.shape(scarf)
    with p.within(scarf):
        p.line("-112 -120, -110 -50", 4)
    p.one(BODY[:3], limb("32 -66, 74 -80, 98 -124", 32, 28, 18), limb("-32 -66, -60 -28, -92 -16", 32, 28, 18))
    with p.within(*BODY[:3]):
        p.one(oval(22, -106, 30, 26), oval(16, -34, 36, 36), "4 -94, 30 -94, 34 -60, 0 -60")
    face(12, -108, "open")
    p.shape("-42 -90!, -42 -64!, 0 -56, 44 -66!, 44 -90!, 4 -78")
    p.shape(oval(68, -6, 15, 25, 14))
    p.shape(oval(44, 2, 16, 26, 4))

p.note("third penguin on its belly, head up")
with p.at(226, 490, .96, 9):
    for x, y, turn in ((-82, -50, 208), (-80, -14, 176)):
        with p.at(x, y, 1, turn):
            p.shape("-20 -8, 4 -9, 24 -18, 33 -10!, 36 0, 33 10!, 24 18, 4 9, -20 8")
    whole = [oval(0, -34, 84, 38, 4), oval(84, -76, 40, 38), "-30 -68, 40 -74, 60 -104, 110 -50, 80 -6, 0 2"]
    p.one(*whole)
    with p.within(*whole):
        p.one(oval(106, -70, 29, 26), "150 -56, 92 -50, 60 -20, -60 -14, -120 30, 120 30")
    face(98, -68, "open", both=True)
    p.one(limb("26 -44, -14 -66, -56 -92", 38, 34, 20), join=(28, -40, 21))

p.note("the seal with open flippers")
SEAL = "4 -128, 38 -114, 52 -78, 60 -30, 82 30, 90 90, -80 90, -72 30, -56 -30, -48 -80, -30 -116"
with p.at(494, 446, .9, 2, flip=True):
    p.one(SEAL, "46 -40, 84 -60, 104 -102, 128 -102, 140 -66, 116 -14, 66 20", "-46 -40, -78 -62, -94 -104, -118 -104, -130 -68, -108 -14, -60 20")
    p.lines("114 -88, 118 -66", "128 -82, 126 -62", "-104 -90, -108 -68")
    with p.within(SEAL):
        p.shape("24 -12, 50 4, 66 50, 70 100, -20 100, -22 40, -4 0")
    p.shape("16 -46!, 22 -20, 44 -22, 48 -48!, 32 -50", 3)
    p.one(oval(16, -56, 22, 16), oval(46, -60, 18, 15))
    p.spot(36, -74, 11, 8)
    p.eye(2, -88, 5.8, look=(1, 0))
    p.eye(34, -96, 5.2)
    p.lines("8 -54, -20 -62", "8 -48, -20 -44", "-8 -106, 0 -112, 8 -109")

p.note("a fish jumps up to look on, water in front")
with p.at(44, 488, 1, -58):
    p.shape("44 6, 16 -18, -20 -14, -40 0!, -58 -16!, -60 24!, -40 10!, -18 26, 20 24")
    p.eye(24, 0, 4)
    p.line("4 -8, -1 4, 4 16")
p.shape(scallops([(660, 478), (480, 490), (240, 512), (-40, 500)], 9, .2, closed=False) + [(-40, 580, True), (660, 580, True)])
p.save()
