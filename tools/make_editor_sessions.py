#!/usr/bin/env python3
"""Writes a session for every field of the main window that is typed into.

  make_editor_sessions.py FOLDER            writes FOLDER/editor_NAME.session for every row below
  make_editor_sessions.py --check FOLDER    fails when a session there is not what this program writes

FOLDER holds nothing but these sessions: tests/sessions/generated/editors.

Each session types, in Japanese and again in English: the smallest and the largest value, those just outside, solidi,
full-width figures, blanks, and texts that are no value at all. The rows hold what an officer is to see, written down here
by itself; they are not made from the program's own table.
"""
import os
import sys

ERROR_EN, ERROR_JA = 'Error: Input data is out of range.\\nIt must be \\"{}\\"', "エラー：（{}）\\nの範囲を超えています。"
WARN_EN = 'Warning: Input data is out of standard range.\\nIt takes normally the value of \\"{}\\".\\nIs it correct '
WARN_JA = "警告：（{}）\\nの通常の範囲を超えています。\\nこの値でよろしいですか？"

TYPED = ["folders", "ship_all_typed", "items_all"]      # true wind and dew point typed, a wave recorder
DERIVED = ["folders", "ship_instruments", "items_all"]  # apparent wind, dry and wet bulb


def outside(english, japanese):
    return ERROR_EN.format(english), ERROR_JA.format(japanese)


def unusual(english, japanese):
    return WARN_EN.format(english), WARN_JA.format(japanese)


def put(field, text):
    """Typed before, to make the values possible or to see them in a group."""
    return [f"set {field} {quote(text)}"]


def quote(text):
    plain = text and text.isprintable() and not any(c in ' "\\\u3000' for c in text)
    return text if plain else '"' + text.replace("\\", "\\\\").replace('"', '\\"').replace("\u3000", "\\u3000") + '"'


class Row:
    """good and asked: (typed, what the field shows then, what the group shows then); refused: texts."""

    def __init__(self, field, what, group, good, refused, message, asked=(), warning=None, setup=(), roots=TYPED,
                 empty=None, more=()):
        self.field, self.what, self.group, self.good, self.refused = field, what, group, good, refused
        self.message, self.asked, self.warning, self.setup = message, asked, warning, setup
        self.roots, self.empty, self.more = roots, empty, more


class Good:
    """A further step: after `setup` the text is accepted."""

    def __init__(self, typed, shown=None, setup=(), field=None):
        self.typed, self.shown, self.setup, self.field = typed, shown or typed, setup, field


class Bad(Good):
    """A further step: after `setup` the text is refused with a message of its own."""

    def __init__(self, typed, message, setup=(), field=None):
        super().__init__(typed, typed, setup, field)
        self.message = message


def simple(values, pattern):
    """Values that are shown as they are, each in its place in the group."""
    return [(v, v, pattern.format(v)) for v in values]


def one_figure(field, what, group, pattern, empty, english, japanese, low=0, high=9, solidus=True, more=(), setup=()):
    good = simple([str(low), str(high)], pattern) + [("５", "5", pattern.format("5"))]
    good += simple(["/"], pattern) if solidus else []
    refused = ["x", "-", "*", "."] + ([] if low == 0 else ["0"]) + ([str(high + 1)] if high < 9 else [])
    refused += [] if solidus else ["/"]
    return Row(field, what, group, good, refused, outside(english, japanese), empty=empty, more=more, setup=setup)


def height(field, what, group, head, empty):
    pattern = head + "{}"
    good = [("0", "0.0", "00"), ("0.0", "0.0", "00"), ("0.2", "0.2", "00"), ("0.3", "0.3", "01"), ("1.5", "1.5", "03"),
            ("１４．５", "14.5", "29"), ("14.5", "14.5", "29"), ("//", "//", "//")]
    text = "14.5 >= HW >=0.0 Or //"
    return Row(field, what, group, [(t, s, pattern.format(g)) for t, s, g in good],
               ["14.6", "15", "-0.1", "99", "1 2", "/", "1.2.", "x"], (text, text), empty=empty)


