from hand import *
from limbs import palm
from people import head
from sideface import side_head

p = Page("41", "At the vet: the dog gives its paw to be bandaged; the kitten has rolled itself into the other end")

p.note("room")
p.shape(box(30, 26, 112, 96))
p.shape("52 60, 62 54, 72 68, 100 60, 108 48, 120 56, 116 66, 124 76, 114 84, 104 78, 76 88, 68 98, 56 94, 58 84, 48 74", 3)
p.shape(box(214, -10, 130, 96))
p.shape("206 86!, 352 86!, 352 100!, 206 100!")

p.note("girl behind the table, her arm round the dog")
with p.at(110, 196):
    p.shape(limb("-4 40, -8 100", 32, 36, flat=True))
    p.shape("-28 76!, -6 86, 14 74!, 44 88, 62 112, 66 230!, -66 230!, -64 140, -52 94")
    with p.at(6, 4, 1.04, 12):
        head(p, "34", "tails", eyes="white", look=(1, 1), mouth="frown", brows=9, r=4.4)

p.note("the table")
p.shape("-10 404!, 640 392!, 640 450!, -10 466!")
p.shape("-10 466!, 640 450!, 640 560!, -10 560!")

p.note("dog on the table")
p.shape("180 424, 144 430, 112 410, 104 382, 118 372, 134 390, 156 400, 186 396")
p.shape(limb("318 320, 336 366, 334 414", 44, 36, 32, flat=True))
p.shape("318 412!, 318 400, 340 396, 360 402, 364 414, 350 422, 324 422")
p.one("268 214, 226 262, 180 320, 170 372, 186 408, 222 420, 300 420, 326 352, 346 292, 346 226, 310 210",
      limb("200 404, 226 412, 252 414", 34, 30), limb("290 300, 298 366, 296 408", 64, 46, 36), oval(306, 414, 27, 14), oval(246, 413, 30, 14))
p.line("214 346, 242 336, 264 354, 266 392")
p.one(oval(302, 176, 60, 54), oval(356, 200, 38, 28), oval(328, 208, 30, 26))
p.shape("314 128, 340 142, 346 176, 328 190, 308 176, 304 148", 3)
p.eye(330, 164, 6)
p.spot(386, 186, 11, 9)
p.line("386 196, 374 212, 344 214")
p.lines("318 142, 328 138, 338 142")
p.shape("282 132!, 252 136, 232 172, 232 218, 254 236, 276 214, 286 172")

p.note("the paw, carried by her far hand, with the bandage round it")
p.one(limb("310 286, 348 306, 396 284", 46, 40, 34), oval(398, 282, 22, 19), join=(308, 286, 25))
p.shape("254 234!, 264 258, 300 268, 334 256!, 344 240!, 300 250, 260 222!")
p.shape(oval(304, 268, 13))
p.lines("418 276, 406 278")
p.shape("344 280!, 366 270!, 384 264!, 392 304!, 374 316!, 350 326!, 344 304")
p.line("362 270, 370 318")

p.note("the vet, in profile: the far arm reaches out to carry the paw")
with p.at(500, 0, flip=True):
    palm(p, 84, 314, -6, 1.06, "flat")
    p.shape(limb("24 262, 48 310, 84 315", 50, 42, 34, flat=True))
    p.shape(limb("-6 176, -14 226", 34, 38, flat=True))
    p.shape("-46 228, -14 212!, 10 212!, 36 236, 42 290, 46 560!, -100 560!, -92 330, -76 250")
    p.shape("-14 210!, 10 210!, 20 232, 40 262!, 10 256, -10 236")
    with p.at(0, 150, 1.06, 12):
        side_head(p, "bun", mouth="smile", brows=None)
        p.line("-18 -7, 12 -6", 4)
        p.shape(oval(25, -4, 15, 14))
        p.eye(28, -2, 4.6)

p.note("the bandage runs through her near hand to the kitten")
p.tube("368 316, 368 350, 388 376, 414 378, 420 412, 452 430, 510 420", 21)
palm(p, 438, 376, 184, 1.05, "fist", -1)
p.one(limb("534 262, 540 334, 508 376, 436 376", 54, 54, 46, 38, flat=True), join=(536, 256, 28))

p.note("the girl's arm and hand on the dog's back")
palm(p, 222, 300, 14, 1.06, "wave")
p.one(limb("138 304, 176 318, 224 300", 46, 42, 36, flat=True), join=(134, 304, 25))

p.note("the kitten in its basket, rolled in bandage")
with p.at(536, 446):
    p.one(oval(0, -14, 58, 46), "-56 -26!, -58 -80!, -20 -56!", "56 -26!, 58 -80!, 20 -56!")
    p.shape("-54 -34!, -30 -46, 10 -50, 48 -40!, 54 -22!, 14 -32, -28 -28, -58 -14!")
    p.eye(-22, -8, 5, "white", (-.6, -1))
    p.eye(18, -8, 5, "white", (-.6, -1))
    p.shape("-8 10!, 4 10!, -2 17!", 3)
    p.line("-14 22, -8 27, -2 20, 4 27, 10 22")
    p.lines("-30 12, -50 8", "26 12, 50 8")
    p.shape("-84 36!, -76 100!, 76 100!, 84 36!")
    p.lines("-58 66, -42 74, -26 66", "-10 66, 6 74, 22 66")
    p.shape("-92 30!, 92 30!, 92 48!, -92 48!")
p.shape(box(40, 500, 150, 60))
p.spot(115, 520, 7)
p.save()
