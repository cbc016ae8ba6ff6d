#!/usr/bin/python3
"""Compares the pictures of two folders, name by name.

usage: compare.py FOLDER FOLDER

A pixel may stand one further in any direction and differ a little in colour. More than a few others are another text
or another place.
"""
import pathlib
import sys

from PIL import Image, ImageChops, ImageFilter

COLOR = 48  # of 255
STRAY = 30  # pixels: the caret, a moving bar's edge
TIMES = {"下载文档": (23, 233, 67, 394), "上传文档": (23, 233, 67, 394)}  # in front of the log's lines


def strays(one, other):
    """How many pixels of one are darker or lighter than all of the other's around them."""
    lightest, darkest = other.filter(ImageFilter.MaxFilter(3)), other.filter(ImageFilter.MinFilter(3))
    beyond = ImageChops.lighter(ImageChops.subtract(one, lightest), ImageChops.subtract(darkest, one))
    return sum(beyond.convert("L").histogram()[COLOR:])


def compare(left, right):
    one, other = (Image.open(path).convert("RGB") for path in (left, right))
    if one.size != other.size:
        return f"{one.size} and {other.size}"
    for dialog, place in TIMES.items():
        if dialog in left.name:
            one.paste(0, place)
            other.paste(0, place)
    count = max(strays(one, other), strays(other, one))
    return f"{count} pixels differ" if count > STRAY else None


def main():
    left, right = (pathlib.Path(argument) for argument in sys.argv[1:])
    names = sorted(path.relative_to(left) for path in left.rglob("*.png"))
    if len(names) < 5 or names != sorted(path.relative_to(right) for path in right.rglob("*.png")):
        sys.exit(f"not the same pictures, or not of all five dialogs: {left}, {right}")
    faults = [f"{name}: {fault}" for name in names if (fault := compare(left / name, right / name))]
    print("\n".join(faults) or f"{len(names)} pictures agree")
    sys.exit(bool(faults))


main()
