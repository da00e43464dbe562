from hand import *
from limbs import palm
from people import head, shoe
from sideface import side_head

p = Page("43", "A children's band on the stage: guitar, drums and trumpet; the cat keeps its paws over its ears")

p.note("stage, curtain")
p.shape("-10 430!, 640 400!, 640 560!, -10 560!")
p.shape("-10 -10!, -10 44!, 70 82, 150 46!, 230 82, 310 46!, 390 82, 470 46!, 550 82, 640 42!, 640 -10!")

p.note("drummer, behind, arms up")
with p.at(340, 176):
    p.shape(limb("2 36, 0 94", 32, 36, flat=True))
    p.tube("-96 14, -50 -64", 12)
    palm(p, -84, 20, -92, .9, "fist", -1)
    p.one("-60 88, -24 68!, 0 80, 24 68!, 56 84, 62 180!, -60 180!", limb("-36 92, -84 100, -82 22", 46, 42, 34, flat=True), limb("34 92, 72 104, 96 118", 46, 40, 34, flat=True))
    p.line("-44 128, -36 110")
    with p.at(0, 0, .98, -6, flip=True):
        head(p, "34", "curly", eyes="", mouth="open", brows=None, ear=False, nose=False)
        p.eye(10, 2, 4.8, "happy")
        p.eye(35, 2, 4.2, "happy")
        p.line("22 8, 27 13, 20 15")

p.note("drums")
p.shape("362 296!, 368 350, 412 358, 452 344!, 458 290!")
p.shape(oval(410, 290, 49, 16, -3))
p.tube("452 300, 382 284", 12)
palm(p, 436, 298, 18, .95, "fist")
p.shape(oval(346, 420, 84, 82))
p.shape(oval(346, 420, 66, 64))
p.shape(star(346, 422, 42))

p.note("trumpeter at the right, in profile, leaning back")
with p.at(532, 0, flip=True):
    p.one(limb("-34 360, -50 420, -54 474", 46, 40, 36, flat=True), limb("10 360, 10 420, 6 478", 54, 42, 36, flat=True))
    shoe(p, -54, 478, 0, .95)
    shoe(p, 6, 482, 0, 1.1)
    p.shape(limb("-26 190, -22 264", 34, 38, flat=True))
    p.shape("-64 268, -60 242, -46 226!, -24 242, -2 226!, 28 250, 36 310, 42 380!, -54 384!, -60 320")
    with p.at(-28, 156, .94, -14):
        side_head(p, "short", eyes="closed", mouth="", brows=8)
        p.line("28 16, 22 24, 28 32")
    p.shape("24 142!, 80 123, 98 104, 112 66!, 142 134!, 108 132, 84 141, 28 158!")
    p.shape(oval(127, 100, 14, 37, -23))
    p.lines("48 116, 48 136", "68 106, 68 130", width=5)
    palm(p, 70, 176, -76, 1, "fist", -1)
    p.one(limb("-28 270, 12 310, 44 276, 68 180", 54, 48, 42, 34, flat=True), join=(-28, 262, 22))

p.note("girl with the guitar, large at the left")
with p.at(136, 490, 1, -6), p.at(0, -340):
    p.shape(limb("38 240, 72 290, 66 338", 54, 46, 38, flat=True))
    p.shape(limb("-30 240, -24 290, -48 330", 54, 44, 38, flat=True))
    shoe(p, -50, 336, 8, 1.12)
    shoe(p, 66, 344, -14, 1.12)
    p.shape("-62 166!, 50 162!, 84 262!, 0 276, -84 268!")
    p.shape(limb("-4 40, -4 100", 34, 38, flat=True))
    p.one("-62 100, -30 76!, -6 88, 18 74!, 48 92, 56 130, 54 176!, 0 186, -66 180!, -66 130", limb("38 100, 74 128, 110 144", 48, 44, 38, flat=True))
    with p.at(6, 0, 1.06, 12):
        head(p, "34", "long", eyes="dot", mouth="open", brows=2)
p.note("guitar: the far hand round its neck, the near one on the strings")
with p.at(130, 350, 1, -19):
    p.shape("60 -12!, 150 -10!, 150 10!, 60 12!")
    p.shape("146 -15!, 184 -19!, 190 0, 184 19!, 146 15!")
    p.one(oval(0, 0, 58, 54), oval(62, 0, 40, 38))
    p.shape(oval(56, 0, 19))
    p.shape("-32 -22!, -20 -22!, -20 22!, -32 22!")
palm(p, 232, 285, 42, .98, "fist", -1)
palm(p, 126, 348, 4, 1.08, "wave")
p.one(limb("92 266, 50 330, 78 358, 128 350", 50, 46, 44, 38, flat=True), join=(92, 262, 29))

p.note("the cat in front, paws over its ears")
with p.at(440, 446):
    p.one("-46 100, -56 60, -40 20, 38 20, 56 60, 48 100", limb("-36 46, -78 6, -62 -54", 38, 36, 28), limb("36 46, 78 6, 62 -54", 38, 36, 28), oval(0, 0, 66, 40))
    p.one(oval(0, -34, 60, 48), "-56 -50!, -54 -104!, -18 -78!", "56 -50!, 54 -104!, 18 -78!")
    p.lines("-28 -48, -12 -40, -28 -32", "28 -48, 12 -40, 28 -32")
    p.shape("-7 -22!, 7 -22!, 0 -14!", 3)
    p.line("-14 2, -7 -6, 0 0, 7 -6, 14 2")
    p.one(oval(-60, -58, 20, 19), limb("-60 -58, -68 -34", 32, 32), join=(-80, -28, 17))
    p.one(oval(60, -58, 20, 19), limb("60 -58, 68 -34", 32, 32), join=(80, -28, 17))

p.note("notes")
p.line("223 158!, 218 110!, 226 122, 242 130", 4)
p.spot(215, 160, 9, 7, -20)
p.save()