def period(field, what, group, pattern, empty, english, japanese, warn_from, warning, with_99, more=(), setup=()):
    highest = f"{warn_from - 1:02}"
    good = [("0", "00", pattern.format("00")), ("7", "07", pattern.format("07")), (" 8", "08", pattern.format("08")),
            ("１２", "12", pattern.format("12")), (highest, highest, pattern.format(highest)),
            ("//", "//", pattern.format("//"))]
    refused = ["30", "98", "/", "-1", "1x"]
    if with_99:
        good.append(("99", "99", pattern.format("99")))
    else:
        refused.append("99")
    asked = [(str(warn_from), str(warn_from), pattern.format(warn_from)), ("29", "29", pattern.format("29"))]
    return Row(field, what, group, good, refused, outside(english, japanese), asked, warning, empty=empty, more=more,
               setup=setup)


def temperature(field, what, group, head, message, setup=(), roots=TYPED, more=(), empty=None, low=-25, high=40):
    def figures(value):
        return head + ("1" if value < 0 else "0") + f"{round(abs(value) * 10):03}"

    good = [(str(low), f"{low:.1f}", figures(low)), (str(high), f"{high:.1f}", figures(high)), ("0", "0.0", figures(0)),
            ("-0.1", "-0.1", figures(-0.1)), ("１２．３", "12.3", figures(12.3)), ("5.", "5.0", figures(5))]
    refused = [f"{low - 0.1:.1f}", f"{high + 0.1:.1f}", "-99", "99.9", "1 5", "--1", "1.2.3", "x", "//"]
    return Row(field, what, group, good, refused, message, setup=setup, roots=roots, more=more, empty=empty)


def whole(field, what, low, high, message):
    good = [(str(low), str(low), None), (str(high), str(high), None), ("４５", "45", None)]
    return Row(field, what, None, good, [str(low - 1), str(high + 1), "999", "1 2", "1.5", "//", "x"], message,
               roots=DERIVED)


class LeftAlone(Bad):
    """A further step: what `setup` has made impossible does not let go, though nothing is typed there."""


STEADY = ("Error: If Element(Type of tendency) equal 4\\nElement(Amount of change) equal 000 ",
          "エラー：気圧変化の型が4のときは、\\n気圧変化量は000でなければなりません。")
LOWEST_ABOVE_TOTAL = ("Error: Element(Lowest cloud) must be smaller than or equal to the Element(Total cloud)",
                      "エラー：最下層の雲量は全雲量以下でなければなりません。")
NO_TYPES = ("Error: If Element(Total cloud) is 1 or more\\nall Elements(Cloud type) must not be 0.",
            "エラー：全雲量が1以上のときは、\\n雲形をすべて0にすることはできません。")
NO_LOWEST = ("Error: If Element(Lowest cloud) equal 0\\nElement(Lower cloud) and Element(Middle cloud) equal 0.",
             "エラー：最下層の雲量が0のときは、\\n下層雲と中層雲は0でなければなりません。")
LOWEST_OF_NONE = ("Error: If Element(Lower cloud) and Element(Middle cloud) equal 0\\nElement(Lowest cloud) equal 0.",
                  "エラー：下層雲と中層雲が0のときは、\\n最下層の雲量は0でなければなりません。")
DATE_INVALID = ("Date is invalid", "日付が正しくありません")
DEW_ABOVE_AIR = ("Error: Element(Dew point temp) must be smaller or equal than Element(Air temp)",
                 "エラー：露点温度は気温以下でなければなりません。")
WET_ABOVE_AIR = ("Error: Element(Wet bulb temp) must be smaller or equal than Element(Air temp)",
                 "エラー：湿球温度は気温以下でなければなりません。")
CALM_WITH_SPEED = ("Error: If Element(True dir) equal 00\\nElement(True wind) equal 00.",
                   "エラー：真風向が00のときは、\\n真風速は00でなければなりません。")
SPEED_MISSING = ("Error: If Element(True wind) equal 00\\nElement(True dir) equal 00.",
                 "エラー：真風速が00のときは、\\n真風向は00でなければなりません。")
BELOW_ONE_KNOT = ("Error: If true wind speed is less than 1knot, true wind direction must be 00.",
                  "エラー：真風速が1ノット未満のときは、真風向は00でなければなりません。")
NO_WAVES = ("Error: If Element(Wave period) equal 00\\nElement(Wave height) equal 00.",
            "エラー：波の周期が00のときは、\\n波高は00でなければなりません。")
FAR_FROM_HOUR = ("Warning: Actual time of observation differs from standard time.\\nIs it correct ",
                 "警告：実際の観測時刻が定時と異なっています。\\nこの値でよろしいですか？")
