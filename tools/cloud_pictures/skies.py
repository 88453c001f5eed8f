"""The twenty-seven skies, a function each; SKIES has them by their code."""
import math

import numpy as np

from canvas import COLUMNS, HORIZON, ROWS, UP, WIDTH, Canvas, colour, mix, noise, path, rough, step
from layers import Sheet, Volume, across_sky, rain, sheet

FAIR = ((0.23, 0.45, 0.74), (0.74, 0.84, 0.91))
HAZE = (0.74, 0.81, 0.87)


def fair_sky():
    return Canvas(*FAIR)


def finish(canvas, ship_at=640, *tones, **sea):
    canvas.sea(*tones, **sea)
    canvas.ship(ship_at)
    return canvas


# ---- Low clouds

def small_heaps(canvas, seed, heaps, size=7, haze=0.0, base=40, soft=2.0):
    clouds = Volume(seed)
    for x, width, height, away in heaps:
        clouds.heap(x, base, width, height, int(14 + width / 2.2), size, away)
    clouds.lumps((11, 6), 0.5)
    clouds.frays((4,), 0.5)
    clouds.base(base)
    canvas.lay(*clouds.picture(haze=HAZE, haze_share=haze, soft=soft, dusk=(base, size * 1.6)))


def cl1():
    canvas = fair_sky()
    small_heaps(canvas, 11, [(35, 40, 9, 40), (110, 34, 8, 50), (190, 46, 9, 50), (262, 30, 8, 40), (345, 50, 9, 50)],
                4.5, 0.45, 22)
    small_heaps(canvas, 12, [(82, 96, 21, 44), (196, 70, 17, 52), (318, 110, 22, 48)], 9, 0.12, 72)
    shreds = Volume(14)
    for x, up, away, r in ((52, 150, 40, 10), (66, 152, 46, 12), (82, 149, 50, 9), (225, 128, 44, 7), (240, 132, 48, 11),
                           (256, 130, 44, 8), (340, 158, 48, 9), (356, 161, 50, 12), (374, 157, 44, 9), (150, 118, 44, 7)):
        shreds.puff(x, up, away, r, 0.7)
    shreds.lumps((9, 5), 0.6, 1.4)
    shreds.frays((5, 3), 1.2, 1.5)
    canvas.lay(*shreds.picture(soft=4))
    return finish(canvas)


def cl2():
    canvas = fair_sky()
    small_heaps(canvas, 21, [(20, 40, 16, 40), (380, 50, 20, 40), (200, 40, 18, 50)], 6, 0.4, 24)
    towers = Volume(22)
    towers.heap(112, 36, 150, 84, 190, 17, 52)
    towers.heap(104, 60, 112, 120, 170, 19, 50, 0.04, lambda t: 1 - 0.55 * t)
    towers.heap(160, 50, 70, 78, 70, 14, 40, 0.1, lambda t: 1 - 0.5 * t)
    towers.heap(296, 36, 128, 60, 130, 14, 52)
    towers.heap(306, 50, 84, 100, 110, 16, 50, 0.06, lambda t: 1 - 0.55 * t)
    towers.heap(220, 36, 50, 26, 34, 9, 34)
    towers.lumps((26, 13, 7), 0.6)
    towers.frays((4,), 0.4)
    towers.base(36)
    canvas.lay(*towers.picture(soft=1.6, dusk=(36, 30)))
    return finish(canvas, 620)


def storm_sky():
    return Canvas((0.30, 0.47, 0.68), (0.80, 0.85, 0.87))


def cl3():
    canvas = storm_sky()
    small_heaps(canvas, 33, [(24, 56, 26, 40), (384, 50, 22, 40)], 7, 0.3, 30)
    rain(canvas, 270, 500, 366, 0.8)
    cloud = Volume(31)
    cloud.heap(192, 36, 300, 92, 330, 22, 50)
    cloud.heap(186, 70, 190, 116, 170, 24, 50, profile=lambda t: 1 - 0.45 * t**2)
    for x, up, r in ((140, 158, 36), (190, 172, 42), (236, 150, 38)):
        cloud.puff(x, up, 48, r)
    up = np.linspace(0, 1, cloud.SHAPE[0], dtype=np.float32)[:, None, None]
    rugged = cloud.depth.copy()
    cloud.lumps((30, 15, 8), 0.6)
    # The towers' tops have lost their sharp outline but have no fibres yet.
    smooth_top = step(0.58, 0.80, up)
    cloud.depth = cloud.depth * (1 - smooth_top * 0.8) + rugged * smooth_top * 0.8
    cloud.base(36)
    canvas.lay(*cloud.picture(dark=(0.30, 0.36, 0.45), soft=2.2, dusk=(36, 55)))
    return finish(canvas, 650, waves=0.7)


