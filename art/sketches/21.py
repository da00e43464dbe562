from hand import *
from limbs import palm, sleeve
from people import *
from faces import head

p = Page("21", "The fire brigade rescues a cat: it pats the fireman's helmet from its branch; the old lady waits below with a bowl of milk")

p.note("house seen at its corner, a second cat at the window; hedge, street")
p.shape("128 150!, 194 160!, 194 420!, 128 420!")
p.shape("74 60!, 146 76!, 210 168!, 128 156!")
p.shape("20 420!, 20 148!, 74 60!, 128 150!, 128 420!")
p.shape(box(40, 160, 68, 76))
with p.at(74, 214):
    p.one(oval(0, 0, 24, 21), "-22 -6!, -24 -34!, -4 -18!", "4 -18!, 24 -34!, 22 -6!")
    p.eye(-5, -4, 3.6)
    p.eye(11, -4, 3.6)
    p.line("-3 8, 3 12, 9 8")
p.shape("-10 430!, 200 440!, 640 484!, 640 560!, -10 560!")

p.note("tree with its branch")
p.shape("640 500!, 520 500!, 552 476, 560 420, 574 330, 576 250, 568 190!, 640 190!")
p.shape(scallops("424 -30, 418 20, 440 60, 452 96, 500 124, 556 158, 640 186, 660 -30", 9, .34))
p.shape(limb("670 206, 560 196, 470 190", 60, 40, 26))

p.note("ladder from the engine to the branch")
with p.at(322, 372, 1, -55):
    p.shape("0 -26!, 262 -26!, 262 26!, 0 26!")
    for x in (172, 226):
        p.line(f"{x} -26, {x} 26", 4)

p.note("cat on the branch pats the helmet")
with p.at(506, 178, 1.06):
    p.one(limb("26 -12, 66 -2, 72 34, 50 56", 19, 17, 15))
    p.one("-34 -2, -32 -44, -6 -66, 24 -48, 40 -8, 26 6, -24 6", limb("-20 -48, -50 -56, -80 -50", 26, 20, 20), oval(-20, 1, 20, 9),
          oval(-8, -82, 46, 31, 3), "-44 -94!, -45 -134!, -18 -110!", "1 -110!, 29 -134!, 28 -94!")
    p.line("-2 4, 2 -18, 22 -26")

    p.eye(-30, -86, 4, "white", (-1, .4))
    p.eye(-6, -87, 4, "white", (-1, .4))
    p.shape("-28 -71!, -17 -71!, -23 -64!", 3)
    p.lines("-28 -60, -22 -56, -14 -61")

p.note("engine: roof and side")
p.shape("206 352!, 210 316!, 394 324!, 376 357!")
p.shape("206 352!, 376 357!, 376 464!, 206 482!")
p.line("226 412, 300 408", 4)

p.note("fireman climbs in profile, both feet on rungs, his near hand held out to the cat")
p.shape(limb("282 236, 266 290, 246 330", 50, 42, 34, flat=True))
shoe(p, 248, 338, -2, 1.06)
palm(p, 388, 226, -12, .9, "fist", 1)
p.shape(limb("316 160, 346 208, 388 224", 40, 34, 27, flat=True))
p.shape(limb("302 108, 300 140", 36, 36))
p.one("268 142, 300 130, 330 136, 340 176, 324 240, 294 258, 258 246, 250 194", limb("288 232, 352 236, 366 262", 56, 50, 42), limb("362 246, 362 276, 354 302", 46, 42, 36, flat=True))
shoe(p, 356, 306, -8, 1.1)
p.line("252 222, 284 230, 312 226", 4)
with p.at(320, 84, .8, -20):
    head(p, "34", "short", mouth="open", brows=None, r=5.2)
    p.shape("-50 -20!, -52 -54, -26 -84, 18 -84, 44 -62, 48 -26!, 0 -36")
    p.shape("-6 -36!, -8 -60!, 8 -70, 24 -58!, 22 -34!, 8 -38", 3)
    p.shape("-80 14!, -66 -14, -46 -28, 0 -36, 46 -34, 76 -18!, 58 -12, 36 -18, -4 -18, -34 -4, -54 12")
palm(p, 384, 132, -30, 1.05, "open", 1)
sleeve(p, "290 164, 326 184, 388 132", 50, 42, 30)

p.note("engine's cab at its corner, front with the driver")
p.shape("-10 292!, 12 274!, 176 280!, 208 304!, 104 300!")
p.shape("104 300!, 208 304!, 208 484!, 104 500!")
p.shape("122 316!, 192 318!, 192 370!, 122 374!")
p.line("166 404, 184 403", 4)
p.shape("-20 294!, 104 300!, 104 502!, -20 480!")
window = "-20 312!, 90 316!, 90 388!, -20 382!"
p.shape(window)
with p.within(window):
    with p.at(32, 362, .66, -14):
        head(p, "34", "", eyes="", mouth="open", brows=None, r=5.6, ear=False, nose=False)
        p.eye(14, -8, 5.6)
        p.eye(36, -8, 5.2)
        p.line("27 2, 32 7, 25 9")
        p.shape("-54 -14!, -48 -50, 0 -66, 42 -46, 54 -16!, 0 -24")
p.put(f'<path fill="none" d="{p.path(window)}"/>')
p.shape("52 278!, 52 256, 64 248, 88 248, 100 258, 100 280!, 76 286")
p.shape(oval(62, 432, 20, 22))
p.line("24 464, 84 474", 4)
for x, y, rx, ry in ((160, 488, 33, 38), (322, 468, 29, 36)):
    p.shape(oval(x, y, rx, ry))
    p.spot(x + 2, y, 5, 6)

p.note("old lady in profile, a bowl of milk in both hands")
with p.at(516, 488, 1, 4), p.at(-516, -500):
    shoe(p, 534, 512, 0, 1.1, True)
    shoe(p, 498, 514, 0, 1.1, True)
    p.one(limb("512 330, 516 356", 38, 38), "484 362, 514 344, 546 360, 560 410, 572 500!, 520 510, 462 500!, 476 420, 474 386")
    with p.at(506, 316, .86, 12, flip=True):
        p.shape(oval(-40, -48, 23))
        head(p, "side", "parting", mouth="open", brows=None, r=5.6)
    p.shape("478 352!, 512 362, 550 352!, 560 372, 514 384, 474 370")
    p.shape("388 424!, 462 424!, 450 448, 426 456, 400 448")
    p.shape(oval(425, 424, 37, 9), 3)
    palm(p, 480, 440, 176, .98, "pinch", -1)
    sleeve(p, "526 396, 530 440, 474 440", 44, 42, 32)
p.save()
