#include "formats/Xcloc.h"

#include <cstdio>

#include "formats/XliffFiles.h"
#include "formats/XliffWriter.h"

namespace glossmill {

namespace {

std::string jsonText(std::string_view text) {
  std::string json = "\"";
  for (const char byte : text) {
    if (byte == '"' || byte == '\\') json += '\\';
    if (static_cast<unsigned char>(byte) >= 0x20) {
      json += byte;
      continue;
    }
    char escape[8];
    std::snprintf(escape, sizeof escape, "\\u%04x", static_cast<unsigned>(byte));
    json += escape;
  }
  return json + "\"";
}

std::string contentsOf(const ExchangeDocument& document, const ExchangeWish& wish) {
  return "{\n  \"developmentRegion\" : " + jsonText(sourceCodeOf(document)) +
         ",\n  \"project\" : " + jsonText(document.project) +
         ",\n  \"targetLocale\" : " + jsonText(targetCodeOf(document)) +
         ",\n  \"toolInfo\" : {\n    \"toolBuildNumber\" : " + jsonText(wish.programVersion) +
         ",\n    \"toolID\" : \"glossmill\",\n    \"toolName\" : \"Glossmill\",\n    \"toolVersion\" : " +
         jsonText(wish.programVersion) + "\n  },\n  \"version\" : \"1.0\"\n}\n";
}

}  // namespace

WrittenExchange xclocFiles(const ExchangeDocument& document, const ExchangeWish& wish) {
  WrittenExchange written = xliffText(document, wish);
  written.files.front().path = "Localized Contents/" + targetCodeOf(document) + ".xliff";
  written.files.push_back({"contents.json", contentsOf(document, wish)});
  return written;
}

}  // namespace glossmill
