from hand import *
from people import *

p = Page("41", "At the vet: the dog gives its paw to be bandaged; the kitten has rolled itself into the other end")

p.note("room")
p.line("-10 300, 640 300", 4)
p.shape(box(30, 26, 112, 96))
p.shape("52 60, 62 54, 72 68, 100 60, 108 48, 120 56, 116 66, 124 76, 114 84, 104 78, 76 88, 68 98, 56 94, 58 84, 48 74", 3)
p.shape(box(214, -10, 130, 96))
p.line("279 -10, 279 86", 4)
p.shape("206 86!, 352 86!, 352 100!, 206 100!")

p.note("the vet, from the right, in profile")
with p.at(492, 0, flip=True):
    p.shape(limb("-8 180, -14 224", 30, 30))
    p.one(limb("14 250, 44 300, 84 296", 54, 40, flat=True))
    p.shape("-40 214!, 8 208!, 36 236, 48 300, 52 420!, -104 420!, -96 320, -84 244")
    p.shape("-26 210!, 4 208!, 12 226, 26 262!, -6 250, -22 236")
    with p.at(0, 146, 1.06, 10):
        head(p, "side", "bun", mouth="smile", brows=4)
        p.line("-10 -4, 10 -6", 4)
        p.shape(oval(24, -4, 15, 14))
        p.eye(28, -2, 4.6)

p.note("girl behind the dog, chin on its back")
with p.at(122, 190):
    p.shape(limb("-2 40, -6 76", 28, 28))
    p.one("-44 80, -20 66, 24 68, 50 92, 64 240, -78 240", limb("36 86, 70 104, 96 110", 44, 36, flat=True))
    with p.at(6, 0, 1, 10):
        head(p, "34", "tails", eyes="white", look=(1, 1), mouth="frown", brows=9, r=4.4)

p.shape(heart(104, 344, 24))

p.note("the table")
p.shape("-10 400!, 640 388!, 640 446!, -10 462!")
p.shape("-10 462!, 640 446!, 640 560!, -10 560!")

p.note("dog on the table")
p.shape("164 410, 130 404, 108 372, 116 350, 134 362, 146 382, 176 388")
p.one(oval(232, 348, 66, 66), limb("244 330, 276 286, 296 230", 120, 104, 84), limb("226 386, 250 408, 270 412", 44, 30),
      limb("308 296, 312 350, 316 402", 54, 40, 36), oval(326, 408, 27, 14), oval(262, 412, 27, 13))
p.line("206 352, 232 334, 258 344, 268 370")
p.lines("274 384, 280 366, 292 352")
p.one(oval(306, 176, 60, 54), oval(358, 200, 38, 28), oval(330, 208, 30, 26))
p.shape("318 128, 344 142, 350 176, 332 190, 312 176, 308 148", 3)
p.eye(334, 164, 6)
p.spot(388, 186, 11, 9)
p.line("388 196, 376 212, 346 214")
p.lines("322 142, 332 138, 342 142")
p.shape("286 132!, 256 136, 236 172, 236 218, 258 236, 280 214, 290 172")

p.note("the paw in its bandage, which runs through her hand to the kitten")
p.one(limb("306 300, 352 316, 398 296", 44, 36, 32), oval(400, 292, 19, 17), join=(308, 300, 26))
p.shape("250 228!, 262 258, 300 270, 336 258!, 342 242!, 300 250, 258 214!")
p.shape(oval(308, 272, 13))
p.one("352 292!, 346 330, 352 338!, 392 324!, 396 304, 384 280!")
p.lines("366 288, 364 332", "378 284, 380 327")
with p.at(492, 0, flip=True):
    p.one(arm("84 298, 96 296, 100 292", 28, 24, thumb=1))
p.tube("374 330, 400 354, 436 350, 424 386, 454 404, 506 414", 20)
with p.at(492, 0, flip=True):
    p.one(arm("32 358, 40 356, 46 354", 30, 28, thumb=-1, grip=True))
    p.one(limb("-32 258, -40 320, -24 350, 30 356", 56, 52, 46, 40, flat=True), join=(-32, 252, 27))

p.note("her hand on its back")
p.one(arm("214 300, 222 302, 230 304", 32, 28, thumb=-1))

p.note("the kitten in its basket, rolled in bandage")
with p.at(538, 440):
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
