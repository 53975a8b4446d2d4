// The program's exception: a number, a text, and the routine that threw it where that matters.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <utility>

namespace quillet {

enum class FailureNumber : std::uint32_t {
  Overflow = 6,
  SubscriptOutOfRange = 9,
  DivisionByZero = 11,
  TypeMismatch = 13,
  FileAccess = 75,
  ObjectNotSet = 91,
  SectionMissing = 0x80040000,
  Registry = 0x80040006,
  Internet = 0x80040007,
  FilesMatch = 0x80040008,
  Http = 0x80040009,
};

/// what() is the description that a message box may show.
class Failure : public std::runtime_error {
 public:
  Failure(FailureNumber eNumber, const std::string& sDescription, std::string sSource = {})
      : std::runtime_error(sDescription), m_eNumber(eNumber), m_sSource(std::move(sSource)) {}

  [[nodiscard]] FailureNumber Number() const { return m_eNumber; }
  [[nodiscard]] const std::string& Source() const { return m_sSource; }

 private:
  FailureNumber m_eNumber;
  std::string m_sSource;
};

/// Runs one statement and ignores its failure: for routines that carry on at the next statement.
template <typename Statement>
void IgnoreFailure(Statement&& oStatement) {
  try {
    std::forward<Statement>(oStatement)();
  } catch (const Failure&) {  // NOLINT(bugprone-empty-catch)
  }
}

}  // namespace quillet
