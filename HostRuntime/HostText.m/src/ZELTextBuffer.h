// ZELTextBuffer: the counted head of a shared text; the bytes follow it in the same block.
// ZELTextBuffer* pBuffer = ZELTextBuffer::Make(4); std::memcpy(pBuffer->GetBytes(), "file", 4); pBuffer->Release();
//
// It starts with one reference, its maker's. Any thread may take and release references.
#ifndef ZELTextBuffer_H
#define ZELTextBuffer_H

#include <atomic>
#include <cstddef>
#include <string_view>

class ZELTextBuffer
{
public:
  // A buffer for i_capacity bytes and the zero behind them. Throws std::length_error when an int cannot count them.
  static ZELTextBuffer* Make(std::size_t i_capacity);
  // The buffer that holds these bytes.
  static ZELTextBuffer* Of(const char* i_bytes) noexcept;

  char* GetBytes() noexcept { return reinterpret_cast<char*>(this + 1); }
  std::size_t GetCapacity() const noexcept { return _capacity; }

  void AddRef() noexcept { _refCount.fetch_add(1, std::memory_order_relaxed); }
  void Release() noexcept;
  bool IsShared() const noexcept { return _refCount.load(std::memory_order_acquire) != 1; }

  const char* GetKeptForm() const noexcept { return _keptForm.load(std::memory_order_acquire); }
  // Keeps a copy unless another thread was first; answers the one that is kept.
  const char* KeepForm(std::string_view i_form);
  // Only while nobody shares the buffer.
  void ForgetForm() noexcept;

private:
  explicit ZELTextBuffer(std::size_t i_capacity) noexcept : _capacity(static_cast<unsigned>(i_capacity)) {}
  ~ZELTextBuffer() { ForgetForm(); }

  std::atomic<int> _refCount{1};
  unsigned _capacity;
  std::atomic<const char*> _keptForm{nullptr};
};

#endif
