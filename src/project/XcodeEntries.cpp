#include "project/XcodeEntries.h"

#include "xcode/PlaceCounter.h"
#include "xcode/StringsDocument.h"

namespace glossmill {

FileEntries xcodeEntries(std::string_view bytes, std::optional<std::uint32_t> encoding) {
  const StringsDocument document(bytes, encoding ? encodingOfNumber(*encoding) : std::nullopt);
  FileEntries file;
  file.entries.reserve(document.entries().size());
  PlaceCounter counter(document.text());
  const auto kept = [&](const StringsText& text, bool isPlain, auto read) {
    return isPlain ? file.texts.add(document.spelled(text)) : file.texts.add(read());
  };
  for (const StringsEntry& entry : document.entries()) {
    const TextPlace place = counter.at(entry.begin);
    const bool hasPlainValue = entry.value.isPlain && entry.form != StringsEntry::Form::EmptyTag;
    file.entries.push_back({kept(entry.key, entry.key.isPlain, [&] { return document.keyOf(entry); }),
                            kept(entry.value, hasPlainValue, [&] { return document.valueOf(entry); }),
                            static_cast<std::uint32_t>(place.line), static_cast<std::uint32_t>(place.column)});
  }
  return file;
}

}  // namespace glossmill