def cl9():
    canvas = storm_sky()
    small_heaps(canvas, 93, [(40, 50, 24, 40), (370, 60, 26, 40)], 7, 0.3, 30)
    rain(canvas, 240, 480, 372, 0.85)
    anvil(canvas, 380, 34, 74, 1.0, 5)
    cloud = Volume(91)
    cloud.heap(180, 32, 250, 84, 280, 19, 50)
    cloud.heap(188, 62, 150, 122, 170, 21, 50, profile=lambda t: 1 - 0.30 * t)
    cloud.lumps((28, 14, 7), 0.6)
    cloud.base(32)
    up = np.linspace(0, 1, cloud.SHAPE[0], dtype=np.float32)[:, None, None]
    cloud.depth -= 30 * step(0.74, 0.90, up)
    canvas.lay(*cloud.picture(dark=(0.28, 0.34, 0.43), soft=2.4, dusk=(32, 60)))
    anvil(canvas, 380, 34, 74, 0.8, 6)
    return finish(canvas, 650, waves=0.7)


def anvil(canvas, x, top, thick, strength, seed, left=370, right=430):
    """The spread top of a storm cloud: flat above, fibres that hang out to both sides."""
    side = (COLUMNS - x) / np.where(COLUMNS < x, left, right)
    out = np.sqrt(side**2 + 0.01) - 0.1
    flat = top + 16 * out**2 + 3 * rough(COLUMNS / 60, ROWS * 0, 3, 0.5, seed)
    low = flat + thick * (0.25 + 0.75 * np.exp(-((out / 0.24) ** 2)) + 0.55 * np.exp(-((out / 0.6) ** 2)))
    fibres = rough((COLUMNS - x) / 210 + 0.7 * (ROWS - top) / 100 * np.tanh(side * 3), (ROWS - 40 * out) / 10, 5, 0.6, seed)
    body = step(flat - 4, flat + 9, ROWS + 4 * fibres) * (1 - step(low - 0.30 * thick, low + 14, ROWS + 11 * fibres))
    body = body * (1 - step(0.66, 0.96, out + 0.10 * fibres))
    bright = np.clip(0.95 + 0.09 * fibres - 0.50 * step(flat, low + 10, ROWS) - 0.10 * step(0, 1, side), 0, 1)
    canvas.lay(mix(colour(0.40, 0.47, 0.57), colour(1, 0.985, 0.95), bright), strength * np.clip(body * (1.15 + 0.12 * fibres), 0, 1))


def cl4():
    canvas = fair_sky()
    clouds = Volume(41)
    tops = (70, 206, 344)
    for x, width, away in zip(tops, (104, 118, 100), (46, 52, 44)):
        clouds.heap(x, 38, width, 40, 90, 12, away, profile=lambda t: 1 - 0.25 * t)
        clouds.heap(x, 50, width * 0.72, 76, 110, 14, away, profile=lambda t: 0.85 + 0.5 * max(t - 0.45, 0))
    random = clouds.random
    for _ in range(420):  # the tops run together into a sheet
        x = tops[random.integers(3)] + random.normal(0, 50)
        far = min(abs(x - c) for c in tops) / 68
        clouds.puff(x, 121 + random.uniform(-9, 8) * (1 - 0.5 * far), random.uniform(10, 88), random.uniform(11, 17) * (1.05 - 0.35 * far), 0.66)
    clouds.lumps((24, 12, 6), 0.55, 1.3)
    clouds.base(38)
    up = np.arange(clouds.SHAPE[0], dtype=np.float32)[:, None, None]
    clouds.depth = np.minimum(clouds.depth, 134 - up + 4 * clouds.grain((60, 14, 18)))
    canvas.lay(*clouds.picture(dark=(0.38, 0.44, 0.53), shade=0.10, dusk=(38, 24)))
    return finish(canvas, 520)


def rolls(size, seed, turn=0.25, stretch=1.5, bias=0.0):
    def thickness(level):
        u, v, cell = level.at(size, turn, stretch)
        bend = 0.5 * noise(u * 0.3 + seed, v * 0.3)
        row = 0.35 * np.cos((u + bend) * math.pi) / (1 + (1.5 * cell) ** 4)
        return bias + row + 0.62 * rough(u + bend, v + bend, 5, 0.5, seed, cell) + 0.2
    return thickness


def cl5():
    canvas = Canvas((0.55, 0.66, 0.78), (0.80, 0.83, 0.84))
    sheet(canvas, rolls(0.34, 3, 1.25, 1.7, 0.42), (0.97, 0.97, 0.96), (0.33, 0.38, 0.45), 0.85, 0.12, 9, 3.2)
    return finish(canvas, 640, (0.20, 0.27, 0.33))


def headland(canvas, left, width, height, tint=(0.27, 0.33, 0.33), seed=1, share=0.92):
    """High land at the horizon."""
    side = (COLUMNS - left) / width
    shape = height * np.clip(np.sin(np.clip(side, 0, 1) * math.pi), 0, 1) ** 1.5
    ridge = shape * (1 + 0.10 * rough(COLUMNS / 50, COLUMNS * 0, 4, 0.5, seed))
    slope = rough(COLUMNS / 22 + ROWS / 60, ROWS / 30, 4, 0.6, seed)
    canvas.lay(colour(*tint) * (1 + 0.10 * slope)[..., None], share * step(-2, 2, ridge - UP))


