from hand import *
from people import *

p = Page("57", "Two in a canoe: the big one paddles with all his strength, the small one has let the beaver take the paddle")

p.note("mountains, firs, lake")
p.shape("-10 240!, 90 110!, 150 170!, 220 60!, 330 200!, 380 150!, 470 236!")
p.shape("178 130!, 220 60!, 272 128!, 244 120!, 222 140!, 202 118!")
p.shape("-10 246, 160 236, 330 248, 640 236!, 640 560!, -10 560!")
for x, y, s in ((570, 250, 1.5), (54, 236, .9)):
    with p.at(x, y, s):
        p.shape(box(-7, -24, 14, 30))
        p.shape("0 -150!, 34 -92!, 20 -92!, 48 -20!, -48 -20!, -20 -92!, -34 -92!")

p.note("girl in front, in profile: her hands are empty")
with p.at(218, 194, .92, flip=True):
    p.one(arm("16 90, 60 128, 98 118", 30, 24, thumb=-1))
    p.shape(limb("2 36, -4 62", 28, 28))
    p.one("-32 62!, 24 58!, 40 100, 44 210!, -70 210!, -52 104")
    with p.at(6, -6, 1, -4):
        head(p, "34", "bob", mouth="smile", brows=6)
        p.shape("-56 -30, -10 -46, 44 -38, 46 -24, -10 -30, -57 -14")
    p.one(limb("-12 92, 14 134, 44 112", 42, 34, flat=True), arm("42 114, 58 96, 64 78", 28, 24, thumb=-1), join=(-14, 90, 20))

p.note("grandfather behind, leaning into the stroke")
with p.at(428, 168, 1.06, flip=True):
    p.shape(limb("12 40, 0 72", 34, 34))
    p.one("-44 74!, 22 60!, 48 104, 50 230!, -74 230!, -66 120")
    with p.at(20, -6, 1, 12):
        head(p, "side", "parting", eyes="happy", mouth="smile", brows=None)
        p.shape("34 30, 26 24, 8 34, -16 10!, -26 24, -30 50, 4 66, 34 52")
        p.shape("-56 -30, -10 -48, 40 -36, 42 -22, -10 -32, -57 -14")
    p.shape(limb("-40 110, -64 140, -58 190", 30, 26, 18))
    p.out.pop()
    p.shape(limb("120 14, 30 250", 14, 14))
    p.one(arm("30 90, 78 96, 102 66", 30, 26, thumb=1, grip=True))
    p.one(limb("-24 104, -4 156, 24 160", 50, 42, flat=True), arm("22 160, 40 160, 52 154", 32, 26, thumb=1, grip=True), join=(-26, 102, 24))

p.note("canoe, three quarters, bow to the left")
p.shape("20 300!, 62 346, 160 360, 320 366, 470 358, 560 330, 604 286!, 612 330, 580 400, 500 440, 330 452, 160 444, 60 400, 24 350")
p.line("30 332, 120 384, 320 396, 500 384, 606 320", 4)
for x in (246, 380):
    p.shape(f"{x - 30} 430!, {x} 404!, {x + 30} 430!")

p.note("grandfather's blade in the water, the beaver with the other paddle")
p.shape("376 440!, 396 436!, 410 486, 398 512, 374 506, 368 480")
with p.at(86, 438):
    p.one(limb("-40 40, -84 52, -96 30", 34, 46, 40))
    p.one("-44 60, -40 10, -16 -10, 20 -10, 40 16, 44 70, -44 70")
    p.shape(limb("66 92, 34 -70", 13, 13))
    p.shape("24 -64!, 44 -68!, 44 -100, 30 -128, 12 -124, 12 -96")
    p.one(oval(-24, -56, 10), oval(16, -66, 10), "-32 -44, -12 -64, 14 -62, 34 -44, 44 -26, 36 -8, 8 2, -24 -8")
    
    p.spot(42, -30, 7, 6)
    p.eye(16, -40, 5)
    p.line("24 -12, 16 -12, 10 -18")
    p.one(limb("-6 14, 24 36, 42 30", 26, 20), oval(46, 28, 12), join=(-6, 14, 15))
p.shape(scallops([(660, 500), (400, 484), (180, 496), (-40, 486)], 8, .2, closed=False) + [(-40, 580, True), (660, 580, True)])
p.note("a fish jumps")
with p.at(530, 452, 1, -30):
    p.shape("-44 4, -16 -18, 20 -14, 40 0!, 60 -16!, 60 22!, 40 10!, 18 24, -20 22")
    p.eye(-22, 0, 4)
    p.line("-2 -18, 4 2, -2 24")
p.save()
