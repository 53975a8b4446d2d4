// Settings kept in memory.
#pragma once

#include <map>
#include <string>
#include <tuple>

#include "platform/SettingsHive.h"

namespace quillet {

class MemoryHive : public SettingsHive {
 public:
  using Key = std::tuple<HiveRoot, std::string, std::string>;  ///< root, path, name

  std::optional<std::string> Read(HiveRoot eRoot, const std::string& sPath,
                                  const std::string& sName) const override {
    const auto oFound = asValues.find({eRoot, sPath, sName});
    return oFound == asValues.end() ? std::nullopt : std::optional(oFound->second);
  }
  bool Write(HiveRoot eRoot, const std::string& sPath, const std::string& sName,
             const std::string& sValue) override {
    if (bWritable) {
      asValues[{eRoot, sPath, sName}] = sValue;
    }
    return bWritable;
  }
  void Delete(HiveRoot eRoot, const std::string& sPath, const std::string& sName) override {
    if (bWritable) {
      asValues.erase({eRoot, sPath, sName});
    }
  }
  void Flush() override {}
  void Clear() {
    asValues.clear();
    bWritable = true;
  }

  std::map<Key, std::string> asValues;
  bool bWritable = true;
};

}  // namespace quillet
