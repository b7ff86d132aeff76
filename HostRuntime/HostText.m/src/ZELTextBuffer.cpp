#include "ZELTextBuffer.h"

#include <climits>
#include <cstring>
#include <new>
#include <stdexcept>

ZELTextBuffer* ZELTextBuffer::Make(std::size_t i_capacity)
{
  if (i_capacity > INT_MAX)
    throw std::length_error("a text is too long");
  return new (::operator new(sizeof(ZELTextBuffer) + i_capacity + 1)) ZELTextBuffer(i_capacity);
}

ZELTextBuffer* ZELTextBuffer::Of(const char* i_bytes) noexcept
{
  return reinterpret_cast<ZELTextBuffer*>(const_cast<char*>(i_bytes)) - 1;
}

void ZELTextBuffer::Release() noexcept
{
  if (_refCount.fetch_sub(1, std::memory_order_acq_rel) != 1)
    return;
  this->~ZELTextBuffer();
  ::operator delete(this);
}

const char* ZELTextBuffer::KeepForm(std::string_view i_form)
{
  char* const form = new char[i_form.size() + 1];
  std::memcpy(form, i_form.data(), i_form.size());
  form[i_form.size()] = '\0';
  const char* kept = nullptr;
  if (_keptForm.compare_exchange_strong(kept, form, std::memory_order_acq_rel, std::memory_order_acquire))
    return form;
  delete[] form;
  return kept;
}

void ZELTextBuffer::ForgetForm() noexcept
{
  delete[] _keptForm.exchange(nullptr, std::memory_order_relaxed);
}
