#include <gtest/gtest.h>

#include "formats/XmlCheck.h"

namespace glossmill {
namespace {

std::string problemOf(std::string_view xml) {
  const auto checked = checkXml(xml, {});
  return checked ? "" : checked.error().sentence;
}

TEST(XmlCheck, TakesWellFormedXml) {
  for (const char* xml :
       {"<a/>",
        "<?xml version=\"1.0\" encoding='utf-8'?>\n<!DOCTYPE a SYSTEM \"a.dtd\">\n<!-- <b> & -->\n<a>x</a>\n<?p q?>",
        "<x:a b = 'c>\"&#x1F6A2;' d=\"e\"\n><![CDATA[<&]]>&amp;&lt;&gt;&quot;&apos;&#10;</x:a >", "<ä ö='ü'/>"}) {
    EXPECT_EQ(problemOf(xml), "") << xml;
  }
}

TEST(XmlCheck, RefusesWhatIsNot) {
  struct Row {
    const char* xml;
    const char* problem;
  };
  const Row rows[] = {
      {"", "line 1: It holds no element: this is no XML."},
      {"a\n<b/>", "line 1: Text stands outside the element that holds all others."},
      {"<a/>\n<b/>", "line 2: There is more than one element at the outside."},
      {"<a>\n<b></a>", "line 2: A closing tag does not fit the one that it closes."},
      {"<a>\n\n", "line 3: An element is not closed."},
      {"<a\n<b/>", "line 1: A tag is not closed."},
      {"<a>\n< b/></a>", "line 2: “<” begins no tag."},
      {"<a b=c/>", "line 1: An attribute has no value between quotes."},
      {"<a b='c/>", "line 1: The quotes of an attribute are not closed."},
      {"<a b='<'/>", "line 1: The quotes of an attribute are not closed."},
      {"<a b='1' b='2'/>", "line 1: The attributes of a tag are not as they should be."},
      {"<a b='1'c='2'/>", "line 1: The attributes of a tag are not as they should be."},
      {"<a>\n&foo;</a>", "line 2: “&” begins no character that XML knows."},
      {"<a>&#0;</a>", "line 1: “&” begins no character that XML knows."},
      {"<a>&#xD800;</a>", "line 1: “&” begins no character that XML knows."},
      {"<a>&#99999999999;</a>", "line 1: “&” begins no character that XML knows."},
      {"<a b='&'/>", "line 1: “&” begins no character that XML knows."},
      {"<a>\n\x07</a>", "line 2: It holds a character that XML does not allow."},
      {"<a>\n\n\xEF\xBF\xBF</a>", "line 3: It holds a character that XML does not allow."},
      {"<a><!-- </a>", "line 1: A comment is not closed."},
      {"<a><![CDATA[ </a>", "line 1: CDATA is not closed."},
      {"<a><?p </a>", "line 1: An instruction is not closed."},
      {"<!DOCTYPE a [<!ENTITY b 'c'>]><a>&b;</a>", "line 1: It has entities of its own, which are not read."},
      {"<a/><!DOCTYPE a>", "line 1: It is not well-formed XML."},
      {"<?xml version='1.0' encoding='ISO-8859-1'?><a/>",
       "line 1: It is not in UTF-8 or UTF-16, it says; save it in UTF-8."},
  };
  for (const Row& row : rows) EXPECT_EQ(problemOf(row.xml), row.problem) << row.xml;
}

TEST(XmlCheck, BoundsDepthAndAttributes) {
  std::string deep;
  for (int level = 0; level < 101; ++level) deep += "<a>";
  EXPECT_EQ(problemOf(deep), "line 1: Its elements lie too deep in one another.");
  std::string wide = "<a";
  for (int count = 0; count < 101; ++count) wide += " b" + std::to_string(count) + "=''";
  EXPECT_EQ(problemOf(wide + "/>"), "line 1: The attributes of a tag are not as they should be.");
}

TEST(XmlCheck, KnowsTheLinesOfElementsWithTheNamesAskedFor) {
  auto survey = checkXml("<a>\n<b/>\n<x:unit/>\n\n<unit>\n</unit></a>", {"unit"});
  ASSERT_TRUE(survey);
  ElementLines& lines = survey.value().lines;
  EXPECT_EQ(lines.count(), 2U);
  EXPECT_EQ(lines.at(21), 5U);
  EXPECT_EQ(lines.at(10), 3U);
  EXPECT_EQ(lines.at(21), 5U);
  EXPECT_EQ(lines.at(5), 0U);
}

TEST(XmlCheck, TellsWhetherElementsHaveShortNames) {
  EXPECT_TRUE(checkXml("<body><x:mrk/></body>", {}).value().hasShortNames);
  EXPECT_FALSE(checkXml("<body><x:note/></body>", {}).value().hasShortNames);
}

}  // namespace
}  // namespace glossmill
