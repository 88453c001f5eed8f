#!/usr/bin/env python3
"""The commands on Windows, where they differ from elsewhere: arguments and paths in Unicode, bytes in and out, drives.

  windows_commands_test.py EMULATOR KAVREL_CLI

What the commands do with observations is the same on every system and tested in tests/; here it is seen that all of it comes
through.
"""
import os
import subprocess
import sys
import tempfile
import unittest

EMULATOR, CLI = (os.path.abspath(path) for path in sys.argv[1:3])
SOURCE = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
OBSERVATION = ("ship.call_sign=JXKV\nship.wind_speed_method=1\nYear=2014\nMonth=11\nYY=15\nGG=12\nQc=1\n"
               "LaDeg=35\nLaMin=42\nLoDeg=165\nLoMin=18\n")
REPORT = "BBXX JXKV 15124 99357 11653 41/// ///// 8//// 222// ....."


class Commands(unittest.TestCase):
    def setUp(self):
        room = tempfile.TemporaryDirectory()
        self.addCleanup(room.cleanup)
        self.room = room.name

    def path(self, *names):
        return os.path.join(self.room, *names)

    def write(self, name, text):
        with open(self.path(name), "w", encoding="utf-8", newline="") as file:
            file.write(text)

    def content(self, *names):
        with open(self.path(*names), "rb") as file:
            return file.read()

    def run_cli(self, *arguments, text="", **more):
        done = subprocess.run([EMULATOR, CLI, *arguments], input=text.encode(), capture_output=True, cwd=self.room,
                              check=False, **more)
        return done.returncode, done.stdout.decode(), done.stderr.decode()

    def folders(self, *names):
        for name in names:
            os.mkdir(self.path(name))

    def test_lines_end_as_on_every_system(self):
        status, out, error = self.run_cli("encode", text=OBSERVATION)
        self.assertEqual((status, error), (0, ""))
        self.assertTrue(out.startswith('{"report":"' + REPORT + '"'), out)
        self.assertTrue(out.endswith('"}\n') and "\r" not in out, out)

    def test_a_pipe_is_read_once_and_a_file_before_anything_is_told(self):
        two = OBSERVATION + "\nYY=16\nbad\n"
        status, out, error = self.run_cli("encode", text=two)
        self.assertEqual((status, out.count("\n")), (2, 1))
        self.assertIn("standard input:14: ", error)
        self.write("two.obs", two)
        status, out, error = self.run_cli("encode", "two.obs")
        self.assertEqual((status, out), (2, ""))
        with open(self.path("two.obs"), "rb") as file:
            done = subprocess.run([EMULATOR, CLI, "encode"], stdin=file, capture_output=True, cwd=self.room, check=False)
        self.assertEqual((done.returncode, done.stdout), (2, b""))

    def test_a_byte_that_ended_texts_once_ends_none(self):
        status, out, _ = self.run_cli("read", text=REPORT + " \x1a 41/97\n")
        self.assertEqual(status, 0)
        self.assertIn("# not placed: \\x1A 41/97 (", out)

    def test_names_may_be_japanese_and_hold_blanks(self):
        self.write("観測 データ.obs", OBSERVATION + "VV 97\n")
        status, _, error = self.run_cli("encode", "観測 データ.obs")
        self.assertEqual((status, error), (2, 'kavrel-cli: 観測 データ.obs:12: "VV 97" is no line NAME=VALUE\n'))
        self.folders("気象 電報", "ログ")
        status, out, error = self.run_cli("save", "--reports", "気象 電報", "--logbook", "ログ", text=OBSERVATION)
        self.assertEqual((status, error), (0, ""))
        self.assertEqual(self.content("気象 電報", "14111512.tlx").decode(), REPORT)
        line = self.content("ログ", "immt5.log")
        self.assertEqual((len(line), line[-1:], b"\r" in line), (173, b"\n", False))
        told = out.splitlines()
        self.assertRegex(told[0], r"^report [A-Z]:\\.*\\気象 電報\\14111512\.tlx$")
        self.assertRegex(told[1], r"^logbook [A-Z]:\\.*\\ログ\\immt5\.log$")

    def test_a_report_that_is_there_is_not_replaced_unasked(self):
        self.folders("reports", "logbook")
        save = ["save", "--reports", "reports", "--logbook", "logbook"]
        self.assertEqual(self.run_cli(*save, text=OBSERVATION)[0], 0)
        status, _, error = self.run_cli(*save, text=OBSERVATION)
        self.assertEqual(status, 2)
        self.assertIn("14111512.tlx exists; --replace would replace it", error)
        self.assertEqual(self.run_cli(*save, "--replace", text=OBSERVATION)[0], 0)
        self.assertEqual(len(self.content("logbook", "immt5.log")), 2 * 173)
        self.assertEqual(os.listdir(self.path("reports")), ["14111512.tlx"])
        self.assertEqual(os.listdir(self.path("logbook")), ["immt5.log"])

    def test_folders_that_cannot_be_used_are_named(self):
        self.folders("logbook")
        status, _, error = self.run_cli("save", "--reports", "none", "--logbook", "logbook", text=OBSERVATION)
        self.assertEqual((status, error), (2, "kavrel-cli: none is no folder\n"))
        status, _, error = self.run_cli("save", "--reports", "Q:\\x", "--logbook", "logbook", text=OBSERVATION)
        self.assertEqual((status, error), (2, "kavrel-cli: Q:\\x is no folder\n"))

    def test_words_are_japanese_when_asked(self):
        self.write("14111512.tlx", REPORT)
        status, out, error = self.run_cli("explain", "--language", "ja", "14111512.tlx")
        self.assertEqual((status, error), (0, ""))
        self.assertIn("北緯", out)
        backslashes = self.run_cli("explain", "--language", "ja", ".\\14111512.tlx")
        self.assertEqual(backslashes, (0, out, ""))

    def test_the_logbook_is_checked(self):
        self.folders("reports", "logbook")
        self.run_cli("save", "--reports", "reports", "--logbook", "logbook", text=OBSERVATION)
        self.write("damaged.log", self.content("logbook", "immt5.log").decode()[:100] + "\n")
        self.assertEqual(self.run_cli("logbook", "--check", "damaged.log")[0], 1)
        status, out, _ = self.run_cli("logbook", "--format", "names", "logbook\\immt5.log")
        self.assertEqual(status, 0)
        self.assertIn("CallSign=JXKV\n", out)

    def test_the_environment_may_choose_the_root(self):
        self.folders("root")
        self.write("a.session", "start\n")
        environment = dict(os.environ, KAVREL_ROOT=self.path("root"))
        status, out, _ = self.run_cli("session", "--locale", "en", "a.session", env=environment)
        # There is no seed of the settings, so the start ends at once; the folder was made for it.
        self.assertEqual((status, os.listdir(self.path("root"))), (0, ["kavrel"]), out)

    def test_what_nobody_receives_is_no_success(self):
        self.write("a.obs", OBSERVATION)
        for arguments in (["--help"], ["encode", "a.obs"]):
            read, write = os.pipe()
            os.close(read)
            done = subprocess.run([EMULATOR, CLI, *arguments], stdout=write, stderr=subprocess.PIPE, cwd=self.room, check=False)
            os.close(write)
            self.assertEqual((done.returncode, done.stderr), (2, b"kavrel-cli: standard output cannot be written\n"))

    def test_what_is_not_built_here_is_told(self):
        status, _, error = self.run_cli("bufr", "a.obs")
        self.assertEqual(status, 2)
        self.assertIn("needs the program kavrel-bufr beside this one, which is not there", error)


unittest.main(argv=sys.argv[:1])
