#include <gtest/gtest.h>

#include "xcode/PrintedPropertyList.h"

namespace glossmill {
namespace {

std::string readInPlist(const std::string& inside) {
  const PropertyList list("<plist version=\"1.0\">" + inside + "</plist>");
  const std::string mistake = mistakeOf(list);
  return mistake.empty() ? printed(list) : printed(list) + " " + mistake;
}

TEST(XmlPropertyList, ReadsAllKindsOfValues) {
  EXPECT_EQ(readInPlist("<dict><key>a</key><string>b</string><key>c</key><array><integer>4</integer><real>1.5</real>"
                        "<true/><false/></array><key>d</key><data>AAEC</data><key>e</key><dict/><key>f</key><array/>"
                        "<key>g</key><string/></dict>"),
            R"({"a"="b";"c"=("4","1.5","1","0",);"d"=<AAEC>;"e"={};"f"=();"g"="";})");
}

TEST(XmlPropertyList, PassesOverWhatStandsInFrontAndBetween) {
  const PropertyList list(
      "\uFEFF<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
      "<!DOCTYPE plist PUBLIC \"-//A > B//EN\" \"http://example.org/list.dtd\">\n"
      "<plist version='1.0'>\n<!-- a --><dict>\n\t<key>b</key><!-- c > -->\n\t<string>d</string>\n</dict>\n</plist>\n");
  EXPECT_EQ(printed(list), R"({"b"="d";})");
  EXPECT_FALSE(list.error());
}

TEST(XmlPropertyList, EntitiesSectionsAndCommentsStandForTheirText) {
  EXPECT_EQ(readInPlist("<string>&lt;&amp;&gt;&quot;&apos;&#65;&#xe4;&#x1F6A2;<![CDATA[<&amp;]]>a<!-- - -->b</string>"),
            R"("<&>\"'Aä🚢<&amp;ab")");
}

TEST(XmlPropertyList, WhiteSpaceInATextStays) {
  EXPECT_EQ(readInPlist("<string> a\n\tb </string>"), R"(" a\n\tb ")");
}

TEST(XmlPropertyList, AMistakeIsToldWithItsPlace) {
  EXPECT_EQ(readInPlist("<dict><key>a</key></dict>"), "{} 1:40 A key has no value.");
  EXPECT_EQ(readInPlist("<dict><string>a</string></dict>"), "{} 1:28 A key is missing here.");
  EXPECT_EQ(readInPlist("<array><key>a</key></array>"), "() 1:29 A value is missing here.");
  EXPECT_EQ(readInPlist("<dict></array>"), "{} 1:28 This tag closes nothing.");
  EXPECT_EQ(readInPlist("<dict>"), "{} 1:28 This tag closes nothing.");
  EXPECT_EQ(readInPlist("<string>a<b/></string>"), "nothing 1:31 A text is followed by the wrong tag.");
  EXPECT_EQ(readInPlist("<string>&nbsp;</string>"), "nothing 1:30 This is no text that XML knows.");
  EXPECT_EQ(readInPlist("<string>&#0;</string>"), "nothing 1:30 This is no text that XML knows.");
  EXPECT_EQ(readInPlist("<string>&#xD800;</string>"), "nothing 1:30 This is no text that XML knows.");
  EXPECT_EQ(readInPlist("<string>&#99999999;</string>"), "nothing 1:30 This is no text that XML knows.");
  EXPECT_EQ(readInPlist("<string><![CDATA[</string>"), "nothing 1:30 This is no text that XML knows.");
  EXPECT_EQ(readInPlist("text"), "nothing 1:22 A tag is missing here.");
  EXPECT_EQ(readInPlist(""), "nothing 1:22 This tag has no place here.");
  EXPECT_EQ(readInPlist("<dict/><dict/>"), "{} 1:29 Nothing may follow the end of the list.");
  EXPECT_EQ(readInPlist("<plist><dict/>"), "nothing 1:22 This tag has no place here.");
  EXPECT_EQ(mistakeOf(PropertyList("<plist><dict/>")), "1:15 The file ends before its list does.");
  EXPECT_EQ(mistakeOf(PropertyList("<?xml")), "1:1 A comment or an instruction is not closed.");
  EXPECT_EQ(mistakeOf(PropertyList("<!DOCTYPE '>")), "1:1 A comment or an instruction is not closed.");
  EXPECT_EQ(mistakeOf(PropertyList("<plist a='>")), "1:1 A tag is not closed.");
  EXPECT_EQ(mistakeOf(PropertyList("<plist><string>a")), "1:17 The file ends before its list does.");
  EXPECT_EQ(mistakeOf(PropertyList("<plist><>")), "1:8 A tag has no name.");
}

TEST(XmlPropertyList, IsNestedToALimit) {
  std::string text = "<plist>";
  for (int level = 0; level < 100000; ++level) text += "<array>";
  EXPECT_EQ(mistakeOf(PropertyList(text)), "1:3592 The list is nested too deeply.");
}

}  // namespace
}  // namespace glossmill
