from hand import *
from people import *

p = Page("50", "Carnival: the bear cub walks into the clown's lifted shoe; behind, the princess throws streamers")

p.note("street")
p.shape("-10 452!, 300 420, 630 366!, 630 560!, -10 560!")

p.note("roofs far away")
p.shape("-10 330!, 30 270!, 84 330!, 84 470!, -10 470!")
p.shape("300 420!, 300 270!, 348 222!, 396 270!, 396 420!")

p.shape("-10 452!, 300 420, 630 366!, 630 560!, -10 560!")

p.note("two lines of bunting")
bunting(p, "-10 40, 100 58, 220 48, 330 -40", 4)
bunting(p, "340 -30, 410 40, 520 66, 640 40", 4)

p.note("princess, small and behind, in profile")
with p.at(506, 220, 1.1):
    p.shape(limb("-2 -14, 0 14", 16, 16))
    p.tube("-62 -38, -92 -74, -134 -50, -120 -14, -90 -30, -112 -74, -160 -84, -186 -50", 14)
    p.one(arm("-8 22, -36 8, -56 -30", 17, 14, thumb=-1))
    p.one("-14 4!, 12 4!, 22 34, 34 70, 70 168!, 8 176, -52 168!, -22 74, -22 34", limb("-4 18, -22 16, -34 8", 24, 24, flat=True))
    p.line("-22 74, 4 82, 34 70")
    p.one(arm("12 22, 34 40, 48 62", 17, 14, thumb=1))
    p.one("-2 10, 22 8, 42 36!, 22 50!, 4 36", join=(2, 18, 21))
    with p.at(0, -36, .72, flip=True):
        head(p, "side", "pony", mouth="open", brows=None, r=6.5)
        p.shape("-38 -40!, -48 -90!, -20 -66!, -4 -100!, 12 -66!, 40 -80!, 32 -38!, -4 -50")

p.note("clown: the far arm with its stick")
p.tube("312 232, 356 182", 13)
p.shape(oval(360, 178, 12))
p.one(arm("226 250, 284 266, 310 236", 34, 28, thumb=-1, grip=True))
p.shape(limb("190 232, 236 262, 280 262", 76, 58, flat=True))

p.note("clown: lifted leg, trunk and standing leg are one suit")
p.shape("352 366!, 346 414!, 352 430, 420 420, 436 398, 420 376, 392 384, 376 366!")
p.shape("112 474!, 98 500, 104 514!, 214 514!, 222 490, 196 474, 168 476, 154 466!")
p.line("100 503, 220 503")
trunk = "140 214, 128 250, 112 310, 112 360, 150 384, 214 380, 252 350, 250 300, 240 250, 226 214"
leg1, leg2 = limb("150 350, 138 410, 134 468", 82, 62, flat=True), limb("214 340, 300 322, 344 330, 360 384", 76, 74, 54, flat=True)
p.one(trunk, leg1, leg2, limb("150 238, 108 270, 116 316", 58, 50, flat=True))
p.line("186 226, 180 270, 176 340", 4)
p.line("130 256, 140 276, 138 298")
p.shape(scallops(oval(134, 470, 42, 13), 8, .35))
p.shape(scallops(oval(362, 378, 36, 13, 12), 8, .35))

p.note("drum at the hip")
with p.at(236, 316, 1, 14):
    p.shape("-58 -24!, -56 40, 0 60, 56 40, 58 -24!")
    with p.within("-58 -24!, -56 40, 0 60, 56 40, 58 -24!"):
        p.line("-70 16, 0 40, 70 16", 4)
    p.shape(oval(0, -24, 58, 20))

p.note("clown: the near arm strikes")
p.tube("152 332, 218 288", 13)
p.shape(oval(222, 286, 12))
p.one(arm("114 304, 128 326, 144 334", 32, 28, thumb=-1, grip=True))
p.shape(limb("118 296, 118 312, 122 320", 54, 58, flat=True, steps=4))

p.note("clown: ruff, head, hat")
p.shape(scallops(oval(182, 212, 74, 24, 6), 11, .4))
with p.at(190, 152, 1.08, 12):
    p.shape(scallops(oval(-44, 6, 26, 30), 8, .4))
    p.shape(scallops(oval(46, 2, 16, 24), 7, .4))
    p.shape("0 -50, 30 -38, 44 -10, 46 16, 36 38, 12 50, -14 48, -38 34, -46 6, -42 -26")
    p.eye(6, -10, 6.2)
    p.eye(33, -10, 5.6)
    p.lines("-8 -32, 2 -38, 12 -34", "25 -34, 33 -38, 40 -32")
    p.shape("-8 26, 4 18, 20 22, 36 16, 44 24, 36 38, 16 44, 0 38", 3)
    p.shape(oval(20, 30, 8, 6), 3)
    p.shape(oval(21, 8, 13, 12))
    p.shape("-42 -26!, -16 -112!, 38 -36!, 0 -26")
    p.line("-32 -56, -6 -56, 20 -68")
    p.shape(scallops(oval(-16, -112, 14), 6, .4))

p.note("the bear cub, nose against the shoe")
with p.at(510, 426):
    p.one(oval(44, 44, 34, 38), oval(10, 20, 46, 52, -20), limb("16 56, 6 72, -24 84", 40, 32), oval(79, 66, 13))
    p.one(limb("58 66, 56 86, 34 98", 46, 36), join=(62, 62, 26))
    p.shape(oval(-14, -54, 16))
    p.one(oval(32, -40, 16), oval(0, -16, 48, 42), oval(-44, -6, 22, 17))
    p.spot(-60, -4, 8, 7)
    p.eye(-22, -24, 5, "closed")
    p.eye(8, -24, 5, "closed")
    p.line("-56 8, -44 14, -30 6")
    p.one(limb("22 24, 2 46, -20 58", 34, 28), oval(-24, 58, 17, 15), join=(26, 22, 21))
    p.tube("-24 52, -10 14", 11)
    p.shape(oval(-8, 6, 15))
    p.line("-12 10, -6 10, -4 4")
    
p.lines("432 352, 420 336", "452 342, 450 322", "472 340, 482 324", width=4)
p.save()
