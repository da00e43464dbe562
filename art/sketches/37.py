from contextlib import contextmanager

from hand import *
from limbs import palm, sleeve
from people import *

p = Page("37", "The saint on his white horse rides over the roofs at night: the horse stops for a child's carrot")

p.note("night: moon, stars, gables far away")
p.shape("122 30!, 66 40, 36 92, 62 142, 126 152!, 102 136, 94 118, 88 108!, 106 100, 92 78, 100 52")
p.eye(72, 84, 5.5, "closed")
p.line("62 110, 70 119, 80 118")
p.shape(star(564, 70, 23))
p.shape("574 460!, 574 290!, 606 206!, 640 290!, 640 460!")

@contextmanager
def bowed():
    """Inside the block, the rider leans forward from the saddle."""
    with p.at(320, 336, 1, 7), p.at(-320, -336):
        yield


p.note("stepped gable behind the cat")
p.shape("-10 460!, -10 246!, 14 246!, 14 220!, 40 220!, 40 194!, 84 194!, 84 220!, 110 220!, 110 246!, 136 246!, 136 460!")

p.note("staff in the far hand")
with p.at(20, -11):
    p.tube("400 330, 410 150, 412 92, 428 58, 458 54, 472 78, 458 98, 444 88", 14)
    palm(p, 398, 184, -14, 1, "fist", 1)
    p.shape(limb("340 176, 366 204, 400 184", 46, 40, 32, flat=True))

p.note("roof")
p.shape("-10 456!, 640 456!, 640 560!, -10 560!")
p.shape("-10 444!, 640 444!, 640 560!, -10 560!")
p.line(scallops("648 500, -8 500", 9, .26, False), 4)

p.note("horse: far legs, tail, body with neck and head")
def hoof(x, y, turn=0):
    with p.at(x, y, 1, turn):
        p.shape("-15 -8!, 15 -8!, 21 14!, -21 14!")
p.one(limb("246 340, 250 396, 240 436", 50, 26))
hoof(240, 440)
p.one(limb("388 330, 456 364, 444 408", 56, 34, 26))
hoof(442, 412, 20)
p.shape("182 282!, 146 268, 116 300, 110 360, 92 404!, 124 414, 152 386, 160 340, 172 320!")
p.one("172 300, 186 262, 240 250, 320 264, 392 246, 430 290, 414 344, 356 368, 270 362, 214 368, 180 346",
      limb("392 300, 440 250, 476 236", 118, 84, 58), limb("466 236, 502 278, 524 318", 62, 52, 40), oval(526, 324, 25, 22, 40),
      limb("206 330, 172 386, 186 436", 84, 40, 27), limb("392 326, 402 386, 396 436", 60, 30, 27))
hoof(186, 440)
hoof(396, 440)
p.shape("474 204!, 440 200, 414 214, 402 244!, 420 250, 418 282!, 436 272, 436 300!, 454 274, 458 250, 478 232!")
p.shape("462 220!, 452 180, 484 204, 490 222!")
p.eye(488, 254, 6)
p.spot(540, 318, 3.5)
p.tube("500 302, 532 288", 14)
p.line("508 296, 462 252, 404 262, 384 270", 4)

p.note("cloak over the rump, robe, boot")
p.shape("296 140, 238 180, 206 250, 176 340!, 216 352, 262 342, 290 330!, 330 250, 340 150")
with p.at(336, 366, 1.25, 8):
    p.shape("-20 -26!, -22 -2, -18 18!, 30 20!, 34 8, 18 0, 14 -28!")
with bowed():
    p.one("288 170, 350 166, 380 250, 372 330, 328 346!, 280 336!, 276 250")
    p.line("276 314, 326 326, 388 306")

    p.note("near arm with the reins, collar")
    palm(p, 366, 270, -6, 1.05, "fist", 1)
    sleeve(p, "314 190, 314 262, 368 270", 62, 54, 38)
    p.shape("292 134, 262 176, 262 208!, 306 216, 352 208, 384 190!, 374 162, 348 132")

    p.note("head with beard and mitre, he looks down at the child")
    with p.at(334, 112, .88, 12):
        head(p, "34", "", eyes="white", look=(.8, .9), mouth=None, brows=None, r=4, ear=False, nose=False)
        p.shape("-50 -22!, -60 14, -66 58, -42 72, -24 52, -22 14, -14 -20!")
        p.shape("-24 6!, -34 46, -14 86, 16 110, 40 78, 50 36, 47 8!, 32 20, 8 20, -12 16")
        p.shape("24 10!, 6 10, -10 26, 8 34, 24 24!, 38 33, 54 22, 40 8")
        p.shape("-54 -18!, -54 -66, -6 -122!, 42 -70, 48 -20!, 0 -30")
        p.line("-54 -42, -2 -54, 46 -42", 4)
        p.shape("-10 -96!, 2 -96!, 2 -86!, 12 -86!, 12 -74!, 2 -74!, 2 -64!, -10 -64!, -10 -74!, -20 -74!, -20 -86!, -10 -86!", 3)

p.note("skylight with a child that offers a carrot")
with p.at(520, 402, 1.05, 6):
    p.shape("-15 22, -13 -8, 0 -40!, 13 -8, 15 22, 0 30")
    p.lines("-12 -6, -2 -8", "13 6, 2 4")
palm(p, 532, 440, -106, 1, "fist", -1)
p.shape(limb("590 500, 548 500, 534 438", 40, 34, 27, flat=True))
p.shape("560 540!, 564 492, 586 474, 620 480, 640 540!")
with p.at(582, 420, .86, 8, flip=True):
    head(p, "34", "tuft", mouth="open", brows=None, r=5.6, nose=False)
    p.line("25 3, 30 9, 22 11")
p.shape("476 506!, 640 498!, 640 560!, 468 560!")

p.note("cat on the chimney")
p.one(limb("52 398, 104 404, 112 372", 18, 16, 14))
p.one("24 418!, 18 380, 36 352, 66 356, 88 390, 88 418!", oval(52, 338, 30, 25), "24 330!, 26 296!, 46 314!", "58 312!, 80 298!, 80 330!")
p.eye(50, 334, 4)
p.eye(68, 334, 4)
p.line("54 346, 60 350, 66 346")
p.shape("8 416!, 124 416!, 124 440!, 8 440!")
p.shape("-10 440!, 114 440!, 114 560!, -10 560!")
p.line("-10 486, 114 486", 4)
p.lines("40 463, 76 463", "24 510, 60 510")
p.save()
