#include "xcode/ReadCalls.h"

namespace glossmill {
namespace {

TEST(CallReaderInSwift, KnowsApplesRoutines) {
  expectCallsInSwift({
      {R"~(NSLocalizedString("k", comment: "c"))~", {"1:1 k #c"}},
      {R"~(NSLocalizedString("k", tableName: "T", bundle: .main, value: "v", comment: "c"))~", {"1:1 k [T] =v #c"}},
      {R"~(String(localized: "k", defaultValue: "v", table: "T", bundle: .main, comment: "c"))~", {"1:1 k [T] =v #c"}},
      {R"~(LocalizedStringResource("k", defaultValue: "v", table: "T", comment: "c"))~", {"1:1 k [T] =v #c"}},
      {R"~(Bundle.main.localizedString(forKey: "k", value: "v", table: "T"))~", {"1:13 k [T] =v"}},
  });
}

TEST(CallReaderInSwift, TakesAnySubsetOfTheLabels) {
  expectCallsInSwift({
      {R"~(NSLocalizedString("k"))~", {"1:1 k"}},
      {R"~(NSLocalizedString("k", value: "v", comment: ""))~", {"1:1 k =v #"}},
      {R"~(NSLocalizedString("k", tableName: nil, comment: comment))~", {"1:1 k"}},
      {R"~(NSLocalizedString("k", bundle: Bundle(for: A.self), comment: "c"))~", {"1:1 k #c"}},
      {R"~(NSLocalizedString("k", value: "", comment: "c"))~", {"1:1 k #c"}},
      {R"~(String(localized: "k"))~", {"1:1 k"}},
      {R"~(String(localized: "k", table: "", locale: .current))~", {"1:1 k"}},
      {R"~(LocalizedStringResource("k"))~", {"1:1 k"}},
      {R"~(b?.localizedString(forKey: "k", value: nil, table: nil))~", {"1:4 k"}},
      {"NSLocalizedString(\n  \"k\", // a\n  comment /* b */ : \"c\"\n)", {"1:1 k #c"}},
      {"String\n( // a\n  localized\n: \"k\")", {"1:1 k"}},
  });
}

TEST(CallReaderInSwift, WantsTheRightNamesAndLabels) {
  expectCallsInSwift({
      {R"~(AttributedString(localized: "k"))~", {}},
      {R"~(String("localized"))~", {}},
      {R"~(String(format: localized("k"), localized: "k"))~", {}},
      {R"~(localizedString(forKey: "k", value: nil, table: nil))~", {}},
      {R"~(Locale.current.localizedString(forLanguageCode: "k"))~", {}},
      {R"~(b.localizedString(forKey: "k", value: "v"))~", {}},
      {R"~(b.localizedString(forKey: "k", table: "T", value: "v"))~", {}},
      {R"~(LocalizedStringResource(stringLiteral: "k"))~", {}},
      {R"~(let x: LocalizedStringResource = "k")~", {}},
      {R"~(#selector(NSLocalizedString))~", {}},
      {R"~(x.localized)~", {}},
  });
}

TEST(CallReaderInSwift, TakesDeclarationsForNoCalls) {
  expectCallsInSwift({
      {"func NSLocalizedString(_ key: String) -> String { NSLocalizedString(\"k\", comment: \"\") }", {"1:51 k #"}},
      {"public func\n  NSLocalizedString(_ key: String)", {}},
      {"override func localizedString(forKey key: String, value: String?, table tableName: String?) -> String", {}},
      {"afunc NSLocalizedString(\"k\")", {"1:7 k"}},
      {"// func\nNSLocalizedString(\"k\")", {"2:1 k"}},
      {"f(NSLocalizedString(\"k\"), { func NSLocalizedString(_ key: String) {} })", {"1:3 k"}},
  });
}

TEST(CallReaderInSwift, ReadsEveryKindOfLiteral) {
  expectCallsInSwift({
      {R"~(NSLocalizedString("a\n\"\u{e4}", comment: ""))~", {"1:1 a\n\"ä #"}},
      {R"~(NSLocalizedString(#"a\n"\#n"#, comment: #"\("#))~", {"1:1 a\\n\"\n #\\("}},
      {"NSLocalizedString(\"\"\"\n    a\n      b\n    \"\"\", comment: \"\")", {"1:1 a\n  b #"}},
      {R"~(NSLocalizedString(("k"), comment: (("c"))))~", {"1:1 k #c"}},
  });
}

