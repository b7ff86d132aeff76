// LastWords: a handler that does something when it dies.
// ZELHandle<LastWords>::Adopt(new LastWords([&] { store.RemoveHandler(pEvent, pOther); }))
#ifndef LastWords_H
#define LastWords_H

#include "EventWorld.h"

#include <functional>
#include <utility>

class LastWords : public CountedHandler
{
public:
  explicit LastWords(std::function<void()> i_words) : _words(std::move(i_words)) {}
  ~LastWords() override { _words(); }

private:
  const std::function<void()> _words;
};

#endif
