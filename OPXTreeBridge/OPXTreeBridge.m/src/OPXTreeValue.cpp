#include "OPXTreeValue.h"

#include "OPXTreeError.h"

#include <utility>

OPXTreeValue::OPXTreeValue(nlohmann::json& io_value, std::string i_place) : _value(io_value), _place(std::move(i_place)) {}

void OPXTreeValue::Need(bool i_holds, const char* i_expected) const
{
  if (!i_holds)
    throw OPXTreeError(OPXTreeError::InvalidParams, {{"place", _place}, {"expected", i_expected}, {"found", _value.type_name()}});
}

void OPXTreeValue::NeedObject() const
{
  Need(_value.is_object(), "object");
}

void OPXTreeValue::NeedString() const
{
  Need(_value.is_string(), "string");
}

void OPXTreeValue::NeedNumber() const
{
  NeedNumberIn(INT32_MIN, INT32_MAX);
}

void OPXTreeValue::NeedInt() const
{
  if (!_value.is_boolean())
    NeedNumber();
}

void OPXTreeValue::NeedUnsigned() const
{
  if (!_value.is_boolean())
    NeedNumberIn(0, UINT32_MAX);
}

OPXTreeValue OPXTreeValue::Member(const char* i_key) const
{
  NeedObject();
  if (!Has(i_key))
    throw OPXTreeError(OPXTreeError::InvalidParams, {{"place", _place}, {"missing", i_key}});
  return OPXTreeValue(_value[i_key], _place + "/" + i_key);
}

void OPXTreeValue::NeedNumberIn(std::int64_t i_min, std::int64_t i_max) const
{
  Need(_value.is_number(), "number");
  // A floating copy tells on which side a number of any kind lies; ends of 32 bits are exact in it.
  const double number = _value.get<double>();
  if (number < static_cast<double>(i_min))
    _value = i_min;
  else if (number > static_cast<double>(i_max))
    _value = i_max;
}
