#include "look/icons.h"

#include <QColor>
#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <QRectF>
#include <span>

namespace quillet {
namespace {

constexpr double kUnits = 24.0;

enum class Verb {
  Move,    // to x, y
  Line,    // to x, y
  Round,   // to x, y around the corner u, v
  Box,     // at x, y; u wide and v high
  Circle,  // around x, y with the radius u
  Close,   // back to the latest Move
};
using enum Verb;

struct Step {
  Verb eVerb;
  double x = 0.0;
  double y = 0.0;
  double u = 0.0;
  double v = 0.0;
};

// Whole units, so that the lines fall on whole pixels at zoom 1 and 2.
// clang-format off
constexpr Step kNew[] = {{Move, 12, 4}, {Line, 12, 20}, {Move, 4, 12}, {Line, 20, 12}};

constexpr Step kCalculator[] = {
    {Box, 4, 3, 16, 18},
    {Move, 8, 8},   {Line, 16, 8},                                     // display
    {Move, 8, 13},  {Line, 10, 13},  {Move, 14, 13},  {Line, 16, 13},  // keys
    {Move, 8, 17},  {Line, 10, 17},  {Move, 14, 17},  {Line, 16, 17},
};

constexpr Step kWizard[] = {
    {Move, 4, 20},  {Line, 12, 12},                                    // wand
    {Move, 15.5, 3},                                                   // star
    {Round, 21, 8.5, 16.5, 7.5},  {Round, 15.5, 14, 16.5, 9.5},
    {Round, 10, 8.5, 14.5, 9.5},  {Round, 15.5, 3, 14.5, 7.5},  {Close},
};

constexpr Step kSave[] = {
    {Move, 4, 5},    {Round, 5, 4, 4, 4},    {Line, 16, 4},            // disk
    {Line, 20, 8},   {Line, 20, 19},         {Round, 19, 20, 20, 20},
    {Line, 5, 20},   {Round, 4, 19, 4, 20},  {Close},
    {Move, 8, 4},    {Line, 8, 9},   {Line, 15, 9},   {Line, 15, 4},   // shutter
    {Move, 8, 20},   {Line, 8, 14},  {Line, 16, 14},  {Line, 16, 20},  // label
};

constexpr Step kLoad[] = {
    {Move, 3, 6},    {Round, 4, 5, 3, 5},    {Line, 9, 5},             // folder
    {Line, 12, 8},   {Line, 20, 8},          {Round, 21, 9, 21, 8},
    {Line, 21, 18},  {Round, 20, 19, 21, 19},
    {Line, 4, 19},   {Round, 3, 18, 3, 19},  {Close},
    {Move, 12, 16},  {Line, 12, 12},                                   // arrow
    {Move, 9.5, 13.5},  {Line, 12, 11},  {Line, 14.5, 13.5},
};

constexpr Step kConfigure[] = {
    {Move, 3, 8},    {Line, 12, 8},   {Move, 15, 5},  {Line, 15, 11},
    {Move, 19, 8},   {Line, 21, 8},
    {Move, 3, 16},   {Line, 5, 16},   {Move, 9, 13},  {Line, 9, 19},
    {Move, 13, 16},  {Line, 21, 16},
};

constexpr Step kAbout[] = {
    {Circle, 12, 12, 10},
    {Move, 12, 11},  {Line, 12, 17},
    {Move, 12, 7},   {Line, 12, 7.01},
};

constexpr Step kQuestion[] = {
    {Circle, 12, 12, 10},
    {Move, 9, 9.5},   {Round, 12, 6.75, 9, 6.75},  {Round, 15, 9.5, 15, 6.75},
    {Round, 13.5, 11.75, 15, 11},  {Round, 12, 14, 12, 12.5},
    {Move, 12, 17},   {Line, 12, 17.01},
};

constexpr Step kWarning[] = {
    {Move, 11, 3.5},  {Round, 13, 3.5, 12, 2},
    {Line, 22, 19},   {Round, 21, 21, 23, 21},
    {Line, 3, 21},    {Round, 2, 19, 1, 21},   {Close},
    {Move, 12, 9},    {Line, 12, 14},
    {Move, 12, 17.5}, {Line, 12, 17.51},
};

constexpr Step kCritical[] = {
    {Circle, 12, 12, 10},
    {Move, 8.5, 8.5}, {Line, 15.5, 15.5},  {Move, 15.5, 8.5},  {Line, 8.5, 15.5},
};

constexpr Step kNote[] = {
    {Circle, 7.5, 17.5, 3},
    {Move, 10.5, 17.5},  {Line, 10.5, 4},  {Round, 17, 10, 16, 5},
};

constexpr Step kSound[] = {
    {Move, 4, 9},    {Line, 8, 9},    {Line, 12, 5},   {Line, 12, 19},
    {Line, 8, 15},   {Line, 4, 15},   {Close},                         // loudspeaker
    {Move, 15.5, 9.5},  {Round, 15.5, 14.5, 17.5, 12},
    {Move, 18, 7},      {Round, 18, 17, 22, 12},
};

constexpr Step kMuted[] = {
    {Move, 4, 9},    {Line, 8, 9},    {Line, 12, 5},   {Line, 12, 19},
    {Line, 8, 15},   {Line, 4, 15},   {Close},
    {Move, 16, 9.5},    {Line, 21, 14.5},  {Move, 21, 9.5},  {Line, 16, 14.5},
};

constexpr Step kLink[] = {
    {Move, 14, 4},   {Line, 20, 4},   {Line, 20, 10},                  // arrow
    {Move, 20, 4},   {Line, 11, 13},
    {Move, 17, 14},  {Line, 17, 19},  {Round, 16, 20, 17, 20},
    {Line, 5, 20},   {Round, 4, 19, 4, 20},
    {Line, 4, 8},    {Round, 5, 7, 4, 7},  {Line, 10, 7},
};
// clang-format on

std::span<const Step> StepsOf(Icon eIcon) {
  switch (eIcon) {
    case Icon::New:
      return kNew;
    case Icon::Calculator:
      return kCalculator;
    case Icon::Wizard:
      return kWizard;
    case Icon::Save:
      return kSave;
    case Icon::Load:
      return kLoad;
    case Icon::Configure:
      return kConfigure;
    case Icon::About:
      return kAbout;
    case Icon::Question:
      return kQuestion;
    case Icon::Warning:
      return kWarning;
    case Icon::Critical:
      return kCritical;
    case Icon::Note:
      return kNote;
    case Icon::Sound:
      return kSound;
    case Icon::Muted:
      return kMuted;
    case Icon::Link:
      return kLink;
  }
  return {};
}

void Append(QPainterPath& oPath, const Step& oStep) {
  switch (oStep.eVerb) {
    case Move:
      return oPath.moveTo(oStep.x, oStep.y);
    case Line:
      return oPath.lineTo(oStep.x, oStep.y);
    case Round:
      return oPath.quadTo(oStep.u, oStep.v, oStep.x, oStep.y);
    case Box:
      return oPath.addRoundedRect(oStep.x, oStep.y, oStep.u, oStep.v, 1.5, 1.5);
    case Circle:
      return oPath.addEllipse(QPointF(oStep.x, oStep.y), oStep.u, oStep.u);
    case Close:
      return oPath.closeSubpath();
  }
}

}  // namespace

void DrawIcon(QPainter& oPainter, Icon eIcon, const QRectF& oSquare, const QColor& oColour,
              double fStroke) {
  QPainterPath oPath;
  for (const Step& oStep : StepsOf(eIcon)) {
    Append(oPath, oStep);
  }
  oPainter.save();
  oPainter.setRenderHint(QPainter::Antialiasing);
  oPainter.translate(oSquare.topLeft());
  oPainter.scale(oSquare.width() / kUnits, oSquare.height() / kUnits);
  oPainter.strokePath(oPath, QPen(oColour, fStroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  oPainter.restore();
}

}  // namespace quillet
