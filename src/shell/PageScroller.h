// The viewport of the wizard: shows the section of one page, and scrolls it where it is taller.
#pragma once

#include "controls/Controls.h"

class QPainter;

namespace quillet {

class ScrollBar;
class SectionPanel;

/// The pages are frames in it, each with a section.
class PageScroller : public Frame {
 public:
  explicit PageScroller(QWidget* pParent);
  PageScroller(const PageScroller&) = delete;
  PageScroller& operator=(const PageScroller&) = delete;
  ~PageScroller() override;

  /// A page comes on view, scrolled to its beginning. Both must outlive the viewport.
  void Show(Frame& oFrame, SectionPanel& oSection);

  /// Centres the page on view and scrolls it back, after a change of the viewport's size.
  void LayOut();

  /// Draws the card of the page on view on the viewport's parent, as much of it as can be seen.
  void PaintCard(QPainter& oPainter) const;

 protected:
  void wheelEvent(QWheelEvent* pEvent) override;

 private:
  void CentreFrame();
  void UpdateScrollBar();
  void vsbVert_Change();
  void ScrollTo(const QWidget* pInput);

  ScrollBar* m_pVert;
  Frame* m_pFrame = nullptr;  ///< of the page on view, as is the section
  SectionPanel* m_pSection = nullptr;
};

}  // namespace quillet
