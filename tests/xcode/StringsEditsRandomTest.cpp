#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "xcode/RandomStrings.h"
#include "xcode/StringsEdits.h"
#include "xcode/StringsKeys.h"
#include "xcode/StringsLayout.h"

namespace glossmill {
namespace {

using Values = std::map<std::string, std::string>;

/// The value that counts for each key.
Values valuesOf(const StringsDocument& document) {
  Values values;
  for (const StringsEntry& entry : document.entries()) values[document.keyOf(entry)] = document.valueOf(entry);
  return values;
}

/// Keys in the order of their last entries.
std::vector<std::string> keysOf(const StringsDocument& document) {
  std::vector<std::string> keys;
  for (const std::uint32_t entry : StringsKeys(document).lastEntries()) {
    keys.push_back(document.keyOf(document.entries()[entry]));
  }
  return keys;
}

/// How the entries are spelled whose keys are not edited, in their order.
std::vector<std::string> spelledWithout(const StringsDocument& document, const std::vector<StringsEdit>& edits) {
  std::vector<std::string> spelled;
  for (const StringsEntry& entry : document.entries()) {
    const std::string key = document.keyOf(entry);
    const bool isEdited =
        std::any_of(edits.begin(), edits.end(), [&](const StringsEdit& edit) { return edit.key == key; });
    if (!isEdited) spelled.push_back(document.text().substr(entry.begin, entry.end - entry.begin));
  }
  return spelled;
}

/// The semicolon that an edit may have added to an entry is taken away again.
std::vector<std::string> withoutSemicolons(std::vector<std::string> spelled) {
  for (std::string& entry : spelled) {
    if (entry.ends_with(';')) entry.pop_back();
  }
  return spelled;
}

bool isSubsequence(std::string_view part, std::string_view whole) {
  std::size_t at = 0;
  for (const char byte : part) {
    at = whole.find(byte, at);
    if (at == std::string_view::npos) return false;
    ++at;
  }
  return true;
}

std::vector<std::string> linesWithout(const StringsDocument& document, const std::string& key) {
  const std::string& text = document.text();
  std::vector<std::string> lines;
  for (std::size_t begin = 0; begin < text.size();) {
    const std::size_t end = std::min(text.find_first_of("\r\n", begin), text.size() - 1) + 1;
    const bool isOfKey =
        std::any_of(document.entries().begin(), document.entries().end(), [&](const StringsEntry& entry) {
          return entry.begin < end && entry.end > begin && document.keyOf(entry) == key;
        });
    if (!isOfKey) lines.push_back(text.substr(begin, end - begin));
    begin = end;
  }
  return lines;
}

class StringsEditsOfRandomFiles : public testing::Test {
 protected:
  /// Nothing when the text does not fit into the encoding.
  std::optional<StringsDocument> open(const std::string& text) {
    m_bytes = m_strings.inSomeEncoding(text, m_otherwise);
    if (m_bytes.empty()) return std::nullopt;
    return StringsDocument(m_bytes, m_otherwise);
  }

  std::string someText() { return m_strings.random().oneIn(3) ? m_strings.xml() : m_strings.words(); }

  std::vector<StringsEdit> someEdits() {
    std::vector<StringsEdit> edits;
    for (std::size_t left = 1 + m_strings.random().number(4); left > 0; --left) {
      StringsEdit edit{m_strings.key(), m_strings.value(), m_strings.value()};
      if (m_strings.random().oneIn(3)) edit.value.reset();
      edits.push_back(edit);
    }
    return edits;
  }

