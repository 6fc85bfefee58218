#pragma once

#include <QString>
#include <string_view>

namespace glossmill {

// Text that a project holds, for places that would take some of it for something else than text.

/// Control characters are replaced, and what would turn the direction of the text around it is shown as a code.
QString shownText(std::string_view text);

/// The same for a tool tip, which never takes it for markup.
QString toolTipText(const QString& text);

}  // namespace glossmill
