#!/usr/bin/env python3
"""The pages of the manual and the completion hold every word of the programs' table, and the commands that README and docs
show take the options that they show.

  make_manual_test.py FACTS SOURCE MADE

MADE is the folder that make_manual.py wrote.
"""
import json
import os
import re
import shutil
import subprocess
import sys
import unittest

import make_manual

FACTS_PROGRAM, SOURCE, MADE = sys.argv[1:4]
FACTS = json.loads(subprocess.run([FACTS_PROGRAM], check=True, stdout=subprocess.PIPE).stdout)


def read(*path):
    with open(os.path.join(*path), encoding="utf-8") as file:
        return file.read()


def page(program, language):
    return read(MADE, "man", "" if language == "en" else language, "man1", program + ".1")


def options_of(row):
    own = [option["name"] for option in row["options"] + FACTS["common_options"]]
    return own if "--language" in own or "--locale" in own else own + ["--language"]


def complete(program, *words):
    """What bash proposes for the last of the words behind the program's name."""
    script = ('source "$1"; shift; COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1)); _${1//-/_}; printf "%s\\n" "${COMPREPLY[@]}"')
    done = subprocess.run(["bash", "-c", script, "bash", os.path.join(MADE, "completions", program), program, *words],
                          check=True, stdout=subprocess.PIPE, text=True, cwd=SOURCE)
    return done.stdout.split()


class Pages(unittest.TestCase):
    def test_every_command_option_and_status_stands_in_both_languages(self):
        for language in ("en", "ja"):
            text = page("kavrel-cli", language)
            for row in FACTS["commands"]:
                self.assertIn(f".SS {row['name']}\n", text)
                section = text.split(f".SS {row['name']}\n")[1].split(".SS")[0].split(".SH")[0]
                self.assertIn(make_manual.roff(row["does"][language]), section)
                for option in row["options"]:
                    self.assertIn(make_manual.roff(option["name"]), section)
                    self.assertIn(make_manual.roff(option["says"][language]), section)
                for status in row["statuses"]:
                    self.assertIn(make_manual.roff(status["says"][language]), text)
            for option in FACTS["programs"][0]["options"]:
                self.assertIn(make_manual.roff(option["name"]), page("kavrel", language))
                self.assertIn(make_manual.roff(option["says"][language]), page("kavrel", language))

    def test_version_and_day_are_those_of_the_changelog(self):
        heading = f"## {FACTS['version']} (2026-01-02)\n"
        self.assertEqual(make_manual.day_of(FACTS["version"], "# Changes\n\n" + heading), "2026-01-02")
        with self.assertRaises(make_manual.Wrong):
            make_manual.day_of(FACTS["version"], "## 0.0.1 (2026-01-02)\n\n" + heading)
        with self.assertRaises(make_manual.Wrong):
            make_manual.day_of(FACTS["version"], "# Changes\n")
        self.assertIn(f'"kavrel {FACTS["version"]}"', page("kavrel", "ja"))

    @unittest.skipUnless(shutil.which("man") and shutil.which("groff"), "needs man")
    def test_man_has_nothing_to_complain_of(self):
        for program in ("kavrel", "kavrel-cli"):
            for language in ("en", "ja"):
                path = os.path.join(MADE, "man", "" if language == "en" else language, "man1", program + ".1")
                done = subprocess.run(["man", "--warnings", "-E", "UTF-8", "-l", "-Tutf8", path], stdout=subprocess.PIPE,
                                      stderr=subprocess.PIPE, text=True, env=dict(os.environ, LC_ALL="C.UTF-8", MANWIDTH="120"))
                self.assertEqual((done.returncode, done.stderr), (0, ""), path)
                self.assertNotIn("@", done.stdout)

    def test_a_text_is_no_request_of_roff(self):
        self.assertEqual(make_manual.roff(".tlx a-b\\n"), "\\&.tlx a\\-b\\en")


class Completion(unittest.TestCase):
    def test_the_first_word_is_a_command(self):
        self.assertEqual(complete("kavrel-cli", ""), [row["name"] for row in FACTS["commands"]])
        self.assertEqual(complete("kavrel-cli", "s"), ["save", "session"])
        self.assertEqual(complete("kavrel-cli", "--"), ["--help", "--version", "--language"])
        self.assertEqual(complete("kavrel-cli", "--language", ""), ["en", "ja"])

    def test_a_dash_proposes_the_options_of_the_command(self):
        for row in FACTS["commands"]:
            self.assertEqual(complete("kavrel-cli", row["name"], "--"), options_of(row), row["name"])
        self.assertEqual(complete("kavrel", "--"), options_of(FACTS["programs"][0]))

    def test_behind_an_option_stand_its_values(self):
        self.assertEqual(complete("kavrel-cli", "logbook", "--format", ""), ["json", "csv", "names"])
        self.assertEqual(complete("kavrel-cli", "session", "--printer", "f"), ["fails"])
        self.assertEqual(complete("kavrel-cli", "read", "--language", ""), ["en", "ja"])
        self.assertEqual(complete("kavrel-cli", "save", "--reports", "exam"), ["examples"])
        self.assertEqual(complete("kavrel-cli", "explain", "--date", ""), [])
        self.assertEqual(complete("kavrel", "--locale", ""), ["en", "ja"])

    def test_else_files_are_proposed(self):
        self.assertEqual(complete("kavrel-cli", "encode", "READ"), ["README.md"])
        self.assertEqual(complete("kavrel-cli", "logbook", "--list", "READ"), ["README.md"])
        self.assertEqual(complete("kavrel", "READ"), [])


class Documents(unittest.TestCase):
    def test_commands_are_shown_with_options_that_they_take(self):
        rows = {row["name"]: row for row in FACTS["commands"]}
        shown = 0
        names = [os.path.join("docs", name) for name in os.listdir(os.path.join(SOURCE, "docs")) if name.endswith(".md")]
        for name in ["README.md", *names]:
            for match in re.finditer(r"kavrel-cli(?:\.exe)? ([a-z]+)([^`\n#|]*)", read(SOURCE, name)):
                if match[1] not in rows:
                    continue
                shown += 1
                for option in re.findall(r"(?<![\w-])--[a-z]+", match[2]):
                    self.assertIn(option, options_of(rows[match[1]]), f"{name}: {match[0]}")
        self.assertGreater(shown, 10)

    def test_the_readme_names_every_command(self):
        for row in FACTS["commands"]:
            self.assertIn(f"kavrel-cli {row['name']} ", read(SOURCE, "README.md"))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
