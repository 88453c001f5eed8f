#include "usage/programs.h"

#include <algorithm>

#include "text/ids.h"

namespace id = text::id;

namespace usage {
namespace {

constexpr Status kDone = {0, id::kUsageDone};
constexpr Status kWrong = {2, id::kUsageWrong};
constexpr Status kUsualStatuses[] = {kDone, kWrong};

constexpr Option kLanguage = {"--language", Value::kChoice, "en|ja", id::kUsageLanguage};
constexpr Option kRoot = {"--root", Value::kFolder, "DIR", id::kUsageRoot};
constexpr Option kProgram = {"--program", Value::kFolder, "DIR", id::kUsageProgramFolder};
constexpr Option kLocale = {"--locale", Value::kText, "en|ja", id::kUsageLocale};
constexpr Option kClock = {"--clock", Value::kText, "2014-11-15T11:50", id::kUsageClock};

constexpr Option kDesktopOptions[] = {kRoot, kProgram, kLocale, kClock};
constexpr std::string_view kDesktopUsages[] = {
    "[--root DIR] [--program DIR] [--locale en|ja]\n[--clock 2014-11-15T11:50]"};

constexpr std::string_view kCliUsages[] = {"COMMAND [ARGUMENTS]", "[--language en|ja] --help",
                                           "--version"};

constexpr Option kEncodeOptions[] = {kLanguage};
constexpr std::string_view kEncodeUsages[] = {"[--language en|ja] [FILE]"};

constexpr std::string_view kReadUsages[] = {"[FILE]"};

constexpr Option kLogbookOptions[] = {
    {"--format", Value::kChoice, "json|csv|names", id::kUsageFormat},
    {"--check", Value::kNone, "", id::kUsageCheck},
    {"--language", Value::kChoice, "en|ja", id::kUsageLanguageOfCheck},
    {"--list", Value::kFile, "FILE", id::kUsageList},
    {"--json", Value::kNone, "", id::kUsageJson},
};
constexpr std::string_view kLogbookUsages[] = {
    "[--format json|csv|names] [FILE]", "--check [--language en|ja] [--list FILE | --json] [FILE]"};
constexpr Status kLogbookStatuses[] = {kDone, {1, id::kUsageFound}, kWrong};

constexpr Option kExplainOptions[] = {
    kLanguage, {"--date", Value::kMonth, "YYYY-MM", id::kUsageMonthOfReports}};
constexpr std::string_view kExplainUsages[] = {"[--language en|ja] [--date YYYY-MM] [FILE]"};

constexpr Option kSaveOptions[] = {
    {"--root", Value::kFolder, "DIR", id::kUsageRootOfSave},
    {"--reports", Value::kFolder, "DIR", id::kUsageReportFolder},
    {"--logbook", Value::kFolder, "DIR", id::kUsageLogbookFolder},
    {"--replace", Value::kNone, "", id::kUsageReplace},
};
constexpr std::string_view kSaveUsages[] = {
    "[--root DIR] --reports DIR --logbook DIR [--replace] [FILE]"};

constexpr Option kBufrOptions[] = {
    {"--wigos", Value::kText, "0-22000-0-XXXXXXX", id::kUsageWigos},
    {"--date", Value::kMonth, "YYYY-MM", id::kUsageReportsOfMonth},
    {"--output", Value::kFile, "FILE|-", id::kUsageOutput},
};
constexpr std::string_view kBufrUsages[] = {
    "[--wigos 0-22000-0-XXXXXXX] [--date YYYY-MM]\n[--output FILE|-] [FILE]"};

constexpr Option kSessionOptions[] = {
    kRoot,
    kProgram,
    kLocale,
    kClock,
    {"--printer", Value::kChoice, "none|fails", id::kUsagePrinter}};
constexpr std::string_view kSessionUsages[] = {
    "[--root DIR] [--program DIR] [--locale en|ja]\n"
    "[--clock 2014-11-15T11:50] [--printer none|fails] [SCRIPT]"};
constexpr Status kSessionStatuses[] = {kDone, {1, id::kUsageExpectationFailed}, kWrong};

constexpr std::string_view kCli = "kavrel-cli";

constexpr Command kDesktopProgram = {"kavrel", "", kDesktopUsages,  id::kUsageKavrel,
                                     "",       0,  kDesktopOptions, kUsualStatuses};
constexpr Command kCliProgram = {kCli, "", kCliUsages, id::kUsageKavrelCli,
                                 "",   0,  {},         kUsualStatuses};
constexpr Command kCommands[] = {
    {kCli, "encode", kEncodeUsages, id::kUsageEncode, "FILE", id::kUsageObservations,
     kEncodeOptions, kUsualStatuses},
    {kCli, "read", kReadUsages, id::kUsageRead, "FILE", id::kUsageReports, {}, kUsualStatuses},
    {kCli, "logbook", kLogbookUsages, id::kUsageLogbook, "FILE", id::kUsageLogbookLines,
     kLogbookOptions, kLogbookStatuses},
    {kCli, "explain", kExplainUsages, id::kUsageExplain, "FILE", id::kUsageReports, kExplainOptions,
     kUsualStatuses},
    {kCli, "save", kSaveUsages, id::kUsageSave, "FILE", id::kUsageObservations, kSaveOptions,
     kUsualStatuses},
    {kCli, "bufr", kBufrUsages, id::kUsageBufr, "FILE", id::kUsageObservationsOrReports,
     kBufrOptions, kUsualStatuses},
    {kCli, "session", kSessionUsages, id::kUsageSession, "SCRIPT", id::kUsageScript,
     kSessionOptions, kSessionStatuses},
};

}  // namespace

const Command& desktop_program() {
  return kDesktopProgram;
}

const Command& cli_program() {
  return kCliProgram;
}

std::span<const Command> cli_commands() {
  return kCommands;
}

const Command* cli_command(std::string_view name) {
  const auto found = std::ranges::find(kCommands, name, &Command::name);
  return found == std::end(kCommands) ? nullptr : &*found;
}

}  // namespace usage
