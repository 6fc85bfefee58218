#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "tree/Random.h"

namespace glossmill::bench {

struct SourceCall {
  std::string key;
  std::string comment;
};

// An Objective-C implementation file of about `targetBytes`, its calls spread evenly over it, each on lines of its own.
// The letters of the call's name occur nowhere else.
std::string sourceText(std::string_view className, const std::vector<SourceCall>& calls, std::size_t targetBytes,
                       Random& random);

// Appends one statement that makes the call.
void appendCall(std::string& text, const SourceCall& call, Random& random);

// Appends one or a few lines without a call.
void appendFiller(std::string& text, Random& random);

}  // namespace glossmill::bench
