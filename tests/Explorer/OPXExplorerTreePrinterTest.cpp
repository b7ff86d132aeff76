// What a person sees on the terminal.
#include "ChildProcess.h"
#include "TemporaryTree.h"

#include <gtest/gtest.h>

#include <string>

namespace
{
// The name at the start of the only line.
std::string PrintedName(const std::string& i_name)
{
  TemporaryTree tree;
  tree.AddFile(i_name);
  const std::string out = ChildProcess(ChildProcess::Beside("opx-explorer"), {tree.SystemPath().u8string()}).Run().out;
  return out.substr(0, out.find(' '));
}
} // namespace

TEST(OPXExplorerTreePrinterTest, ControlsBeyondASCIIDoNotReachTheTerminal)
{
  EXPECT_EQ(PrintedName("a\xC2\x80z\xC2\x9Bz\xC2\x9Fz"), "a?z?z?z");
}

TEST(OPXExplorerTreePrinterTest, ADeleteCharacterDoesNotReachTheTerminal)
{
  EXPECT_EQ(PrintedName("a\x7Fz"), "a?z");
}

TEST(OPXExplorerTreePrinterTest, WhatChangesTheDirectionOfALineDoesNotReachTheTerminal)
{
  for (const char* const control : {"\xD8\x9C", "\xE2\x80\x8E", "\xE2\x80\x8F", "\xE2\x80\xAA", "\xE2\x80\xAB", "\xE2\x80\xAC",
                                    "\xE2\x80\xAD", "\xE2\x80\xAE", "\xE2\x81\xA6", "\xE2\x81\xA7", "\xE2\x81\xA8", "\xE2\x81\xA9"})
    EXPECT_EQ(PrintedName("evil" + std::string(control) + "fdp.exe"), "evil?fdp.exe");
}

TEST(OPXExplorerTreePrinterTest, TheNeighboursOfTheControlsArePrinted)
{
  for (const char* const name : {"a\xC2\xA0z", "a\xC3\x80z", "a\xD8\x9Bz", "a\xD8\x9Dz", "a\xE2\x80\x8Dz", "a\xE2\x80\x90z",
                                 "a\xE2\x80\xA9z", "a\xE2\x80\xAFz", "a\xE2\x81\xA5z", "a\xE2\x81\xAAz", "a\xF0\x9F\x98\x80z"})
    EXPECT_EQ(PrintedName(name), name);
}

TEST(OPXExplorerTreePrinterTest, AControlTakesOneColumn)
{
  TemporaryTree tree;
  tree.AddFile("a\xE2\x80\xAEz");
  tree.AddFile("abz");
  const std::string out = ChildProcess(ChildProcess::Beside("opx-explorer"), {tree.SystemPath().u8string()}).Run().out;
  EXPECT_EQ(out.find("0 B"), out.find("0 B", out.find('\n')) - out.find('\n') - 1);
}
