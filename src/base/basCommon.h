// Routines that everything calls: names of the edition and its files, messages, waiting.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "base/Single.h"
#include "platform/Host.h"

namespace quillet {

/// "Quillet", followed by " UK" or " US" by region; any other region gets the title alone.
[[nodiscard]] std::string EditionName();

/// The key that holds all of this edition's settings.
[[nodiscard]] std::string RegistryRoot();

/// The fee schedule in use, as a bare name or as a path in the program's folder. If that folder
/// can't be written, the path is in the user's data folder, and the program's file is first copied
/// there if the copy is missing or older.
[[nodiscard]] std::string UpdateFileName(bool bNameOnly);

/// The path that this fee schedule has, or would have, in the program's folder.
[[nodiscard]] std::string ShippedUpdateFileName();

/// The bare name of the region's fee schedule that is in use unless another one is chosen.
[[nodiscard]] std::string DefaultUpdateFileName();

/// Whether a fee schedule of the region may have this bare name, such as "UpdateUS_*.dat".
[[nodiscard]] bool IsUpdateFileName(std::string_view sName);

/// Puts the schedule of that bare name in use, or the default if it can't be such a name. Loads
/// nothing.
void ChooseUpdateFile(const std::string& sName);

[[nodiscard]] std::int32_t MaxLong(std::int32_t nLeft, std::int32_t nRight);

/// The smaller; the second of two equal values.
[[nodiscard]] Single MinSingle(Single fLeft, Single fRight);

/// Shows a message box and gives its answer. `nButtons` is a sum of MessageButtons.
Answer ShowMessage(const std::string& sPrompt, int nButtons, const std::string& sTitle);

/// Returns when the time has passed; the interface stays alive meanwhile.
void WaitMilliseconds(std::int64_t nMilliseconds);

/// `sName` without a leading "frm": the key of a window's settings.
[[nodiscard]] std::string FormKeyName(const std::string& sName);

/// Cleans a text from a fixed system buffer: drops the spaces at both ends, and as many characters
/// at the end as there are control characters after the last printable one.
[[nodiscard]] std::string CleanString(const std::string& sText);

}  // namespace quillet
