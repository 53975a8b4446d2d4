// What the user asked for on the command line.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "answers/Goal.h"

namespace quillet {

enum class Format { Automatic, Table, Csv, Json };

/// The file name that stands for standard input.
inline constexpr const char* kStandardInputName = "-";

struct Options {
  std::optional<std::string> sPrices;  ///< another fee schedule than the default, by path or name
  std::optional<std::string> sCheck;   ///< an update file to check; then nothing else is done
  bool bSchedules = false;             ///< list the schedules on offer; then nothing else is done
  bool bBreakEven = false;             ///< asks for the price that breaks even
  std::optional<Goal> oGoal;           ///< asks for the price that meets it
  Format eFormat = Format::Automatic;
  std::size_t nJobs = 1;             ///< how many threads work on it
  std::vector<std::string> asFiles;  ///< never empty if there is something to calculate
};

/// Reads the command line. If it asks for help or is wrong, prints that, sets `nStatus` to the
/// program's exit status, and returns nothing.
[[nodiscard]] std::optional<Options> ReadOptions(int nArguments, char** asArguments, int& nStatus);

}  // namespace quillet
