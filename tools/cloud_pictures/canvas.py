"""What every picture of a sky is made of: noise, the sky and the sea, soft veils, brush strokes.

A canvas has twice the width and height of the file. Rows go down, HORIZON is the row of the horizon. Colours are red, green
and blue from 0 to 1 as they are shown."""
import math

import numpy as np
from PIL import Image, ImageDraw

WIDTH, HEIGHT, HORIZON = 800, 520, 440
ROWS, COLUMNS = np.mgrid[0:HEIGHT, 0:WIDTH].astype(np.float32)
UP = HORIZON - ROWS  # above the horizon


def colour(*parts):
    return np.array(parts, np.float32)


def step(low, high, value):
    """0 up to low, 1 from high on, smooth between."""
    t = np.clip((value - low) / (high - low), 0, 1)
    return t * t * (3 - 2 * t)


def mix(a, b, share):
    share = np.asarray(share, np.float32)
    if share.ndim == 2:
        share = share[..., None]
    return a * (1 - share) + b * share


def blur(field, sigma):
    """Blurs a field of numbers; its edges go on as they are."""
    reach = int(3 * sigma) + 1
    taps = np.exp(-0.5 * (np.arange(-reach, reach + 1) / sigma) ** 2)
    taps = (taps / taps.sum()).astype(np.float32)
    for axis in (0, 1):
        pad = [(0, 0), (0, 0)]
        pad[axis] = (reach, reach)
        wide = np.pad(field, pad, mode="edge")
        size = wide.shape[axis] + len(taps)
        turned = np.fft.irfft(np.fft.rfft(wide, size, axis) * np.fft.rfft(taps, size).reshape(
            (-1, 1) if axis == 0 else (1, -1)), size, axis)
        field = np.take(turned, np.arange(2 * reach, 2 * reach + field.shape[axis]), axis).astype(np.float32)
    return field


TILE, TILE_CELL = 1024, 8


def _tile():
    """Noise of one wavelength that goes on at its edges; of spread 1."""
    white = np.random.default_rng(7).standard_normal((TILE, TILE))
    along = np.fft.fftfreq(TILE)
    distance = np.hypot(along[:, None], along[None, :]) * TILE_CELL * 2
    ring = np.exp(-((distance - 1) / 0.45) ** 2)
    tile = np.fft.ifft2(np.fft.fft2(white) * ring).real
    return (tile / tile.std()).astype(np.float32)


_NOISE = _tile()


def noise(x, y):
    """Noise at places given in cells of about one lump."""
    x, y = x * TILE_CELL, y * TILE_CELL
    column, row = np.floor(x), np.floor(y)
    right, low = (x - column).astype(np.float32), (y - row).astype(np.float32)
    column, row = column.astype(np.int64) % TILE, row.astype(np.int64) % TILE
    next_column, next_row = (column + 1) % TILE, (row + 1) % TILE
    above = _NOISE[row, column] * (1 - right) + _NOISE[row, next_column] * right
    below = _NOISE[next_row, column] * (1 - right) + _NOISE[next_row, next_column] * right
    return above * (1 - low) + below * low


def rough(x, y, octaves=5, gain=0.5, seed=0, cell=None, fold=False):
    """Noise of several sizes. What is smaller than `cell`, the size of a point of the picture, is left out. Folded, it has
    round lumps and sharp creases."""
    total, weight, size = 0, 1.0, 1.0
    for octave in range(octaves):
        turn = 0.6 * octave + seed
        u = (x * math.cos(turn) - y * math.sin(turn)) * size + 31.7 * seed + 11.3 * octave
        v = (x * math.sin(turn) + y * math.cos(turn)) * size + 17.1 * seed
        part = noise(u, v)
        if fold:
            part = np.abs(part) * 1.6 - 1.27
        if cell is not None:
            part = part / (1 + (1.5 * size * cell) ** 4)
        total = total + weight * part
        weight, size = weight * gain, size * 2.03
    return total


