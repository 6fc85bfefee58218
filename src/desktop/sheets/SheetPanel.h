#pragma once

#include <QVariantAnimation>
#include <QWidget>

#include "desktop/sheets/SheetContent.h"

namespace glossmill {

/// The panel that carries a sheet's content: it draws its own edge and shadow, slides in from the top, and turns Return
/// and Escape into clicks of the content's buttons. The content stays its owner's, who takes
/// it out before the panel goes.
class SheetPanel : public QWidget {
 public:
  SheetPanel(SheetContent& content, QWidget& parent);

  /// Places the panel at the top of its parent, in the middle, as large as the content wants and the parent allows.
  void place();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  void pressReturn();

  SheetContent& m_content;
  QVariantAnimation m_slide;
};

}  // namespace glossmill
