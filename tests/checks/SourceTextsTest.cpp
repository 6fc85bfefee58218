#include <gtest/gtest.h>

#include "checks/ProjectOfRows.h"
#include "checks/SourceTexts.h"

namespace glossmill {
namespace {

using Text = std::optional<std::string_view>;

TEST(SourceTexts, AreTheTextsOfTheLanguageThatIsTranslatedFrom) {
  ProjectOfRows rows({"en", "de"});
  rows.add("open", {{"en", "Open"}, {"de", "Öffnen"}});
  EXPECT_EQ(SourceTexts(rows.project).of(0), Text("Open"));
}

TEST(SourceTexts, AreKeysWhereThatLanguageHasNone) {
  ProjectOfRows rows({"en", "de"});
  rows.add("Open file", {{"de", "Datei öffnen"}});
  rows.add("Close file", {{"en", ""}, {"de", "Datei schließen"}});
  rows.add("%@", {});
  const SourceTexts sources(rows.project);
  EXPECT_EQ(sources.of(0), Text("Open file"));
  EXPECT_EQ(sources.of(1), Text("Close file"));
  EXPECT_EQ(sources.of(2), Text("%@"));
}

TEST(SourceTexts, AreNotKnownWhereAKeyIsOnlyAName) {
  ProjectOfRows rows({"en", "de"});
  rows.add("open.title", {{"de", "Öffnen"}});
  EXPECT_EQ(SourceTexts(rows.project).of(0), Text());
}

TEST(SourceTexts, AKeyIsOnlyANameWhenSeveralLanguagesAgreeOnSpecifiersThatItLacks) {
  ProjectOfRows rows({"en", "de", "fr", "it"});
  rows.add("file count", {{"de", "%d Dateien"}, {"fr", "%d fichiers"}});
  rows.add("by author", {{"de", "%1$@ von %2$@"}, {"fr", "%@ de %@"}, {"it", "%@"}});
  rows.add("one of them", {{"de", "%d Dateien"}, {"fr", "fichiers"}});
  rows.add("two of them", {{"de", "%d Dateien"}, {"fr", "%@ fichiers"}});
  rows.add("50 % off", {{"de", "50 %"}, {"fr", "50 %"}});
  const SourceTexts sources(rows.project);
  EXPECT_EQ(sources.of(0), Text());
  EXPECT_EQ(sources.of(1), Text());
  EXPECT_EQ(sources.of(2), Text("one of them"));
  EXPECT_EQ(sources.of(3), Text("two of them"));
  EXPECT_EQ(sources.of(4), Text("50 % off"));
}

TEST(SourceTexts, AreNotKnownWhereOneWasCutOffAtAQuoteBehindABackslash) {
  ProjectOfRows rows({"en", "de"});
  rows.add("name in use", {{"en", "The name \\"}, {"de", "Der Name „%@“ ist vergeben"}});
  rows.add("Berth \\", {{"de", "Platz"}});
  rows.add("a backslash", {{"en", "Type \\\\"}, {"de", "Tippe \\\\"}});
  rows.addToTable("C:\\", "Drive C:\\", {{"en", "Drive C:\\"}});
  const SourceTexts sources(rows.project);
  EXPECT_EQ(sources.of(0), Text());
  EXPECT_EQ(sources.of(1), Text());
  EXPECT_EQ(sources.of(2), Text("Type \\\\"));
  EXPECT_EQ(sources.of(3), Text("Drive C:\\"));
}

TEST(SourceTexts, OfATableAreWhatItSays) {
  ProjectOfRows rows({"en", "de"});
  rows.addToTable("5.title", "Zoom", {{"de", "Zoomen"}});
  rows.addToTable("6.title", "", {{"de", "Öffnen"}});
  rows.addToTable("ERROR_COUNT", "ERROR_COUNT", {{"de", "%d Fehler"}});
  rows.addToTable("Zoom in", "Zoom in", {{"de", "Größer"}});
  rows.addToTable("7.title", "Zoom", {{"en", "Zoom!"}});
  const SourceTexts sources(rows.project);
  EXPECT_EQ(sources.of(0), Text("Zoom"));
  EXPECT_EQ(sources.of(1), Text());
  EXPECT_EQ(sources.of(2), Text());
  EXPECT_EQ(sources.of(3), Text("Zoom in"));
  EXPECT_EQ(sources.of(4), Text("Zoom!"));
}

}  // namespace
}  // namespace glossmill