def cl6():
    canvas = Canvas((0.66, 0.69, 0.71), (0.80, 0.82, 0.82))
    headland(canvas, 130, 560, 250)
    low = 96 + 9 * rough(COLUMNS / 120, COLUMNS * 0, 4, 0.5, 2) + 8 * rough(COLUMNS / 46, ROWS / 26, 4, 0.6, 4)
    fog = step(-26, 34, UP - low)
    grey = 0.70 + 0.018 * rough(COLUMNS / 260, ROWS / 60, 4, 0.5, 6) + 0.05 * (UP / HORIZON)
    canvas.lay(grey[..., None] * colour(0.985, 1.0, 1.01), 0.985 * fog)
    strips = step(0.5, 1.9, rough(COLUMNS / 90, ROWS / 13, 5, 0.55, 8)) * np.exp(-((UP - 66) / 22) ** 2)
    canvas.lay(colour(0.74, 0.76, 0.77), 0.85 * strips)
    return finish(canvas, 715, (0.33, 0.38, 0.41), 0.25)


def scud(canvas, seed, size, low, high, tone):
    """Torn dark shreds between two heights above the horizon."""
    shreds = rough((COLUMNS + 0.4 * UP) / 130 / size, ROWS / 66 / size, 6, 0.54, seed)
    band = np.clip(1 - np.abs((UP - (low + high) / 2) / (high - low) * 2) ** 3, -1, 1)
    thick = shreds - 1.0 + 0.6 * band
    shade = tone + 0.13 * (1 - step(0.1, 1.1, thick)) + 0.02 * rough(COLUMNS / 40, ROWS / 26, 3, 0.6, seed + 2)
    canvas.lay(shade[..., None] * colour(0.95, 1.0, 1.06), across_sky(0.95 * step(-0.15, 0.75, thick)))


def cl7():
    canvas = Canvas((0.43, 0.47, 0.51), (0.66, 0.69, 0.70), 0.5)
    mass = rough(COLUMNS / 240, ROWS / 110, 5, 0.5, 3)
    canvas.rgb = canvas.rgb * (1 + 0.05 * mass)[..., None]
    rain(canvas, -100, 900, 150, 0.34, 0.35, (0.47, 0.51, 0.54))
    for seed, size, low, high, tone in ((3, 0.8, 40, 190, 0.37), (8, 1.0, 90, 300, 0.30), (5, 1.35, 170, 420, 0.23)):
        scud(canvas, seed, size, low, high, tone)
    return finish(canvas, 640, (0.17, 0.22, 0.25), 1.2, 0.75)


def cl8():
    canvas = Canvas((0.40, 0.56, 0.76), (0.78, 0.84, 0.88))
    sheet(canvas, upper_only(rolls(0.33, 8, 1.3, 1.7, 0.36), 165), (0.97, 0.97, 0.96), (0.36, 0.41, 0.48), 0.8, 0.12, 9, 3.2)
    small_heaps(canvas, 82, [(40, 44, 18, 40), (376, 50, 20, 40)], 6, 0.35, 22)
    clouds = Volume(81)
    for x, width, height in ((104, 120, 54), (250, 84, 40), (330, 96, 50)):
        clouds.heap(x, 34, width, height, 90, 11, 50)
    clouds.lumps((20, 10, 6), 0.6)
    clouds.base(34)
    canvas.lay(*clouds.picture(soft=1.8, dusk=(34, 22)))
    return finish(canvas, 600)


def upper_only(thickness, low):
    """A sheet that ends before the horizon."""
    return lambda level: thickness(level) - 3 * (1 - step(low - 70, low + 30, UP + 12 * noise(COLUMNS / 90, ROWS / 40)))


# ---- Middle clouds

def ground_glass(canvas, x, y, strength=1.0):
    """The sun as through ground glass: bright, without outline, no halo."""
    canvas.glow(x, y, 130, 0.85 * strength, (0.98, 0.97, 0.92))
    canvas.disc(x, y, 28, 22, 1.0 * strength, (1, 0.985, 0.91))


def grey_veil(canvas, light, dark, seed=4, fibres=0.05, low=0.0):
    streaks = rough(COLUMNS / 330 + ROWS / 900, ROWS / 46 - COLUMNS / 700, 5, 0.55, seed)
    canvas.rgb = mix(colour(*dark), colour(*light), np.clip(1 - UP / HORIZON + low, 0, 1)) * (1 + fibres * streaks)[..., None]


