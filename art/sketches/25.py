from hand import *
from limbs import palm, sleeve
from people import *
from faces import head

p = Page("25", "Two children sail past the lighthouse: the girl plays ball with a seal, the keeper waves from his gallery")

p.note("horizon, island with the lighthouse")
p.line("-10 250, 640 250", 4)
p.shape("404 316!, 440 262, 474 234, 520 224, 580 230, 640 250!, 640 330!, 404 330!")
tower = "486 236!, 498 122!, 570 122!, 588 240!"
p.shape(tower)
with p.within(tower):
    p.line("460 180, 600 176", 4)
p.shape("524 238!, 524 214, 538 204, 552 214, 552 240!")
p.shape("514 108!, 514 58!, 570 58!, 570 108!")
p.shape("502 60!, 514 30, 542 16, 570 30, 582 60!")
p.note("the keeper waves")
palm(p, 392, 58, -112, .9, "wave", -1)
p.shape(limb("450 114, 402 98, 393 56", 30, 27, 22, flat=True))
p.shape("434 120!, 438 98, 456 90, 480 92, 494 104, 496 120!")
with p.at(462, 62, .72, -4, flip=True):
    head(p, "34", "", mouth="open", brows=None, r=5.4, ear=False, nose=False)
    p.line("19 5, 24 11, 17 13")
    p.shape("-54 -14!, -46 -54, 0 -70, 42 -50, 46 -28!, 74 -22, 42 -14, 0 -22")
p.shape("400 108!, 598 108!, 588 132!, 412 132!")

p.note("gull")
with p.at(66, 112, .96, -4):
    p.shape("-6 4, -30 -30, -58 -34!, -44 -8, -20 14")
    p.shape("20 0, 40 -38, 72 -44!, 60 -12, 34 14")
    p.one("-34 12!, -10 4, 20 2, 44 6, 50 16, 30 26, 0 26, -50 32!")
    p.shape("48 8!, 66 16!, 46 20!", 3)
    p.eye(36, 13, 3.4)

p.note("sea behind")
p.shape(scallops("-10 312, 640 312", 10, .2, False) + [(640, 560, True), (-10, 560, True)])

p.note("boat heels over: sails, mast")
with p.at(226, 380, 1, -3):
    p.shape("10 -330!, 66 -240, 104 -176, 130 -118!, 80 -110, 10 -112!")
    p.shape(heart(44, -206, 20))
    main = "6 -330!, -62 -262, -128 -180, -170 -116!, -90 -98, 6 -98!"
    p.shape(main)
    with p.within(main):
        p.line("-180 -172, 20 -194", 4)
    p.shape("8 -340!, -26 -362, -64 -346!, -30 -332, 8 -318!")
    p.shape("-2 20!, 0 -342!, 14 -342!, 16 20!")

p.note("girl at the bow, both hands out to the ball")
palm(p, 396, 292, -22, .95, "open", 1)
p.shape(limb("318 312, 360 314, 396 292", 30, 28, 23, flat=True))
p.shape(limb("306 280, 304 306", 30, 30))
p.shape("268 400!, 264 348, 278 308, 306 296, 332 308, 344 350, 346 400!")
with p.at(318, 256, .84, 4):
    head(p, "side", "pony", mouth="open", brows=5)
palm(p, 382, 338, -30, .98, "open", 1)
sleeve(p, "296 328, 332 360, 384 338", 42, 36, 26)

p.note("boy leans out over the tiller and looks up at the sail, a hand on the side of the boat")
p.shape("74 420!, 80 380, 96 354, 118 342, 146 350, 166 376, 176 420!")
with p.at(120, 300, .86, -14):
    head(p, "34", "tuft", mouth="open", brows=None, nose=False)
    p.line("25 3, 30 9, 22 11")
p.tube("14 336, 62 362", 14)
palm(p, 68, 370, -140, .95, "fist", -1)
sleeve(p, "106 384, 92 418, 66 370", 42, 36, 26)

sleeve(p, "122 384, 170 366, 189 402", 38, 34, 25)
p.note("tiller and hull")
p.shape("34 382!, 230 406, 330 398, 452 330!, 428 412, 380 470!, 80 470!, 48 430")
p.line("40 408, 230 430, 330 422, 444 364", 4)
palm(p, 190, 404, 78, .9, "fist", 1)
p.note("seal with the ball")
p.shape(oval(462, 262, 34))
p.lines("436 240, 460 264, 454 296", "460 264, 494 254", width=4)
with p.at(514, 300):
    p.one("-42 12, -14 -4, 20 4, 54 42, 84 110, 110 200, -50 200, -44 130, -38 72, -56 42")
    p.one(limb("4 112, -40 134, -78 116", 36, 30, 18), join=(10, 110, 20))
    p.spot(-46, 16, 9, 7)
    p.eye(-8, 26, 6)
    p.lines("-42 36, -28 44, -14 42", "-2 54, 20 58", "-6 66, 14 74")

p.note("waves in front")
p.shape(scallops("-10 440, 640 434", 8, .22, False) + [(640, 560, True), (-10, 560, True)])
p.shape(scallops("-54 494, 684 494", 9, .22, False) + [(684, 580, True), (-54, 580, True)])
p.save()
