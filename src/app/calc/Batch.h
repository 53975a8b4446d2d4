// Auctions that are worked on together: some lines of a stream, or some files.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace quillet {

/// A line for standard error, and how much of the results comes before it.
struct Complaint {
  std::size_t nAt;
  std::string sText;
};

struct Batch {
  // The input.
  std::span<const std::string> asFiles;  ///< their paths
  std::string sLines;                    ///< whole lines, each ending with an LF
  std::int64_t nFirstLine = 0;           ///< the number of the first
  bool bOverlong = false;                ///< the last line, left empty, is too long for an auction
  std::string sFailure;                  ///< why the stream ended early; empty if it didn't

  // The output.
  std::string sResults;
  std::vector<Complaint> aoComplaints;
  std::int64_t nAuctions = 0;
  bool bFailed = false;

  /// Keeps the memory of its texts for reuse.
  void Clear();
};

}  // namespace quillet
