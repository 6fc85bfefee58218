#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

#include "xcode/CatalogEdits.h"
#include "xcode/JsonText.h"
#include "xcode/RandomPieces.h"

namespace glossmill {
namespace {

using Place = std::tuple<std::string, std::string, std::string>;  ///< key, language, variation
using Texts = std::map<Place, std::pair<std::string, std::string>>;

Place placeOf(const std::string& key, const std::string& language, const Variation& variation) {
  return {key, language, rowName("", variation).value_or("?")};
}

Texts textsOf(const CatalogDocument& document) {
  Texts texts;
  for (const ValueTree::Number number : document.keys()) {
    const CatalogKey key = document.keyAt(number);
    for (const CatalogUnit& unit : key.units) {
      texts[placeOf(key.key, unit.language, unit.variation)] = {unit.state, unit.value};
    }
  }
  return texts;
}

const std::vector<std::string> kKeys = {"Anchor",  "Boat",         "boat %lld", "Item 2",
                                        "Item 10", "\"quoted\"\n", "Ümlaut",    ""};
const std::vector<std::string> kLanguages = {"de", "en", "fr", "pt-BR", "zh-Hans"};
const std::vector<std::string> kValues = {"a", "\"", "\\", "\n", "\t", "/", "ä", "🚢", "%@", "\x01", " "};
const std::vector<std::string> kStates = {"new", "translated", "needs_review", "stale"};
const std::vector<Variation> kVariations = {{{"plural", "one"}},
                                            {{"plural", "other"}},
                                            {{"device", "mac"}},
                                            {{"device", "iphone"}, {"plural", "one"}},
                                            {{"@", "n"}, {"plural", "few"}}};

CatalogEdit randomEdit(RandomPieces& random) {
  CatalogEdit edit;
  edit.key = random.pick(kKeys);
  edit.language = random.pick(kLanguages);
  // A key has variations everywhere or nowhere, so that no edit is refused; parts stand beside either.
  const bool varies = edit.key.size() % 2 == 1;
  if (varies) edit.variation = random.pick(kVariations);
  const bool isDeviceText = edit.variation.size() == 1 && edit.variation.front().kind == "device";
  if (isDeviceText) edit.variation.front().name = "mac";
  if (!random.oneIn(4)) edit.value = random.heap(kValues, 5);
  if (edit.value && random.oneIn(2)) edit.state = random.pick(kStates);
  return edit;
}

/// A catalog as Xcode would write it, since every edit is laid out so.
std::string randomCatalog(RandomPieces& random) {
  std::string text =
      "{\n  \"sourceLanguage\" : \"en\",\n  \"strings\" : {\n    \"Always\" : {\n\n    }\n  },\n  \"version\" : "
      "\"1.0\"\n}\n";
  std::vector<CatalogEdit> edits;
  for (std::size_t left = random.number(12); left > 0; --left) edits.push_back(randomEdit(random));
  const CatalogDocument document(text);
  const Result<std::string> bytes = editedCatalog(document, edits);
  EXPECT_TRUE(bytes) << bytes.error().sentence;
  return bytes ? bytes.value() : text;
}

/// The edit that takes another one back.
CatalogEdit undone(const Texts& before, CatalogEdit edit) {
  const auto found = before.find(placeOf(edit.key, edit.language, edit.variation));
  edit.value.reset();
  edit.state.reset();
  if (found == before.end()) return edit;
  edit.state = found->second.first;
  edit.value = found->second.second;
  return edit;
}

TEST(CatalogEditsRandom, OpeningAndSavingChangesNoByte) {
  RandomPieces random(1);
  for (int round = 0; round < 300; ++round) {
    const std::string text = randomCatalog(random);
    const CatalogDocument document(text);
    ASSERT_FALSE(document.error()) << text;
    ASSERT_EQ(editedCatalog(document, {}).value(), text);
  }
}

TEST(CatalogEditsRandom, ABatchReadsBackAndEverythingElseIsAsItWas) {
  RandomPieces random(2);
  for (int round = 0; round < 500; ++round) {
    const std::string text = randomCatalog(random);
    const CatalogDocument document(text);
    Texts expected = textsOf(document);
    std::vector<CatalogEdit> edits;
    for (std::size_t left = random.number(6); left > 0; --left) edits.push_back(randomEdit(random));
    for (const CatalogEdit& edit : edits) {
      const Place place = placeOf(edit.key, edit.language, edit.variation);
      const auto known = expected.find(place);
      if (!edit.value) {
        expected.erase(place);
      } else if (known == expected.end() || known->second.second != *edit.value) {
        expected[place] = {edit.state.value_or("translated"), *edit.value};
      } else if (edit.state) {
        known->second.first = *edit.state;
      }
    }
    const Result<std::string> bytes = editedCatalog(document, edits);
    ASSERT_TRUE(bytes) << bytes.error().sentence << text;
    const CatalogDocument after(bytes.value());
    ASSERT_FALSE(after.error()) << bytes.value();
    ASSERT_EQ(textsOf(after), expected) << text << bytes.value();
  }
}

TEST(CatalogEditsRandom, AnEditAndTheOneThatTakesItBackGiveTheSameBytes) {
  RandomPieces random(3);
  for (int round = 0; round < 1000; ++round) {
    const std::string text = randomCatalog(random);
    const CatalogDocument document(text);
    CatalogEdit edit = randomEdit(random);
    const Texts before = textsOf(document);
    const bool isOfNewKey = std::none_of(before.begin(), before.end(),
                                         [&edit](const auto& known) { return std::get<0>(known.first) == edit.key; });
    if (isOfNewKey) edit.key = "Always";
    const Result<std::string> bytes = editedCatalog(document, {edit});
    if (!bytes) continue;
    const CatalogDocument changed(bytes.value());
    const Result<std::string> back = editedCatalog(changed, {undone(before, edit)});
    ASSERT_TRUE(back) << back.error().sentence;
    ASSERT_EQ(back.value(), text) << edit.key << edit.language << bytes.value();
  }
}

TEST(CatalogEditsRandom, OnlyTheLinesOfAnEditedValueAndItsStateDiffer) {
  RandomPieces random(4);
  int changed = 0;
  for (int round = 0; round < 1500; ++round) {
    const std::string text = randomCatalog(random);
    const CatalogDocument document(text);
    const Texts before = textsOf(document);
    CatalogEdit edit = randomEdit(random);
    if (!edit.value || !before.contains(placeOf(edit.key, edit.language, edit.variation))) continue;
    const std::string bytes = editedCatalog(document, {edit}).value();
    const auto prefix = std::mismatch(text.begin(), text.end(), bytes.begin(), bytes.end());
    const auto suffix = std::mismatch(text.rbegin(), text.rend() - (prefix.first - text.begin()), bytes.rbegin(),
                                      bytes.rend() - (prefix.second - bytes.begin()));
    const std::string middle(prefix.first, suffix.first.base());
    ASSERT_LE(std::count(middle.begin(), middle.end(), '\n'), 1) << middle;
    changed += bytes != text ? 1 : 0;
  }
  EXPECT_GT(changed, 50);
}

TEST(CatalogEditsRandom, DamagedFilesAreReadToTheirMistakeOrEditedWithoutOne) {
  RandomPieces random(5);
  for (int round = 0; round < 1000; ++round) {
    const CatalogDocument document(random.damaged(randomCatalog(random)));
    const Result<std::string> bytes = editedCatalog(document, {randomEdit(random)});
    if (document.error()) {
      ASSERT_FALSE(bytes);
      ASSERT_GE(document.error()->place.line, 1U);
    } else if (bytes) {
      ASSERT_FALSE(CatalogDocument(bytes.value()).error()) << bytes.value();
    }
  }
}

}  // namespace
}  // namespace glossmill
