// Drawing routines of the larger movies.
#pragma once

#include <QFont>

class QPainter;
class QRectF;

namespace quillet {

/// The theme's font at a movie's own scale, whatever the zoom. 8 points are 32/3 units of a movie.
[[nodiscard]] QFont MovieFont(double fPoints, QFont::Weight eWeight, double fScale);

/// The quill of the program's icon, with the tip of its nib in the lower left corner.
void DrawQuill(QPainter& oPainter, const QRectF& oPlace);

/// The progress at `fNow` of something that begins and ends at those times: 0 to 1, slow at both
/// ends.
[[nodiscard]] double Eased(double fNow, double fBegin, double fEnd);

}  // namespace quillet
