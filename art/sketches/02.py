from hand import *
from beasts import *

p = Page("02", "A proud hen leads her chicks; one rides on her, one tugs at a worm, one comes late down the ladder")

p.note("hills, coop far away, ladder")
p.shape("-10 190, 130 150, 330 190, 640 130!, 640 560!, -10 560!")
p.shape(limb("52 130, 52 196", 14, 14, flat=True))
p.shape(limb("160 130, 160 196", 14, 14, flat=True))
p.shape(box(34, 62, 146, 90))
p.shape("16 70!, 108 10!, 200 70!")
p.shape("76 152!, 76 108, 106 84, 136 108, 136 152!")
p.shape("86 152!, 128 152!, 104 256!, 46 256!")
p.lines("66 216, 114 216", width=4)
with p.at(98, 190, .9, 12, flip=True):
    chick(p, step=False)

p.note("sunflower")
p.shape(limb("552 140, 574 300, 562 430", 15, 15, flat=True))
p.shape("574 350!, 576 316, 604 296!, 608 326, 598 344")
p.shape(scallops(oval(550, 104, 40), 9, .62))
p.shape(oval(550, 104, 31))
p.eye(539, 100, 4, "happy")
p.eye(561, 100, 4, "happy")
p.line("539 112, 550 121, 562 112")
p.shape("-10 400, 180 348, 400 398, 640 384!, 640 560!, -10 560!")

p.note("hen: tail, far leg, body")
for way, vein in (("290 250, 238 214, 198 110", "240 210, 214 146"), ("280 270, 212 254, 146 190", "212 246, 172 210"), ("276 300, 196 300, 116 262", "200 294, 148 276")):
    p.shape(limb(way, 40, 54, 62, 44, 22))
    p.line(vein)
p.one(limb("384 366, 398 412, 402 432", 24, 14), limb("402 430, 434 432", 15, 13), limb("402 430, 420 454", 15, 13), limb("402 432, 378 444", 15, 13))
p.one(limb("320 370, 310 430, 304 470", 24, 15), limb("304 470, 340 478", 16, 14), limb("304 470, 314 494", 16, 14), limb("304 470, 276 484", 16, 14))
p.shape("404 100!, 396 72, 414 62, 424 80!, 428 50, 452 48, 454 76!, 472 60, 486 76, 470 106!")
p.one("440 92, 474 108, 482 144, 472 186, 490 240, 480 306, 440 362, 372 392, 300 380, 248 330, 232 262, 262 234, 320 246, 366 226, 390 180, 400 120")
p.shape("466 158!, 450 176, 452 206, 468 214, 482 196, 478 164!")
p.shape("476 122!, 514 144!, 474 166!, 466 144")
p.line("466 145, 492 145")
p.eye(450, 128, 6, "happy")
p.lines("434 220, 444 230, 454 220", "446 262, 456 272, 466 262", "414 262, 424 272, 434 262")
p.shape("272 276, 320 260, 378 268, 408 300, 384 336, 330 350, 300 334!, 318 322, 284 312!, 302 300, 266 290!")
p.note("chick on her back")
with p.at(312, 254, 1.12):
    chick(p, step=False)

p.note("chicks behind her, the worm")
def legs(p):
    p.lines("-10 -10, -12 9!, -22 14", "-12 9, -2 14", "8 -10, 9 9!, -1 14", "9 9, 20 14", width=4)

with p.at(64, 448, 1.2):
    legs(p)
    chick(p, step=False)
with p.at(176, 500, 1.5):
    legs(p)
    chick(p, "happy", step=False, beak="open")
p.shape(limb("440 492, 439 462, 454 447, 482 450", 17, 17))
p.shape("404 498, 426 484, 456 484, 478 498, 468 510, 414 510")
p.lines("431 469, 448 469", "450 439, 459 455", width=4)
with p.at(560, 506, 1.4, -16, flip=True):
    legs(p)
    chick(p, step=False)
p.save()
