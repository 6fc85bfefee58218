#include "exchange/ImportText.h"

#include "strings/CommentRemover.h"
#include "text/Split.h"

namespace glossmill {

ImportTable importTable(std::string_view text) {
  enum class Expected { Dashes, Comment, Key, Translation };
  ImportTable table;
  Expected expected = Expected::Dashes;
  std::string_view key;
  const std::string clean = removeComments(text);
  for (const std::string_view line : split(clean, '\n')) {
    switch (expected) {
      case Expected::Dashes:
        if (line.find("---") != std::string_view::npos) expected = Expected::Comment;
        break;
      case Expected::Comment:
        expected = Expected::Key;
        break;
      case Expected::Key:
        key = line;
        expected = Expected::Translation;
        break;
      case Expected::Translation:
        if (!line.empty()) table.insert_or_assign(std::string(key), std::string(line));
        expected = Expected::Dashes;
        break;
    }
  }
  return table;
}

}  // namespace glossmill
