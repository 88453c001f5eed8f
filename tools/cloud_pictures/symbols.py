"""The plotting symbols of the cloud forms, as pens draw them on weather charts: strokes of points, to the right and up, in
about one unit across."""
import math

from PIL import Image, ImageDraw


def arc(x, y, across, up, start, end):
    """Part of an ellipse around a place, from and to these degrees, against the clock from the right."""
    turns = [math.radians(start + (end - start) * k / 24) for k in range(25)]
    return [(x + across * math.cos(t), y + up * math.sin(t)) for t in turns]


def dome(base, high=0.45):
    return [[(-0.5, base), (0.5, base)], arc(0, base, 0.5, high, 0, 180)]


def cup(level):
    """Wings with a bowl between them."""
    return [[(-0.55, level), (-0.22, level)], arc(0, level, 0.22, 0.2, 180, 360), [(0.22, level), (0.55, level)]]


SECOND_TOWER = arc(0, 0.28, 0.27, 0.29, -10, 190)
BOWLS = arc(-0.2, 0, 0.2, 0.24, 180, 360) + arc(0.2, 0, 0.2, 0.24, 180, 360)
TAIL = [(-0.4, 0), (0.2, 0.34)]
HOOK = [(-0.35, 0), (0.26, 0)] + arc(0.26, 0.11, 0.09, 0.11, -90, 110)
SLASH = [(-0.35, -0.42), (0.33, 0.36)] + arc(0.25, 0.38, 0.09, 0.09, -10, 150)


def end(x, side):
    """The wave at the end of a veil's stroke."""
    return arc(x, 0.06, side * 0.05, 0.06, -90, 90) + arc(x, 0.18, -side * 0.05, 0.06, -90, 90)


SYMBOLS = {
    "CL1": dome(-0.15),
    "CL2": [*dome(-0.2), [(x, y - 0.05) for x, y in SECOND_TOWER]],
    "CL3": [*dome(-0.2), [(x, y - 0.05) for x, y in SECOND_TOWER], [(0, 0.52), (0, 0.02)]],
    "CL4": [arc(0, -0.1, 0.43, 0.45, 0, 180), *cup(-0.1)],
    "CL5": cup(0.1),
    "CL6": [[(-0.45, 0), (0.45, 0)]],
    "CL7": [[(-0.5, 0), (-0.24, 0)], [(-0.13, 0), (0.13, 0)], [(0.24, 0), (0.5, 0)]],
    "CL8": [*cup(0.42), *dome(-0.36)],
    "CL9": [*dome(-0.2), [(-0.25, 0.19), (-0.36, 0.5), (0.36, 0.5), (0.25, 0.19)]],
    "CM1": [[(0.38, -0.2), (-0.38, -0.2), (0.38, 0.24)]],
    "CM2": [[(0.38, -0.2), (-0.38, -0.2), (0.38, 0.24)], [(-0.02, -0.2), (0.38, 0.03)]],
    "CM3": [BOWLS],
    "CM4": [TAIL, BOWLS[:25]],
    "CM5": [TAIL, BOWLS],
    "CM6": [[(x, y + 0.3) for x, y in BOWLS], arc(0, -0.4, 0.48, 0.42, 0, 180)],
    "CM7": [TAIL, BOWLS, [(-0.4, 0), (0.4, 0)]],
    "CM8": [[(-0.3, -0.35), (-0.3, 0.35)], arc(0, 0.35, 0.3, 0.14, 180, 360), [(0.3, 0.35), (0.3, -0.35)]],
    "CM9": [TAIL, BOWLS[:25], arc(-0.2, 0, 0.29, 0.36, 180, 360)],
    "CH1": [HOOK],
    "CH2": [HOOK, arc(0.1, 0.11, 0.09, 0.11, -90, 110)],
    "CH3": [[(x, -y) for x, y in HOOK]],
    "CH4": [SLASH],
    "CH5": [[(-0.35, 0), (0.35, 0)], end(-0.35, -1)],
    "CH6": [SLASH, [(-0.35, -0.42), (-0.05, -0.42)]],
    "CH7": [[(-0.35, 0), (0.35, 0)], end(-0.35, -1), end(0.35, 1)],
    "CH8": [[(-0.35, 0), (0.35, 0)], end(0.35, 1)],
    "CH9": [TAIL + arc(0.14, 0.38, 0.08, 0.07, -40, 170), BOWLS],
}

PLATE = (6, 206, 64, 254)  # left, top, right, bottom of the file's picture
FINE = 4


def put_symbol(image, name):
    """The picture with the symbol on a plate in its lower left corner."""
    left, top, right, bottom = PLATE
    plate = Image.new("RGB", ((right - left) * FINE, (bottom - top) * FINE), (28, 34, 44))
    draw = ImageDraw.Draw(plate)
    draw.rectangle((FINE, FINE, plate.width - FINE - 1, plate.height - FINE - 1), fill=(246, 243, 230))
    strokes = SYMBOLS[name]
    middle = [(min(p[k] for s in strokes for p in s) + max(p[k] for s in strokes for p in s)) / 2 for k in (0, 1)]
    scale, pen = 46 * FINE, 3.4 * FINE

    def place(point):
        return (plate.width / 2 + (point[0] - middle[0]) * scale * 0.95, plate.height / 2 - (point[1] - middle[1]) * scale * 0.86)
    for stroke in strokes:
        points = [place(point) for point in stroke]
        draw.line(points, fill=(20, 24, 32), width=round(pen), joint="curve")
        for x, y in (points[0], points[-1]):
            draw.ellipse((x - pen / 2, y - pen / 2, x + pen / 2, y + pen / 2), fill=(20, 24, 32))
    image.paste(plate.resize((right - left, bottom - top), Image.LANCZOS), (left, top))
    return image
