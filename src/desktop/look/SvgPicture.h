#pragma once

#include <QColor>
#include <QIODevice>
#include <QPainter>
#include <QPainterPath>
#include <optional>
#include <vector>

namespace glossmill {

/// A simple SVG drawing: paths, rectangles and circles with plain fill and stroke, in the order of the file. The colour
/// "currentColor" is chosen when it is painted. Enough for icons, and needs no plug-in of the toolkit.
class SvgPicture {
 public:
  /// Empty when the device holds no such drawing.
  static SvgPicture read(QIODevice& device);

  void paint(QPainter& painter, const QRectF& target, const QColor& currentColor) const;

 private:
  struct Paint {
    bool isCurrentColor = false;
    QColor color;  ///< invalid: nothing is painted
  };
  struct Shape {
    QPainterPath path;
    Paint fill;
    Paint stroke;
    double strokeWidth = 1;
  };

  static Paint paintFrom(QStringView text, const char* absent);
  static QColor inked(const Paint& paint, const QColor& currentColor);

  QRectF m_viewBox;
  std::vector<Shape> m_shapes;
};

}  // namespace glossmill
