#include "EventModel.h"

#include <algorithm>

const EventModel::Run* EventModel::Dispatch::Next()
{
  while (_next < _runs.size() && !Runs(_runs[_next]))
    ++_next;
  return _next < _runs.size() ? &_runs[_next++] : nullptr;
}

std::size_t EventModel::Dispatch::PassBy(Id i_handler)
{
  const auto first = std::remove_if(_runs.begin() + static_cast<std::ptrdiff_t>(_next), _runs.end(),
                                    [=](const Run& i_run) { return i_run._handler == i_handler; });
  const auto count = static_cast<std::size_t>(std::distance(first, _runs.end()));
  _runs.erase(first, _runs.end());
  return count;
}

bool EventModel::Dispatch::WillRun(Id i_handler) const
{
  return std::any_of(_runs.begin() + static_cast<std::ptrdiff_t>(_next), _runs.end(),
                     [&](const Run& i_run) { return i_run._handler == i_handler && Runs(i_run); });
}

void EventModel::Add(Store& io_store, Id i_event, Id i_handler, bool i_handlesConsumed)
{
  io_store[i_event].push_back({i_handler, i_handlesConsumed});
}

bool EventModel::Remove(Store& io_store, Id i_event, Id i_handler)
{
  List& list = io_store[i_event];
  const auto found = std::find_if(list.begin(), list.end(), [=](const Registration& i_each) { return i_each._handler == i_handler; });
  if (found == list.end())
    return false;
  list.erase(found);
  return true;
}

EventModel::List EventModel::GetHandlers(Store& io_store, Id i_event)
{
  List& list = io_store[i_event];
  list.erase(std::remove_if(list.begin(), list.end(), [this](const Registration& i_each) { return IsDead(i_each._handler); }), list.end());
  return list;
}

void EventModel::TakeLists(const Stop& i_stop, Id i_event, Dispatch& io_dispatch)
{
  for (const Id itsClass : i_stop._classes)
    AddRuns(i_stop._node, AtClass(itsClass), i_event, io_dispatch);
  AddRuns(i_stop._node, AtNode(i_stop._node), i_event, io_dispatch);
}

void EventModel::AddRuns(Id i_node, Store& io_store, Id i_event, Dispatch& io_dispatch)
{
  for (const Registration& each : GetHandlers(io_store, i_event))
    io_dispatch.Add({i_node, each._handler, each._handlesConsumed});
}

template <class Visit>
void EventModel::VisitRegistrations(Visit i_visit) const
{
  for (const auto* pStores : {&_nodes, &_classes})
    for (const auto& owner : *pStores)
      for (const auto& list : owner.second)
        for (const Registration& each : list.second)
          i_visit(each);
}

int EventModel::CountRegistrations() const
{
  int count = 0;
  VisitRegistrations([&count](const Registration&) { ++count; });
  return count;
}

void EventModel::AddHandlersTo(std::set<Id>& io_handlers) const
{
  VisitRegistrations([&io_handlers](const Registration& i_each) { io_handlers.insert(i_each._handler); });
}
