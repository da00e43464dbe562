from hand import *
from limbs import palm
from people import head
from sideface import side_head

p = Page("48", "Colouring together round the table's corner: one draws with the tongue out, one leans over, one shows the portrait of the cat")

p.note("room")
p.line("-10 226, 630 226", 4)
p.shape(box(34, -10, 150, 150))
with p.within(box(34, -10, 150, 150)):
    p.shape(scallops("0 180, 20 70, 70 50, 120 90, 200 60, 220 180", 9, .3))
p.lines("34 -10, 34 140", "109 -10, 109 140", "184 -10, 184 140", width=4)
p.shape("20 140!, 198 140!, 198 156!, 20 156!")
p.shape("250 -10!, 256 20, 330 60!, 190 60!, 246 20, 244 -10!")
p.out.pop()

p.note("child leaning over, three quarters, behind the table")
with p.at(218, 150):
    p.shape(limb("-2 44, -6 96", 34, 38, flat=True))
    p.shape("-72 180, -64 114, -30 82!, -6 96, 18 82!, 40 90, 46 200!, -72 200!")
    with p.at(6, 15, 1, 14):
        head(p, "34", "curly", eyes="", mouth="open", brows=None, ear=False, nose=False)
        p.eye(10, 0, 4.6)
        p.eye(34, 0, 4.4)
        p.line("23 -1, 28 5, 21 8")
p.shape(heart(198, 276, 18))

p.note("child at the right shows the portrait")
with p.at(500, 150, flip=True):
    p.shape(limb("-4 40, -6 92", 32, 36, flat=True))
    p.shape("-64 110, -30 74!, -6 88, 16 74!, 46 96, 58 230!, -70 230!")
    with p.at(0, 9, .98, -6):
        head(p, "34", "tuft", eyes="happy", mouth="smile")

p.note("table, its corner towards us")
p.shape("-30 330!, 250 300!, 640 312!, 640 400!, 390 560!, -30 560!")
p.shape("640 400!, 390 560!, 640 560!")


p.note("paper with the cat on it")
p.shape("210 380!, 416 360!, 486 438!, 262 470!")
p.shape("128 352!, 196 342!, 208 376!, 138 390!")
with p.at(352, 396):
    p.shape("72 30, 110 30, 128 6, 112 -14, 104 2, 96 12, 70 10")
    p.one(oval(20, 10, 70, 42), oval(-46, -10, 40, 34), "-80 -30!, -78 -62!, -52 -42!", "-42 -44!, -30 -68!, -14 -30!", limb("-10 42, -44 46, -56 44", 22, 18))
    p.lines("-66 -8, -58 -2, -50 -8", "-38 -8, -30 -2, -22 -8")
    p.shape("-50 4!, -38 4!, -44 12!", 3)
    p.lines("-56 14, -50 21, -44 13, -38 21, -32 14", "24 -34, 28 -12", "44 -30, 46 -8", "62 -24, 62 -2")

p.note("the hand that strokes the cat")
palm(p, 324, 330, 44, 1, "flat")
p.one(limb("248 264, 284 298, 328 332", 44, 40, 34, flat=True), join=(242, 262, 25))

p.note("the portrait in both hands")
p.shape("318 180!, 426 166!, 438 276!, 332 290!")
p.shape("340 222!, 344 204!, 358 214, 372 212, 386 200!, 392 216!, 402 250, 378 276, 350 264")
p.eye(362, 236, 4)
p.eye(382, 233, 4)
p.lines("362 254, 372 258, 384 250")
palm(p, 460, 268, 180, 1, "pinch", -1)
p.one(limb("536 264, 520 312, 486 296, 454 268", 46, 46, 42, 36, flat=True), join=(538, 260, 25))

p.note("child in profile, tongue out, near at the left")
with p.at(86, 274):
    p.shape(limb("-14 40, -24 100", 44, 50, flat=True))
    with p.at(-10, 2, 1.14, 10):
        side_head(p, "pony", mouth="tongue", r=5, brows=None)
    p.shape("-100 120, -56 80!, -20 96, 12 74!, 30 120, 24 300, -140 300, -120 170")
    p.shape("-52 74!, -20 92, 16 66!, 26 84!, -16 112, -60 94!")
p.shape("206 330!, 222 322!, 266 426!, 268 452!, 250 434!")
p.line("251 434, 266 427")
palm(p, 212, 412, -24, 1.3, "fist")
p.one(limb("26 410, 58 494, 130 486, 216 412", 72, 70, 62, 48, flat=True), join=(22, 404, 40))

p.note("pencils in a pot, one loose")
with p.at(562, 356):
    for i, x in enumerate((-16, 16)):
        p.shape(f"{x - 8} 0!, {x - 8 + i * 4} -46!, {x + i * 5} -64!, {x + 8 + i * 4} -46!, {x + 8} 0!")
    p.shape("-36 -10!, -30 62, 30 62, 36 -10!")
    p.shape(heart(0, 26, 16))
p.shape("270 508!, 350 494!, 370 502!, 354 512!, 272 526!")
p.save()
