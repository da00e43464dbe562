from hand import *
from limbs import palm
from people import head
from sideface import side_head

p = Page("44", "A birthday: he blows, the candles bend, and the dog has already got at the cake")

p.note("bunting")
bunting(p, "176 -30, 236 40, 340 50, 436 -30", 3, 50)

p.note("the balloon")
p.line("565 150, 560 200, 568 250", 4)
p.shape("564 152, 516 104, 522 44, 564 24, 606 50, 608 106")
p.line("538 76, 546 56, 560 48")

p.note("girl behind the cake, the balloon's string in her hand")
with p.at(462, 182):
    p.shape(limb("4 36, 6 100", 34, 36, flat=True))
    p.shape("-34 92, -10 78!, 8 86, 26 76!, 58 82, 80 110, 80 290!, -64 290!, -58 130")
    with p.at(0, 7, .98, 8, flip=True):
        head(p, "34", "tails", eyes="happy", mouth="open", brows=None)
        p.shape("-34 -42!, 0 -132!, 30 -46!, 0 -36")
        p.shape(oval(0, -130, 12))
palm(p, 564, 262, -88, .9, "fist")
p.one(limb("524 296, 584 322, 564 264", 38, 42, 34, flat=True), join=[(520, 300, 26), (540, 310, 20)])

p.note("the table, seen a little from above")
p.shape("-10 408!, 640 408!, 640 560!, -10 560!")
p.line("-10 482, 60 512, 130 482!, 200 512, 270 482!, 340 512, 410 482!, 480 512, 550 482!, 620 512, 650 500", 4)

p.note("cake")
p.shape(oval(356, 434, 146, 24))
p.shape("244 340!, 246 424, 360 446, 474 424, 476 340!")
p.shape("242 340!, 246 372, 266 380, 282 362!, 300 388, 322 384, 334 366!, 352 392, 376 390, 386 366!, 406 388, 426 382, 436 362!, 456 378, 474 366, 478 340!")
p.shape(oval(360, 338, 118, 30))
p.shape("288 276!, 290 328, 360 342, 428 328, 430 276!")
p.shape("286 276!, 290 302, 304 306, 314 294!, 332 314, 352 310, 360 296!, 380 314, 402 310, 408 294!, 424 304, 432 276!")
p.shape(oval(359, 274, 73, 20))
p.shape(heart(360, 412, 20))
for i, (x, y) in enumerate(((308, 272), (344, 280), (380, 278))):
    p.shape(f"{x - 8} {y - 44}!, {x - 8} {y}!, {x + 8} {y}!, {x + 8} {y - 44}!")
    p.shape(f"{x - 2} {y - 44}!, {x - 2} {y - 62}, {x + 28} {y - 78}!, {x + 16} {y - 54}, {x + 4} {y - 44}!")

p.note("birthday boy, near, in profile, cheeks full of air")
p.shape("86 280!, 74 350!, 140 350!, 134 290!")
p.shape("-10 384, 26 340, 60 322!, 96 338, 138 322!, 158 372, 156 440, 140 560!, -20 560!")
p.shape("54 312!, 96 328, 142 310!, 148 332, 98 350, 46 336")
with p.at(126, 240):
    with p.at(0, 0, 1.3, 14):
        side_head(p, "short", eyes="closed", mouth="", brows=None, r=5)
        p.shape("42 20, 52 18, 60 22, 58 28, 46 29", 3)
        p.line("22 20, 16 27, 22 35")
        p.shape("-42 -34!, -16 -128!, 32 -48!, -8 -44")
        p.line("-34 -66, -12 -66, 12 -80")
        p.shape(scallops(oval(-16, -126, 13), 7, .4))
palm(p, 196, 450, 4, 1.2, "flat")
p.one(limb("84 392, 72 458, 112 482, 198 450", 72, 66, 56, 42, flat=True), join=(84, 384, 38))
p.lines("236 262, 262 256", "238 284, 266 288")

p.note("dog at the right, paws on the table, tongue out")
with p.at(552, 366):
    p.one("-14 30, -34 70, -40 110, -40 200, 90 200, 90 20, 40 20")
    p.one(oval(10, -20, 50, 46), oval(-36, 2, 34, 24))
    p.shape("-56 20!, -76 40, -66 54, -46 46, -36 22!", 3)
    p.line("-62 12, -50 22, -28 22, -8 10")
    p.spot(-66, -8, 11, 10)
    p.eye(-12, -30, 6)
    p.shape("22 -62!, 52 -54, 66 -14, 58 26, 36 34, 24 4")
    p.shape("-18 36!, 20 50, 58 36!, 60 54!, 20 68, -22 54!")
    p.one(limb("26 112, -24 128, -62 104", 52, 42, 36), oval(-66, 100, 24, 17), join=(30, 110, 32))
    p.line("-91 99, -76 99")
p.save()
