// The auctions that the command line names, in its order.
#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "app/calc/Batch.h"
#include "app/calc/LineStream.h"
#include "platform/Descriptors.h"

namespace quillet {

class Auctions {
 public:
  /// The names must live as long as this.
  explicit Auctions(std::span<const std::string> asFiles) : m_asFiles(asFiles) {}

  /// Waits until it is clear whether there is more than one. To be asked before the first is taken.
  [[nodiscard]] bool AreSeveral();

  /// Fills `oBatch` with what is to be done next; false if there is no more. Waits for the first
  /// line of a stream, and takes those behind it only if they are there.
  [[nodiscard]] bool Take(Batch& oBatch);

 private:
  [[nodiscard]] bool IsStreamNext() const;
  void TakeFiles(Batch& oBatch);
  void TakeLines(Batch& oBatch);
  void EndStream(Batch& oBatch);

  std::span<const std::string> m_asFiles;  ///< what is left
  LineStream m_oLines{kStandardInput};
  std::int64_t m_nLines = 0;  ///< taken of the stream
};

}  // namespace quillet
