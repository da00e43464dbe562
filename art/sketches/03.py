from hand import *
from beasts import *

p = Page("03", "A laughing pig slides down through the mud with its trotters up, a piglet follows, the duckling hides behind its umbrella")

p.note("hills, sty, apple tree")
p.shape("-10 150, 200 120, 420 190, 640 230!, 640 560!, -10 560!")
p.shape(limb("520 160, 516 300", 40, 54, flat=True))
p.shape(scallops("446 106, 460 56, 524 34, 580 52, 590 112, 556 150, 480 150", 10, .38))
for x, y in ((480, 96), (526, 66), (556, 112), (510, 128)):
    p.shape(oval(x, y, 12))
p.shape(box(46, 66, 120, 76))
p.shape("28 70!, 60 22!, 152 22!, 184 70!")
p.shape("82 142!, 82 112, 106 94, 130 112, 130 142!")

p.note("track of mud down the hill")
p.shape("-10 226!, 90 228, 180 240, 270 270, 420 330, 560 400, 640 414!, 640 560!, 100 560!, 104 470, 100 390, 60 320, -10 290!")

p.note("piglet on its belly")
with p.at(88, 212, .9, 12):
    p.shape(limb("-46 -10, -64 -22, -56 -36, -72 -40", 13, 12))
    p.one(oval(-4, 2, 50, 34), oval(36, -14, 34, 31), limb("10 26, 34 42, 56 40", 24, 18), limb("-30 20, -48 40, -70 42", 26, 18))
    p.shape("10 -38!, -6 -68!, 36 -48!")
    p.shape(oval(62, -10, 13, 16, -10))
    p.spot(58, -12, 2.8, 4.5)
    p.spot(66, -11, 2.8, 4.5)
    p.eye(38, -26, 4.5, "happy")
    p.line("36 4, 46 12, 56 9")

p.note("pig: tail, far arm and leg")
with p.at(-22, 4):
    p.shape(limb("214 436, 160 446, 144 424, 162 410, 166 392", 15, 13, steps=15))
    p.shape(limb("330 250, 396 206, 424 140", 50, 40, 34, flat=True))
    hoof(p, 426, 142, 17, 24, 206)
    p.one(limb("360 370, 424 330, 470 300", 76, 52, 40, flat=True))
    hoof(p, 468, 302, 19, 26, -124)

    p.note("pig: body, near leg")
    p.one("238 220, 310 220, 366 276, 392 350, 380 420, 320 462, 240 460, 186 420, 178 340, 196 270",
          limb("300 410, 400 404, 466 380", 96, 62, 44, flat=True))
    hoof(p, 464, 382, 20, 28, -108)
    p.one(limb("236 280, 176 290, 130 352", 58, 46, 36, flat=True), join=(246, 284, 32))
    hoof(p, 134, 346, 18, 26, 34)

    p.shape(scallops(oval(262, 366, 25, 21), 7, .5))
    p.note("pig: head")
    with p.at(290, 176, 1, 8):
        p.shape("-54 -56, -96 -92, -116 -48, -92 -12, -50 -16")
        p.shape("-6 -74, 12 -124!, 50 -96, 46 -58")
        p.one(oval(-4, -6, 82, 74))
        p.shape("-34 20!, 0 34, 50 26!, 36 54, 0 58, -26 46")
        p.shape(oval(50, -2, 34, 29, -6))
        p.spot(42, -2, 6, 9)
        p.spot(62, -3, 6, 9)
        p.eye(-14, -34, 9, "happy")
        p.eye(38, -46, 8, "happy")

p.note("mud splashes up before it")
p.shape("20 540!, 50 500, 96 470, 150 452!, 176 466, 206 460, 236 440!, 262 460, 296 460, 326 440!, 352 458, 390 454, 416 430!, 440 456, 470 460, 500 470, 524 500, 520 540!")
p.line("120 500, 170 490, 216 498")
p.line("330 506, 380 494, 430 504")
for x, y, t in ((452, 236, 30), (500, 340, 50), (580, 300, 60)):
    with p.at(x, y, 1, t):
        p.shape("0 -24!, 12 -2, 11 13, 0 20, -11 13, -12 -2")

p.note("duckling behind the umbrella")
with p.at(526, 430, .9, -50):
    p.shape(limb("0 0, 0 66, -10 80", 11, 11))
    p.shape("-70 6!, -58 -36, 0 -62, 58 -36, 70 6!, 46 -6, 24 6!, 0 -8, -24 6!, -46 -6")
    p.lines("-24 6, -18 -30, 0 -62", "24 6, 18 -30, 0 -62", width=4)
with p.at(566, 464, .9, flip=True):
    p.shape(limb("-8 40, -10 64", 9, 9))
    p.shape(limb("14 40, 12 64", 9, 9))
    p.one(oval(-2, 18, 34, 30), oval(6, -24, 25), "-28 8, -50 -8!, -40 26")
    p.shape("26 -34!, 48 -22!, 26 -14!")
    p.eye(14, -28, 4, "closed")
p.save()