AIR = outside("-25<=Air temp<=40", "-25<=気温<=40")
READING_TEXT = outside("870.0 <= Air pressure at sea level <= 1069.9", "870.0<=海面気圧<=1069.9")
PRESSURE = outside("870 <= Air pressure at sea level <= 1070", "870<=海面気圧<=1070")
PRESSURE_ASKED = unusual("930 <= Air pressure at sea level <= 1050", "930<=海面気圧<=1050")
DAY = outside("01<=DAY<=30", "01<=日<=30")
WIND_WAVE = ("00<=Wind wave period<30,99,//", "00<=風浪の周期<30,99,//")
WIND_WAVE_ASKED = unusual("Wind wave period<20", "風浪の周期<20")
SWELL = ("00<=Swell period<30,//", "00<=うねりの周期<30,//")
SWELL_ASKED = unusual("Swell period<25", "うねりの周期<25")
PAST = ("0<=Past weather<=9,/", "0<=過去天気<=9,/")

EAST = ["choose north_south 0", "choose east_west 0"]

ROWS = [
    Row("Year", "The year: after 1999, at most the next one.", None,
        [("2000", "2000", None), ("2015", "2015", None), ("２０１４", "2014", None)],
        ["1999", "2016", "0", "14", "9999", "20 4", "20x4", "-201", "////"], outside("1999<YEAR<=2015", "1999<年<=2015")),
    Row("Month", "The month, 01 to 12.", None,
        [("1", "01", None), ("12", "12", None), (" 7", "07", None), ("１１", "11", None)],
        ["0", "00", "13", "99", "1x", "-1", "//", "/"], outside("01<=MONTH<=12", "01<=月<=12")),
    Row("YY", "The day, 01 to the last of its month.", "group_YYGGiw",
        [("1", "01", "01**3"), ("30", "30", "30**3"), ("０９", "09", "09**3")], ["0", "00", "31", "99", "3x", "-1", "//"],
        DAY, setup=put("Year", "2014") + put("Month", "11"), empty="****3",
        more=[Bad("29", outside("01<=DAY<=28", "01<=日<=28"), put("Year", "2014") + put("Month", "02")), Good("28"),
              Bad("30", outside("01<=DAY<=29", "01<=日<=29"), put("YY", "28") + put("Year", "2012")), Good("29"),
              Bad("32", outside("01<=DAY<=31", "01<=日<=31"), put("Month", "12")), Good("31"),
              LeftAlone("31", DATE_INVALID, put("Month", "11")),
              Good("30")]),
    Row("GG", "The hour: synoptic and intermediate hours only.", "group_YYGGiw",
        [(h, h, f"**{h}3") for h in ("00", "03", "06", "09", "12", "15", "18", "21")] +
        [("3", "03", "**033"), ("１２", "12", "**123")], ["01", "02", "22", "23", "24", "99", "1x", "-3", "//"],
        outside("00<=TIME<=23", "00<=時<=23"), empty="****3"),
    Row("GGExact", "The actual hour; more than half an hour from the nominal one is asked about.", "group_9GGgg",
        [("12", "12", "91200"), ("１２", "12", "91200")], ["24", "99", "1x", "-1", "//"], outside("00<=TIME<=23", "00<=時<=23"),
        [("0", "00", "90000"), ("11", "11", "91100"), ("23", "23", "92300")], FAR_FROM_HOUR,
        put("GG", "12") + put("gg", "00"), empty="900"),
    Row("gg", "The actual minute; more than half an hour from the nominal hour is asked about.", "group_9GGgg",
        [("0", "00", "91200"), ("30", "30", "91230"), ("０５", "05", "91205")], ["60", "99", "5x", "-1", "//"],
        outside("00<=Minute<=59", "00<=分<=59"), [("31", "31", "91231"), ("59", "59", "91259")], FAR_FROM_HOUR,
        put("GG", "12") + put("GGExact", "12"), empty="912"),
    Row("LaDeg", "Degrees of latitude, 00 to 90.", "group_99LaLaLa",
        [("0", "00", "99000"), ("90", "90", "99900"), ("４５", "45", "99450")], ["91", "99", "4x", "-5", "//"],
        outside("00<=Latitude(deg)<=90", "00<=緯度の度<=90"), setup=put("LaMin", "00"), empty="99**0"),
    Row("LaMin", "Minutes of latitude, 00 to 59; the report has tenths of a degree, cut.", "group_99LaLaLa",
        [("0", "00", "99350"), ("5", "05", "99350"), ("06", "06", "99351"), ("59", "59", "99359"), ("３０", "30", "99355")],
        ["60", "99", "5x", "-1", "//"], outside("00<=Latitude(min)<=59", "00<=緯度の分<=59"), setup=put("LaDeg", "35"),
        empty="9935*"),
    Row("LoDeg", "Degrees of longitude, 000 to 180.", "group_QcLoLoLoLo",
        [("0", "000", "10000"), ("180", "180", "11800"), ("99", "099", "10990"), ("１４０", "140", "11400")],
        ["181", "999", "1 2", "14x", "-14", "///"], outside("000<=Longitude(deg)<=180", "000<=経度の度<=180"),
        setup=EAST + put("LoMin", "00"), empty="1***0"),
    Row("LoMin", "Minutes of longitude, 00 to 59; the English message says latitude.", "group_QcLoLoLoLo",
        [("0", "00", "11400"), ("59", "59", "11409"), ("０６", "06", "11401")], ["60", "99", "5x", "-1", "//"],
        outside("00<=Latitude(min)<=59", "00<=経度の分<=59"), setup=EAST + put("LoDeg", "140"), empty="1140*"),
    one_figure("Ds", "The ship's direction over three hours.", "group_222DsVs", "222{}*", "222**",
               "0<=Ship course/3hr<=8,9,/", "0<=前3時間の船の針路<=8,9,/"),
    one_figure("Vs", "The ship's speed over three hours.", "group_222DsVs", "222*{}", "222**", "0<=Ship speed<=9,/",
               "0<=船の速力<=9,/"),
    Row("reading", "The barometer's reading; its card corrects nothing here. Decimals behind the first are cut.",
        "group_4PPPP",
        [("930", "0930.0", "49300"), ("1050.0", "1050.0", "40500"), ("1013.25", "1013.2", "40132"),
         ("９９８．７", "0998.7", "49987")],
        ["869.9", "1070", "1070.0", "0", "9999.9", "1.0.1"], PRESSURE,
        [("870", "0870.0", "48700"), ("929.9", "0929.9", "49299"), ("1050.1", "1050.1", "40501"),
         ("1069.9", "1069.9", "40699")], PRESSURE_ASKED, empty="4****",
        more=[Bad(t, READING_TEXT) for t in ("101325", "1013.", ".5", "10 13", "-900", "x", "////")] +
             [Good("1000", "1000.0")]),
    Row("PPPP", "Pressure at sea level, in hPa or as the report's four figures.", "group_4PPPP",
        [("930", "0930.0", "49300"), ("1050.0", "1050.0", "40500"), ("0500", "1050.0", "40500"), ("9300", "0930.0", "49300"),
         ("9999", "0999.9", "49999"), ("0000", "1000.0", "40000"), ("９９８７", "0998.7", "49987")],
        ["869.9", "1070", "1070.0", "0701", "8699", "1013", "10 1", "-900", "1.0.1", "x", "////"], PRESSURE,
        [("870", "0870.0", "48700"), ("929.9", "0929.9", "49299"), ("1050.1", "1050.1", "40501"),
         ("1069.9", "1069.9", "40699"), ("0501", "1050.1", "40501"), ("0700", "1070.0", "40700"),
         ("8700", "0870.0", "48700"), ("9299", "0929.9", "49299")], PRESSURE_ASKED, empty="4****"),
    one_figure("a", "The type of tendency; a steady one has no amount.", "group_5appp", "5{}***", "5****",
               "0<=Type of tendency<=8,/", "0<=気圧変化の型<=8,/", high=8,
               more=[Bad("4", STEADY, put("ppp", "0.1")), Good("3"), Good("4", setup=put("ppp", "0.0")),
                     Good("2", setup=put("ppp", ""))]),
    Row("ppp", "The amount of tendency; above 15 is asked about.", "group_5appp",
        [("0", "00.0", "5*000"), ("5.2", "05.2", "5*052"), ("15.0", "15.0", "5*150"), ("０．１", "00.1", "5*001")],
        ["25.1", "99", "-0.1", "1 2", "1..2", "x", "/"],
        outside("00.0<=Amount of tendency<=25.0", "00.0<=気圧変化量<=25.0"),
        [("15.1", "15.1", "5*151"), ("25.0", "25.0", "5*250")], unusual("Amount of tendency<=15", "気圧変化量<=15"),
        empty="5****", more=[Bad("0.1", STEADY, put("ppp", "0") + put("a", "4")), Good("0.0", "00.0"),
                             Good("0.1", "00.1", setup=put("a", ""))]),
    temperature("dry_bulb", "The dry bulb's temperature.", "group_1SnTTT", "1", AIR, roots=DERIVED, empty="1****"),
    temperature("wet_bulb", "The wet bulb's temperature, not above the dry bulb's.", "group_8SwTbTbTb", "8",
                outside("-25<=Wet bulb temp<=40", "-25<=湿球温度<=40"), put("dry_bulb", "40"), DERIVED, empty="8****",
                more=[Bad("20.1", WET_ABOVE_AIR, put("wet_bulb", "") + put("dry_bulb", "20")), Good("20", "20.0"),
                      Bad("19.9", WET_ABOVE_AIR, field="dry_bulb"), Good("40", "40.0", field="dry_bulb")]),
    temperature("air_temperature", "Air temperature.", "group_1SnTTT", "1", AIR, empty="1****"),
    temperature("dew_point", "The dew point, not above the air's temperature.", "group_2SnTdTdTd", "2",
                outside("-25<=Dew point temp<=40", "-25<=露点温度<=40"), put("air_temperature", "40"), empty="2****",
                more=[Bad("20.1", DEW_ABOVE_AIR, put("dew_point", "") + put("air_temperature", "20")),
                      Good("20", "20.0"), Bad("19.9", DEW_ABOVE_AIR, field="air_temperature"),
                      Good("40", "40.0", field="air_temperature")]),
    Row("relative_humidity", "Relative humidity in percent.", None,
        [("0", "00.0", None), ("100", "100.0", None), ("５３．５", "53.5", None)],
        ["100.1", "101", "-1", "999", "1 2", "1..2", "x", "//"],
        outside("0<=Relative Humidity(%)<=100", "0<=相対湿度（%）<=100")),
    Row("dd", "The true wind's direction, in tens of degrees.", "group_Nddff",
        [("0", "00", "*00**"), ("1", "01", "*01**"), ("36", "36", "*36**"), ("99", "99", "*99**"), ("//", "//", "*//**"),
         ("１８", "18", "*18**")], ["37", "98", "/", "1x", "-1"], outside("0<=Wind dir<=36,99,//", "0<=風向<=36,99,//"),
        empty="*****"),
    Row("ff", "The true wind's speed; above 80 is asked about, 99 and more stand in a group of their own.", "group_Nddff",
        [("1", "01", "*1801"), ("80", "80", "*1880"), ("0.5", "01", "*1801"), ("１２", "12", "*1812")],
        ["-1", "1 2", "x", "//", "/"], outside("0<=true wind speed<=999", "0<=真風速<=999"),
        [("81", "81", "*1881"), ("98", "98", "*1898"), ("99", "99", "*1899"), ("999", "999", "*1899")],
        unusual("Wind speed<=80", "風速<=80"), put("dd", "18"), empty="*18**",
        more=[Bad("0", SPEED_MISSING), Bad("0.3", BELOW_ONE_KNOT), Good("1", "01", put("ff", "") + put("dd", "00") +
              put("dd", "18")), Bad("1", CALM_WITH_SPEED, put("ff", "") + put("dd", "00")), Good("0.3", "00"),
              Good("0", "00"), Good("5", "05", put("dd", "//"))]),
    whole("apparent_direction", "The apparent wind's direction from the bow, 0 to 360 degrees.", 0, 360,
          outside("0<=Apparent wind dir<=360", "0<=視風向<=360")),
    Row("apparent_speed", "The apparent wind's speed, 0 to 999 knots.", None,
        [("0", "0.0", None), ("999", "999.0", None), ("１２．５", "12.5", None)],
        ["999.1", "1000", "-0.1", "1 2", "1..2", "//", "x"],
        outside("0<=Apparent wind speed<=999", "0<=視風速<=999"), roots=DERIVED),
    whole("heading", "The ship's heading: north is 360.", 1, 360, outside("0<Ship heading<=360", "0<船首方位<=360")),
    whole("course", "The ship's course, 0 to 360 degrees.", 0, 360, outside("0<=Ship course<=360", "0<=船の針路<=360")),
    Row("ship_speed", "The ship's speed, 0 to 99.9 knots.", None,
        [("0", "0.0", None), ("99.9", "99.9", None), ("１２", "12.0", None)], ["100", "999", "-0.1", "1 2", "1..2", "//", "x"],
        outside("0<=Ship speed<=99.9", "0<=船速<=99.9"), roots=DERIVED),
    temperature("TwTwTw", "The sea's surface temperature; the sign tells the method too.", "group_0SsTwTwTw", "0",
                outside("-2<=Sea surface temp(degC)<=37.0", "-2<=海面水温（°C）<=37.0"), empty="0****", low=-2, high=37),
    period("PwPw", "The wind waves' period; no period, no height.", "group_2PwPwHwHw", "2{}**", "2****", *WIND_WAVE, 20,
           WIND_WAVE_ASKED, True, more=[Bad("00", NO_WAVES, put("PwPw", "") + put("HwHw", "1.0")), Good("01"),
                                        Good("00", setup=put("HwHw", "0.2")), Bad("1.0", NO_WAVES, field="HwHw"),
                                        Good("", field="HwHw")]),
    height("HwHw", "The wind waves' height in metres; half metres in the report.", "group_2PwPwHwHw", "2**", "2****"),
    Row("dw1dw1", "The first swell's direction.", "group_3dw1dw1dw2dw2",
        [("0", "00", "300**"), ("1", "01", "301**"), ("36", "36", "336**"), ("99", "99", "399**"), ("//", "//", "3//**"),
         ("２７", "27", "327**")], ["37", "98", "/", "1x", "-1"],
        outside("01<=Swell dir<=36,99,//,00", "01<=うねりの方向<=36,99,//,00"), empty="3****"),
    period("Pw1Pw1", "The first swell's period.", "group_4Pw1Pw1Hw1Hw1", "4{}**", "4****", *SWELL, 25, SWELL_ASKED, False),
    height("Hw1Hw1", "The first swell's height in metres.", "group_4Pw1Pw1Hw1Hw1", "4**", "4****"),
    Row("dw2dw2", "The second swell's direction; 00 says that there is none, and it cannot be confused.",
        "group_3dw1dw1dw2dw2",
        [("0", "00", "327**"), ("1", "01", "32701"), ("36", "36", "32736"), ("//", "//", "327//"), ("１８", "18", "32718")],
        ["37", "98", "99", "/", "1x", "-1"], outside("01<=Swell dir<=36,//,00", "01<=うねりの方向<=36,//,00"),
        setup=put("dw1dw1", "27"), empty="327**"),
    period("Pw2Pw2", "The second swell's period.", "group_5Pw2Pw2Hw2Hw2", "5{}**", "5****", *SWELL, 25, SWELL_ASKED, False),
    height("Hw2Hw2", "The second swell's height in metres.", "group_5Pw2Pw2Hw2Hw2", "5**", "5****"),
    period("PwaPwa", "The waves' period from the wave recorder.", "group_1PwaPwaHwaHwa", "1{}**", "1****", *WIND_WAVE, 20,
           WIND_WAVE_ASKED, True),
    height("HwaHwa", "The waves' height from the wave recorder.", "group_1PwaPwaHwaHwa", "1**", "1****"),
    Row("VV", "Visibility, codes 90 to 99.", "group_iRiXhVV",
        simple(["90", "99", "//"], "41*{}") + [("９７", "97", "41*97")], ["89", "9", "00", "/", "9x", "-9"],
        outside("90<=Visibility<=99,//", "90<=視程<=99,//"), empty="41***"),
    Row("ww", "Present weather, 00 to 99.", "group_7wwW1W2",
        [("0", "00", "700**"), ("7", "07", "707**"), ("99", "99", "799**"), ("//", "//", "7//**"), ("６１", "61", "761**")],
        ["/", "7x", "-1", "/7", "*"], outside("00<=Present weather<=99,//", "00<=現在天気<=99,//"), empty="7****"),
    one_figure("W1", "Past weather, the first figure.", "group_7wwW1W2", "7**{}*", "7****", *PAST),
    one_figure("W2", "Past weather, the second figure.", "group_7wwW1W2", "7***{}", "7****", *PAST),
    one_figure("N", "Total cloud; the lowest clouds do not cover more.", "group_Nddff", "{}****", "*****",
               "0<=Total cloud<=9,/", "0<=全雲量<=9,/",
               more=[Bad("5", LOWEST_ABOVE_TOTAL, put("Nh", "6")), Good("6"), Good("/"),
                     Good("0", setup=put("Nh", "0") + put("CL", "0") + put("CM", "0") + put("CH", "0")),
                     Bad("1", NO_TYPES), Good("0"),
                     Good("", setup=put("CL", "") + put("CM", "") + put("CH", "") + put("Nh", ""))]),
    one_figure("Nh", "The lowest clouds' amount, with the total and with the types of cloud.", "group_8NhCLCMCH", "8{}***",
               "8****", "0<=Lowest cloud<=9,/", "0<=最下層の雲量<=9,/",
               more=[Bad("6", LOWEST_ABOVE_TOTAL, put("Nh", "") + put("N", "5")), Good("5"),
                     Good("9", setup=put("N", "/")), Bad("0", NO_LOWEST, put("Nh", "") + put("CL", "5")), Good("1"),
                     Good("", setup=[]), Good("0", setup=put("CL", "0") + put("CM", "0")), Bad("1", LOWEST_OF_NONE),
                     Good("0"), Good("", setup=put("CL", "") + put("CM", "") + put("N", ""))]),
    one_figure("CL", "Low clouds.", "group_8NhCLCMCH", "8*{}**", "8****", "0<=Lower cloud<=9,/", "0<=下層雲<=9,/",
               more=[Bad("5", NO_LOWEST, put("CL", "") + put("Nh", "0")), Good("0"),
                     Bad("0", LOWEST_OF_NONE, put("CL", "") + put("Nh", "3") + put("CM", "0")), Good("5"),
                     Good("", setup=put("Nh", "") + put("CM", ""))]),
    one_figure("CM", "Middle clouds.", "group_8NhCLCMCH", "8**{}*", "8****", "0<=Middle cloud<=9,/", "0<=中層雲<=9,/",
               more=[Bad("5", NO_LOWEST, put("CM", "") + put("Nh", "0")), Good("0"),
                     Bad("0", LOWEST_OF_NONE, put("CM", "") + put("Nh", "3") + put("CL", "0")), Good("5"),
                     Good("", setup=put("Nh", "") + put("CL", ""))]),
    one_figure("CH", "High clouds; some cover needs some cloud.", "group_8NhCLCMCH", "8***{}", "8****",
               "0<=Upper cloud<=9,/", "0<=上層雲<=9,/",
               more=[Bad("0", NO_TYPES, put("CH", "") + put("N", "1") + put("CL", "0") + put("CM", "0")), Good("1"),
                     Good("", setup=put("CL", "") + put("CM", "") + put("N", ""))]),
    Row("h", "The cloud base in metres; the report has its class.", "group_iRiXhVV",
        [(v, v, f"41{g}**") for v, g in (("0", 0), ("49", 0), ("50", 1), ("99", 1), ("100", 2), ("199", 2), ("200", 3),
                                        ("299", 3), ("300", 4), ("599", 4), ("600", 5), ("999", 5), ("1000", 6),
                                        ("1499", 6), ("1500", 7), ("1999", 7), ("2000", 8), ("2499", 8), ("2500", 9),
                                        ("9999", 9), ("/", "/"))] + [("６００", "600", "415**")],
        ["-1", "1 2", "//", "60x", "1.5"], outside("0<=Cloud height<=9999,/", "0<=雲底の高さ<=9999,/"), empty="41***"),
    one_figure("Is", "What the ice on the ship comes from.", "group_6IsEsEsRs", "6{}***", "6****", "1<=Causes<=5",
               "1<=着氷の原因<=5", 1, 5, False),
    Row("EsEs", "How thick the ice on the ship is, in centimetres.", "group_6IsEsEsRs",
        [("0", "00", "6*00*"), ("99", "99", "6*99*"), ("５", "05", "6*05*")], ["//", "/", "1x", "-1"],
        outside("0<=Thickness<=99", "0<=着氷の厚さ<=99"), empty="6****"),
    one_figure("Rs", "How the ice on the ship changes.", "group_6IsEsEsRs", "6***{}", "6****", "0<=Rate<=5",
               "0<=着氷の変化<=5", 0, 5, False),
    one_figure("ci", "Sea ice: concentration.", "group_ciSibiDizi", "{}****", "*****", "1<=Concentration<=9,/",
               "1<=密接度<=9,/", 1),
    one_figure("Si", "Sea ice: stage of development.", "group_ciSibiDizi", "*{}***", "*****",
               "1<=Stage of development<=9,/", "1<=発達過程<=9,/", 1),
    one_figure("bi", "Sea ice: ice of land origin.", "group_ciSibiDizi", "**{}**", "*****", "1<=Land origin<=9,/",
               "1<=陸氷<=9,/", 1),
    one_figure("Di", "Sea ice: bearing of the edge.", "group_ciSibiDizi", "***{}*", "*****", "1<=Bearing of ice edge<=9,/",
               "1<=氷縁の方位<=9,/", 1),
    one_figure("zi", "Sea ice: trend over three hours.", "group_ciSibiDizi", "****{}", "*****", "1<=Trend over 3 hours<=9,/",
               "1<=海氷の状況・前3時間の変化<=9,/", 1),
]


