#pragma once

#include <string>

#include "timing/Samples.h"

namespace glossmill::bench {

// What a program has found out, one line each on the standard output with tabulators between, for bench/run-desktop,
// which knows the targets.

/// Number of samples, median and worst in seconds.
void report(const std::string& what, const Samples& samples);
void report(const std::string& what, double number);
/// What must be right lest the times say nothing.
void report(const std::string& what, const std::string& found, const std::string& expected);

/// Ends the program: nothing can be measured any more.
[[noreturn]] void giveUp(const std::string& why);

}  // namespace glossmill::bench
