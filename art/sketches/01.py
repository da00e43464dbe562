from hand import *
from beasts import *

p = Page("01", "A cow licks her calf by the gate; the cat waits for a drop of milk")

p.note("hills, barn behind the hill, gate")
p.shape(box(206, 80, 110, 60))
p.shape("146 20!, 262 20!, 328 84!, 210 84!")
p.shape("146 20!, 76 84!, 92 84!, 92 140!, 206 140!, 206 84!, 210 84!")
p.shape(oval(148, 80, 17))
p.shape("-10 120, 140 104, 300 112, 460 104, 640 132!, 640 560!, -10 560!")
for y in (196, 246):
    p.shape(box(470, y, 100, 24))
p.shape("466 166!, 482 154!, 498 166!, 498 330!, 466 330!")
p.shape("562 166!, 578 154!, 594 166!, 594 352!, 562 352!")

p.note("bird on the post")
with p.at(573, 158, .86, flip=True):
    songbird(p)

p.note("cow: far legs, udder")
p.shape(limb("236 270, 232 340, 236 406", 46, 34, flat=True))
hoof(p, 236, 400, 17)
p.shape(limb("112 260, 116 340, 118 400", 50, 34, flat=True))
hoof(p, 118, 396, 17)
p.one("96 290, 176 290, 170 320, 104 320", limb("120 312, 120 338", 15, 13), limb("148 312, 148 338", 15, 13))

p.note("cow: body, neck and near legs are one outline")
BODY = "34 176, 56 138, 110 128, 196 136, 262 118, 330 78, 390 120, 372 180, 336 226, 318 276, 276 306, 200 304, 130 300, 66 300, 36 250"
p.one(BODY, limb("76 220, 84 300, 50 344, 58 420", 96, 74, 38, 36, flat=True), limb("294 240, 306 320, 288 356, 292 420", 78, 56, 40, 36, flat=True))
with p.within(BODY):
    p.shape("90 110, 104 160, 150 190, 190 160, 192 120")
    p.shape("180 330, 176 270, 220 234, 262 252, 262 330")
    p.shape("250 110, 256 150, 296 166, 316 130, 306 80")
hoof(p, 59, 414, 19)
p.one(limb("66 140, 82 180, 76 224", 18, 15), join=(60, 142, 16))
p.shape("66 220, 58 250, 74 280!, 92 250, 86 220")
hoof(p, 292, 414, 19)

p.note("calf: far legs, body")
with p.at(0, 0):
    p.shape(limb("560 350, 592 346, 598 392", 13, 11))
    p.shape("588 386, 582 410, 596 430!, 608 410, 606 386")
    p.shape(limb("462 420, 466 460, 464 494", 30, 24, flat=True))
    hoof(p, 464, 490, 13, 16)
    p.shape(limb("530 420, 534 460, 532 494", 30, 24, flat=True))
    hoof(p, 532, 490, 13, 16)
    CALF = "396 320, 440 300, 490 332, 550 338, 584 366, 584 410, 552 438, 480 440, 432 430, 408 390"
    p.one(CALF, limb("430 396, 424 440, 402 500", 56, 36, 26, flat=True), limb("556 390, 590 440, 568 468, 578 504", 62, 44, 28, 26, flat=True))
    with p.within(CALF):
        p.shape("492 300, 496 360, 532 384, 560 360, 556 310")
    hoof(p, 403, 496, 14, 17, 8)
    hoof(p, 577, 498, 14, 17)
    with p.at(440, 318, .74, 26, True):
        cow_head(p, horns=False, eye="happy")

p.note("cow: tongue and head, collar and bell")
p.shape(limb("426 208, 462 234, 454 286", 26, 32, 27))
p.line("444 232, 458 248, 456 268")
p.shape("282 112!, 300 102!, 352 222!, 336 232!")
p.shape("334 226, 322 250, 322 268!, 358 268!, 354 246, 344 226")
p.shape(oval(340, 274, 8))
with p.at(358, 130, 1.06, 44):
    cow_head(p)
    p.shape("-36 -34, -4 -52, 30 -42, 22 -24!, 12 -32, 2 -16!, -10 -28, -22 -12!")

p.note("cat under the udder, its tongue out for the drop")
p.shape("134 346!, 142 362, 134 372, 126 362")
with p.at(190, 440):
    p.shape(limb("30 40, 60 50, 66 20, 86 10", 16, 14))
    p.one("-6 -20, 26 -16, 46 30, 40 62, -22 62, -24 20", limb("-8 10, -14 40, -18 60", 22, 22))
    p.lines("8 14, 10 32, 8 44")
    with p.at(-8, -32, 1, -10):
        p.one(oval(0, 0, 32, 27), "-28 -10!, -26 -40!, -6 -24!", "8 -24!, 26 -42!, 30 -10!")
        p.eye(-16, -6, 4)
        p.eye(6, -6, 4)
        p.shape("-12 10!, -14 20, -4 22, 0 10!", 3)
        p.line("-18 8, -12 12, -5 8, 2 12, 8 7")

p.note("flowers")
for x, y in ((340, 486), (52, 486)):
    p.shape(scallops(oval(x, y, 16), 6, .55))
    p.shape(oval(x, y, 8), 3)
p.save()
