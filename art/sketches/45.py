from hand import *
from limbs import palm
from people import head, shoe
from sideface import side_head

p = Page("45", "Pancakes: father tosses one, looks up in vain - it has come down on the cat")

p.note("kitchen")
p.line("-10 418, 640 418", 4)
p.shape(box(400, -10, 150, 132))
p.shape("392 -10!, 392 40!, 412 54, 434 40!, 456 54, 475 40!, 496 54, 518 40!, 540 54, 558 40!, 558 -10!")
p.shape("366 122!, 586 122!, 586 138!, 366 138!")

p.note("stove with the plate of pancakes")
p.shape("236 300!, 438 300!, 438 470!, 236 470!")
p.shape("224 282!, 460 282!, 460 304!, 224 304!")
p.line("236 350, 438 350", 4)
for x in (292, 346):
    p.shape(oval(x, 324, 10))
p.shape("322 268!, 342 284, 432 284, 452 268!")
for y in (260, 242, 224):
    p.shape(oval(387, y, 54, 13))

p.note("girl laughs and points at the cat, in profile")
with p.at(520, 0, flip=True):
    p.shape(limb("-28 406, -26 450, -30 494", 46, 40, 36, flat=True))
    p.shape(limb("24 406, 30 450, 28 494", 44, 38, 36, flat=True))
    shoe(p, -32, 498, 0, 1.1)
    shoe(p, 26, 498, 0, 1.1)
    p.shape(limb("26 214, 12 256", 30, 34, flat=True))
    p.shape("-32 272, -2 244!, 12 254, 30 246!, 44 268, 48 310, 48 350!, -50 354!, -50 310")
    p.shape("-50 350!, 0 358, 48 346!, 56 380, 72 424!, 0 434, -78 424!, -62 380")
    with p.at(25, 187, 1.02, 10):
        side_head(p, "tails", eyes="happy", mouth="open", brows=None)
    palm(p, 84, 346, 20, 1.1, "point")
    p.one(limb("-12 280, 4 332, 34 336, 86 344", 48, 44, 40, 34, flat=True), join=(-12, 274, 25))

p.note("father: far arm with the pan, body, apron, near hand on his hip")
p.one(limb("98 410, 92 456, 86 496", 66, 56, 50, flat=True), limb("168 410, 182 456, 186 498", 66, 56, 50, flat=True))
shoe(p, 82, 500, 0, 1.15)
shoe(p, 186, 502, 0, 1.15)
p.tube("236 236, 284 190", 15)
with p.at(240, 222, 1, -6):
    p.shape("32 -48!, 46 -22, 90 -14, 132 -30, 152 -60!")
    p.shape(oval(92, -54, 60, 14, -4))
palm(p, 228, 250, -62, 1.1, "fist")
p.shape(limb("110 172, 106 232", 40, 44, flat=True))
p.one("66 236, 88 222!, 106 236, 132 218!, 164 236, 180 290, 186 424!, 66 428!, 62 340, 56 290", limb("154 262, 194 314, 232 252", 62, 54, 42, flat=True))
p.line("172 266, 186 284")
p.shape("104 270!, 152 262!, 164 322!, 192 336, 210 446!, 68 454!, 72 344, 104 324!")
p.lines("105 270, 99 229", "150 262, 134 220", width=4)
p.shape(heart(154, 396, 24))
with p.at(114, 148, 1.08, -18):
    head(p, "34", "short", eyes="white", look=(.9, -1), mouth="open", brows=8, r=4.4)
palm(p, 76, 344, 22, 1.05, "flat")
p.one(limb("72 264, 40 312, 80 346", 46, 46, 38, flat=True), join=(74, 260, 23))

p.note("cat in front, pancake over its head")
with p.at(352, 440):
    p.one("-50 110, -60 60, -34 14, 32 14, 58 60, 52 110")
    p.one(oval(0, -6, 62, 46), "-58 -20!, -60 -76!, -22 -48!", "58 -20!, 60 -76!, 22 -48!")
    p.lines("-36 -2, -14 2", "36 -2, 14 2", width=4)
    p.spot(-24, 6, 6)
    p.spot(24, 6, 6)
    p.shape("-8 14!, 8 14!, 0 22!", 3)
    p.line("-14 36, 0 30, 14 36")
    p.shape("-84 -10, -92 -30, -64 -52, -20 -66, 30 -64, 72 -48, 90 -24, 78 -8, 62 -22, 48 -30, 30 -18, 8 -30, -16 -16, -40 -28, -62 -20, -70 -2")
    p.lines("-44 -44, -16 -50", "20 -48, 50 -40")
    p.lines("-14 80, -14 104", "14 80, 14 104")
p.save()
