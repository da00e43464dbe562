from hand import *
from people import *

p = Page("22", "The farmer drives his tractor with a cart of pumpkins and looks back: a goat rides along and has taken his hat")

p.note("hills with a farm far away")
p.shape("-10 250, 80 196, 200 200, 340 260!, 330 420!, -10 420!")
p.shape("250 270, 380 196, 500 186, 640 230, 640 420!, 250 420!")
p.shape("548 206!, 548 150!, 580 108!, 640 108!, 640 216!")
p.shape("584 208!, 584 166!, 612 166!, 612 212!")
p.shape("-10 440, 200 414, 640 430, 640 560!, -10 560!")

p.note("goat in the cart")
p.one("20 174, 0 156, -4 136!, 24 140, 40 164!", "22 180, 60 160, 110 170, 146 206, 150 300, 20 300, 8 230",
      limb("120 210, 140 160, 150 120", 78, 52, 46), "128 124, 128 94, 152 82, 178 96, 200 126, 204 150, 190 160, 160 150, 138 146",
      "136 92!, 122 62, 100 46!, 128 44, 150 66, 156 90!")
p.shape("134 104, 108 98, 92 112!, 108 122, 136 116!")
p.shape("162 152!, 160 186, 172 196!, 184 180, 182 156!")
p.eye(166, 112, 5.5)
p.note("the hat in its mouth")
with p.at(224, 166, 1.16, 62):
    p.shape("-28 0!, -24 -34, 0 -42, 24 -34, 28 0!")
    p.line("-28 -12, 28 -12", 4)
    p.shape("-50 0, -20 -6, 20 -6, 50 0, 20 12, -20 12")

p.note("pumpkins, cart")
def pumpkin(x, y, s, ribs=True):
    with p.at(x, y, s):
        p.shape("-6 -38!, -12 -60, 8 -66, 8 -38!")
        p.one(oval(-34, 0, 30, 38), oval(34, 0, 30, 38), oval(0, 0, 34, 43))
        if ribs:
            p.lines("-12 -26, -20 -6, -19 8", "12 -26, 20 -6, 19 8")
pumpkin(34, 286, .95, False)
pumpkin(156, 288, .9, False)
pumpkin(96, 270, 1)
p.shape("-10 300!, 216 300!, 206 384!, -10 384!")
p.line("-10 340, 212 340", 4)
p.shape(limb("200 372, 240 376", 16, 16))
p.shape(oval(84, 398, 54))
p.shape(oval(84, 398, 25))

p.note("tractor: exhaust, steering wheel, seat")
p.shape("470 250!, 474 176!, 494 176!, 494 250!")
p.shape("464 176!, 464 164!, 506 164!, 506 176!")
p.shape(scallops("484 136, 476 118, 494 98, 520 106, 520 128, 502 140", 6, .4))
p.shape(scallops("530 66, 526 50, 544 38, 562 48, 560 66, 546 74", 5, .4))
p.shape("232 290!, 228 230, 244 220, 260 232, 264 290!")

with p.at(28, 0):
    p.line("388 256, 408 218", 6)
    p.tube("388 198, 426 234", 15)
    p.note("farmer looks back")
    p.one(limb("318 196, 364 226, 392 204", 42, 32, flat=True), arm("390 206, 398 202, 404 204", 24, 22, thumb=-1, grip=True))
    p.shape(limb("306 140, 302 180", 34, 34))
    p.one("262 196, 292 170, 326 172, 348 200, 352 290, 262 290, 256 240", limb("280 268, 340 262, 392 290", 62, 50, 44))
    with p.at(312, 106, .98, 0, flip=True):
        head(p, "side", "bald", mouth="o", brows=6)
    p.one(limb("296 208, 304 256, 364 250", 44, 38, 32, flat=True), arm("362 250, 386 238, 402 224", 25, 22, thumb=-1, grip=True), join=(290, 202, 27))
    p.shape("286 168!, 326 168!, 336 184, 310 198, 282 186")

p.note("bonnet, front wheel")
p.shape("352 392!, 352 290!, 366 246!, 560 238, 590 256, 596 372!, 440 392!")
p.shape("552 240, 588 254, 594 340!, 552 344!")
p.line("356 306, 552 306", 4)
p.shape(oval(566, 276, 17, 20))
p.lines("400 262, 400 284", "426 260, 426 284", "452 258, 452 284", width=4)
p.shape(oval(506, 424, 60))
p.shape(oval(506, 424, 28))
for k in range(12):
    a = math.radians(k * 30 + 8)
    p.line(f"{506 + 60 * math.cos(a)} {424 + 60 * math.sin(a)}, {506 + 46 * math.cos(a)} {424 + 46 * math.sin(a)}", 4)

p.note("mudguard and large wheel")
p.shape("176 372!, 186 292, 240 250, 314 254, 372 288!, 400 350, 404 372!")
wheel = 292, 384
p.shape(oval(*wheel, 106))
p.shape(oval(*wheel, 62))
p.shape(oval(*wheel, 24))
for k in range(16):
    a = math.radians(k * 22.5 + 6)
    p.line(f"{292 + 106 * math.cos(a)} {384 + 106 * math.sin(a)}, {292 + 84 * math.cos(a)} {384 + 84 * math.sin(a)}", 4)

p.note("a pumpkin that fell off, a hen pecks at it")
pumpkin(58, 492, .86)
with p.at(168, 498, .86):
    p.one("-44 -46!, -50 -10, -30 24, 10 28, 40 10, 66 -30!, 44 -24, 20 -22, -2 -34", oval(-30, -46, 20, 20))
    p.shape("-46 -62!, -44 -76, -34 -68, -28 -80, -20 -68, -12 -72, -12 -58!")
    p.shape("-48 -50!, -66 -40!, -46 -36!", 3)
    p.eye(-34, -48, 4)
    p.shape("-8 -10!, 8 12, 30 6, 38 -14!, 16 -8")
    p.lines("-6 28, -8 42, -18 42", "8 28, 8 42, -2 42", width=4)
p.save()
