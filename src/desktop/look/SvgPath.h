#pragma once

#include <QPainterPath>
#include <QStringView>

namespace glossmill {

/// The path that the data of an SVG path describes. Understands M, L, H, V, C and Z, capital and small; reading ends at
/// anything else.
QPainterPath svgPath(QStringView data);

}  // namespace glossmill
