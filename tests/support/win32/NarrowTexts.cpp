#include "NarrowTexts.h"

// As code page 1252 has them.
const char* const NarrowTexts::Cafe = "caf\xE9";
const char* const NarrowTexts::Infinity = "?";
