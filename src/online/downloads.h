// The downloads of each start: the action word, the fee schedule, the scrolling message.
#pragma once

#include <string>

#include "online/clsHttp.h"
#include "online/dayNumber.h"

namespace quillet {

/// The steps of one pass, in the order in which PerformDownloads takes them. OpenConnection can
/// raise a Failure, and so does a step that would begin when the pass is over; else what goes wrong
/// is left in the diagnostic log and nowhere else.
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

  /// Fetches the fee schedule if the server's has another size and is of use, unless the action
  /// word forbids it or an attempt of today has not come to its end.
  void FetchUpdateFile();

  /// Fetches g_sAboutText if the action word asks for it, and stores it for later starts.
  void FetchAboutText();

  /// The user wants to go on: what still runs fails, if the pass has taken three seconds.
  void Hurry() { m_oInternet.Pass().Hurry(); }

  void CloseConnection() { m_oHttp.CloseConnection(); }

  // The skip mark: the moment at which an attempt to fetch the schedule began, in the settings
  // until the attempt has come to its end.

  /// True if there is a mark of today, or of a day to come. Else sets one.
  [[nodiscard]] bool IsUpdateSkipped();

  /// Sets the mark, or takes it away; but a mark that midnight has overtaken is renewed instead.
  void SetUpdateSkip(bool bClear);

 private:
  void RequireTime();
  void FetchUpdateFileOrFail();
  /// The web server's answer, of one that is very long the beginning.
  [[nodiscard]] std::string Ask(const std::string& sRequest);

  Internet& m_oInternet;
  clsHttp m_oHttp;
  Clock m_fnNow;
};

}  // namespace quillet