def cm1():
    canvas = fair_sky()
    grey_veil(canvas, (0.79, 0.81, 0.81), (0.60, 0.66, 0.71))
    ground_glass(canvas, 400, 150)
    streaks = rough(COLUMNS / 330 + ROWS / 900, ROWS / 30 - COLUMNS / 500, 5, 0.55, 9)
    canvas.lay(colour(0.56, 0.61, 0.66), across_sky(0.32 * step(0.1, 2.2, streaks) * (1 - 0.8 * np.exp(-((np.hypot(COLUMNS - 400, ROWS - 150) / 70) ** 2)))))
    return finish(canvas, 640, (0.25, 0.31, 0.36))


def cm2():
    canvas = fair_sky()
    grey_veil(canvas, (0.50, 0.54, 0.57), (0.31, 0.35, 0.39), 5, 0.05)
    mass = rough(COLUMNS / 300, ROWS / 120, 5, 0.5, 15)
    canvas.rgb = canvas.rgb * (1 + 0.06 * mass)[..., None]
    rain(canvas, -100, 900, 150, 0.60, 0.18, (0.43, 0.47, 0.51), 5, 190)
    rain(canvas, 60, 420, 130, 0.55, 0.18, (0.27, 0.31, 0.35), 9, 160, 110)
    return finish(canvas, 640, (0.20, 0.24, 0.27), 0.5)


def elements(size, seed, turn, stretch, bias, octaves=4):
    """Small lumps in rows."""
    def thickness(level):
        u, v, cell = level.at(size, turn, stretch)
        bend = 0.35 * noise(u * 0.22 + seed, v * 0.22)
        row = np.cos((u + bend) * 2 * math.pi * 0.5) / (1 + (1.3 * cell) ** 4)
        return bias + 0.42 * row + 0.62 * rough(u * 0.9 + bend, v * 0.9, octaves, 0.45, seed, cell)
    return thickness


def cm3():
    canvas = fair_sky()
    canvas.glow(560, 120, 150, 0.55)
    sheet(canvas, elements(0.15, 2, 0.9, 1.3, 0.22), (1.0, 0.99, 0.97), (0.66, 0.71, 0.77), 0.55, 0.03, 5, 1.5)
    canvas.glow(560, 120, 70, 0.75)
    canvas.disc(560, 120, 17, 8, 0.9)
    return finish(canvas, 640)


def almond(canvas, x, y, long, high, seed, tilt=-0.03, strength=0.93):
    """A lens of cloud, or plates of it on one another: smooth outlines, bright edges, grey below."""
    along = (COLUMNS - x) / long
    up = y - ROWS + tilt * (COLUMNS - x)
    room = np.clip(1 - along**2, 0, 1)
    ripple = rough(along * 1.6, up / 120, 3, 0.5, seed)
    top, low = high * room**1.25 * (1 + 0.06 * ripple), -0.42 * high * room**1.1
    place = np.clip((up - low) / np.maximum(top - low, 1), 0, 1)
    veins = rough(along * 2.6, up / (0.30 * high) + 1.4 * along**2, 3, 0.5, seed + 3)
    cover = step(0, 7, np.minimum(top - up, up - low)) * step(0.0, 0.30, room) * (0.90 + 0.10 * veins)
    shade = np.clip(0.28 + 0.85 * place**1.3 + 0.07 * veins + 0.30 * (1 - room), 0, 1)
    canvas.lay(mix(colour(0.50, 0.57, 0.66), colour(1, 0.99, 0.96), shade), strength * np.clip(cover, 0, 1))


def cm4():
    canvas = fair_sky()
    for k, lens in enumerate(((110, 392, 120, 12), (650, 388, 130, 12), (400, 372, 110, 12), (560, 318, 150, 20), (190, 318, 160, 20),
                              (360, 262, 110, 16), (650, 232, 150, 24), (610, 196, 110, 22), (180, 214, 170, 34), (215, 170, 110, 24),
                              (480, 112, 170, 34), (450, 68, 110, 22), (90, 82, 110, 22), (735, 92, 90, 18))):
        almond(canvas, *lens, k + 1)
    return finish(canvas, 640)


def cm5():
    canvas = fair_sky()
    grow = Sheet()
    edge = 1.75 - 0.45 * grow.across + 0.2 * noise(grow.across * 1.5, grow.away * 1.5)

    def thickness(level):
        u, v, cell = level.at(0.16, 0.75, 2.2)
        u2, v2, _ = level.at(0.62, 0.75, 5.0)
        band = 0.45 * np.cos((u2 + 0.25 * noise(u2 * 0.4, v2 * 0.4)) * math.pi) / (1 + (level.cell / 0.30) ** 2)
        lumps = 0.55 * rough(u, v * 1.6, 4, 0.5, 6, cell)
        ahead = level.away - edge
        return band + lumps + 0.05 + np.clip(ahead * 0.8, -2.6, 1.15)
    sheet(canvas, thickness, (0.99, 0.985, 0.97), (0.44, 0.49, 0.56), 0.62, 0.05, 5, 1.9)
    arrow(canvas, 240, 170, 150, 80)
    return finish(canvas, 640)


