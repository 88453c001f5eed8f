#!/usr/bin/env python3
"""Tests of run_sessions.py: what must fail fails, with a reason that tells why. A shell script plays the program."""
import os
import subprocess
import sys
import tempfile
import unittest

RUNNER = os.path.join(os.path.dirname(os.path.abspath(__file__)), "run_sessions.py")


class Sessions(unittest.TestCase):
    def setUp(self):
        self.room = tempfile.TemporaryDirectory()
        self.addCleanup(self.room.cleanup)
        self.folder = os.path.join(self.room.name, "sessions")
        self.write("roots/program/kavrel.ini", "")
        self.cli = self.write("../cli", "#!/bin/sh\ncat\n")  # prints the script, as a transcript would
        os.chmod(self.cli, 0o755)

    def write(self, name, text):
        path = os.path.join(self.folder, name)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "w", encoding="utf-8") as file:
            file.write(text)
        return path

    def program(self, text):
        self.write("../cli", "#!/bin/sh\n" + text)

    def session(self, text, transcript=None, name="one"):
        self.write(name + ".session", text)
        if transcript is not None:
            self.write(name + ".transcript", transcript)

    def run_it(self, *arguments):
        command = [sys.executable, RUNNER, "--cli", self.cli, self.folder, *arguments]
        done = subprocess.run(command, capture_output=True, text=True, check=False)
        self.assertEqual(done.stderr, "")
        return done.returncode, done.stdout

    def assert_fails(self, reason, *arguments):
        status, printed = self.run_it(*arguments)
        self.assertEqual(status, 1, printed)
        self.assertIn(reason, printed)

    def test_equal_transcript_passes_and_leaves_nothing(self):
        self.session("start\n", "start\n")
        self.assertEqual(self.run_it("one"), (0, "1 sessions, 0 failures\n"))
        self.assertFalse(os.path.exists(os.path.join(self.folder, "one.actual")))

    def test_any_difference_fails_and_is_left_to_be_read(self):
        for transcript in ["", "start", "start\n\n", "start \n", "Start\n"]:
            with self.subTest(transcript=transcript):
                self.session("start\n", transcript)
                self.assert_fails("one.transcript", "one")
                with open(os.path.join(self.folder, "one.actual"), encoding="utf-8") as left:
                    self.assertEqual(left.read(), "start\n")

    def test_missing_transcript_fails(self):
        self.session("")
        self.assert_fails("one: no transcript", "one")

    def test_exit_status_is_exactly_the_one_expected(self):
        for wanted, given in [(0, 1), (0, 2), (1, 2), (1, 0), (2, 3)]:
            with self.subTest(wanted=wanted, given=given):
                self.program(f"cat\nexit {given}\n")
                script = f"# status: {wanted}\n"
                self.session(script, script)
                self.assert_fails(f"exit status {given}, expected {wanted}", "one")
        self.program("cat\nexit 2\n")
        self.session("# status: 2\n", "# status: 2\n")
        self.assertEqual(self.run_it("one")[0], 0)

    def test_signal_is_a_crash_whatever_status_is_expected(self):
        self.program("cat\nkill -SEGV $$\n")
        self.session("# status: 1\n", "# status: 1\n")
        self.assert_fails("crashed with SIGSEGV", "one")

    def test_unknown_option_wrong_status_and_missing_root_are_named(self):
        for script, reason in [("# colour: red\n", "unknown option colour"), ("# status: 3\n", "status is 0, 1 or 2"),
                               ("# root-files: nowhere\n", "nowhere"), ("# read-only: D:\\x\n", "not on C:")]:
            with self.subTest(script=script):
                self.session(script, script)
                self.assert_fails(reason, "one")

    def test_transcript_tells_no_folder_of_this_computer(self):
        self.program('echo "$HOME"\n')
        self.session("", "")
        self.assert_fails("where this computer keeps the files", "one")

    def test_environment_is_cleared(self):
        self.program('echo "$SECRET/$LC_ALL/$TZ"\n')
        self.session("# tz: JST-9\n", "/C/JST-9\n")
        os.environ["SECRET"] = "seen"
        self.addCleanup(os.environ.pop, "SECRET")
        self.assertEqual(self.run_it("one")[0], 0)

    def test_files_left_behind_end_the_transcript(self):
        self.program('printf "a\\tb \\nend" >"$3/X.DAT"\n')
        script = "# leaves: C:\\X.DAT\n# leaves: C:\\Y.DAT\n"
        self.session(script, '--- C:\\X.DAT: 8 bytes\n"a\\tb "\n"\\n"\n')
        self.assert_fails('+"a\\tb \\n"', "one")
        self.session(script, '--- C:\\X.DAT: 8 bytes\n"a\\tb \\n"\n"end"\n--- C:\\Y.DAT: nothing there\n')
        self.assertEqual(self.run_it("one")[0], 0)

    def test_orphans_are_found(self):
        self.session("", "")
        self.assertEqual(self.run_it("--orphans")[0], 0)
        for name, reason in [("two.transcript", "two.transcript belongs to no session"),
                             ("two.sesion", "two.sesion belongs to no session"),
                             ("roots/unused/x", "roots/unused is used by no session"),
                             ("three.session", "three.session has no transcript")]:
            with self.subTest(name=name):
                self.write(name, "")
                self.assert_fails(reason, "--orphans")

    def test_no_sessions_at_all_is_a_failure(self):
        self.assert_fails("no sessions")


if __name__ == "__main__":
    unittest.main()
