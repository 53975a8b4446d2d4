// The text of a settings file: sections, and lines of a key and a value, as Qt has them.
#pragma once

#include <QString>
#include <map>
#include <string>

namespace quillet {

/// Values by their keys, which are joined by "/"; the first is the section.
using IniValues = std::map<QString, QString>;

/// The text that holds these values and nothing else.
[[nodiscard]] std::string IniText(const IniValues& asValues);

/// The values of a text, typed ones too: blanks around them don't count, nor do lines that are
/// none.
[[nodiscard]] IniValues ReadIniText(const std::string& sText);

}  // namespace quillet
