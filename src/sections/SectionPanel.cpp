#include "sections/SectionPanel.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QShowEvent>
#include <QToolTip>
#include <algorithm>

#include "base/failure.h"
#include "controls/ComboBox.h"
#include "controls/SectionHeader.h"
#include "look/marks.h"
#include "look/palette.h"
#include "look/scale.h"
#include "prices/clsPrices.h"
#include "sections/controlHelpers.h"
#include "sections/inputNames.h"

namespace quillet {
namespace {

constexpr int kTitleHeight = 255;  // twips, the header's

}  // namespace

SectionPanel::SectionPanel(const PanelDesign& oDesign, QWidget* pParent)
    : QWidget(pParent), Control(static_cast<QWidget&>(*this)), m_oDesign(oDesign) {
  for (const ControlDesign& oControl : oDesign.aoControls) {
    MakeControl(oControl);
  }
  NameTheInputs();
  setAccessibleName(QString::fromUtf8(oDesign.sTitle));
  Place(0, 0, oDesign.nWidth, oDesign.nHeight);
  if (SectionHeader* const pHeader = Header()) {
    setFocusPolicy(Qt::ClickFocus);
    pHeader->SetVisible(false);
    pHeader->raise();
  }
}

void SectionPanel::MakeControl(const ControlDesign& oControl) {
  Control* const pFrame = oControl.sContainer != nullptr ? Find(oControl.sContainer) : nullptr;
  Control* const pControl = MakeOfKind(oControl, pFrame != nullptr ? &pFrame->Widget() : this);
  pControl->SetName(oControl.sName);
  pControl->SetTag(oControl.sTag);
  pControl->SetCaption(QString::fromUtf8(oControl.sCaption));
  pControl->Place(oControl.nLeft, oControl.nTop, oControl.nWidth, oControl.nHeight);
  m_aoControls.push_back(pControl);
  Listen(*pControl);
}

/// Every event ends here: a Failure has no caller to reach.
void SectionPanel::Listen(Control& oControl) {
  const auto fnClicked = [this, &oControl] { IgnoreFailure([&] { InputClicked(oControl); }); };
  if (IsShowCheck(oControl)) {
    connect(&dynamic_cast<CheckBox&>(oControl), &QAbstractButton::toggled, this,
            &SectionPanel::SaveShowChecks);
  } else if (auto* const pButton = dynamic_cast<QAbstractButton*>(&oControl)) {
    connect(pButton, &QAbstractButton::toggled, this, fnClicked);
  } else if (auto* const pBox = dynamic_cast<ctlNumericText*>(&oControl)) {
    connect(pBox, &ctlNumericText::Changed, this, fnClicked);
  } else if (auto* const pList = dynamic_cast<ComboBox*>(&oControl)) {
    connect(pList, &QComboBox::currentIndexChanged, this, fnClicked);
  } else if (auto* const pPanel = dynamic_cast<SectionPanel*>(&oControl)) {
    connect(pPanel, &SectionPanel::Changed, this, fnClicked);
  } else if (auto* const pHeader = dynamic_cast<SectionHeader*>(&oControl)) {
    connect(pHeader, &SectionHeader::Moved, this, &SectionPanel::Moved);
  }
}

void SectionPanel::SetShowConfig(bool bShowConfig) {
  m_bShowConfig = bShowConfig;
  for (Control* const pControl : m_aoControls) {
    if (auto* const pPanel = dynamic_cast<SectionPanel*>(pControl)) {
      pPanel->SetShowConfig(bShowConfig);
    }
  }
  UpdateSectionLayout();
}

void SectionPanel::GotFocus() {
  if (m_bShowConfig) {
    Header()->SetVisible(true);
  }
}

void SectionPanel::LostFocus() {
  Header()->SetVisible(false);
}

Control* SectionPanel::Find(std::string_view sName) const {
  const auto pFound = std::find_if(m_aoControls.begin(), m_aoControls.end(),
                                   [&](const Control* p) { return p->Name() == sName; });
  return pFound == m_aoControls.end() ? nullptr : *pFound;
}

QList<QWidget*> SectionPanel::InputsInReadingOrder() const {
  std::vector<Control*> aoSorted = m_aoControls;
  std::stable_sort(aoSorted.begin(), aoSorted.end(), [](const Control* a, const Control* b) {
    return a->Top() != b->Top() ? a->Top() < b->Top() : a->Left() < b->Left();
  });
  QList<QWidget*> aoInputs;
  for (Control* const pControl : aoSorted) {
    if (const auto* const pPanel = dynamic_cast<SectionPanel*>(pControl)) {
      aoInputs += pPanel->InputsInReadingOrder();
    } else if (dynamic_cast<Frame*>(pControl) != nullptr) {
      const auto aoInside = pControl->Widget().findChildren<QAbstractButton*>();
      std::copy(aoInside.begin(), aoInside.end(), std::back_inserter(aoInputs));
    } else if (auto* const pBox = dynamic_cast<ctlNumericText*>(pControl)) {
      aoInputs += pBox->TextBox();
    } else if (dynamic_cast<ComboBox*>(pControl) != nullptr ||
               (dynamic_cast<Choice*>(pControl) != nullptr && pControl->Container() == this)) {
      aoInputs += &pControl->Widget();
    }
  }
  return aoInputs;
}

void SectionPanel::SetChosen(std::span<const OptionCode> aoOptions, std::int32_t nCode) {
  for (const OptionCode& oOption : aoOptions) {
    SetValueOf(oOption.sOption, oOption.nCode == nCode ? 1 : 0);
  }
}

std::int32_t SectionPanel::ChosenOf(std::span<const OptionCode> aoOptions,
                                    std::int32_t nNone) const {
  const auto pChosen =
      std::find_if(aoOptions.begin(), aoOptions.end(),
                   [this](const OptionCode& oOption) { return ValueOf(oOption.sOption) != 0; });
  return pChosen == aoOptions.end() ? nNone : pChosen->nCode;
}

void SectionPanel::NameTheInputs() {
  NameInputs(m_aoControls, m_oDesign.aoControls,
             [this](const Control& oBox) { return FindRowControl(oBox); });
}

void SectionPanel::SetRowCaption(Control& oNamed, const QString& sCaption) {
  if (oNamed.Caption() != sCaption) {
    oNamed.SetCaption(sCaption);
    NameTheInputs();
  }
}

bool SectionPanel::event(QEvent* pEvent) {
  const auto* const pHelp = dynamic_cast<const QHelpEvent*>(pEvent);
  return (pHelp != nullptr && pHelp->type() == QEvent::ToolTip &&
          ShowTip(childAt(pHelp->pos()), pHelp->globalPos())) ||
         QWidget::event(pEvent);
}

/// The key of What's This shows the tooltips without a pointer.
void SectionPanel::keyPressEvent(QKeyEvent* pEvent) {
  QWidget* const pInput = focusWidget();
  if (pInput == nullptr || !pEvent->matches(QKeySequence::WhatsThis) ||
      !ShowTip(pInput, pInput->mapToGlobal(pInput->rect().bottomLeft()))) {
    QWidget::keyPressEvent(pEvent);
  }
}

/// False if there is no tooltip, perhaps because the auction can't be calculated.
bool SectionPanel::ShowTip(QWidget* pInput, const QPoint& oAt) const {
  constexpr int kLongest = 80;  // characters in one line
  const clsCalculate* const pAuction = Auction();
  const auto pFound = std::find_if(m_aoControls.begin(), m_aoControls.end(),
                                   [&](const Control* p) { return &p->Widget() == pInput; });
  if (pAuction == nullptr || pFound == m_aoControls.end()) {
    return false;
  }
  QString sTip;
  IgnoreFailure([&] { sTip = QString::fromStdString(TipOf(**pFound, *pAuction)); });
  QToolTip::showText(
      oAt, sTip.size() > kLongest ? "<span>" + sTip.toHtmlEscaped() + "</span>" : sTip, pInput);
  return !sTip.isEmpty();
}

const clsCalculate* SectionPanel::Auction() const {
  const auto* const pOuter = dynamic_cast<const SectionPanel*>(Container());
  return m_oAuction != nullptr || pOuter == nullptr ? m_oAuction : pOuter->Auction();
}

void SectionPanel::SetRowCaptionBySchedule(Control& oNamed, const KeyText& oKey) {
  std::string_view sText;
  if (!Prices().GetData(oKey, sText)) {
    sText = std::find_if(m_oDesign.aoControls.begin(), m_oDesign.aoControls.end(),
                         [&](const ControlDesign& o) { return oNamed.Name() == o.sName; })
                ->sCaption;
  }
  SetRowCaption(oNamed, QString::fromStdString(std::string(sText)));
}

void SectionPanel::showEvent(QShowEvent* pEvent) {
  QWidget::showEvent(pEvent);
  if (pEvent->spontaneous()) {
    return;  // the window is being restored from minimised
  }
  for (Control* const pControl : m_aoControls) {
    ApplyThemeColours(*pControl);
  }
  EnsureVisibleList();
  BuildLocator(RowPlaces::kDesigned);
  LoadShowChecks();
}

int SectionPanel::ContentLeft() const {
  int nLeft = Width();
  for (const Control* const pControl : m_aoControls) {
    nLeft = IsRow(*pControl) ? std::min(nLeft, pControl->Left()) : nLeft;
  }
  return nLeft;
}

/// A section covers what it was dragged onto, and shows its name, small, in place of the header
/// while that is hidden.
void SectionPanel::paintEvent(QPaintEvent* /*pEvent*/) {
  const SectionHeader* const pHeader = Header();
  if (pHeader == nullptr) {
    return;
  }
  QPainter oPainter(this);
  oPainter.fillRect(rect(), InkColour(Ink::Panel));
  if (pHeader->Visible()) {
    return;
  }
  DrawTitle(oPainter, QRect(Pixels(ContentLeft()), 0, width(), Pixels(kTitleHeight)),
            QString::fromUtf8(Title()));
}

void SectionPanel::Placed() {
  if (SectionHeader* const pHeader = Header()) {
    pHeader->SetWidth(Width());
  }
}

SectionHeader* SectionPanel::Header() const {
  return dynamic_cast<SectionHeader*>(Find("imgHeader"));
}

/// A control that belongs to a row by itself: what is in a Frame goes with its Frame.
bool SectionPanel::IsRow(const Control& oControl) const {
  return !IsHeaderImage(oControl) && !IsShowCheck(oControl) && oControl.Container() == this;
}

}  // namespace quillet
