"""Heads of children and grown-ups for the sketches: in three quarters, in profile and from behind, all looking to the right
(mirror them with `Page.at(flip=True)`). A head is about 100 wide and 104 high round (0, 0); the neck leaves it at (-6, 44).
"""
from hand import limb, oval, scallops

THREE_QUARTER = "2 -52, 34 -38, 45 -8, 47 14, 37 37, 14 47, -12 46, -34 36, -47 10, -46 -22, -30 -44"
PROFILE = "0 -52, 28 -42, 41 -20, 44 -4, 57 9, 52 17, 44 18, 46 24, 41 36, 28 46, 4 46, -22 40, -44 16, -48 -12, -36 -40"

# The hair in front of the head, for both views: outline of the cap of hair.
HAIR = {
    "short": "44 -12!, 36 -26, 24 -22, 12 -30, -4 -20!, -14 -14, -16 0, -22 2, -28 8!, -40 22, -52 4, -53 -26, -36 -52, -4 -62, 26 -56, 42 -38",
    "tuft": "43 -14!, 34 -30, 20 -34, 2 -28, -14 -12, -18 2, -28 6!, -42 20, -52 2, -52 -26, -36 -50, -14 -59, -10 -72!, 0 -62, 14 -74!, 18 -60, 36 -46",
    "bob": "43 -10!, 30 -24, 8 -24, -10 -22!, -14 0, -12 22, -16 40!, -40 46, -60 34, -58 -6, -50 -38, -26 -60, 6 -64, 34 -52, 45 -30",
    "parting": "44 -10!, 36 -28, 22 -44!, 14 -26, -4 -14, -18 -10, -28 6!, -42 18, -52 0, -52 -28, -34 -52, -2 -60, 28 -52, 44 -32",
}


def head(p, view="34", hair="short", eyes="dot", look=(1, 0), mouth="smile", brows=0, ear=True, r=5.2, nose=True):
    """Draws a head. `brows`: lifts them in pixels (negative frowns, None: none)."""
    if view == "back":
        p.shape(oval(-48, 4, 9, 12))
        p.shape(oval(48, 4, 9, 12))
        p.one(*hair_back(hair))
        return
    side = view == "side"
    if hair in ("tails", "pony", "bun", "long", "braid"):
        tail(p, hair)
    p.shape(PROFILE if side else THREE_QUARTER)
    if side:
        p.eye(25, -4, r, eyes, look)
        if brows is not None and eyes != "happy":
            p.line(f"16 {-20 - brows}, 24 {-25 - brows}, 33 {-21 - brows * .4}")
        if mouth == "smile":
            p.line("44 24, 34 29, 25 23")
        elif mouth == "open":
            p.shape("46 18!, 34 20, 24 20!, 26 34, 38 38, 44 32!", 3)
        elif mouth == "tongue":
            p.shape("40 24!, 56 22, 60 29, 54 34, 40 31!", 3)
            p.line("44 24, 34 28, 26 23")
        elif mouth == "o":
            p.shape(oval(42, 27, 6, 7), 3)
        elif mouth == "flat":
            p.line("44 25, 30 26")
    else:
        p.eye(7, -4, r, eyes, look)
        p.eye(32, -4, r * .92, eyes, look)
        if brows is not None and eyes != "happy":
            p.line(f"-4 {-20 - brows * .6}, 5 {-25 - brows}, 14 {-22 - brows * .6}")
            p.line(f"26 {-22 - brows * .6}, 33 {-25 - brows}, 39 {-20 - brows * .6}")
        if nose:
            p.line("24 -2, 29 6, 21 9")
        p.mouth(19, 23, 15, mouth, 3)
    cap(p, hair)
    if ear and hair == "curly":
        p.shape("-14 -2, -26 -4, -30 8, -24 18, -13 15")
    elif ear and hair != "bob":                 # open towards the cheek: ear and face are one area
        top = "-9 -11" if hair in ("long", "braid") else "-15 -11"       # on the hair's edge, so that hair and face stay apart
        p.put(f'<path stroke="none" d="{p.path(f"{top}!, -26 -4, -30 8, -24 18, -8 16!")}"/>')
        p.line(f"{top}, -26 -4, -31 8, -24 19, -13 15", 4)
        if .85 < p.scale < 1.2:
            p.line("-23 4, -19 10")


def hair_back(hair):
    base = [oval(0, -4, 51, 54)]
    if hair == "tails":
        base += [limb("-40 10, -66 16, -74 44", 20, 30, 12), limb("40 10, 66 16, 74 44", 20, 30, 12)]
    if hair == "curly":
        base = [scallops(oval(0, -6, 50, 52), 11, .35)]
    if hair in ("long", "bob"):
        base += [oval(0, 24, 50, 34)]
    return base


def cap(p, hair):
    if hair == "curly":
        p.shape(scallops("42 -24, 18 -34, -4 -20, -14 -2, -24 12, -44 20, -52 -6, -42 -42, -8 -58, 30 -50", 13, .42))
    elif hair == "bald":
        p.shape("-20 -18!, -22 4, -34 26!, -50 20, -53 -6, -46 -24!")
    elif hair in ("tails", "pony", "bun"):
        p.shape(HAIR["parting"])
    elif hair in ("long", "braid"):
        p.shape("44 -8!, 42 -22, 30 -38, 22 -44!, 14 -26, -8 -14, -16 6, -14 30, -20 48!, -50 50, -58 24, -54 -24, -34 -52, -2 -60, 28 -52, 44 -32")
    elif hair:
        p.shape(HAIR[hair])


def tail(p, hair):
    if hair == "tails":
        p.shape("-44 -14!, -62 -32, -86 -20, -88 10, -78 36!, -66 22, -52 12, -40 4!")
    elif hair == "pony":
        p.shape("-38 -36!, -62 -56, -90 -38, -92 0, -104 26!, -74 24, -66 -4, -44 -12!")
    elif hair == "bun":
        p.shape(oval(-40, -48, 22))
    elif hair == "braid":
        p.one(oval(-48, 50, 15, 13), oval(-52, 70, 13, 12), oval(-52, 88, 11, 10), "-56 96, -60 116!, -46 112!, -46 96")
    elif hair == "long":
        p.shape("-30 -40, -56 -10, -64 40, -58 78!, -36 70, -12 74!, -6 30")


def neck(length=26, wide=24):
    """The neck as a part to fuse with a bare body."""
    return limb(f"-6 36, -10 {44 + length}", wide, wide, flat=True, steps=3)


def shoe(p, x, y, turn=0, size=1, flip=False):
    """A shoe whose ankle stands at (x, y), toe to the right."""
    with p.at(x, y, size, turn, flip):
        p.shape("-13 -8!, -15 8, -14 20!, 34 20!, 36 8, 22 0, 12 -8!")
        if size > 1.15:
            p.line("-12 12, 34 12")
