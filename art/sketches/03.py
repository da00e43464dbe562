from hand import *
from beasts import *

p = Page("03", "A laughing pig slides down through the mud with its trotters up, a piglet follows, the duckling hides behind its umbrella")

p.note("hills, sty, apple tree")
p.shape("-10 150, 200 120, 420 190, 640 230!, 640 560!, -10 560!")
p.shape(limb("520 160, 516 300", 40, 54, flat=True))
p.shape(scallops("446 106, 460 56, 524 34, 580 52, 590 112, 556 150, 480 150", 10, .38))
for x, y in ((480, 96), (526, 66), (556, 112), (510, 128)):
    p.shape(oval(x, y, 12))
p.shape(box(26, 70, 106, 90))
p.shape("8 74!, 38 28!, 120 28!, 150 74!")
p.shape("54 160!, 54 130, 78 110, 102 130, 102 160!")

p.note("track of mud down the hill")
p.shape("-10 226!, 90 228, 180 240, 270 270, 420 330, 560 400, 640 414!, 640 560!, 100 560!, 110 490, 100 440, 60 396, -10 380!")

p.note("piglet on its belly")
with p.at(66, 332, .84, 16):
    p.shape(limb("-46 -10, -64 -22, -56 -36, -72 -40", 13, 12))
    p.one(oval(-4, 2, 50, 34), oval(36, -14, 34, 31), limb("10 26, 34 42, 56 40", 24, 18), limb("-30 20, -48 40, -70 42", 26, 18))
    p.shape("10 -38!, -6 -68!, 36 -48!")
    p.shape(oval(62, -10, 13, 16, -10))
    p.spot(58, -12, 2.8, 4.5)
    p.spot(66, -11, 2.8, 4.5)
    p.eye(38, -26, 4.5, "happy")
    p.line("36 4, 46 12, 56 9")

p.note("pig: tail, far arm and leg")
def trotter(x, y, w, turn):
    """A cloven trotter whose upper edge lies at (x, y), toes to the top when not turned."""
    with p.at(x, y, w / 18, turn):
        p.shape("-18 2!, -23 -16, -19 -34, -9 -38, -2 -33!, 0 -24!, 3 -33!, 11 -38, 20 -34, 23 -16, 18 2!, 0 6")
with p.at(-22, 4):
    p.shape(limb("214 446, 160 452, 140 428, 164 412, 162 388", 15, 13, steps=15))
    p.one(limb("322 262, 384 254, 416 210, 420 168", 56, 50, 42, 36, flat=True))
    trotter(420, 170, 18, 4)
    p.one(limb("330 368, 412 344, 464 284", 88, 62, 42, flat=True))
    trotter(463, 286, 21, 36)

    p.note("pig: body, near leg, near arm")
    p.one("232 224, 316 224, 358 268, 384 326, 374 380, 340 440, 300 470, 232 470, 186 428, 180 350, 200 280",
          limb("300 424, 394 440, 464 406", 112, 84, 50, flat=True), limb("240 268, 176 270, 132 212", 58, 50, 40, flat=True))
    trotter(463, 407, 23, 58)
    trotter(133, 214, 20, -28)
    p.line("384 386, 356 390, 334 406")
    p.line("262 372, 268 384, 278 380")
    p.note("mud on its belly")
    p.shape("228 376, 218 356, 196 362, 190 384, 202 394, 204 410, 218 416, 230 404, 248 408, 256 390, 244 378")
    p.shape("300 300, 318 280, 342 292, 346 312, 336 322, 338 338, 322 346, 312 330, 290 332, 286 314")
    p.line("224 300, 212 308, 206 322")
    p.note("pig: head")
    with p.at(290, 176, 1, 8):
        p.shape("-70 -14, -104 -40, -112 -76, -92 -116!, -58 -96, -34 -62")
        p.shape("-6 -74, 12 -124!, 50 -96, 46 -58")
        p.one(oval(-4, -6, 82, 74))
        p.shape("-34 20!, 0 34, 50 26!, 36 54, 0 58, -26 46")
        p.shape(oval(50, -2, 34, 29, -6))
        p.spot(42, -2, 6, 9)
        p.spot(62, -3, 6, 9)
        p.eye(-14, -34, 9, "happy")
        p.eye(38, -46, 8, "happy")

p.note("mud splashes up before it")
p.shape("14 540!, 30 500, 62 470, 92 446, 100 414!, 116 444, 150 456, 206 444, 262 454, 320 444, 380 456, 430 452, 456 452, 470 436!, 484 464, 506 498, 516 540!")
p.line("110 504, 160 492, 206 500")
p.line("320 508, 370 496, 420 506")
for x, y, t in ((462, 196, 20), (530, 326, 50), (584, 276, 60)):
    with p.at(x, y, 1, t):
        p.shape("0 -24!, 12 -2, 11 13, 0 20, -11 13, -12 -2")

p.note("duckling behind the umbrella")
with p.at(546, 432, .84, -24):
    p.shape(limb("-6 -10, -26 72", 11, 11))
    p.shape("-70 6!, -58 -36, 0 -62, 58 -36, 70 6!, 46 -6, 24 6!, 0 -8, -24 6!, -46 -6")
    p.lines("-24 6, -18 -30, 0 -62", "24 6, 18 -30, 0 -62", width=4)
with p.at(586, 472, .78, flip=True):
    p.shape(limb("-8 40, -10 64", 9, 9))
    p.shape(limb("14 40, 12 64", 9, 9))
    p.one(oval(-2, 18, 34, 30), oval(6, -24, 25), "-28 8, -50 -8!, -40 26")
    p.shape("26 -32!, 40 -23!, 26 -14!")
    p.eye(14, -28, 4, "closed")
    p.shape("-14 14!, 6 6, 30 14, 46 28, 26 32, 4 34, -12 28!")
p.save()
