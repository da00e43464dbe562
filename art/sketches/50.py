from hand import *
from limbs import palm
from sideface import side_head

p = Page("50", "Carnival: the bear cub walks into the clown's lifted shoe; behind, the princess throws streamers")

p.note("street")
p.shape("-10 452!, 300 420, 630 366!, 630 560!, -10 560!")

p.note("two lines of bunting")
bunting(p, "-10 40, 100 58, 220 48, 330 -40", 2, 56)
bunting(p, "340 -30, 410 40, 520 66, 640 40", 2, 56)

p.note("princess, small and behind, in profile, throwing streamers")
p.tube("422 200, 396 206, 388 228, 410 248, 408 272, 428 288", 13)
p.tube("416 188, 386 174, 386 142, 414 126, 404 96, 366 94, 336 112, 306 104", 13)
with p.at(506, 220, 1.1):
    palm(p, -74, -18, -124, .72, "wave", -1)
    p.shape(limb("-6 22, -52 20, -74 -16", 28, 24, 20, flat=True))
    p.shape(limb("-1 -16, 2 30", 18, 20, flat=True))
    p.shape("-26 14, -10 2!, 2 10, 14 2!, 28 18, 30 50, 32 74!, 4 82, -26 76!, -28 44")
    p.shape("-26 74!, 4 82, 32 72!, 66 112, 84 166!, 20 186, -56 172!, -44 120")
    with p.at(0, -36, .76, flip=True):
        side_head(p, "pony", mouth="open", brows=None, r=6.5)
        p.shape("-38 -40!, -48 -90!, -20 -66!, -4 -100!, 12 -66!, 40 -80!, 32 -38!, -4 -50")
    palm(p, 42, 74, 100, .7, "flat", -1)
    p.one(limb("16 22, 40 44, 42 74", 28, 24, 20, flat=True), join=(14, 18, 14))

p.note("clown: the far arm lifts its stick")
p.tube("318 222, 344 176", 13)
p.shape(oval(348, 170, 13))
palm(p, 306, 240, -60, 1, "fist")
p.shape(limb("194 250, 262 286, 310 236", 74, 60, 40, flat=True))

p.note("clown: lifted leg, trunk and standing leg are one suit")
with p.at(386, 366, .86, -34):
    p.shape("-34 -6!, -38 26, -34 44!, 70 44!, 78 20, 62 2, 30 6, 12 -8!")
    p.line("-35 31, 77 31")
p.shape("112 474!, 98 500, 104 514!, 214 514!, 222 490, 196 474, 168 476, 154 466!")
p.line("100 503, 220 503")
trunk = "118 214, 100 246, 94 300, 100 350, 124 384, 180 392, 230 376, 250 340, 240 290, 224 250, 206 212"
leg1, leg2 = limb("152 350, 150 410, 138 470", 92, 76, 58, flat=True), limb("190 346, 262 306, 318 286, 350 308, 372 362", 90, 84, 74, 66, 50, flat=True)
p.one(trunk, leg1, leg2)
p.shape(scallops(oval(138, 470, 42, 13), 8, .35))
p.shape(scallops(oval(370, 356, 37, 13, -22), 8, .35))
p.spot(176, 250, 6)

p.note("drum at the hip")
with p.at(206, 308, .94, 8):
    p.shape("-58 -24!, -56 40, 0 60, 56 40, 58 -24!")
    with p.within("-58 -24!, -56 40, 0 60, 56 40, 58 -24!"):
        p.line("-70 16, 0 40, 70 16", 4)
    p.shape(oval(0, -24, 58, 20))
    p.line("-58 -20, -86 -60, -72 -90", 4)
    p.out.pop()

p.note("clown: the near arm strikes")
p.tube("132 338, 196 284", 13)
p.shape(oval(200, 280, 13))
palm(p, 114, 350, -36, 1.05, "fist")
p.one(limb("122 252, 72 306, 80 354, 116 350", 62, 54, 48, 40, flat=True), join=(124, 244, 33))

p.note("clown: ruff, head, hat")
p.shape(scallops(oval(162, 210, 74, 24, 4), 11, .4))
with p.at(168, 151, 1.08, 8):
    p.shape(scallops(oval(-44, 6, 26, 30), 8, .4))
    p.shape(scallops(oval(46, 2, 16, 24), 7, .4))
    p.shape("0 -50, 30 -38, 44 -10, 46 16, 36 38, 12 50, -14 48, -38 34, -46 6, -42 -26")
    p.eye(6, -10, 6.2)
    p.eye(33, -10, 5.6)
    p.lines("-8 -32, 2 -38, 12 -34", "25 -34, 33 -38, 40 -32")
    p.shape("-8 26, 4 18, 20 22, 36 16, 44 24, 36 38, 16 44, 0 38", 3)
    p.line("8 29, 21 33, 33 27")
    p.shape(oval(21, 8, 13, 12))
    p.shape("-42 -26!, -16 -112!, 38 -36!, 0 -26")
    p.line("-31 -56, -8 -56, 12 -68")
    p.shape(scallops(oval(-16, -112, 14), 6, .4))

p.note("the bear cub, nose against the shoe")
with p.at(500, 416):
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
p.save()
