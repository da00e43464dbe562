from hand import *
from people import *

p = Page("25", "Two children sail past the lighthouse: the girl plays ball with a seal, the keeper waves from his gallery")

p.note("horizon, island with the lighthouse")
p.line("-10 250, 640 250", 4)
p.shape("410 282!, 436 250, 500 226, 570 232, 640 250!, 640 330!, 410 330!")
tower = "476 236!, 494 92!, 562 92!, 584 240!"
p.shape(tower)
with p.within(tower):
    p.lines("470 142, 600 138", "460 190, 600 186", width=4)
p.shape("516 238!, 516 214, 530 204, 544 214, 544 240!")
p.shape("502 74!, 502 46!, 556 46!, 556 74!")
p.shape("494 48!, 504 22, 528 10, 552 22, 562 48!")
p.shape("478 74!, 580 74!, 574 94!, 484 94!")
p.note("the keeper waves")
with p.at(462, 48, .52, flip=True):
    p.one(arm("6 62, 62 58, 80 14", 26, 25, thumb=1, hand=1.1))
    p.one("-30 70!, -30 62, -6 46, 22 56, 26 70!")
    head(p, "34", "", mouth="open", brows=None, r=7, ear=False, nose=False)
    p.shape("-54 -8!, -46 -50, 0 -68, 42 -46, 46 -22!, 72 -12, 40 -6, 0 -16")
p.shape("420 74!, 580 74!, 574 94!, 430 94!")

p.note("gull")
with p.at(70, 74):
    p.shape("-6 4, -30 -30, -58 -34!, -44 -8, -20 14")
    p.shape("20 0, 40 -38, 72 -44!, 60 -12, 34 14")
    p.one("-34 12!, -10 4, 20 2, 44 6, 50 16, 30 26, 0 26, -50 32!")
    p.shape("48 8!, 66 16!, 46 20!", 3)
    p.eye(36, 13, 3.4)

p.note("sea behind")
p.shape(scallops("-10 316, 640 316", 11, .2, False) + [(640, 560, True), (-10, 560, True)])

p.note("boat heels over")
with p.at(230, 374, 1, -4):
    p.shape("8 -326!, 90 -210, 150 -126, 212 -44!, 110 -76, 8 -92!")
    p.shape(heart(48, -206, 22))
    main = "8 -326!, -60 -262, -130 -176, -172 -112!, -90 -92, 8 -92!"
    p.shape(main)
    with p.within(main):
        p.lines("-180 -196, 20 -216", "-180 -140, 20 -154", width=4)
    p.shape("8 -338!, -26 -358, -64 -342!, -30 -330, 8 -316!")
    p.shape("-2 10!, 2 -340!, 14 -340!, 18 10!")
    p.note("boy at the sheet")
    p.line("-168 -112, -174 -20", 4)
    with p.at(-112, -18):
        p.shape(limb("-6 -24, -8 10", 28, 28))
        p.shape("-44 60!, -44 16, -24 -4!, 12 -6!, 32 14, 38 60!")
        with p.at(0, -52, .84):
            head(p, "34", "tuft", eyes="dot", mouth="smile", brows=2)
        p.one(limb("-22 26, -52 52, -60 20", 38, 32, 27, flat=True), arm("-60 22, -62 10, -64 4", 23, 21, thumb=-1, grip=True), join=(-18, 24, 19))
    p.note("girl at the bow reaches for the ball")
    p.one(arm("112 -2, 166 -34, 202 -66", 32, 26, 22, thumb=1))
    p.shape(limb("96 -66, 88 -34", 28, 28))
    p.shape("60 30!, 56 -14, 72 -40!, 106 -40!, 128 0, 124 30!")
    with p.at(106, -104, .88, 8):
        head(p, "side", "tails", mouth="open", brows=5)
    p.one(limb("80 -12, 120 20, 160 -4", 40, 34, 29, flat=True), arm("158 -4, 182 -18, 194 -28", 25, 22, thumb=-1), join=(76, -18, 20))
    p.note("hull")
    p.shape("-190 0!, -60 18, 90 12, 224 -44!, 196 40, 150 96!, -146 96!, -176 50")
    p.line("-184 26, -60 42, 90 38, 214 -12", 4)

p.note("seal with the ball")
with p.at(512, 324, 1, 0):
    p.shape(oval(-44, -46, 33))
    p.lines("-66 -70, -46 -44, -52 -14", "-46 -44, -12 -52", width=4)
with p.at(512, 300):
    p.one("-40 10, -14 -2, 20 6, 54 44, 84 110, 100 200, -40 200, -40 130, -38 66, -56 40")
    p.one(limb("0 110, -40 130, -74 116", 34, 28, 18), join=(4, 108, 18))
    p.spot(-44, 16, 9, 7)
    p.eye(-6, 26, 6)
    p.lines("-40 34, -26 42, -12 40", "-6 56, 16 60", "-10 68, 10 76")

p.note("waves in front")
p.shape(scallops("-10 440, 640 434", 8, .22, False) + [(640, 560, True), (-10, 560, True)])
p.shape(scallops("-54 494, 684 494", 9, .22, False) + [(684, 580, True), (-54, 580, True)])
p.save()
