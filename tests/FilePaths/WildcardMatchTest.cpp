#include "ZELSYPFilePath.h"

#include <gtest/gtest.h>
#include <initializer_list>
#include <string>

namespace
{
struct Matcher : ZELSYPFilePath
{
  using ZELSYPFilePath::TestMatch;
  using ZELSYPFilePath::TestMatchNoCase;
};

int Match(const char* i_name, const char* i_pattern)
{
  return Matcher().TestMatch(i_name, i_pattern);
}

struct Case
{
  const char* name;
  const char* pattern;
  int answer;
};

void ExpectMatches(std::initializer_list<Case> i_cases)
{
  for (const Case& known : i_cases)
    EXPECT_EQ(Match(known.name, known.pattern), known.answer) << known.name << " against " << known.pattern;
}
} // namespace

TEST(WildcardMatch, TakesEveryNameForOneStarAndTheNameItself)
{
  ExpectMatches({{"abc", "*", 1}, {"", "*", 1}, {"abc", "abc", 1}, {"", "", 1}, {"**", "**", 1}});
}

TEST(WildcardMatch, TakesNoNameForSeveralStarsAlone)
{
  ExpectMatches({{"abc", "**", 0}, {"abc", "***", 0}, {"abc", "", 0}});
}

TEST(WildcardMatch, HoldsTheBeginningAndTheEndAgainstTheName)
{
  ExpectMatches(
      {{"abc", "a*c", 1}, {"abc", "b*c", 0}, {"abc", "a*b", 0}, {"abc", "*c", 1}, {"abc", "a*", 1}, {"abc", "*b*", 1}, {"abc", "a**c", 1}});
}

TEST(WildcardMatch, FindsThePiecesInOrder)
{
  ExpectMatches({{"a1b2c", "*b*c*", 1}, {"a1b2c", "*c*b*", 0}, {"a1b2c", "a*x*c", 0}});
}

TEST(WildcardMatch, LetsSuccessivePiecesOverlap)
{
  ExpectMatches({{"abc", "ab*bc", 1}, {"ab", "*a*ab*", 1}});
}

TEST(WildcardMatch, HoldsNoLongerLastPieceAgainstTheEnd)
{
  ExpectMatches({{"ab", "*abc", 0}});
}

TEST(WildcardMatch, TakesAPatternWithoutStarsForBeginningAndEnd)
{
  ExpectMatches({{"abXab", "ab", 1}, {"abX", "ab", 0}, {"Xab", "ab", 0}});
}

TEST(WildcardMatch, KnowsNoOtherWildcard)
{
  ExpectMatches({{"abc", "a?c", 0}, {"a?c", "a?*", 1}, {"abc", "[a]*", 0}});
}

TEST(WildcardMatch, IgnoresCaseOnlyWhenAsked)
{
  ExpectMatches({{"a.txt", "*.TXT", 0}, {"A.TXT", "*.txt", 0}});
  for (const Case& known : {Case{"a.txt", "*.TXT", 1}, {"A.TXT", "*.txt", 1}, {"abc", "*", 1}, {"abc", "**", 0}})
    EXPECT_EQ(Matcher().TestMatchNoCase(known.name, known.pattern), known.answer) << known.name << " against " << known.pattern;
}

TEST(WildcardMatch, IgnoresTheCaseOfLettersThatAreNotASCII)
{
  const ZELUnicodeString name = ZELUnicodeString::FromUTF8("caf\xC3\xA9.txt");
  EXPECT_EQ(Matcher().TestMatchNoCase(name, ZELUnicodeString::FromUTF8("*\xC3\x89.TXT")), 1);
  EXPECT_EQ(Matcher().TestMatch(name, ZELUnicodeString::FromUTF8("*\xC3\x89.txt")), 0);
}

// The rules, word for word, against every pattern and name of up to four characters of a small alphabet.
static bool MatchByTheRules(const std::string& i_name, const std::string& i_pattern)
{
  if (i_pattern == "*" || i_name == i_pattern)
    return true;
  std::vector<std::string> pieces(1);
  for (const char character : i_pattern)
    character == '*' ? pieces.push_back("") : pieces.back().push_back(character);
  pieces.erase(std::remove(pieces.begin(), pieces.end(), ""), pieces.end());
  if (pieces.empty())
    return false;
  if (i_pattern.front() != '*' && i_name.compare(0, pieces.front().size(), pieces.front()) != 0)
    return false;
  const std::string& last = pieces.back();
  if (i_pattern.back() != '*' && last.size() <= i_name.size() && i_name.substr(i_name.size() - last.size()) != last)
    return false;
  std::size_t found = 0;
  for (const std::string& piece : pieces)
    if ((found = i_name.find(piece, found)) == std::string::npos)
      return false;
  return true;
}

static std::vector<std::string> WordsOf(const std::string& i_alphabet, std::size_t i_longest)
{
  std::vector<std::string> words{""};
  for (std::size_t next = 0; next < words.size() && words[next].size() < i_longest; ++next)
    for (const char character : i_alphabet)
      words.push_back(words[next] + character);
  return words;
}

TEST(WildcardMatch, FollowsItsRulesForEveryShortPattern)
{
  for (const std::string& pattern : WordsOf("ab*", 5))
    for (const std::string& name : WordsOf("ab", 4))
      ASSERT_EQ(Match(name.c_str(), pattern.c_str()), MatchByTheRules(name, pattern)) << name << ' ' << pattern;
}
