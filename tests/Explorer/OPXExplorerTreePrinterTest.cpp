// What a person sees on the terminal.
#include "ChildProcess.h"
#include "TemporaryTree.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{
std::string Print(const TemporaryTree& i_tree)
{
  return ChildProcess(ChildProcess::Beside("opx-explorer"), {i_tree.SystemPath().u8string()}).Run().out;
}

std::string MakeName(const std::vector<std::string>& i_characters)
{
  std::string name = "a";
  for (const std::string& character : i_characters)
    name += character + "a";
  return name;
}

// A name with each of the characters between letters, as it is printed.
std::string PrintNameWith(const std::vector<std::string>& i_characters)
{
  TemporaryTree tree;
  tree.AddFile(MakeName(i_characters));
  const std::string out = Print(tree);
  return out.substr(0, out.find(' '));
}
} // namespace

TEST(OPXExplorerTreePrinterTest, ControlsOfASCIIAndBeyondDoNotReachTheTerminal)
{
  EXPECT_EQ(PrintNameWith({"\x7F", "\xC2\x80", "\xC2\x9B", "\xC2\x9F"}), MakeName(std::vector<std::string>(4, "?")));
}

TEST(OPXExplorerTreePrinterTest, WhatChangesTheDirectionOfALineDoesNotReachTheTerminal)
{
  EXPECT_EQ(PrintNameWith({"\xD8\x9C", "\xE2\x80\x8E", "\xE2\x80\x8F", "\xE2\x80\xAA", "\xE2\x80\xAB", "\xE2\x80\xAC", "\xE2\x80\xAD",
                           "\xE2\x80\xAE", "\xE2\x81\xA6", "\xE2\x81\xA7", "\xE2\x81\xA8", "\xE2\x81\xA9"}),
            MakeName(std::vector<std::string>(12, "?")));
}

TEST(OPXExplorerTreePrinterTest, TheNeighboursOfTheControlsArePrinted)
{
  const std::vector<std::string> neighbours = {"\xC2\xA0",     "\xC3\x80",     "\xD8\x9B",        "\xD8\x9D",
                                               "\xE2\x80\x8D", "\xE2\x80\x90", "\xE2\x80\xA9",    "\xE2\x80\xAF",
                                               "\xE2\x81\xA5", "\xE2\x81\xAA", "\xF0\x9F\x98\x80"};
  EXPECT_EQ(PrintNameWith(neighbours), MakeName(neighbours));
}

TEST(OPXExplorerTreePrinterTest, AControlTakesOneColumn)
{
  TemporaryTree tree;
  tree.AddFile("a\xE2\x80\xAEz");
  tree.AddFile("abz");
  const std::string out = Print(tree);
  EXPECT_EQ(out.find("0 B"), out.find("0 B", out.find('\n')) - out.find('\n') - 1);
}
