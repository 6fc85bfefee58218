#include <gtest/gtest.h>

#include "xcode/CatalogEdits.h"

namespace glossmill {
namespace {

constexpr std::string_view kCatalog = R"({
  "sourceLanguage" : "en",
  "strings" : {
    "%lld boats" : {
      "comment" : "How many boats",
      "localizations" : {
        "en" : {
          "variations" : {
            "plural" : {
              "one" : {
                "stringUnit" : {
                  "state" : "translated",
                  "value" : "%lld boat"
                }
              },
              "other" : {
                "stringUnit" : {
                  "state" : "translated",
                  "value" : "%lld boats"
                }
              }
            }
          }
        }
      }
    },
    "Anchor" : {
      "localizations" : {
        "de" : {
          "stringUnit" : {
            "state" : "needs_review",
            "value" : "Anker"
          }
        },
        "fr" : {
          "stringUnit" : {
            "state" : "translated",
            "value" : "Ancre"
          }
        }
      }
    },
    "Quay" : {

    },
    "Rope" : {
      "extractionState" : "stale",
      "localizations" : {
        "de" : {
          "stringUnit" : {
            "state" : "new",
            "value" : "Seil"
          }
        }
      }
    }
  },
  "version" : "1.0"
})";

const Variation kOne = {{"plural", "one"}};

std::string edited(std::string_view text, const std::vector<CatalogEdit>& edits) {
  const CatalogDocument document{std::string(text)};
  const Result<std::string> bytes = editedCatalog(document, edits);
  return bytes ? bytes.value() : "error: " + bytes.error().sentence;
}

std::string replaced(std::string_view text, std::string_view from, std::string_view to) {
  std::string result(text);
  const std::size_t at = result.find(from);
  EXPECT_NE(at, std::string::npos) << from;
  return result.replace(at, from.size(), to);
}

TEST(CatalogEdits, AnEditedValueBecomesTranslatedAndNothingElseChanges) {
  const std::string after = edited(kCatalog, {{"Anchor", "de", {}, "Der \"Anker\"\n", {}, {}}});
  std::string expected = replaced(kCatalog, "\"Anker\"", R"("Der \"Anker\"\n")");
  expected = replaced(expected, "\"needs_review\"", "\"translated\"");
  EXPECT_EQ(after, expected);
}

TEST(CatalogEdits, AValueThatReadsTheSameKeepsItsSpellingAndState) {
  const std::string spelled = replaced(kCatalog, "\"Anker\"", "\"\\u0041nker\"");
  EXPECT_EQ(edited(spelled, {{"Anchor", "de", {}, "Anker", {}, {}}}), spelled);
}

TEST(CatalogEdits, AStateThatIsNamedIsTaken) {
  EXPECT_EQ(edited(kCatalog, {{"Anchor", "de", {}, "Anker", "translated", {}}}),
            replaced(kCatalog, "\"needs_review\"", "\"translated\""));
  EXPECT_EQ(edited(kCatalog, {{"Anchor", "fr", {}, "L’ancre", "needs_review", {}}}),
            replaced(kCatalog, "\"translated\",\n            \"value\" : \"Ancre\"",
                     "\"needs_review\",\n            \"value\" : \"L’ancre\""));
}

TEST(CatalogEdits, ANewLanguageStandsInTheOrderOfTheCodes) {
  const std::string after = edited(kCatalog, {{"Anchor", "el", {}, "Άγκυρα", {}, {}}});
  EXPECT_EQ(after,
            replaced(kCatalog, "        \"fr\" : {\n",
                     "        \"el\" : {\n          \"stringUnit\" : {\n            \"state\" : \"translated\",\n"
                     "            \"value\" : \"Άγκυρα\"\n          }\n        },\n        \"fr\" : {\n"));
}

TEST(CatalogEdits, AnEmptyKeyGetsItsFirstTextAndIsEmptyAgainWithoutIt) {
  const std::string after = edited(kCatalog, {{"Quay", "de", {}, "Kai", {}, {}}});
  EXPECT_EQ(after,
            replaced(kCatalog, "\"Quay\" : {\n\n    }",
                     "\"Quay\" : {\n      \"localizations\" : {\n        \"de\" : {\n          \"stringUnit\" : {\n"
                     "            \"state\" : \"translated\",\n            \"value\" : \"Kai\"\n          }\n"
                     "        }\n      }\n    }"));
  EXPECT_EQ(edited(after, {{"Quay", "de", {}, {}, {}, {}}}), kCatalog);
}

