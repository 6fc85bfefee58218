#include <gtest/gtest.h>
#include <sys/mman.h>

#include <cstdlib>
#include <string>
#include <string_view>

#include "scan/SourceScanner.h"

namespace glossmill {
namespace {

constexpr std::size_t kReadable = std::size_t{1} << 20;
constexpr std::size_t kLength = 16 * kReadable;

/// A long text of which only the first bytes may be read; whoever looks at the rest ends the program.
class TextWithAForbiddenRest {
 public:
  explicit TextWithAForbiddenRest(std::string_view start) {
    void* memory = mmap(nullptr, kLength, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED) std::abort();
    m_start = static_cast<char*>(memory);
    start.copy(m_start, start.size());
    mprotect(m_start + kReadable, kLength - kReadable, PROT_NONE);
  }
  TextWithAForbiddenRest(const TextWithAForbiddenRest&) = delete;
  TextWithAForbiddenRest& operator=(const TextWithAForbiddenRest&) = delete;
  ~TextWithAForbiddenRest() { munmap(m_start, kLength); }

  std::string_view view() const { return {m_start, kLength}; }

 private:
  char* m_start;
};

/// Ends with success when the calls at the start of a long text are read without a look at its rest.
void readFirstCalls(std::string_view start, int calls) {
  const TextWithAForbiddenRest text(start);
  const CancelFlag canceled;
  SourceScanner scanner(text.view(), canceled);
  for (int call = 0; call < calls; ++call) {
    if (!scanner.next()) std::exit(1);
    static_cast<void>(scanner.read());
  }
  std::exit(0);
}

TEST(SourceScannerReachDeathTest, ReadsACallWithoutTheRestOfALongFile) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  for (const char* call : {R"(NSLocalizedString(nil))", R"(NSLocalizedString(@"k"))",
                           R"(NSLocalizedString(@"k", @"c"))", R"(NSLocalizedString(@"k", NSLocalizedString(2)))"}) {
    EXPECT_EXIT(readFirstCalls(call, 1), testing::ExitedWithCode(0), "") << call;
  }
}

TEST(SourceScannerReachDeathTest, ReadsAllTheCallsAtItsStart) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_EXIT(readFirstCalls("NSLocalizedString(1) NSLocalizedString(NSLocalizedString(3))", 3),
              testing::ExitedWithCode(0), "");
}

}  // namespace
}  // namespace glossmill
