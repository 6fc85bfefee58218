#pragma once

#include <QColor>
#include <QPalette>

#include "app/DisplayTransformers.h"

namespace glossmill {

/// The colour of a transformer as it can be read on the palette's table background: black becomes the text colour, any
/// other keeps its hue and gets darker or lighter until the contrast is good.
QColor readableColor(const Color& color, const QPalette& palette);

/// The contrast of two colours, from 1 (the same) to 21 (black on white).
double contrast(const QColor& a, const QColor& b);

}  // namespace glossmill
