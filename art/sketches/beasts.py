"""Parts of animals and small animals for the sketches, all looking to the right (mirror them with `Page.at(flip=True)`)."""
from hand import limb, oval


def hoof(p, x, y, w=17, high=20, turn=0):
    """A hoof whose upper edge lies at (x, y); `w`: half of its width there."""
    with p.at(x, y, 1, turn):
        p.shape(f"{-w} 0!, {w} 0!, {w + 6} {high}!, {-w - 6} {high}!")


def cow_head(p, horns=True, eye="closed"):
    """A cow's head, about 150 wide, the skull round (0, 0), the muzzle to the right."""
    p.shape("-34 -30, -66 -34, -98 -12, -90 6, -60 6, -36 -2")
    if horns:
        p.shape("-22 -38, -34 -62, -22 -84!, -6 -64, 4 -42")
        p.shape("14 -42, 14 -64, 34 -82!, 38 -58, 32 -36")
    p.one("-46 -10, -30 -40, 6 -48, 42 -36, 62 -12, 96 2, 112 24, 108 50, 84 64, 56 58, 28 46, -16 48, -44 24")
    p.shape("58 56, 48 30, 64 -10, 96 2, 114 26, 106 52, 84 64")
    p.spot(98, 18, 5.5, 7, -20)
    p.line("66 47, 80 48, 94 41")
    p.eye(30, -8, 6, eye)


def songbird(p, eye="dot", wing=True):
    """A small bird, 80 long, sitting at (0, 0)."""
    p.shape("-20 -18, -52 -6!, -48 10!, -14 -4")
    p.shape("30 -48!, 60 -34!, 30 -22!")
    p.one(oval(0, -18, 27, 21, -14), oval(17, -36, 19))
    if wing:
        p.shape("-22 -20, -4 -28, 12 -18, 2 -4, -16 -8")
    p.eye(22, -40, 3.8, eye)


def chick(p, eye="dot", step=True, beak="shut"):
    """A chick, 60 high, its feet at (0, 0), walking to the right."""
    if step:
        p.lines("-6 -10, -14 0, -4 2", "8 -10, 14 0, 24 2", width=4)
    if beak == "shut":
        p.shape("20 -66!, 50 -50!, 20 -38!")
    else:
        p.shape("18 -70!, 50 -70!, 26 -52!")
        p.shape("26 -52!, 46 -36!, 16 -36!")
    p.one(oval(-4, -26, 27, 21, 8), oval(10, -52, 21), "-24 -34, -40 -42!, -30 -16")
    p.shape("-22 -26, -4 -34, 8 -26, -2 -14, -18 -16")
    p.lines("8 -72, 4 -82", "14 -72, 18 -81")
    p.eye(16, -55, 4, eye)
