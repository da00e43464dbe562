from hand import *
from people import *

p = Page("04", "The kitten in the wool: one loop round the belly, one over the ear, and a paw that catches the thread")

p.note("room: window, curtain, floor")
p.line("-10 392, 640 392", 4)
p.shape(box(186, -10, 262, 236))
p.lines("317 -10, 317 226", "186 106, 448 106", width=4)
p.shape("150 -10!, 162 120, 132 262!, 222 262!, 226 150, 214 -10!")
p.shape("420 -10!, 408 150, 412 262!, 502 262!, 472 120, 484 -10!")
p.lines("182 40, 180 160", "452 40, 454 160")
for rx, ry in ((286, 58), (250, 42)):
    p.shape([(312 + rx * math.cos(k * math.pi / 16), 462 + ry * math.sin(k * math.pi / 16)) for k in range(32)])

p.note("basket with balls of wool")
p.shape(oval(546, 306, 38))
p.lines("520 290, 546 280, 572 292", "514 308, 546 298, 578 310")
p.shape(oval(600, 318, 34))
p.shape("486 330!, 502 420, 520 440, 640 440!, 640 330!")
p.lines("492 366, 640 366", "498 402, 640 402", width=4)

p.note("kitten, one pear of a body")
with p.at(300, 300):
    p.one(limb("90 130, 170 150, 190 96, 168 60", 36, 30, 26, 24))
    p.one("-52 -40, 52 -40, 86 40, 112 110, 96 160, 60 176, -60 176, -96 160, -112 110, -86 40",
          limb("-28 80, -30 130, -32 172", 44, 42), oval(-36, 176, 30, 18), oval(-94, 168, 34, 18), oval(94, 168, 34, 18))
    p.lines("-46 170, -46 194", "-28 170, -28 194", "90 172, 90 186", "106 171, 106 184")
    p.line("-4 112, -7 140, -8 168", 4)
    p.lines("-64 160, -62 138, -76 112", "62 160, 60 136, 76 108")

p.note("thread round the belly and up behind the ear")
p.tube("106 430, 84 372, 120 326, 176 324, 252 366, 330 384, 392 368", 19)

p.note("head, three quarters, looking at the ball")
with p.at(300, 206, 1.12, 6):
    p.one("-66 -34!, -70 -98!, -22 -66!", "22 -66!, 70 -98!, 66 -34!", "0 -72, 50 -58, 82 -10, 80 28, 46 58, 0 64, -46 58, -80 28, -82 -10, -50 -58")
    p.shape("-58 -44!, -60 -78!, -34 -60!", 3)
    p.lines("-14 -70, -11 -46", "4 -72, 4 -44")
    p.shape(oval(-34, -4, 22, 25), 3)
    p.shape(oval(30, -4, 22, 25), 3)
    p.spot(-40, 5, 11, 12)
    p.spot(24, 5, 11, 12)
    p.shape("-16 24!, 4 24!, -6 35!", 3)
    p.lines("-6 35, -6 42", "-26 40, -16 48, -6 42, 4 48, 14 40", "-58 24, -104 14", "-58 36, -102 42", "54 20, 84 14", "54 38, 84 42")
p.note("loop over the ear")
p.tube("442 312, 478 250, 468 180, 430 142, 388 134, 354 138, 336 156", 19)

p.note("one paw catches the thread")
p.one(limb("344 346, 398 376, 434 326", 50, 42, 34), oval(440, 310, 24, 22, 30), join=(340, 340, 26))
p.lines("438 302, 434 313", "451 306, 446 317")

p.note("the ball at the paws")
p.shape(oval(132, 440, 56))
p.lines("92 416, 122 400, 154 404", "90 444, 126 418, 170 428", "98 470, 146 446, 172 456")
p.save()
