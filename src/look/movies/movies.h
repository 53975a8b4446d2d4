// The movies that the program knows, by the names of their files.
#pragma once

#include <QString>
#include <functional>

class QWidget;

namespace quillet {

/// A movie's command to the program, with its arguments.
using SendCommand = std::function<void(const QString& sCommand, const QString& sArguments)>;

/// A movie on its stage, which owns it and gives it its own size. The movie itself is a child
/// widget of the stage.
class Movie {
 public:
  Movie() = default;
  Movie(const Movie&) = delete;
  Movie& operator=(const Movie&) = delete;
  virtual ~Movie() = default;

  [[nodiscard]] virtual QWidget& Widget() = 0;
  /// For a movie that waits until it is played.
  virtual void Play() {}
  /// For a button: whether its view is showing.
  virtual void SetCurrent(bool /*bCurrent*/) {}
};

/// Makes the movie with that file name, in any case, on a stage; null if there is none.
/// `sParameters` is what follows the "?" of its path.
[[nodiscard]] Movie* MakeMovie(const QString& sFileName, const QString& sParameters,
                               QWidget& oStage, SendCommand oSend);

}  // namespace quillet
