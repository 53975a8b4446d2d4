// Stands in for the movie control: takes a movie's path and passes on its commands.
#pragma once

#include <QWidget>

namespace quillet {

class ShockwaveFlash : public QWidget {
  Q_OBJECT

 public:
  explicit ShockwaveFlash(QWidget* pParent = nullptr);

  /// Plays the movie at that path, which may have parameters after a "?", in place of the last one.
  /// Only the file's name counts. An unknown movie shows and sends nothing.
  void SetMovie(const QString& sPath);

  /// Starts a movie that waits for this; the others play at once.
  void Play();

  /// For a button's movie: whether its view is showing.
  void SetCurrent(bool bCurrent);

 signals:
  void FSCommand(const QString& sCommand, const QString& sArguments);

 protected:
  bool event(QEvent* pEvent) override;
  void resizeEvent(QResizeEvent* pEvent) override;

 private:
  QWidget* MakeMovie(const QString& sFileName, const QString& sParameters);

  QWidget* m_pMovie = nullptr;  ///< a child, or none
};

}  // namespace quillet
