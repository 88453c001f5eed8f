#!/usr/bin/env python3
"""Every fault that a help page may have stops make_help.py with a word about it, a good page shows what it is told to, and the
pages that we have call things by the names that the program has for them.

  make_help_test.py HELP_FACTS
"""
import os
import re
import subprocess
import sys
import tempfile
import unittest

HERE = os.path.dirname(os.path.abspath(__file__))
FACTS = os.path.abspath(sys.argv.pop(1))

STRINGS = "904\t&OK/*E*/了解(&O)\n33205\tInvalid value/*E*/無効な値です\n11000\t観測日時\n11074\tDate\n40001\tThe file %s/*E*/ファイル %s\n"
IDS = ("constexpr Id kOk{904};\nconstexpr Id kInvalidValue{33205};\nconstexpr Id kLabelObservationTime{11000};\n"
       "constexpr Id kFileNotSaved{40001};\n")
SOURCE = '{"CDlg", {"Kavrel", "Capter11-1_J.htm", "Capter11-1_E.htm"}}\n{1, k, Command::kHelpFile, "Wind"}\n'
LOOKS = "".join(f"~ look {force}\n" for force in range(13))
TOPICS = f"""== Kavrel
E Manual
@pages
- [[Wind]]
J 手引き
@pages
- [[Wind]]

== Capter11-1
@example hour Year=2026 Month=11 YY=15 GG=03 !GG=04
E Time
! observed
Look at the clock.
! type
The hour.
! example
03 UTC gives **{{hour.YYGGiw}}**.
! codes
@codes iw
! refuses
> {{kInvalidValue}} | Type figures.
J 時刻
! observed
時計を見ます。
! type
時です。
! example
03UTCは **{{hour.YYGGiw}}** です。
! codes
@codes iw
! refuses
> {{kInvalidValue}} | 数字です。

== Capter2
E Keys
Tab
J キー
Tab

== Wind
E Wind
[[BeaufortScale]]
J 風
[[BeaufortScale]]

== BeaufortScale
E Beaufort
@beaufort
{LOOKS}J 風力
@beaufort
{LOOKS}"""


