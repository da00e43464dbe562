"""A head in profile for the sketches: a round forehead, a small nose that turns up, lips and a chin. Looks to the right and is about
100 wide and 104 high round (0, 0), like the heads in people.py, whose hair fits it.
"""
from hand import oval
from people import cap, tail

SIDE = "0 -52, 26 -45, 40 -27, 43 -10, 48 0, 57 8, 56 15, 47 18!, 49 24, 44 29!, 47 34, 43 44, 32 50, 12 48, -16 42, -42 20, -48 -12, -36 -40"
SIDE_OPEN = "0 -52, 26 -45, 40 -27, 43 -10, 48 0, 57 8, 56 15, 47 18!, 49 24!, 30 25!, 34 38!, 43 42!, 41 50, 29 55, 8 50, -16 42, -42 20, -48 -12, -36 -40"


def ear_at(p, top="-15 -11"):
    """An ear, open towards the cheek."""
    p.put(f'<path stroke="none" d="{p.path(f"{top}!, -26 -4, -30 8, -24 18, -8 16!")}"/>')
    p.line(f"{top}, -26 -4, -31 8, -24 19, -13 15", 4)


def side_head(p, hair="short", eyes="dot", look=(1, 0), mouth="smile", brows=0, ear=True, r=5.4):
    """Draws the head; the arguments as in `head`. `hair` None: none, for a head under a cap or helmet."""
    if hair in ("tails", "pony", "bun", "long", "braid"):
        tail(p, hair)
    if mouth == "open":
        p.shape("44 22!, 22 22!, 24 36, 34 44, 42 42!", 3)
    p.shape(SIDE_OPEN if mouth == "open" else SIDE)
    if mouth == "open":
        p.shape("49 24!, 35 26, 19 20!, 22 36, 33 44, 43 42!", 3)
    elif mouth == "smile":
        p.line("44 29, 34 31, 25 23")
    elif mouth == "o":
        p.shape(oval(42, 28, 6, 7), 3)
    elif mouth == "tongue":
        p.line("44 29, 34 31, 25 23")
        p.shape("38 31!, 50 27, 57 32, 52 38, 40 37!", 3)
    elif mouth == "flat":
        p.line("44 29, 30 28")
    p.eye(27, -5, r, eyes, look)
    if brows is not None and eyes != "happy":
        p.line(f"18 {-21 - brows}, 26 {-26 - brows}, 34 {-22 - brows * .4}")
    if hair:
        cap(p, hair)
    if ear and hair != "bob":
        ear_at(p, "-9 -11" if hair in ("long", "braid") else "-15 -11")
