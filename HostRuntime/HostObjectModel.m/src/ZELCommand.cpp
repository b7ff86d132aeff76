#include "ZELCommand.h"

#include <utility>

ZELImplementClass(ZELCommand, ZELBaseUnknown, OPXHostRuntime);

ZELCommand::ZELCommand(ZELCommand* i_pFather, const ZELString& i_name) : _name(i_name)
{
  if (!i_pFather || i_pFather->_isGoing)
    return;
  AddRef();
  Enter(i_pFather, &i_pFather->_children);
}

ZELCommand::~ZELCommand()
{
  _isGoing = true;
  Leave();
  OrphanChildren();
}

ZELCommand* ZELCommand::GetFirstChild() const
{
  return CommandAt(_children._pNext, &_children);
}

ZELCommand* ZELCommand::GetNextSibling() const
{
  return _pFather ? CommandAt(_place._pNext, &_pFather->_children) : nullptr;
}

ZELCommand* ZELCommand::FindChild(const ZELString& i_name) const
{
  ZELCommand* pChild = GetFirstChild();
  while (pChild && pChild->_name != i_name)
    pChild = pChild->GetNextSibling();
  return pChild;
}

int ZELCommand::SetFather(ZELCommand* i_pFather)
{
  if (_isGoing || (i_pFather && (i_pFather->_isGoing || i_pFather->StandsBelow(this))))
    return 0;
  const bool wasHeld = _place._pNext != &_place;
  Leave();
  if (i_pFather)
  {
    AddRef();
    Enter(i_pFather, &i_pFather->_children);
  }
  if (wasHeld)
    Release();
  return 1;
}

ZELCommand* ZELCommand::CommandAt(const Link* i_pLink, const Link* i_pEnd)
{
  return i_pLink == i_pEnd ? nullptr : static_cast<const Place*>(i_pLink)->_pCommand;
}

// True for i_pCommand itself, too.
bool ZELCommand::StandsBelow(const ZELCommand* i_pCommand) const
{
  const ZELCommand* pEach = this;
  while (pEach && pEach != i_pCommand)
    pEach = pEach->_pFather;
  return pEach != nullptr;
}

// At the end of the ring, whose owner holds a reference on this command from here on.
void ZELCommand::Enter(ZELCommand* i_pFather, Link* io_pRing)
{
  _pFather = i_pFather;
  _place._pNext = io_pRing;
  _place._pPrevious = io_pRing->_pPrevious;
  _place._pPrevious->_pNext = &_place;
  io_pRing->_pPrevious = &_place;
}

void ZELCommand::Leave()
{
  _pFather = nullptr;
  _place._pPrevious->_pNext = _place._pNext;
  _place._pNext->_pPrevious = _place._pPrevious;
  _place._pNext = _place._pPrevious = &_place;
}

// The children of a command that goes wait in the ring from which it was released itself, if it was: the depth of the tree is
// no depth of calls.
void ZELCommand::OrphanChildren()
{
  thread_local Orphans* pOrphans = nullptr;
  if (pOrphans && pOrphans->_pReleased == this)
    return MoveChildrenTo(*pOrphans);
  Orphans orphans;
  MoveChildrenTo(orphans);
  Orphans* const pBefore = std::exchange(pOrphans, &orphans);
  ReleaseAll(orphans);
  pOrphans = pBefore;
}

void ZELCommand::MoveChildrenTo(Orphans& io_orphans)
{
  while (ZELCommand* const pChild = GetFirstChild())
  {
    pChild->Leave();
    pChild->Enter(nullptr, &io_orphans);
  }
}

void ZELCommand::ReleaseAll(Orphans& io_orphans)
{
  while (ZELCommand* const pFirst = CommandAt(io_orphans._pNext, &io_orphans))
  {
    pFirst->Leave();
    io_orphans._pReleased = pFirst;
    pFirst->Release();
  }
}
