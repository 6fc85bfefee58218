#include "xcode/ReadCalls.h"

namespace glossmill {
namespace {

TEST(CallReaderInC, KnowsApplesRoutines) {
  expectCallsInC({
      {R"~(NSLocalizedString(@"k", @"c"))~", {"1:1 k #c"}},
      {R"~(NSLocalizedStringFromTable(@"k", @"T", @"c"))~", {"1:1 k [T] #c"}},
      {R"~(NSLocalizedStringFromTableInBundle(@"k", @"T", bundle, @"c"))~", {"1:1 k [T] #c"}},
      {R"~(NSLocalizedStringWithDefaultValue(@"k", @"T", [NSBundle mainBundle], @"v", @"c"))~", {"1:1 k [T] =v #c"}},
      {R"~(CFCopyLocalizedString(CFSTR("k"), "c"))~", {"1:1 k #c"}},
      {R"~(CFCopyLocalizedStringFromTable(CFSTR("k"), CFSTR("T"), "c"))~", {"1:1 k [T] #c"}},
      {R"~(CFCopyLocalizedStringFromTableInBundle(CFSTR("k"), CFSTR("T"), CFBundleGetMainBundle(), "c"))~",
       {"1:1 k [T] #c"}},
      {R"~(CFCopyLocalizedStringWithDefaultValue(CFSTR("k"), CFSTR("T"), b, CFSTR("v"), "c"))~", {"1:1 k [T] =v #c"}},
      {R"~([bundle localizedStringForKey:@"k" value:@"v" table:@"T"])~", {"1:9 k [T] =v"}},
  });
}

TEST(CallReaderInC, WantsTheWholeNameInItsCase) {
  expectCallsInC({
      {R"~(nslocalizedstring(@"k", nil))~", {}},
      {R"~(MyNSLocalizedString(@"k", nil))~", {}},
      {R"~(NSLocalizedStringX(@"k", nil))~", {}},
      {R"~(NSLocalizedString;)~", {}},
      {R"~(x = NSLocalizedString)~", {}},
      {R"~(NSLocalizedString + (@"k"))~", {}},
      {R"~(é(NSLocalizedString(@"k", nil)))~", {"1:3 k"}},
  });
}

TEST(CallReaderInC, TakesNothingFromCommentsAndLiterals) {
  expectCallsInC({
      {R"~(// NSLocalizedString(@"k", nil))~", {}},
      {R"~(/* NSLocalizedString(@"k", nil) */)~", {}},
      {R"~(x = @"NSLocalizedString(k)";)~", {}},
      {R"~(x = "\"" NSLocalizedString(@"k", nil))~", {"1:10 k"}},
      {R"~(NSLocalizedString /* a */ ( /* b */ @"k" /* , */ , // c
           nil /* ) */ ))~",
       {"1:1 k"}},
      {R"~(NSLocalizedString(@"NSLocalizedString(@\"a\")", @"// ) \" ,"))~",
       {R"~(1:1 NSLocalizedString(@"a") #// ) " ,)~"}},
  });
}

TEST(CallReaderInC, TakesACallWithoutACommentThatIsNoLiteral) {
  expectCallsInC({
      {R"~(NSLocalizedString(@"k", nil))~", {"1:1 k"}},
      {R"~(NSLocalizedString(@"k", NULL))~", {"1:1 k"}},
      {R"~(NSLocalizedString(@"k"))~", {"1:1 k"}},
      {R"~(NSLocalizedString(@"k",))~", {"1:1 k"}},
      {R"~(NSLocalizedString(@"k", kComment))~", {"1:1 k"}},
      {R"~(NSLocalizedString(@"k", comment(1, 2)))~", {"1:1 k"}},
      {R"~(NSLocalizedString(@"k", @"\q"))~", {"1:1 k"}},
      {R"~(NSLocalizedString(@"k", @""))~", {"1:1 k #"}},
  });
}

TEST(CallReaderInC, TakesAMissingTableForLocalizable) {
  expectCallsInC({
      {R"~(NSLocalizedStringFromTable(@"k", nil, nil))~", {"1:1 k"}},
      {R"~(NSLocalizedStringFromTable(@"k", @"", nil))~", {"1:1 k"}},
      {R"~(NSLocalizedStringFromTable(@"k"))~", {"1:1 k"}},
      {R"~(NSLocalizedStringFromTable(@"k", NULL, nil))~", {"1:1 k"}},
      {R"~(NSLocalizedStringFromTable(@"k", (NSString *)nil, nil))~", {"1:1 k"}},
      {R"~(NSLocalizedStringFromTable(@"k", @"Localizable", nil))~", {"1:1 k"}},
      {R"~([b localizedStringForKey:@"k" value:nil table:nil])~", {"1:4 k"}},
      {R"~([b localizedStringForKey:@"k" value:@"" table:@""])~", {"1:4 k"}},
  });
}

