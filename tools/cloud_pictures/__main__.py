"""Draws the pictures of the cloud forms, one for each code figure 1 to 9 of CL, CM and CH.

  python3 tools/cloud_pictures [--plain] FOLDER [NAME ...]

writes CL1.jpg to CH9.jpg, or those named, into the folder; resources/pictures holds what the program shows. It needs
Debian's packages python3-numpy and python3-pil and no others, and draws the same each time. --plain leaves out the plate
with the plotting symbol, for a look at the skies alone."""
import sys

sys.dont_write_bytecode = True

from skies import SKIES  # noqa: E402
from symbols import put_symbol  # noqa: E402


def main(arguments):
    plain = "--plain" in arguments
    words = [word for word in arguments if word != "--plain"]
    if not words:
        sys.exit(__doc__)
    for family, skies in SKIES.items():
        for figure, sky in enumerate(skies, 1):
            name = f"{family}{figure}"
            if words[1:] and name not in words[1:]:
                continue
            image = sky().image()
            if not plain:
                image = put_symbol(image, name)
            image.save(f"{words[0]}/{name}.jpg", quality=88, optimize=True)
            print(name, flush=True)


main(sys.argv[1:])
