from hand import *
from limbs import palm
from beasts import chick, hoof
from sideface import side_head

p = Page("46", "Feeding the animals: the hens run for the grain, the goat eats the girl's bow, the donkey would like some too")

p.note("barn and field far away")
p.shape("-10 214!, 160 190, 360 206, 640 180!, 640 560!, -10 560!")
p.shape("36 204!, 36 100!, 92 46!, 172 46!, 226 100!, 226 200!")

p.note("donkey behind the fence")
with p.at(436, 130):
    p.shape("-26 -40!, -66 -88, -60 -122, -34 -106, -4 -52!")
    p.one("-30 -50, 10 -66, 46 -40, 96 0, 140 20, 230 20, 230 230, 96 230, 66 150, 56 108, 20 46, -40 78, -72 96, -100 84, -104 58, -78 30, -52 -20")
    p.shape("0 -54!, 10 -112, 36 -128, 44 -96, 26 -48!")
    
    p.shape("-58 12, -30 34, -44 80, -74 98, -102 86, -106 58, -82 30")
    p.spot(-90, 58, 5)
    p.line("-84 82, -72 80, -60 70")
    p.eye(-36, -14, 6.5)
    p.line("-48 -34, -38 -38, -28 -32")
    p.shape(scallops("8 -62, 60 -42, 104 -6, 140 10", 5, .3, False) + [(128, 26, False), (96, 12, False), (54, -16, False), (28, -38, False)])
for y in (202,):
    p.shape(box(330, y, 320, 26))
for x in (414,):
    p.shape(f"{x} 300!, {x} 150!, {x + 16} 136!, {x + 32} 150!, {x + 32} 300!")

p.note("girl in profile scatters grain with the far hand")
with p.at(240, 150, flip=True):
    for x in (22, -30):
        p.shape(limb(f"{x} 220, {x} 300", 36, 32, flat=True))
        with p.at(x, 288):
            p.shape("-20 0!, -22 36, -20 50!, 44 50!, 43 38, 24 26, 20 0!")
    palm(p, 104, 108, 14, 1, "flat", -1)
    p.shape(limb("22 70, 66 88, 106 108", 44, 38, 34, flat=True))
    p.shape(limb("8 26, 2 90", 32, 36, flat=True))
    p.shape("-44 72, -18 52!, 2 62, 20 48!, 38 68, 40 130, 60 236!, 0 250, -76 238!, -54 140, -50 92")
    p.line("-54 140, 0 150, 40 132", 4)
    with p.at(18, -8, 1.02, 8):
        side_head(p, "tails", mouth="open", brows=None)
        p.shape("46 -18!, 20 -34, -24 -26, -56 -4!, -62 -34, -36 -62, 6 -72, 38 -50")
        p.shape("30 -38!, 76 -26, 66 -12, 20 -22, -58 -2!, -60 -14, -10 -38")
    with p.at(46, 176):
        p.line("-36 0, -26 -34, 24 -34, 36 0", 4)
        p.shape("-40 0!, -28 66!, 28 66!, 40 0!")
        p.shape(oval(0, 0, 40, 12))
    palm(p, 36, 144, 4, 1, "fist")

    p.one(limb("-12 92, -16 132, 4 143, 40 142", 38, 40, 38, 34, flat=True), join=(-12, 86, 20))
for x, y in ((128, 282), (96, 292), (122, 314)):
    p.line(f"{x} {y}, {x - 4} {y + 8}", 4)

p.note("goat pulls at the bow: it leans back, its front legs braced, its rump low")
p.shape(limb("530 396, 508 440, 534 464, 528 496", 54, 32, 22, 22, flat=True))
p.shape(limb("494 384, 474 434, 462 488", 40, 28, 22, flat=True))
hoof(p, 528, 492, 14, 18)
hoof(p, 462, 484, 13, 18, 10)
p.shape(limb("446 244, 456 208, 484 190", 24, 20, 10))
p.one("372 288, 404 262, 440 250, 466 274, 490 318, 530 334, 568 338, 592 358, 600 398, 576 432, 520 420, 470 400, 444 362, 432 322, 404 322, 372 318, 360 304",
      limb("468 364, 440 420, 414 486", 62, 32, 24, flat=True), limb("566 386, 560 436, 588 468, 576 500", 76, 54, 28, 24, flat=True), limb("584 350, 604 338, 600 316", 20, 18, 12))
hoof(p, 413, 482, 14, 18, 14)
hoof(p, 576, 496, 14, 18)
p.shape("402 318!, 400 352, 414 346!, 424 360!, 430 322!")
p.shape("452 262, 486 258, 506 278, 484 290, 456 282")
p.eye(412, 282, 6)

p.note("the girl's bow, one end in the goat's mouth")
p.shape("304 300!, 330 320, 364 298!, 370 316!, 332 340, 296 314!")
p.shape("296 290!, 274 262, 252 272, 258 298, 280 308!")
p.shape("306 288!, 312 260, 334 250, 346 270, 322 296!")
p.shape(oval(302, 297, 13, 13))

p.note("hens in front, large, beaks to colour")
with p.at(80, 448, .8, -10):
    p.shape("-84 -20!, -116 -70, -94 -84, -76 -66, -70 -96, -50 -84, -40 -40!")
    p.one("-88 -30, -50 -34, -10 -46, 20 -90, 50 -100, 74 -82, 76 -56, 62 -20, 46 40, 0 70, -56 56, -86 10")
    p.shape("20 -92!, 22 -120, 38 -110, 48 -126, 60 -110, 76 -108, 66 -86!, 44 -100")
    p.shape("72 -78!, 108 -58, 70 -52!")
    p.shape("70 -52!, 86 -36, 74 -20, 62 -36!")
    p.eye(54, -76, 5)
    p.shape("-54 -12, -6 -16, 14 4, -8 26, -44 24, -66 6")
    p.lines("-30 66, -34 80, -44 86", "-34 80, -26 88", "10 66, 14 80, 6 88", "14 80, 24 86", width=4)
with p.at(346, 510, .84, flip=True):
    chick(p)
p.save()
