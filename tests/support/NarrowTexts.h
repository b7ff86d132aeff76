// NarrowTexts: some texts as the system code page writes them.
// EXPECT_STREQ(ZELUnicodeString::FromUTF8("caf\xC3\xA9").GetNarrow(), NarrowTexts::Cafe);
#ifndef NarrowTexts_H
#define NarrowTexts_H

namespace NarrowTexts
{
// "cafe" with an acute accent on the e, U+00E9.
extern const char* const Cafe;
// The sign for infinity, U+221E, which Western code pages lack and which resembles an 8.
extern const char* const Infinity;
} // namespace NarrowTexts

#endif
