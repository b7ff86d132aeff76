// Boost.Signals2: a signal a node, the parents are walked by hand. Once as it comes, once without its mutex.
#include "SignalPeer.h"

#if OPX_PEER_SIGNALS2
#include <boost/signals2.hpp>
#include <boost/smart_ptr/intrusive_ptr.hpp>
#include <boost/smart_ptr/intrusive_ref_counter.hpp>

namespace
{
namespace signals = boost::signals2;
using LockedSignal = signals::signal<void(Payload&)>;
using UnlockedSignal = signals::signal_type<void(Payload&), signals::keywords::mutex_type<signals::dummy_mutex>>::type;

template <class SignalType>
struct Signals2Types
{
  using Signal = SignalType;
  using Connection = signals::connection;
  struct Counted : boost::intrusive_ref_counter<Counted, boost::thread_safe_counter>
  {
    virtual ~Counted() = default;
  };
  template <class Node>
  using Pointer = boost::intrusive_ptr<Node>;
  template <class Node>
  static Pointer<Node> Make()
  {
    return new Node;
  }
};

template <class Signal>
void RegisterFor(const std::string& i_contender, const std::string& i_state)
{
  using Types = Signals2Types<Signal>;
  RegisterCases<SignalWorld<Types>, SignalCrowd<Types>>(i_contender, i_state);
}
} // namespace

void RegisterSignals2(const std::string& i_state)
{
  RegisterFor<LockedSignal>("Boost.Signals2", i_state);
  RegisterFor<UnlockedSignal>("Boost.Signals2 without mutex", i_state);
}
#else
void RegisterSignals2(const std::string&)
{
  AnnounceMissing("Boost.Signals2");
}
#endif
