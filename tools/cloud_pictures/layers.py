"""Sheets of cloud seen from below, and clouds with volume seen from afar."""
import numpy as np
from PIL import Image

from canvas import COLUMNS, HEIGHT, HORIZON, ROWS, UP, WIDTH, colour, mix, rough, step

FOCUS = 380.0  # canvas points at 45 degrees of elevation


class Sheet:
    """A level of the sky. Places on it are in heights of that level: `across` and `away` of each point of the canvas;
    `cell` is how much of it one point of the canvas covers."""

    def __init__(self, rise=0.0):
        up = np.clip(UP, 2.0, None) / FOCUS
        self.away = (1 + rise) / up
        self.across = (COLUMNS - WIDTH / 2) / FOCUS * self.away
        self.cell = self.away * np.maximum(self.away, 1) / FOCUS
        self.sky = step(0, 6, UP)

    def at(self, size, turn=0.0, stretch=1.0):
        """Coordinates in lumps of a size, turned, and stretched along the second axis; and the cell in the same measure."""
        c, s = np.cos(turn), np.sin(turn)
        u = (self.across * c - self.away * s) / size
        v = (self.across * s + self.away * c) / size / stretch
        return u, v, self.cell / size


def sheet(canvas, thickness, light, dark, deep=1.0, rise=0.12, parts=7, body=2.2):
    """Lays a sheet of lumps over the sky. thickness(level) gives for each point how thick the sheet is there, below 0
    for none; it is asked at several levels, so that the sides of near lumps are seen. Thin cloud has the light colour,
    thick cloud the dark one."""
    through = np.ones((HEIGHT, WIDTH), np.float32)
    total = np.zeros((HEIGHT, WIDTH, 3), np.float32)
    for part in range(parts):
        high = part / (parts - 1)
        level = Sheet(rise * high)
        thick = thickness(level)
        # Round below and flat above: a level holds less of a lump the lower it is.
        held = np.clip(thick - 0.55 * (1 - high) ** 2, 0, None)
        cover = (1 - np.exp(-body * held * 2.5 / parts)) * level.sky
        shade = np.exp(-deep * (np.clip(thick, 0, 2.5) * (0.55 + 0.45 * (1 - high))))
        tint = mix(colour(*dark), colour(*light), shade)
        total += (through * cover)[..., None] * tint
        through = through * (1 - cover)
    canvas.rgb = canvas.rgb * through[..., None] + total


