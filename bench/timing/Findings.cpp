#include "timing/Findings.h"

#include <cstdio>
#include <cstdlib>

namespace glossmill::bench {

void report(const std::string& what, const Samples& samples) {
  std::printf("time\t%s\t%zu\t%.9f\t%.9f\n", what.c_str(), samples.count(), samples.median(), samples.worst());
}

void report(const std::string& what, double number) {
  std::printf("number\t%s\t%.9g\n", what.c_str(), number);
}

void report(const std::string& what, const std::string& found, const std::string& expected) {
  std::printf("result\t%s\t%s\t%s\n", what.c_str(), found.c_str(), expected.c_str());
}

void giveUp(const std::string& why) {
  std::fflush(stdout);
  std::fprintf(stderr, "%s\n", why.c_str());
  std::_Exit(3);
}

}  // namespace glossmill::bench
