// ZELCommand: a named object in a tree of commands.
// ZELCommand* pFile = new ZELCommand(pRoot, "File"); for (ZELCommand* p = pFile->GetFirstChild(); p; p = p->GetNextSibling()) ...
//
// A father holds one reference on each of its children: a child lives at least as long as its father keeps it. A father that
// is destroyed gives these references back, first child first; a child that someone else holds lives on without a father. A
// child on the stack that is destroyed leaves its father. Trees of any depth are destroyed without depth on the call stack.
// One thread at a time a tree.
#ifndef ZELCommand_H
#define ZELCommand_H

#include "ZELBaseUnknown.h"
#include "ZELString.h"

class OPXHOSTRUNTIME_EXPORT ZELCommand : public ZELBaseUnknown
{
  ZELDeclareClass;

  // The last child of i_pFather; without a father for null and for one that is being destroyed.
  explicit ZELCommand(ZELCommand* i_pFather = nullptr, const ZELString& i_name = ZELString());
  ~ZELCommand() override;

  const ZELString& GetName() const { return _name; }
  // Null for a root.
  ZELCommand* GetFather() const { return _pFather; }
  // In the order in which they came to this father; null when there is none (any more).
  ZELCommand* GetFirstChild() const;
  ZELCommand* GetNextSibling() const;
  // The first child of that name, null when there is none.
  ZELCommand* FindChild(const ZELString& i_name) const;

  // 1: this is the last child of i_pFather now, with all its own children; a root for null. 0, and nothing changes:
  // i_pFather is this command or stands below it, or either is being destroyed. The father of before gives its reference
  // back last, so that a command that nobody else holds is destroyed when it becomes a root.
  int SetFather(ZELCommand* i_pFather);

private:
  // A ring of brothers, which starts and ends in their father.
  struct Link
  {
    Link* _pNext = this;
    Link* _pPrevious = this;
  };
  // A child's place in that ring.
  struct Place : Link
  {
    explicit Place(ZELCommand* i_pCommand) : _pCommand(i_pCommand) {}
    ZELCommand* const _pCommand;
  };

  static ZELCommand* CommandAt(const Link* i_pLink, const Link* i_pEnd);
  bool StandsBelow(const ZELCommand* i_pCommand) const;
  void Enter(ZELCommand* i_pFather, Link* io_pRing);
  void Leave();
  // The children of commands that are gone, and the one among them whose reference is being given back.
  struct Orphans : Link
  {
    const ZELCommand* _pReleased = nullptr;
  };
  void OrphanChildren();
  void MoveChildrenTo(Orphans& io_orphans);
  static void ReleaseAll(Orphans& io_orphans);

  ZELString _name;
  ZELCommand* _pFather = nullptr;
  Link _children;
  Place _place{this};
  bool _isGoing = false;
};

#endif
