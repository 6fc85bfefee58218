#include <gtest/gtest.h>

#include <string>

#include "platform/FakeFileReading.h"
#include "platform/ReadText.h"

namespace glossmill {
namespace {

const FileUrl kFile("/Harbour/de.lproj/Localizable.strings");
constexpr std::size_t kWindow = 128 * 1024;

std::string utf16(std::u16string_view text) {
  std::string bytes = "\xFF\xFE";
  for (const char16_t unit : text) {
    bytes.push_back(static_cast<char>(unit & 0xFF));
    bytes.push_back(static_cast<char>(unit >> 8));
  }
  return bytes;
}

void expectText(FakeFileReading& disk, const std::string& expected) {
  const Result<std::string> text = readText(disk, kFile);
  ASSERT_TRUE(text.ok()) << text.error().sentence;
  EXPECT_TRUE(text.value() == expected) << "got " << text.value().size() << " bytes for " << expected.size();
}

void expectError(FakeFileReading& disk, const std::string& sentence) {
  const Result<std::string> text = readText(disk, kFile);
  ASSERT_FALSE(text.ok());
  EXPECT_EQ(text.error().sentence, sentence);
}

TEST(ReadText, ReadsAnEmptyFileAsTheEmptyText) {
  FakeFileReading disk(kFile, "");
  expectText(disk, "");
}

TEST(ReadText, ReadsUtf8) {
  FakeFileReading disk(kFile, "\"Open\" = \"Öffnen\";\n");
  expectText(disk, "\"Open\" = \"Öffnen\";\n");
}

TEST(ReadText, DropsTheMarkOfUtf8) {
  FakeFileReading disk(kFile, "\xEF\xBB\xBFÖffnen");
  expectText(disk, "Öffnen");
}

TEST(ReadText, ReadsUtf16) {
  FakeFileReading disk(kFile, utf16(u"\"Open\" = \"Öffnen\";\n"));
  expectText(disk, "\"Open\" = \"Öffnen\";\n");
}

TEST(ReadText, DetectsTheEncodingWhenTheDiskGivesOneByteAtATime) {
  FakeFileReading disk(kFile, utf16(u"Öffnen\xD83D\xDEA2"));
  disk.setStep(1);
  expectText(disk, "Öffnen\xF0\x9F\x9A\xA2");
}

TEST(ReadText, DetectsUtf16WithoutAMarkWhenTheDiskGivesOneByteAtATime) {
  FakeFileReading disk(kFile, utf16(u"Öffnen 泊位").substr(2));
  disk.setStep(1);
  expectText(disk, "Öffnen 泊位");
}

TEST(ReadText, ReadsFilesOfAboutOneWindow) {
  for (const std::size_t length : {kWindow - 1, kWindow, kWindow + 1, 2 * kWindow}) {
    const std::string text(length, 'a');
    FakeFileReading disk(kFile, text);
    expectText(disk, text);
  }
}

TEST(ReadText, PutsASequenceTogetherThatTheWindowCuts) {
  for (std::size_t before = kWindow - 4; before <= kWindow; ++before) {
    const std::string text = std::string(before, 'a') + "\xF0\x9F\x9A\xA2" + std::string(10, 'b');
    FakeFileReading disk(kFile, text);
    expectText(disk, text);
  }
}

TEST(ReadText, PutsASurrogatePairTogetherThatTheWindowCuts) {
  for (std::size_t before = kWindow / 2 - 4; before <= kWindow / 2; ++before) {
    FakeFileReading disk(kFile, utf16(std::u16string(before, u'a') + u"\xD83D\xDEA2" + u"b"));
    expectText(disk, std::string(before, 'a') + "\xF0\x9F\x9A\xA2" + "b");
  }
}

TEST(ReadText, ReadsTheSameWhateverTheDiskGivesAtATime) {
  std::string text;
  while (text.size() < 2 * kWindow) text += "\"Liegeplatz\" = \"Größe € 泊\";\n";
  for (const std::size_t step : {std::size_t{1000}, std::size_t{4096}, kWindow - 1, kWindow, 10 * kWindow}) {
    FakeFileReading disk(kFile, text);
    disk.setStep(step);
    expectText(disk, text);
  }
}

TEST(ReadText, GivesTheErrorOfAFileThatCannotBeOpened) {
  FakeFileReading disk(FileUrl("/elsewhere"), "");
  expectError(disk, "There is no such file.");
}

TEST(ReadText, GivesTheErrorOfAFileThatCannotBeReadToItsEnd) {
  for (const std::size_t bytes : {std::size_t{0}, std::size_t{10}, kWindow, kWindow + 10}) {
    FakeFileReading disk(kFile, std::string(2 * kWindow, 'a'));
    disk.setStep(10);
    disk.failAfter(bytes);
    expectError(disk, "The disk was pulled out.");
  }
}

TEST(ReadText, RefusesMalformedTextWhereverItStands) {
  for (const std::size_t before : {std::size_t{0}, std::size_t{10}, kWindow - 1, kWindow, 2 * kWindow}) {
    FakeFileReading disk(kFile, std::string(before, 'a') + "\xFF" + "b");
    expectError(disk, "The file is not valid UTF-8 and has no byte-order mark of another encoding.");
  }
}

TEST(ReadText, RefusesAFileThatEndsInTheMiddleOfASequence) {
  for (const std::size_t before : {std::size_t{0}, kWindow - 2, kWindow - 1, kWindow}) {
    FakeFileReading disk(kFile, std::string(before, 'a') + "\xE2\x82");
    expectError(disk, "The file is not valid UTF-8 and has no byte-order mark of another encoding.");
  }
}

}  // namespace
}  // namespace glossmill
