#include "app/calc/Options.h"

#include <algorithm>
#include <array>
#include <limits>
#include <map>
#include <thread>

#include <CLI/CLI.hpp>

#include "app/calc/Status.h"
#include "base/basCommon.h"
#include "base/conversions.h"
#include "base/version.h"
#include "platform/StandardStreams.h"

namespace quillet {
namespace {

const std::map<std::string, Format> kFormats = {{"", Format::Automatic},
                                                {"table", Format::Table},
                                                {"csv", Format::Csv},
                                                {"json", Format::Json}};

constexpr std::size_t kMostJobs = 256;

std::size_t Cores() {
  return std::clamp<std::size_t>(std::thread::hardware_concurrency(), 1, kMostJobs);
}

std::string Footer() {
  return "An auction file holds one auction. Standard input (-, or a pipe) holds one a line.\n"
         "The table is for one auction, CSV for more; json prints one object a line.\n\n"
         "Exit status: 0 when every auction was calculated, 1 when some failed or could not be\n"
         "read as a whole, 2 for wrong usage or an unusable fee schedule. With --check: 1 when\n"
         "something is wrong with the file.";
}

struct GoalForm {
  std::string_view sEnding;
  GoalKind eKind;
  double fLeast;
  double fBelow;
};

constexpr double kNoLimit = std::numeric_limits<double>::infinity();
constexpr std::array<GoalForm, 3> kGoalForms = {{
    {"%price", GoalKind::PercentOfPrice, 0, 100},
    {"%", GoalKind::PercentOfCost, 0, kNoLimit},
    {"", GoalKind::Profit, -kNoLimit, kNoLimit},
}};

std::optional<Goal> GoalOf(std::string_view sText) {
  for (const GoalForm& oForm : kGoalForms) {
    if (sText.ends_with(oForm.sEnding)) {
      const auto fAmount = ToFileDouble(sText.substr(0, sText.size() - oForm.sEnding.size()));
      const bool bInside = fAmount && *fAmount >= oForm.fLeast && *fAmount < oForm.fBelow;
      return bInside ? std::optional(Goal{oForm.eKind, *fAmount}) : std::nullopt;
    }
  }
  return std::nullopt;
}

std::string WhyNoGoal(const std::string& sText) {
  return GoalOf(sText) ? ""
                       : "a goal is a profit (20), a percentage of the cost (25%) or one below 100 "
                         "of the price (15%price), not \"" +
                             sText + "\"";
}

/// Each of these goes with no other option.
void KeepAlone(CLI::App& oApp, std::initializer_list<CLI::Option*> aoAlone) {
  for (CLI::Option* const pAlone : aoAlone) {
    for (CLI::Option* const pOther : oApp.get_options()) {
      if (pOther != pAlone && pOther->get_configurable()) {
        pAlone->excludes(pOther);
      }
    }
  }
}

void Describe(CLI::App& oApp, Options& oOptions, std::string& sFormat) {
  oApp.footer(Footer());
  oApp.set_version_flag("--version",
                        std::string(ProgramName()) + " " + kVersion + " (" + EditionName() + ")",
                        "Print the version and end");
  auto* const pPrices =
      oApp.add_option("--prices", oOptions.sPrices,
                      "The fee schedule, by file or by name; by default " + UpdateFileName(true));
  auto* const pFormat = oApp.add_option("--format", sFormat, "table, csv or json");
  auto* const pFiles =
      oApp.add_option("FILE", oOptions.asFiles, "Auction files, or - for a stream");
  auto* const pCheck =
      oApp.add_option("--check", oOptions.sCheck, "Check a fee schedule and list what is wrong");
  auto* const pSchedules = oApp.add_flag("--schedules", oOptions.bSchedules,
                                         "List the available fee schedules by name and file");
  auto* const pBreakEven = oApp.add_flag("--break-even", oOptions.bBreakEven,
                                         "Add the lowest price that leaves no loss");
  auto* const pGoal =
      oApp.add_option_function<std::string>(
              "--goal", [&oOptions](const std::string& sGoal) { oOptions.oGoal = GoalOf(sGoal); },
              "Add the lowest price for a profit: 20, 25% (of the cost), 15%price")
          ->check(WhyNoGoal);
  auto* const pJobs =
      oApp.add_option("--jobs", oOptions.nJobs, "Threads at work; by default the number of cores")
          ->check(CLI::Range(std::size_t{1}, kMostJobs));
  pPrices->option_text("SCHEDULE");
  pFormat->option_text("FORMAT")->check(CLI::IsMember({"table", "csv", "json"}));
  pFiles->option_text("...");
  pSchedules->option_text(" ");
  pBreakEven->option_text(" ");
  pGoal->option_text("GOAL");
  pJobs->option_text("N");
  pCheck->option_text("FILE");
  KeepAlone(oApp, {pCheck, pSchedules});
}

}  // namespace

std::optional<Options> ReadOptions(int nArguments, char** asArguments, int& nStatus) {
  Options oOptions;
  oOptions.nJobs = Cores();
  std::string sFormat;
  CLI::App oApp("What an auction will leave its seller: every fee, the selling cost, the profit.",
                std::string(ProgramName()));
  Describe(oApp, oOptions, sFormat);
  try {
    oApp.parse(nArguments, asArguments);
  } catch (const CLI::Success& oAnswered) {
    nStatus = oApp.exit(oAnswered);
    return std::nullopt;
  } catch (const CLI::ParseError& oError) {
    Complain(std::string(oError.what()) + "; see --help");
    nStatus = kUnusable;
    return std::nullopt;
  }
  oOptions.eFormat = kFormats.at(sFormat);
  if (oOptions.asFiles.empty() && !oOptions.sCheck && !oOptions.bSchedules) {
    if (IsTerminal(StandardStream::Input)) {
      Complain("no auction file; see --help");
      nStatus = kUnusable;
      return std::nullopt;
    }
    oOptions.asFiles.emplace_back(kStandardInputName);
  }
  return oOptions;
}

}  // namespace quillet
