// The downloads of each start: the action word, the fee schedule, the scrolling message.
#pragma once

#include <string>

#include "online/clsHttp.h"
#include "online/dayNumber.h"

namespace quillet {

/// The steps of one pass, in the order in which PerformDownloads takes them. OpenConnection can
/// throw a Failure, and so does a step that would begin after the pass is over; any other fault is
/// only written to the diagnostic log.
class Downloads {
 public:
  using Clock = double (*)();  ///< the present moment, as a day number

  /// Speaks through `oInternet`, which isn't owned.
  explicit Downloads(Internet& oInternet, Clock fnNow = &CurrentDayNumber)
      : m_oInternet(oInternet), m_oHttp(oInternet), m_fnNow(fnNow) {}

  /// False if the machine has no connection.
  [[nodiscard]] bool OpenConnection() { return m_oHttp.OpenConnection(); }

  /// Asks the web server for g_lActionFlags and g_sActionMessage.
  void FetchActions();

  /// Fetches the fee schedule if the server's has a different size and is usable, unless the action
  /// word forbids it or an attempt made today did not succeed.
  void FetchUpdateFile();

  /// Fetches g_sAboutText if the action word asks for it, and stores it for later starts.
  void FetchAboutText();

  /// The user wants to go on: if the pass has taken three seconds, what still runs fails.
  void Hurry() { m_oInternet.Pass().Hurry(); }

  void CloseConnection() { m_oHttp.CloseConnection(); }

  // The skip mark: the moment at which an attempt to fetch the schedule began, kept in the settings
  // until the attempt succeeds.

  /// True if there is a mark from today or a later day. Otherwise sets one.
  [[nodiscard]] bool IsUpdateSkipped();

  /// Sets the mark, or removes it; but a mark from before midnight is renewed instead of removed.
  void SetUpdateSkip(bool bClear);

 private:
  void RequireTime();
  void FetchUpdateFileOrFail();
  /// The web server's answer, cut off if it is very long.
  [[nodiscard]] std::string Ask(const std::string& sRequest);

  Internet& m_oInternet;
  clsHttp m_oHttp;
  Clock m_fnNow;
};

}  // namespace quillet
