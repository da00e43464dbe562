from hand import *
from limbs import palm, placed, sleeve
from people import head
from sideface import side_head

p = Page("57", "Two in a canoe: grandfather paddles with all his strength; the girl shrugs, as the beaver swims off with her paddle")

p.note("mountains, firs, lake")
p.shape("-10 240!, 60 150!, 110 190!, 300 40!, 400 150!, 440 120!, 560 236!")
p.shape("236 90!, 300 40!, 350 96!, 326 92!, 304 112!, 280 92!, 258 106!")
p.shape("-10 236, 160 226, 330 238, 640 226!, 640 560!, -10 560!")
for x, y, s in ((574, 246, 1.5), (42, 232, .95)):
    with p.at(x, y, s):
        p.shape(box(-7, -24, 14, 30))
        p.shape("0 -150!, 34 -92!, 20 -92!, 48 -20!, -48 -20!, -20 -92!, -34 -92!")

p.note("girl in the bow, bent to the rim but turned round to him, empty-handed")
with p.at(180, 372, 1, -6), p.at(0, -180):
    p.shape("-24 -44!, -58 -76, -74 -100!, -60 -104!, -66 -136!, -38 -116, -14 -56!")
    p.line("-22 -56, -34 -80, -50 -106")
    palm(p, 90, 108, -58, 1, "open")
    p.shape(limb("-2 36, -4 88", 34, 38, flat=True))
    p.one("-48 82, -24 64!, -4 80, 16 64!, 46 84, 46 124, 36 160, 54 220!, -62 220!, -58 160, -52 124", limb("30 92, 62 136, 93 104", 44, 42, 34, flat=True))
    p.line("-26 92!, -14 106!, -2 94!, 10 106!, 22 92!")
    with p.at(2, 0, 1, -6):
        head(p, "34", "braid", eyes="white", look=(1, 0), mouth="o", brows=10, r=4.6)
        p.shape("-56 -30, -10 -50, 42 -40, 46 -24, -10 -34, -57 -12")

p.note("grandfather, leaning into the stroke")
with p.at(446, 0, flip=True):
    p.shape("-26 104!, -66 74, -84 46!, -70 44!, -78 12!, -46 34, -14 92!")
    p.line("-24 92, -40 66, -58 42")
    p.shape(limb("30 236, 70 250, 106 212", 46, 42, 36, flat=True))
    p.shape(limb("22 170, 10 240", 42, 46, flat=True))
    p.one("-52 228, -18 206!, 10 228, 34 204!, 58 240, 54 300, 24 400!, -126 400!, -116 330, -88 264")
    with p.at(27, 143, 1.06, 14):
        side_head(p, "long", eyes="closed", mouth="", brows=-4, r=4.4)
        p.shape("52 21!, 38 19, 24 25, 6 18, -10 8!, -14 34, 0 60, 24 76, 44 72, 50 54, 46 38!, 52 34")
        p.shape("-58 -26, -10 -50, 38 -38, 42 -22, -10 -34, -58 -6")

p.note("canoe, from the side, bow to the left")
p.shape("16 284!, 56 342, 160 362, 320 370, 480 362, 562 334, 606 276!, 616 330, 586 400, 500 440, 330 452, 150 444, 56 400, 20 346")
p.line("27 336, 110 384, 320 400, 500 390, 609 318", 4)
p.note("her near arm over the rim: there it goes")
p.shape(placed("-10 -9!, 2 -10, 8 -15, 12 -22, 20 -21, 22 -12, 54 -11, 60 -5, 54 1, 31 1, 31 9, 22 15, 6 12, -10 9!", 84, 340, 90, 1.1, -1))
sleeve(p, "132 284, 80 296, 84 342", 46, 46, 36)
with p.at(163, 193, 1, -12):
    p.one(oval(-48, 50, 15, 13), oval(-52, 70, 13, 12), oval(-52, 88, 11, 10), "-56 96, -60 116!, -46 112!, -46 96", join=(-48, 42, 15))
p.line("120 410!, 150 426!, 180 412!, 210 430!, 240 416!", 4)
p.line("392 418!, 422 430!, 452 414!, 482 426!, 512 408!", 4)

p.note("his paddle, both hands")
p.shape("288 444!, 316 450!, 318 486, 306 526, 286 538, 270 520, 272 480")
p.shape(limb("330 160, 302 452", 14, 14))
p.shape(limb("316 156, 346 160", 16, 16))
with p.at(446, 0, flip=True):
    palm(p, 106, 206, -46, 1.1, "fist")
    palm(p, 106, 318, -6, 1.15, "fist")
    p.one(limb("-28 262, -10 330, 34 348, 110 318", 58, 54, 46, 38, flat=True), join=(-28, 256, 29))

p.note("the beaver with the other paddle in its teeth")
with p.at(120, 474):
    p.one("-60 50, -58 0, -46 -30, -16 -44, 20 -24, 66 4, 90 40, 90 80, -50 80", oval(-54, -2, 28, 20), oval(8, -38, 12, 13))
    p.spot(-80, -8, 8, 7)
    p.eye(-40, -22, 5, "happy")
p.shape("100 474!, 176 462, 226 460!, 250 444, 264 456, 258 476, 232 476!, 176 478!, 102 490!")
p.out.pop()
p.tube("30 494, 190 470", 14)
p.shape("186 464!, 212 446, 246 446, 258 460, 246 474, 214 480, 190 478!")
with p.at(120, 474):
    p.shape("-76 8!, -56 10!, -58 26!, -74 24!", 3)
p.shape(scallops([(660, 510), (400, 498), (180, 508), (-40, 500)], 8, .2, closed=False) + [(-40, 580, True), (660, 580, True)])
p.save()
