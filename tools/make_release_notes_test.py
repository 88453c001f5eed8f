#!/usr/bin/env python3
"""What is made of a changelog, worked out by hand."""
import unittest

import make_manual
import make_release_notes

CHANGELOG = """# What changed for you

Words.

## 1.2.0 (2026-11-23)

- A first thing
  over two lines.
- A second one.

## 1.1.9 (2026-01-02)

- An older thing.
"""


class ReleaseNotes(unittest.TestCase):
    def test_debian_changelog(self):
        self.assertEqual(make_release_notes.debian_changelog(CHANGELOG, "a b <c@example.org>"), """\
kavrel (1.2.0) unstable; urgency=medium

  * A first thing over two lines.
  * A second one.

 -- a b <c@example.org>  Mon, 23 Nov 2026 00:00:00 +0000

kavrel (1.1.9) unstable; urgency=medium

  * An older thing.

 -- a b <c@example.org>  Fri, 02 Jan 2026 00:00:00 +0000
""")

    def test_metainfo(self):
        self.assertEqual(make_release_notes.metainfo("<u>@KAVREL_HOME_PAGE@</u>\n@RELEASES@\n", CHANGELOG, "https://example.org"),
                         '<u>https://example.org</u>\n    <release version="1.2.0" date="2026-11-23"/>\n'
                         '    <release version="1.1.9" date="2026-01-02"/>\n')

    def test_what_is_no_changelog_is_refused(self):
        for wrong in ("## 1.2 (2026-11-23)\n\n- a\n", "## 1.2.0\n\n- a\n", "## 1.2.0 (2026-11-23)\n\nNothing.\n"):
            with self.assertRaises(make_manual.Wrong):
                make_release_notes.versions(wrong)


if __name__ == "__main__":
    unittest.main()
