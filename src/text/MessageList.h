#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "text/GrowingText.h"
#include "text/Message.h"

namespace glossmill {

/// Messages in one text, a line feed behind each; a message may hold line feeds of its own.
class MessageList {
 public:
  void add(const Message& message);
  void clear();

  /// Valid until the list changes.
  std::string_view text() const { return m_text.view(); }
  std::size_t count() const { return m_ends.size(); }
  /// Without its final line feed; valid until the list changes.
  std::string_view message(std::size_t index) const;

 private:
  GrowingText m_text;
  std::vector<std::size_t> m_ends;  ///< places behind the final line feeds
};

}  // namespace glossmill
