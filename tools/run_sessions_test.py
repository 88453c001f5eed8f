#!/usr/bin/env python3
"""Tests of run_sessions.py: what must fail fails, with a reason that tells why. A shell script plays the program."""
import os
import shutil
import subprocess
import sys
import tempfile
import unittest

RUNNER = os.path.join(os.path.dirname(os.path.abspath(__file__)), "run_sessions.py")
ACCEPT = os.path.join(os.path.dirname(os.path.dirname(RUNNER)), "scripts", "accept-sessions")


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

    def session(self, text, transcript=None, name="a/one"):
        self.write(name + ".session", text)
        if transcript is not None:
            self.write(name + ".transcript", transcript)

    def in_two_languages(self, text="# locales: en ja\nstart\n[en] see Saved\n[ja] see 保存\nend\n", name="a/two"):
        self.write(name + ".session", text)
        self.write(name + ".en.transcript", "# locales: en ja\nstart\nsee Saved\nend\n")
        self.write(name + ".ja.transcript", "# locales: en ja\nstart\nsee 保存\nend\n")

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
        for name in ("one", "a/one"):
            self.assertEqual(self.run_it(name), (0, "1 sessions, 0 failures\n"))
        self.assertFalse(os.path.exists(os.path.join(self.folder, "a", "one.actual")))

    def test_any_difference_fails_and_is_left_to_be_read(self):
        for transcript in ["", "start", "start\n\n", "start \n", "Start\n"]:
            with self.subTest(transcript=transcript):
                self.session("start\n", transcript)
                self.assert_fails("one.transcript", "one")
                with open(os.path.join(self.folder, "a", "one.actual"), encoding="utf-8") as left:
                    self.assertEqual(left.read(), "start\n")

    def emulator(self, falls, first=""):
        """One under which the first so many programs end with status 1, having printed only `first`."""
        path = self.write("../emulator", f"""#!/bin/sh
echo run >> {self.room.name}/runs
if [ $(wc -l < {self.room.name}/runs) -le {falls} ]; then printf '{first}'; exit 1; fi
exec cat
""")
        os.chmod(path, 0o755)
        return path

    def runs(self):
        with open(os.path.join(self.room.name, "runs"), encoding="utf-8") as file:
            return len(file.readlines())

    def test_what_an_emulator_lets_fall_before_it_began_is_started_again(self):
        self.session("start\n", "start\n")
        self.assertEqual(self.run_it("--emulator", self.emulator(2), "one"), (0, "1 sessions, 0 failures\n"))
        self.assertEqual(self.runs(), 3)

    def test_what_never_begins_fails(self):
        self.session("start\n", "start\n")
        self.assert_fails("one: exit status 1, expected 0", "--emulator", self.emulator(99), "one")
        self.assertEqual(self.runs(), 4)

    def test_what_began_is_not_started_again(self):
        self.session("start\n", "start\n")
        self.assert_fails("one: exit status 1, expected 0", "--emulator", self.emulator(1, "start"), "one")
        self.assertEqual(self.runs(), 1)

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
                               ("# printer: laser\n", "printer is none or fails"), ("# root-files: nowhere\n", "nowhere"),
                               ("# read-only: D:\\x\n", "not on C:")]:
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
        self.in_two_languages()
        self.assertEqual(self.run_it("--orphans"), (0, ""))
        wrong = {"a/four.transcript": "a/four.transcript belongs to no session",
                 "b/one.transcript": "b/one.transcript belongs to no session",  # its session lies in another folder
                 "a/one.en.transcript": "a/one.en.transcript belongs to no session",
                 "a/two.transcript": "a/two.transcript belongs to no session",
                 "a/four.sesion": "a/four.sesion belongs to no session", "b/c/README.md": "b/c/README.md belongs to no session",
                 "notes": "notes belongs to no session", "roots/unused/x": "roots/unused is used by no session",
                 "a/three.session": "a/three.session has no transcript three.transcript",
                 "three.session": "three.session lies in no folder", "b/one.session": "two sessions are called one"}
        for name, reason in wrong.items():
            with self.subTest(name=name):
                path = self.write(name, "")
                self.assert_fails(reason, "--orphans")
                os.remove(path) if not name.startswith("roots") else shutil.rmtree(os.path.dirname(path))
        for language in ("en", "ja"):
            with self.subTest(language=language):
                os.rename(os.path.join(self.folder, "a", f"two.{language}.transcript"), self.cli + ".away")
                self.assert_fails(f"a/two.session has no transcript two.{language}.transcript", "--orphans")
                os.rename(self.cli + ".away", os.path.join(self.folder, "a", f"two.{language}.transcript"))
        self.write("a/one.actual", "")
        self.write("a/two.ja.actual", "")
        self.assertEqual(self.run_it("--orphans"), (0, ""))

    def test_a_script_that_repeats_another_in_its_language_is_found(self):
        self.session("# locale: en\n# root-files: program\n# Saved.\nstart\nset N 5\n", "")
        for script in ("# root-files: program\n# locale: ja\n# 保存。\n\nstart\n# Typed.\nset N 5\n",
                       "# locales: en ja\n# root-files: program\nstart\nset N 5\n"):
            with self.subTest(script=script):
                self.session(script, "", "b/twin")
                self.assert_fails("b/twin.session does what a/one.session does", "--orphans")
        for script in ("# locale: ja\n# root-files: program\nstart\nset N 6\n", "# locale: ja\nstart\nset N 5\n"):
            with self.subTest(script=script):
                self.session(script, "", "b/twin")
                self.assertEqual(self.run_it("--orphans"), (0, ""))

    def test_one_script_is_played_in_each_of_its_languages(self):
        self.in_two_languages()
        for name in ("two", "a/two"):
            self.assertEqual(self.run_it(name), (0, "2 sessions, 0 failures\n"))
        for name in ("two.en", "a/two.ja"):
            self.assertEqual(self.run_it(name), (0, "1 sessions, 0 failures\n"))
        self.assertEqual(self.run_it(), (0, "2 sessions, 0 failures\n"))
        self.program('cat\necho "$7"\n')  # the value behind --locale
        for language in ("en", "ja"):
            self.assert_fails(f"+{language}\n", "two." + language)

    def test_each_language_has_a_transcript_of_its_own(self):
        self.in_two_languages()
        self.write("a/two.ja.transcript", "# locales: en ja\nstart\nsee Saved\nend\n")
        self.assertEqual(self.run_it("two.en")[0], 0)
        self.assert_fails("+see 保存", "two.ja")
        self.assert_fails("2 sessions, 1 failures", "two")
        self.assertTrue(os.path.exists(os.path.join(self.folder, "a", "two.ja.actual")))
        self.assertFalse(os.path.exists(os.path.join(self.folder, "a", "two.en.actual")))

    def test_a_line_of_a_language_that_is_not_played_is_named(self):
        for script in ("# locales: en ja\n[fr] start\n", "[ja] start\n", "# locale: en\n[en] start\n"):
            with self.subTest(script=script):
                self.session(script, script)
                self.assert_fails("one.session:", "one")
                self.assert_fails("a language that it is not played in", "--orphans")

    def test_languages_stand_in_the_first_line_and_are_known(self):
        for script, reason in [("# What it shows.\n# locales: en ja\n", "one.session:2: locales stands in the first line"),
                               ("# locales: en\n", "locales are en ja"), ("# locales: en fr\n", "locales are en ja"),
                               ("# locales:\n", "locales are en ja")]:
            with self.subTest(script=script):
                self.session(script, script)
                self.assert_fails(reason, "one")

    def test_unknown_names_are_failures(self):
        self.session("start\n", "start\n")
        self.in_two_languages()
        for name in ("three", "b/one", "one.en", "two.fr", "a/a/one", "one.session"):
            with self.subTest(name=name):
                self.assert_fails("no session " + name, name)

    def test_a_script_is_printed_as_the_program_is_given_it(self):
        self.in_two_languages()
        self.assertEqual(self.run_it("--script", "two.ja"), (0, "# locales: en ja\nstart\nsee 保存\nend\n"))

    def accept(self, *names):
        command = [os.path.join(self.room.name, "scripts", "accept-sessions"), *names]
        done = subprocess.run(command, capture_output=True, text=True, check=False)
        return done.returncode, done.stderr

    def test_accepting_takes_over_what_was_printed(self):
        self.folder = os.path.join(self.room.name, "tests", "sessions")
        os.makedirs(os.path.join(self.room.name, "scripts"))
        shutil.copy(ACCEPT, os.path.join(self.room.name, "scripts"))
        for given, left, kept in [("one", ["one"], ["one_more"]), ("a/one", ["one"], ["one_more"]),
                                  ("two", ["two.en", "two.ja"], []), ("a/two", ["two.en", "two.ja"], []),
                                  ("two", ["two.ja"], []), ("two.en", ["two.en"], ["two.ja"])]:
            with self.subTest(given=given, left=left):
                for name in left + kept:
                    self.write(f"a/{name}.transcript", "old\n")
                    self.write(f"a/{name}.actual", "new\n")
                self.assertEqual(self.accept(given), (0, ""))
                for name in left + kept:
                    with open(os.path.join(self.folder, "a", name + ".transcript"), encoding="utf-8") as file:
                        self.assertEqual(file.read(), "old\n" if name in kept else "new\n")
                    actual = os.path.join(self.folder, "a", name + ".actual")
                    self.assertEqual(os.path.exists(actual), name in kept)
                    if name in kept:
                        os.remove(actual)
        self.write("a/one.actual", "new\n")
        for name in ("two", "b/one", "ne", "o*"):
            with self.subTest(name=name):
                self.assertEqual(self.accept(name), (1, name + ": nothing to accept; run the session first\n"))
        self.assertEqual(self.accept()[0], 2)

    def test_no_sessions_at_all_is_a_failure(self):
        self.assert_fails("no sessions")


if __name__ == "__main__":
    unittest.main()
