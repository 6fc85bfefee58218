#include "desktop/look/Icons.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPalette>
#include <QPixmap>

#include "desktop/look/SvgPicture.h"

namespace glossmill {

namespace {

/// Draws anew each time, so that the colour follows the palette.
class PictureEngine : public QIconEngine {
 public:
  explicit PictureEngine(SvgPicture picture) : m_picture(std::move(picture)) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
    const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
    const int side = std::min(rect.width(), rect.height());
    QRectF square(0, 0, side, side);
    square.moveCenter(QRectF(rect).center());
    if (mode == QIcon::Disabled) painter->setOpacity(0.6);
    m_picture.paint(*painter, square, QGuiApplication::palette().color(group, QPalette::ButtonText));
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap drawn(size);
    drawn.fill(Qt::transparent);
    QPainter painter(&drawn);
    paint(&painter, QRect(QPoint(), size), mode, state);
    return drawn;
  }

  QIconEngine* clone() const override { return new PictureEngine(*this); }

 private:
  SvgPicture m_picture;
};

}  // namespace

QIcon icon(const QString& name) {
  QFile file(QStringLiteral(":/icons/%1.svg").arg(name));
  if (!file.open(QIODevice::ReadOnly)) return {};
  return QIcon(new PictureEngine(SvgPicture::read(file)));
}

}  // namespace glossmill