TEST(CatalogEdits, VariationsOfANewLanguageAreMadeTogether) {
  const std::string after = edited(kCatalog, {{"%lld boats", "de", {{"plural", "other"}}, "%lld Boote", {}, {}},
                                              {"%lld boats", "de", kOne, "%lld Boot", {}, {}}});
  const CatalogDocument document(after);
  const std::vector<CatalogUnit> units = document.keyAt(document.keys().front()).units;
  ASSERT_EQ(units.size(), 4U);
  EXPECT_EQ(units[0], (CatalogUnit{"de", kOne, "translated", "%lld Boot"}));
  EXPECT_EQ(units[1], (CatalogUnit{"de", {{"plural", "other"}}, "translated", "%lld Boote"}));
  EXPECT_EQ(
      edited(after, {{"%lld boats", "de", kOne, {}, {}, {}}, {"%lld boats", "de", {{"plural", "other"}}, {}, {}, {}}}),
      kCatalog);
}

TEST(CatalogEdits, OneTextAndVariationsOfItAreRefusedUnlessOneOfThemGoes) {
  EXPECT_EQ(
      edited(kCatalog, {{"Anchor", "de", kOne, "Ein Anker", {}, {}}}),
      "error: “Anchor” cannot have one text and variations of it in the language de: one of them has to be cleared.");
  const std::string after =
      edited(kCatalog, {{"Anchor", "de", kOne, "Ein Anker", {}, {}}, {"Anchor", "de", {}, {}, {}, {}}});
  const CatalogDocument document(after);
  EXPECT_EQ(document.keyAt(document.keys()[1]).units.front(), (CatalogUnit{"de", kOne, "translated", "Ein Anker"}));
}

TEST(CatalogEdits, ANewKeyStandsInOrderWithItsComment) {
  const std::string after = edited(kCatalog, {{"boat", "de", {}, "Boot", {}, "A small one"}});
  EXPECT_EQ(after,
            replaced(kCatalog, "    \"Quay\" : {",
                     "    \"boat\" : {\n      \"comment\" : \"A small one\",\n      \"localizations\" : {\n"
                     "        \"de\" : {\n          \"stringUnit\" : {\n            \"state\" : \"translated\",\n"
                     "            \"value\" : \"Boot\"\n          }\n        }\n      }\n    },\n    \"Quay\" : {"));
}

TEST(CatalogEdits, AStaleKeyGoesWithItsLastText) {
  const std::string after = edited(kCatalog, {{"Rope", "de", {}, {}, {}, {}}});
  const std::size_t begin = kCatalog.find(",\n    \"Rope\"");
  const std::size_t end = kCatalog.find("\n  },\n  \"version\"");
  EXPECT_EQ(after, std::string(kCatalog.substr(0, begin)) + std::string(kCatalog.substr(end)));
}

TEST(CatalogEdits, APartTakesWhatIsSaidOfItFromTheSourceLanguage) {
  const std::string catalog = R"({"strings":{"k":{"localizations":{"en":{"stringUnit":{"state":"new","value":"%#@n@"},
    "substitutions":{"n":{"argNum":2,"formatSpecifier":"lld","variations":{"plural":{"other":{"stringUnit":
    {"state":"new","value":"%arg"}}}}}}}}}}})";
  const std::string after = edited(catalog, {{"k", "de", {{"@", "n"}, {"plural", "other"}}, "%arg!", {}, {}}});
  EXPECT_NE(after.find(R"("n":{"argNum":2,"formatSpecifier":"lld","variations")"), after.rfind(R"("n":{"argNum")"));
  EXPECT_EQ(CatalogDocument(after).languages(), (std::vector<std::string>{"de", "en"}));
}

TEST(CatalogEdits, AnotherLayoutIsFollowed) {
  EXPECT_EQ(edited(R"({"strings":{"a":{}}})", {{"a", "de", {}, "x", {}, {}}}),
            R"({"strings":{"a":{"localizations":{"de":{"stringUnit":{"state":"translated","value":"x"}}}}}})");
  EXPECT_EQ(edited("{\r\n\t\"strings\": {}\r\n}\r\n", {{"a", "de", {}, "x", {}, {}}}),
            "{\r\n\t\"strings\": {\r\n\t\t\"a\": {\r\n\t\t\t\"localizations\": {\r\n\t\t\t\t\"de\": {\r\n"
            "\t\t\t\t\t\"stringUnit\": {\r\n\t\t\t\t\t\t\"state\": \"translated\",\r\n\t\t\t\t\t\t\"value\": \"x\"\r\n"
            "\t\t\t\t\t}\r\n\t\t\t\t}\r\n\t\t\t}\r\n\t\t}\r\n\t}\r\n}\r\n");
}

