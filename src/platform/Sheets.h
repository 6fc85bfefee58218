#pragma once

#include <functional>

#include "platform/Controls.h"

namespace glossmill {

/// Sheets on the project window. Main thread.
class Sheets {
 public:
  virtual ~Sheets() = default;
  /// Shows `sheet` over the project window and returns; `didEnd` is called once, when the sheet ends.
  virtual void beginSheet(Window& sheet, std::function<void()> didEnd) = 0;
  /// Ends the sheet and calls its `didEnd`; harmless on a sheet that is not up.
  virtual void endSheet(Window& sheet) = 0;
};

}  // namespace glossmill
