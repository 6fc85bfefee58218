#include <gtest/gtest.h>

#include <string>

#include "safety/SaveManifest.h"

namespace glossmill {
namespace {

SaveManifest sample() {
  SaveManifest manifest;
  manifest.project = FileUrl("/x/My App");
  manifest.time = 1795283100;
  manifest.version = "0.1.0";
  manifest.command = "fill --language de";
  manifest.directories = {FileUrl("/x/My App/nb.lproj")};
  SavedFile changed;
  changed.file = FileUrl("/x/My App/de.lproj/Localizable.strings");
  changed.temporary = FileUrl("/x/My App/de.lproj/.glossmill-7-0.tmp");
  changed.language = "de";
  changed.mode = 0644;
  changed.before = contentHashOf("old");
  changed.after = contentHashOf("new");
  changed.entriesBefore = 282;
  changed.entriesAfter = 99;
  SavedFile created;
  created.file = FileUrl("/x/My App/nb.lproj/Localizable.strings");
  created.after = contentHashOf("");
  manifest.files = {changed, created};
  return manifest;
}

TEST(SaveManifest, ItsTextLeadsBackToIt) {
  const SaveManifest before = sample();
  const Result<SaveManifest> after = SaveManifest::fromText(before.text());
  ASSERT_TRUE(after);
  EXPECT_EQ(after.value().text(), before.text());
  EXPECT_EQ(after.value().project, before.project);
  EXPECT_EQ(after.value().command, "fill --language de");
  ASSERT_EQ(after.value().files.size(), 2U);
  EXPECT_EQ(after.value().files[0].entriesBefore, 282U);
  EXPECT_EQ(after.value().files[0].before, contentHashOf("old"));
  EXPECT_EQ(after.value().files[1].before, std::nullopt);
  EXPECT_EQ(after.value().files[1].entriesBefore, std::nullopt);
  EXPECT_TRUE(after.value().files[1].temporary.empty());
}

TEST(SaveManifest, OneThatWasCutOffAnywhereIsNone) {
  const std::string whole = sample().text();
  for (std::size_t length = 0; length < whole.size(); ++length) {
    EXPECT_FALSE(SaveManifest::fromText(whole.substr(0, length))) << length;
  }
}

TEST(SaveManifest, ALineThatSaysSomethingElseIsAnError) {
  std::string text = sample().text();
  text.insert(text.find("time "), "colour red\n");
  EXPECT_FALSE(SaveManifest::fromText(text));
  text = sample().text();
  text.replace(text.find("time ") + 5, 2, "x9");
  EXPECT_FALSE(SaveManifest::fromText(text));
}

}  // namespace
}  // namespace glossmill
