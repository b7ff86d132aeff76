#include "ZELSYPEvent.h"

#include "ZELMetaClass.h"
#include "ZELSYPCheck.h"
#include "ZELSYPEventArgs.h"

ZELImplementClass(ZELSYPEvent, ZELBaseUnknown, OPXCoreTools);

namespace
{
bool IsDigit(char i_character)
{
  return i_character >= '0' && i_character <= '9';
}

bool IsLetter(char i_character)
{
  return (i_character >= 'A' && i_character <= 'Z') || (i_character >= 'a' && i_character <= 'z') || i_character == '_';
}

bool IsIdentifier(const char* i_name)
{
  while (IsLetter(*i_name) || IsDigit(*i_name))
    ++i_name;
  return *i_name == '\0';
}
} // namespace

const char* ZELSYPEvent::CheckEventName(const char* i_name)
{
  if (!ZELSYP_CHECK_POINTER(i_name))
    return "Name is NULL";
  if (*i_name == '\0')
    return "The string is empty";
  if (IsDigit(*i_name))
    return "The first character is a digit";
  return IsIdentifier(i_name) ? nullptr : "One of the character of the identifier is not valid";
}

const char* ZELSYPEvent::PropagationToString(Propagation i_propagation)
{
  switch (i_propagation)
  {
  case RootToOrigin:
    return "RootToOrigin";
  case OriginToRoot:
    return "OriginToRoot";
  case NoPropagation:
    return "NoPropagation";
  }
  return "<invalid>";
}

ZELSYPEvent::ZELSYPEvent(const char* i_name, Propagation i_propagation, ZELMetaClass* i_pArgumentType, ZELMetaClass* i_pOwnerClass)
    : _name(i_name), _propagation(i_propagation), _pArgumentType(i_pArgumentType), _pOwnerClass(i_pOwnerClass)
{
  const char* const nameError = CheckEventName(i_name);
  ZELSYP_CHECK_TRUE_DETAILS(nameError == NULL, nameError);
  ZELSYP_CHECK_POINTER(i_pOwnerClass);
  if (ZELSYP_CHECK_POINTER(i_pArgumentType))
    ZELSYP_CHECK_TRUE(i_pArgumentType->IsAKindOf(ZELSYPEventArgs::MetaObject()));
}

ZELSYPEvent::~ZELSYPEvent() = default;
