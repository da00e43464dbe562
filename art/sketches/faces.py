"""Heads in profile with a brow, a nose that turns up a little, lips and a chin; `head` is called as the one of people.py, whose
hair, ears and other views it shares."""
import people
from hand import oval

BACK = "-10 46, -32 38, -46 18, -50 -10, -38 -40"
SHUT = f"0 -53, 26 -47, 41 -31, 43 -12, 47 -1, 55 7, 53 13, 45 16!, 48 21, 45 25!, 46 30, 41 35, 40 42, 30 49, 12 50, {BACK}"
OPEN = f"0 -53, 26 -47, 41 -31, 43 -12, 47 -1, 55 7, 52 13, 45 15!, 48 20, 46 24!, 43 41!, 41 48, 31 56, 14 56, 2 51, {BACK}"


def head(p, view="34", hair="short", eyes="dot", look=(1, 0), mouth="smile", brows=0, ear=True, r=5.2, nose=True):
    """As `people.head`; only the profile differs."""
    if view != "side":
        people.head(p, view, hair, eyes, look, mouth, brows, ear, r, nose)
        return
    if hair in ("tails", "pony", "bun", "long", "braid"):
        people.tail(p, hair)
    wide = mouth == "open"
    p.shape(OPEN if wide else SHUT)
    p.eye(28, -3, r, eyes, look)
    if brows is not None and eyes != "happy":
        p.line(f"17 {-19 - brows}, 26 {-24 - brows}, 35 {-20 - brows * .4}")
    if mouth == "smile":
        p.line("45 26, 35 31, 26 24")
    elif wide:
        p.shape("46 24!, 35 27, 24 22!, 26 34, 33 42, 43 41!", 3)
    elif mouth == "tongue":
        p.shape("40 26!, 55 24, 59 31, 52 36, 40 34!", 3)
        p.line("45 26, 35 29, 27 25")
    elif mouth == "o":
        p.shape(oval(41, 29, 6.5, 8), 3)
    elif mouth == "flat":
        p.line("45 26, 31 27")
    people.cap(p, hair)
    if ear and hair not in ("bob", ""):
        _ear(p, hair)


def _ear(p, hair):
    """The ear, open towards the cheek: ear and face are one area."""
    top = "-9 -11" if hair in ("long", "braid") else "-15 -11"
    if hair == "curly":
        p.shape("-14 -2, -26 -4, -30 8, -24 18, -13 15")
        return
    p.put(f'<path stroke="none" d="{p.path(f"{top}!, -26 -4, -30 8, -24 18, -8 16!")}"/>')
    p.line(f"{top}, -26 -4, -31 8, -24 19, -13 15", 4)
    if .85 < p.scale < 1.2:
        p.line("-23 4, -19 10")
