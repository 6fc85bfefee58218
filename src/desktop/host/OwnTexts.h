#pragma once

#include <QStringList>
#include <map>
#include <string>
#include <string_view>

namespace glossmill {

/// English key to text.
using OwnTexts = std::map<std::string, std::string, std::less<>>;

/// Reads a strings file of the program's own: `"key" = "text";` with the escapes \n, \t, \" and \\ and comments
/// between slashes and stars. Whatever else stands there ends the reading.
OwnTexts parseOwnTexts(std::string_view text);

/// The program's texts for the first of the wanted languages ("de-AT", "de") that it speaks, English otherwise.
OwnTexts ownTextsFor(const QStringList& languages);

}  // namespace glossmill
