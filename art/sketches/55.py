from hand import *
from people import *

p = Page("55", "Picnic seen from above: father pours, the girl bites the melon, a squirrel pulls the cake away, ants carry a cherry")

p.note("the wood behind")
p.shape("-10 96, 140 84, 330 96, 640 78!, 640 560!, -10 560!")
p.shape("-10 -10!, -10 128!, 98 128!, 70 70, 72 40, 78 -10!")
p.line("34 24, 32 80")
p.shape(scallops("150 90!, 150 50, 200 16, 260 20, 300 56, 300 92!", 6, .3, closed=False))
p.out.pop()
p.shape("404 -10!, 408 40, 398 84, 380 104!, 470 104!, 452 80, 448 40, 452 -10!")

p.note("the cloth")
p.shape(oval(330, 330, 270, 156))
with p.within(oval(330, 330, 268, 154)):
    p.lines("220 100, 186 300, 150 540", "346 100, 350 300, 346 540", "40 246, 330 254, 620 246", "20 346, 330 356, 640 346", width=4)

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
p.shape(oval(548, 394, 64, 24))
with p.at(514, 0, flip=True):
    p.shape(limb("2 206, -2 240", 28, 28))
    p.one("-28 234!, 22 230!, 40 270, 38 340, 20 386, -50 390, -72 340, -50 280", limb("-30 352, 40 350, 76 316", 70, 58, 50))
    p.line("-64 320, -40 324")
    p.out.pop()
    p.one(limb("76 318, 92 356, 96 400", 42, 36, 32, flat=True))
    shoe(p, 96, 402, 4, .98)
    with p.at(8, 170, .96):
        head(p, "side", "tails", eyes="happy", mouth="open", brows=None)
    p.shape("54 142!, 56 232!, 92 228, 116 204, 116 168, 92 144")
    p.line("54 214, 82 210, 100 194, 98 174, 84 160, 53 158")
    p.lines("68 178, 68 184", "80 192, 78 197")
    p.one(limb("-30 352, 36 344, 74 314", 66, 58, 46), limb("74 312, 72 352, 64 406", 46, 38, 32, flat=True), join=(-32, 352, 36))
    shoe(p, 64, 412, 4, 1.0)
    p.one(arm("54 278, 68 262, 76 250", 28, 24, thumb=1))
    p.one(limb("-8 262, 14 304, 34 302, 54 272", 46, 42, 40, 34, flat=True), join=(-8, 256, 23))

p.note("cup, jug, sandwich")
with p.at(-58, 42):
    p.shape("352 332!, 360 384, 400 384, 408 332!")
    p.shape(oval(380, 332, 28, 9), 3)
    p.tube("334 286, 366 290, 378 332", 15)
    with p.at(296, 302, 1.1, 42):
        p.tube("-24 -18, -62 -18, -60 26, -28 24", 17)
        p.shape("-28 -44!, -20 -20, -36 12, -26 44, 26 44, 36 12, 20 -20, 38 -48!")
        p.line("-22 -26, 4 -20, 22 -26", 4)

p.note("father from behind, kneeling near us")
with p.at(0, 112, .8):
    p.shape(limb("146 330, 146 380", 56, 56))
    p.one("98 366, 146 356, 192 366, 228 394, 250 470, 250 570, 20 570, 28 470, 64 394", limb("206 402, 252 420, 280 382", 62, 56, 46, flat=True))
    p.line("210 466, 216 510")
    p.shape("112 358, 146 372, 180 358, 188 374, 146 392, 104 374", 3)
    p.one(arm("278 392, 284 364, 286 346", 36, 32, thumb=1, grip=True))
    with p.at(146, 286, 1.05):
        p.shape(oval(-61, 4, 18, 19))
        p.shape(oval(61, 4, 18, 19))
        p.one("-38 34!, -54 -10, -38 -48, 0 -60, 40 -46, 54 -8, 38 34!, 20 46, -20 46")
        p.lines("-22 46, -20 28", "2 48, 2 32", "24 46, 22 30")

p.note("ants with a cherry")
for x, y in ((440, 512), (540, 502)):
    with p.at(x, y, 1.1):
        for i in (-14, 0, 14):
            p.line(f"{i * .5} 4, {i} 18")
        p.one(oval(-16, 0, 12, 8), oval(2, 0, 9, 7), oval(18, -4, 11, 10))
        p.line("22 -10, 32 -22")
p.shape(oval(490, 476, 26, 23))
p.line("490 456, 498 438, 514 430")
p.save()