class Volume:
    """Clouds of round puffs in a box as wide as the file and as high as its sky. Light comes from the upper left, from
    behind the onlooker."""
    SHAPE = (HORIZON // 2, 96, WIDTH // 2)  # up, away, across

    def __init__(self, seed):
        self.random = np.random.default_rng(seed)
        self.depth = np.full(self.SHAPE, -40.0, np.float32)  # how far inside, in points of the file

    def puff(self, x, up, away, size, flat=1.0):
        low = [int(max(0, c - r - 24)) for c, r in ((up, size * flat), (away, size), (x, size))]
        top = [int(min(n, c + r + 25)) for n, c, r in zip(self.SHAPE, (up, away, x), (size * flat, size, size))]
        if any(a >= b for a, b in zip(low, top)):
            return
        z, d, w = np.ogrid[low[0]:top[0], low[1]:top[1], low[2]:top[2]]
        far = np.sqrt(((z - up) / flat) ** 2 + (d - away) ** 2.0 + (w - x) ** 2).astype(np.float32)
        part = self.depth[low[0]:top[0], low[1]:top[1], low[2]:top[2]]
        np.maximum(part, size - far, out=part)

    def heap(self, x, base, width, height, count, size, away=48, lean=0.0, profile=lambda t: 1 - t**1.6):
        """A heap of puffs on a flat base: half as wide as `width` at the bottom, narrowing by its profile."""
        for _ in range(count):
            t = self.random.random() ** 1.25
            half = width / 2 * profile(t)
            side = self.random.uniform(-1, 1)
            r = size * self.random.uniform(0.65, 1.2) * (1 - 0.3 * t)
            self.puff(x + lean * t * height + side * max(half - r * 0.6, 0), base + t * max(height - r, 0),
                      away + self.random.uniform(-1, 1) * max(min(half, 34) - r * 0.5, 0), r)

    def lumps(self, cells, strength, stretch=1.0):
        """Pushes the surface in and out: round lumps with creases, of these sizes."""
        for cell in cells:
            field = self.grain((cell, cell, cell * stretch))
            self.depth += strength * cell * (np.abs(field) - 0.75) * 0.55

    def frays(self, cells, strength, stretch=1.0):
        """Tears the surface."""
        for cell in cells:
            self.depth += strength * cell * 0.3 * self.grain((cell, cell, cell * stretch))

    def grain(self, cells):
        """Noise in the box, of spread about 1, its cells up, away and across."""
        field = self.random.standard_normal([int(n / c) + 4 for n, c in zip(self.SHAPE, cells)]).astype(np.float32)
        for axis, (count, cell) in enumerate(zip(self.SHAPE, cells)):
            place = np.arange(count) / cell + 1
            whole = np.floor(place).astype(int)
            t = (place - whole).astype(np.float32)
            weights = (0.5 * (1 - t) ** 2, 0.5 + t - t * t, 0.5 * t * t)
            form = [1, 1, 1]
            form[axis] = count
            field = sum(np.take(field, whole + k - 1, axis) * w.reshape(form) for k, w in enumerate(weights))
        return field * 1.7

    def base(self, level, soft=4.0):
        """Cuts everything off at a flat base."""
        up = np.arange(self.SHAPE[0], dtype=np.float32)[:, None, None]
        self.depth = np.minimum(self.depth, (up - level) * 1.5 + soft * self.grain((60, 14, 14)) * 0.3)

    def picture(self, light=(1.0, 0.985, 0.95), dark=(0.47, 0.53, 0.62), soft=2.5, body=0.22, sun=(0.9, 0.55),
                shade=0.085, haze=None, haze_share=0.0, dusk=None):
        """Picture and share of the canvas's size. `dusk`: the level of the base and how far up it is dark."""
        dense = step(-soft * 0.4, soft, self.depth)
        through = self._light(dense, sun)
        direct = 0.66 * np.exp(-shade * through) + 0.34 * np.exp(-shade * 0.13 * through)
        high = np.linspace(0, 1, self.SHAPE[0], dtype=np.float32)[:, None, None]
        lit = np.clip(0.02 + 0.95 * direct + 0.10 * high, 0, 1)
        if dusk is not None:
            lit = lit * (0.35 + 0.65 * step(dusk[0] - 2, dusk[0] + dusk[1], high * self.SHAPE[0]))
        before = np.cumsum(dense, 1) - dense
        weight = np.exp(-body * before) * (1 - np.exp(-body * dense))
        cover = weight.sum(1)
        brightness = (weight * lit).sum(1) / np.maximum(cover, 1e-4)
        tint = mix(colour(*dark), colour(*light), brightness)
        if haze is not None:
            tint = mix(tint, colour(*haze), haze_share)
        return self._large(tint), self._large(cover)

    def _light(self, dense, sun):
        """How much cloud the light has come through on its way to each place."""
        through = np.zeros_like(dense)
        ray = np.zeros(self.SHAPE[1:], np.float32)
        for up in range(self.SHAPE[0] - 2, -1, -1):
            ray = self._moved(self._moved(ray + dense[up + 1], sun[0], 1), sun[1], 0)
            through[up] = ray
        return through

    @staticmethod
    def _moved(plane, by, axis):
        whole = int(np.floor(by))
        share = by - whole

        def shift(count):
            moved = np.roll(plane, count, axis)
            edge = [slice(None), slice(None)]
            edge[axis] = slice(0, count) if count > 0 else slice(plane.shape[axis] + count, None)
            if count:
                moved[tuple(edge)] = 0
            return moved
        return shift(whole) * (1 - share) + shift(whole + 1) * share

    @staticmethod
    def _large(part):
        """Of the canvas's size: the box turned the right way up, nothing below the horizon."""
        part = part[::-1]
        planes = part[..., None] if part.ndim == 2 else part
        whole = np.zeros((HEIGHT, WIDTH, planes.shape[-1]), np.float32)
        for k in range(planes.shape[-1]):
            whole[:HORIZON, :, k] = np.asarray(Image.fromarray(planes[..., k].astype(np.float32)).resize(
                (WIDTH, HORIZON), Image.BICUBIC))
        return whole[..., 0] if part.ndim == 2 else whole


def rain(canvas, left, right, top, strength, lean=0.12, tint=(0.40, 0.45, 0.51), seed=5, soft=30, edge=25):
    """A shaft or curtain of rain from below `top` to the sea."""
    along = COLUMNS + lean * (ROWS - top)
    streaks = rough(along / 26, ROWS / 500, 4, 0.65, seed)
    inside = step(left - edge, left + edge, along) * (1 - step(right - edge, right + edge, along))
    down = step(top, top + soft, ROWS) * (1 - 0.25 * step(top, HORIZON, ROWS))
    canvas.lay(colour(*tint), np.clip(strength * (0.75 + 0.22 * streaks), 0, 1) * inside * down * (UP > 0))


def across_sky(field):
    """Only above the horizon."""
    return field * step(0, 4, UP)
