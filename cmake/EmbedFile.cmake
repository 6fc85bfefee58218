# Writes OUTPUT, a C++ source whose function isoTableResource() holds the bytes of INPUT.
file(READ "${INPUT}" bytes HEX)
string(REGEX REPLACE "([0-9a-f][0-9a-f])" "0x\\1," bytes "${bytes}")
string(REPEAT "0x..," 16 line)
string(REGEX REPLACE "(${line})" "\\1\n" bytes "${bytes}")
file(WRITE "${OUTPUT}" "#include <string_view>

#include \"host/IsoTableResource.h\"

namespace glossmill {

namespace {
constexpr unsigned char kBytes[] = {
${bytes}};
}

std::string_view isoTableResource() {
  return {reinterpret_cast<const char*>(kBytes), sizeof(kBytes)};
}

}  // namespace glossmill
")
