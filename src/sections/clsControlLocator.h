// Packs the rows of a section: from the controls' design places, the stored list of wanted rows and
// the region it works out what to show, at which top, and what to hide. It moves nothing itself.
// Controls with the same design top form a row. All measures are twips.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "prices/clsTokeniser.h"

namespace quillet {

class clsControlLocator {
 public:
  clsControlLocator();

  /// The section whose stored list counts; loads the list.
  void SetSection(const std::string& sSectionKey);

  /// Starts over as if new, unless AddingComplete is set. Always false.
  bool Reset();

  /// Registers a control at its design place. A control in a Frame moves with it and isn't
  /// registered; nothing is once AddingComplete is set.
  void AddControl(const std::string& sName, std::int32_t lTop, std::int32_t lHeight, bool bInFrame);

  /// From now on the registered controls stay. The program itself only sets it.
  void SetAddingComplete(bool bComplete) { m_bAddingComplete = bComplete; }
  [[nodiscard]] bool AddingComplete() const { return m_bAddingComplete; }

  // Both take effect at the next BuildList.

  /// Sets a control's new height.
  void UpdateHeight(const std::string& sName, std::int32_t lHeight);
  /// A control that isn't in use is never shown; at first all are.
  void UpdateUse(const std::string& sName, bool bInUse);

  /// Rereads the stored list; takes effect at the next BuildList.
  void UpdateVisibility();

  /// Packs the rows that the region has, that are in use and, with `bApplyList`, that the stored
  /// list names.
  void BuildList(bool bApplyList);

  /// True from BuildList until the next control is added. The program itself needs no answer.
  [[nodiscard]] bool BuiltControls() const { return m_bBuiltControls; }

  /// How many controls to show and to hide. The lists keep one empty place where there is none, so
  /// callers go by these counts.
  [[nodiscard]] std::int32_t IncludedCount() const { return m_lIncludedCount; }
  [[nodiscard]] std::int32_t ExcludedCount() const { return m_lExcludedCount; }

  /// The control at an index from 0; false, and the results left alone, if there is no such place.
  bool GetIncludedControl(std::int32_t lIndex, std::string& sName, std::int32_t& lTop) const;
  bool GetExcludedControl(std::int32_t lIndex, std::string& sName) const;

 private:
  struct Registered {
    std::string sName;
    std::int32_t lTop = 0;
    std::int32_t lHeight = 0;  ///< when added; gives the design's gap
    std::int32_t lCurrentHeight = 0;
    bool bInList = false;
    bool bInUse = true;
  };
  struct Included {
    std::string sName;
    std::int32_t lTop = 0;
  };

  [[nodiscard]] Registered* Find(const std::string& sName);
  [[nodiscard]] bool IsIndex(std::int32_t lIndex, std::size_t nPlaces) const;
  void SortByTop();

  std::vector<Registered> m_aoControls;  ///< at least one place; an empty name marks it as free
  bool m_bSorted = false;
  bool m_bAddingComplete = false;
  std::string m_sSection;
  clsTokeniser m_oList;
  std::vector<Included> m_aoIncluded;
  std::vector<std::string> m_asExcluded;
  std::int32_t m_lIncludedCount = 0;
  std::int32_t m_lExcludedCount = 0;
  bool m_bBuiltControls = false;
};

}  // namespace quillet
