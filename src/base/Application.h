// What the start sequence starts. The desktop program implements it with windows and servers.
#pragma once

#include <memory>

namespace quillet {

class SplashWindow {
 public:
  virtual ~SplashWindow() = default;
  [[nodiscard]] virtual bool LoadComplete() const = 0;   ///< the movie has begun
  [[nodiscard]] virtual bool MovieComplete() const = 0;  ///< the movie has ended
  virtual void Hide() = 0;
};

/// May be destroyed while one of its own routines runs.
class MainWindow {
 public:
  virtual ~MainWindow() = default;
  virtual void Show() = 0;    ///< shows it modelessly, with its load and activate events
  virtual void Unload() = 0;  ///< closes it, as the user would
};

class Application {
 public:
  virtual ~Application() = default;

  /// A splash window, shown modelessly.
  [[nodiscard]] virtual std::unique_ptr<SplashWindow> ShowSplash() = 0;

  // One pass of downloads. OpenConnection says whether there is a connection at all; any step may
  // throw a Failure, and then the pass goes straight to CloseConnection.
  [[nodiscard]] virtual bool OpenConnection() = 0;
  virtual void FetchActions() = 0;
  virtual void FetchUpdateFile() = 0;
  virtual void FetchAboutText() = 0;
  virtual void CloseConnection() = 0;

  /// The main window, not shown yet.
  [[nodiscard]] virtual std::unique_ptr<MainWindow> CreateMainWindow() = 0;
};

}  // namespace quillet