def arrow(canvas, x, y, to_x, to_y):
    """Whither a sky spreads."""
    length = math.hypot(to_x - x, to_y - y)
    ux, uy = (to_x - x) / length, (to_y - y) / length
    along = (COLUMNS - x) * ux + (ROWS - y) * uy
    side = np.abs((ROWS - y) * ux - (COLUMNS - x) * uy)
    shaft = np.maximum(np.maximum(-along, along - (length - 30)), side - 6)
    head = np.maximum(np.maximum((length - 40) - along, (along - length) * 0.6 + side * 0.82), side - 26)
    far = np.minimum(shaft, head)
    canvas.lay(colour(0.08, 0.12, 0.20), 0.9 * (1 - step(3.0, 5.5, far)))
    canvas.lay(colour(1.0, 0.93, 0.45), 1 - step(-0.8, 0.8, far))


def cm6():
    canvas = fair_sky()
    clouds = Volume(61)
    clouds.heap(150, 28, 124, 64, 130, 14, 50)
    clouds.heap(154, 56, 78, 122, 150, 15, 50, profile=lambda t: 0.85 + 0.7 * max(t - 0.72, 0) - 0.2 * t)
    clouds.heap(322, 28, 70, 40, 50, 10, 50)
    clouds.heap(30, 28, 50, 22, 26, 8, 44)
    clouds.lumps((22, 11, 6), 0.6)
    clouds.base(28)
    up = np.linspace(0, 1, clouds.SHAPE[0], dtype=np.float32)[:, None, None]
    clouds.depth -= 16 * step(0.74, 0.82, up)
    canvas.lay(*clouds.picture(soft=1.8, dusk=(28, 24)))
    spread = Volume(62)
    random = spread.random
    for _ in range(620):
        x = 160 + random.normal(0, 100)
        far = abs(x - 160) / 220
        away = random.uniform(8, 90)
        spread.puff(x, 172 - 0.12 * away + random.uniform(-3, 4) + 6 * far, away, random.uniform(6, 10) * (1.1 - 0.55 * far), 0.55)
    spread.lumps((12, 6), 0.6, 1.2)
    spread.frays((5,), 0.6)
    canvas.lay(*spread.picture(dark=(0.50, 0.56, 0.65), soft=2.2, shade=0.14))
    return finish(canvas, 640)


def cm7():
    canvas = fair_sky()
    grey_veil(canvas, (0.76, 0.78, 0.79), (0.62, 0.67, 0.71))
    ground_glass(canvas, 130, 120, 1.0)
    sheet(canvas, elements(0.34, 7, 1.1, 2.2, 0.10), (0.72, 0.74, 0.76), (0.30, 0.35, 0.41), 0.9, 0.1, 7, 2.4)
    return finish(canvas, 640, (0.20, 0.26, 0.31))


def turrets(canvas, seed, lines, haze):
    """Small towers that rise in rows from common bases."""
    clouds = Volume(seed)
    random = clouds.random
    floor = np.zeros(clouds.SHAPE[2], np.float32)
    for x, base, length, height, size in lines:
        for _ in range(int(length / 1.6)):
            clouds.puff(x + random.uniform(-0.5, 0.5) * length, base + size * random.uniform(0.2, 0.6), 48 + random.uniform(-16, 16),
                        size * random.uniform(0.5, 0.85), 0.7)
        at = x - length / 2 + size
        while at < x + length / 2 - size * 0.5:
            tall, wide = height * random.uniform(0.35, 1.05), size * random.uniform(0.7, 1.25)
            clouds.heap(at, base, wide * 2.6, tall + wide, int(12 + tall), wide * 0.72, 48, random.normal(0, 0.08), lambda t: 1 - 0.45 * t)
            at += wide * random.uniform(1.8, 3.4)
        floor[int(max(0, x - length / 2 - 14)):int(x + length / 2 + 14)] = base
    clouds.lumps((10, 5), 0.6)
    clouds.frays((3,), 0.5)
    up = np.arange(clouds.SHAPE[0], dtype=np.float32)[:, None, None]
    clouds.depth = np.minimum(clouds.depth, (up - floor) * 1.5)
    canvas.lay(*clouds.picture(haze=HAZE, haze_share=haze, soft=1.6, shade=0.12))


def cm8():
    canvas = fair_sky()
    turrets(canvas, 83, [(70, 52, 110, 15, 5), (225, 50, 120, 15, 5), (350, 54, 80, 14, 5)], 0.35)
    turrets(canvas, 84, [(120, 92, 190, 30, 8.5), (318, 98, 140, 28, 8)], 0.12)
    turrets(canvas, 85, [(250, 152, 230, 40, 12)], 0.0)
    tufts = Volume(86)
    for x, up in ((52, 176), (92, 184), (372, 150), (28, 140)):
        for _ in range(12):
            tufts.puff(x + tufts.random.normal(0, 5), up + abs(tufts.random.normal(0, 5)), 48 + tufts.random.normal(0, 5), tufts.random.uniform(4, 8))
    tufts.lumps((8, 5), 0.6)
    tufts.frays((4,), 0.8)
    canvas.lay(*tufts.picture(soft=2))
    return finish(canvas, 640)


