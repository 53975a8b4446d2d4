#include "shell/SettingsPage.h"

#include <QFocusEvent>
#include <QLineEdit>
#include <array>

#include "base/basMain.h"
#include "base/clsRegistryAccess.h"
#include "base/conversions.h"
#include "base/failure.h"
#include "controls/ComboBox.h"
#include "controls/ImageButton.h"
#include "controls/layout.h"
#include "look/palette.h"
#include "sections/ctlNumericText.h"

namespace quillet {
namespace {

constexpr int kMinSnap = 1;
constexpr int kMaxSnap = 1000;
constexpr double kPoints = 7.5;  // so that the longest caption ends before its button

}  // namespace

SettingsPage::SettingsPage(QWidget* pParent)
    : Frame(pParent),
      m_pLblStartMode(Make<Label>("lblStartMode", this)),
      m_pCboStartMode(Make<ComboBox>("cboStartMode", this)),
      m_pLabel3(Make<Label>("Label3", this)),
      m_pTxtSnapToGrid(Make<ctlNumericText>("txtSnapToGrid", this)),
      m_pLabel2(Make<Label>("Label2", this)),
      m_pImgResetPositions(Make<ImageButton>("imgResetPositions", this)),
      m_pLblHint(Make<Label>("lblHint", this)),
      m_pImgApply(Make<ImageButton>("imgApply", this)),
      m_pImgCancel(Make<ImageButton>("imgCancel", this)) {
  DescribeControls();
  PlaceControls();
  ConnectControls();
  ResetSettings();
}

void SettingsPage::DescribeControls() {
  Describe(*m_pLblStartMode, "Start Mode");
  Describe(*m_pCboStartMode, "", "The view that Quillet starts with");
  Describe(*m_pLabel3, "Snap to Grid Size");
  Describe(*m_pTxtSnapToGrid, "",
           "The step in which sections are dragged, in twips of 1/1440 inch");
  Describe(*m_pLabel2, "Reset Expert Positions");
  Describe(*m_pImgResetPositions, "&Reset",
           "Put the sections of the calculator back in their places");
  Describe(*m_pLblHint,
           "The start mode applies from the next start, the grid size from the next drag. Reset "
           "takes effect at once.");
  Describe(*m_pImgApply, "&Apply", "Store these settings");
  Describe(*m_pImgCancel, "&Cancel", "Go back to the stored settings");
  m_pCboStartMode->setAccessibleName(m_pLblStartMode->Caption());
  m_pTxtSnapToGrid->SetAccessibleName(m_pLabel3->Caption());
  m_pImgResetPositions->setAccessibleName(m_pLabel2->Caption());
  for (Label* const pLabel : {m_pLblStartMode, m_pLabel3, m_pLabel2, m_pLblHint}) {
    pLabel->SetFontSize(kPoints, QFont::Medium);
  }
  m_pLblHint->SetForeColor(kColourGreyText);
  m_pLblHint->setWordWrap(true);
  m_pLblHint->setAlignment(Qt::AlignTop | Qt::AlignLeft);
  m_pImgApply->SetPicture(ButtonPicture::Finish);
  m_pImgApply->SetPrimary(true);
  m_pTxtSnapToGrid->SetDecimalPlaces(0);
  m_pTxtSnapToGrid->SetMin(kMinSnap);
  m_pTxtSnapToGrid->SetMax(kMaxSnap);
}

void SettingsPage::PlaceControls() {
  constexpr int kGap = 90;  // the places of Apply and Cancel overlap
  m_pImgApply->SetGap(kGap);
  m_pImgCancel->SetGap(kGap);
  m_pImgResetPositions->SetFlush(true);  // with the boxes above it
  PlaceAll(std::to_array<ControlPlace>({
      {m_pLblStartMode, 240, 150, 1335, 255},
      {m_pCboStartMode, 2040, 120, 3135, 315},
      {m_pLabel3, 240, 570, 1695, 255},
      {m_pTxtSnapToGrid, 2040, 570, 1095, 255},
      {m_pLabel2, 240, 1005, 1695, 255},
      {m_pImgResetPositions, 2040, 945, 1470, 375},
      {m_pLblHint, 240, 1560, 4935, 600},
      {m_pImgApply, 2400, 3120, 1470, 375},
      {m_pImgCancel, 3840, 3120, 1470, 375},
  }));
}

void SettingsPage::ConnectControls() {
  connect(m_pImgResetPositions, &QAbstractButton::clicked, this,
          &SettingsPage::ResetControlPositions);
  connect(m_pImgApply, &QAbstractButton::clicked, this,
          [this] { IgnoreFailure([this] { imgApply_Click(); }); });
  connect(m_pImgCancel, &QAbstractButton::clicked, this, &SettingsPage::ResetSettings);
  const auto fnOfferApply = [this] { m_pImgApply->SetVisible(true); };
  connect(m_pCboStartMode, &QComboBox::activated, this, fnOfferApply);
  connect(m_pCboStartMode, &QComboBox::currentIndexChanged, this, fnOfferApply);
  connect(m_pTxtSnapToGrid, &ctlNumericText::Changed, this, fnOfferApply);
  m_pTxtSnapToGrid->TextBox()->installEventFilter(this);
}

/// A start mode that is neither of the two counts as the first.
void SettingsPage::ResetSettings() {
  IgnoreFailure([this] {
    m_pCboStartMode->clear();
    m_pCboStartMode->addItem("Wizard", 0);
    m_pCboStartMode->addItem("Advanced", 1);
    m_pCboStartMode->setCurrentIndex(Registry().Get(settings::kStartMode) == "1" ? 1 : 0);
    m_pTxtSnapToGrid->SetText(Registry().GetOrCreate(settings::kSnapToGrid));
    m_pImgApply->SetVisible(false);
  });
}

void SettingsPage::ApplyIfOffered() {
  if (m_pImgApply->isVisible()) {
    m_pImgApply->click();
  }
}

/// Enters or corrects a text that is still being typed, and stores it as a plain number.
void SettingsPage::imgApply_Click() {
  m_pTxtSnapToGrid->CommitTyping();
  m_pTxtSnapToGrid->SetValue({});
  Registry().Set(settings::kStartMode, m_pCboStartMode->currentData().toString().toStdString());
  Registry().Set(settings::kSnapToGrid, m_pTxtSnapToGrid->Text());
  g_lSnapToGrid = ToLong(m_pTxtSnapToGrid->Text()).value_or(g_lSnapToGrid);
  m_pImgApply->SetVisible(false);
}

/// Coming back from another window or a menu doesn't count as entering the box again.
bool SettingsPage::eventFilter(QObject* pWatched, QEvent* pEvent) {
  if (pEvent->type() == QEvent::FocusIn) {
    const Qt::FocusReason eReason = static_cast<QFocusEvent*>(pEvent)->reason();
    if (eReason != Qt::ActiveWindowFocusReason && eReason != Qt::PopupFocusReason) {
      m_pImgApply->SetVisible(true);
    }
  }
  return Frame::eventFilter(pWatched, pEvent);
}

}  // namespace quillet
