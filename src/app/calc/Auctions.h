// The auctions that the command line names, in its order.
#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "app/calc/Batch.h"
#include "app/calc/LineStream.h"

namespace quillet {

class Auctions {
 public:
  /// The names must live as long as this.
  explicit Auctions(std::span<const std::string> asFiles) : m_asFiles(asFiles) {}

  /// Waits until it is clear whether there is more than one. Call it before the first Take.
  [[nodiscard]] bool AreSeveral();

  /// Fills `oBatch` with the next auctions; false if there are no more. Waits for the first line of
  /// a stream, and takes the lines after it only if they are already there.
  [[nodiscard]] bool Take(Batch& oBatch);

 private:
  [[nodiscard]] bool IsStreamNext() const;
  void TakeFiles(Batch& oBatch);
  void TakeLines(Batch& oBatch);
  void EndStream(Batch& oBatch);

  std::span<const std::string> m_asFiles;  ///< what is left
  LineStream m_oLines;
  std::int64_t m_nLines = 0;  ///< taken from the stream
};

}  // namespace quillet
