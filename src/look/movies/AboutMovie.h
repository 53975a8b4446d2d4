// The movie of the about window: the product's name, a scrolling message, tunes and a link. Sends
// "click" for the link, "music=" with the number of the chosen tune, and "mute=true" or
// "mute=false".
#pragma once

#include <QWidget>
#include <array>

#include "platform/Sound.h"

namespace quillet {

class MovieButton;
class ScrollingText;

/// Designed in 361 by 241 units, scaled to its width. Its tune plays while it is visible.
class AboutMovie : public QWidget {
  Q_OBJECT

 public:
  /// `sParameters` is "AboutInfo=" with the message, "&music=" with a tune's number and "&mute="
  /// with "true" or "false". The message has "<br>" for a line break, isn't escaped and may hold
  /// anything, so the other two are looked for at the end. What can't be understood counts as the
  /// first tune, not mute, or no message, in whose place it shows one of its own.
  AboutMovie(const QString& sParameters, QWidget* pStage);

 signals:
  void Command(const QString& sCommand);

 protected:
  void paintEvent(QPaintEvent* pEvent) override;
  void resizeEvent(QResizeEvent* pEvent) override;
  void showEvent(QShowEvent* pEvent) override;
  void hideEvent(QHideEvent* pEvent) override;

 private:
  void MakeTunes();
  void MakeMute();
  void MakeLink();
  void ChooseTune(int nTune);
  void ToggleMute();
  void ShowState();
  void PlayOrStop() const;

  int m_nTune;
  bool m_bMute;
  ScrollingText* m_pText;
  std::array<MovieButton*, kTunes> m_apTunes{};
  MovieButton* m_pMute;
  MovieButton* m_pLink;
};

}  // namespace quillet
