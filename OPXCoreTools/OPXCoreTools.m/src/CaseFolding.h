// Letter case: names that are told apart without it.
// UpperCaseNarrow(name.GetUTF8(), upper);
#ifndef CaseFolding_H
#define CaseFolding_H

#include <string>
#include <string_view>

// The case of ASCII letters only, whatever the locale.
bool EqualIgnoringCase(std::string_view i_left, std::string_view i_right) noexcept;

// The narrow view of the text after the system's upper-casing. o_upper is given to be used again: an ASCII text costs
// one pass and no allocation.
void UpperCaseNarrow(std::string_view i_utf8, std::string& o_upper);

#endif
