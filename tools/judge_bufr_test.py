#!/usr/bin/env python3
"""The judge of the BUFR messages must find what is wrong: judge_bufr_test.py CLI."""
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

import judge_bufr

CLI = sys.argv.pop(1)

# Every field that a message tells of, with a figure that is not the one it gets instead.
FIELDS = dict(Year="2014", Month="11", YY="15", GG="12", iw="4", Qc="1", LaDeg="35", LaMin="42", LoDeg="165", LoMin="18",
              h="4", VV="97", iX="1", N="6", dd="27", ff="99", fff="105", SnT="0", TTT="152", SnTd="0", TdTdTd="108",
              PPPP="0132", a="2", ppp="014", ww="15", W1="8", W2="2", Nh="4", CL="5", CM="3", CH="1", gg="50",
              GGExact="11", Ds="2", Vs="3", Ss="0", TwTwTw="178", PwaPwa="07", HwaHwa="06", PwPw="06", HwHw="04",
              dw1dw1="25", dw2dw2="31", Pw1Pw1="09", Hw1Hw1="05", Pw2Pw2="11", Hw2Hw2="03", Is="1", EsEs="02", Rs="3",
              Sw="0", TbTbTb="130", ci="1", Si="2", bi="3", Di="4", zi="5", CallSign="JXKV", LogExtra="0530")
OTHERS = dict(Year="2015", Month="12", Qc="3", iX="4", ff="18", CallSign="JXKW", iw="1", fff="106", LogExtra="0540")


def text_of(fields):
    return "".join(f"{name}={value}\n" for name, value in fields.items())


class Judge(unittest.TestCase):
    def setUp(self):
        self.room = tempfile.TemporaryDirectory()
        self.addCleanup(self.room.cleanup)
        self.bufr = Path(self.room.name) / "message.bufr"

    def write(self, text, *arguments):
        subprocess.run([CLI, "bufr", "--output", self.bufr, *arguments], input=text, text=True, check=True)

    def wrong(self, text, wigos=None):
        return judge_bufr.compare(judge_bufr.read_observations(text), self.bufr, wigos)[0]

    def test_every_field_counts(self):
        self.assertEqual(sorted(FIELDS), sorted(judge_bufr.NAMES))
        text = text_of(FIELDS)
        self.write(text)
        self.assertEqual(self.wrong(text), [])
        for name, value in FIELDS.items():
            last = str((int(value[-1]) + 1) % 10) if value[-1].isdigit() else ""
            other = OTHERS.get(name, value[:-1] + last)
            self.assertNotEqual(self.wrong(text_of(FIELDS | {name: other})), [], name)
            # One half of a wrong date is no date.
            if name not in ("Year", "Month", "YY", "GG"):
                self.assertNotEqual(self.wrong(text_of(FIELDS | {name: ""})), [], name)

    def test_missing_is_not_zero(self):
        fields = {name: FIELDS[name] for name in ("Year", "Month", "YY", "GG")}
        self.write(text_of(fields | {"HwHw": "00", "SnT": "0", "TTT": "000"}))
        wrong = self.wrong(text_of(fields | {"SnT": "0", "TTT": "000"}))
        self.assertEqual(len(wrong), 1)
        self.assertIn("022022 is 0, not None", wrong[0])

    def test_number_of_messages_counts(self):
        one, two = text_of(FIELDS), text_of(FIELDS) + "\n" + text_of(FIELDS)
        self.write(one)
        self.assertEqual(self.wrong(two), ["message 2: there is none"])
        self.write(two)
        self.assertEqual(self.wrong(two), [])
        self.assertEqual(self.wrong(one), ["more messages than observations"])

    def test_identifier_counts(self):
        text = text_of(FIELDS)
        self.write(text, "--wigos", "0-22000-0-ABC1234")
        self.assertEqual(self.wrong(text, "0-22000-0-ABC1234"), [])
        for other in ("1-22000-0-ABC1234", "0-22001-0-ABC1234", "0-22000-1-ABC1234", "0-22000-0-ABC123"):
            self.assertEqual(len(self.wrong(text, other)), 1, other)
        self.assertIn("other descriptors", self.wrong(text)[0])

    def test_a_damaged_message_is_no_message(self):
        text = text_of(FIELDS)
        self.write(text)
        self.bufr.write_bytes(self.bufr.read_bytes()[:-20])
        with self.assertRaises(SystemExit):
            if self.wrong(text):
                raise SystemExit


if __name__ == "__main__":
    unittest.main()
