from hand import *
from people import *

p = Page("43", "A children's band on the stage: guitar, drums and trumpet; the cat keeps its paws over its ears")

p.note("stage, curtain")
p.shape("-10 420!, 640 388!, 640 560!, -10 560!")
p.shape("-10 -10!, 92 -10!, 84 130, 96 260, 70 420!, -10 424!")
p.lines("30 90, 34 250", "62 90, 66 200")
p.shape(scallops("-20 -20, -20 46!, 160 60, 310 50, 470 62, 640 48!, 640 -20", 14, .3))
p.out.pop()
p.shape("-10 -10!, -10 40!, 40 70, 110 44!, 170 74, 236 44!, 300 74, 370 44!, 434 74, 500 44!, 560 72, 640 40!, 640 -10!")

p.note("drummer, behind, arms up")
with p.at(334, 176):
    p.shape(limb("0 36, 0 70", 28, 28))
    p.tube("-92 6, -56 -72", 11)
    p.tube("74 60, 100 -20", 11)
    p.one(arm("-104 66, -108 40, -96 8", 30, 24, thumb=1, grip=True))
    p.one(arm("68 100, 80 80, 76 52", 30, 24, thumb=-1, grip=True))
    p.one("-34 64, 0 60, 36 64, 50 180!, -50 180!", limb("-30 78, -70 112, -104 74", 42, 44, 38, flat=True), limb("30 78, 48 118, 72 100", 42, 44, 38, flat=True))
    with p.at(0, 0, .98, -6, flip=True):
        head(p, "34", "curly", eyes="happy", mouth="open", brows=None)

p.note("cymbal and drums")
p.shape("244 296!, 248 352, 300 364, 348 350!, 350 292!")
p.shape(oval(297, 292, 54, 17, -3))
p.shape("336 296!, 344 350, 392 358, 432 344!, 438 290!")
p.shape(oval(387, 290, 52, 17, -3))
p.shape(oval(346, 414, 82, 80))
p.shape(oval(346, 414, 62, 60))
p.shape(star(346, 416, 40))

p.note("trumpeter at the right, in profile, leaning back")
with p.at(528, 0, flip=True):
    p.one(limb("-16 350, -8 420, -2 470", 56, 44, 40, flat=True), limb("16 350, 44 420, 46 466", 50, 42, 38, flat=True))
    shoe(p, 46, 470, 4, 1.0)
    shoe(p, -4, 476, 4, 1.1)
    p.shape(limb("-24 190, -12 240", 26, 26))
    p.shape("-36 228!, 8 226!, 30 260, 36 320, 44 376!, -42 376!, -48 300, -52 250")
    p.shape(heart(4, 300, 20))
    with p.at(-26, 158, .92, -16):
        head(p, "side", "short", eyes="closed", mouth="", brows=8)
        p.line("28 16, 22 24, 28 32")
    p.shape("26 142!, 84 124, 108 104, 124 66!, 152 128!, 116 128, 90 140, 30 158!")
    p.shape(oval(138, 97, 13, 34, -24))
    for i in (0, 16, 32):
        p.line(f"{52 + i} {112 - i * .6}, {52 + i} {134 - i * .3}", 4)
    p.one(arm("62 216, 72 190, 76 166", 26, 24, thumb=1, grip=True))
    p.one(limb("-18 256, 20 288, 40 276, 60 222", 48, 44, 40, 34, flat=True), join=(-18, 250, 25))

p.note("girl with the guitar, large at the left")
with p.at(136, 490, 1, -6), p.at(0, -340):
    p.one(limb("-26 240, -24 290, -48 330", 54, 44, 38, flat=True), limb("34 240, 70 290, 66 338", 54, 46, 38, flat=True))
    shoe(p, -50, 336, 8, 1.12)
    shoe(p, 66, 344, -14, 1.12)
    p.shape(limb("-4 40, -6 76", 28, 28))
    p.one("-40 72!, 32 72!, 54 110, 60 180, 84 264!, -76 268!, -58 180, -60 110", limb("30 96, 66 130, 108 146", 46, 36, flat=True))
    p.line("-72 240, 0 248, 80 238")
    with p.at(6, 0, 1.06, 12):
        head(p, "34", "long", eyes="dot", mouth="open", brows=2)
p.note("guitar: the far hand round its neck")
p.one(arm("226 300, 234 300, 238 300", 30, 26, thumb=-1, grip=True))
with p.at(130, 340, 1, -19):
    p.shape("56 -13!, 158 -11!, 158 11!, 56 13!")
    p.shape("154 -16!, 200 -19!, 200 19!, 154 16!")
    p.one(oval(0, 0, 56, 52), oval(64, 0, 42, 40))
    p.shape(oval(56, 0, 19))
    p.shape(box(-34, -20, 14, 40), 3)
p.one(limb("252 318, 254 290", 26, 24, steps=3))
p.one(arm("104 352, 116 346, 124 340", 32, 28, thumb=-1))
p.one(limb("98 248, 62 312, 72 340, 108 350", 52, 46, 44, 38, flat=True), join=(100, 244, 27))

p.note("the cat in front, paws over its ears")
with p.at(440, 446):
    p.shape("44 54, 92 60, 108 20, 90 0, 82 12, 92 22, 84 40, 46 34")
    p.one(limb("-20 60, -26 84", 40, 34), limb("24 60, 28 84", 40, 34), "-46 100, -58 50, -30 0, 28 0, 56 50, 48 100")
    p.one(oval(0, -34, 60, 48), "-56 -50!, -54 -104!, -18 -78!", "56 -50!, 54 -104!, 18 -78!")
    p.lines("-28 -48, -12 -40, -28 -32", "28 -48, 12 -40, 28 -32")
    p.shape("-7 -22!, 7 -22!, 0 -14!", 3)
    p.line("-14 2, -7 -6, 0 0, 7 -6, 14 2")
    p.one(limb("-38 40, -78 4, -60 -54", 34, 32, 28), oval(-58, -60, 18), join=(-34, 42, 20))
    p.one(limb("38 40, 78 4, 60 -54", 34, 32, 28), oval(58, -60, 18), join=(34, 42, 20))

p.note("notes")
p.line("230 150, 226 104, 246 112")
for x, y in ((222, 152),):
    p.spot(x, y, 8, 6.5, -20)
p.save()
