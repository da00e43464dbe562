from hand import *
from limbs import palm, sleeve
from people import head, shoe
from sideface import side_head

p = Page("38", "Children trim the Christmas tree: a girl on the steps sets the star, a boy hands up a bauble, the cat has wound itself in the garland")

p.note("room: window with snow, floor")
p.line("-10 420, 640 420", 4)
p.shape(box(24, 30, 124, 180))
with p.within(box(24, 30, 124, 180)):
    p.one(oval(92, 74, 19, 18), oval(90, 120, 30, 32))
    p.eye(84, 66, 3.4)
    p.eye(100, 66, 3.4)
    p.line("87 80, 92 83, 97 80")
    p.spot(90, 106, 3.6)
    p.spot(90, 124, 3.6)
p.put(f'<path fill="none" d="{p.path(box(24, 30, 124, 180))}"/>')

p.note("tree: pot, trunk, three tiers")
p.shape("292 446!, 412 446!, 396 528!, 308 528!")
p.shape("352 236, 300 330, 232 404, 216 430!, 236 452, 282 440, 318 458, 362 444, 404 458, 444 440, 470 446, 484 430!, 420 350")
p.shape("352 140, 314 220, 250 296, 234 308!, 268 322, 306 310, 340 326, 376 312, 410 324, 444 310, 470 300!, 400 220")
p.shape("352 56!, 322 120, 284 174, 270 186!, 302 198, 332 186, 362 200, 388 188, 402 191, 414 182!, 378 130")

p.note("garland and baubles")
p.shape("284 222, 340 250, 410 224!, 418 238!, 344 266, 274 236!")
p.shape("238 366, 330 396, 452 360!, 462 376!, 334 412, 224 384!")
for x, y, r in ((350, 150, 15), (386, 284, 17), (318, 290, 17), (360, 356, 18)):
    p.shape(oval(x, y, r))

p.note("steps and the girl on them")
p.shape("494 374!, 520 374!, 486 530!, 460 530!")
p.shape("546 374!, 572 374!, 596 530!, 570 530!")
p.shape("476 364!, 584 364!, 588 386!, 472 386!")
with p.at(534, 0, flip=True):
    with p.at(-46, 306, 1, 58):
        shoe(p, 0, 0, 0, 1.05)
    p.shape(limb("-12 206, -10 262, -44 300", 44, 40, 30, flat=True))
    shoe(p, 12, 346, 0, 1.05)
    p.one(limb("8 206, 14 270, 12 340", 50, 42, 34, flat=True), "-34 212!, 36 212!, 34 226, -32 226")
    with p.at(0, 220, 1, 6):
        palm(p, 86, -14, -4, .92, "open", 1)
        p.shape(limb("20 -44, 50 -10, 88 -14", 34, 30, 24, flat=True))
        p.shape(limb("4 -110, 2 -82", 30, 30))
        p.one("-26 -70, 0 -90, 26 -76, 36 -36, 46 2!, 2 12, -42 2!, -34 -34")
        with p.at(12, -140, .86, -16):
            side_head(p, "pony", mouth="open", brows=None)
        palm(p, 103, -106, -34, .94, "open", 1)
        sleeve(p, "-4 -64, 46 -48, 105 -108", 42, 38, 26)

p.note("star on the top")
with p.at(380, 60, 1.05, 8):
    p.shape(star(0, 0, 42, .5))

p.note("boy hands up a bauble")
with p.at(102, 0):
    with p.at(-58, 482, 1, 34):
        shoe(p, 0, 0, 0, 1.14)
    p.shape(limb("-18 390, -30 436, -56 476", 48, 42, 34, flat=True))
    shoe(p, 36, 500, 0, 1.14)
    p.shape(limb("18 390, 40 440, 36 492", 50, 44, 36, flat=True))
    with p.at(0, 400, 1, 9):
        palm(p, 72, -66, -28, .95, "open", 1)
        p.shape(limb("20 -84, 46 -56, 74 -67", 40, 34, 27, flat=True))
        p.shape(limb("-2 -156, -4 -122", 32, 32))
        p.one("-40 -100, -28 -124, 0 -132, 30 -122, 42 -90, 46 4!, 0 16, -46 4!, -46 -60")
        with p.at(4, -192, .98, -16):
            head(p, "34", "curly", eyes="", mouth="open", brows=None, ear=False, nose=False)
            p.eye(10, 0, 4.6)
            p.eye(34, 0, 4.4)
            p.line("23 -1, 28 5, 21 8")
        p.shape(oval(118, -180, 19))
        palm(p, 94, -150, -50, 1.05, "pinch", 1)
        sleeve(p, "-2 -92, 52 -84, 96 -152", 48, 42, 30)
p.note("cat wound in the garland")
p.tube("234 378, 196 404, 184 450, 198 494, 240 508", 17)
with p.at(266, 520, .88):
    p.one(limb("30 0, 64 6, 92 -10", 20, 17, 14))
    cat = "-40 10, -40 -34, -22 -62, 22 -62, 40 -34, 40 10, 20 14, -20 14"
    p.one(cat, oval(0, -78, 37, 31), "-34 -88!, -40 -128!, -8 -106!", "6 -106!, 40 -128!, 34 -88!")
    with p.within(cat):
        p.tube("-60 -4, 0 -14, 60 -44", 18)
    p.eye(-13, -84, 5.4)
    p.eye(14, -84, 5.4)
    p.shape("-6 -67!, 6 -67!, 0 -60!", 3)
    p.lines("-9 -55, -4 -51, 0 -57, 4 -51, 9 -55")
p.save()
