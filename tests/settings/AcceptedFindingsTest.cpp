#include <gtest/gtest.h>

#include "settings/AcceptedFindings.h"
#include "settings/ReadingChoice.h"
#include "support/InMemoryFiles.h"

namespace glossmill {
namespace {

const Acceptance kFormat{"Main", "open", "de", Check::Format, "Open %@", "Öffnen"};
const Acceptance kMissing{"", "close", "fr", Check::Missing, std::nullopt, std::nullopt};

std::string mistakeOfAcceptances(std::string_view text) {
  const Result<std::vector<Acceptance>> acceptances = parseAcceptances(text);
  return acceptances ? "none" : acceptances.error().sentence;
}

TEST(AcceptedFindings, AreSortedAndHaveALineForEachMember) {
  EXPECT_EQ(acceptancesText({kFormat, kMissing, kFormat}), R"json({
  "accepted": [
    {
      "check": "missing",
      "key": "close",
      "language": "fr",
      "source": null,
      "translation": null
    },
    {
      "check": "format",
      "table": "Main",
      "key": "open",
      "language": "de",
      "source": "Open %@",
      "translation": "Öffnen"
    }
  ]
}
)json");
}

TEST(AcceptedFindings, TheirTextSaysTheSame) {
  EXPECT_EQ(parseAcceptances(acceptancesText({kMissing, kFormat})).value(),
            (std::vector<Acceptance>{kMissing, kFormat}));
  EXPECT_EQ(parseAcceptances(acceptancesText({})).value(), std::vector<Acceptance>());
}

TEST(AcceptedFindings, AMistakeHasLineAndKey) {
  EXPECT_EQ(mistakeOfAcceptances("{\n\"a\": 1}"), ".glossmill-accepted.json, line 2: \"a\" is not known");
  EXPECT_EQ(mistakeOfAcceptances("{\"accepted\": 1}"),
            ".glossmill-accepted.json, line 1: \"accepted\" takes a list of objects");
  EXPECT_EQ(mistakeOfAcceptances("{\"accepted\": [\n1]}"),
            ".glossmill-accepted.json, line 2: \"accepted\" takes a list of objects");
  EXPECT_EQ(mistakeOfAcceptances("{\"accepted\": [\n{\"key\": \"a\"}]}"),
            ".glossmill-accepted.json, line 2: \"accepted\" holds an object without a check");
  EXPECT_EQ(mistakeOfAcceptances("{\"accepted\": [{\"check\": \"format\",\n\"key\": null}]}"),
            ".glossmill-accepted.json, line 2: \"key\" in \"accepted\" takes a text");
  EXPECT_EQ(mistakeOfAcceptances("{"), ".glossmill-accepted.json, line 1: this is not correct JSON");
}

TEST(AcceptedFindings, AChangeTakesTheFileAsItIsAndGoesBack) {
  InMemoryFiles files;
  files.addDirectory("/p");
  const FileUrl project("/p");
  const AcceptanceChange change{{kFormat}, {}};
  EXPECT_EQ(changeAcceptances(files, project, change).value(), std::vector<Acceptance>{kFormat});
  files.addFile("/p/.glossmill-accepted.json", acceptancesText({kFormat, kMissing}));
  EXPECT_EQ(changeAcceptances(files, project, reversed(change)).value(), std::vector<Acceptance>{kMissing});
  EXPECT_EQ(readAcceptances(files, project).value(), std::vector<Acceptance>{kMissing});
}

TEST(AcceptedFindings, OneForOtherTextsTakesThePlaceOfTheFormer) {
  Acceptance later = kFormat;
  later.translation = "Aufmachen";
  EXPECT_EQ(changedAcceptances({kFormat, kMissing}, {{later}, {}}), (std::vector<Acceptance>{kMissing, later}));
}

TEST(AcceptedFindings, AreLeftAloneWhereTheFileIsWrong) {
  InMemoryFiles files;
  files.addFile("/p/.glossmill-accepted.json", "{");
  EXPECT_EQ(changeAcceptances(files, FileUrl("/p"), {{kFormat}, {}}).error().sentence,
            ".glossmill-accepted.json, line 1: this is not correct JSON");
  EXPECT_EQ(files.bytesOf("/p/.glossmill-accepted.json"), "{");
  files.failWriting("/p/.glossmill-accepted.json", "It is locked.");
  files.addFile("/p/.glossmill-accepted.json", "{}");
  EXPECT_EQ(changeAcceptances(files, FileUrl("/p"), {{kFormat}, {}}).error().sentence,
            "cannot write .glossmill-accepted.json: It is locked.");
}

TEST(AcceptedFindings, ComeWithTheSettingsWhenAProjectIsOpened) {
  InMemoryFiles files;
  files.addFile("/p/.glossmill.json", "{\"sourceLanguage\": \"en\", \"checks\": {\"keep\": [\"OK\"]}}");
  files.addFile("/p/.glossmill-accepted.json", acceptancesText({kFormat}));
  const auto absolute = [](std::string_view path) { return FileUrl(path); };
  const CheckSettings checks = readingChoice(files, FileUrl("/p"), {}, absolute).value().checks;
  EXPECT_EQ(checks.accepted, std::vector<Acceptance>{kFormat});
  EXPECT_EQ(checks.keep, std::vector<std::string>{"OK"});
  EXPECT_EQ(checks.sourceLanguage, "en");
  files.addFile("/p/.glossmill-accepted.json", "[]");
  EXPECT_EQ(readingChoice(files, FileUrl("/p"), {}, absolute).error().sentence,
            ".glossmill-accepted.json, line 1: an object is expected, in braces");
}

}  // namespace
}  // namespace glossmill