def cm9():
    canvas = Canvas((0.38, 0.50, 0.66), (0.83, 0.80, 0.74))
    filaments(canvas, 5, 46, (0, 800), (20, 240), 0.15, 260, 0.5)
    veil = step(-0.3, 1.7, rough(COLUMNS / 210, ROWS / 80, 5, 0.55, 21))
    canvas.lay(colour(0.78, 0.79, 0.80), across_sky(0.75 * veil))
    sheet(canvas, patchy(elements(0.17, 12, 0.2, 1.2, 0.0), 0.8, 5, -0.1), (0.98, 0.97, 0.94), (0.50, 0.55, 0.62), 0.7, 0.04, 5, 1.8)
    sheet(canvas, patchy(rolls(0.55, 5, 2.2, 1.6, 0.2), 1.4, 9, -0.25), (0.83, 0.83, 0.83), (0.27, 0.31, 0.37), 0.9, 0.15, 7)
    for k, lens in enumerate(((600, 330, 150, 20), (250, 350, 120, 16))):
        almond(canvas, *lens, k + 31)
    turrets(canvas, 96, [(90, 66, 110, 22, 7)], 0.2)
    rags = Volume(97)
    for x, up, length in ((300, 128, 90), (345, 150, 70)):
        for _ in range(14):
            along = rags.random.uniform(-0.5, 0.5)
            rags.puff(x + along * length, up - along * 18 + rags.random.normal(0, 4), 48, rags.random.uniform(5, 11) * (1 - abs(along)), 0.7)
    rags.lumps((12, 6), 0.6, 1.4)
    rags.frays((8, 4), 1.2, 1.6)
    canvas.lay(*rags.picture((0.80, 0.80, 0.80), (0.28, 0.32, 0.38), 5, 0.15))
    return finish(canvas, 640, (0.20, 0.26, 0.31))


def patchy(thickness, size, seed, bias):
    def some(level):
        u, v, _ = level.at(size)
        return thickness(level) + 1.1 * (rough(u, v, 3, 0.5, seed) + bias) - 0.4
    return some


# ---- High clouds

def high_sky():
    return Canvas((0.13, 0.33, 0.66), (0.66, 0.79, 0.90), 0.7)


def filaments(canvas, seed, bundles, across, down, heading, length, strength, curl=0.0, lines=16, bend=0.25, spread=14.0):
    """Bundles of fine threads."""
    random = np.random.default_rng(seed)
    strokes = []
    for _ in range(bundles):
        x, y = random.uniform(*across), random.uniform(*down)
        size = random.uniform(0.55, 1.15)
        way = heading + random.normal(0, 0.10)
        arc = bend * random.uniform(0.3, 1.2)
        for _ in range(lines):
            reach = length * size * random.uniform(0.5, 1.0)
            points = path(x + random.normal(0, spread * size), y + random.normal(0, spread * 0.42 * size), way + random.normal(0, 0.05),
                          reach, arc + random.normal(0, 0.08), curl * random.uniform(0.7, 1.2))
            along = np.linspace(0, 1, len(points))
            fade = np.sin(np.pi * np.clip(along, 0, 1) ** 0.55) ** 0.8
            strokes.append((points, (fade * random.uniform(0.4, 1)).astype(np.float32), random.choice((1.1, 2.0, 4.0))))
    canvas.lines((1, 1, 1), strength, strokes)


def ch1():
    canvas = high_sky()
    filaments(canvas, 3, 9, (20, 620), (40, 300), -0.18, 330, 0.55, bend=0.30, lines=20, spread=12)
    filaments(canvas, 4, 5, (100, 600), (60, 230), -0.10, 260, 0.5, bend=0.35, lines=12, spread=22)
    return finish(canvas, 640)


def dense_patch(canvas, x, y, long, high, seed, tilt=-0.25, strength=1.0):
    along, up = (COLUMNS - x) / long, (ROWS - y - tilt * (COLUMNS - x)) / high
    twist = rough(COLUMNS / 150, ROWS / 110, 2, 0.5, seed)
    threads = rough(along * 1.3, up * 3.0 + 0.75 * twist + 0.9 * along**2, 6, 0.68, seed)
    body = 1.15 - along**2 * 1.2 - up**2 * 1.2 + 0.30 * threads
    cover = step(0.05, 1.35, body) * (0.80 + 0.15 * threads)
    grey = np.clip(0.93 + 0.07 * threads - 0.12 * step(0.7, 1.4, body), 0, 1)
    canvas.lay(mix(colour(0.62, 0.70, 0.80), colour(1, 1, 1), grey), strength * np.clip(cover, 0, 0.97))


