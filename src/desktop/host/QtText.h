#pragma once

#include <QString>
#include <QStringView>
#include <string>
#include <string_view>

namespace glossmill {

// Between the core's UTF-8 and Qt's UTF-16. Half of a surrogate pair survives both ways as three bytes, so that the
// core, not the window, decides what becomes of it.

QString toQt(std::string_view text);
std::string fromQt(QStringView text);

}  // namespace glossmill
