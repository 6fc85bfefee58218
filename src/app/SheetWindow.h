#pragma once

namespace glossmill {

/// A window without a title bar that serves as a sheet.
class SheetWindow {
 public:
  /// Always: a plain window without a title bar would refuse the keyboard.
  static bool canBecomeKeyWindow() { return true; }
};

}  // namespace glossmill
