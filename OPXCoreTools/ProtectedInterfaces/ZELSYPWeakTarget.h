// ZELSYPWeakTarget: the member by which handlers notice that its object is gone, wherever the object lives.
// class Panel { ... ZELSYPWeakTarget _weakTarget; }; ZELSYPMakeWeakHandler(_weakTarget, this, &Panel::OnChanged)
//
// Declare it as the last member: it goes first then, before anything that a handler could use. It is made for one object:
// a copy or a move of the object starts with nobody watching. Not watched, it costs two pointers. UI thread.
#ifndef ZELSYPWeakTarget_H
#define ZELSYPWeakTarget_H

#include <memory>

class ZELSYPWeakTarget
{
public:
  ZELSYPWeakTarget() = default;
  ZELSYPWeakTarget(const ZELSYPWeakTarget&) noexcept {}
  // Those who watch go on watching this object.
  ZELSYPWeakTarget& operator=(const ZELSYPWeakTarget&) noexcept { return *this; }

  // Expired from the moment on in which this is destroyed. Nobody may lock it for longer than a test.
  operator std::weak_ptr<const void>() const
  {
    if (!_pLife)
      _pLife = std::make_shared<char>();
    return _pLife;
  }

private:
  mutable std::shared_ptr<const void> _pLife;
};

#endif