def ch2():
    canvas = high_sky()
    for k, (x, y, long, high) in enumerate(((200, 110, 170, 48), (560, 80, 150, 46), (470, 210, 190, 46), (120, 262, 120, 30), (680, 292, 120, 26),
                                            (360, 318, 110, 18))):
        dense_patch(canvas, x, y, long, high, 13 + k, (-0.28, -0.1, -0.22, 0.05, -0.1, -0.05)[k])
    random = np.random.default_rng(8)
    heads = [(60, 60), (335, 60), (700, 170), (262, 215), (610, 330), (40, 190)]
    strokes = []
    for x, y in heads:  # tufts, round heads with a short tail each
        for _ in range(70):
            start = (x + random.normal(0, 11), y + random.normal(0, 8))
            points = path(*start, random.normal(0.5, 0.5), random.uniform(14, 58), random.normal(0.3, 0.4))
            fade = np.linspace(1, 0, len(points)).astype(np.float32)
            strokes.append((points, fade * 0.8, random.choice((1.2, 2.4, 4.0))))
    canvas.lines((1, 1, 1), 0.75, strokes)
    return finish(canvas, 640)


def ch3():
    canvas = high_sky()
    anvil(canvas, 290, 66, 92, 0.98, 12, 270, 500)
    filaments(canvas, 33, 8, (420, 640), (110, 170), 0.08, 200, 0.4, bend=0.1, spread=16)
    cloud = Volume(131)
    cloud.heap(126, 24, 90, 40, 90, 12, 50)
    cloud.heap(136, 40, 58, 120, 90, 15, 50, 0.06, lambda t: 1 - 0.3 * t)
    cloud.lumps((20, 10, 6), 0.6)
    cloud.frays((8, 5), 0.9)
    cloud.base(24)
    up = np.linspace(0, 1, cloud.SHAPE[0], dtype=np.float32)[:, None, None]
    cloud.depth -= 24 * step(0.46, 0.74, up)  # the storm cloud below dissolves
    canvas.lay(*cloud.picture(haze=HAZE, haze_share=0.35, soft=5, body=0.16))
    return finish(canvas, 640)


def ch4():
    canvas = high_sky()
    canvas.lay(colour(0.93, 0.96, 0.98), across_sky(0.75 * np.exp(-UP / 85.0)))
    random = np.random.default_rng(44)
    strokes = []
    for row, count, size in ((70, 4, 1.35), (140, 5, 1.15), (205, 6, 0.95), (262, 8, 0.75), (312, 10, 0.58), (352, 12, 0.42), (384, 14, 0.3)):
        for k in range(count):
            x = (k + random.uniform(0.2, 0.8)) * WIDTH / count - 30
            y = row + random.normal(0, 12 * size)
            for _ in range(22):  # a tuft that trails threads: a hook
                points = path(x + random.normal(0, 8 * size), y + random.normal(0, 4 * size), 0.62 + random.normal(0, 0.05), random.uniform(0.5, 1) * 230 * size,
                              -0.75 + random.normal(0, 0.06), -3.4)
                along = np.linspace(0, 1, len(points))
                fade = (np.clip(along * 14, 0, 1) * (1 - along) ** 0.8).astype(np.float32)
                strokes.append((points, fade * random.uniform(0.4, 1), random.choice((1.1, 1.8, 3.2))))
    canvas.lines((1, 1, 1), 0.62, strokes)
    arrow(canvas, 420, 130, 420, 30)
    return finish(canvas, 640)


DEGREE = HORIZON / 82.0  # high skies with an angle: the same everywhere


def angle_mark(canvas):
    """The arc that marks 45 degrees above the horizon."""
    row = HORIZON - 45 * DEGREE + 26 * ((COLUMNS - 400) / 400) ** 2
    dash = (np.mod(COLUMNS, 34) < 20)
    clear = 1 - ((COLUMNS > 30) & (COLUMNS < 118))
    for width, tint in ((5.0, (0.08, 0.12, 0.20)), (2.2, (1.0, 0.93, 0.45))):
        canvas.lay(colour(*tint), 0.9 * dash * clear * (1 - step(width - 1, width + 1, np.abs(ROWS - row))))
    top = HORIZON - 45 * DEGREE + 2
    lines = [((58, top - 24), (38, top + 8)), ((38, top + 8), (66, top + 8)), ((58, top - 8), (58, top + 24)),
             ((96, top - 24), (76, top - 24)), ((76, top - 24), (74, top - 2))]
    far = np.full(ROWS.shape, 99, np.float32)
    for (ax, ay), (bx, by) in lines:
        t = np.clip(((COLUMNS - ax) * (bx - ax) + (ROWS - ay) * (by - ay)) / ((bx - ax) ** 2 + (by - ay) ** 2), 0, 1)
        far = np.minimum(far, np.hypot(COLUMNS - ax - t * (bx - ax), ROWS - ay - t * (by - ay)))
    bowl = np.abs(np.hypot(COLUMNS - 82, ROWS - (top + 9)) - 14)
    far = np.minimum(far, np.where((COLUMNS > 74) | (ROWS > top + 12), bowl, 99))
    far = np.minimum(far, np.abs(np.hypot(COLUMNS - 110, ROWS - (top - 20)) - 6))
    canvas.lay(colour(0.08, 0.12, 0.20), 0.9 * (1 - step(5.5, 7.5, far)))
    canvas.lay(colour(1.0, 0.93, 0.45), 1 - step(2.2, 3.6, far))


