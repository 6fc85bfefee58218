#include <gtest/gtest.h>

#include <string>

#include "text/PercentForm.h"

namespace glossmill {
namespace {

TEST(PercentForm, EveryByteComesBack) {
  std::string all;
  for (int byte = 0; byte < 256; ++byte) all += static_cast<char>(byte);
  const std::string word = percentForm(all);
  EXPECT_EQ(fromPercentForm(word), all);
  for (const char byte : word) EXPECT_TRUE(byte > ' ' && byte < 127) << static_cast<int>(byte);
}

TEST(PercentForm, PathsStayReadable) {
  EXPECT_EQ(percentForm("/x/My App/de.lproj"), "/x/My%20App/de.lproj");
}

TEST(PercentForm, TheEmptyTextIsAWordToo) {
  EXPECT_EQ(percentForm(""), "%");
  EXPECT_EQ(fromPercentForm("%"), "");
}

TEST(PercentForm, WhatWasCutOffOrIsNoSuchFormGivesNothing) {
  for (const char* word : {"", "%2", "a%", "%G0", "a b", "%2f", "\xC3\xA4"}) {
    EXPECT_EQ(fromPercentForm(word), std::nullopt) << word;
  }
}

}  // namespace
}  // namespace glossmill
