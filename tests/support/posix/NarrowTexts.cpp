#include "NarrowTexts.h"

const char* const NarrowTexts::Cafe = "caf\xC3\xA9";
const char* const NarrowTexts::Infinity = "\xE2\x88\x9E";
