#include "shell/ButtonColumn.h"

#include <QShortcut>
#include <algorithm>
#include <string>

#include "look/ShockwaveFlash.h"
#include "look/scale.h"
#include "platform/Files.h"
#include "platform/Host.h"

namespace quillet {
namespace {

// Places in twips.
constexpr int kButtonLeft = 240;
constexpr int kButtonSize = 1080;
constexpr int kFirstButtonTop = 240;
constexpr int kAboutTop = 6720;

struct ButtonDesign {
  const char* sMovie;
  const char* sToolTip;
  const char* sShortcut;
};

constexpr std::array<ButtonDesign, 6> kButtons = {{
    {"\\Graphics\\Buttons\\New_button.swf", "New Auction", "Ctrl+N"},
    {"\\Graphics\\Buttons\\Calc_button.swf", "Calculator", "Ctrl+1"},
    {"\\Graphics\\Buttons\\Wizard_button.swf", "Wizard", "Ctrl+2"},
    {"\\Graphics\\Buttons\\Save_button.swf", "Save", "Ctrl+S"},
    {"\\Graphics\\Buttons\\Load_button.swf", "Load", "Ctrl+O"},
    {"\\Graphics\\Buttons\\Config_button.swf", "Default Configuration", "Ctrl+,"},
}};
constexpr ButtonDesign kAboutButton = {"\\Graphics\\Buttons\\About_button.swf", "About", "F1"};

QString ToolTipOf(const ButtonDesign& oButton) {
  const QKeySequence oKeys(QString::fromLatin1(oButton.sShortcut));
  return QString("%1 (%2)").arg(oButton.sToolTip, oKeys.toString(QKeySequence::NativeText));
}

/// A button that plays a movie. `fnClick` is called by its key, and when the movie sends "click",
/// whatever its case.
template <typename Click>
ShockwaveFlash* MakeButton(const ButtonDesign& oButton, const char* sName, QWidget* pParent,
                           const Click& fnClick) {
  auto* const pButton = new ShockwaveFlash(pParent);
  pButton->setObjectName(sName);
  pButton->SetMovie(
      QString::fromStdString(NativePath(TheHost().ProgramFolder() + std::string(oButton.sMovie))));
  pButton->setToolTip(ToolTipOf(oButton));
  pButton->setAccessibleName(oButton.sToolTip);
  QObject::connect(pButton, &ShockwaveFlash::FSCommand, pParent,
                   [fnClick](const QString& sCommand, const QString& /*sArguments*/) {
                     if (sCommand.toLower() == "click") {
                       fnClick();
                     }
                   });
  auto* const pShortcut = new QShortcut(QKeySequence(oButton.sShortcut), pParent);
  QObject::connect(pShortcut, &QShortcut::activated, pParent, fnClick);
  return pButton;
}

void PlaceButton(QWidget& oButton, int nTop) {
  oButton.setGeometry(Pixels(kButtonLeft), Pixels(nTop), Pixels(kButtonSize), Pixels(kButtonSize));
}

}  // namespace

ButtonColumn::ButtonColumn(int nWindowHeight, QWidget* pParent)
    : ScrollFrame(pParent), m_lAboutBottomGap(nWindowHeight - kAboutTop) {
  for (std::size_t i = 0; i < kButtons.size(); ++i) {
    m_apMenuButtons.at(i) = MakeButton(kButtons.at(i), "swfVerticalMenuButtons", &Content(),
                                       [this, i] { emit Clicked(static_cast<int>(i)); });
  }
  m_pAbout = MakeButton(kAboutButton, "swfAbout", &Content(), [this] { emit AboutClicked(); });
  connect(this, &ScrollFrame::ContentResized, this, &ButtonColumn::PlaceAbout);
}

void ButtonColumn::PlaceBeside(int nHeight) {
  Place(0, 0, kColumnWidth, nHeight);
  Content().setMinimumHeight(Pixels(kAboutTop + kButtonSize));
  PlaceAbout();
}

void ButtonColumn::MarkCurrent(int nIndex) {
  for (std::size_t i = 0; i < m_apMenuButtons.size(); ++i) {
    m_apMenuButtons.at(i)->SetCurrent(static_cast<int>(i) == nIndex);
  }
}

void ButtonColumn::Rescale() {
  ScrollFrame::Rescale();
  int nTop = kFirstButtonTop;
  for (ShockwaveFlash* const pButton : m_apMenuButtons) {
    PlaceButton(*pButton, nTop);
    nTop += kButtonSize;
  }
}

/// Keeps its distance from the bottom, but never overlaps the other buttons.
void ButtonColumn::PlaceAbout() {
  const int nBottom = Twips(Content().height());
  PlaceButton(*m_pAbout, std::max(nBottom - m_lAboutBottomGap, kAboutTop));
}

}  // namespace quillet
