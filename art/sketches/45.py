from hand import *
from people import *

p = Page("45", "Pancakes: father tosses one, looks up in vain - it has come down on the cat")

p.note("kitchen")
p.line("-10 418, 640 418", 4)
p.shape(box(400, -10, 150, 132))
p.line("475 -10, 475 122", 4)
p.shape("392 -10!, 392 40!, 412 54, 434 40!, 456 54, 475 40!, 496 54, 518 40!, 540 54, 558 40!, 558 -10!")
p.shape("366 122!, 586 122!, 586 138!, 366 138!")

p.note("stove with the plate of pancakes")
p.shape("236 300!, 458 300!, 458 470!, 236 470!")
p.shape("224 282!, 482 282!, 482 304!, 224 304!")
p.shape("262 344!, 430 344!, 430 440!, 262 440!")
for x in (276, 320):
    p.shape(oval(x, 324, 10))
p.shape("322 268!, 342 284, 432 284, 452 268!")
for y in (260, 242, 224):
    p.shape(oval(387, y, 54, 13))

p.note("girl laughs, both hands on her knees, in profile")
with p.at(520, 0, flip=True):
    p.one(limb("-40 370, -34 430, -44 486", 52, 44, 40, flat=True), limb("-8 366, 12 430, 4 486", 52, 44, 40, flat=True))
    shoe(p, -44, 490, 0, 1.1)
    shoe(p, 4, 490, 0, 1.1)
    p.shape(limb("24 214, 6 258", 26, 26))
    p.shape("-24 250, 6 238, 34 252, 36 300, 40 400!, -84 404!, -66 330, -44 280")
    p.line("-84 380, -20 388, 48 378")
    with p.at(30, 190, 1, 14):
        head(p, "side", "tails", eyes="happy", mouth="open", brows=None)
    p.one(arm("58 334, 74 340, 90 346", 26, 24, thumb=-1))
    p.one(limb("-10 276, 4 320, 24 334, 62 336", 46, 42, 40, 34, flat=True), join=(-12, 264, 31))

p.note("father: far arm with the pan, body, apron")
with p.at(148, 490, 1, -6), p.at(0, -490):
    p.one(limb("-26 400, -34 450, -58 484", 66, 58, 50, flat=True), limb("30 400, 44 450, 34 498", 66, 58, 50, flat=True))
    shoe(p, -60, 488, 6, 1.15)
    shoe(p, 36, 500, 6, 1.15)
    p.shape(limb("-2 176, -10 224", 34, 34))
    p.shape("-58 216!, 36 216!, 60 260, 62 330, 72 410!, -72 414!, -70 330, -76 260")
    p.shape("-14 218!, -20 262, -34 300, -40 440!, 76 436!, 66 300, 48 262, 40 220!, 22 244, 2 244")
    p.shape(heart(30, 384, 24))
    with p.at(2, 144, 1.08, -20):
        head(p, "34", "short", eyes="white", look=(.9, -1), mouth="open", brows=8, r=4.4)
    p.tube("104 240, 160 198", 15)
    p.shape("148 178!, 160 206, 200 214, 244 200, 266 170!")
    p.shape(oval(207, 175, 60, 14, -4))
    p.one(arm("94 262, 104 250, 112 240", 34, 30, thumb=-1, grip=True))
    p.one(limb("20 262, 40 306, 60 300, 92 262", 56, 50, 46, 40, flat=True), join=(20, 256, 28))
    p.one(arm("-58 344, -46 356, -36 362", 32, 28, thumb=-1))
    p.one(limb("-44 258, -78 300, -74 324, -56 346", 52, 48, 44, 40, flat=True), join=(-42, 254, 26))

p.note("cat in front, pancake over its head")
with p.at(352, 440):
    p.shape("56 60, 100 66, 120 30, 104 6, 92 18, 100 34, 88 46, 54 40")
    p.one("-50 110, -60 60, -34 14, 32 14, 58 60, 52 110")
    p.one(oval(0, -6, 62, 46), "-58 -20!, -60 -76!, -22 -48!", "58 -20!, 60 -76!, 22 -48!")
    p.lines("-36 -2, -14 2", "36 -2, 14 2", width=4)
    p.spot(-24, 6, 6)
    p.spot(24, 6, 6)
    p.shape("-8 14!, 8 14!, 0 22!", 3)
    p.line("-14 36, 0 30, 14 36")
    p.lines("-44 20, -84 14", "44 20, 70 16")
    p.shape("-84 -10, -92 -30, -64 -52, -20 -66, 30 -64, 72 -48, 90 -24, 78 -8, 62 -22, 48 -30, 30 -18, 8 -30, -16 -16, -40 -28, -62 -20, -70 -2")
    p.lines("-44 -44, -16 -50", "20 -48, 50 -40")
    p.lines("-14 80, -14 104", "14 80, 14 104")
p.save()
