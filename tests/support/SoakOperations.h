// GetSoakOperations: how many random operations a soak makes in all, an ordinary test's number unless the environment asks.
// soak.Run(GetSoakOperations(200'000) / seeds);      OPX_SOAK_OPERATIONS=10000000 asks; the target soak does
#ifndef SoakOperations_H
#define SoakOperations_H

#include <cstdlib>

inline long GetSoakOperations(long i_ordinary)
{
  const char* const pAsked = std::getenv("OPX_SOAK_OPERATIONS");
  return pAsked ? std::atol(pAsked) : i_ordinary;
}

#endif