TEST(CallReaderInC, ReportsWhatIsNoLiteral) {
  expectCallsInC({
      {"NSLocalizedString(key, nil)", {"1:1 key-not-literal: The key is no literal: key"}},
      {"NSLocalizedString(nil, nil)", {"1:1 key-not-literal: The key is no literal: nil"}},
      {"x(NSLocalizedString([a b:@\"c\",\n    d], nil))",
       {"1:3 key-not-literal: The key is no literal: [a b:@\"c\", d]"}},
      {R"~(NSLocalizedString(a ? @"b" : @"c", nil))~",
       {R"~(1:1 key-not-literal: The key is no literal: a ? @"b" : @"c")~"}},
      {R"~(NSLocalizedString(@(1), nil))~", {"1:1 key-not-literal: The key is no literal: @(1)"}},
      {R"~(NSLocalizedString(@"a" suffix, nil))~", {R"~(1:1 key-not-literal: The key is no literal: @"a" suffix)~"}},
      {R"~(NSLocalizedString('k', nil))~", {"1:1 key-not-literal: The key is no literal: 'k'"}},
      {R"~(NSLocalizedString(, nil))~", {"1:1 key-missing: The call has no key"}},
      {R"~(NSLocalizedString())~", {"1:1 key-missing: The call has no key"}},
      {R"~(NSLocalizedStringFromTable(@"k", kTable, nil))~",
       {"1:1 table-not-literal: The table is no literal: kTable"}},
      {R"~([b localizedStringForKey:key value:@"" table:nil])~", {"1:4 key-not-literal: The key is no literal: key"}},
      {"NSLocalizedString(" + std::string(70, 'x') + ", nil)",
       {"1:1 key-not-literal: The key is no literal: " + std::string(60, 'x')}},
  });
}

TEST(CallReaderInC, ReportsMalformedLiterals) {
  expectCallsInC({
      {R"~(NSLocalizedString(@"\q", nil))~",
       {"1:1 malformed-literal: The key is malformed: an escape that C does not know"}},
      {"NSLocalizedString(@\"k, nil)\n;", {"1:1 call-not-closed: The call has no closing parenthesis"}},
      {"NSLocalizedString(@\"k\n, nil);", {"1:1 malformed-literal: The key is malformed: its last quote is missing"}},
      {R"~(NSLocalizedStringFromTable(@"k", @"\xff", nil))~",
       {"1:1 malformed-literal: The table is malformed: the bytes of its escapes are no UTF-8"}},
      {R"~(NSLocalizedStringWithDefaultValue(@"k", nil, nil, @"\q", nil))~",
       {"1:1 k", "1:1 malformed-literal: The default value is malformed: an escape that C does not know"}},
  });
}

TEST(CallReaderInC, JoinsAdjacentLiteralsAndSeesThroughParentheses) {
  expectCallsInC({
      {R"~(NSLocalizedString(@"a" @"b", @"c" "d"))~", {"1:1 ab #cd"}},
      {"NSLocalizedString(@\"a\"\n  // x\n  \"b\" \\\n  @ \"c\", nil)", {"1:1 abc"}},
      {R"~(NSLocalizedString((@"a"), ((@"b" "c"))))~", {"1:1 a #bc"}},
      {R"~(CFCopyLocalizedString((CFSTR(("a"))), ""))~", {"1:1 a #"}},
      {R"~(CFCopyLocalizedString(CFSTR("a" "b"), NULL))~", {"1:1 ab"}},
      {R"~(NSLocalizedString((NSString *)@"a", nil))~", {"1:1 a"}},
      {R"~(CFCopyLocalizedString((__bridge CFStringRef)(@"a"), nil))~", {"1:1 a"}},
      {R"~(NSLocalizedString(@R"x(a")x", nil))~", {"1:1 a\""}},
      {R"~(NSLocalizedString((@"a") @"b", nil))~", {R"~(1:1 key-not-literal: The key is no literal: (@"a") @"b")~"}},
      {R"~(NSLocalizedString(CFSTR, nil))~", {"1:1 key-not-literal: The key is no literal: CFSTR"}},
  });
}

