#include "desktop/look/SvgPicture.h"

#include <QXmlStreamReader>

#include "desktop/look/SvgPath.h"

namespace glossmill {

namespace {

double number(const QXmlStreamAttributes& attributes, const char* name) {
  return attributes.value(QLatin1String(name)).toDouble();
}

QRectF boxFrom(QStringView text) {
  const auto parts = text.split(u' ');
  if (parts.size() != 4) return {};
  return {parts[0].toDouble(), parts[1].toDouble(), parts[2].toDouble(), parts[3].toDouble()};
}

QPainterPath shapeOf(QStringView element, const QXmlStreamAttributes& attributes) {
  if (element == QLatin1String("path")) return svgPath(attributes.value(QLatin1String("d")));
  QPainterPath path;
  if (element == QLatin1String("rect")) {
    const QRectF box(number(attributes, "x"), number(attributes, "y"), number(attributes, "width"),
                     number(attributes, "height"));
    path.addRoundedRect(box, number(attributes, "rx"), number(attributes, "rx"));
  }
  if (element == QLatin1String("circle")) {
    const double radius = number(attributes, "r");
    path.addEllipse(QPointF(number(attributes, "cx"), number(attributes, "cy")), radius, radius);
  }
  return path;
}

}  // namespace

SvgPicture SvgPicture::read(QIODevice& device) {
  SvgPicture picture;
  QXmlStreamReader xml(&device);
  while (!xml.atEnd()) {
    if (xml.readNext() != QXmlStreamReader::StartElement) continue;
    const QXmlStreamAttributes attributes = xml.attributes();
    if (xml.name() == QLatin1String("svg")) picture.m_viewBox = boxFrom(attributes.value(QLatin1String("viewBox")));
    Shape shape{shapeOf(xml.name(), attributes), paintFrom(attributes.value(QLatin1String("fill")), "black"),
                paintFrom(attributes.value(QLatin1String("stroke")), "none"),
                std::max(number(attributes, "stroke-width"), 1.0)};
    if (!shape.path.isEmpty()) picture.m_shapes.push_back(std::move(shape));
  }
  return picture;
}

SvgPicture::Paint SvgPicture::paintFrom(QStringView text, const char* absent) {
  const QString name = text.isEmpty() ? QLatin1String(absent) : text.toString();
  if (name == QLatin1String("currentColor")) return {true, QColor()};
  return {false, name == QLatin1String("none") ? QColor() : QColor(name)};
}

QColor SvgPicture::inked(const Paint& paint, const QColor& currentColor) {
  return paint.isCurrentColor ? currentColor : paint.color;
}

void SvgPicture::paint(QPainter& painter, const QRectF& target, const QColor& currentColor) const {
  if (m_viewBox.isEmpty()) return;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(target.topLeft());
  painter.scale(target.width() / m_viewBox.width(), target.height() / m_viewBox.height());
  painter.translate(-m_viewBox.topLeft());
  for (const Shape& shape : m_shapes) {
    const QColor fill = inked(shape.fill, currentColor);
    const QColor stroke = inked(shape.stroke, currentColor);
    painter.setBrush(fill.isValid() ? QBrush(fill) : QBrush(Qt::NoBrush));
    painter.setPen(stroke.isValid() ? QPen(stroke, shape.strokeWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin)
                                    : QPen(Qt::NoPen));
    painter.drawPath(shape.path);
  }
  painter.restore();
}

}  // namespace glossmill
