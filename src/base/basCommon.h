// Routines that everything calls: names of the edition and its files, messages, waiting.
#pragma once

#include <cstdint>
#include <string>

#include "base/Single.h"
#include "platform/Host.h"

namespace quillet {

/// "Quillet", followed by " UK" or " US" by region; any other region gets the title alone.
[[nodiscard]] std::string EditionName();

/// The key under which all of this edition's settings lie.
[[nodiscard]] std::string RegistryRoot();

/// The fee schedule of the region, as the bare name or as a path in the program's folder. Where
/// that folder can't be written it is a path in the user's data folder; a copy of the program's
/// file is put there first if there is none or an older one.
[[nodiscard]] std::string UpdateFileName(bool bNameOnly);

/// The path of the fee schedule that came with the program.
[[nodiscard]] std::string ShippedUpdateFileName();

[[nodiscard]] std::int32_t MaxLong(std::int32_t nLeft, std::int32_t nRight);

/// The smaller; of two equal values the second.
[[nodiscard]] Single MinSingle(Single fLeft, Single fRight);

/// Shows a message box and gives its answer. `nButtons` is a sum of MessageButtons.
Answer ShowMessage(const std::string& sPrompt, int nButtons, const std::string& sTitle);

/// Returns when the time has passed; the interface stays alive meanwhile.
void WaitMilliseconds(std::int64_t nMilliseconds);

/// `sName` without a leading "frm": the name of a window's settings.
[[nodiscard]] std::string FormKeyName(const std::string& sName);

/// What is left of a text from a fixed system buffer: spaces at both ends go, and as many
/// characters at the end as there are control characters behind the last printable one.
[[nodiscard]] std::string CleanString(const std::string& sText);

}  // namespace quillet
