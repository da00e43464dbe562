from hand import *
from people import *

p = Page("21", "The fire brigade rescues a cat: it pats the fireman's helmet from its branch; a friend waves from the window, the old lady waits with a bowl of milk")

p.note("house seen at its corner, a second cat at the window; hedge, street")
p.shape("128 150!, 246 166!, 246 420!, 128 420!")
p.shape("74 60!, 190 84!, 262 176!, 128 156!")
p.shape("20 420!, 20 148!, 74 60!, 128 150!, 128 420!")
p.shape("40 160!, 108 160!, 108 236!, 40 236!")
with p.at(74, 214, 1):
    p.one(oval(0, 0, 24, 21, 0), "-22 -6!, -24 -34!, -4 -18!", "4 -18!, 24 -34!, 22 -6!")
    p.eye(-5, -4, 3.6)
    p.eye(11, -4, 3.6)
    p.lines("-3 8, 3 12, 9 8")
p.shape(scallops("276 440, 282 350, 330 310, 440 324, 640 320, 640 440", 13, .28))
p.shape("-10 430!, 200 400!, 640 420!, 640 560!, -10 560!")

p.note("tree with its branch")
p.shape("640 500!, 490 500!, 540 470, 550 400, 568 330, 572 250, 568 196!, 640 196!")
p.line("606 268, 602 330")
p.shape(scallops("420 -30, 414 20, 440 80, 450 170, 500 224, 570 214, 640 232, 660 -30", 11, .32))
p.shape(limb("670 200, 560 180, 488 174", 58, 38, 28))

p.note("ladder, the engine's side and roof before it")
with p.at(264, 420, 1, -53):
    p.shape("60 -28!, 302 -28!, 302 28!, 60 28!")
    for x in (144, 196, 248):
        p.line(f"{x} -28, {x} 28", 4)
p.shape("206 352!, 236 318!, 412 324!, 392 358!")
p.shape("206 352!, 392 358!, 392 462!, 206 482!")
p.shape("226 384!, 276 385!, 276 444!, 226 450!")
p.line("242 416, 256 415")

p.note("cat on the branch pats the helmet")
with p.at(498, 168, 1.12):
    p.one(limb("26 -12, 66 -8, 74 32, 54 60", 19, 17, 15))
    p.one("-34 -4, -30 -46, -4 -66, 26 -44, 38 -4, 20 6, -20 6", limb("-16 -46, -48 -48, -74 -66", 26, 19, 20),
          oval(-6, -84, 37, 31, 6), "-42 -88!, -44 -132!, -10 -110!", "-4 -112!, 28 -134!, 32 -84!")
    p.line("-6 2, 4 -14, -2 -30")
    p.eye(-26, -86, 4.6)
    p.eye(2, -84, 4.6)
    p.shape("-20 -76!, -9 -76!, -15 -69!", 3)
    p.lines("-22 -67, -15 -61, -7 -67", "26 -42, 12 -34")

p.note("fireman climbs, three quarters, looks up at the cat")
with p.at(-52, -8, 1.02):
    p.one(limb("352 262, 402 270, 396 300", 52, 36))
    shoe(p, 394, 310, -14, 1.15)
    p.one(limb("392 194, 438 208, 450 180", 44, 36, flat=True), arm("449 184, 452 172, 454 162", 25, 23, thumb=-1, hand=1.1))
    p.shape(limb("372 128, 364 172", 30, 30))
    p.one("336 174, 368 158, 404 168, 412 206, 398 268!, 328 268!, 320 216", limb("350 262, 354 310, 344 340", 58, 40))
    shoe(p, 344, 350, -2, 1.12)
    p.line("326 240, 362 250, 405 240", 4)
    with p.at(378, 108, .9, -14):
        head(p, "34", "short", eyes="dot", mouth="open", brows=None, r=5.6)
        p.shape("-46 -26!, -50 -54, -24 -84, 20 -84, 44 -62, 48 -26!, 0 -38")
        p.shape("-2 -36!, -4 -62!, 10 -70, 26 -60!, 24 -36!, 12 -40", 3)
        p.shape("-76 12!, -62 -14, -46 -28, 0 -36, 46 -34, 74 -18!, 58 -12, 36 -18, -4 -18, -34 -4, -52 12")
    p.one(limb("350 190, 352 246, 396 254", 50, 42, 36, flat=True), arm("394 254, 408 250, 418 244", 27, 24, thumb=-1, grip=True), join=(350, 188, 25))

p.note("engine's cab at its corner, front with the driver")
p.shape("-10 292!, 12 274!, 176 280!, 208 304!, 104 300!")
p.shape("104 300!, 208 304!, 208 484!, 104 500!")
p.shape("122 316!, 192 318!, 192 370!, 122 374!")
p.line("104 390!, 208 386!", 3)
p.line("176 404, 190 403", 4)
p.shape("-20 294!, 104 300!, 104 502!, -20 480!")
p.shape("-20 312!, 90 316!, 90 388!, -20 382!")
with p.within("-20 312!, 90 316!, 90 388!, -20 382!"):
    with p.at(26, 362, .68, 0):
        head(p, "34", "", eyes="dot", mouth="smile", brows=None, r=7, ear=False)
        p.shape("-54 -14!, -48 -50, 0 -66, 42 -46, 54 -16!, 0 -24")
p.shape("52 278!, 52 256, 64 248, 88 248, 100 258, 100 280!, 76 286")
p.shape(oval(66, 430, 20, 22))
p.shape("-20 456!, 110 474!, 110 506!, -20 490!")
p.shape(oval(160, 492, 33, 40))
p.shape(oval(162, 492, 15, 19))
p.shape(oval(312, 468, 29, 36))
p.shape(oval(314, 468, 13, 17))

p.note("old lady with a bowl of milk, one foot before the other")
with p.at(-66, -64, 1.14):
    shoe(p, 516, 500, 0, 1, True)
    shoe(p, 470, 504, 0, 1, True)
    p.one(limb("492 354, 494 376", 26, 26), "460 372, 494 364, 526 382, 542 440, 556 500!, 500 510, 440 498!, 452 440")
    p.line("447 460, 500 472, 549 460", 4)
    p.shape("462 366!, 494 376, 522 368!, 528 386, 494 396, 456 384")
    with p.at(488, 322, .84, 16, flip=True):
        p.shape(oval(-38, -46, 23))
        head(p, "side", "parting", eyes="white", look=(.9, -.7), mouth="open", brows=None, r=4.4)
    p.shape("394 408!, 466 408!, 456 430, 430 440, 404 430")
    p.shape(oval(430, 408, 36, 9), 3)
    p.one(limb("500 408, 510 448, 470 438", 36, 34, 29, flat=True), arm("472 440, 464 436, 458 430", 24, 22, thumb=1, grip=True), join=(500, 400, 22))
p.save()
