#pragma once

#include <functional>
#include <vector>

#include "platform/Sheets.h"

namespace glossmill {

/// Sheets that are up without being seen.
class HeadlessSheets : public Sheets {
 public:
  /// A sheet that is already up stays up, with the new `didEnd` in the place of the former.
  void beginSheet(Window& sheet, std::function<void()> didEnd) override;
  /// `didEnd` may free the sheet.
  void endSheet(Window& sheet) override;

  bool isUp(const Window& sheet) const;
  std::size_t count() const { return m_sheets.size(); }
  /// The sheet that was begun last of those that are up; null when none is.
  Window* current() const { return m_sheets.empty() ? nullptr : m_sheets.back().window; }

 private:
  struct Sheet {
    Window* window = nullptr;
    std::function<void()> didEnd;
  };

  std::vector<Sheet>::const_iterator find(const Window& sheet) const;

  std::vector<Sheet> m_sheets;
};

}  // namespace glossmill
