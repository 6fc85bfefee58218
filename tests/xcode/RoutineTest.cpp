#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "xcode/Routine.h"

namespace glossmill {
namespace {

using Source = TextSource::Kind;

TEST(Routine, IsReadFromItsNameAndParameters) {
  const Result<Routine> routine = parseRoutine(" My_String1 ( _, comment ,key,bundle, value, table, _ ) ");
  ASSERT_TRUE(routine.ok());
  EXPECT_EQ(routine.value().name, "My_String1");
  ASSERT_EQ(routine.value().lookups.size(), 1U);
  const Lookup& lookup = routine.value().lookups[0];
  EXPECT_EQ(lookup.key, 2U);
  EXPECT_EQ(lookup.comment, (TextSource{Source::Argument, 1, nullptr}));
  EXPECT_EQ(lookup.defaultValue, (TextSource{Source::Argument, 4, nullptr}));
  EXPECT_EQ(lookup.table, (TextSource{Source::Argument, 5, nullptr}));
}

TEST(Routine, MayHaveNothingButAKey) {
  const Result<Routine> routine = parseRoutine("L(key)");
  ASSERT_TRUE(routine.ok());
  const Lookup& lookup = routine.value().lookups[0];
  EXPECT_EQ(lookup.key, 0U);
  EXPECT_EQ(lookup.table.kind, Source::None);
  EXPECT_EQ(lookup.comment.kind, Source::None);
}

TEST(Routine, SaysWhatIsWrongWithADescription) {
  const std::string form = "A routine is written with its parameters, as in MyString(key, comment)";
  const std::pair<std::string, std::string> rows[] = {
      {"", form},
      {"L", form},
      {"L(key", form},
      {"L key)", form},
      {"(key)", form},
      {"1L(key)", form},
      {"My String(key)", form},
      {"-[X y](key)", form},
      {"L()", "The parameter \"\" is none of key, table, value, comment, bundle and _"},
      {"L(key,)", "The parameter \"\" is none of key, table, value, comment, bundle and _"},
      {"L(key, Comment)", "The parameter \"Comment\" is none of key, table, value, comment, bundle and _"},
      {"L(key, table, key)", "The parameter \"key\" stands there twice"},
      {"L(table, comment)", "No parameter is the key"},
  };
  for (const auto& [description, sentence] : rows) {
    const Result<Routine> routine = parseRoutine(description);
    ASSERT_FALSE(routine.ok()) << description;
    EXPECT_EQ(routine.error().sentence, sentence) << description;
  }
}

TEST(Routine, CountsOnceInATable) {
  Routine first = parseRoutine("L(key)").value();
  Routine second = parseRoutine("L(comment, key)").value();
  const RoutineTable table({first, second, parseRoutine("M(key)").value()});
  EXPECT_EQ(table.routines().size(), 2U);
  ASSERT_NE(table.find("L"), nullptr);
  EXPECT_EQ(table.find("L")->lookups[0].key, 0U);
  EXPECT_EQ(table.find("l"), nullptr);
}

}  // namespace
}  // namespace glossmill
