#include "desktop/look/Icons.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QSvgRenderer>
#include <algorithm>
#include <memory>

namespace glossmill {

namespace {

/// Draws anew each time, so that the colour follows the palette.
class PictureEngine : public QIconEngine {
 public:
  explicit PictureEngine(QByteArray drawing) : m_drawing(std::move(drawing)) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
    const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
    const int side = std::min(rect.width(), rect.height());
    QRectF square(0, 0, side, side);
    square.moveCenter(QRectF(rect).center());
    if (mode == QIcon::Disabled) painter->setOpacity(0.6);
    painter->setRenderHint(QPainter::Antialiasing);
    rendererFor(QGuiApplication::palette().color(group, QPalette::ButtonText)).render(painter, square);
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap drawn(size);
    drawn.fill(Qt::transparent);
    QPainter painter(&drawn);
    paint(&painter, QRect(QPoint(), size), mode, state);
    return drawn;
  }

  QIconEngine* clone() const override { return new PictureEngine(m_drawing); }

 private:
  /// The toolkit draws "currentColor" black, so the colour is written into the drawing.
  QSvgRenderer& rendererFor(const QColor& color) {
    if (m_renderer && m_color == color) return *m_renderer;
    QByteArray inked = m_drawing;
    inked.replace("currentColor", color.name().toLatin1());
    m_renderer = std::make_unique<QSvgRenderer>(inked);
    m_color = color;
    return *m_renderer;
  }

  const QByteArray m_drawing;
  QColor m_color;
  std::unique_ptr<QSvgRenderer> m_renderer;
};

}  // namespace

QIcon icon(const QString& name) {
  QFile file(QStringLiteral(":/icons/%1.svg").arg(name));
  if (!file.open(QIODevice::ReadOnly)) return {};
  return QIcon(new PictureEngine(file.readAll()));
}

}  // namespace glossmill
