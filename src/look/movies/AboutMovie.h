// The movie of the about window: the product's name, a scrolling message, tunes and a link. Sends
// "click" for the link, "music=" with the number of the chosen tune, and "mute=true" or
// "mute=false".
#pragma once

#include <QWidget>
#include <array>

#include "look/movies/aboutParameters.h"
#include "look/movies/movies.h"
#include "platform/Sound.h"

namespace quillet {

class MovieButton;
class ScrollingText;

/// Designed in 361 by 241 units, scaled to its width. Its tune plays while it is visible.
class AboutMovie : public QWidget, public Movie {
 public:
  /// `sParameters` as in aboutParameters.h. Without a message it shows one of its own.
  AboutMovie(const QString& sParameters, QWidget& oStage, SendCommand oSend);

  [[nodiscard]] QWidget& Widget() override { return *this; }

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

  AboutParameters m_oState;
  SendCommand m_oSend;
  ScrollingText* m_pText;
  std::array<MovieButton*, kTunes> m_apTunes{};
  MovieButton* m_pMute;
  MovieButton* m_pLink;
};

}  // namespace quillet
