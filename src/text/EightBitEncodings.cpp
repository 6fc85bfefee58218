#include "text/EightBitEncodings.h"

#include <string_view>

namespace glossmill {

namespace {

constexpr unsigned kFirstOfUpperHalf = 0x80;
constexpr char16_t kNoCharacter = u'\uFFFD';

// The characters of the bytes 0x80 to 0xFF.
constexpr std::u16string_view kLatin2 =
    // The first two rows are control characters of the same numbers.
    u"\u0080\u0081\u0082\u0083\u0084\u0085\u0086\u0087\u0088\u0089\u008A\u008B\u008C\u008D\u008E\u008F"
    u"\u0090\u0091\u0092\u0093\u0094\u0095\u0096\u0097\u0098\u0099\u009A\u009B\u009C\u009D\u009E\u009F"
    u"\u00A0Ą˘Ł¤ĽŚ§¨ŠŞŤŹ\u00ADŽŻ"
    u"°ą˛ł´ľśˇ¸šşťź˝žż"
    u"ŔÁÂĂÄĹĆÇČÉĘËĚÍÎĎ"
    u"ĐŃŇÓÔŐÖ×ŘŮÚŰÜÝŢß"
    u"ŕáâăäĺćçčéęëěíîď"
    u"đńňóôőö÷řůúűüýţ˙";
constexpr std::u16string_view kWindows1252 =
    u"€\uFFFD‚ƒ„…†‡ˆ‰Š‹Œ\uFFFDŽ\uFFFD"
    u"\uFFFD‘’“”•–—˜™š›œ\uFFFDžŸ"
    u"\u00A0¡¢£¤¥¦§¨©ª«¬\u00AD®¯"
    u"°±²³´µ¶·¸¹º»¼½¾¿"
    u"ÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏ"
    u"ÐÑÒÓÔÕÖ×ØÙÚÛÜÝÞß"
    u"àáâãäåæçèéêëìíîï"
    u"ðñòóôõö÷øùúûüýþÿ";
constexpr std::u16string_view kMacRoman =
    u"ÄÅÇÉÑÖÜáàâäãåçéè"
    u"êëíìîïñóòôöõúùûü"
    u"†°¢£§•¶ß®©™´¨≠ÆØ"
    u"∞±≤≥¥µ∂∑∏π∫ªºΩæø"
    u"¿¡¬√ƒ≈∆«»…\u00A0ÀÃÕŒœ"
    u"–—“”‘’÷◊ÿŸ⁄€‹›ﬁﬂ"
    u"‡·‚„‰ÂÊÁËÈÍÎÏÌÓÔ"
    u"\uF8FFÒÚÛÙıˆ˜¯˘˙˚¸˝˛ˇ";
constexpr std::u16string_view kNextStep =
    u"\u00A0ÀÁÂÃÄÅÇÈÉÊËÌÍÎÏ"
    u"ÐÑÒÓÔÕÖÙÚÛÜÝÞµ×÷"
    u"©¡¢£⁄¥ƒ§¤’“«‹›ﬁﬂ"
    u"®–†‡·¦¶•‚„”»…‰¬¿"
    u"¹ˋ´ˆ˜¯˘˙¨²˚¸³˝˛ˇ"
    u"—±¼½¾àáâãäåçèéêë"
    u"ìÆíªîïðñŁØŒºòóôõ"
    u"öæùúûıüýłøœßþÿ\uFFFD\uFFFD";

/// The table of an encoding that has one of its own; empty for the others.
constexpr std::u16string_view upperHalfOf(EightBitEncoding encoding) {
  switch (encoding) {
    case EightBitEncoding::Latin2:
      return kLatin2;
    case EightBitEncoding::Windows1252:
      return kWindows1252;
    case EightBitEncoding::MacRoman:
      return kMacRoman;
    case EightBitEncoding::NextStep:
      return kNextStep;
    case EightBitEncoding::Ascii:
    case EightBitEncoding::Latin1:
      break;
  }
  return {};
}

}  // namespace

std::optional<char32_t> characterOfByte(EightBitEncoding encoding, unsigned char byte) {
  if (byte < kFirstOfUpperHalf) return byte;
  if (encoding == EightBitEncoding::Ascii) return std::nullopt;
  if (encoding == EightBitEncoding::Latin1) return byte;
  const char16_t character = upperHalfOf(encoding)[byte - kFirstOfUpperHalf];
  return character == kNoCharacter ? std::nullopt : std::optional<char32_t>(character);
}

std::optional<unsigned char> byteOfCharacter(EightBitEncoding encoding, char32_t character) {
  if (character < kFirstOfUpperHalf) return static_cast<unsigned char>(character);
  if (character > 0xFFFF || character == kNoCharacter) return std::nullopt;
  if (encoding == EightBitEncoding::Latin1 && character <= 0xFF) return static_cast<unsigned char>(character);
  const std::size_t place = upperHalfOf(encoding).find(static_cast<char16_t>(character));
  if (place == std::u16string_view::npos) return std::nullopt;
  return static_cast<unsigned char>(kFirstOfUpperHalf + place);
}

}  // namespace glossmill
