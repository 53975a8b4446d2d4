// Splits text at a separator. Empty fields are dropped, and only remembered as "a blank was seen".
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace quillet {

class clsTokeniser {
 public:
  /// Sets the separator; "," at first. The program itself gives it to Tokenise.
  void SetToken(std::string_view sToken) { m_sToken = sToken; }

  /// Replaces the content with the fields of `sData`, keeps the separator, and returns the number
  /// of fields. Throws a Failure on more than 32,766 characters. ParsedBlank is set but never
  /// cleared here.
  std::int32_t Tokenise(std::string_view sData, std::string_view sToken);

  [[nodiscard]] std::int32_t Count() const { return m_lCount; }
  // The program itself only asks IsEmpty for the blank.
  [[nodiscard]] bool ParsedBlank() const { return m_bParsedBlank; }
  void SetParsedBlank(bool bParsedBlank) { m_bParsedBlank = bParsedBlank; }

  /// True if nothing was ever put in, not even a blank.
  [[nodiscard]] bool IsEmpty() const { return m_lCount < 1 && !m_bParsedBlank; }

  /// The field at an index from 0. Places kept for later fields read as empty; an index beyond them
  /// throws a Failure.
  [[nodiscard]] const std::string& Element(std::int32_t lElementIdx) const;

  /// Appends a field. An empty one isn't stored: it sets ParsedBlank.
  void AddToArray(std::string_view sElement);

  /// The places from `lFrom` to the last, joined by the separator. A list that was built with
  /// AddToArray ends in places kept for later fields, which give one separator each.
  [[nodiscard]] std::string GetFlattenedSegments(std::int32_t lFrom) const;

  /// The first place that equals `sElement`, or with `bFindSimilar` contains it; -1 if none does.
  [[nodiscard]] std::int32_t Find(std::string_view sElement, bool bFindSimilar) const;
  [[nodiscard]] bool Exists(std::string_view sElement, bool bFindSimilar) const;

 private:
  static constexpr std::int32_t kFirstUpperBound = 50;

  // Only the first m_lCount strings are fields. Strings behind them are old ones kept for their
  // memory; every place up to the upper bound that holds no field reads as empty.
  std::vector<std::string> m_asElements;
  std::int32_t m_lUpperBound = kFirstUpperBound;
  std::int32_t m_lCount = 0;
  std::string m_sToken = ",";
  bool m_bParsedBlank = false;
};

}  // namespace quillet
