from hand import *
from limbs import palm
from people import *

p = Page("53", "Here comes the train: the cow on the track chews on, nose to the buffer; the driver waves, children look over the gate")

p.note("hills and sky")
p.shape("-10 330!, 90 270, 210 300, 330 240, 470 290, 640 230!, 640 560!, -10 560!")
p.shape(scallops("262 44, 262 14, 300 -14, 420 -24, 540 -24, 530 6, 480 20, 430 20, 380 42, 330 34, 300 48", 12, .3))

p.note("track")
train = p.at(0, -34)
train.__enter__()
p.line("-10 446, 640 446", 5)

p.note("engine from the side, driving to the left")
with p.at(0, 0):
    p.shape("456 120!, 640 120!, 640 370!, 456 370!")
    p.shape("424 96!, 434 120!, 616 120!, 626 96!, 524 84")
    p.shape("470 150!, 574 150!, 574 252!, 470 252!")
    p.note("driver")
    with p.at(522, 222, .78, flip=True):
        head(p, "34", "bald", mouth="open", brows=None, nose=False)
        p.line("21 4, 26 9, 19 11")
        p.shape("-54 -8, -50 -42, -10 -62, 34 -50, 42 -24!, 66 -14, 40 -12, 10 -20, -30 -16")
    p.shape("456 252!, 588 252!, 588 337!, 456 337!")
    p.note("boiler, chimney, dome")
    p.shape("254 168!, 262 112, 244 84!, 318 84!, 302 112, 310 168!")
    p.shape("236 66!, 326 66!, 326 86!, 236 86!")
    p.shape("338 172!, 340 138, 366 124, 392 138, 394 172!")
    p.shape("226 180!, 240 166!, 456 166!, 456 336!, 240 336!, 226 322!")
    p.line("304 166, 304 336", 4)
    p.shape("214 176!, 236 170!, 236 338!, 216 338!, 206 250")
    p.shape("240 336!, 640 336!, 640 446!, 240 446!")
    palm(p, 424, 210, -124, 1, "wave", -1)
    p.shape(limb("530 276, 462 250, 422 206", 36, 36, 32, flat=True))
    p.shape("456 252!, 588 252!, 588 337!, 456 337!")
    p.shape(box(188, 344, 46, 32))
    p.shape(oval(184, 355, 8, 24))
    p.note("wheels and one rod")
    for x in (262, 386, 516):
        p.shape(oval(x, 388, 57))
        for t in (-45, 0, 45):
            with p.at(x, 388, 1, t):
                p.line("0 -44, 0 -20", 4)
    p.shape(limb("262 404, 516 404", 22, 22))
p.note("cow on the track, nose to the buffer")
with p.at(84, 324, .99):
    p.one(limb("24 30, 52 74, 58 112", 50, 32, 26, flat=True))
    p.shape("44 110!, 40 130!, 78 130!, 72 108!")
    p.one("-100 -44, -60 -54, 0 -44, 30 -60, 46 -74, 76 -64, 84 -34, 80 0, 70 20, 58 40, 38 58, 10 70, -24 74, -64 64, -96 50, -110 0",
          limb("-78 20, -74 70, -90 94, -88 118", 70, 38, 28, 26, flat=True), limb("4 34, 14 84, 6 118", 64, 32, 26, flat=True))
    p.shape("48 -14, 82 -20, 98 4, 88 24, 58 28, 42 10")
    p.line("50 20, 66 22, 82 14")
    p.spot(80, 0, 4.5)
    p.eye(64, -42, 6)
    p.shape("60 -72!, 70 -100, 76 -88, 74 -64!")
    p.shape("34 -66!, 24 -98, 40 -86, 52 -74!")
    p.shape("30 -48, 8 -70, -4 -56, 10 -40, 26 -36")
    p.shape("-70 -30, -36 -34, -24 -8, -44 14, -74 8, -84 -12")
    p.shape("-9 114!, -13 132!, 25 132!, 21 114!")

train.__exit__(None, None, None)
p.note("the gate")
p.shape("-10 448!, 250 448!, 250 476!, -10 476!")
p.shape("550 448!, 640 448!, 640 476!, 550 476!")
p.shape("-10 436!, 30 436!, 30 560!, -10 560!")
p.note("children behind the gate, from behind, waving")
with p.at(336, 459, .92):
    palm(p, -94, 12, -98, 1.1, "wave", -1)
    p.shape(limb("0 40, 0 84", 36, 38, flat=True))
    p.one("-56 82, -20 62!, 0 70, 20 62!, 56 82, 60 140!, -60 140!", limb("-34 92, -78 84, -92 14", 48, 42, 34, flat=True))
    with p.at(0, 12):
        head(p, "back", "tails")
        p.line("2 -60, 5 -34, 4 -4")
with p.at(470, 467, .86):
    palm(p, 94, 12, -82, 1.1, "wave")
    p.shape(limb("0 40, 0 84", 36, 38, flat=True))
    p.one("-56 82, -20 62!, 0 70, 20 62!, 56 82, 60 140!, -60 140!", limb("34 92, 78 84, 92 14", 48, 42, 34, flat=True))
    with p.at(0, 12):
        head(p, "back", "curly")
p.save()
