#include "desktop/look/ReadableColor.h"

#include <cmath>

namespace glossmill {

namespace {

constexpr double kGoodContrast = 4.8;
constexpr double kStep = 0.02;

double linear(double channel) {
  return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color) {
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

}  // namespace

double contrast(const QColor& a, const QColor& b) {
  const double one = luminance(a) + 0.05;
  const double other = luminance(b) + 0.05;
  return one > other ? one / other : other / one;
}

QColor readableColor(const Color& color, const QPalette& palette) {
  if (color == kBlackColor) return palette.color(QPalette::Text);
  const QColor background = palette.color(QPalette::Base);
  const bool onDark = luminance(background) < 0.18;
  const QColor pure =
      QColor::fromRgbF(static_cast<float>(color.red), static_cast<float>(color.green), static_cast<float>(color.blue));
  const float saturation = onDark ? 0.7F : 0.8F;
  double lightness = onDark ? 0.6 : 0.5;
  QColor readable = QColor::fromHslF(pure.hslHueF(), saturation, static_cast<float>(lightness));
  while (contrast(readable, background) < kGoodContrast && lightness > kStep && lightness < 1 - kStep) {
    lightness += onDark ? kStep : -kStep;
    readable = QColor::fromHslF(pure.hslHueF(), saturation, static_cast<float>(lightness));
  }
  return readable;
}

}  // namespace glossmill
