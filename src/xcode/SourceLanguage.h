#pragma once

namespace glossmill {

/// What a source is written in, as far as its calls look different.
enum class SourceLanguage { CFamily, Swift };

}  // namespace glossmill
