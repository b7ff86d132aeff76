// OPXTreeValue: one value of a message together with the place where it stands, to be tested before it is used.
// OPXTreeValue(params).Member("startRow").NeedInt();
//
// Each Need... throws an OPXTreeError for wrong parameters that names the place (a JSON pointer) and what is expected.
#ifndef OPXTreeValue_H
#define OPXTreeValue_H

#include <cstddef>
#include <cstdint>
#include <functional>
#include <nlohmann/json.hpp>
#include <string>

class OPXTreeValue
{
public:
  explicit OPXTreeValue(nlohmann::json& io_value, std::string i_place = std::string());

  bool IsArray() const { return _value.is_array(); }
  bool IsString() const { return _value.is_string(); }
  // A whole number, not negative.
  bool IsCount() const { return _value.is_number_unsigned(); }
  bool Is(const char* i_text) const { return _value == i_text; }
  // Of an array or an object.
  std::size_t GetSize() const { return _value.size(); }
  bool Has(const char* i_key) const { return _value.contains(i_key); }

  void NeedObject() const;
  void NeedString() const;
  // A number that is out of the range of 32 bits becomes the nearest end of it, so that no conversion overflows.
  void NeedNumber() const;
  // A number as above, or a boolean, which counts as 0 or 1.
  void NeedInt() const;
  // The same for 32 bits without a sign.
  void NeedUnsigned() const;
  // A member that must be there.
  OPXTreeValue Member(const char* i_key) const;

  // Runs the test on the member if there is one.
  template <class Test>
  void IfMember(const char* i_key, Test i_test) const
  {
    if (Has(i_key))
      std::invoke(i_test, Member(i_key));
  }
  // Runs the test on each element; the value must be an array.
  template <class Test>
  void NeedEach(Test i_test) const
  {
    Need(IsArray(), "array");
    for (std::size_t i = 0; i < _value.size(); ++i)
      std::invoke(i_test, OPXTreeValue(_value[i], _place + "/" + std::to_string(i)));
  }
  // i_expected: what the value should have been.
  void Need(bool i_holds, const char* i_expected) const;

private:
  void NeedNumberIn(std::int64_t i_min, std::int64_t i_max) const;

  nlohmann::json& _value;
  std::string _place;
};

#endif
