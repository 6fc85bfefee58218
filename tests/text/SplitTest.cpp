#include <gtest/gtest.h>

#include "text/Split.h"

namespace glossmill {
namespace {

using Pieces = std::vector<std::string_view>;

TEST(Split, GivesOneEmptyPieceForTheEmptyText) {
  EXPECT_EQ(split("", ';'), Pieces{""});
}

TEST(Split, GivesTheWholeTextWithoutASeparator) {
  EXPECT_EQ(split("deu", ';'), Pieces{"deu"});
}

TEST(Split, KeepsEmptyPieces) {
  EXPECT_EQ(split(";a;;b;", ';'), (Pieces{"", "a", "", "b", ""}));
}

TEST(Split, CutsAtTheGivenSeparatorOnly) {
  EXPECT_EQ(split("a\r\nb\rc", '\r'), (Pieces{"a", "\nb", "c"}));
}

}  // namespace
}  // namespace glossmill