TEST(CatalogEdits, MarksAndUnknownMembersStay) {
  const std::string catalog =
      "\xEF\xBB\xBF{ \"x\" : [ 1,2 ], \"strings\" : { \"a\" : { \"y\" : null, \"localizations\" "
      ": { \"de\" : { \"z\" : 1, \"stringUnit\" : { \"value\" : \"A\" } } } } } }\n";
  EXPECT_EQ(edited(catalog, {{"a", "de", {}, "B", {}, {}}}),
            replaced(catalog, "{ \"value\" : \"A\" }", "{ \"state\" : \"translated\", \"value\" : \"B\" }"));
}

TEST(CatalogEdits, AFileWithAMistakeIsNotWritten) {
  EXPECT_EQ(edited("{\"strings\":{", {}), "error: The file ends before its object does.");
  EXPECT_EQ(edited("[]", {}), "error: The file is no string catalog: its outermost value is no object.");
  EXPECT_EQ(edited("{\"strings\":[]}", {}), "error: “strings” is no object.");
  EXPECT_EQ(edited("{\"strings\":{\"a\":1}}", {}), "error: What a key stands for is no object.");
  EXPECT_EQ(edited("{\"strings\":{\"a\":{\"localizations\":{\"de\":1}}}}", {{"a", "de", {}, "x", {}, {}}}),
            "error: “a” has no room for this text in the language de.");
}

TEST(CatalogDocument, TellsWhatItHolds) {
  const CatalogDocument document{std::string(kCatalog)};
  ASSERT_FALSE(document.error());
  EXPECT_EQ(document.sourceLanguage(), "en");
  EXPECT_EQ(document.languages(), (std::vector<std::string>{"de", "en", "fr"}));
  ASSERT_EQ(document.keys().size(), 4U);
  const CatalogKey boats = document.keyAt(document.keys()[0]);
  EXPECT_EQ(boats.key, "%lld boats");
  EXPECT_EQ(boats.comment, "How many boats");
  EXPECT_EQ(boats.units.front(), (CatalogUnit{"en", kOne, "translated", "%lld boat"}));
  EXPECT_EQ(document.keyAt(document.keys()[3]).extractionState, "stale");
}

TEST(CatalogDocument, NestedVariationsHaveOneStepEach) {
  const CatalogDocument document(
      R"({"strings":{"k":{"shouldTranslate":false,"localizations":{"en":{"variations":{"device":
    {"mac":{"variations":{"plural":{"one":{"stringUnit":{"value":"x"}}}}}}}}}}}})");
  ASSERT_FALSE(document.error());
  const CatalogKey key = document.keyAt(document.keys().front());
  EXPECT_FALSE(key.shouldTranslate);
  ASSERT_EQ(key.units.size(), 1U);
  EXPECT_EQ(key.units.front().variation, (Variation{{"device", "mac"}, {"plural", "one"}}));
  EXPECT_EQ(rowName("k", key.units.front().variation), "k ▸ mac ▸ one");
}

TEST(CatalogDocument, AMistakeHasItsLine) {
  const CatalogDocument document("{\n  \"strings\" : {\n    \"a\" : {},\n  }\n}");
  ASSERT_TRUE(document.error());
  EXPECT_EQ(document.error()->place, (TextPlace{4, 3}));
  EXPECT_EQ(document.keys().size(), 1U);
}

TEST(CatalogDocument, RepeatedKeysHaveTheirLinesAndTheLastOneCounts) {
  const CatalogDocument document("{\"strings\":{\n\"a\":{\"comment\":\"x\"},\n\"a\":{\"comment\":\"y\"}}}");
  EXPECT_EQ(document.repeatedKeys(), (std::vector<CatalogDocument::RepeatedKey>{{"a", {2, 3}}}));
  ASSERT_EQ(document.keys().size(), 1U);
  EXPECT_EQ(document.keyAt(document.keys().front()).comment, "y");
}

TEST(Variation, StepsThatCouldBeTakenForOthersNameTheirKind) {
  EXPECT_EQ(rowName("k", {}), "k");
  EXPECT_EQ(rowName("k", {{"device", "other"}}), "k ▸ device:other");
  EXPECT_EQ(rowName("k", {{"plural", "other"}}), "k ▸ other");
  EXPECT_EQ(rowName("k", {{"@", "files"}, {"plural", "one"}}), "k ▸ @files ▸ one");
  EXPECT_EQ(rowName("k", {{"width", "20"}}), "k ▸ width:20");
  EXPECT_EQ(rowName("k", {{"device", "a:b"}}), std::nullopt);
  EXPECT_EQ(rowName("k", {{"device", ""}}), std::nullopt);
}

}  // namespace
}  // namespace glossmill
