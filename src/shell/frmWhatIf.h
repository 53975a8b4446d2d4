// The what-if window: what must it sell for, where does the money go, what else could be done. It
// sits beside the main window and follows the auction there.
#pragma once

#include <QWidget>
#include <optional>

#include "shell/whatif/Answers.h"
#include "shell/whatif/Uses.h"

class QBoxLayout;

namespace quillet {

class CurveCard;
class FiguresCard;
class GoalCard;
class ImageButton;
class Label;
class MoneyCard;
class ScrollFrame;
class TableCard;

/// What the window needs from the one that shows the auction.
class AuctionView {
 public:
  virtual ~AuctionView() = default;
  [[nodiscard]] virtual clsCalculate& AuctionOnView() = 0;
  /// Shows the auction, whose inputs were changed. With `bReact` its sections react as to a change
  /// by hand.
  virtual void ShowChanged(bool bReact) = 0;
};

class frmWhatIf : public QWidget {
  Q_OBJECT

 public:
  /// `oView` isn't owned; `pOwner` is the window that it sits beside.
  frmWhatIf(AuctionView& oView, QWidget* pOwner);
  frmWhatIf(const frmWhatIf&) = delete;
  frmWhatIf& operator=(const frmWhatIf&) = delete;
  ~frmWhatIf() override;

  /// Shows the window where it was, or brings it to the front.
  void Open();

  /// Shows the auction on view as it is now; nothing to do while the window is closed.
  void Follow();

  /// Updates all sizes after a change of zoom.
  void Rescale();

 signals:
  /// The window has become the active one.
  void Entered();

 protected:
  void changeEvent(QEvent* pEvent) override;
  void closeEvent(QCloseEvent* pEvent) override;
  void keyPressEvent(QKeyEvent* pEvent) override;
  void resizeEvent(QResizeEvent* pEvent) override;

 private:
  void MakeButtons();
  void MakeCards();
  void Use(const Change& oChange);
  void Undo();
  void Copy() const;
  void Show();
  void ShowAnswers(const Answers& oAnswers);
  void ShowFault(const QString& sFault);
  void PlaceFirst();
  void FocusGoal();
  void LayOut();
  void PlaceButtons();
  [[nodiscard]] QSize Design() const;

  AuctionView& m_oView;
  Uses m_oUses;
  std::optional<Answers> m_oAnswers;  ///< nothing if the auction can't be calculated
  bool m_bChanging = false;           ///< the auction is being changed from here
  double m_fZoom = 1;                 ///< the one that the window is sized for
  Label* m_pFault;
  ScrollFrame* m_pCards;
  FiguresCard* m_pFigures;
  MoneyCard* m_pMoney;
  GoalCard* m_pGoal;
  CurveCard* m_pCurve;
  TableCard* m_pTable;
  QBoxLayout* m_pColumns = nullptr;
  QBoxLayout* m_pFirst = nullptr;  ///< all cards but the table
  QWidget* m_pButtons;
  ImageButton* m_pUndo;
  ImageButton* m_pCopy;
  ImageButton* m_pClose;
};

}  // namespace quillet
