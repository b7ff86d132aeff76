// ReportText: a report's text with what differs from build to build left out, so that the rest compares to the letter.
// EXPECT_EQ(ReportText::Of(result.err), "Internal error in ZELSYPCheckKey.cpp LINE, NULL value!\n");
#ifndef ReportText_H
#define ReportText_H

#include <regex>
#include <string>

class ReportText
{
public:
  // The library's own lines become LINE, the frames of a call stack (at least one) become FRAMES.
  static std::string Of(const std::string& i_text)
  {
    const std::string text =
        std::regex_replace(i_text, std::regex("(rror in [A-Za-z]+\\.cpp|ERROR in [A-Za-z]+\\.cpp) [1-9][0-9]*"), "$1 LINE");
    const std::string frames = std::regex_replace(text, std::regex("\n *[0-9]+# [^\n]+"), "\nFRAME");
    return std::regex_replace(frames, std::regex("call stack:(\nFRAME)+\n"), "call stack:\nFRAMES\n");
  }
};

#endif
