// Stands in for the movie control: takes a movie's path and passes on its commands.
#pragma once

#include <QWidget>

namespace quillet {

class Movie;

class ShockwaveFlash : public QWidget {
  Q_OBJECT

 public:
  explicit ShockwaveFlash(QWidget* pParent = nullptr);

  /// Plays the movie of that path, which may have parameters after a "?", in the place of the one
  /// before. Only the file's name counts. A movie that isn't known shows and sends nothing.
  void SetMovie(const QString& sPath);

  /// Starts a movie that waits for it; the others play from the beginning.
  void Play();

  /// For a button's movie: whether its view is the one on show.
  void SetCurrent(bool bCurrent);

 signals:
  void FSCommand(const QString& sCommand, const QString& sArguments);

 protected:
  bool event(QEvent* pEvent) override;
  void resizeEvent(QResizeEvent* pEvent) override;

 private:
  Movie* m_oMovie = nullptr;  ///< a child, or none
};

}  // namespace quillet
