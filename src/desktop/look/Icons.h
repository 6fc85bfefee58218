#pragma once

#include <QIcon>

namespace glossmill {

/// The program's own picture of this name, drawn in the colour of button texts, sharp at every size. Empty when there
/// is none.
QIcon icon(const QString& name);

}  // namespace glossmill
