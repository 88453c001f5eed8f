#!/usr/bin/env python3
"""Makes of CHANGELOG.md what packages carry of it.

  make_release_notes.py CHANGELOG VERSION MAINTAINER HOME_PAGE METAINFO OUT

OUT gets the changelog as Debian has it, and METAINFO (a template) with its releases and the home page filled in. The newest
version of CHANGELOG must be VERSION.
"""
import calendar
import email.utils
import gzip
import os
import re
import sys
import textwrap
import time

import make_manual


def versions(changelog):
    """(version, day, items) of each heading, an item without its line breaks."""
    found = []
    for part in re.split(r"^## ", changelog, flags=re.MULTILINE)[1:]:
        heading, _, body = part.partition("\n")
        match = re.fullmatch(r"(\d+\.\d+\.\d+) \((\d{4}-\d\d-\d\d)\)", heading)
        if match is None:
            raise make_manual.Wrong(f'"{heading}" is no heading such as 1.0.0 (2026-11-23)')
        items = [" ".join(item.replace("`", "").split()) for item in re.split(r"^- ", body, flags=re.MULTILINE)[1:]]
        if not items:
            raise make_manual.Wrong(f"nothing changed in {match[1]}")
        found.append((match[1], match[2], items))
    return found


def debian_changelog(changelog, maintainer):
    entries = []
    for version, day, items in versions(changelog):
        lines = [f"kavrel ({version}) unstable; urgency=medium", ""]
        for item in items:
            lines += textwrap.wrap(item, 76, initial_indent="  * ", subsequent_indent="    ", break_on_hyphens=False)
        date = email.utils.formatdate(calendar.timegm(time.strptime(day, "%Y-%m-%d")))
        entries.append("\n".join([*lines, "", f" -- {maintainer}  {date.replace('-0000', '+0000')}"]) + "\n")
    return "\n".join(entries)


def metainfo(template, changelog, home_page):
    releases = "\n".join(f'    <release version="{version}" date="{day}"/>' for version, day, _ in versions(changelog))
    return template.replace("@RELEASES@", releases).replace("@KAVREL_HOME_PAGE@", home_page)


def main():
    changelog_path, version, maintainer, home_page, template_path, out = sys.argv[1:]
    with open(changelog_path, encoding="utf-8") as file:
        changelog = file.read()
    make_manual.day_of(version, changelog)
    os.makedirs(out, exist_ok=True)
    # Without the time of making, so that the same source makes the same file.
    with open(os.path.join(out, "changelog.gz"), "wb") as raw, gzip.GzipFile("", "wb", 9, raw, mtime=0) as packed:
        packed.write(debian_changelog(changelog, maintainer).encode())
    with open(template_path, encoding="utf-8") as file:
        text = metainfo(file.read(), changelog, home_page)
    name = os.path.basename(template_path).removesuffix(".in")
    with open(os.path.join(out, name), "w", encoding="utf-8", newline="\n") as file:
        file.write(text)


if __name__ == "__main__":
    try:
        main()
    except make_manual.Wrong as wrong:
        sys.exit(f"release notes: {wrong}")
