#include <gtest/gtest.h>

#include <random>
#include <regex>

#include "search/Expression.h"

namespace glossmill {
namespace {

Expression expression(std::string_view pattern, bool foldsCase = false) {
  Result<Expression> made = Expression::of(pattern, foldsCase);
  EXPECT_TRUE(made.ok()) << pattern << ": " << (made.ok() ? "" : made.error().sentence);
  return made.ok() ? made.value() : Expression::of("x", false).value();
}

/// What the first match takes; "-" where there is none.
std::string first(std::string_view pattern, std::string_view text, std::size_t from = 0) {
  const auto match = expression(pattern).find(text, from);
  return match ? std::string(text.substr(match->range.begin, match->range.length)) : "-";
}

std::string problem(std::string_view pattern) {
  const Result<Expression> made = Expression::of(pattern, false);
  return made.ok() ? "fine" : made.error().sentence;
}

TEST(Expression, TakesCharactersAsTheyAre) {
  EXPECT_EQ(first("tide", "the tides"), "tide");
  EXPECT_EQ(first("tide", "Tide"), "-");
  EXPECT_EQ(first("潮汐", "高潮汐表"), "潮汐");
  EXPECT_EQ(first("a\\.b", "axb a.b"), "a.b");
  EXPECT_EQ(first("{}]", "x{}]"), "{}]");
}

TEST(Expression, FindsTheLeftmostMatch) {
  const auto match = expression("b|ab").find("xxab", 0);
  ASSERT_TRUE(match);
  EXPECT_EQ(match->range, (TextRange{2, 2}));
}

TEST(Expression, BeginsWhereItIsTold) {
  EXPECT_EQ(expression("a").find("abca", 1)->range, (TextRange{3, 1}));
  EXPECT_FALSE(expression("a").find("abc", 1));
  EXPECT_FALSE(expression("a").find("a", 2));
}

TEST(Expression, PrefersTheFirstAlternative) {
  EXPECT_EQ(first("a|ab", "ab"), "a");
  EXPECT_EQ(first("ab|a", "ab"), "ab");
  EXPECT_EQ(first("x(?:a|b|c)y", "xby"), "xby");
}

TEST(Expression, RepeatsAsOftenOrAsSeldomAsItCan) {
  EXPECT_EQ(first("a+", "baaa"), "aaa");
  EXPECT_EQ(first("a+?", "baaa"), "a");
  EXPECT_EQ(first("\".*\"", "say \"a\" or \"b\"!"), "\"a\" or \"b\"");
  EXPECT_EQ(first("\".*?\"", "say \"a\" or \"b\"!"), "\"a\"");
  EXPECT_EQ(first("colou?r", "color"), "color");
  EXPECT_EQ(first("colou??r", "colour"), "colour");
  EXPECT_EQ(first("(?:ab)*c", "ababc"), "ababc");
}

TEST(Expression, CountsRepetitions) {
  EXPECT_EQ(first("a{2}", "aaa"), "aa");
  EXPECT_EQ(first("a{2,}", "baaaa"), "aaaa");
  EXPECT_EQ(first("a{1,3}", "aaaa"), "aaa");
  EXPECT_EQ(first("a{1,3}?", "aaaa"), "a");
  EXPECT_EQ(first("a{4}", "aaa"), "-");
  EXPECT_EQ(first("x{0}y", "xy"), "y");
  EXPECT_EQ(first("%{name}", "a %{name}"), "%{name}");
}

TEST(Expression, KnowsSets) {
  EXPECT_EQ(first("[a-c]+", "xxabcd"), "abc");
  EXPECT_EQ(first("[^a-c]+", "abxyc"), "xy");
  EXPECT_EQ(first("[]x]+", "a]x"), "]x");
  EXPECT_EQ(first("[a-]+", "b-a"), "-a");
  EXPECT_EQ(first("[\\d,]+", "ab 1,234"), "1,234");
  EXPECT_EQ(first("[^\\s]+", "  word "), "word");
  EXPECT_EQ(first("[\\]\\\\]+", "a\\]b"), "\\]");
  EXPECT_EQ(first("[ä-ü]+", "aöüz"), "öü");
}

TEST(Expression, KnowsClassesOfCharacters) {
  EXPECT_EQ(first("\\d+", "berth 42"), "42");
  EXPECT_EQ(first("\\D+", "42 x"), " x");
  EXPECT_EQ(first("\\w+", "…Größe_1!"), "Größe_1");
  EXPECT_EQ(first("\\W+", "a — b"), " — ");
  EXPECT_EQ(first("\\s+", "a\t\n b"), "\t\n ");
  EXPECT_EQ(first("\\S+", " x "), "x");
  EXPECT_EQ(first("\\u00e9|\\t", "a\té"), "\t");
  EXPECT_EQ(first("\\u00e9", "caf\u00e9"), "\u00e9");
}

TEST(Expression, DoesNotCrossLinesWithAPoint) {
  EXPECT_EQ(first("a.*", "ab\ncd"), "ab");
  EXPECT_EQ(first("b\\nc", "ab\ncd"), "b\nc");
}

TEST(Expression, KnowsTheEndsOfLinesAndWords) {
  EXPECT_EQ(expression("^b").find("ab\nb", 0)->range.begin, 3U);
  EXPECT_EQ(expression("a$").find("ab\na\na", 0)->range.begin, 3U);
  EXPECT_EQ(expression("\\bide").find("tide ide", 0)->range.begin, 5U);
  EXPECT_EQ(expression("\\Bide").find("ide tide", 0)->range.begin, 5U);
  EXPECT_EQ(expression("ö\\b").find("öa ö", 0)->range.begin, 4U);
}

TEST(Expression, RemembersGroups) {
  const auto match = expression("(\\w+)@(\\w+)(!)?").find("to me@home", 0);
  ASSERT_TRUE(match);
  EXPECT_EQ(match->range, (TextRange{3, 7}));
  ASSERT_EQ(match->groups.size(), 3U);
  EXPECT_EQ(match->groups[0], (TextRange{3, 2}));
  EXPECT_EQ(match->groups[1], (TextRange{6, 4}));
  EXPECT_EQ(match->groups[2], std::nullopt);
}

TEST(Expression, PassesOverMatchesOfNothing) {
  EXPECT_EQ(first("x*", "aaxx"), "xx");
  EXPECT_EQ(first("x*?", "aax"), "x");
  EXPECT_EQ(first("", "aa"), "-");
  EXPECT_EQ(first("^", "aa"), "-");
  EXPECT_EQ(first("(|a)", "aa"), "a");
}

TEST(Expression, FoldsItsLettersForTextsInLowerCase) {
  EXPECT_TRUE(expression("ÄRMEL", true).find("die ärmel", 0));
  EXPECT_TRUE(expression("[A-Z]+", true).find("abc", 0));
  EXPECT_EQ(expression("[^A-Z]+", true).find("abc1", 0)->range, (TextRange{3, 1}));
  EXPECT_FALSE(expression("ÄRMEL", false).find("die ärmel", 0));
}

TEST(Expression, SaysInOneSentenceWhatIsWrongAndWhere) {
  EXPECT_EQ(problem("a(b"), "At character 2 of the expression a ( is not closed.");
  EXPECT_EQ(problem("ab)"), "At character 3 of the expression there is a ) without its (.");
  EXPECT_EQ(problem("ä[b"), "At character 2 of the expression a [ is not closed.");
  EXPECT_EQ(problem("*a"), "At character 1 of the expression there is nothing to repeat.");
  EXPECT_EQ(problem("a|+"), "At character 3 of the expression there is nothing to repeat.");
  EXPECT_EQ(problem("a**"), "At character 3 of the expression something is repeated twice.");
  EXPECT_EQ(problem("a\\"), "At character 2 of the expression nothing follows the backslash.");
  EXPECT_EQ(problem("[z-a]"), "At character 2 of the expression a range of characters runs backwards.");
  EXPECT_EQ(problem("a{3,2}"), "At character 2 of the expression a repetition runs backwards.");
  EXPECT_EQ(problem("a{2000}"), "At character 2 of the expression a repetition goes beyond 1000.");
  EXPECT_EQ(problem("(a)\\1"),
            "At character 4 of the expression stands a reference to a group, which is not supported.");
  EXPECT_EQ(problem("(?=a)"), "At character 1 of the expression stands a (? that is not known.");
  EXPECT_EQ(problem("\\q"),
            "At character 1 of the expression stands a backslash before a letter that has no meaning there.");
  EXPECT_EQ(problem("\\u12"), "At character 1 of the expression \\u is not followed by four hexadecimal digits.");
  EXPECT_EQ(problem("^*"), "At character 1 of the expression a place is repeated that takes no character.");
}

TEST(Expression, RefusesWhatWouldGrowTooLarge) {
  EXPECT_EQ(problem("((a{1000}){1000}){1000}"), "The expression is too large.");
  EXPECT_EQ(problem(std::string(200, '(') + std::string(200, ')')),
            "At character 102 of the expression groups lie too deep in one another.");
}

TEST(Expression, IsNotLedAstrayByWaysThatMultiply) {
  const std::string text(20000, 'a');
  EXPECT_FALSE(expression("(a*)*b").find(text, 0));
  EXPECT_FALSE(expression("(a|aa)+$b").find(text, 0));
  EXPECT_FALSE(expression("(?:a?){30}a{30}b").find(std::string(200, 'a'), 0));
}

/// A group that is repeated takes at least a character each time: there the engines differ in what they take for a
/// repetition.
std::string randomPattern(std::mt19937& random, int depth, bool takesSomething) {
  static const char* const kAtoms[] = {"a", "b", "c", ".", "[ab]", "[^a]", "\\d", "1"};
  static const char* const kRepeats[] = {"", "", "+", "+?", "{2}", "{1,2}", "*", "?", "*?", "??"};
  std::string pattern;
  for (unsigned i = 0; i < 1 + random() % 3; ++i) {
    if (i > 0 && random() % 5 == 0) pattern += '|';
    const bool isGroup = depth > 0 && random() % 3 == 0;
    pattern += isGroup ? "(" + randomPattern(random, depth - 1, true) + ")" : kAtoms[random() % 8];
    pattern += kRepeats[random() % (takesSomething ? 6 : 10)];
  }
  return pattern;
}

TEST(Expression, AgreesWithAnEngineThatTriesOneWayAfterTheOther) {
  std::mt19937 random(11);
  for (int round = 0; round < 1000; ++round) {
    const std::string pattern = randomPattern(random, 2, false);
    std::string text;
    for (unsigned i = 0; i < random() % 9; ++i) text += "abc1\n"[random() % 4];
    const auto ours = expression(pattern).find(text, 0);
    std::smatch theirs;
    const bool found = std::regex_search(text, theirs, std::regex(pattern), std::regex_constants::match_not_null);
    ASSERT_EQ(ours.has_value(), found) << pattern << " in " << text;
    if (!found) continue;
    const TextRange range{static_cast<std::size_t>(theirs.position()), static_cast<std::size_t>(theirs.length())};
    ASSERT_EQ(ours->range.begin, range.begin) << pattern << " in " << text;
    ASSERT_EQ(ours->range.length, range.length) << pattern << " in " << text;
  }
}

}  // namespace
}  // namespace glossmill