TEST(CallReaderInC, SeesThroughLineContinuations) {
  expectCallsInC({
      {"NSLocal\\\nizedString(@\"a\\\nb\", \\\n nil)", {"1:1 ab"}},
      {"// a \\\nNSLocalizedString(@\"k\", nil)", {}},
      {"NSLocalizedString\\\nX(@\"k\", nil)", {}},
      {"My\\\nNSLocalizedString(@\"k\", nil)", {}},
      {"a \\\nNSLocalizedString\\\n(@\"k\", nil)", {"2:1 k"}},
      {"\\\n\\\nNSLocalizedString(@\"k\", nil)", {"3:1 k"}},
  });
}

TEST(CallReaderInC, ReadsMessagesWithTheWholeSelector) {
  expectCallsInC({
      {R"~([[NSBundle bundleForClass:[a class]] localizedStringForKey:@"k" value:@"" table:@"T"])~", {"1:38 k [T]"}},
      {R"~([b localizedStringForKey:(@"k") value:x ? y : z table:nil])~", {"1:4 k"}},
      {R"~([b localizedStringForKey:@"k" value:^{ return a; }() table:nil])~", {"1:4 k"}},
      {R"~([b localizedStringForKey:@"k" value:@{@"a": b} table:nil])~", {"1:4 k"}},
      {R"~([[b localizedStringForKey:@"k" value:nil table:nil] localizedStringForKey:@"l" value:nil table:nil])~",
       {"1:5 k", "1:53 l"}},
      {R"~([b localizedStringForKey:@"k"])~", {}},
      {R"~([b localizedStringForKey:@"k" value:@"v"])~", {}},
      {R"~([b localizedStringForKey:@"k" table:@"T" value:@"v"])~", {}},
      {R"~([b localizedStringForKey:@"k" value:@"v" table:@"T" localizations:nil])~", {}},
      {R"~(@selector(localizedStringForKey:value:table:))~", {}},
      {R"~(localizedStringForKey(@"k"))~", {}},
      {"- (NSString *)localizedStringForKey:(NSString *)key value:(NSString *)value table:(NSString *)name;", {}},
      {"- (NSString *)localizedStringForKey:(NSString *)key value:(NSString *)value table:(NSString *)name {\n"
       "  return [super localizedStringForKey:@\"k\" value:nil table:nil];\n}",
       {"2:17 k"}},
  });
}

TEST(CallReaderInC, FindsCallsInArgumentsOfCalls) {
  expectCallsInC({
      {R"~(NSLocalizedString(@"a", NSLocalizedString(@"b", nil)))~", {"1:1 a", "1:25 b"}},
      {R"~(NSLocalizedString(f(NSLocalizedString(@"b", nil)), NSLocalizedString(@"c", nil)))~",
       {"1:21 b", "1:52 c", R"~(1:1 key-not-literal: The key is no literal: f(NSLocalizedString(@"b", nil)))~"}},
      {R"~(NSLocalizedString([b localizedStringForKey:@"k" value:@"v" table:nil], @"c"))~",
       {"1:22 k =v",
        R"~(1:1 key-not-literal: The key is no literal: [b localizedStringForKey:@"k" value:@"v" table:nil])~"}},
      {R"~([b localizedStringForKey:@"k" value:NSLocalizedString(@"l", nil) table:nil])~", {"1:4 k", "1:37 l"}},
      {R"~(f(^{ NSLocalizedString(@"a", ^{ x; NSLocalizedString(@"b", nil); }); }))~", {"1:6 a", "1:36 b"}},
  });
}

TEST(CallReaderInC, ReportsCallsThatAreNotClosedAndGoesOn) {
  const std::string notClosed = "call-not-closed: The call has no closing parenthesis";
  expectCallsInC({
      {R"~(NSLocalizedString(@"a", nil)~", {"1:1 " + notClosed}},
      {R"~(NSLocalizedString(@"a"; NSLocalizedString(@"b", nil))~", {"1:25 b", "1:1 " + notClosed}},
      {R"~({ NSLocalizedString(@"a" } NSLocalizedString(@"b", nil))~", {"1:28 b", "1:3 " + notClosed}},
      {R"~(NSLocalizedString(@"a", NSLocalizedString(@"b", nil))~", {"1:25 b", "1:1 " + notClosed}},
      {R"~([x NSLocalizedString(@"a"] NSLocalizedString(@"b", nil))~", {"1:28 b", "1:4 " + notClosed}},
      {R"~(NSLocalizedString([@"a", nil))~", {R"~(1:1 key-not-literal: The key is no literal: [@"a", nil)~"}},
  });
}

