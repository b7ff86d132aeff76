// sigc++: a signal a node, the parents are walked by hand.
#include "SignalPeer.h"

#if OPX_PEER_SIGC
#include <sigc++/sigc++.h>

#include <memory>

namespace
{
struct SigcTypes
{
  using Signal = sigc::signal<void(Payload&)>;
  using Connection = sigc::connection;
  struct Counted
  {
    virtual ~Counted() = default;
  };
  template <class Node>
  using Pointer = std::shared_ptr<Node>;
  template <class Node>
  static Pointer<Node> Make()
  {
    return std::make_shared<Node>();
  }
};
} // namespace

void RegisterSigc(const std::string& i_state)
{
  RegisterCases<SignalWorld<SigcTypes>, SignalCrowd<SigcTypes>>("sigc++", i_state);
}
#else
void RegisterSigc(const std::string&)
{
  AnnounceMissing("sigc++");
}
#endif
