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
p.shape("352 56!, 322 120, 284 174, 270 186!, 302 198, 332 186, 362 200, 394 188, 420 192, 434 182!, 388 130")

p.note("garland and baubles")
p.shape("284 222, 340 250, 410 224!, 418 238!, 344 266, 274 236!")
p.shape("238 366, 330 396, 452 360!, 462 376!, 334 412, 224 384!")
for x, y, r in ((350, 150, 15), (386, 284, 17), (318, 290, 17), (360, 356, 18)):
    p.shape(oval(x, y, r))

p.note("steps and the girl on them")
p.shape("494 350!, 520 350!, 482 530!, 456 530!")
p.shape("546 350!, 572 350!, 600 530!, 574 530!")
p.shape("482 342!, 584 342!, 588 362!, 478 362!")
with p.at(528, 0, flip=True):
    shoe(p, 19, 324, 0, 1.05)
    p.one(limb("19 210, 19 262, 20 318", 42, 40, flat=True), limb("-17 210, -17 262, -19 318", 42, 40, flat=True))
    p.line("1 250, 1 320", 4)
    shoe(p, -21, 324, 0, 1.05)
    palm(p, 104, 108, -24, .92, "open", 1)
    p.shape(limb("20 156, 62 146, 106 108", 34, 30, 24, flat=True))
    p.shape(limb("4 110, 2 138", 30, 30))
    p.one("-26 150, 0 130, 26 144, 36 184, 50 220!, 2 232, -46 220!, -34 186")
    with p.at(12, 80, .86, -14):
        side_head(p, "pony", mouth="open", brows=None)
    palm(p, 86, 134, -30, .94, "open", 1)
    sleeve(p, "-4 156, 34 188, 88 132", 42, 38, 26)

p.note("star on the top")
with p.at(380, 60, 1.05, 8):
    p.shape(star(0, 0, 42, .5))

p.note("boy hands up a bauble")
with p.at(112, 0):
    p.shape(limb("-22 396, -26 450, -26 490", 48, 42, 38, flat=True))
    shoe(p, -26, 500, 0, 1.14)
    p.shape(limb("22 396, 26 450, 26 490", 48, 42, 38, flat=True))
    shoe(p, 26, 500, 0, 1.14)
    palm(p, 92, 318, -30, 1, "open", 1)
    p.shape(limb("22 310, 60 336, 94 316", 40, 34, 27, flat=True))
    p.shape(limb("-2 244, -4 278", 32, 32))
    p.one("-40 300, -28 276, 0 268, 30 278, 42 310, 46 410!, 0 420, -48 410!, -46 340")
    with p.at(4, 208, .98, -12):
        head(p, "34", "curly", mouth="open", brows=4)
    p.shape(oval(122, 226, 19))
    palm(p, 96, 254, -50, 1.05, "pinch", 1)
    sleeve(p, "-2 308, 52 316, 98 252", 48, 42, 30)
p.note("cat wound in the garland")
p.tube("234 378, 196 404, 184 450, 198 494, 240 508", 17)
with p.at(266, 520, .88):
    p.one(limb("30 0, 64 6, 92 -10", 20, 17, 14))
    cat = "-40 10, -40 -34, -22 -62, 22 -62, 40 -34, 40 10, 20 14, -20 14"
    p.one(cat, oval(0, -78, 37, 31), "-34 -88!, -40 -128!, -8 -106!", "6 -106!, 40 -128!, 34 -88!")
    with p.within(cat):
        p.tube("-60 -4, 0 -14, 60 -44", 18)
    p.line("0 0, 0 15", 4)
    p.eye(-13, -84, 5.4)
    p.eye(14, -84, 5.4)
    p.shape("-6 -67!, 6 -67!, 0 -60!", 3)
    p.lines("-9 -55, -4 -51, 0 -57, 4 -51, 9 -55")
p.save()
