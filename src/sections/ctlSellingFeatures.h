// The section for the paid extras of a listing: a box for each, and the number of extra pictures.
#pragma once

#include "engine/clsSellingFeatures.h"
#include "sections/SectionPanel.h"

namespace quillet {

class ctlSellingFeatures : public SectionPanel {
  Q_OBJECT

 public:
  explicit ctlSellingFeatures(QWidget* pParent);

  /// Shows a model, and writes into it from then on. Which boxes are open follows the prices of the
  /// model's latest DoCalc; the total shown is from a new one. All three must outlive the panel; a
  /// null listing throws a Failure.
  void ApplyFeatures(clsSellingFeatures& oFeatures, const clsAuctionType* oAuctionType,
                     const clsOutlay* oOutlay);

  /// Unticks the car ad, whose box ApplyFeatures leaves alone.
  void UntickCarAd();

  /// Takes the bounds of the picture pack from the fee schedule that is in use now.
  void FollowSchedule();

  /// Removes the features whose boxes are unticked from the model, except a car ad whose box is
  /// open; true if there were any.
  bool DropUnticked();

 protected:
  void InputClicked(Control& oInput) override;
  void AfterPlacing(const Control& oPlaced) override;
  void UpdateModel() override;
  [[nodiscard]] std::string TipOf(const Control& oInput,
                                  const clsCalculate& oAuction) const override;

 private:
  void ShowFeatures(const clsSellingFeatures& oFeatures);
  void ShowWhatIsOpen(const clsSellingFeatures& oFeatures, const clsAuctionType& oAuctionType);
  void SetPictureBounds();
  /// How many pictures there would be after a click.
  [[nodiscard]] std::int32_t PicturesWith(bool bNewPicturePack) const;

  clsSellingFeatures* m_oFeatures = nullptr;
};

}  // namespace quillet