def thin_veil(canvas, share, seed=6):
    threads = rough(COLUMNS / 420 + ROWS / 1500, ROWS / 60 - COLUMNS / 900, 6, 0.55, seed)
    canvas.lay(colour(0.93, 0.95, 0.97), across_sky(share * (0.82 + 0.11 * threads)))


def rising_veil(edge_degrees, seed):
    """Share of a veil that has risen so far from the horizon."""
    edge = edge_degrees * DEGREE - 20 * ((COLUMNS - 400) / 400) ** 2 + 9 * rough(COLUMNS / 160, ROWS / 300, 4, 0.5, seed)
    threads = rough(COLUMNS / 60 + ROWS / 130, ROWS / 130, 4, 0.6, seed)
    return 0.88 * (1 - step(-26, 20, UP - edge + 10 * threads))


def ch5():
    canvas = high_sky()
    filaments(canvas, 51, 9, (60, 740), (255, 285), -1.45, 60, 0.5, bend=0.3, spread=26)
    veil = rising_veil(33, 5)
    thin_veil(canvas, veil)
    canvas.glow(400, 345, 60, 0.6)
    canvas.ring(400, 345, 22 * DEGREE, 0.7 * veil)
    canvas.disc(400, 345, 12, 5, 0.95)
    angle_mark(canvas)
    arrow(canvas, 640, 330, 640, 225)
    return finish(canvas, 620)


def ch6():
    canvas = high_sky()
    thin_veil(canvas, rising_veil(66, 7))
    canvas.glow(400, 280, 70, 0.65)
    canvas.ring(400, 280, 22 * DEGREE, 0.62)
    canvas.disc(400, 280, 13, 5, 0.95)
    angle_mark(canvas)
    arrow(canvas, 660, 160, 660, 55)
    return finish(canvas, 640)


def ch7():
    canvas = high_sky()
    thin_veil(canvas, np.full(ROWS.shape, 0.80, np.float32))
    canvas.glow(400, 190, 90, 0.7)
    canvas.ring(400, 190, 22 * DEGREE, 0.8)
    canvas.disc(400, 190, 14, 5, 1.0)
    return finish(canvas, 640)


def ch8():
    canvas = high_sky()
    threads = rough(COLUMNS / 220 + ROWS / 500, ROWS / 36 - COLUMNS / 260, 5, 0.6, 8)
    edge = (COLUMNS - 330) + 0.55 * (ROWS - 220) + 16 * threads
    low = step(30, 90, UP + 8 * threads)
    share = 0.85 * step(-30, 40, edge) * low * (1 - step(660, 770, COLUMNS + 0.3 * ROWS - 60 + 14 * threads))
    thin_veil(canvas, share)
    canvas.glow(480, 170, 60, 0.6)
    canvas.ring(480, 170, 22 * DEGREE, 0.75 * share)
    canvas.disc(480, 170, 13, 5, 1.0)
    return finish(canvas, 640)


def ch9():
    canvas = high_sky()

    def thickness(level):
        u, v, cell = level.at(0.048, 0.5, 1.0)
        bend = 1.1 * noise(u * 0.09, v * 0.09) + 0.4 * noise(u * 0.3, v * 0.3)
        fade = 1 / (1 + (1.2 * cell) ** 4)
        ripple = np.cos((u + bend) * math.pi) * fade
        grain = rough(u * 0.8, v * 0.8, 2, 0.5, 4, cell)
        patch = rough(*level.at(1.0, 0.2, 1.4)[:2], 3, 0.5, 12)
        return 0.55 * ripple + 0.45 * grain + 0.6 * patch + 0.02
    sheet(canvas, thickness, (1, 1, 1), (0.93, 0.95, 0.98), 0.3, 0.01, 3, 0.9)
    filaments(canvas, 6, 4, (0, 500), (300, 380), -0.05, 300, 0.4, bend=-0.1, spread=16)
    return finish(canvas, 640)


SKIES = {
    "CL": (cl1, cl2, cl3, cl4, cl5, cl6, cl7, cl8, cl9),
    "CM": (cm1, cm2, cm3, cm4, cm5, cm6, cm7, cm8, cm9),
    "CH": (ch1, ch2, ch3, ch4, ch5, ch6, ch7, ch8, ch9),
}
