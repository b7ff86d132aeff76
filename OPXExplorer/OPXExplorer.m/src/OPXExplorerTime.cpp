#include "OPXExplorerTime.h"

#include <cstdio>

namespace
{
struct Date
{
  unsigned year;
  unsigned month;
  unsigned day;
};

// The Gregorian calendar repeats every 400 years; years are counted from March, so that a leap day ends one.
Date MakeDate(std::uint64_t i_daysSince1601)
{
  const std::uint64_t days = i_daysSince1601 + 306;
  const auto era = static_cast<unsigned>(days / 146097);
  const auto dayOfEra = static_cast<unsigned>(days % 146097);
  const unsigned yearOfEra = (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
  const unsigned dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
  const unsigned monthFromMarch = (5 * dayOfYear + 2) / 153;
  const unsigned month = monthFromMarch < 10 ? monthFromMarch + 3 : monthFromMarch - 9;
  return {1600 + era * 400 + yearOfEra + (month <= 2 ? 1 : 0), month, dayOfYear - (153 * monthFromMarch + 2) / 5 + 1};
}
} // namespace

std::string OPXExplorerTime::MakeISO8601(std::uint64_t i_ticks)
{
  const std::uint64_t seconds = i_ticks / 10000000;
  const Date date = MakeDate(seconds / 86400);
  const auto time = static_cast<unsigned>(seconds % 86400);
  char text[48];
  // A year of more than four digits is written in six with a sign: so the expanded form of readers in JavaScript is.
  std::snprintf(text, sizeof text, date.year > 9999 ? "+%06u-%02u-%02uT%02u:%02u:%02uZ" : "%04u-%02u-%02uT%02u:%02u:%02uZ", date.year,
                date.month, date.day, time / 3600, time / 60 % 60, time % 60);
  return text;
}