class Canvas:
    def __init__(self, zenith, horizon, bend=0.6):
        """A clear sky from the horizon's colour to the zenith's."""
        self.horizon_colour = colour(*horizon)
        height = np.clip(UP / HORIZON, 0, 1)
        self.rgb = mix(self.horizon_colour, colour(*zenith), height**bend)
        self.sea_tone = 1.0

    def lay(self, what, share):
        """Lays a colour or a picture over the sky where its share is above 0."""
        self.rgb = mix(self.rgb, what, np.clip(share, 0, 1))

    def glow(self, x, y, size, strength, tint=(1, 0.97, 0.88)):
        """Light around a place, as of a sun behind thin cloud."""
        far = np.hypot(COLUMNS - x, ROWS - y)
        share = strength * np.exp(-far / size)
        self.rgb = self.rgb + (colour(*tint) - self.rgb) * np.clip(share, 0, 1)[..., None]

    def disc(self, x, y, size, edge, strength, tint=(1, 0.99, 0.94)):
        far = np.hypot(COLUMNS - x, ROWS - y)
        self.lay(colour(*tint), strength * (1 - step(size - edge, size + edge, far)))

    def ring(self, x, y, size, strength):
        """A halo: red inside, white outside, the sky within a little darker."""
        far = np.hypot(COLUMNS - x, ROWS - y)
        self.rgb = self.rgb * (1 - 0.10 * strength * (1 - step(size - 14, size, far)))[..., None]
        for offset, width, tint in ((-4, 4.5, (1, 0.80, 0.62)), (3, 7, (1, 1, 0.97))):
            self.lay(colour(*tint), strength * np.exp(-(((far - size - offset) / width) ** 2)))

    def sea(self, tone=(0.16, 0.27, 0.36), waves=0.5, crests=0.0, seed=3):
        """The sea below the horizon, with the light of the sky on it."""
        below = np.clip(-UP, 1.5, None)
        far = 90 / below
        across = (COLUMNS - WIDTH / 2) / below
        ripple = rough(across * 1.2, far * 6, 4, 0.6, seed, cell=0.05 * far)
        light = self.rgb[HORIZON - 60:HORIZON - 4].mean((0, 1))
        near = step(0, HEIGHT - HORIZON, -UP)
        water = mix(mix(colour(*tone), light, 0.45), colour(*tone), near**0.7)
        water = water * (1 + waves * 0.16 * ripple)[..., None]
        white = step(1.9, 2.4, rough(across * 1.6, far * 9, 3, 0.6, seed + 1, cell=0.04 * far))
        water = mix(water, colour(0.93, 0.95, 0.95), crests * white)
        self.rgb = np.where((UP < 0)[..., None], water, self.rgb)
        edge = np.exp(-((UP / 5.0) ** 2)) * 0.35  # the horizon is never sharp
        self.rgb = mix(self.rgb, light, np.where(UP < 0, edge * 0.5, edge))

    def ship(self, x, share=0.85):
        """A ship on the horizon, for scale."""
        shade = Image.new("L", (WIDTH * 2, HEIGHT * 2))
        draw = ImageDraw.Draw(shade)

        def area(*points):
            draw.polygon([((x + a) * 2, (HORIZON + 4 - b) * 2) for a, b in points], fill=255)
        area((0, 8), (4, 0), (58, 0), (66, 9), (58, 7), (4, 7))
        area((4, 7), (4, 18), (15, 18), (15, 7))
        area((6, 18), (6, 22), (11, 22), (11, 18))
        for mast, top in ((9, 27), (30, 18), (48, 18)):
            area((mast, 6), (mast, top), (mast + 1.4, top), (mast + 1.4, 6))
        cover = np.asarray(shade.resize((WIDTH, HEIGHT), Image.BOX), np.float32) / 255
        self.lay(colour(0.13, 0.16, 0.20), share * cover)

    def lines(self, tint, strength, strokes):
        """Strokes of [(points, weights, softness)], points (n, 2) of column and row, in white light of `tint`."""
        self.lay(colour(*tint), 1 - np.exp(-strength * ink(strokes)))

    def image(self):
        """At the size of the file."""
        whole = Image.fromarray((np.clip(self.rgb, 0, 1) * 255 + 0.5).astype(np.uint8))
        return whole.resize((WIDTH // 2, HEIGHT // 2), Image.LANCZOS)


def ink(strokes):
    """How much strokes lay on each point of a canvas."""
    total = np.zeros((HEIGHT, WIDTH), np.float32)
    by_softness = {}
    for points, weights, softness in strokes:
        by_softness.setdefault(softness, []).append((points, weights))
    for softness, group in by_softness.items():
        layer = np.zeros((HEIGHT, WIDTH), np.float32)
        for points, weights in group:
            column, row = np.round(points[:, 0]).astype(int), np.round(points[:, 1]).astype(int)
            inside = (column >= 0) & (column < WIDTH) & (row >= 0) & (row < HORIZON)
            np.add.at(layer, (row[inside], column[inside]), weights[inside])
        total += blur(layer, softness)
    return total


def path(x, y, heading, length, bend, curl=0.0, count=None):
    """Points of a stroke from a place towards a heading (radians, 0 to the right, turning down), bent evenly; a curl turns
    its first sixth sharply, as the head of a hook."""
    count = count or max(8, int(length * 1.5))
    along = np.linspace(0, 1, count)
    turn = heading + bend * along + curl * np.clip(1 - along * 6, 0, 1) ** 1.5
    pace = length / count
    return np.stack([x + np.cumsum(np.cos(turn)) * pace, y + np.cumsum(np.sin(turn)) * pace], 1)
