#include "ZELSYPDescriptorBase.h"

ZELSYPDescriptorBase::ZELSYPDescriptorBase(IntrospectableEntryType i_type) : _type(i_type) {}

ZELSYPDescriptorBase::ZELSYPDescriptorBase(IntrospectableEntryType i_type, const ZELUnicodeString&) : ZELSYPDescriptorBase(i_type) {}

ZELSYPDescriptorBase::ZELSYPDescriptorBase(const ZELSYPDescriptorBase& i_other) = default;

ZELSYPDescriptorBase::~ZELSYPDescriptorBase() = default;

ZELSYPDescriptorBase& ZELSYPDescriptorBase::operator=(const ZELSYPDescriptorBase& i_other) = default;
