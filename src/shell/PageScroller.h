// The viewport of the wizard: shows the section of one page, and scrolls it if it is taller.
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

  /// Shows a page, scrolled to its top. Both must outlive the viewport.
  void Show(Frame& oFrame, SectionPanel& oSection);

  /// Centres the current page and scrolls it back, after a change of the viewport's size.
  void LayOut();

  /// Draws the current page's card on the viewport's parent, as much of it as is visible.
  void PaintCard(QPainter& oPainter) const;

 protected:
  void wheelEvent(QWheelEvent* pEvent) override;

 private:
  void CentreFrame();
  void UpdateScrollBar();
  void vsbVert_Change();
  void ScrollTo(const QWidget* pInput);

  ScrollBar* m_pVert;
  Frame* m_pFrame = nullptr;  ///< of the current page, like the section
  SectionPanel* m_pSection = nullptr;
};

}  // namespace quillet
