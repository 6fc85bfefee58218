#include "xcode/MacroRoutines.h"
#include "xcode/ReadCalls.h"

namespace glossmill {
namespace {

std::string shown(const TextSource& source) {
  if (source.kind == TextSource::Kind::None) return "-";
  return source.kind == TextSource::Kind::Argument ? std::to_string(source.argument) : "\"" + *source.text + "\"";
}

/// Each lookup as `name(key table value comment)`.
std::string shown(const std::vector<Routine>& routines) {
  std::string lines;
  for (const Routine& routine : routines) {
    for (const Lookup& lookup : routine.lookups) {
      lines += routine.name + "(" + std::to_string(lookup.key) + " " + shown(lookup.table) + " " +
               shown(lookup.defaultValue) + " " + shown(lookup.comment) + ") ";
    }
  }
  return lines;
}

/// A source and the routines that its macros are.
struct MacroRow {
  std::string source;
  std::string routines;
};

void expectMacros(const std::vector<MacroRow>& rows) {
  const RoutineTable known = routinesInC({parseRoutine("Own(comment, key)").value()}, {});
  for (const MacroRow& row : rows)
    EXPECT_EQ(shown(macroRoutines(readMacros(row.source), known)), row.routines) << row.source;
}

TEST(MacroRoutines, AreMacrosThatHandOnAParameterAsTheKey) {
  expectMacros({
      {"#define L(key) NSLocalizedString(key, nil)", "L(0 - - -) "},
      {"#define L(c, key) NSLocalizedString(key, c)", "L(1 - - 0) "},
      {"#define L(k, t, c) NSLocalizedStringFromTable(k, t, c)", "L(0 1 - 2) "},
      {"#define L(k) NSLocalizedStringFromTableInBundle(k, @\"T\", [NSBundle bundleForClass:[X class]], @\"c\")",
       "L(0 \"T\" - \"c\") "},
      {"#define L(k, v) NSLocalizedStringWithDefaultValue(k, nil, b, v, nil)", "L(0 - 1 -) "},
      {"#define L(k) CFCopyLocalizedString(CFSTR(k), \"\")", "L(0 - - \"\") "},
      {"#define L(k) Own(@\"c\", k)", "L(0 - - \"c\") "},
      {"#define L(k) (f(NSLocalizedString((k), nil)) ?: k)", "L(0 - - -) "},
      {"#define L(k) NSLocalizedString(@k, nil)", "L(0 - - -) "},
      {"#define L(k) NSLocalizedString((NSString *)(k), nil)", "L(0 - - -) "},
  });
}

TEST(MacroRoutines, SeeMessagesLineContinuationsAndComments) {
  expectMacros({
      {"#define L(key, comment) \\\n  [[NSBundle bundleForClass:self.class] \\\n"
       "    localizedStringForKey:(key) value:@\"\" table:@\"T\"]\n",
       "L(0 \"T\" \"\" 1) "},
      {"  #  define L( k /* the key */ ) /* x */ \\\r\n NSLocalized\\\r\nString(k, nil) // y", "L(0 - - -) "},
      {"#define \\\nL\\\n(k) NSLocalizedString(k, nil)", "L(0 - - -) "},
      {"// #define L(k) NSLocalizedString(k, nil)\n/*\n#define M(k) NSLocalizedString(k, nil)\n*/", ""},
      {"#if 0\n#define L(k) NSLocalizedString(k, nil)\n#endif", "L(0 - - -) "},
      {"#undef L\n#define L(k) NSLocalizedString(k, nil)", "L(0 - - -) "},
  });
}

TEST(MacroRoutines, AreNoOtherMacros) {
  expectMacros({
      {"#define L NSLocalizedString", ""},
      {"#define L (k) NSLocalizedString(k, nil)", ""},
      {"#define L(k) NSLocalizedString(@\"k\", nil)", ""},
      {"#define L(k) NSLocalizedString(kKey, k)", ""},
      {"#define L(k) NSLocalizedString(@#k, nil)", ""},
      {"#define L(k) NSLocalizedString(@\"a\" k, nil)", ""},
      {"#define L(k) NSLocalizedString(f(k), nil)", ""},
      {"#define L(k) @\"NSLocalizedString(k, nil)\"", ""},
      {"#define L(k) NSLocalizedString(k, nil", ""},
      {"#define L(k) NSLocalizedStringFromTable(k, kTable, nil)", ""},
      {"#define L(k) [b localizedStringForKey:k value:nil]", ""},
      {"#define L(k) MyString(k, nil)", ""},
      {"NSLocalizedString(k, nil)", ""},
  });
}

TEST(MacroRoutines, TakeTheirOwnCommentWhereNothingElseIsOne) {
  expectMacros({
      {"#define L(key, comment) NSLocalizedString(key, nil)", "L(0 - - 1) "},
      {"#define L(key, comment) NSLocalizedString(key, @\"c\")", "L(0 - - \"c\") "},
      {"#define L(key, note) NSLocalizedString(key, nil)", "L(0 - - -) "},
  });
}

TEST(MacroRoutines, HandOnInChains) {
  expectMacros({
      {"#define A(k) B(k, nil)\n#define B(k, c) C(c, (k))\n#define C(c, k) NSLocalizedStringFromTable(k, @\"T\", c)",
       "A(0 \"T\" - -) B(0 \"T\" - 1) C(1 \"T\" - 0) "},
      {"#define A(k) B(k, @\"T\")\n#define B(k, t) NSLocalizedStringFromTable(k, t, nil)",
       "A(0 \"T\" - -) B(0 1 - -) "},
      {"#define A(k) B(@\"x\", k)\n#define B(k, c) NSLocalizedString(k, c)", "B(0 - - 1) "},
      {"#define A(k) B(k)\n#define B(k) A(k)", ""},
      {"#define A(k) B(k) NSLocalizedString(k, nil)\n#define B(k) A(k) B(k)", "A(0 - - -) B(0 - - -) "},
  });
}

TEST(MacroRoutines, HandOnAllFurtherArguments) {
  expectMacros({
      {"#define L(...) NSLocalizedString(__VA_ARGS__)", "L(0 - - 1) "},
      {"#define L(x, ...) NSLocalizedStringFromTable(__VA_ARGS__)", "L(1 2 - 3) "},
      {"#define L(key, args...) NSLocalizedStringFromTable(key, args)", "L(0 1 - 2) "},
      {"#define L(key, ...) NSLocalizedString(key, ##__VA_ARGS__)", "L(0 - - -) "},
      {"#define L(key, ...) [NSString stringWithFormat:NSLocalizedString(key, nil), ##__VA_ARGS__]", "L(0 - - -) "},
  });
}

TEST(MacroRoutines, HaveAllTheLookupsOfTheirName) {
  expectMacros({
      {"#define L(k) NSLocalizedString(k, nil)\n#define L(k) NSLocalizedString(k, nil)", "L(0 - - -) "},
      {"#if X\n#define L(k) NSLocalizedStringFromTable(k, @\"T\", nil)\n#else\n"
       "#define L(k) NSLocalizedStringFromTable(k, @\"U\", nil)\n#endif",
       "L(0 \"T\" - -) L(0 \"U\" - -) "},
      {"#define L(k, l) f(NSLocalizedString(k, nil), NSLocalizedString(l, nil))", "L(0 - - -) L(1 - - -) "},
  });
}

TEST(MacroRoutines, NeverChangeWhatOtherRoutinesMean) {
  expectMacros({
      {"#undef NSLocalizedString\n#define NSLocalizedString(key, comment) NSLocalizedStringFromTable(key, @\"T\", nil)",
       ""},
      {"#define Own(key, comment) NSLocalizedString(key, comment)", ""},
      {"#define NSLocalizedString(c, k) MyString(k)\n#define L(k) NSLocalizedString(k, nil)", "L(0 - - -) "},
  });
}

TEST(MacroRoutines, KeepAtMostSixteenLookups) {
  std::string source;
  for (int table = 0; table < 40; ++table) {
    source += "#define L(k) NSLocalizedStringFromTable(k, @\"T" + std::to_string(table) + "\", nil)\n";
  }
  const std::vector<Routine> routines = macroRoutines(readMacros(source), routinesInC({}, {}));
  ASSERT_EQ(routines.size(), 1U);
  EXPECT_EQ(routines[0].lookups.size(), 16U);
}

TEST(MacroRoutines, AreCalledInTheirOwnFile) {
  expectCallsInC({
      {"#define L(key, comment) NSLocalizedStringFromTable(key, @\"T\", comment)\nL(@\"a\", @\"c\") L(b, nil)",
       {"2:1 a [T] #c", "2:15 key-not-literal: The key is no literal: b"}},
      {"L(@\"a\")\n#define L(k) NSLocalizedString(k, nil)\n// L(@\"b\")\n@\"L(@\\\"b\\\")\"", {"1:1 a"}},
      {"#define M(k) L(k)\n#define L(k) NSLocalizedString(k, nil)\nM(L(@\"a\")) M(@\"b\")",
       {"3:3 a", "3:12 b", "3:1 key-not-literal: The key is no literal: L(@\"a\")"}},
      {"#define L(k) NSLocalizedString(k, nil)\n#define TITLE L(@\"a\")", {"2:15 a"}},
      {"#define L(k) NSLocalizedStringFromTable(k, kTable, nil)\nL(@\"a\")",
       {"1:14 table-not-literal: The table is no literal: kTable"}},
      {"#define L(t) NSLocalizedStringFromTable(@\"k\", t, nil)", {}},
      {"#define L(t) NSLocalizedStringFromTable(kKey, t, nil)", {"1:14 key-not-literal: The key is no literal: kKey"}},
      {"#define L(k) NSLocalizedString(@#k, nil)", {"1:14 key-not-literal: The key is no literal: @#k"}},
      {"#define NSLocalizedString(key, comment) [b localizedStringForKey:(key) value:@\"\" table:@\"T\"]\n"
       "NSLocalizedString(@\"a\", nil)",
       {"2:1 a"}},
      {"#if X\n#define L(k) NSLocalizedStringFromTable(k, @\"T\", nil)\n#else\n"
       "#define L(k) NSLocalizedString(k, nil)\n#endif\nL(@\"a\") L(x)",
       {"6:1 a", "6:1 a [T]", "6:9 key-not-literal: The key is no literal: x"}},
  });
}

TEST(MacroRoutines, OfHeadersAreCalledInAllSources) {
  const RoutineTable routines = routinesInC({}, readMacros("#define L(k) NSLocalizedString(k, nil)\n"
                                                           "#define T(k) NSLocalizedStringFromTable(k, @\"T\", nil)"));
  expectCallsInC(
      {
          {"L(@\"a\") T(@\"b\")", {"1:1 a", "1:9 b [T]"}},
          {"#define M(k) T(k)\nM(@\"a\")", {"2:1 a [T]"}},
          {"#define L(k) T(k)\nL(@\"a\")", {"2:1 a [T]"}},
          {"#undef L\n#define L(k) f(k)\nL(@\"a\") T(@\"b\")", {"3:9 b [T]"}},
          {"#define L NSLocalizedString\nL(@\"a\")", {"2:1 a"}},
      },
      routines);
  expectCallsInSwift({{"L(\"a\") T(\"b\")", {}}}, routinesInSwift({}));
}

}  // namespace
}  // namespace glossmill