class MakeHelp(unittest.TestCase):
    def make(self, topics, source=SOURCE):
        """The message of a refusal, or the pages by their paths."""
        with tempfile.TemporaryDirectory(prefix="kavrel-help-") as folder:
            given = {"topics.txt": topics, "strings.txt": STRINGS, "ids.h": IDS, "help.cpp": source}
            for name, text in given.items():
                with open(os.path.join(folder, name), "w", encoding="utf-8") as out:
                    out.write(text)
            path = {name: os.path.join(folder, name) for name in given}
            done = subprocess.run(
                [sys.executable, os.path.join(HERE, "make_help.py"), path["topics.txt"], os.path.join(folder, "help"), FACTS,
                 path["strings.txt"], path["ids.h"], path["help.cpp"]], capture_output=True, text=True, check=False)
            if done.returncode != 0:
                return done.stderr.strip()
            pages = {}
            for root, _, names in os.walk(os.path.join(folder, "help")):
                for name in names:
                    page = os.path.join(root, name)
                    with open(page, "rb") as content:
                        pages[os.path.relpath(page, os.path.join(folder, "help"))] = content.read()
            return pages

    def test_shows_what_the_program_tells(self):
        pages = self.make(TOPICS)
        self.assertIsInstance(pages, dict, pages)
        english = pages["Kavrel_E/Capter11-1_E.htm"].decode()
        japanese = pages["Kavrel_J/Capter11-1_J.htm"].decode()
        self.assertIn("<b>15033</b>", english)
        self.assertIn("<td>Invalid value</td><td>Type figures.</td>", english)
        self.assertIn("<td>無効な値です</td><td>数字です。</td>", japanese)
        self.assertIn("WMO code table 1855", english)
        self.assertIn("<td><b>4</b></td><td>Wind speed obtained from anemometer, in knots</td>", english)
        self.assertIn("<td><b>4</b></td><td>風速は風速計による、単位ノット</td>", japanese)
        self.assertIn('<a href="Capter2_E.htm">All keys</a>', english)
        self.assertIn('<a href="Capter11-1_J.htm">時刻</a>', pages["Kavrel_J/index.htm"].decode())
        self.assertIn('<a href="../Wind_E/index.htm">Wind</a>', pages["Kavrel_E/index.htm"].decode())
        scale = pages["BeaufortScale_E/index.htm"].decode()
        self.assertIn("<td><b>5</b></td><td>17-21</td><td>look 5</td><td>2.0</td>", scale)

    def test_shows_texts_as_they_are_read(self):
        pages = self.make(TOPICS.replace("Look at the clock.", "{kLabelObservationTime} {kFileNotSaved} {kOk}").replace(
            "時計を見ます。", "{kLabelObservationTime} {kFileNotSaved} {kOk}"))
        self.assertIn("<p>Date The file … OK</p>", pages["Kavrel_E/Capter11-1_E.htm"].decode())
        self.assertIn("<p>観測日時 ファイル … 了解</p>", pages["Kavrel_J/Capter11-1_J.htm"].decode())

    def test_draws_what_the_dialog_draws(self):
        pages = self.make(TOPICS.replace("@codes iw", "@codes a CL"))
        english = pages["Kavrel_E/Capter11-1_E.htm"].decode()
        self.assertIn('<img src="../../pictures/CL9.jpg"', english)
        drawn = {os.path.normpath(os.path.join("Kavrel_E", path)) for path in re.findall(r'<img src="(\.\./drawings[^"]*)"', english)}
        self.assertEqual(drawn, {f"drawings/a{code}.png" for code in range(9)})
        for path in drawn:
            self.assertTrue(pages[path].startswith(b"\x89PNG"), path)
        self.assertEqual(len({pages[path] for path in drawn}), 9, "each curve is another one")

    def refused(self, old, new, words, count=-1):
        self.assertIn(old, TOPICS)
        answer = self.make(TOPICS.replace(old, new, count))
        self.assertIsInstance(answer, str, "no refusal")
        self.assertIn(words, answer)

    def test_refuses_a_lost_link(self):
        self.refused("Look at the clock.", "[[Nowhere]]", "Capter11-1: no page Nowhere")

    def test_refuses_a_page_that_nobody_opens(self):
        self.refused("[[BeaufortScale]]", "nothing", "nobody opens BeaufortScale")

    def test_refuses_a_topic_without_a_page(self):
        answer = self.make(TOPICS, SOURCE.replace("11-1", "11-2"))
        self.assertIn("no page for Capter11-2", answer)

    def test_refuses_languages_that_differ(self):
        self.refused("時計を見ます。", "時計\n! もう一つ\n見ます。", "differ in their headings")
        self.refused("時計を見ます。", "- 時計を見ます。", "differ in their tables")
        self.refused("時計を見ます。", "[[Capter2]]", "differ in their links")
        self.refused("03UTCは **{hour.YYGGiw}** です。", "03UTC", "differ in their figures")
        self.refused("@codes iw", "@codes a", "differ in their codes", 1)

    def test_refuses_a_half_that_is_missing(self):
        self.refused("J キー\nTab\n", "", "Capter2 is not told in both languages")

    def test_refuses_headings_out_of_order(self):
        self.refused("! type", "! example", "the headings are")

    def test_refuses_an_example_that_the_form_takes_otherwise(self):
        self.refused("GG=03 !GG=04", "GG=04", "example hour: the form does not take it as told: GG=04")
        self.refused("!GG=04", "!GG=06", "example hour: the form does not take it as told: !GG=06")
        self.refused("YY=15", "day=15", "example hour: the form does not take it as told: day=15")

    def test_refuses_an_example_that_nobody_shows(self):
        self.refused("E Time", "@example idle GG=06\nE Time", "nobody shows the example idle")

    def test_refuses_what_nobody_knows(self):
        self.refused("{hour.YYGGiw}", "{hour.nothing}", "nothing is known of {hour.nothing}")
        self.refused("{kInvalidValue}", "{kNoSuchText}", "nothing is known of {kNoSuchText}")
        self.refused("@codes iw", "@codes XX", "no code table of XX")

    def test_refuses_letters_that_an_older_system_cannot_show(self):
        self.refused("Tab\nJ", "Tab ☃\nJ", "cp932")

    def test_refuses_a_scale_with_a_force_less(self):
        self.refused("~ look 12\n", "", "12 looks of the sea")


class OurPages(unittest.TestCase):
    def test_use_the_words_of_the_program(self):
        rules = []
        with open(os.path.join(HERE, "../tests/text/vocabulary.txt"), encoding="utf-8") as words:
            for line in words:
                parts = [part.strip() for part in line.split("|")]
                if parts[0] in ("ja", "en"):
                    longer = [part.strip() for part in parts[3].split(",") if part.strip()]
                    rules.append((parts[0], parts[1], parts[2], longer))
        self.assertGreater(len(rules), 20)
        language, wrong = None, []
        with open(os.path.join(HERE, "../resources/help/topics.txt"), encoding="utf-8") as topics:
            for number, line in enumerate(topics, 1):
                if line.startswith(("#", "==", "@example")):
                    continue
                if line.startswith(("E ", "J ")):
                    language = "en" if line[0] == "E" else "ja"
                for of, not_this, but_this, unless in rules:
                    rest = re.sub("{[^}]*}", "", line)
                    for longer in unless:
                        rest = rest.replace(longer, "")
                    found = not_this in rest if of == "ja" else re.search(rf"\b{re.escape(not_this)}\b", rest)
                    if of == language and found:
                        wrong.append(f"{number}: {not_this}, want {but_this}")
        self.assertEqual(wrong, [])


if __name__ == "__main__":
    unittest.main()
