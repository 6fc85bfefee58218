#include <gtest/gtest.h>

#include "exchange/PluralRules.h"
#include "exchange/PoEscapes.h"
#include "exchange/PoReader.h"
#include "exchange/PoWriter.h"
#include "support/RandomUnits.h"
#include "support/ReturnedTexts.h"

namespace glossmill {
namespace {

ExchangeUnit castOff() {
  ExchangeUnit unit;
  unit.table = "app/Boats";
  unit.key = "cast.off";
  unit.source = "Cast off %@";
  unit.comment = "Button\nin the bow";
  unit.places = {"Deck.m:12", "The Bow.m:3"};
  unit.texts = {{0, "Ablegen %@"}};
  unit.isFormat = true;
  return unit;
}

std::string poOf(ExchangeUnit unit, std::string_view language = "de") {
  ExchangeDocument document;
  document.project = "Harbour";
  document.sourceLanguage = "en";
  document.languages = {std::string(language)};
  document.units = {std::move(unit)};
  return poText(document, {false, "1.2"}).files.front().text;
}

std::string entryOf(ExchangeUnit unit) {
  const std::string text = poOf(std::move(unit));
  return text.substr(text.find("\n\n") + 2);
}

ExchangeUnit onlyUnit(const std::string& text) {
  const auto read = readPo(text);
  EXPECT_TRUE(read) << read.error().sentence;
  EXPECT_EQ(read.value().units.size(), 1U);
  return read.value().units.front();
}

std::string poError(const std::string& text) {
  const auto read = readPo(text);
  return read ? "none" : read.error().sentence;
}

TEST(Po, SaysLanguageProgramAndPluralsInItsHeader) {
  const std::string text = poOf(castOff());
  EXPECT_EQ(text.substr(0, text.find("\n\n") + 1),
            "msgid \"\"\n"
            "msgstr \"\"\n"
            "\"Project-Id-Version: Harbour\\n\"\n"
            "\"POT-Creation-Date: \\n\"\n"
            "\"PO-Revision-Date: \\n\"\n"
            "\"Last-Translator: \\n\"\n"
            "\"Language-Team: \\n\"\n"
            "\"Language: de\\n\"\n"
            "\"MIME-Version: 1.0\\n\"\n"
            "\"Content-Type: text/plain; charset=UTF-8\\n\"\n"
            "\"Content-Transfer-Encoding: 8bit\\n\"\n"
            "\"Plural-Forms: nplurals=2; plural=(n != 1);\\n\"\n"
            "\"X-Source-Language: en\\n\"\n"
            "\"X-Generator: Glossmill 1.2\\n\"\n");
}

TEST(Po, HasCommentsPlacesAndFlagsInFrontOfAnEntry) {
  EXPECT_EQ(entryOf(castOff()),
            "#. Button\n"
            "#. in the bow\n"
            "#: Deck.m:12\n"
            "#: \u2068The Bow.m\u2069:3\n"
            "#, objc-format\n"
            "msgctxt \"app/Boats:cast.off\"\n"
            "msgid \"Cast off %@\"\n"
            "msgstr \"Ablegen %@\"\n");
}

TEST(Po, MarksAsFuzzyWhatSomebodyHasToLookAtOrGettextWouldRefuse) {
  ExchangeUnit unit = castOff();
  unit.isUnsure = true;
  EXPECT_NE(entryOf(unit).find("#, fuzzy, objc-format\n"), std::string::npos);
  unit.texts.clear();
  EXPECT_NE(entryOf(unit).find("#, objc-format\n"), std::string::npos);
  unit = castOff();
  unit.isFormat = false;
  unit.texts = {{0, "Ablegen\n"}};
  EXPECT_NE(entryOf(unit).find("#, fuzzy\n"), std::string::npos);
}

TEST(Po, PutsALineOfTheTextOnALine) {
  ExchangeUnit unit;
  unit.key = "k";
  unit.source = "a\nb\n";
  unit.texts = {{0, "one\n"}};
  EXPECT_EQ(entryOf(unit), "msgctxt \"Localizable:k\"\nmsgid \"\"\n\"a\\n\"\n\"b\\n\"\nmsgstr \"one\\n\"\n");
}

TEST(Po, TheContextIsReadBackWithItsColonsAndPercentSigns) {
  EXPECT_EQ(poContext("a:b%c", "d:e%3A"), "a%3Ab%25c:d:e%3A");
  ExchangeUnit unit;
  unit.table = "a:b%c";
  unit.key = "d:e%3A";
  unit.texts = {{0, "x"}};
  const ExchangeUnit read = onlyUnit(poOf(unit));
  EXPECT_EQ(read.table, "a:b%c");
  EXPECT_EQ(read.key, "d:e%3A");
}

TEST(Po, ReadsWhatTranslatorsProgramsWrite) {
  const ExchangeUnit unit = onlyUnit(
      "# somebody\r\n#~ msgid \"old\"\r\n#~ msgstr \"alt\"\r\n\r\n#| msgid \"was\"\r\n#. Menu\r\n#, fuzzy, c-format\r\n"
      "msgctxt \"t:\"\r\n  \"k\"\r\nmsgid \"a\"\r\nmsgstr \"\"\r\n\"b\\x41\\101\\t\"\r\n\"c\"\r\n");
  EXPECT_EQ(unit.table, "t");
  EXPECT_EQ(unit.key, "k");
  EXPECT_EQ(unit.source, "a");
  EXPECT_EQ(unit.comment, "Menu");
  EXPECT_TRUE(unit.isUnsure);
  EXPECT_EQ(unit.line, 8U);
  EXPECT_EQ(unit.texts, (std::vector<UnitText>{{0, "bAA\tc"}}));
}

TEST(Po, AnEntryWithoutAContextHasItsIdForAKey) {
  const ExchangeUnit unit = onlyUnit("msgid \"Open\"\nmsgstr \"Auf\"\n");
  EXPECT_EQ(unit.table, "");
  EXPECT_EQ(unit.key, "Open");
}

TEST(Po, TakesTheLanguageFromTheHeader) {
  const auto read = readPo(poOf(castOff(), "pt_BR"));
  ASSERT_TRUE(read);
  EXPECT_EQ(read.value().languages, (std::vector<std::string>{"pt_BR"}));
  EXPECT_EQ(read.value().sourceLanguage, "en");
}

TEST(Po, RejectsPlurals) {
  const auto read =
      readPo("msgid \"a\"\nmsgid_plural \"as\"\nmsgstr[0] \"b\"\nmsgstr[1] \"bs\"\n\nmsgid \"c\"\nmsgstr \"d\"\n");
  ASSERT_TRUE(read);
  EXPECT_EQ(read.value().units.size(), 1U);
  EXPECT_EQ(read.value().rejected, (std::vector<RejectedLine>{{1, "Entries with plurals are not read."}}));
}

TEST(Po, SaysWhatIsWrongAndWhere) {
  EXPECT_EQ(poError("msgid \"a\"\nmsgstr \"b\n"), "line 2: The quotes do not fit.");
  EXPECT_EQ(poError("msgid \"a\"b\"\nmsgstr \"\"\n"), "line 1: The quotes do not fit.");
  EXPECT_EQ(poError("msgid \"a\\\"\nmsgstr \"\"\n"), "line 1: The quotes do not fit.");
  EXPECT_EQ(poError("msgid \"a\"\n\nmsgid \"b\"\nmsgstr \"c\"\n"), "line 3: The entry has the same part twice.");
  EXPECT_EQ(poError("msgid \"a\"\n"), "line 1: The entry has no id or no translation.");
  EXPECT_EQ(poError("msgid \"a\\q\"\nmsgstr \"\"\n"),
            "line 1: It holds an escape that is unknown, or that makes no UTF-8.");
  EXPECT_EQ(poError("msgid \"a\\377\"\nmsgstr \"\"\n"),
            "line 1: It holds an escape that is unknown, or that makes no UTF-8.");
  EXPECT_EQ(poError("\"a\"\n"), "line 1: A text belongs to nothing.");
  EXPECT_EQ(poError("<?xml version=\"1.0\"?>\n"), "line 1: It begins with no word that PO files know.");
  EXPECT_EQ(poError("msgid \"\"\nmsgstr \"Content-Type: text/plain; charset=ISO-8859-1\\n\"\n"),
            "line 1: The file is not in UTF-8, says its header; save it in UTF-8.");
}

TEST(Po, LeavesOutWhatGettextHasNoPlaceForAndSaysSo) {
  ExchangeDocument document;
  document.languages = {"de"};
  document.units = {castOff(), castOff()};
  document.units[1].key = "\x04";
  const WrittenExchange written = poText(document, {});
  ASSERT_EQ(written.leftOut.size(), 1U);
  EXPECT_EQ(written.leftOut.front().sentence, "It holds U+0004, which the format cannot carry.");
}

TEST(Po, EscapesComeBackAsTheyWere) {
  for (const std::string text : {"\a\b\f\n\r\t\v\"\\",
                                 "\x01"
                                 "1",
                                 "\x7F", "a\nb", "\n", ""}) {
    std::string line;
    appendPoText(line, "msgid", text);
    const ExchangeUnit unit = onlyUnit("msgctxt \"x\"\n" + line + "msgstr \"\"\n");
    EXPECT_EQ(unit.source, text);
  }
}

TEST(Po, EveryTextOfUnicodeComesBackAsItWas) {
  const ExchangeFormat& format = *formatNamed(exchangeFormats(), "po");
  for (unsigned seed = 1; seed <= 300; ++seed) expectReturn(format, randomDocument(seed));
}

TEST(PluralRules, AreThoseOfTheBaseLanguageButForBrazil) {
  EXPECT_EQ(pluralRuleOf("de-CH"), "nplurals=2; plural=(n != 1);");
  EXPECT_EQ(pluralRuleOf("pt"), "nplurals=2; plural=(n != 1);");
  EXPECT_EQ(pluralRuleOf("pt_BR"), "nplurals=2; plural=(n > 1);");
  EXPECT_EQ(pluralRuleOf("zh-Hans"), "nplurals=1; plural=0;");
  EXPECT_TRUE(pluralRuleOf("tlh").empty());
}

}  // namespace
}  // namespace glossmill
