// What the program needs from the desktop or terminal that it runs on.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace quillet {

/// The buttons and icon of a message box, as the platform numbers them.
enum MessageButtons : int {
  kMessagePlain = 0,
  kMessageCritical = 16,
  kMessageQuestion = 35,  ///< question icon; Yes, No and Cancel
  kMessageWarning = 48,
  kMessageInformation = 64,
};

/// The user's answer to a message box, as the platform numbers it.
enum class Answer : int { Ok = 1, Cancel = 2, Yes = 6, No = 7 };

/// What an open or save dialog starts with.
struct FileDialog {
  bool bSave = false;
  std::string sTypeName;  ///< such as "Quillet US files"
  std::string sPattern;   ///< such as "*.qlt"
  std::string sInitDir;   ///< native path; may not exist
  std::string sFileName;  ///< proposed name, without folder; may be empty
};

/// How the user writes numbers and amounts, apart from the decimal separator.
struct NumberStyle {
  std::string sGroup{};        ///< between groups of digits; empty if nothing is
  std::size_t nLastGroup = 3;  ///< digits in the group before the decimals
  std::size_t nGroup = 3;      ///< digits in the other groups
  std::string sCurrency{};     ///< the symbol of the user's currency; may be empty
};

/// One implementation lives as long as the process. All text is UTF-8.
class Host {
 public:
  virtual ~Host() = default;

  /// Shows a message box and waits for its answer.
  virtual Answer ShowMessage(const std::string& sPrompt, int nButtons,
                             const std::string& sTitle) = 0;

  /// Lets the user choose a file: its full native path, or nothing if the dialog was cancelled.
  virtual std::optional<std::string> ChooseFile(const FileDialog& oDialog) = 0;

  /// Handles the interface's pending events, and yields the processor for a moment.
  virtual void PumpEvents() = 0;

  /// Milliseconds since some fixed moment; never goes back.
  [[nodiscard]] virtual std::int64_t TickCount() const = 0;

  /// The arguments after the program's name, joined by blanks.
  [[nodiscard]] virtual std::string CommandLine() const = 0;

  /// Native path of the folder that holds the program's own files, without a trailing separator.
  [[nodiscard]] virtual std::string ProgramFolder() const = 0;

  /// The same for the program's files that change. Another folder if the program's own can't be
  /// written; it may not exist yet.
  [[nodiscard]] virtual std::string DataFolder() const { return ProgramFolder(); }

  /// Native path of the user's documents, without a trailing separator.
  [[nodiscard]] virtual std::string DocumentsFolder() const = 0;

  /// Opens a web address or file in the user's default program for it.
  virtual void OpenLink(const std::string& sTarget) = 0;

  /// The user's decimal separator: one character, "." or "," nearly everywhere.
  [[nodiscard]] virtual const std::string& DecimalSeparator() const = 0;

  /// The rest of how the user writes numbers. Plain unless the host lets the user type.
  [[nodiscard]] virtual const NumberStyle& Numbers() const {
    static const NumberStyle kPlain;
    return kPlain;
  }
};

/// The host that SetHost set last. There must be one before anything else is called.
[[nodiscard]] Host& TheHost();

/// Makes `oHost` the host. Not owned; must outlive its use.
void SetHost(Host& oHost);

}  // namespace quillet
