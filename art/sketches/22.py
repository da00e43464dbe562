from hand import *
from limbs import palm, sleeve
from people import *
from faces import head

p = Page("22", "The farmer drives his tractor with a cart of pumpkins and looks back: a goat rides along, has taken his hat and will not let go")

p.note("hills with a farm far away")
p.shape("-10 250, 80 196, 200 200, 340 260!, 330 420!, -10 420!")
p.shape("250 270, 380 206, 500 196, 640 230, 640 420!, 250 420!")
p.shape("538 208!, 538 160!, 576 116!, 640 116!, 640 216!")
p.shape("-10 440, 200 414, 640 430, 640 560!, -10 560!")

p.note("goat in the cart: far horn, tail, body with neck and head, ear, horn, beard")
p.shape("136 96!, 134 66, 120 44!, 146 48, 164 70, 164 92!")
p.one("24 186, 4 170, -2 146!, 28 152, 44 172!", "22 188, 56 166, 104 172, 140 200, 150 300, 10 300, 8 236",
      limb("112 224, 136 172, 146 124", 84, 56, 48), "124 128, 124 100, 148 84, 172 94, 194 122, 206 144, 196 160, 168 156, 140 146")
p.shape("116 104!, 98 74, 70 62!, 96 54, 124 68, 144 92!")
p.shape("128 116, 100 110, 80 124!, 102 138, 130 128!")
p.shape("158 154!, 156 186, 168 200!, 180 182, 178 158!")
p.eye(160, 116, 5.5)
p.spot(196, 142, 3.2)
p.note("the hat in its mouth")
with p.at(222, 158, 1.12, 76):
    p.shape("-28 0!, -24 -36, 0 -44, 24 -36, 28 0!")
    p.line("-27 -12, 27 -12", 4)
    p.shape("-50 0, -20 -6, 20 -6, 50 0, 20 12, -20 12")

p.note("pumpkins, cart")
def pumpkin(x, y, s, ribs=True):
    with p.at(x, y, s):
        p.shape("-8 -36!, -14 -58!, 2 -64!, 8 -36!")
        p.one(oval(-34, 0, 30, 38), oval(34, 0, 30, 38), oval(0, 0, 34, 43))
        if ribs:
            p.lines("-12 -26, -20 -6, -19 8", "12 -26, 20 -6, 19 8")
pumpkin(156, 288, .9, False)
pumpkin(96, 270, 1)
p.shape("-10 300!, 216 300!, 206 384!, -10 384!")
p.line("-10 342, 212 342", 4)
p.shape(limb("200 372, 240 376", 16, 16))
p.shape(oval(84, 398, 54))
p.shape(oval(84, 398, 24))

p.note("tractor: exhaust")
p.shape("478 250!, 480 176!, 498 176!, 500 250!")
p.shape("468 176!, 468 162!, 510 162!, 510 176!")
p.shape(scallops("490 134, 480 108, 500 82, 536 86, 552 112, 530 138", 6, .4))

p.note("seat, steering wheel, farmer")
p.shape("262 300!, 256 226, 272 214, 288 226, 300 300!")
p.line("392 262, 418 214", 6)
palm(p, 262, 178, -172, 1.02, "fist", -1)
p.shape(limb("320 196, 300 214, 262 180", 42, 34, 28, flat=True))
p.shape(limb("334 140, 330 180", 42, 42))
p.one("292 206, 314 178, 344 176, 372 204, 378 296, 284 296, 280 246", limb("300 268, 360 266, 404 300", 62, 50, 44))
p.shape("304 178!, 328 188, 354 176!, 362 194, 330 210, 298 196")
with p.at(333, 111, .96, 2, flip=True):
    head(p, "side", "bald", mouth="open", brows=7)
p.shape(oval(409, 206, 17, 42, 26))
p.shape(oval(409, 206, 8, 31, 26))
palm(p, 386, 236, -34, .96, "fist", 1)
sleeve(p, "332 216, 338 266, 390 234", 48, 42, 32)

p.note("bonnet, front wheel")
p.shape("366 392!, 376 286!, 388 258!, 560 240, 590 256, 596 372!, 440 392!")
p.shape("548 241, 588 254, 594 340!, 552 344!")
p.line("366 310, 552 310", 4)
p.shape(oval(568, 280, 15, 19))
p.lines("430 268, 430 290", "456 266, 456 288", "482 264, 482 286", width=4)
p.shape(oval(506, 424, 60))
p.shape(oval(506, 424, 28))
for k in range(12):
    a = math.radians(k * 30 + 8)
    p.line(f"{506 + 60 * math.cos(a)} {424 + 60 * math.sin(a)}, {506 + 46 * math.cos(a)} {424 + 46 * math.sin(a)}", 4)

p.note("mudguard and large wheel")
p.shape("176 372!, 186 296, 240 254, 314 258, 372 292!, 400 350, 404 372!")
p.shape(oval(292, 384, 106))
p.shape(oval(292, 384, 62))
p.shape(oval(292, 384, 24))
for k in range(16):
    a = math.radians(k * 22.5 + 6)
    p.line(f"{292 + 106 * math.cos(a)} {384 + 106 * math.sin(a)}, {292 + 84 * math.cos(a)} {384 + 84 * math.sin(a)}", 4)

p.note("a pumpkin that fell off, a hen pecks at it")
pumpkin(54, 492, .86)
with p.at(204, 494, .88):
    p.lines("-8 26, -10 44, -24 44", "10 26, 10 44, -4 44", width=4)
    p.shape("-48 -58, -52 -74, -40 -72, -36 -84, -24 -76, -14 -80, -10 -66, -18 -56")
    p.shape("-52 -52!, -72 -40!, -50 -36!", 3)
    p.one("-52 -44, -52 -6, -34 20, 2 30, 38 14, 58 -16, 64 -46!, 44 -44, 28 -26, 6 -24, -8 -36, -14 -58, -34 -64")
    p.eye(-36, -46, 4.4)
    p.shape("-16 -8!, 0 14, 24 8, 36 -12!, 12 -8")
p.save()
