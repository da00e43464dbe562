from hand import *
from limbs import palm
from people import head, shoe
from sideface import side_head

p = Page("54", "Ducks in the park: the girl offers bread, the ducklings follow in a line, one sits on the sleeping grandfather's hat")

p.note("park far away, path")
p.shape(scallops("-30 -30, -30 150, 60 166, 160 166, 240 130, 250 60, 230 -30", 11, .3))
p.shape(scallops("420 -30, 404 50, 470 106, 560 100, 660 110, 680 -30", 9, .3))
p.shape("-10 236, 200 216, 420 232, 640 214!, 640 560!, -10 560!")

p.note("bench with grandfather asleep: thighs towards us, shins down, shoes on the path")
p.shape(box(26, 150, 250, 46))
p.shape(box(36, 262, 18, 100))
p.shape(box(16, 251, 270, 18))
with p.at(140, 130):
    for x, side in ((-34, -1), (34, 1)):
        p.shape(limb(f"{x} 166, {x + side * 4} 222", 40, 34, flat=True, steps=3))
        with p.at(x + side * 4, 222, 1.1, side * 6, flip=side < 0):
            p.shape("-15 -8!, -18 6, -18 20!, 34 20!, 36 8, 20 0, 13 -8!")
    p.shape(limb("2 36, 0 84", 36, 40, flat=True))
    p.one("-60 108, -52 84, -22 66!, 0 80, 22 64!, 52 82, 60 106, 50 158!, 0 166, -50 158!", limb("42 92, 70 132, 26 136", 42, 38, 32, flat=True), limb("-42 92, -70 136, -22 140", 42, 38, 32, flat=True))
    p.one(limb("-24 144, -36 170", 60, 50, steps=4), limb("24 144, 36 170", 60, 50, steps=4))
    palm(p, 26, 136, 174, .95, "flat", -1)
    p.one(limb("42 92, 70 132, 26 136", 42, 38, 32, flat=True), join=(38, 86, 29))
    palm(p, -22, 140, -2, 1.02, "flat")
    p.one(limb("-42 92, -70 136, -22 140", 42, 38, 32, flat=True), join=(-38, 86, 29))
    with p.at(8, 0, 1.02, 12):
        head(p, "34", "bald", eyes="closed", mouth="", brows=None, ear=False, r=4, nose=False)
        p.shape("21 19!, 8 16, -6 25, -20 18, -15 36, 8 41, 22 31!, 34 38, 50 35, 58 19, 44 26, 34 17")
        p.shape(oval(21, 11, 10, 9))
        p.shape("-54 -16!, -50 -34, 40 -34, 60 -14!, 10 -24")
        p.shape("-46 -32!, -40 -62, 0 -70, 34 -60, 40 -32!")
    with p.at(6, -92, .82):
        p.shape("-34 24, -44 0!, -26 -4, -6 -2, -4 -28, 14 -40, 32 -28, 32 -6, 24 16, 8 28")
        p.shape("30 -28!, 52 -18, 31 -12!")
        p.eye(16, -24, 4.4)
        p.line("-24 8, -12 16, 2 8")
p.note("girl squats at the water's edge, in profile")
with p.at(470, 210, flip=True):
    p.shape(limb("68 140, 60 172, 48 200", 40, 34, 30, flat=True))
    shoe(p, 50, 202, 0, 1.05)
    palm(p, 80, 82, 2, .95, "flat", -1)
    p.shape(limb("18 84, 50 90, 84 82", 38, 34, 30, flat=True))
    p.shape(limb("14 34, 0 84", 32, 36, flat=True))
    p.shape("-36 84, -18 62!, -2 76, 18 58!, 36 84, 30 130, 16 166, -40 184, -84 170, -78 124")
    with p.at(24, -2, 1, 8):
        side_head(p, "tails", mouth="smile", brows=None)
    p.one(limb("-50 152, 4 148, 48 132", 64, 56, 46), limb("46 130, 36 168, 16 208", 46, 38, 32, flat=True), join=(-56, 152, 34))
    shoe(p, 18, 212, 0, 1.15)
    p.shape("92 74!, 128 52, 156 66, 164 98, 142 118, 104 116!")
    p.line("110 76, 117 90")
    palm(p, 84, 108, -8, 1, "fist")
    p.one(limb("-20 92, 14 122, 44 124, 88 108", 44, 40, 38, 32, flat=True), join=(-22, 88, 21))

p.note("pond in front")
p.shape("-10 432, 60 424, 180 412, 300 406, 400 446, 500 452, 640 446!, 640 560!, -10 560!")

p.note("mother duck, near and large, turns her head up to the bread")
with p.at(178, 414, 1.1):
    p.one("-128 -30!, -100 -16, -60 -14, -10 -18, 30 -40, 46 -70, 56 -104, 84 -120, 112 -106, 116 -78, 102 -50, 94 -10, 80 30, 40 60, -30 64, -90 40, -116 6")
    p.shape("112 -108!, 146 -122, 152 -104!, 116 -92!")
    p.shape("115 -92!, 148 -92, 138 -78, 112 -78!")
    p.eye(92, -98, 6)
    p.shape("-84 -8, -20 -14, 34 -4, 40 22, 4 40, -40 36, -74 20")
    p.lines("-36 14, -10 18", "-14 4, 12 6")
p.note("ducklings behind her, the frog in front")
for x, y, s in ((362, 470, .92), (460, 488, .84), (552, 502, .78)):
    with p.at(x, y, s, flip=True):
        p.shape("-46 20, -58 -8!, -32 -8, -4 -6, -2 -34, 18 -48, 40 -34, 40 -8, 30 18, 6 32, -24 32")
        p.shape("38 -34!, 64 -24, 39 -16!")
        p.eye(22, -30, 4.8)
        p.line("-30 8, -14 16, 2 8")
p.lines("286 516, 316 508, 346 516")
p.line("40 512, 90 503, 140 512")
p.save()
