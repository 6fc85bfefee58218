// Draws the program's icon in one size: glossmill_render_icon DRAWING SIZE OUTPUT, with SIZE in pixels.
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <cstdio>

int main(int count, char** arguments) {
  if (count != 4) return 2;
  QSvgRenderer drawing(QString::fromLocal8Bit(arguments[1]));
  const int size = QByteArray(arguments[2]).toInt();
  if (!drawing.isValid() || size <= 0) {
    std::fprintf(stderr, "there is nothing to draw in %s\n", arguments[1]);
    return 1;
  }
  QImage image(size, size, QImage::Format_ARGB32);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  drawing.render(&painter);
  painter.end();
  if (image.save(QString::fromLocal8Bit(arguments[3]), "PNG")) return 0;
  std::fprintf(stderr, "%s cannot be written\n", arguments[3]);
  return 1;
}
