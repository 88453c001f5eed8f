#!/usr/bin/env python3
"""Tests of check_sample_run.py: it passes what is right and fails what must fail, with a reason that tells why."""
import os
import subprocess
import sys
import tempfile
import unittest

import check_sample_run

CHECK = os.path.abspath(check_sample_run.__file__)
REPORT = check_sample_run.REPORT
RECORD = check_sample_run.record()


class SampleRun(unittest.TestCase):
    def setUp(self):
        self.room = tempfile.TemporaryDirectory()
        self.addCleanup(self.room.cleanup)
        self.report = os.path.join(self.room.name, "14111512.tlx")
        self.logbook = os.path.join(self.room.name, "immt5.log")
        self.write(self.report, REPORT)
        self.write(self.logbook, RECORD + "\n")
        self.output = (f"[1/2] Building\n\nreport {self.report}\nlogbook {self.logbook}\n"
                       f"\nWeather report ({self.report}):\n{REPORT}\n"
                       f"\nLogbook record ({self.logbook}):\n{RECORD}\n")

    def write(self, path, text):
        with open(path, "w", encoding="utf-8", newline="") as file:
            file.write(text)

    def check(self):
        path = os.path.join(self.room.name, "output")
        self.write(path, self.output)
        return subprocess.run([sys.executable, CHECK, path], capture_output=True, text=True, check=False)

    def fails(self, reason):
        done = self.check()
        self.assertEqual(done.returncode, 1, done.stdout)
        self.assertIn(reason, done.stderr)

    def test_passes_what_is_right(self):
        done = self.check()
        self.assertEqual((done.returncode, done.stderr), (0, ""))

    def test_the_record_has_172_columns(self):
        self.assertEqual(len(RECORD), 172)

    def test_fails_a_wrong_figure_in_any_group(self):
        right = self.output
        for at, figure in enumerate(REPORT):
            if figure == " ":
                wrong = REPORT[:at - 1] + "x" + REPORT[at:]
                self.output = right.replace(f"\n{REPORT}\n", f"\n{wrong}\n")
                self.fails("the report shown")

    def test_fails_a_wrong_record(self):
        self.output = self.output.replace(RECORD, RECORD[:-1] + " ")
        self.fails("the logbook record shown")

    def test_fails_a_second_record(self):
        self.output += RECORD + "\n"
        self.fails("what follows the record")

    def test_fails_a_report_that_is_not_there(self):
        os.remove(self.report)
        self.fails("No such file")

    def test_fails_a_logbook_that_is_not_there(self):
        os.remove(self.logbook)
        self.fails("No such file")

    def test_fails_a_file_that_differs_from_what_is_shown(self):
        self.write(self.report, REPORT + "\n")
        self.fails("the report's file")

    def test_fails_a_logbook_without_line_end(self):
        self.write(self.logbook, RECORD)
        self.fails("the logbook")

    def test_fails_an_empty_output(self):
        self.output = ""
        self.fails("lines that begin with 'report '")

    def test_fails_when_nothing_is_shown(self):
        self.output = self.output[:self.output.index("\nWeather report")]
        self.fails("does not show")


if __name__ == "__main__":
    unittest.main()
