from hand import *
from limbs import palm
from people import shoe
from sideface import side_head

p = Page("42", "Football: the keeper flies, the ball passes just beyond the fingers; the dog is the other goal post")

p.note("field and trees, the net behind")
p.shape(scallops("-30 260, 20 206, 100 196, 180 190, 240 210, 270 260", 5, .4))
p.shape("-10 250!, 200 236, 420 250, 640 236!, 640 560!, -10 560!")
net = "320 40!, 640 8!, 640 330!, 336 346!"
p.shape(net)
with p.within(net):
    p.lines("484 0, 492 400", "260 150, 660 120")
p.shape("314 46!, 332 46!, 344 388!, 322 388!")
p.shape("314 40!, 640 6!, 640 26!, 314 62!")

p.note("chalk line on the grass")
p.line("-10 488, 560 436", 4)

p.note("kicker, smaller, weight on one leg, the other still in the air")
with p.at(104, 290, .8):
    palm(p, -70, 92, 150, .9, "wave", -1)
    p.shape(limb("-18 34, -44 66, -72 92", 38, 34, 32, flat=True))
    p.shape(limb("-6 128, -26 184, -20 236", 46, 38, 32, flat=True))
    with p.within(limb("-6 128, -26 184, -20 236", 46, 38, 32, flat=True)):
        p.line("-60 206, 20 198", 4)
    shoe(p, -20, 244, 0, 1.15)
    p.shape(limb("10 132, 76 146, 132 124", 50, 40, 32, flat=True))
    with p.within(limb("10 132, 76 146, 132 124", 50, 40, 32, flat=True)):
        p.line("92 110, 108 170", 4)
    with p.at(138, 120, 1, -62):
        shoe(p, 0, 0, 0, 1.15)
    shirt = "-36 26!, -14 18, 12 20!, 30 40, 28 80, 26 114!, -10 120, -46 112!, -44 70"
    p.shape(limb("-8 2, -10 28", 30, 34, flat=True))
    p.shape(shirt)
    p.shape("-46 110!, -10 120, 28 112!, 58 112, 70 126!, 62 168!, 30 170, 8 160!, 6 176!, -48 172!, -50 140")
    with p.at(6, -42, .98, -24):
        side_head(p, "curly", mouth="open", brows=8, ear=False)
        p.shape("-14 -2, -26 -4, -30 8, -24 18, -13 15")
    palm(p, 72, 46, -48, .9, "wave")
    p.one(limb("-14 42, 14 76, 74 46", 40, 38, 32, flat=True), join=(-16, 40, 21))

p.note("keeper stretched out in the air, head between the arms")
with p.at(20, 22, .9):
    palm(p, 238, 112, 202, .94, "glove", -1)
    p.shape(limb("340 168, 296 140, 236 112", 36, 40, 36, flat=True))
    p.one(limb("510 240, 574 232, 618 204", 54, 44, 36, flat=True))
    with p.within(limb("510 240, 574 232, 618 204", 54, 44, 36, flat=True)):
        p.line("578 190, 600 260", 4)
    with p.at(624, 200, 1, -64):
        shoe(p, 0, 0, 0, 1.15)
    p.shape(limb("500 266, 570 290, 626 300", 54, 44, 36, flat=True))
    with p.within(limb("500 266, 570 290, 626 300", 54, 44, 36, flat=True)):
        p.line("596 260, 586 330", 4)
    with p.at(632, 302, 1, -84):
        shoe(p, 0, 0, 0, 1.15)
    shirt = "336 172!, 350 176, 386 168, 430 182, 484 212!, 458 288!, 404 272, 352 246, 314 204"
    p.shape(shirt)
    with p.within(shirt):
        p.lines("420 160, 398 290", "458 180, 430 300", width=4)
    p.shape("484 210!, 520 218, 556 222!, 560 272!, 552 310!, 500 302, 456 290!, 468 252")
    p.line("560 270, 534 266", 4)
    with p.at(300, 148, .96, -6, flip=True):
        side_head(p, "tuft", mouth="open", brows=None)
    palm(p, 226, 190, 194, .98, "glove", -1)
    p.one(limb("384 226, 310 230, 224 190", 54, 50, 40, flat=True), join=(390, 226, 30))

p.note("ball just beyond the fingers")
with p.at(108, 92):
    p.shape(oval(0, 0, 40))
    with p.within(oval(0, 0, 40)):
        p.shape(star(0, 0, 18, .81))
        for k in range(5):
            with p.at(0, 0, 1, 72 * k):
                p.line("0 -18, 0 -50")

p.note("the dog is the other goal post")
with p.at(540, 426, .94):
    p.one("-44 120, -52 70, -36 20, 0 4, 36 20, 52 70, 48 120", limb("-24 70, -26 116", 34, 30), limb("20 70, 20 116", 34, 30), oval(-32, 106, 22, 13), oval(16, 106, 22, 13))
    p.line("-5 64, -6 96")
    p.shape("-26 -74!, -64 -66, -70 -20, -46 -4, -34 -30")
    p.one("-34 -60, 0 -78, 36 -62, 46 -24, 30 6, 0 16, -50 6, -66 -18, -48 -34")
    p.shape("26 -74!, 60 -64, 70 -22, 50 -2, 32 -34")
    p.spot(-60, -18, 11, 9)
    p.eye(-20, -36, 6)
    p.eye(10, -38, 6)
    p.lines("-30 -52, -22 -56, -12 -54", "2 -54, 8 -58, 14 -56", "-40 0, -30 0, -18 -8")
    p.shape("-34 12!, 34 8!, 38 22!, -34 28!")
p.save()
