#include <gtest/gtest.h>

#include "formats/XliffReader.h"
#include "formats/XmlFormats.h"
#include "support/RandomUnits.h"
#include "support/ReturnedTexts.h"

namespace glossmill {
namespace {

const ExchangeFormat& xmlFormat(std::string_view name) {
  return *formatNamed(xmlFormats(), name);
}

ExchangeUnit boatUnit(std::string_view key, std::string_view file) {
  ExchangeUnit unit;
  unit.table = "app/Boats";
  unit.file = file;
  unit.key = key;
  unit.source = "A & B";
  unit.comment = "Menu\nBow";
  unit.places = {"Deck.m:12"};
  unit.texts = {{0, "A\r< B\n"}};
  return unit;
}

ExchangeDocument boatDocument() {
  ExchangeDocument document;
  document.project = "Harbour";
  document.sourceLanguage = "en";
  document.languages = {"pt_BR"};
  document.units = {boatUnit("a\tb\"", "app/en.lproj/Boats.strings"), boatUnit("c", "en.lproj/Knots.strings"),
                    boatUnit("d", "app/en.lproj/Boats.strings")};
  document.units[2].texts.clear();
  document.units[2].comment.clear();
  return document;
}

std::string inFile(const std::string& units) {
  return "<xliff version=\"1.2\"><file original=\"en.lproj/Boats.strings\" source-language=\"en\" "
         "target-language=\"de\">\n<body>" +
         units + "</body></file></xliff>";
}

std::string inFile2(const std::string& units) {
  return "<xliff version=\"2.0\" srcLang=\"en\" trgLang=\"de\"><file id=\"f\" original=\"en.lproj/Boats.strings\">" +
         units + "</file></xliff>";
}

/// "key=text" of each unit, and "line: sentence" of each that was rejected.
std::vector<std::string> readLines(const std::string& xml) {
  const auto read = readXliff(xml);
  if (!read) return {read.error().sentence};
  std::vector<std::string> lines;
  for (const ExchangeUnit& unit : read.value().units) {
    const std::string* text = unit.textIn(0);
    lines.push_back(unit.key + "=" + (text ? *text : "-") + (unit.isUnsure ? " unsure" : ""));
  }
  for (const RejectedLine& line : read.value().rejected)
    lines.push_back(std::to_string(line.line) + ": " + line.sentence);
  return lines;
}

using Lines = std::vector<std::string>;

TEST(Xliff, IsWrittenAsXcodeWritesIt) {
  const WrittenExchange written = xmlFormat("xliff").write(boatDocument(), {false, "1.2"});
  EXPECT_EQ(written.files.front().text,
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
            "<xliff xmlns=\"urn:oasis:names:tc:xliff:document:1.2\" "
            "xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\" version=\"1.2\" "
            "xsi:schemaLocation=\"urn:oasis:names:tc:xliff:document:1.2 "
            "http://docs.oasis-open.org/xliff/v1.2/os/xliff-core-1.2-strict.xsd\">\n"
            "  <file original=\"app/en.lproj/Boats.strings\" source-language=\"en\" target-language=\"pt-BR\" "
            "datatype=\"plaintext\">\n"
            "    <header>\n"
            "      <tool tool-id=\"glossmill\" tool-name=\"Glossmill\" tool-version=\"1.2\"/>\n"
            "    </header>\n"
            "    <body>\n"
            "      <trans-unit id=\"a&#9;b&quot;\" xml:space=\"preserve\">\n"
            "        <source>A &amp; B</source>\n"
            "        <target>A&#13;&lt; B\n</target>\n"
            "        <note>Menu\nBow</note>\n"
            "      </trans-unit>\n"
            "      <trans-unit id=\"d\" xml:space=\"preserve\">\n"
            "        <source>A &amp; B</source>\n"
            "      </trans-unit>\n"
            "    </body>\n"
            "  </file>\n"
            "  <file original=\"en.lproj/Knots.strings\" source-language=\"en\" target-language=\"pt-BR\" "
            "datatype=\"plaintext\">\n"
            "    <header>\n"
            "      <tool tool-id=\"glossmill\" tool-name=\"Glossmill\" tool-version=\"1.2\"/>\n"
            "    </header>\n"
            "    <body>\n"
            "      <trans-unit id=\"c\" xml:space=\"preserve\">\n"
            "        <source>A &amp; B</source>\n"
            "        <target>A&#13;&lt; B\n</target>\n"
            "        <note>Menu\nBow</note>\n"
            "      </trans-unit>\n"
            "    </body>\n"
            "  </file>\n"
            "</xliff>\n");
}

TEST(Xliff, SecondVersionHasUnitsWithSegmentsAndNotes) {
  ExchangeDocument document = boatDocument();
  document.units.resize(1);
  document.units[0].texts = {{0, "x\a"}};
  const WrittenExchange written = xmlFormat("xliff2").write(document, {});
  EXPECT_EQ(written.files.front().text,
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
            "<xliff xmlns=\"urn:oasis:names:tc:xliff:document:2.0\" version=\"2.0\" srcLang=\"en\" trgLang=\"pt-BR\">\n"
            "  <file id=\"f1\" original=\"app/en.lproj/Boats.strings\" xml:space=\"preserve\">\n"
            "    <unit id=\"u1\" name=\"a&#9;b&quot;\">\n"
            "      <notes>\n"
            "        <note category=\"description\">Menu\nBow</note>\n"
            "        <note category=\"location\">Deck.m:12</note>\n"
            "      </notes>\n"
            "      <segment state=\"translated\">\n"
            "        <source>A &amp; B</source>\n"
            "        <target>x<cp hex=\"0007\"/></target>\n"
            "      </segment>\n"
            "    </unit>\n"
            "  </file>\n"
            "</xliff>\n");
}

TEST(Xliff, LeavesOutWhatXmlHasNoCharacterForAndSaysSo) {
  ExchangeDocument document = boatDocument();
  document.units[0].texts[0].text = "x\a";
  document.units[1].key = "\x1B";
  const WrittenExchange first = xmlFormat("xliff").write(document, {});
  ASSERT_EQ(first.leftOut.size(), 2U);
  EXPECT_EQ(first.leftOut[0].sentence, "It holds U+0007, which the format cannot carry.");
  const WrittenExchange second = xmlFormat("xliff2").write(document, {});
  ASSERT_EQ(second.leftOut.size(), 1U);
  EXPECT_EQ(second.leftOut[0].sentence, "It holds U+001B, which the format cannot carry.");
}

TEST(Xliff, EveryTextOfUnicodeComesBackAsItWas) {
  for (const char* name : {"xliff", "xliff2"}) {
    for (unsigned seed = 1; seed <= 300; ++seed) expectReturn(xmlFormat(name), randomDocument(seed));
  }
}

TEST(Xliff, SaysPlaceLanguageAndNoteOfAUnit) {
  const auto read =
      readXliff(inFile("\n<trans-unit id=\"k\"><source>s</source><target>t</target><note>n</note><note/>"
                       "<note>m</note></trans-unit>"));
  ASSERT_TRUE(read);
  EXPECT_EQ(read.value().sourceLanguage, "en");
  EXPECT_EQ(read.value().languages, Lines{"de"});
  const ExchangeUnit& unit = read.value().units.front();
  EXPECT_EQ(unit.table, "Boats");
  EXPECT_EQ(unit.source, "s");
  EXPECT_EQ(unit.comment, "n\n\nm");
  EXPECT_EQ(unit.line, 3U);
}

TEST(Xliff, FindsUnitsInGroupsAndTakesPrefixesAsTheyCome) {
  EXPECT_EQ(readLines("<x:xliff version='1.2'><x:file target-language='de'><x:body><x:group><x:group>"
                      "<x:trans-unit id='k'><x:target>t</x:target></x:trans-unit>"
                      "</x:group></x:group></x:body></x:file></x:xliff>"),
            Lines{"k=t"});
}

TEST(Xliff, TakesWhiteSpaceAndCdataAsTheyStand) {
  EXPECT_EQ(readLines(inFile("<trans-unit id='a'><target> </target></trans-unit>"
                             "<trans-unit id='b'><target> x<![CDATA[<&]]>\r\ny</target></trans-unit>"
                             "<trans-unit id='c'><target/></trans-unit>")),
            (Lines{"a= ", "b= x<&\ny", "c=-"}));
}

TEST(Xliff, TakesTheTextOfTagsThatHoldCodeAndRejectsOthers) {
  EXPECT_EQ(readLines(inFile(
                "<trans-unit id='a'><target>x <ph id='1'>%@</ph> <mrk mtype='seg'>y</mrk></target></trans-unit>\n"
                "<trans-unit id='b'><target>x <g id='1'>y</g></target></trans-unit>\n"
                "<trans-unit id='c'><target>x <x id='1'/></target></trans-unit>\n"
                "<bin-unit id='d'/>")),
            (Lines{"a=x %@ y", "3: The translation holds the tag <g>, which a strings file has no place for.",
                   "4: The translation holds the tag <x>, which a strings file has no place for.",
                   "5: Units of binary data are not read."}));
}

TEST(Xliff, SecondVersionTakesCodeFromTheOriginalDataAndRejectsTheRest) {
  EXPECT_EQ(readLines(inFile2("<unit id='u1' name='a'><originalData><data id='d'>%@</data></originalData><segment>"
                              "<source>x</source><target>y <ph id='1' dataRef='d'/><cp hex='001b'/></target>"
                              "</segment></unit>")),
            Lines{"a=y %@\x1B"});
  EXPECT_EQ(readLines(inFile2("<unit id='a'><segment><target>y <ph id='1'/></target></segment></unit>")),
            Lines{"1: The translation holds the tag <ph>, which a strings file has no place for."});
  EXPECT_EQ(readLines(inFile2("<unit id='a'><segment><target><cp hex='D800'/></target></segment></unit>")),
            Lines{"1: The translation holds the tag <cp>, which a strings file has no place for."});
}

TEST(Xliff, SecondVersionJoinsSegmentsAndRejectsGapsAndOtherOrders) {
  EXPECT_EQ(readLines(inFile2("<group id='g'><unit id='a'><segment><source>A.</source><target>B.</target></segment>"
                              "<ignorable><source> </source></ignorable>"
                              "<segment><source>C.</source><target>D.</target></segment></unit></group>")),
            Lines{"a=B. D."});
  EXPECT_EQ(readLines(inFile2("<unit id='a'><segment><target>B.</target></segment><segment/></unit>")),
            Lines{"1: Only some segments of the unit are translated."});
  EXPECT_EQ(readLines(inFile2("<unit id='a'><segment><target order='2'>B.</target></segment></unit>")),
            Lines{"1: The translation has its segments in another order."});
}

TEST(Xliff, StatesThatAskForSomebodyMakeATranslationUnsure) {
  EXPECT_EQ(readLines(inFile("<trans-unit id='a'><target state='needs-review-translation'>t</target></trans-unit>"
                             "<trans-unit id='b'><target state='new'>t</target></trans-unit>"
                             "<trans-unit id='c'><target state='final'>t</target></trans-unit>")),
            (Lines{"a=t unsure", "b=t unsure", "c=t"}));
  EXPECT_EQ(readLines(inFile2("<unit id='a'><segment state='initial'><target>t</target></segment></unit>"
                              "<unit id='b'><segment><target>t</target></segment></unit>")),
            (Lines{"a=t unsure", "b=t"}));
}

TEST(Xliff, RefusesOtherXmlAndWhatIsNotWellFormed) {
  EXPECT_EQ(readLines("<a/>"), Lines{"line 1: The outermost element is not <xliff>."});
  EXPECT_EQ(readLines("<xliff>\n<file></xliff>"), Lines{"line 2: A closing tag does not fit the one that it closes."});
  EXPECT_EQ(readLines(inFile("<trans-unit><target>t</target></trans-unit>")), Lines{"2: The unit has no id."});
}

TEST(Xcloc, HasItsTextsBelowLocalizedContents) {
  const WrittenExchange written = xmlFormat("xcloc").write(boatDocument(), {false, "1.2"});
  ASSERT_EQ(written.files.size(), 2U);
  EXPECT_EQ(written.files[0].path, "Localized Contents/pt-BR.xliff");
  EXPECT_EQ(written.files[0].text, xmlFormat("xliff").write(boatDocument(), {false, "1.2"}).files.front().text);
  EXPECT_EQ(written.files[1].path, "contents.json");
  EXPECT_EQ(written.files[1].text,
            "{\n  \"developmentRegion\" : \"en\",\n  \"project\" : \"Harbour\",\n  \"targetLocale\" : \"pt-BR\",\n"
            "  \"toolInfo\" : {\n    \"toolBuildNumber\" : \"1.2\",\n    \"toolID\" : \"glossmill\",\n"
            "    \"toolName\" : \"Glossmill\",\n    \"toolVersion\" : \"1.2\"\n  },\n  \"version\" : \"1.0\"\n}\n");
}

}  // namespace
}  // namespace glossmill
