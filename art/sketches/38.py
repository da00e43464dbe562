from hand import *
from people import *

p = Page("38", "Children trim the Christmas tree: a girl on the steps sets the star, a boy hands up a bauble, the cat has wound itself in the garland")

p.note("room: window with snow, floor")
p.line("-10 420, 640 420", 4)
p.shape(box(24, 30, 124, 180))
with p.within(box(24, 30, 124, 180)):
    p.shape("0 128, 60 112, 120 122, 180 108, 180 240, 0 240")
    p.one(oval(92, 74, 19, 18), oval(90, 120, 30, 32))
    p.eye(86, 70, 2.6)
    p.eye(98, 70, 2.6)
p.put(f'<path fill="none" d="{p.path(box(24, 30, 124, 180))}"/>')

p.note("tree: pot, trunk, three tiers")
p.shape("330 440!, 330 480!, 374 480!, 374 440!")
p.shape("296 470!, 408 470!, 396 528!, 308 528!")
p.shape("352 236, 300 330, 232 404, 216 430!, 236 452, 282 440, 318 458, 362 444, 404 458, 444 440, 470 446, 484 430!, 420 350")
p.shape("352 140, 314 220, 250 296, 234 308!, 268 322, 306 310, 340 326, 376 312, 410 324, 444 310, 470 300!, 400 220")
p.shape("352 56!, 322 120, 284 174, 270 186!, 302 198, 332 186, 362 200, 394 188, 420 192, 434 182!, 388 130")

p.note("garland and baubles")
p.shape("284 222, 340 250, 410 224!, 418 238!, 344 266, 274 236!")
p.shape("238 366, 330 396, 452 360!, 462 376!, 334 412, 224 384!")
for x, y, r in ((350, 150, 15), (386, 284, 17), (318, 290, 17), (360, 356, 18), (430, 414, 18)):
    p.shape(oval(x, y, r))

p.note("steps and the girl on them")
with p.at(0, 0):
    p.shape("496 290!, 522 290!, 470 530!, 444 530!")
    p.shape("540 290!, 566 290!, 604 530!, 578 530!")
    p.shape("488 284!, 580 284!, 584 304!, 484 304!")
    p.shape("474 404!, 594 404!, 597 422!, 470 422!")
with p.at(534, 0, flip=True):
    p.one(arm("20 150, 78 130, 112 96", 32, 26, 22, thumb=1, grip=True))
    p.one(limb("20 232, 16 262", 32, 30))
    shoe(p, 16, 268)
    p.one(limb("-12 232, -12 262", 32, 30))
    shoe(p, -12, 268)
    p.shape(limb("0 108, 0 138", 26, 26))
    p.one("-24 142, 0 130, 24 136, 34 170, 48 240!, 0 252, -44 240!, -32 180")
    with p.at(6, 70, .86, -14):
        head(p, "side", "pony", mouth="open", brows=None)
    p.one(limb("-2 152, 30 176, 70 158", 40, 34, 28), arm("66 160, 80 150, 90 138", 24, 22, thumb=-1, grip=True), join=(-6, 150, 20))

p.note("star on the top")
with p.at(380, 58, 1.05, 8):
    p.shape(star(0, 0, 42, .5))

p.note("boy hands up a bauble")
with p.at(120, 0):
    p.one(arm("26 286, 80 270, 112 236", 32, 26, 22, thumb=-1))
    p.one(limb("12 400, 12 450, 10 492", 42, 32))
    shoe(p, 10, 502, 0, 1.1)
    p.one(limb("-18 400, -20 450, -22 490", 44, 32))
    shoe(p, -22, 502, 0, 1.1)
    p.shape(limb("-4 250, -6 280", 28, 28))
    p.one("-34 284, -4 270, 28 278, 40 320, 40 410!, -42 410!, -44 330")
    p.shape("-42 396!, 0 404, 40 396!, 44 424, 0 432, -46 424")
    with p.at(-2, 206, 1, -10):
        head(p, "34", "curly", mouth="open", brows=4)
    p.shape(oval(124, 214, 18))
    p.one(limb("-4 298, 18 350, 66 322", 44, 38, 32, flat=True), arm("64 324, 80 314, 92 306", 25, 22, thumb=-1, grip=True), join=(-10, 294, 28))
p.note("cat wound in the garland")
with p.at(230, 516):
    p.one(limb("34 -2, 66 -6, 62 -44", 20, 17, 14))
    p.one("-40 4, -36 -36, -20 -58, 20 -58, 36 -36, 40 4, 20 12, -20 12", oval(0, -74, 36, 31), "-34 -84!, -38 -122!, -8 -102!", "6 -102!, 38 -122!, 34 -84!")
    p.lines("-10 -12, -9 20", "10 -12, 9 20")
    p.eye(-14, -78, 4.4, "white", (.2, -1))
    p.eye(12, -78, 4.4, "white", (.2, -1))
    p.shape("-6 -64!, 6 -64!, 0 -57!", 3)
    p.lines("-8 -52, -4 -49, 0 -54, 4 -49, 8 -52")
p.tube("226 380, 200 400, 196 450, 206 474, 240 484, 276 466", 17)
p.save()
