from hand import *
from limbs import palm, sleeve
from people import *
from faces import head

p = Page("23", "A digger lifts its bucket: a mole with a helmet sits in the earth; the driver and the worker cannot believe it")

p.note("building site: wall going up, hills")
p.shape("-10 330, 140 290, 330 300, 480 280, 640 310!, 640 440!, -10 440!")
p.shape("-10 300!, -10 110!, 44 110!, 44 160!, 104 160!, 104 210!, 160 210!, 160 300!")
p.lines("-10 160, 44 160", "-10 210, 104 210", "-10 258, 160 258", "64 212, 64 258", width=4)
p.shape("-10 420, 200 400, 420 410, 640 390!, 640 560!, -10 560!")

p.note("stick, bucket with the mole")
p.shape("396 88!, 436 62!, 462 74!, 600 250!, 572 284!")
p.spot(430, 92, 6)
with p.at(496, 218):
    p.one(oval(0, 0, 52, 50), "-60 60!, -50 10, 50 10, 60 60!")
    p.shape("-58 -14!, -48 -56, -4 -74, 40 -58, 54 -16!, 30 -24, -30 -22")
    p.shape("-76 -8!, -58 -20, 0 -30, 54 -22!, 60 -10, 0 -16")
    p.line("-12 -72, -14 -30", 4)
    p.one(oval(0, 30, 44, 26), "-20 8, -58 18, -80 30!, -60 46, -16 54", join=(14, 20, 46))
    p.spot(-78, 30, 11, 10)
    p.lines("-48 40, -30 48, -8 42")
    p.shapes(oval(-22, -2, 15, 15), oval(18, -2, 15, 15), width=3)
    p.line("-7 -4, 3 -4", 3)
    p.spot(-27, 1, 4.6)
    p.spot(13, 1, 4.6)
p.shape(scallops("434 312, 446 290, 472 276, 530 286, 586 272, 610 300", 6, .3, closed=False) + [(600, 340, True), (450, 340, True)])
for x in (466, 540):
    p.shape(f"{x - 21} 308!, {x - 24} 286, {x - 10} 274, {x + 10} 275, {x + 22} 288, {x + 19} 308!")
    p.lines(f"{x - 7} 290, {x - 7} 308", f"{x + 7} 290, {x + 7} 308")
p.shape("424 308!, 604 298!, 622 270!, 616 340, 574 382, 504 386, 450 366!")
p.line("436 334, 616 322", 4)

p.note("digger: house, cab with the driver, boom")
p.shape("14 410!, 14 320!, 34 298!, 150 290!, 150 410!")
p.lines("46 330, 46 372", "72 330, 72 372", "98 330, 98 372", width=4)
p.shape("60 296!, 60 250!, 84 250!, 84 294!")
p.shape("130 410!, 136 220!, 164 190!, 262 190!, 284 300!, 284 410!")
pane = "158 330!, 160 234, 178 216!, 246 216!, 266 310!, 266 330!"
p.shape(pane)
with p.within(pane):
    with p.at(192, 278, .72, -10):
        p.one("-70 120!, -64 74, -28 54, 30 60, 60 120!")
        head(p, "side", "short", mouth="open", brows=None, r=6.4)
        p.shape("-56 -10!, -48 -56, 0 -72, 38 -56, 46 -24!, 74 -14, 40 -10, 0 -20")
p.put(f'<path fill="none" d="{p.path(pane)}"/>')
p.shape("206 408!, 214 350, 300 230, 352 120, 392 66, 440 52!, 462 78!, 420 120, 380 220, 300 350, 284 410!")
p.spot(428, 78, 6)
p.tube("258 372, 326 246", 17)

p.note("tracks")
p.shape("56 410!, 250 410!, 298 420, 312 452, 298 486, 250 498!, 56 498!, 10 486, -4 452, 10 420")
for x, r in ((44, 24), (112, 17), (188, 17), (262, 24)):
    p.shape(oval(x, 454, r))
for x in range(72, 262, 32):
    p.line(f"{x} 496, {x} 484", 4)

p.note("worker in front, seen from the side, points at the mole")
palm(p, 480, 468, -52, 1.08, "point", 1)
p.shape(limb("384 440, 382 470", 42, 42))
p.shape("332 560!, 334 500, 352 464, 388 456, 420 468, 432 500, 436 560!")
with p.at(386, 416, .96, -16):
    head(p, "side", "short", mouth="open", brows=None, r=5.8)
    p.shape("-58 -12!, -50 -54, -8 -80, 34 -64, 44 -32!, 76 -24, 40 -16, 0 -24, -30 -12")
    p.line("-10 -80, -12 -40", 4)
sleeve(p, "378 490, 424 536, 482 466", 50, 44, 30)
p.save()