TEST(CallReaderInC, TakesDeclarationsForNoCalls) {
  expectCallsInC({
      {"NSString *NSLocalizedString(NSString *key, NSString *comment);", {}},
      {"NSString *NSLocalizedString(const char * _Nonnull key) { return NSLocalizedString(@\"k\", nil); }", {"1:65 k"}},
      {"CFStringRef CFCopyLocalizedString(CFStringRef key, const char *comment);", {}},
      {"NSString *NSLocalizedString(NSString *, NSString *);", {}},
  });
}

TEST(CallReaderInC, CountsEveryBranch) {
  expectCallsInC({
      {"#if 0\nNSLocalizedString(@\"a\", nil)\n#elif X\nNSLocalizedString(@\"b\", nil)\n#else\n"
       "NSLocalizedString(@\"c\", nil)\n#endif\n",
       {"2:1 a", "4:1 b", "6:1 c"}},
      {"f(NSLocalizedString(@\"a\",\n#if X\n@\"b\"\n#else\n@\"c\"\n#endif\n))", {"1:3 a"}},
      {"NSLocalizedString(\n#if X\n@\"b\"\n#else\n@\"c\"\n#endif\n, nil)",
       {"1:1 key-not-literal: The key is no literal: #if X @\"b\" #else @\"c\" #endif"}},
  });
}

TEST(CallReaderInC, ReadsNoDirectiveButDefinitions) {
  expectCallsInC({
      {"#warning NSLocalizedString(@\"k\", nil)\n#pragma mark NSLocalizedString(k)\n#undef NSLocalizedString\n"
       "#if defined(NSLocalizedString)\n#ifdef NSLocalizedString\n#import \"NSLocalizedString.h\"\n",
       {}},
      {"#define TITLE NSLocalizedString(@\"k\", @\"c\")\n", {"1:15 k #c"}},
      {"  # define f(x) g(x, \\\n  NSLocalizedString(@\"k\", @\"c\"))\nNSLocalizedString(@\"l\", nil)",
       {"2:3 k #c", "3:1 l"}},
      {"#define TITLE NSLocalizedString(kKey, nil)\n", {"1:15 key-not-literal: The key is no literal: kKey"}},
      {"#define A NSLocalizedString(\n#define B NSLocalizedString(@\"k\", nil)",
       {"2:11 k", "1:11 call-not-closed: The call has no closing parenthesis"}},
      {"NSLocalizedString(@\"a\",\n#define B NSLocalizedString(@\"b\", nil)\nnil)", {"1:1 a", "2:11 b"}},
  });
}

TEST(CallReaderInC, CountsLinesAndColumns) {
  expectCallsInC({
      {"a\r\nb\rc\n  NSLocalizedString(\n  @\"k\", nil)\r\n\"\xC3\xA4\xF0\x9F\x9A\xA2\" NSLocalizedString(@\"l\", "
       "nil)",
       {"4:3 k", "6:7 l"}},
      {"NSLocalizedString(NSLocalizedString(a, nil), nil)",
       {"1:1 key-not-literal: The key is no literal: NSLocalizedString(a, nil)",
        "1:19 key-not-literal: The key is no literal: a"}},
  });
}

TEST(CallReaderInC, KnowsTheRoutinesOfTheProject) {
  const RoutineTable routines =
      routinesInC({parseRoutine("L(key, comment)").value(), parseRoutine("T(_, comment, key, table)").value(),
                   parseRoutine("NSLocalizedString(comment, key)").value()},
                  {});
  expectCallsInC(
      {
          {R"~(L(@"k", @"c"))~", {"1:1 k #c"}},
          {R"~(T(x, @"c", "k", @"U"))~", {"1:1 k [U] #c"}},
          {"NSString *L(NSString *key, NSString *comment);", {}},
          {"L(key, nil)", {"1:1 key-not-literal: The key is no literal: key"}},
          {R"~(NSLocalizedString(@"k", @"c"))~", {"1:1 k #c"}},
      },
      routines);
}

}  // namespace
}  // namespace glossmill
