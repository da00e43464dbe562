from hand import *
from people import *

p = Page("48", "Colouring together round the table's corner: one draws with the tongue out, one leans over, one shows the portrait of the cat")

p.note("room")
p.line("160 226, 630 226", 4)
p.shape(box(34, -10, 150, 150))
with p.within(box(34, -10, 150, 150)):
    p.shape(scallops("0 180, 20 70, 70 50, 120 90, 200 60, 220 180", 9, .3))
p.lines("34 -10, 34 140", "109 -10, 109 140", "184 -10, 184 140", width=4)
p.shape("20 140!, 198 140!, 198 156!, 20 156!")
p.shape("250 -10!, 256 20, 330 60!, 190 60!, 246 20, 244 -10!")
p.out.pop()

p.note("child leaning over, three quarters, behind the table")
with p.at(210, 150):
    p.shape(limb("-4 44, -4 76", 30, 30))
    p.one("-58 84, -20 64, 26 66, 56 92, 60 200, -70 200", limb("-48 96, -92 150, -70 200", 48, 40))
    with p.at(6, 0, 1, 14):
        head(p, "34", "curly", eyes="dot", mouth="open", brows=2)
p.shape(heart(206, 262, 18))

p.note("child at the right shows the portrait")
with p.at(496, 150, flip=True):
    p.shape(limb("-4 40, -6 72", 28, 28))
    p.one("-56 90, -30 64, 16 64, 44 90, 50 230, -66 230")
    with p.at(0, 0, .98, -6):
        head(p, "34", "tuft", eyes="happy", mouth="smile")

p.note("table, its corner towards us")
p.shape("-30 330!, 250 300!, 640 312!, 640 400!, 390 560!, -30 560!")
p.shape("640 400!, 390 560!, 640 560!")

p.one(arm("262 292, 268 304, 272 314", 28, 26, thumb=1))
p.one(limb("238 226, 260 258, 260 296", 44, 40, 36, flat=True), join=(236, 224, 23))
p.note("paper with the cat on it")
p.shape("210 380!, 416 360!, 486 438!, 262 470!")
p.shape("128 352!, 196 342!, 208 376!, 138 390!")
with p.at(352, 396):
    p.shape("72 30, 110 30, 128 6, 112 -14, 104 2, 96 12, 70 10")
    p.one(oval(20, 10, 70, 42), oval(-46, -10, 40, 34), "-80 -30!, -78 -62!, -52 -42!", "-38 -44!, -18 -64!, -12 -30!", limb("-10 42, -44 46, -56 44", 22, 18))
    p.lines("-66 -8, -58 -2, -50 -8", "-38 -8, -30 -2, -22 -8")
    p.shape("-50 4!, -38 4!, -44 12!", 3)
    p.lines("-56 14, -50 21, -44 13, -38 21, -32 14", "24 -34, 28 -12", "44 -30, 46 -8", "62 -24, 62 -2")

p.note("the portrait in both hands")
p.shape("318 180!, 426 166!, 438 276!, 332 290!")
p.shape("340 222!, 344 204!, 358 214, 372 212, 386 200!, 392 216!, 402 250, 378 276, 350 264")
p.eye(362, 236, 4)
p.eye(382, 233, 4)
p.lines("362 254, 372 258, 384 250")
p.one(arm("540 260, 490 320, 444 280", 40, 34, 28, thumb=1), join=(542, 256, 26))
p.one(arm("460 236, 446 230, 436 214", 34, 28, thumb=1), join=(468, 240, 20))

p.note("child in profile, tongue out, near at the left")
with p.at(86, 274):
    p.shape(limb("-14 40, -22 84", 38, 38))
    with p.at(-10, -8, 1.14, 10):
        head(p, "side", "pony", mouth="tongue", r=5, brows=None)
    p.one("-64 84, -20 68, 16 80, 28 130, 20 300, -140 300, -110 160")
    p.shape("-34 70, 0 86, 26 78, 26 94, -4 106, -42 88", 3)
    p.one(arm("50 212, 92 194, 122 150", 40, 32, thumb=1, grip=True))
    p.one(limb("-34 130, -14 206, 54 214", 70, 62, 50, flat=True), join=(-36, 124, 38))
with p.at(226, 408, 1, 36):
    p.shape("-8 -60!, 8 -60!, 8 22!, 0 42!, -8 22!")
    p.line("-8 22, 8 22")
p.out.pop()

p.note("pencils in a pot, one loose")
with p.at(556, 350):
    for i, x in enumerate((-18, 2, 22)):
        p.shape(f"{x - 8} 0!, {x - 8 + i * 4} -46!, {x + i * 5} -64!, {x + 8 + i * 4} -46!, {x + 8} 0!")
    p.shape("-36 -10!, -30 62, 30 62, 36 -10!")
    p.shape(heart(0, 26, 16))
p.shape("270 508!, 350 494!, 370 502!, 354 512!, 272 526!")
p.save()
