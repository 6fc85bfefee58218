#include <gtest/gtest.h>

#include <string>

#include "xcode/StringsDocument.h"

namespace glossmill {
namespace {

/// Keys and values as "key=value|", and the mistake as "line:column sentence".
std::string entriesOf(const std::string& bytes, std::optional<FileEncoding> otherwise = std::nullopt) {
  const StringsDocument document(bytes, otherwise);
  std::string all;
  for (const StringsEntry& entry : document.entries()) {
    all += document.keyOf(entry) + "=" + document.valueOf(entry) + "|";
  }
  if (!document.error()) return all;
  const SyntaxError& error = *document.error();
  return all + std::to_string(error.place.line) + ":" + std::to_string(error.place.column) + " " + error.sentence;
}

TEST(StringsReader, TakesQuotedAndBareWords) {
  EXPECT_EQ(entriesOf("\"a\" = \"b\";\n'c d' = 'e';f=g;\"h\"=i;CFBundleName = \"j\";"),
            "a=b|c d=e|f=g|h=i|CFBundleName=j|");
}

TEST(StringsReader, AKeyAloneIsItsOwnValue) {
  EXPECT_EQ(entriesOf("\"a b\";\nc;\"d\\n\" ;"), "a b=a b|c=c|d\n=d\n|");
}

TEST(StringsReader, TheLastSemicolonMayBeMissing) {
  EXPECT_EQ(entriesOf("\"a\" = \"b\""), "a=b|");
  EXPECT_EQ(entriesOf("{ \"a\" = \"b\" /* c */ }"), "a=b|");
  EXPECT_EQ(entriesOf("\"a\" = \"b\" // c"), "a=b|");
}

TEST(StringsReader, WhiteSpaceAndCommentsStandAnywhereBetweenWords) {
  EXPECT_EQ(entriesOf("/*1*/\"a\"/*2*/=//3\r\"b\"/*4*/;//5\r\n\f\v\u2028\"c\"\t=\n\n\"d\"\u2029;"), "a=b|c=d|");
  EXPECT_EQ(entriesOf("\"/*\" = \"//\";"), "/*=//|");
}

TEST(StringsReader, OuterBracesAreAllowed) {
  EXPECT_EQ(entriesOf(" /* a */ { \"b\" = \"c\"; } // d\n"), "b=c|");
  EXPECT_EQ(entriesOf("{}"), "");
}

TEST(StringsReader, AnEmptyFileHasNoEntries) {
  EXPECT_EQ(entriesOf(""), "");
  EXPECT_EQ(entriesOf("\uFEFF"), "");
  EXPECT_EQ(entriesOf(" \n// a"), "");
}

TEST(StringsReader, ASecondMarkIsPassedOver) {
  EXPECT_EQ(entriesOf("\uFEFF\uFEFF\"a\" = \"b\";"), "a=b|");
}

TEST(StringsReader, KeysAndValuesAreWhatTheySpell) {
  EXPECT_EQ(entriesOf(R"("\U00e4\"" = "\344\n\q";)"), "ä\"=î\nq|");
}

TEST(StringsReader, AValueMayRunOverLines) {
  EXPECT_EQ(entriesOf("\"a\" = \"b\nc\";"), "a=b\nc|");
}

TEST(StringsReader, AMistakeIsToldAndWhatStandsInFrontIsShown) {
  EXPECT_EQ(entriesOf("\"a\" = \"b\"\n\"c\" = \"d\";"), "1:10 “;” is missing behind a value.");
  EXPECT_EQ(entriesOf("\"a\" = \"b\";\n\"c\" \"d\";"), "a=b|2:4 “=” is missing behind a key.");
  EXPECT_EQ(entriesOf("\"a\" = \"b\";\n\"c\""), "a=b|2:4 “=” is missing behind a key.");
  EXPECT_EQ(entriesOf("\"a\" = ;"), "1:7 A text is missing behind “=”.");
  EXPECT_EQ(entriesOf("\"a\" = { b = c; };"), "1:7 A text is missing behind “=”.");
  EXPECT_EQ(entriesOf("\"a\" = \"b\";;"), "a=b|1:11 A key is missing here.");
  EXPECT_EQ(entriesOf("\"a\" = \"b;\n"), "1:7 A text between quotes is not closed.");
  EXPECT_EQ(entriesOf("\"a = b;\n"), "1:1 A text between quotes is not closed.");
  EXPECT_EQ(entriesOf("a = b;\n/* c"), "a=b|2:1 A comment is not closed.");
  EXPECT_EQ(entriesOf("a = b; }"), "a=b|1:8 A key is missing here.");
  EXPECT_EQ(entriesOf("{ a = b;"), "a=b|1:9 “}” is missing at the end.");
  EXPECT_EQ(entriesOf("{ a = b; } c"), "a=b|1:12 Nothing may follow the closing brace.");
  EXPECT_EQ(entriesOf("a = b;\n<<<<<<< HEAD\n"), "a=b|2:1 A key is missing here.");
}

TEST(StringsReader, ReadsXml) {
  EXPECT_EQ(entriesOf("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!DOCTYPE plist>\n<plist version=\"1.0\">\n<dict>\n"
                      "<!-- c -->\t<key>a &amp; b</key>\n\t<string>c<![CDATA[<]]></string>\n<key>d</key><string/>"
                      "<key/><string></string></dict>\n</plist>\n"),
            "a & b=c<|d=|=|");
  EXPECT_EQ(entriesOf("<plist><dict/></plist>"), "");
  EXPECT_EQ(entriesOf("<?xml version=\"1.0\"?><dict><key>a</key><string>b</string></dict>"), "a=b|");
}

TEST(StringsReader, XmlHoldsOneDictionaryOfTexts) {
  const std::string a = "<key>a</key><string>b</string>";
  EXPECT_EQ(entriesOf("<plist><array/></plist>"), "1:8 The list is no dictionary.");
  EXPECT_EQ(entriesOf("<plist><dict>" + a + "<key>c</key><dict/></dict></plist>"),
            "a=b|1:56 A text is missing behind a key.");
  EXPECT_EQ(entriesOf("<plist><dict>" + a + "<string>c</string></dict></plist>"), "a=b|1:44 A key is missing here.");
  EXPECT_EQ(entriesOf("<plist><dict>" + a + "</dict>"), "a=b|1:51 The file ends before its list does.");
  EXPECT_EQ(entriesOf("<plist><dict>" + a + "</dict></plist><x/>"), "a=b|1:59 Nothing may follow the end of the list.");
  EXPECT_EQ(entriesOf("<plist><dict>" + a + "<key>c</key><string>&x;</string></dict></plist>"),
            "a=b|1:64 This is no text that XML knows.");
  EXPECT_EQ(entriesOf("<plist><dict>" + a), "a=b|1:44 A key is missing here.");
}

TEST(StringsReader, ABinaryListIsNotRead) {
  EXPECT_EQ(entriesOf("bplist00\x01\x02"), "1:1 The file is a binary property list.");
}

TEST(StringsReader, EncodingsAreToldByMarkZerosAndTheProject) {
  using namespace std::string_literals;
  EXPECT_EQ(entriesOf("\xFF\xFE\"\0\xE4\0\"\0=\0"
                      "b\0;\0"s),
            "ä=b|");
  EXPECT_EQ(entriesOf("\0\"\0\xE4\0\"\0=\0b\0;"s), "ä=b|");
  EXPECT_EQ(entriesOf("\"\x8A\" = b;", EightBitEncoding::MacRoman), "ä=b|");
  EXPECT_EQ(entriesOf("a = b;\n\"\xE4\" = b;"),
            "2:2 The file is not valid UTF-8 and has no byte-order mark of another encoding.");
}

TEST(StringsReader, XmlSaysItselfWhatItIsWrittenIn) {
  const std::string rest = "\"?><plist><dict><key>\xE4</key><string>b</string></dict></plist>";
  EXPECT_EQ(entriesOf("<?xml version=\"1.0\" encoding=\"ISO-8859-1" + rest, EightBitEncoding::MacRoman), "ä=b|");
  EXPECT_EQ(entriesOf("<?xml version=\"1.0\" encoding=\"x-unknown" + rest),
            "1:1 The encoding “x-unknown” is not known.");
}

TEST(StringsDocument, TellsRepeatedKeysWithTheirLines) {
  const StringsDocument document("a = 1;\nb = 2;\n\"a\" = 3; b = 4;\nc = 5;\n\n\"\\141\" = 6;\n");
  EXPECT_EQ(document.repeatedKeys(), (std::vector<StringsDocument::RepeatedKey>{{"b", {2, 3}}, {"a", {1, 3, 6}}}));
  EXPECT_TRUE(StringsDocument("a = 1; b = 2;").repeatedKeys().empty());
}

TEST(StringsDocument, KnowsItsLineEnds) {
  EXPECT_EQ(StringsDocument("a;\r\nb;\n").lineEnd(), "\r\n");
  EXPECT_EQ(StringsDocument("a;\rb;\r").lineEnd(), "\r");
  EXPECT_EQ(StringsDocument("a;").lineEnd(), "\n");
}

}  // namespace
}  // namespace glossmill
