// Undoes what the what-if window has done to the auction on view.
#pragma once

#include <memory>
#include <vector>

#include "answers/Change.h"
#include "shell/KeptAuction.h"

namespace quillet {

/// Undoes the latest use first, as long as nothing else has changed the auction since.
class Uses {
 public:
  /// Writes a change into an auction, which must outlive this. The caller shows it, and then says
  /// that it is Done.
  void Use(clsCalculate& oAuction, const Change& oChange);

  /// The auction now is as the latest use, or the latest undo, has left it.
  void Done(clsCalculate& oAuction);

  /// Forgets all uses if the auction on view isn't as they have left it.
  void Follow(clsCalculate& oAuction);

  [[nodiscard]] bool CanUndo() const { return !m_apKept.empty(); }

  /// Restores the auction's inputs exactly as before the latest use. If it was saved in between, it
  /// counts as changed. The caller shows it, and then says that it is Done.
  void Undo();

 private:
  std::vector<std::unique_ptr<KeptAuction>> m_apKept;
  std::unique_ptr<KeptAuction> m_pLeft;  ///< as the latest use has left it
  clsCalculate* m_oAuction = nullptr;
  bool m_bSaved = false;  ///< since the first of the uses
};

}  // namespace quillet