def typed(field, text):
    return [f"set {field} {quote(text)}", "key Tab"]


def seen(row, shown, group):
    lines = [f"expect {row.field} {quote(shown)}"]
    return lines + ([f"expect {row.group} {quote(group)}"] if row.group and group else [])


def refusal(row, text, message, group, field=None):
    lines = typed(field or row.field, text) + [f'expect-message "{message}"', "answer ok",
                                               f"expect {field or row.field} {quote(text)}"]
    return lines + ([f"expect {row.group} {quote(group)}"] if row.group and group else [])


def steps_of(row, language):
    """The lines of one run in one language (0 English, 1 Japanese)."""
    lines = ["", "# What it takes, and how it stands in the report."] + list(row.setup)
    for text, shown, group in row.good:
        lines += typed(row.field, text) + seen(row, shown, group)
    group = row.good[-1][2]
    for text, shown, asked_group in row.asked:
        question = f'expect-message "{row.warning[language]}"'
        lines += ["", "# Unusual: asked about, and only kept on Yes."] if text == row.asked[0][0] else []
        lines += typed(row.field, text) + [question, "answer no"]
        lines += [f"expect {row.group} {quote(group)}"] if row.group and group else []
        lines += typed(row.field, text) + [question, "answer yes"] + seen(row, shown, asked_group)
        group = asked_group
    lines += ["", "# What it refuses: the text stays to be corrected, the report stays as it was."]
    for text in row.refused:
        lines += refusal(row, text, row.message[language], group)
    lines += ["", "# Emptied, nothing is entered."] + typed(row.field, "") + seen(row, "", row.empty)
    if row.more:
        lines += ["", "# Together with other entries."]
    for step in row.more:
        lines += step.setup
        if isinstance(step, LeftAlone):
            lines += [f"focus {row.field}", "key Tab", f'expect-message "{step.message[language]}"', "answer ok",
                      f"expect {row.field} {quote(step.typed)}"]
        elif isinstance(step, Bad):
            lines += refusal(row, step.typed, step.message[language], None, step.field)
        else:
            field = step.field or row.field
            lines += typed(field, step.typed) + [f"expect {field} {quote(step.shown)}"]
    return lines


def session_of(row):
    lines = [f"# root-files: {root}" for root in row.roots] + ["# locale: ja"]
    lines += [f"# {row.what}", "# Made by tools/make_editor_sessions.py; change it there.", "", "start"]
    lines += steps_of(row, 1)
    lines += ["", "# And in English.", "menu Language/English（英語）"]
    lines += steps_of(row, 0)
    return "\n".join(lines) + "\n"


def main():
    check = sys.argv[1] == "--check"
    folder = sys.argv[-1]
    wanted = {f"editor_{row.field}.session": session_of(row) for row in ROWS}
    wrong = [name for name in sorted(os.listdir(folder)) if name.endswith(".session") and name not in wanted]
    for name, text in wanted.items():
        path = os.path.join(folder, name)
        if not check:
            with open(path, "w", encoding="utf-8", newline="\n") as file:
                file.write(text)
        elif not os.path.exists(path) or open(path, encoding="utf-8", newline="").read() != text:
            wrong.append(name)
    for name in wrong:
        print(f"{name} is not what tools/make_editor_sessions.py writes")
    sys.exit(1 if wrong else 0)


main()
