from hand import *
from limbs import palm
from people import shoe
from sideface import side_head

p = Page("55", "Picnic seen from above: father pours, the girl bites the melon, a squirrel pulls the cake away, ants carry a cherry")

p.note("the wood behind")
p.shape("-10 96, 140 84, 330 96, 640 78!, 640 560!, -10 560!")
p.shape("520 -10!, 524 40, 514 74, 496 96!, 640 92!, 640 -10!")

p.note("the cloth")
p.shape(oval(390, 328, 424, 150))
with p.within(oval(390, 328, 422, 148)):
    p.lines("92 254, 330 258, 680 250", "92 391, 330 396, 680 386", "262 160, 236 300", "326 160, 314 330, 330 500", "420 160, 436 330, 440 500", width=4)

p.note("cake on its plate, tugged off the cloth by the squirrel")
with p.at(298, 148, 1, -8):
    p.shape(oval(0, 22, 74, 22))
    p.shape("-48 -24!, -48 14, 0 30, 48 14, 48 -24!")
    p.shape("-48 -26, -40 -2, -26 -8, -10 10, 8 -2, 26 8, 48 -26, 0 -44")
    p.shape(oval(0, -46, 12))
with p.at(182, 122, .92):
    p.shape("-34 44, -80 44, -106 6, -96 -44, -60 -62, -32 -42, -38 -12, -58 -18, -60 8, -30 26")
    p.one(limb("-4 56, 26 74, 40 70", 26, 18), oval(-16, 28, 28, 40, 24), limb("-10 56, 8 78, 22 80", 28, 18))
    p.shape("-26 -34!, -24 -66, -8 -52, -2 -38!")
    p.one("-28 -20, -10 -42, 16 -38, 36 -18, 50 -6, 40 8, 10 12, -18 6")
    p.spot(48, -8, 6)
    p.eye(16, -20, 5.5)
    p.line("44 8, 30 5, 20 -3")
    p.one(limb("-10 26, 20 46, 46 46", 22, 16), oval(56, 48, 11), join=(-12, 14, 15))

p.note("girl in profile with the melon, on a cushion")
p.shape(oval(536, 398, 64, 24))
with p.at(514, 0, flip=True):
    p.one(limb("-10 352, 46 340, 84 314", 60, 52, 46), limb("84 314, 94 356, 98 400", 42, 36, 32, flat=True))
    shoe(p, 98, 402, 0, .98)
    p.shape(limb("2 206, -2 262", 30, 34, flat=True))
    p.shape("-44 268, -16 238!, -2 250, 14 236!, 34 258, 40 330, 24 386, -48 396, -72 346, -54 290")
    with p.at(8, 170, .96):
        side_head(p, "tails", eyes="happy", mouth="open", brows=None)
    p.shape("62 142!, 64 234!, 102 230, 126 206, 126 168, 102 144")
    p.line("62 216, 90 212, 109 196, 108 174, 92 158, 63 158")
    for x, y in ((77, 178), (91, 186), (77, 198)):
        p.spot(x, y, 2.6, 4)
    p.one(limb("-28 358, 30 350, 66 318", 70, 60, 48), limb("66 316, 68 356, 66 408", 46, 38, 32, flat=True), join=[(-34, 358, 34), (-8, 356, 30)])
    shoe(p, 66, 412, 0, 1.0)
    palm(p, 64, 262, -52, .95, "fist", -1)
    p.one(limb("-10 268, 14 308, 36 302, 66 260", 46, 44, 40, 34, flat=True), join=(-14, 262, 24))

p.note("cup, jug")
p.shape("328 354!, 334 406, 374 406, 382 354!")
p.shape(oval(355, 354, 27, 9))
p.tube("362 266, 372 296, 360 354", 15)
with p.at(297, 300, 1.06, 25):
    p.tube("-24 -26, -64 -28, -66 22, -32 24", 17)
    p.shape("-28 -44!, -22 -20, -40 14, -26 48, 26 48, 40 14, 22 -20, 28 -42!")
    p.shape("-32 -46, -14 -54, 14 -55, 54 -60!, 34 -40, 6 -36, -20 -38")
    p.shape(heart(0, 14, 16))

p.note("father from behind, kneeling near us, pours")
palm(p, 232, 292, -88, 1.1, "fist")
p.shape(limb("90 330, 90 392", 50, 56, flat=True))
p.one("-10 420, 20 388, 58 368!, 90 380, 124 368!, 160 384, 184 430, 188 560, -10 560", limb("150 408, 212 408, 232 296", 56, 50, 40, flat=True))
p.line("152 456, 158 506")
with p.at(92, 300, .96):
    p.one("-42 40!, -58 -8, -42 -46, 0 -60, 42 -46, 58 -8, 42 40!, 0 48, -42 40!", oval(-58, 6, 14, 17), oval(58, 6, 14, 17))
    p.line("-14 -30, 2 -26, 6 -38, -6 -44")

p.note("ants with a cherry")
for x, y in ((346, 504), (430, 503), (542, 502)):
    with p.at(x, y, 1.1):
        for i in (-14, 0, 14):
            p.line(f"{i * .5} 4, {i} 17")
        p.one(oval(-16, 0, 12, 8), oval(2, 0, 9, 7), oval(18, -4, 11, 10))
        p.line("22 -10, 32 -22")
p.shape(oval(490, 476, 26, 23))
p.line("490 456, 488 444, 478 436")
p.save()
