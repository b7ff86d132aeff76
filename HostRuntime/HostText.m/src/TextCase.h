// TextCase: texts with their letters in another case.
// ZELSharedText upper = MapLetters("name", 'a'); // "NAME"
#ifndef TextCase_H
#define TextCase_H

#include "ZELSharedText.h"

#include <string_view>

// Each byte mapped as ZELMapLetter does.
ZELSharedText MapLetters(std::string_view i_text, char i_firstLetter);

#endif
