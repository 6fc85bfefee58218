#pragma once

namespace glossmill {

/// How far a string or a language is translated. No operation gives Automatic or Ignored; they have their colours.
enum class Status { Incomplete, Complete, Automatic, Ignored };

}  // namespace glossmill