TEST(CallReaderInSwift, ReportsInterpolationsAndDoesNotGuess) {
  expectCallsInSwift({
      {R"~(NSLocalizedString("a \(b) c", comment: ""))~",
       {R"~(1:1 interpolation: The key holds an interpolation: "a \(b) c")~"}},
      {R"~(String(localized: "\(n) of \(m)", comment: "c"))~",
       {R"~(1:1 interpolation: The key holds an interpolation: "\(n) of \(m)")~"}},
      {R"~(NSLocalizedString("k", tableName: "T\(1)", comment: "c"))~",
       {R"~(1:1 interpolation: The table holds an interpolation: "T\(1)")~"}},
      {R"~(String(localized: "k", defaultValue: "a \(f(1, "x")) b", comment: "c"))~",
       {"1:1 k #c", R"~(1:1 interpolation: The default value holds an interpolation: "a \(f(1, "x")) b")~"}},
      {R"~(NSLocalizedString("k", comment: "\(c)"))~", {"1:1 k"}},
  });
}

TEST(CallReaderInSwift, ReportsWhatIsNoLiteral) {
  expectCallsInSwift({
      {R"~(NSLocalizedString(key, comment: ""))~", {"1:1 key-not-literal: The key is no literal: key"}},
      {R"~(NSLocalizedString(try key(), comment: ""))~", {"1:1 key-not-literal: The key is no literal: try key()"}},
      {R"~(NSLocalizedString("a" + "b", comment: ""))~",
       {R"~(1:1 key-not-literal: The key is no literal: "a" + "b")~"}},
      {R"~(NSLocalizedString("a" "b", comment: ""))~", {R"~(1:1 key-not-literal: The key is no literal: "a" "b")~"}},
      {R"~(NSLocalizedString(x ? "a" : "b", comment: ""))~",
       {R"~(1:1 key-not-literal: The key is no literal: x ? "a" : "b")~"}},
      {R"~(NSLocalizedString("k", tableName: T.name, comment: ""))~",
       {"1:1 table-not-literal: The table is no literal: T.name"}},
      {R"~(String(localized: key))~", {"1:1 key-not-literal: The key is no literal: key"}},
      {R"~(NSLocalizedString())~", {"1:1 key-missing: The call has no key"}},
      {R"~(NSLocalizedString("\q", comment: ""))~",
       {"1:1 malformed-literal: The key is malformed: an escape that Swift does not know"}},
      {R"~(NSLocalizedString("a", comment: "")~", {"1:1 call-not-closed: The call has no closing parenthesis"}},
      {R"~(String(format: "a")~", {}},
  });
}

TEST(CallReaderInSwift, FindsCallsInArgumentsAndInterpolations) {
  expectCallsInSwift({
      {R"~("x \(NSLocalizedString("a", comment: "")) y \(NSLocalizedString("b", comment: ""))")~",
       {"1:6 a #", "1:47 b #"}},
      {R"~(NSLocalizedString("k", value: "\(NSLocalizedString("a", comment: ""))", comment: "c"))~",
       {"1:1 k #c", "1:34 a #",
        R"~(1:1 interpolation: The default value holds an interpolation: "\(NSLocalizedString("a", comment: ""))")~"}},
      {R"~(NSLocalizedString("k", comment: NSLocalizedString("a", comment: "")))~", {"1:1 k", "1:33 a #"}},
      {R"~(String(localized: LocalizedStringResource("k")))~",
       {"1:19 k", R"~(1:1 key-not-literal: The key is no literal: LocalizedStringResource("k"))~"}},
      {R"~(String(format: NSLocalizedString("k", comment: ""), 5); String(localized: "l"))~", {"1:16 k #", "1:57 l"}},
  });
}

TEST(CallReaderInSwift, TakesNothingFromCommentsAndLiterals) {
  expectCallsInSwift({
      {R"~(/* /* */ NSLocalizedString("k") */ // NSLocalizedString("k"))~", {}},
      {R"~("NSLocalizedString(k)" + #"\(NSLocalizedString("k"))"#)~", {}},
      {R"~(x = /"/; NSLocalizedString("k"))~", {"1:10 k"}},
  });
}

TEST(CallReaderInSwift, KnowsTheRoutinesOfTheProject) {
  const RoutineTable routines = routinesInSwift(
      {parseRoutine("L(key, table, comment)").value(), parseRoutine("NSLocalizedString(comment, key)").value()});
  expectCallsInSwift(
      {
          {R"~(L("k", "T", "c"))~", {"1:1 k [T] #c"}},
          {R"~(L("k", comment: "c"))~", {"1:1 k #c"}},
          {R"~(L("k", tableName: "T", comment: "c"))~", {"1:1 k [T] #c"}},
          {R"~(L(comment: "c", key: "k"))~", {"1:1 k #c"}},
          {R"~(x.L("k"))~", {"1:3 k"}},
          {"func L(_ key: String, _ table: String) -> String", {}},
          {R"~(NSLocalizedString("k", comment: "c"))~", {"1:1 k #c"}},
      },
      routines);
}

}  // namespace
}  // namespace glossmill
