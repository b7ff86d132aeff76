// What a person sees on the terminal.
#include "ChildProcess.h"
#include "TemporaryTree.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <sstream>
#include <string>
#include <vector>

namespace
{
std::string Print(const TemporaryTree& i_tree)
{
  return ChildProcess(ChildProcess::Beside("opx-explorer"), {"--rows", "100", i_tree.SystemPath().u8string()}).Run().out;
}

// Names with each of the characters between letters, as they are printed, sorted.
std::vector<std::string> PrintNamesWith(const std::vector<std::string>& i_characters)
{
  TemporaryTree tree;
  for (std::size_t i = 0; i < i_characters.size(); ++i)
    tree.AddFile("name" + std::to_string(i) + i_characters[i] + "fdp.exe");
  std::istringstream lines(Print(tree));
  std::vector<std::string> names;
  for (std::string line; std::getline(lines, line);)
    names.push_back(line.substr(0, line.find(' ')));
  std::sort(names.begin(), names.end());
  return names;
}

std::vector<std::string> MakeNames(std::size_t i_count, const std::vector<std::string>& i_characters)
{
  std::vector<std::string> names;
  for (std::size_t i = 0; i < i_count; ++i)
    names.push_back("name" + std::to_string(i) + i_characters[i % i_characters.size()] + "fdp.exe");
  std::sort(names.begin(), names.end());
  return names;
}
} // namespace

TEST(OPXExplorerTreePrinterTest, ControlsOfASCIIAndBeyondDoNotReachTheTerminal)
{
  EXPECT_EQ(PrintNamesWith({"\x7F", "\xC2\x80", "\xC2\x9B", "\xC2\x9F"}), MakeNames(4, {"?"}));
}

TEST(OPXExplorerTreePrinterTest, WhatChangesTheDirectionOfALineDoesNotReachTheTerminal)
{
  EXPECT_EQ(PrintNamesWith({"\xD8\x9C", "\xE2\x80\x8E", "\xE2\x80\x8F", "\xE2\x80\xAA", "\xE2\x80\xAB", "\xE2\x80\xAC", "\xE2\x80\xAD",
                            "\xE2\x80\xAE", "\xE2\x81\xA6", "\xE2\x81\xA7", "\xE2\x81\xA8", "\xE2\x81\xA9"}),
            MakeNames(12, {"?"}));
}

TEST(OPXExplorerTreePrinterTest, TheNeighboursOfTheControlsArePrinted)
{
  const std::vector<std::string> neighbours = {"\xC2\xA0",     "\xC3\x80",     "\xD8\x9B",        "\xD8\x9D",
                                               "\xE2\x80\x8D", "\xE2\x80\x90", "\xE2\x80\xA9",    "\xE2\x80\xAF",
                                               "\xE2\x81\xA5", "\xE2\x81\xAA", "\xF0\x9F\x98\x80"};
  EXPECT_EQ(PrintNamesWith(neighbours), MakeNames(11, neighbours));
}

TEST(OPXExplorerTreePrinterTest, AControlTakesOneColumn)
{
  TemporaryTree tree;
  tree.AddFile("a\xE2\x80\xAEz");
  tree.AddFile("abz");
  const std::string out = Print(tree);
  EXPECT_EQ(out.find("0 B"), out.find("0 B", out.find('\n')) - out.find('\n') - 1);
}