  RandomStrings m_strings{7};
  std::string m_bytes;
  std::optional<FileEncoding> m_otherwise;
};

TEST_F(StringsEditsOfRandomFiles, OpeningAndSavingChangesNoByte) {
  for (int round = 0; round < 3000 && !HasFailure(); ++round) {
    const std::optional<StringsDocument> document = open(someText());
    if (!document) continue;
    SCOPED_TRACE(document->text());
    ASSERT_FALSE(document->error()) << document->error()->sentence;
    const Result<std::string> saved = editedStrings(*document, {}, nullptr);
    ASSERT_TRUE(saved && saved.value() == m_bytes);
  }
}

TEST_F(StringsEditsOfRandomFiles, WhatWasEditedIsReadBackAndAllElseIsAsItWas) {
  int written = 0;
  for (int round = 0; round < 8000 && !HasFailure(); ++round) {
    const std::optional<StringsDocument> document = open(someText());
    if (!document) continue;
    const StringsDocument development(someText());
    const std::vector<StringsEdit> edits = someEdits();
    const bool isDevelopment = m_strings.random().oneIn(3);
    const Result<std::string> saved = editedStrings(*document, edits, isDevelopment ? nullptr : &development);
    if (!saved) continue;
    ++written;
    const StringsDocument again(saved.value(), m_otherwise);
    SCOPED_TRACE(document->text() + "\n=====\n" + again.text());
    ASSERT_FALSE(again.error()) << again.error()->sentence;
    Values expected = valuesOf(*document);
    for (const StringsEdit& edit : edits) {
      expected.erase(edit.key);
      if (edit.value) expected[edit.key] = *edit.value;
    }
    ASSERT_EQ(valuesOf(again), expected);
    ASSERT_EQ(withoutSemicolons(spelledWithout(again, edits)), withoutSemicolons(spelledWithout(*document, edits)));
  }
  EXPECT_GT(written, 3000);
}

TEST_F(StringsEditsOfRandomFiles, TakingOutOnlyTakesAndAddingOnlyAdds) {
  int done = 0;
  for (int round = 0; round < 8000 && !HasFailure(); ++round) {
    const std::optional<StringsDocument> document = open(someText());
    if (!document) continue;
    const std::string key = m_strings.key();
    const Result<std::string> without = editedStrings(*document, {{key, std::nullopt, {}}}, nullptr);
    if (!without) continue;  // What is left would be read in another encoding.
    ++done;
    const StringsDocument shorter(without.value(), m_otherwise);
    SCOPED_TRACE(document->text() + "\n=====\n" + shorter.text());
    ASSERT_TRUE(isSubsequence(shorter.text(), document->text()));
    const Result<std::string> with = editedStrings(shorter, {{key, "x", "y"}}, &*document);
    ASSERT_TRUE(with);
    ASSERT_TRUE(isSubsequence(shorter.text(), StringsDocument(with.value(), m_otherwise).text()) ||
                shorter.text().find("<dict/>") != std::string::npos);
  }
  EXPECT_GT(done, 3000);
}

TEST_F(StringsEditsOfRandomFiles, AnEntryTakenOutAndPutBackStandsWhereItStood) {
  int done = 0;
  for (int round = 0; round < 8000 && !HasFailure(); ++round) {
    const std::optional<StringsDocument> document = open(someText());
    if (!document || document->entries().empty()) continue;
    const std::vector<std::string> keys = keysOf(*document);
    const std::string key = m_strings.random().pick(keys);
    const Result<std::string> without = editedStrings(*document, {{key, std::nullopt, {}}}, nullptr);
    if (!without) continue;  // What is left would be read in another encoding.
    ++done;
    const StringsDocument shorter(without.value(), m_otherwise);
    const Result<std::string> back = editedStrings(shorter, {{key, "x", "y"}}, &*document);
    ASSERT_TRUE(back);
    SCOPED_TRACE(document->text() + "\n=====\n" + key + "\n=====\n" + shorter.text() + "\n=====\n" + back.value());
    ASSERT_EQ(keysOf(StringsDocument(back.value(), m_otherwise)), keys);
  }
  EXPECT_GT(done, 3000);
}

TEST_F(StringsEditsOfRandomFiles, InAFileAsToolsWriteItNothingShows) {
  const std::vector<std::string> keys = {"b", "a", "d d", "c", "\"e"};
  for (int round = 0; round < 1000 && !HasFailure(); ++round) {
    const StringsDocument document(m_strings.regular(keys));
    ASSERT_FALSE(document.error()) << document.error()->sentence;
    const std::size_t entry = m_strings.random().number(keys.size());
    const StringsEdit edit{keys[entry], document.valueOf(document.entries()[entry]),
                           StringsLayout(document).commentOf(entry)};
    const Result<std::string> without = editedStrings(document, {{edit.key, std::nullopt, {}}}, nullptr);
    ASSERT_TRUE(without);
    const Result<std::string> back = editedStrings(StringsDocument(without.value()), {edit}, &document);
    ASSERT_TRUE(back);
    SCOPED_TRACE(without.value());
    ASSERT_EQ(back.value(), document.text());
  }
}

TEST_F(StringsEditsOfRandomFiles, AnEditedValueTouchesOnlyTheLinesOfItsEntries) {
  for (int round = 0; round < 3000 && !HasFailure(); ++round) {
    const std::optional<StringsDocument> document = open(someText());
    if (!document || document->entries().empty()) continue;
    const std::string key = m_strings.random().pick(keysOf(*document));
    const Result<std::string> saved = editedStrings(*document, {{key, m_strings.value(), {}}}, nullptr);
    if (!saved) continue;
    const StringsDocument again(saved.value(), m_otherwise);
    SCOPED_TRACE(document->text() + "\n=====\n" + again.text());
    ASSERT_EQ(linesWithout(again, key), linesWithout(*document, key));
  }
}

}  // namespace
}  // namespace glossmill
